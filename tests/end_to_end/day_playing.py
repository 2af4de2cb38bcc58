"""What is played into the song: on the keyboards of three nations, and by another program."""

import day_score as score
import jack
import midi_log
from day_bench import DayBench
from take import Take

COUNT_IN = 6  # beats
BEAT_MS = 500
VIRTUAL_INPUT = "Lunavox input:Lunavox virtual input"
LOUDEST, STRENGTH_100 = (254, 2, 2), (200, 110, 56)


class Playing(DayBench):
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
        jack.wait_until(lambda: self.new_midi().count(midi_log.CLICK) >= COUNT_IN + 4,
                        "fourth beat")
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
        take.check_time(self, BEAT_MS)
        names = {"643C90": "C  5", "643F90": "D#5"}
        self.assertEqual(window.column(2, 2, score.LINES),
                         {line: names[entry] for line, entry in enumerate(column) if entry})
        first = next(line for line, entry in enumerate(column) if entry)
        self.see_colour(2, 2, first, STRENGTH_100)
        self.recorded = column
