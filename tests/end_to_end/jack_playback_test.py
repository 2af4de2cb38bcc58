"""The built program plays a song through a real JACK server into other programs.

usage: jack_playback_test.py LUNAVOX JACK_RECORDER SONG"""

import os
import signal
import sys
import tempfile
import unittest

import jack
import midi_log
from midi_log import RESET, XG_SET_UP, is_note

LUNAVOX = None
RECORDER = None
SONG = None


def first_note(messages):
    return next((place for place, message in enumerate(messages) if is_note(message)), None)


class JackPlayback(unittest.TestCase):
    def setUp(self):
        self.server = jack.JackServer(*jack.JackServer.PATIENT).__enter__()
        self.addCleanup(self.server.close)
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.log = os.path.join(folder.name, "midi.log")

    def play_to(self, listener, *how):
        return self.server.run(*how, LUNAVOX, "--output", listener.PORT, "--midi-log", self.log,
                               "--play", SONG)

    def assert_ended_well(self, player):
        self.assertEqual(player.wait(), 0, player.errors)
        self.assertEqual(player.errors, [])

    def test_every_message_of_a_song_arrives_in_order(self):
        recorder = self.server.recorder(RECORDER)
        self.assert_ended_well(self.play_to(recorder))
        sent = midi_log.wire(self.log)
        received = recorder.wait_for(len(sent))
        self.assertEqual(received[:len(sent)], sent)

        self.assertEqual(received[:len(RESET)], RESET)
        self.assertEqual(received[len(RESET):len(RESET) + 4], XG_SET_UP)
        ends = [place for place in range(len(RESET), len(received))
                if received[place:place + len(RESET)] == RESET]
        self.assertEqual(len(ends), 1, "one more reset, when the song is over")
        self.assertLess(first_note(received), ends[0])
        self.assertIsNone(first_note(received[ends[0]:]))

    def test_a_program_of_others_receives_the_song(self):
        monitor = self.server.monitor()
        self.assert_ended_well(self.play_to(monitor))
        sent = midi_log.wire(self.log)
        song = sent[first_note(sent):]
        song = song[:song.index(RESET[0]) + monitor.MOST]

        def received():
            messages = monitor.messages()
            start = first_note(messages)
            return messages[start:] if start is not None else []

        jack.wait_until(lambda: len(received()) >= len(song), f"{len(song)} messages of the song")
        self.assertEqual(received()[:len(song)], song)
        self.assertEqual(monitor.messages()[:monitor.MOST], RESET[:monitor.MOST])

    def test_an_interrupt_ends_the_playing_with_the_reset(self):
        self.check_ended_by(signal.SIGINT)

    def test_a_wish_that_it_end_ends_the_playing_with_the_reset(self):
        self.check_ended_by(signal.SIGTERM)

    def test_the_end_of_its_terminal_ends_the_playing_with_the_reset(self):
        self.check_ended_by(signal.SIGHUP)

    def check_ended_by(self, interrupt):
        recorder = self.server.recorder(RECORDER)
        player = self.play_to(recorder)
        jack.wait_until(lambda: first_note(recorder.messages()), "note")
        player.signal(interrupt)
        self.assert_ended_well(player)
        sent = midi_log.wire(self.log)
        received = recorder.wait_for(len(sent))[:len(sent)]
        self.assertEqual(received, sent)
        self.assertEqual(received[-len(RESET):], RESET)

    def test_a_player_that_is_to_outlive_its_terminal_plays_on(self):
        recorder = self.server.recorder(RECORDER)
        player = self.play_to(recorder, "nohup")

        def notes():
            return sum(map(is_note, recorder.messages()))

        jack.wait_until(notes, "note")
        player.signal(signal.SIGHUP)
        before = notes()
        jack.wait_until(lambda: notes() > before + 20, "notes after the terminal's end")
        player.signal(signal.SIGINT)
        self.assert_ended_well(player)

    def test_a_server_that_dies_does_not_take_the_player_with_it_and_is_told(self):
        recorder = self.server.recorder(RECORDER)
        player = self.play_to(recorder)
        jack.wait_until(lambda: first_note(recorder.messages()), "note")
        self.server.die()
        self.assertEqual(player.wait(), 1)
        self.assertEqual(player.errors, [
            "lunavox: The JACK server has stopped: nothing is heard any more."])
        self.assertEqual(midi_log.wire(self.log)[-len(RESET):], RESET)


if __name__ == "__main__":
    if jack.missing_tools():
        print("not installed:", *jack.missing_tools())
        sys.exit(77)  # skipped
    LUNAVOX, RECORDER, SONG = sys.argv[1:4]
    del sys.argv[1:4]
    unittest.main()
