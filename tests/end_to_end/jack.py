"""A JACK server of a test's own, and the clients that come with JACK, for tests that play through
a real MIDI transport. The server's dummy driver needs no sound card."""

import contextlib
import ctypes
import fcntl
import os
import re
import shutil
import signal
import subprocess
import tempfile
import threading
import time

PATIENCE_SECONDS = 60
SECONDS_TO_END = 1
TOOLS = ("jackd", "jack_lsp", "jack_connect", "jack_midi_dump", "jack_midiseq")


def missing_tools():
    return [tool for tool in TOOLS if not shutil.which(tool)]


def wait_until(holds, what):
    """Waits until holds() is true, and returns what it gave; fails when that takes too long."""
    end = time.monotonic() + PATIENCE_SECONDS
    while time.monotonic() < end:
        result = holds()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError(f"in {PATIENCE_SECONDS} s there was no {what}")


def end_with_parent():
    """Has the calling child process killed when the test is, lest a server of the test lives on."""
    set_parent_death_signal = 1
    ctypes.CDLL(None).prctl(set_parent_death_signal, signal.SIGKILL)


def begin_as_child():
    """Lets a terminal's end reach the calling child process, where the test is to outlive one too
    (nohup)."""
    signal.signal(signal.SIGHUP, signal.SIG_DFL)
    end_with_parent()


class Process:
    """A child process whose output lines are gathered as they come."""

    def __init__(self, command, environment):
        self.command = command
        self.process = subprocess.Popen(
            command, env=environment, text=True, bufsize=1, preexec_fn=begin_as_child,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.lines, self.errors = [], []
        self._readers = [self._reader(self.process.stdout, self.lines),
                         self._reader(self.process.stderr, self.errors)]

    @staticmethod
    def _reader(stream, lines):
        reader = threading.Thread(
            target=lambda: lines.extend(line.rstrip("\n") for line in stream), daemon=True)
        reader.start()
        return reader

    def wait(self):
        """The exit status; all lines are there afterwards."""
        status = self.process.wait(PATIENCE_SECONDS)
        for reader in self._readers:
            reader.join()
        return status

    def signal(self, number):
        self.process.send_signal(number)

    def stop(self):
        if self.process.poll() is None:
            self.process.terminate()
            try:
                self.process.wait(SECONDS_TO_END)
            except subprocess.TimeoutExpired:  # jack_midi_dump, when nothing arrives any more
                self.process.kill()
        self.wait()
        self.process.stdout.close()
        self.process.stderr.close()


def lock_server_name(stack):
    """The first server name that no other test uses, locked as long as the stack lives.

    JACK has room for eight names on a machine and forgets the name of a server that was killed only
    when the next one takes it: names must come round again."""
    for number in range(100):
        name = f"lunavox-test-{os.getuid()}-{number}"
        lock = stack.enter_context(open(os.path.join(tempfile.gettempdir(), name + ".lock"), "w"))
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
            return name
        except BlockingIOError:
            lock.close()
    raise AssertionError("every name for a JACK server is taken")


class JackServer(contextlib.ExitStack):
    """A running server; ends, with all its clients, at the end of the with block."""

    # Never leaves a client behind on a busy machine, so that nothing is lost. A client that is
    # killed makes it wait.
    PATIENT = ("--sync", "--timeout", "5000")

    def __init__(self, *options):
        super().__init__()
        self.options = options

    def __enter__(self):
        super().__enter__()
        name = lock_server_name(self)
        self.environment = dict(os.environ, JACK_DEFAULT_SERVER=name, JACK_NO_START_SERVER="1",
                                JACK_NO_AUDIO_RESERVATION="1")
        # The server of the test is the only way out: no sequencer, no sound service.
        self.environment.pop("PULSE_SERVER", None)
        try:
            self.start()
        except BaseException:
            self.close()
            raise
        return self

    def start(self):
        """Starts the server, again if it has died."""
        self.server = self.run("jackd", "-n", self.environment["JACK_DEFAULT_SERVER"], "-r",
                               "--no-mlock", *self.options, "-d", "dummy", "-r", "48000",
                               "-p", "256")
        wait_until(lambda: self._ask("jack_lsp").returncode == 0, "JACK server")

    def run(self, *command):
        """Starts a program on this server."""
        process = Process([str(part) for part in command], self.environment)
        self.callback(process.stop)
        return process

    def ports(self):
        return self._ask("jack_lsp").stdout.splitlines()

    def wait_for_port(self, name):
        wait_until(lambda: name in self.ports(), f"port {name}")

    def connect(self, source, target):
        self.wait_for_port(source)
        self.wait_for_port(target)
        asked = self._ask("jack_connect", source, target)
        assert asked.returncode == 0, asked.stderr

    def sequence(self, name):
        """Starts a player of two notes on channel 1 over and over: 60, and 63 a quarter of a second
        later."""
        player = self.run("jack_midiseq", name, "24000", "0", "60", "6000", "12000", "63", "6000")
        self.wait_for_port(f"{name}:out")
        return player

    def monitor(self):
        """Starts a client that prints what it receives."""
        return self._listener(Monitor(self.run("stdbuf", "-oL", "jack_midi_dump")))

    def recorder(self, program):
        """Starts the recorder of these tests."""
        return self._listener(Recorder(self.run(program)))

    def _listener(self, listener):
        self.wait_for_port(listener.PORT)
        return listener

    def die(self):
        self.server.signal(signal.SIGKILL)
        self.server.wait()

    def _ask(self, *command):
        return subprocess.run(command, env=self.environment, text=True, capture_output=True,
                              timeout=PATIENCE_SECONDS, check=False)


class Listener:
    """A client that prints what it receives."""

    def __init__(self, process):
        self.process = process

    def messages(self):
        """All messages received so far, each as its bytes in hexadecimal: "90 3c 64"."""
        found = (self.LINE.match(line) for line in list(self.process.lines))
        return [match.group(1).strip() for match in found if match]

    def wait_for(self, count):
        """The messages, once there are as many; more may have come."""
        wait_until(lambda: len(self.messages()) >= count, f"message number {count}")
        return self.messages()


class Monitor(Listener):
    """JACK's own printing client, jack_midi_dump. Its lines are "  12: 90 3c 64 note on ...": a
    time, the bytes, and, for short messages, what they mean. Of messages that come all at once it
    keeps the first ones only: MOST of them for sure."""

    PORT = "midi-monitor:input"
    LINE = re.compile(r"\s*\d+:((?: [0-9a-f]{2}\b)+)")
    MOST = 100


class Recorder(Listener):
    """The recorder of these tests, which keeps everything."""

    PORT = "recorder:input"
    LINE = re.compile("(.*)")
