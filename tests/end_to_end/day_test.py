"""A day in a user's life: from the first start to a song that was recorded, edited, saved, exported
and played again, all with keys and the mouse on the built program. After each step, what the window
shows, what left the program and what stands in the files is what it should be.

usage: day_test.py LUNAVOX JACK_RECORDER"""

import pathlib
import sys
import unittest

import day_score as score
import editor
import jack
import midi_file
import midi_log
import screen_reader
from take import Take

missing = editor.missing_tools() + screen_reader.missing()
if missing:
    print("not installed:", *missing)
    sys.exit(77)  # skipped
from day_bench import DayBench

COUNT_IN = 6  # beats
VIRTUAL_INPUT = "Lunavox input:Lunavox virtual input"

START_VALUES = ["127", "64", "1", "64", "40", "1", "1", "64", "64", "64"]
SWITCHED_OFF = ["yes"] + 10 * ["no"]
VOLUME_SHOWN = ["no", "yes"] + 9 * ["no"]
BEAT = (240, 0, 0)
LOUDEST, MIDDLE, STRENGTH_100 = (254, 2, 2), (128, 254, 128), (200, 110, 56)
KEY_RED, BLACK = (255, 0, 0), (0, 0, 0)


class Day(DayBench):
    def test_a_day(self):
        self.first_start_without_an_input_device()
        self.first_start_with_an_input_device()
        self.the_output_device()
        self.two_more_tracks()
        self.a_drum_kit()
        self.an_instrument()
        self.a_second_instrument()
        self.a_shorter_song()
        self.drums_on_a_french_keyboard()
        self.the_first_save()
        self.a_melody_on_a_german_keyboard()
        self.a_bass_on_an_american_keyboard()
        self.a_recording_in_real_time()
        self.a_volume_curve()
        self.more_reverb_for_the_drums()
        self.a_copy_an_octave_higher()
        self.softer_notes()
        self.a_bookmark()
        self.the_last_save()
        self.the_export()
        self.the_end_of_the_work()
        self.the_song_played_again()

    # The steps

    def first_start_without_an_input_device(self):
        server_name = self.server.environment["JACK_DEFAULT_SERVER"]
        self.server.environment["JACK_DEFAULT_SERVER"] = "none"
        self.start()
        window = self.window.ready()
        self.expect_midi(midi_log.RESET + midi_log.XG_SET_UP)
        self.assertEqual(window.headers(), ["DRUM TRACK  1"])
        self.assertEqual(window.settings(1, "Active"), SWITCHED_OFF)
        self.assertEqual(window.settings(1, "Start value"), ["standard 1"] + START_VALUES)
        self.assertEqual(window.settings(1, "Show"), VOLUME_SHOWN)
        self.assertEqual([window.field(name) for name in ("length", "bpm", "number", "step",
                                                          "strength")],
                         ["64", "120", "4", "1", "127"])
        self.assertIn(" 0:08", window.labels(editor.MAIN))
        notes = window.node("table", "tracks")
        self.assertEqual(notes.size(), (64, 9))
        self.assertEqual([notes.heading(row=line) for line in (0, 10, 16, 63)],
                         ["0", "A", "10", "3F"])
        self.assertEqual([notes.heading(column=column) for column in (0, 7, 8)],
                         ["# 1", "# 8", "Effect"])
        self.assertEqual(window.status()[2:], ("Line 0 of 64   Beat 1", "Track 1 #1: empty",
                                               "Octave 0"))
        window.key("q")
        self.expect_midi(["e9 00 40", "99 30 00", "e9 00 40", "99 30 7f", "e9 00 40", "99 30 00"])
        self.assertEqual(window.column(1, 1, 64), {})  # heard, not recorded
        self.quit()
        self.assertIsNone(self.config())
        self.server.environment["JACK_DEFAULT_SERVER"] = server_name

    def first_start_with_an_input_device(self):
        self.keyboard("fr")
        player = self.server.sequence("seq")
        self.start()
        window = self.window.window("Midi input")
        self.assertEqual(window.names("Midi input", "list item"),
                         ["seq:out", "Lunavox virtual input"])
        window.key("Return")
        window.dismiss("Lunavox", "You must select an input device")
        self.assertIsNone(self.config())
        window.window("Midi input").key("Down", "Return")
        window.ready().wait_for_notes(2)
        self.assertEqual(self.config(), b"input=0\r\nboot=1\r\n")
        self.assertEqual(window.status().output, "Built-in synthesiser")
        self.assertEqual({text for _, text in window.notes()}, {"99 3c 7f", "99 3f 7f"})
        player.stop()
        self.wait_for_status(output='The MIDI input "seq:out" is gone.')
        self.pass_over_midi()

    def the_output_device(self):
        self.expect_silence()
        self.recorder = self.server.recorder(self.RECORDER)
        self.unheard = self.told
        window = self.window
        window.choose("Output device", "recorder:input")
        self.expect_midi(midi_log.RESET + midi_log.XG_SET_UP)
        self.wait_to_see(window.shown.find("menu item", "recorder:input").checked, True)

    def two_more_tracks(self):
        window = self.window
        for tracks in (2, 3):
            window.choose("Track", "add instrument track")
            self.expect_voices(tracks)
        self.wait_to_see(window.headers,
                         ["DRUM TRACK  1", "INTRUMENT TRACK  2", "INTRUMENT TRACK  3"])
        for track in (2, 3):
            self.assertEqual(window.settings(track, "Start value"), ["GrandPno"] + START_VALUES)
            self.assertEqual(window.settings(track, "Show"), VOLUME_SHOWN)
        self.assertEqual(window.node("table", "tracks").size(), (64, 27))

    def expect_voices(self, tracks, *chosen):
        """Bank, program and a silent note, for each track; those not yet chosen have program 0."""
        for track in range(1, tracks + 1):
            voice = score.VOICES[track]
            self.expect_midi(voice if track in chosen else
                             [voice[0], voice[1][:6] + "00", voice[2][:3] + "00", voice[3]])

    def a_drum_kit(self):
        window = self.window.main()
        window.press(window.setting_cell(1, "Instrument", "Start value"))
        window.window("Drum kit")
        kits = ["standard 1", "standard 2", "room", "rock", "electro", "analog", "jazz", "brush",
                "classic"]
        self.assertEqual(window.names("Drum kit", "list item"), kits)
        window.press(window.node("list item", "jazz"))
        window.key("Return")
        window.main()
        self.expect_voices(3, 1)
        self.wait_for_status(file="new song \u2022", cell="Track 1 #1: empty")
        self.assertIn("jazz", window.labels(editor.MAIN))

    def an_instrument(self):
        window = self.window
        window.press(window.setting_cell(2, "Instrument", "Start value"))
        window.window("Instrument")
        voices = window.node("table", "Voices")
        window.press(voices.cell(3, 3))
        self.assertEqual(voices.cell(3, 3).name(), "--------")
        window.press(window.node("push button", "OK"))
        window.dismiss("error", "you must select a valid instrument")
        window.window("Instrument").press(voices.cell(5, 3))  # heard, on a channel of its own
        self.expect_midi(["bf 00 00", "bf 20 21", "cf 05", "9f 3c 7e", "9f 3c 00"])
        window.node("label", "DX Hard \u2014 program 5, bank 33, Piano")
        window.press(window.node("push button", "OK"))
        window.wait_for_no_window("Instrument")
        window.main()
        self.expect_voices(3, 1, 2)
        self.wait_to_see(lambda: "DX Hard" in window.labels(editor.MAIN), True)

    def a_second_instrument(self):
        window = self.window
        window.press(window.setting_cell(3, "Instrument", "Start value"))
        window.window("Instrument").type("FngrB")
        found = "FngrBass \u2014 program 33, bank 0, Bass"
        jack.wait_until(lambda: any(label.endswith(found) for label in window.labels("Instrument")),
                        found)
        window.key("Return")
        window.wait_for_no_window("Instrument")
        window.main()
        self.expect_voices(3, 1, 2, 3)
        self.wait_to_see(lambda: "FngrBass" in window.labels(editor.MAIN), True)

    def a_shorter_song(self):
        window = self.window
        window.type_over("length", "1")
        window.dismiss("Lunavox", "Invalid value (2-3000)")
        window.main().enter("length", "32")
        window.enter("step", "4")
        self.assertIn(" 0:04", window.labels(editor.MAIN))
        self.assertEqual(window.node("table", "tracks").size(), (32, 27))
        window.key("Home")
        self.wait_for_status(line="Line 0 of 32   Beat 1")
        for line in range(8):
            place = window.line_number_place(line)
            self.assertEqual(window.looks(place, BEAT), line in (0, 4), line)
        self.expect_silence()

    def play(self, track, tune):
        """Records a tune step by step on the keyboard, four lines a note."""
        window = self.window.main()
        window.go_to(track, 1, 0)
        idle = window.picture(window.node("push button", "recordnotes").place())
        window.key("space", *[key for key, _, _, _ in tune], "space")
        self.expect_typed_notes(score.CHANNELS[track], [note for _, note, _, _ in tune])
        self.wait_to_see(lambda: window.column(track, 1, score.LINES),
                         {4 * beat: name for beat, (_, _, name, _) in enumerate(tune)})
        self.wait_to_see(
            lambda: window.picture(window.node("push button", "recordnotes").place()), idle)
        self.see_colour(track, 1, 28, LOUDEST)

    def drums_on_a_french_keyboard(self):
        self.play(1, score.DRUMS)
        self.wait_for_status(line="Line 28 of 32   Beat 8", cell="Track 1 #1: C4 velocity 127")

    def the_first_save(self):
        self.window.save_as(self.song)
        song = self.saved()
        self.assertEqual((song.version, song.tracks, song.lines), ("2.0", 3, 32))
        self.assertEqual(song.fields, {"step": "4", "bpm": "120", "length": "32", "number": "4"})
        self.assertEqual(song.notes, {(1, 1, 4 * beat): entry
                                      for beat, (_, _, _, entry) in enumerate(score.DRUMS)})
        self.assertEqual([song.values[track, 1][0] for track in (1, 2, 3)], [32, 5, 33])
        self.assertEqual(song.banks, [0, 33, 0])
        self.quit()

    def a_melody_on_a_german_keyboard(self):
        self.start_with_recorder("de")
        self.window.open(self.song)
        self.expect_voices(3, 1, 2, 3)
        self.wait_to_see(lambda: self.window.column(1, 1, 32),
                         {4 * beat: name for beat, (_, _, name, _) in enumerate(score.DRUMS)})
        self.assertEqual(self.window.field("step"), "4")
        self.play(2, score.MELODY)
        self.window.key("End", "BackSpace")
        self.wait_to_see(lambda: self.window.cell(2, 1, score.STOP_LINE).name(), "stop")
        self.window.choose("File", "Save")
        self.assertEqual(self.saved().notes[2, 1, score.STOP_LINE], "stop")
        self.quit()

    def a_bass_on_an_american_keyboard(self):
        self.start_with_recorder("us")
        window = self.window
        window.choose("File", "song.lvx")
        self.expect_voices(3, 1, 2, 3)
        window.main().key("F3")
        self.wait_for_status(octave="Octave -1", file="song.lvx")
        self.play(3, score.BASS)
        window.key("F4")
        self.wait_for_status(octave="Octave 0", file="song.lvx \u2022")

    def a_recording_in_real_time(self):
        window = self.window
        window.enter("strength", "100")
        self.choose_count_in()
        player = self.server.sequence("seq")
        self.server.connect("seq:out", VIRTUAL_INPUT)
        window.go_to(2, 2, 0)
        jack.wait_until(lambda: "90 3c 64" in self.new_midi(), "note from outside")
        self.start_of_take = len(window.sent())
        window.press(window.node("push button", "recordnotes"))
        self.read_count_in()
        jack.wait_until(lambda: self.new_midi().count(midi_log.CLICK) >= COUNT_IN + 5, "fifth beat")
        window.main().press(window.node("push button", "recordnotes"))
        self.check_take()
        player.stop()
        window.press(window.node("check box", "Realtime record"))
        self.pass_over_midi()

    def choose_count_in(self):
        window = self.window
        window.press(window.node("check box", "Realtime record"))
        window.window("Realtime record")
        window.press(window.node("check box", "Metronome while recording"))
        window.type_over("before", str(COUNT_IN))
        window.press(window.node("push button", "Close"))
        window.wait_for_no_window("Realtime record")
        window.main()

    def read_count_in(self):
        """What the count-in window says, as often as there is time to look."""
        said = []

        def over():
            said.extend(self.window.labels_if_shown("Realtime record"))
            return self.new_midi().count(midi_log.CLICK) > COUNT_IN
        jack.wait_until(over, "end of the count-in")
        told = [text for text, before in zip(said, [None] + said) if text != before]
        beats = iter(range(COUNT_IN, 0, -1))
        for text in told:
            self.assertIn(text, (f"Record start in  {beat}" for beat in beats))
        self.assertTrue(told)

    def check_take(self):
        window = self.window
        window.choose("File", "Save")
        column = self.saved().column(2, 2)
        messages = window.sent()[self.start_of_take:]
        last_click = max(place for place, (_, text) in enumerate(messages)
                         if text == midi_log.CLICK)
        self.assertLessEqual({text for _, text in messages[:last_click]},
                             {midi_log.CLICK, "e0 00 40", "90 3c 64", "90 3c 00", "90 3f 64",
                              "90 3f 00"})
        take = Take(messages, COUNT_IN, 4, column)
        take.check(self)
        self.assertEqual(take.line_distance(), 2)
        self.assertLess(abs(take.beat_ms() - 500), 25)
        names = {"643C90": "C  5", "643F90": "D#5"}
        self.assertEqual(window.column(2, 2, score.LINES),
                         {line: names[entry] for line, entry in enumerate(column) if entry})
        first = next(line for line, entry in enumerate(column) if entry)
        self.see_colour(2, 2, first, STRENGTH_100)
        self.recorded = column

    def a_volume_curve(self):
        window = self.window
        window.press(window.setting_cell(2, "Volume", "Active"))
        self.wait_to_see(lambda: window.settings(2, "Active"), ["yes", "yes"] + 9 * ["no"])
        self.set_start_value(2, "Volume", "100")
        self.wait_to_see(lambda: window.column(2, 9, 32), dict.fromkeys(range(32), "100"))
        window.key("Home", *["Down"] * 16)
        self.wait_for_status(line="Line 16 of 32   Beat 5", cell="Track 2 Volume: 100")
        window.type("5")
        window.key("Return")
        window.dismiss("error", "Invalid value (0-127)")
        self.wait_to_see(lambda: window.cell(2, 9, 16).name(), "100")
        # Each entry leaves the cursor at the end of what it has changed.
        window.main().key("Home", *["Down"] * 16)
        self.type_value("100", "20")
        window.key("Home", "End")
        self.type_value("20", "64")
        self.wait_to_see(lambda: window.column(2, 9, 32),
                         {line: str(value) for line, value in enumerate(score.VOLUME)})
        self.see_colour(2, 9, 16, KEY_RED)
        self.see_colour(2, 9, 17, BLACK)
        self.expect_silence()

    def set_start_value(self, track, effect, value):
        window = self.window
        window.press(window.setting_cell(track, effect, "Start value"))
        window.answer("effect start value", value)
        self.wait_to_see(window.setting_cell(track, effect, "Start value").name, value)

    def type_value(self, former, value):
        """Types over what stands in the effect cell under the cursor."""
        self.window.key(*["BackSpace"] * len(former))
        self.window.type(value)
        self.window.key("Return")
        self.window.main()

    def more_reverb_for_the_drums(self):
        self.window.press(self.window.setting_cell(1, "Reverb", "Active"))
        self.set_start_value(1, "Reverb", str(score.DRUM_REVERB))
        self.assertEqual(self.window.settings(1, "Start value")[1:],
                         ["127", "64", "1", "64", "90", "1", "1", "64", "64", "64"])

    def a_copy_an_octave_higher(self):
        window = self.window
        window.select(1, 1, line=0, lines=8)
        window.press(window.cell(1, 1, 7), button=3)
        window.press(window.node("menu item", "Copy"))
        window.go_to(3, 2, 16)
        window.choose("Edit", "Paste")
        self.wait_to_see(lambda: window.column(3, 2, 32), {16: "C  3", 20: "F#3"})
        window.select(3, 2, line=16, lines=8)
        window.choose("Edit", "Selected notes", "Transpose")
        window.answer("Transpose", "12")
        self.wait_to_see(lambda: window.column(3, 2, 32),
                         {line: name for line, (name, _) in score.PASTED.items()})

    def softer_notes(self):
        window = self.window
        window.select(3, 2, line=16, lines=8)
        window.choose("Edit", "Selected notes", "Velocity: fixed value")
        window.answer("Velocity", "64")
        self.see_colour(3, 2, 16, MIDDLE)

    def a_bookmark(self):
        window = self.window
        window.go_to(1, 1, 16)
        window.press(window.node("push button", "Image1"))
        window.answer("Add a bookmark", "Chorus")
        window.key("Home")
        self.wait_for_status(line="Line 0 of 32   Beat 1")
        window.press(window.node("combo box", "bookmark"))
        window.press(window.node("list item", "Chorus"))
        self.wait_for_status(line="Line 16 of 32   Beat 5")

    def the_last_save(self):
        self.window.choose("File", "Save")
        song = self.saved()
        self.notes = score.written_notes(self.recorded)
        self.assertEqual(song.notes, self.notes)
        self.assertEqual(song.bookmarks, [("Chorus", 17)])
        self.assertEqual(song.used_columns, [1, 2, 2])
        self.assertEqual(song.channels, [9, 0, 1])
        self.assertEqual(song.values[2, 2], score.VOLUME)
        self.assertEqual(song.keys[2, 2][-2:], [16, 31])
        self.assertEqual(song.values[1, 6], [score.DRUM_REVERB] * 32)
        self.assertEqual(song.settings[2, 2], ("yes", "100", "yes"))
        self.assertEqual(song.settings[1, 6], ("yes", "90", "no"))
        self.assertEqual(song.shown_effects, [2, 2, 2])
        self.assertEqual(song.xg_effects, [0, 0, 0])

    def the_export(self):
        path = f"{self.home}/song.mid"
        self.window.export(path)
        header, tracks = midi_file.read(path)
        self.assertEqual(header, (1, 3, 4))
        for track, events in enumerate(tracks, 1):
            self.assertEqual(events, score.exported(track, self.notes), track)

    def the_end_of_the_work(self):
        self.quit()  # all is saved: nothing is asked
        self.assertEqual(self.config(), b"input=0\r\nboot=1\r\n")
        state = pathlib.Path(self.home, "state")
        self.assertEqual([file.name for file in state.rglob("recovery-*")], [])

    def the_song_played_again(self):
        self.start_with_recorder("us", self.song)
        window = self.window
        self.expect_voices(3, 1, 2, 3)
        self.wait_for_status(file="song.lvx", line="Line 0 of 32   Beat 1")
        self.assertEqual(window.column(3, 2, 32),
                         {line: name for line, (name, _) in score.PASTED.items()})
        self.assertEqual(window.column(2, 9, 32),
                         {line: f" {value}" for line, value in enumerate(score.VOLUME)})
        button = window.node("push button", "playnotes").place()
        idle = window.picture(button)
        window.press(window.node("check box", "Play from beginning"))
        window.go_to(1, 1, 8)
        window.key("Control_L")
        jack.wait_until(lambda: window.picture(button) != idle, "stop button")
        jack.wait_until(lambda: window.status().line == "Line 31 of 32   Beat 8", "last line")
        self.expect_midi(score.played(self.notes))
        self.wait_to_see(lambda: window.picture(button), idle)
        self.quit()


if __name__ == "__main__":
    DayBench.LUNAVOX, DayBench.RECORDER = sys.argv[1:3]
    del sys.argv[1:3]
    unittest.main()
