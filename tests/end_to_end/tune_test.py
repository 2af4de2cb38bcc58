"""A tune of two bars, played into the built editor as a person does it: typed on the keyboard,
recorded, played back, saved, opened again and played once more, on three nations' keyboards.

usage: tune_test.py LUNAVOX"""

import sys
import unittest

import editor
import jack
from midi_log import RESET, is_note

LUNAVOX = None
BEAT_MS = 500
STEP_FIELD = (408, 60)


class Tune(unittest.TestCase):
    def setUp(self):
        stage = editor.stage(*jack.JackServer.PATIENT)
        self.server, self.home = stage.__enter__()
        self.addCleanup(stage.__exit__, None, None, None)
        self.monitor = self.server.monitor()

    def start(self, *options):
        return editor.Editor(self.server, LUNAVOX, self.home, "--input", "virtual",
                             "--output", self.monitor.PORT, *options).ready()

    def wait_to_hear(self, *notes):
        """Waits until these notes have come to the other program, and no others."""
        jack.wait_until(lambda: len(self.heard()) >= len(notes), f"note number {len(notes)}")
        self.assertEqual(self.heard(), list(notes))

    def heard(self):
        return [text for text in self.monitor.messages() if is_note(text)]

    def test_on_an_american_keyboard(self):
        self.play_a_tune("us", [], {"q": 48, "2": 49, "w": 50, "y": 57, "z": 36, "m": 47, "/": 50,
                                    "]": 65})

    def test_on_a_german_keyboard(self):
        self.play_a_tune("de", [], {"q": 48, "2": 49, "w": 50, "y": 57, "z": 36, "m": 47, "[": 67,
                                    "]": 66})

    def test_on_a_french_keyboard(self):
        self.play_a_tune("fr", [], {"q": 48, "2": 49, "w": 50, "y": 57, "z": 36, "m": 47, "/": 52,
                                    ";": 51})

    def test_the_keyboard_of_the_command_line(self):
        for wish, tune in (("qwerty", {",": 48, ".": None, "/": 50, "[": None}),
                           ("qwertz", {",": 48, ".": None, "/": None, "[": 67}),
                           ("azerty", {",": 48, ".": 50, "/": 52, "[": 65})):
            with self.subTest(wish):
                window = self.start("--keyboard", wish)
                window.key(*tune, "q")
                notes = [note for note in tune.values() if note] + [48]
                self.assertEqual(pitches(window.wait_for_notes(len(notes))), notes)
                window.quit()

    def play_a_tune(self, nation, options, tune):
        """@param tune: eight keys by their American names, each with its note"""
        editor.run("setxkbmap", nation, env=self.server.environment)
        notes = list(tune.values())
        window = self.start(*options)
        window.click(STEP_FIELD, times=2)
        window.type("4")
        window.key("Return", "space", *tune)
        window.wait_for_notes(8)
        window.key("space")
        lines = self.play_back(window, notes, earlier=8)
        first_save = window.save_as(f"{self.home}/first.lvx")
        recorded = {line: entry for line, entry in enumerate(first_save.column(1, 1))
                    if entry}
        self.assertEqual(recorded, {4 * beat: f"7F{note:02X}99"
                                    for beat, note in enumerate(notes)})
        self.wait_to_hear(*lines, *lines)  # as they were typed, and played back
        window.quit()

        window = self.start(*options)
        window.open(f"{self.home}/first.lvx")
        self.assertEqual(self.play_back(window, notes, earlier=0), lines)
        self.assertEqual(window.save_as(f"{self.home}/second.lvx"), first_save)
        self.wait_to_hear(*lines, *lines, *lines)
        window.quit()

    def play_back(self, window, notes, earlier):
        """Plays the song from its first line, as long as there are notes, and gives them."""
        window.key("Home", "Control_L")
        played = window.wait_for_notes(earlier + len(notes))[earlier:]
        window.click(editor.PLAY_BUTTON)
        jack.wait_until(lambda: window.sent()[-1][1] == RESET[-1], "end of the playing")
        # At the button's wish: by itself the song ends with its sixteenth beat.
        self.assertLess(window.sent()[-1][0] - played[0][0], 15 * BEAT_MS)
        self.assertEqual(pitches(played), notes)
        beats = sorted(later - time for (time, _), (later, _) in zip(played, played[1:]))
        self.assertLess(abs(beats[len(beats) // 2] - BEAT_MS), 25, beats)
        return [text for _, text in played]


def pitches(notes):
    return [int(text.split()[1], 16) for _, text in notes]


if __name__ == "__main__":
    if editor.missing_tools():
        print("not installed:", *editor.missing_tools())
        sys.exit(77)  # skipped
    LUNAVOX = sys.argv.pop(1)
    unittest.main()
