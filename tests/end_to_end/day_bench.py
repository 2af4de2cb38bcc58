"""What the steps of a user's day stand on: an editor whose window, messages and files are looked at
after each step."""

import pathlib
import unittest

import editor
import jack
import midi_log
import screen_reader
import song_text
from seen_editor import SeenEditor


class DayBench(unittest.TestCase):
    LUNAVOX = None
    RECORDER = None

    def setUp(self):
        stage = editor.stage(*jack.JackServer.PATIENT)
        self.server, self.home = stage.__enter__()
        self.addCleanup(stage.__exit__, None, None, None)
        self.bus = screen_reader.AccessibilityBus(self.server, self.home)
        self.song = f"{self.home}/song.lvx"
        self.window = None
        self.recorder = None  # from then on: a client that ends can make the server wait
        self.received = 0  # messages of earlier editors that it holds
        self.told = 0  # messages that were looked at
        self.unheard = 0  # messages that were sent before the recorder listened

    # Programs

    def start(self, *options):
        self.window = SeenEditor(self.bus, self.server, self.LUNAVOX, self.home, *options)
        self.told = self.unheard = 0

    def start_with_recorder(self, nation, *options):
        """The editor on a nation's keyboard, its start looked at."""
        self.keyboard(nation)
        self.start("--output", self.recorder.PORT, *options)
        self.window.ready()
        self.expect_midi(midi_log.RESET + midi_log.XG_SET_UP)

    def quit(self):
        """Ends the editor. The other program has received what it sent, message for message."""
        self.expect_silence()
        self.window.quit()
        if not self.recorder:
            return
        sent = midi_log.wire(self.window.log_file)[self.unheard:] + midi_log.PORT_RESET
        received = self.recorder.wait_for(self.received + len(sent))[self.received:]
        self.assertEqual(received, sent)
        self.received += len(sent)

    def keyboard(self, nation):
        editor.run("setxkbmap", nation, env=self.server.environment)

    # What is to be seen

    def wait_to_see(self, what, expected):
        """Waits until the window shows what is expected: what() is to become that."""
        try:
            jack.wait_until(lambda: what() == expected, "sight")
        except AssertionError:
            self.assertEqual(what(), expected)

    def wait_for_status(self, **expected):
        self.wait_to_see(
            lambda: {name: getattr(self.window.status(), name) for name in expected}, expected)

    def see_colour(self, track, column, line, colour):
        cell = self.window.cell(track, column, line)
        jack.wait_until(lambda: self.window.looks(cell.place(), colour),
                        f"{colour} in {track}, {column}, {line}")

    # What is to be heard

    def new_midi(self):
        """What left the program since the last look."""
        return midi_log.wire(self.window.log_file)[self.told:]

    def expect_midi(self, expected):
        """Waits for messages; what comes after them is for the next look."""
        jack.wait_until(lambda: len(self.new_midi()) >= len(expected), f"{len(expected)} messages")
        self.assertEqual(self.new_midi()[:len(expected)], expected)
        self.told += len(expected)

    def expect_silence(self):
        self.assertEqual(self.new_midi(), [])

    def pass_over_midi(self):
        self.told += len(self.new_midi())

    def expect_typed_notes(self, channel, notes):
        """Keys that were pressed and released: each note is cut, struck and let go."""
        for note in notes:
            for velocity in (0, 127, 0):
                self.expect_midi([f"e{channel:x} 00 40", f"9{channel:x} {note:02x} {velocity:02x}"])

    # What is to be found in the files

    def config(self):
        """What is remembered of the input device; None before there was any to choose."""
        file = pathlib.Path(self.home, "config", "lunavox", "lvconfig.ini")
        return file.read_bytes() if file.exists() else None

    def saved(self):
        """The song's file once the window says that it holds all that was done."""
        self.wait_for_status(file="song.lvx")
        return song_text.read(self.song)
