"""Unsaved work when the built editor is ended from outside: at the system's wish, and by force.

usage: recovery_test.py LUNAVOX"""

import pathlib
import signal
import sys
import unittest

import editor
import jack

LUNAVOX = None
TUNE = ["q", "2", "w"]
ENTRIES = ["7F3099", "7F3199", "7F3299"]


class Recovery(unittest.TestCase):
    def setUp(self):
        stage = editor.stage()
        self.server, self.home = stage.__enter__()
        self.addCleanup(stage.__exit__, None, None, None)
        self.port = self.server.monitor().PORT

    def start(self, *options):
        return editor.Editor(self.server, LUNAVOX, self.home, "--input", "virtual",
                             "--output", self.port, "--keyboard", "qwerty", *options)

    def kept_songs(self):
        state = pathlib.Path(self.home, "state")
        return [file for file in state.rglob("recovery-*") if file.suffix != ".lock"]

    def edit(self, *options):
        """An editor with three recorded notes that are not saved."""
        window = self.start(*options).ready()
        window.key("space", *TUNE)
        window.wait_for_notes(len(TUNE))
        return window

    def restored(self):
        """What stands in the song that the next start brings back."""
        window = self.start()
        window.window("Restore").key("Return")
        song = window.main().save_as(f"{self.home}/restored.lvx")
        window.quit()
        return song.column(1, 1)[:len(TUNE) + 1]

    def test_a_termination_keeps_unsaved_work_at_once(self):
        for wish in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            with self.subTest(wish):
                window = self.edit()
                window.process.signal(wish)
                self.assertEqual(window.process.wait(), 0, window.process.errors)
                self.assertEqual(len(self.kept_songs()), 1)
                self.assertEqual(self.restored(), ENTRIES + [""])
                self.assertEqual(self.kept_songs(), [])

    def test_a_termination_while_a_question_is_open_ends_the_editor_too(self):
        window = self.edit()
        window.file_command("Quit")
        window.window("Quit")
        window.process.signal(signal.SIGTERM)
        self.assertEqual(window.process.wait(), 0, window.process.errors)
        self.assertEqual(self.restored(), ENTRIES + [""])

    def test_a_termination_does_not_wait_for_the_answer_to_a_fault(self):
        broken = pathlib.Path(self.home, "broken.lvx")
        broken.write_text("2.0\r\n 1 \r\n", encoding="ascii")
        window = self.start(broken)
        window.window("Lunavox")
        window.process.signal(signal.SIGTERM)
        self.assertEqual(window.process.wait(), 1, window.process.errors)

    def test_an_editor_that_is_killed_loses_a_few_seconds_at_most(self):
        window = self.edit()
        jack.wait_until(self.kept_songs, "recovery file")
        window.process.signal(signal.SIGKILL)
        self.assertEqual(window.process.wait(), -signal.SIGKILL)
        self.assertEqual(self.restored(), ENTRIES + [""])

    def test_a_song_that_is_not_wanted_is_offered_once(self):
        window = self.edit()
        window.process.signal(signal.SIGTERM)
        window.process.wait()
        window = self.start()
        window.window("Restore").key("alt+n")
        window.wait_for_no_window("Restore")
        self.assertEqual(self.kept_songs(), [])
        window.quit()
        self.start().ready().quit()

    def test_an_unchanged_song_leaves_nothing_behind(self):
        window = self.start().ready()
        window.process.signal(signal.SIGTERM)
        self.assertEqual(window.process.wait(), 0, window.process.errors)
        self.assertEqual(self.kept_songs(), [])
        self.start().ready().quit()

    def test_cancelling_the_save_question_keeps_everything(self):
        window = self.edit()
        window.file_command("Quit")
        window.window("Quit").key("Escape")
        window.wait_for_no_window("Quit")
        song = window.save_as(f"{self.home}/kept.lvx")
        self.assertEqual(song.column(1, 1)[:len(TUNE) + 1], ENTRIES + [""])
        window.quit()
        self.assertEqual(self.kept_songs(), [])

    def test_an_output_that_cannot_be_opened_ends_the_editor_and_keeps_unsaved_work(self):
        window = self.edit("--soundfont", self.broken_soundfont())
        window.key("alt+o", "Down", "Return")  # the built-in synthesiser
        self.end_without_output(window)
        self.assertEqual(self.restored(), ENTRIES + [""])

    def test_a_broken_soundfont_is_told_at_the_start(self):
        window = editor.Editor(self.server, LUNAVOX, self.home, "--input", "virtual",
                               "--output", "0", "--soundfont", self.broken_soundfont())
        self.end_without_output(window)
        self.assertEqual(self.kept_songs(), [])

    def broken_soundfont(self):
        broken = pathlib.Path(self.home, "broken.sf2")
        broken.write_text("no sounds", encoding="ascii")
        return broken

    def end_without_output(self, window):
        for _ in range(2):  # what is wrong with it, and that there is no output
            window.window("Error").key("Return")
        self.assertEqual(window.process.wait(), 1, window.process.errors)


if __name__ == "__main__":
    if editor.missing_tools():
        print("not installed:", *editor.missing_tools())
        sys.exit(77)  # skipped
    LUNAVOX = sys.argv.pop(1)
    unittest.main()
