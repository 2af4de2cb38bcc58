"""Notes that another program plays into the built editor, over a real JACK server: heard on the
track's channel, and recorded step by step and in real time.

usage: jack_recording_test.py LUNAVOX"""

import os
import sys
import unittest

import editor
import jack
import take
from midi_log import CLICK, is_note

LUNAVOX = None
BEAT_MS = 500


class JackRecording(unittest.TestCase):
    def setUp(self):
        # A server that waits for its clients is for a test in which none of them is killed.
        patient = self._testMethodName in ("test_step_by_step", "test_in_real_time")
        stage = editor.stage(*jack.JackServer.PATIENT if patient else ())
        self.server, self.home = stage.__enter__()
        self.addCleanup(stage.__exit__, None, None, None)
        self.song = f"{self.home}/song.lvx"

    def play_in(self):
        return self.server.sequence("seq")

    def start(self, *options):
        return editor.Editor(self.server, LUNAVOX, self.home, *options).ready()

    def test_step_by_step(self):
        monitor = self.server.monitor()
        self.play_in()
        window = self.start("--input", "seq:out", "--output", monitor.PORT)
        heard_first = len(window.wait_for_notes(1))
        window.key("space")
        window.wait_for_notes(heard_first + 8)
        window.key("space")
        entries = [entry for entry in window.save_as(self.song).column(1, 1) if entry]
        heard = [text for _, text in window.notes()]

        # Drums, at the velocity that is set: channel 10 at 127. What was heard stands in the song.
        self.assertEqual(set(heard), {"99 3c 7f", "99 3f 7f"})
        self.assertGreaterEqual(len(entries), 7)
        written = [take.sounded(entry) for entry in entries]
        self.assertIn(written, [heard[first:first + len(written)] for first in range(len(heard))])
        jack.wait_until(lambda: len([text for text in monitor.messages() if is_note(text)]) >= 8,
                        "eighth note at the other program")
        self.assertIn("99 3c 00", monitor.messages(), "a note-off goes out as velocity 0")
        self.assertFalse([text for text in monitor.messages() if text.startswith(("80", "90"))])

    def test_in_real_time(self):
        monitor = self.server.monitor()
        self.play_in()
        window = self.start("--input", "seq:out", "--output", monitor.PORT)
        window.click(editor.REALTIME_RECORD)
        window.window("Realtime record").key("space", "Escape")  # the metronome, on
        window.wait_for_no_window("Realtime record")
        window.main().click(editor.RECORD_BUTTON)

        # The count-in's, and those of the first line and of four beats after it.
        jack.wait_until(lambda: [text for _, text in window.sent()].count(CLICK) >= 4 + 5,
                        "click of the metronome")
        window.main().click(editor.RECORD_BUTTON)
        lines = window.save_as(self.song).column(1, 1)
        recorded = take.Take(window.sent(), 4, 4, lines)
        recorded.check(self)
        recorded.check_time(self, BEAT_MS)
        self.assertIn(CLICK, monitor.messages())

    def test_the_end_of_the_player_and_of_the_server_leaves_the_editor_at_work(self):
        player = self.play_in()
        window = self.start("--input", "seq:out")
        window.wait_for_notes(2)
        well = window.device_status()
        player.stop()
        jack.wait_until(lambda: window.device_status() != well, "word of the input's end")
        heard = len(window.notes())
        window.key("space", "q")
        window.wait_for_notes(heard + 1)
        self.play_in()
        jack.wait_until(lambda: window.device_status() == well, "word of the input's return")
        window.wait_for_notes(heard + 3)
        self.server.die()
        jack.wait_until(lambda: window.device_status() != well, "word of the server's end")
        heard = len(window.notes())
        window.key("w")
        window.wait_for_notes(heard + 1)
        window.key("space")
        entries = [entry for entry in window.save_as(self.song).column(1, 1) if entry]
        self.assertEqual((entries[0], entries[-1]), ("7F3099", "7F3299"))
        window.quit()

    def test_an_output_that_comes_back_is_taken_up_again(self):
        monitor = self.server.monitor()
        window = self.start("--input", "virtual", "--output", monitor.PORT)
        well = window.device_status()
        monitor.process.stop()
        jack.wait_until(lambda: window.device_status() != well, "word of the output's end")
        window.key("q")
        monitor = self.server.monitor()
        jack.wait_until(lambda: window.device_status() == well, "word of the output's return")
        window.key("w")
        jack.wait_until(lambda: "99 32 7f" in monitor.messages(), "note at the new port")

    def test_a_server_that_is_started_again_while_a_song_plays_is_heard_and_played_to_again(self):
        monitor = self.server.monitor()
        self.play_in()
        window = self.start("--input", "seq:out", "--output", monitor.PORT)
        well = window.device_status()
        window.key("space", *["q", "w"] * 16, "space", "Home")
        window.click(editor.PLAY_BUTTON)
        for _ in range(2):
            self.server.die()
            jack.wait_until(lambda: window.device_status() != well, "word of the server's end")
            self.server.start()
            monitor = self.server.monitor()
            self.play_in()
            jack.wait_until(lambda: window.device_status() == well, "word of the server's return")
            heard = len(window.notes())
            window.wait_for_notes(heard + 2)
            jack.wait_until(monitor.messages, "message at the new server")
        window.click(editor.PLAY_BUTTON)
        window.save_as(self.song)
        window.quit()

    def test_the_synthesiser_is_heard_again_at_a_server_that_is_started_again(self):
        def sound_ports():
            return [port for port in self.server.ports() if port.startswith("fluidsynth")]

        window = self.start("--input", "virtual", "--output", "synth")
        before = jack.wait_until(sound_ports, "sound at the server")
        well = window.device_status()
        self.server.die()
        jack.wait_until(lambda: window.device_status() != well, "word of the server's end")
        self.server.start()
        jack.wait_until(lambda: window.device_status() == well, "word of the server's return")
        self.assertEqual(sound_ports(), before)
        window.quit()

    def test_a_remembered_input_that_is_gone_is_told(self):
        os.makedirs(f"{self.home}/config/lunavox")
        with open(f"{self.home}/config/lunavox/lvconfig.ini", "w", encoding="ascii") as config:
            config.write("input=7\r\nboot=1\r\n")
        window = editor.Editor(self.server, LUNAVOX, self.home)
        window.window("Error").key("Return")
        self.assertEqual(window.process.wait(), 1)

    def test_the_input_is_chosen_once_and_remembered(self):
        self.play_in()
        for chosen_now in (True, False):
            window = editor.Editor(self.server, LUNAVOX, self.home)
            if chosen_now:
                window.window("Midi input").key("Down", "Return")
            window.ready().wait_for_notes(1)
            window.quit()
        with open(f"{self.home}/config/lunavox/lvconfig.ini", "rb") as config:
            self.assertEqual(config.read(), b"input=0\r\nboot=1\r\n")


if __name__ == "__main__":
    if editor.missing_tools():
        print("not installed:", *editor.missing_tools())
        sys.exit(77)  # skipped
    LUNAVOX = sys.argv.pop(1)
    unittest.main()
