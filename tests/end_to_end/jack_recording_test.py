"""Notes that another program plays into the built editor, over a real JACK server: heard on the
track's channel, and recorded step by step and in real time.

usage: jack_recording_test.py LUNAVOX"""

import os
import sys
import unittest

import editor
import jack
import screen_reader
import take
from midi_log import CLICK, is_note

missing = editor.missing_tools() + screen_reader.missing()
if missing:
    print("not installed:", *missing)
    sys.exit(77)  # skipped

from seen_editor import SeenEditor

LUNAVOX = None
BEAT_MS = 500
PORT = jack.Monitor.PORT
SYNTH = "Built-in synthesiser"
NO_SERVER = "The JACK server has stopped: the MIDI input is silent."
FROM_OUTSIDE = ["99 3c 7f", "99 3f 7f"]
OF_THE_SONG = ["99 30 7f", "99 32 7f"]
QUEUE = 20  # messages from outside that wait to be heard, every second one the end of a note


class JackRecording(unittest.TestCase):
    def setUp(self):
        # A server that waits for its clients is for a test in which none of them is killed.
        patient = self._testMethodName in ("test_step_by_step", "test_in_real_time")
        stage = editor.stage(*jack.JackServer.PATIENT if patient else ())
        self.server, self.home = stage.__enter__()
        self.addCleanup(stage.__exit__, None, None, None)
        self.bus = screen_reader.AccessibilityBus(self.server, self.home)
        self.song = f"{self.home}/song.lvx"

    def play_in(self):
        return self.server.sequence("seq")

    def start(self, *options):
        return SeenEditor(self.bus, self.server, LUNAVOX, self.home, *options).ready()

    def write_slow_song(self):
        """A song of a minute, with a note each second: longer than anything that comes between."""
        window = self.start("--input", "virtual", "--output", PORT)
        window.enter("number", "1")
        window.enter("bpm", "60")
        window.key("space", *["q", "w"] * 32, "space")
        self.assertEqual(window.save_as(self.song).column(1, 1), ["7F3099", "7F3299"] * 32)
        window.quit()

    def play_slow_song(self, monitor, *options):
        """An editor that plays it to the other program, and how one sees whether it does."""
        window = self.start("--output", PORT, *options, self.song)
        button = window.node("push button", "playnotes").place()
        idle = window.picture(button)
        window.key("Home", "Control_L")
        self.wait_to_hear(monitor, OF_THE_SONG)
        stop = window.picture(button)
        self.assertNotEqual(stop, idle)
        return window, lambda: window.picture(button) == stop

    def stop(self, window, playing):
        self.assertTrue(playing())
        window.press(window.node("push button", "playnotes"))
        jack.wait_until(lambda: not playing(), "end of the playing")

    def wait_for_word(self, window, text):
        """Waits until the status line says that of the devices."""
        jack.wait_until(lambda: window.status().output == text, f'"{text}"')

    def heard(self, monitor, notes):
        return [text for text in monitor.messages() if text in notes]

    def wait_to_hear(self, monitor, notes, more=2):
        """Waits until that many more of the notes have come to the other program."""
        enough = len(self.heard(monitor, notes)) + more
        jack.wait_until(lambda: len(self.heard(monitor, notes)) >= enough,
                        f"{notes} at the other program")

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
        self.wait_for_word(window, SYNTH)
        player.stop()
        self.wait_for_word(window, 'The MIDI input "seq:out" is gone.')
        heard = len(window.notes())
        window.key("space", "q")
        window.wait_for_notes(heard + 1)
        self.play_in()
        self.wait_for_word(window, SYNTH)
        window.wait_for_notes(heard + 3)
        self.server.die()
        self.wait_for_word(window, NO_SERVER)
        recorded = [text for _, text in window.notes()][heard:]
        window.key("w")
        window.wait_for_notes(heard + len(recorded) + 1)
        window.key("space")
        entries = [entry for entry in window.save_as(self.song).column(1, 1) if entry]
        self.assertEqual(recorded[0], "99 30 7f")
        self.assertEqual(set(recorded[1:]), set(FROM_OUTSIDE))
        self.assertEqual([take.sounded(entry) for entry in entries], recorded + ["99 32 7f"])
        window.quit()

    def test_an_output_that_comes_back_is_taken_up_again(self):
        monitor = self.server.monitor()
        self.write_slow_song()
        window, playing = self.play_slow_song(monitor, "--input", "virtual")
        self.wait_for_word(window, PORT)
        monitor.process.stop()
        self.wait_for_word(window, f'{PORT}: The MIDI output "{PORT}" is gone.')
        window.wait_for_notes(len(window.notes()) + 2)
        monitor = self.server.monitor()
        self.wait_for_word(window, PORT)
        self.wait_to_hear(monitor, OF_THE_SONG)
        self.stop(window, playing)
        window.key("e")
        jack.wait_until(lambda: "99 34 7f" in monitor.messages(), "note at the new port")

    def test_a_server_that_is_started_again_while_a_song_plays_is_heard_and_played_to_again(self):
        monitor = self.server.monitor()
        self.write_slow_song()
        self.play_in()
        window, playing = self.play_slow_song(monitor, "--input", "seq:out")
        for _ in range(2):
            self.server.die()
            self.wait_for_word(window, NO_SERVER)
            self.server.start()
            monitor = self.server.monitor()
            self.play_in()
            self.wait_for_word(window, PORT)
            self.wait_to_hear(monitor, OF_THE_SONG)
            self.assertTrue(playing())
        self.stop(window, playing)
        of_the_song = self.heard(monitor, OF_THE_SONG)
        # What came while the song played was kept for now, but not more than the queue holds.
        self.wait_to_hear(monitor, FROM_OUTSIDE, more=QUEUE // 2 + 2)
        self.assertEqual(self.heard(monitor, OF_THE_SONG), of_the_song)
        window.quit()

    def test_the_synthesiser_is_heard_again_at_a_server_that_is_started_again(self):
        def sound_ports():
            return [port for port in self.server.ports() if port.startswith("fluidsynth")]

        window = self.start("--input", "virtual", "--output", "synth")
        before = jack.wait_until(sound_ports, "sound at the server")
        self.wait_for_word(window, SYNTH)
        self.server.die()
        self.wait_for_word(window, NO_SERVER)
        self.server.start()
        self.wait_for_word(window, SYNTH)
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
    LUNAVOX = sys.argv.pop(1)
    unittest.main()
