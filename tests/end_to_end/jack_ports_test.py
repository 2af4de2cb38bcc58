"""The MIDI ports on a real JACK server.

usage: jack_ports_test.py PORTS_CLIENT"""

import signal
import sys
import unittest

import jack
from midi_log import PORT_RESET

CLIENT = None
OUTPUT_PORT = "Lunavox output:Lunavox virtual port"
INPUT_PORT = "Lunavox input:Lunavox virtual input"


class JackPorts(unittest.TestCase):
    def setUp(self):
        self.server = self.start_server()

    def start_server(self, *options):
        server = jack.JackServer(*options).__enter__()
        self.addCleanup(server.close)
        return server

    def test_ports_of_other_programs_are_listed_before_our_own(self):
        self.server.monitor()
        outputs = self.server.run(CLIENT, "list-outputs")
        inputs = self.server.run(CLIENT, "list-inputs")
        self.assertEqual([outputs.wait(), inputs.wait()], [0, 0])
        self.assertEqual(outputs.lines, ["Built-in synthesiser", "midi-monitor:input",
                                         "Lunavox virtual port"])
        self.assertEqual(inputs.lines, ["Lunavox virtual input"])
        self.assertEqual(outputs.errors + inputs.errors, [])

    def test_packed_messages_arrive_as_wire_bytes(self):
        server = self.start_server(*jack.JackServer.PATIENT)
        monitor = server.monitor()
        client = server.run(CLIENT, "send", "midi-monitor", "00643C90", "00FF07B0", "00000000",
                                 "000005C9", "F043104C00007E00F7", "00003C90")
        self.assertEqual(client.wait(), 0, client.errors)
        self.assertEqual(monitor.wait_for(5), [
            "90 3c 64",
            "b0 07 7f",  # a volume of 255 keeps its low seven bits
            "c9 05",     # the message 0 before it is not put on the wire
            "f0 43 10 4c 00 00 7e 00 f7",
            "90 3c 00"])
        self.assertEqual(client.errors, [])

    def test_others_connect_to_our_output(self):
        monitor = self.server.monitor()
        self.server.run(CLIENT, "send-until-gone", "virtual")
        self.server.connect(OUTPUT_PORT, monitor.PORT)
        self.assertEqual(monitor.wait_for(1)[0], "b0 7b 00")

    def test_an_input_port_of_another_program_is_heard(self):
        self.start_sequencer()
        client = self.server.run(CLIENT, "receive", "seq:out", "4")
        self.assertEqual(client.wait(), 0, client.errors)
        self.assert_two_notes_over_and_over(client.lines)

    def test_others_connect_to_our_input(self):
        client = self.server.run(CLIENT, "receive", "virtual", "4")
        self.start_sequencer()
        self.server.connect("seq:out", INPUT_PORT)
        self.assertEqual(client.wait(), 0, client.errors)
        self.assert_two_notes_over_and_over(client.lines)

    def test_an_output_whose_receiver_ends_tells_so(self):
        monitor = self.server.monitor()
        client = self.server.run(CLIENT, "send-until-gone", "midi-monitor")
        monitor.wait_for(1)
        monitor.process.stop()
        self.assertEqual(client.wait(), 0, client.errors)
        self.assertEqual(client.lines[-1], 'The MIDI output "midi-monitor:input" is gone.')

    def test_an_output_whose_server_dies_tells_so_and_keeps_nobody_waiting(self):
        monitor = self.server.monitor()
        client = self.server.run(CLIENT, "send-until-gone", "midi-monitor")
        monitor.wait_for(1)
        self.server.die()
        self.assertEqual(client.wait(), 0, client.errors)
        self.assertEqual(client.lines, ["open", "The MIDI port is gone.",
                                        "The JACK server has stopped: nothing is heard any more."])
        self.assertEqual(client.errors, [])

    def test_an_output_whose_server_stands_still_keeps_nobody_waiting(self):
        monitor = self.server.monitor()
        client = self.server.run(CLIENT, "send-stalled", "midi-monitor")
        monitor.wait_for(1)
        self.server.server.signal(signal.SIGSTOP)
        jack.wait_until(lambda: len(client.lines) == 3, "answer to what was sent")
        self.server.server.signal(signal.SIGCONT)
        jack.wait_until(lambda: "90 3c 64" in monitor.messages(), "message after the stop")
        monitor.process.stop()
        self.assertEqual(client.wait(), 0, client.errors)
        self.assertEqual(client.lines, ["open", "The MIDI port is still busy with earlier messages.",
                                        "The JACK server does not answer: nothing is heard.", ""])
        self.assertEqual(client.errors, [])

    def test_ports_whose_server_stands_still_close_all_the_same(self):
        monitor = self.server.monitor()
        client = self.server.run(CLIENT, "close-stalled", "midi-monitor")
        monitor.wait_for(1)
        self.server.server.signal(signal.SIGSTOP)
        self.assertEqual(client.wait(), 0, client.errors)
        self.assertEqual(client.errors, [])

    def test_an_output_whose_server_comes_back_before_its_receiver_keeps_nobody_waiting(self):
        receiver = self.server.monitor()
        client = self.server.run(CLIENT, "send-while-away", "midi-monitor:input")
        self.server.wait_for_port("Lunavox output:MIDI out")
        self.server.die()
        receiver.process.stop()
        jack.wait_until(lambda: client.lines, "notice of the server's end")
        self.server.start()
        jack.wait_until(lambda: len(client.lines) == 3, "answer to what was sent")
        receiver = self.server.monitor()
        self.assertEqual(receiver.wait_for(33)[:33], PORT_RESET + ["90 3c 64"])
        receiver.process.stop()
        self.assertEqual(client.wait(), 0, client.errors)
        self.assertEqual(client.lines, ["The JACK server has stopped: nothing is heard any more.",
                                        'The MIDI output "midi-monitor:input" is gone.',
                                        "The MIDI port is gone.", ""])

    def test_an_input_whose_sender_ends_tells_so(self):
        sender = self.start_sequencer()
        client = self.server.run(CLIENT, "receive-until-gone", "seq:out")
        jack.wait_until(lambda: client.lines, "message")
        sender.stop()
        self.assertEqual(client.wait(), 0, client.errors)
        self.assertEqual(client.lines[-1], 'The MIDI input "seq:out" is gone.')
        self.assertEqual(client.errors, [])

    def test_an_input_whose_server_dies_tells_so(self):
        self.start_sequencer()
        client = self.server.run(CLIENT, "receive-until-gone", "seq:out")
        jack.wait_until(lambda: client.lines, "message")
        self.server.die()
        self.assertEqual(client.wait(), 0, client.errors)
        self.assertEqual(client.lines[-1],
                         "The JACK server has stopped: the MIDI input is silent.")
        self.assertEqual(client.errors, [])

    def start_sequencer(self):
        """Starts a client of JACK's own that plays two notes over and over."""
        sequencer = self.server.run("jack_midiseq", "seq", "24000", "0", "60", "8000",
                                    "12000", "63", "8000")
        self.server.wait_for_port("seq:out")
        return sequencer

    def assert_two_notes_over_and_over(self, lines):
        """The sequencer may be anywhere in its round when it is first heard."""
        self.assertEqual(len(lines), 4)
        self.assertEqual(sorted(lines), ["00403C80", "00403C90", "00403F80", "00403F90"])


if __name__ == "__main__":
    if jack.missing_tools():
        print("not installed:", *jack.missing_tools())
        sys.exit(77)  # skipped
    CLIENT = sys.argv.pop(1)
    unittest.main()
