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
import screen_reader

missing = editor.missing_tools() + screen_reader.missing()
if missing:
    print("not installed:", *missing)
    sys.exit(77)  # skipped

from day_bench import DayBench
from day_beginning import Beginning
from day_editing import Editing
from day_playing import Playing


class Day(Beginning, Playing, Editing):
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

    def the_last_save(self):
        self.window.choose("File", "Save")
        song = self.saved()
        self.notes = score.written_notes(self.recorded)
        self.assertEqual(song.notes, self.notes)
        self.assertEqual(song.bookmarks, [("Chorus", 17)])
        self.assertEqual(song.used_columns, [1, 2, 2])
        self.assertEqual(song.channels, [9, 0, 1])
        self.assertEqual(song.values[2, 2], score.VOLUME)
        self.assertEqual(song.keys, dict.fromkeys(song.keys, [0]) | {(2, 2): [0, 16, 31]})
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
