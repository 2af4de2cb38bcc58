"""The day's beginning: the first starts, and a song set up for what is to come."""

import day_score as score
import editor
import jack
import midi_log
from day_bench import DayBench

START_VALUES = ["127", "64", "1", "64", "40", "1", "1", "64", "64", "64"]
SWITCHED_OFF = ["yes"] + 10 * ["no"]
VOLUME_SHOWN = ["no", "yes"] + 9 * ["no"]
BEAT = (240, 0, 0)


class Beginning(DayBench):
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
