"""The built editor in a window on a display of a test's own, played as a person plays it: with keys
and clicks. There is no window manager: the tests give the keys to the window that they mean."""

import contextlib
import os
import shutil
import subprocess
import tempfile

import jack
import midi_log
import song_text

TOOLS = jack.TOOLS + ("Xvfb", "import", "setxkbmap", "xdotool")
MAIN = "Lunavox 2.1"
FILE_COMMANDS = ["New", "Open", "Save", "Save as", "Export as .mid", "Quit"]

# X key codes by the key's name on an American keyboard: what counts is the place.
KEYS = {name: first + place
        for first, row in [(10, "1234567890-="), (24, "qwertyuiop[]"), (38, "asdfghjkl;'"),
                           (52, "zxcvbnm,./")]
        for place, name in enumerate(row)}

# Of a window of 1024 x 768 pixels. One that is put back where the last one stood is 20 pixels lower,
# without a window manager; the buttons are hit there too.
PLAY_BUTTON = (32, 70)
RECORD_BUTTON = (77, 70)
REALTIME_RECORD = (324, 109)
DEVICE_STATUS = "300x18+230+748"


def missing_tools():
    return [tool for tool in TOOLS if not shutil.which(tool)]


def run(*command, env):
    """What a program that ends by itself writes; nothing where it fails."""
    done = subprocess.run(command, env=env, capture_output=True, check=False,
                          timeout=jack.PATIENCE_SECONDS)
    return done.stdout if done.returncode == 0 else b""


class Display(contextlib.ExitStack):
    """An X server that ends at the end of the with block."""

    def __enter__(self):
        super().__enter__()
        # A server that ends at the same moment can take the new one's socket with it.
        jack.wait_until(self._start, "display")
        return self

    def _start(self):
        said, says = os.pipe()
        server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(says), "-screen", "0", "1024x768x24", "-nolisten", "tcp",
             "-noreset"],
            pass_fds=[says], stderr=subprocess.DEVNULL)
        self.callback(server.wait)
        self.callback(server.terminate)
        os.close(says)
        with os.fdopen(said) as number:
            self.name = ":" + number.readline().strip()
        return run("xdotool", "getdisplaygeometry", env=dict(os.environ, DISPLAY=self.name))


class Editor:
    """A running editor. Its home and its display are empty at first, and stay from one to the next
    one that is started in them."""

    def __init__(self, server, program, home, *options):
        self.server = server
        self.log_file = os.path.join(home, "midi.log")
        with contextlib.suppress(FileNotFoundError):
            os.remove(self.log_file)
        self.process = server.run(program, "--midi-log", self.log_file, *options)

    # Windows

    def window(self, title):
        """Waits for a window and gives it the keys."""
        def shown():
            self.process.process.poll()
            assert self.process.process.returncode is None, self.process.errors
            found = self._do("search", "--onlyvisible", "--name", f"^{title}$").split()
            return found and self._focus(found[-1])
        jack.wait_until(shown, f"window {title}")
        return self

    def main(self):
        """Gives the keys to the main window, once no long work keeps it from taking them."""
        self.window(MAIN)
        self.wait_for_no_window("PLEASE WAIT[.]*")
        return self

    def ready(self):
        """The main window, once start-up has come to its end, the reset of the output."""
        jack.wait_until(self.sent, "reset of the output")
        jack.wait_until(lambda: len(set(self.device_status())) > 1, "painted status bar")
        return self.main()

    def wait_for_no_window(self, title):
        jack.wait_until(lambda: not self._do("search", "--onlyvisible", "--name", f"^{title}$"),
                        f"end of the window {title}")

    def _focus(self, window):
        self._do("windowfocus", window)
        return self._do("getwindowfocus", "-f").strip() == window

    # Keys and clicks

    def key(self, *keys):
        """Presses keys one after the other: a place of KEYS or a name that X knows."""
        for key in keys:
            self._do("key", str(KEYS.get(key, key)))

    def click(self, place, times=1, button=1):
        self._do("mousemove", str(place[0]), str(place[1]), "click", "--repeat", str(times),
                 str(button))

    def type(self, text):
        self._do("type", "--delay", "1", text)

    def file_command(self, caption):
        self.main()
        self.key("alt+f", *["Down"] * FILE_COMMANDS.index(caption), "Return")

    def save_as(self, path):
        """Saves the song by the menu and gives what stands in its file."""
        self.write("Save as", "Save.*", path)
        return song_text.read(path)

    def export(self, path):
        self.write("Export as .mid", "Export", path)

    def write(self, command, title, path):
        with contextlib.suppress(FileNotFoundError):
            os.remove(path)
        self.file_command(command)
        self.window(title).type(path)
        self.key("Return")
        jack.wait_until(lambda: os.path.exists(path), path)
        self.main()

    def open(self, path):
        sent = len(self.sent())
        self.file_command("Open")
        self.window("Open.*").type(path)
        self.key("Return")
        jack.wait_until(lambda: len(self.sent()) > sent, "voice of the opened song")
        self.main()

    def quit(self):
        self.file_command("Quit")
        assert self.process.wait() == 0, self.process.errors

    def _do(self, *command):
        return run("xdotool", *command, env=self.server.environment).decode()

    def device_status(self):
        """A picture of what the status bar says of the devices."""
        return run("import", "-silent", "-window", "root", "-crop", DEVICE_STATUS, "rgb:-",
                   env=self.server.environment)

    # What the editor has sent

    def sent(self):
        """What was put on the wire so far: (milliseconds, bytes in hexadecimal "90 3c 64")."""
        return list(midi_log.timed_wire(self.log_file))

    def notes(self):
        """The note-ons among them that have a velocity."""
        return [(time, text) for time, text in self.sent() if midi_log.is_note(text)]

    def wait_for_notes(self, count):
        jack.wait_until(lambda: len(self.notes()) >= count, f"note number {count}")
        return self.notes()


@contextlib.contextmanager
def stage(*server_options):
    """A JACK server with a display and a home for what is started on it."""
    with contextlib.ExitStack() as stack:
        home = stack.enter_context(tempfile.TemporaryDirectory())
        display = stack.enter_context(Display())
        server = stack.enter_context(jack.JackServer(*server_options))
        server.environment.update(
            DISPLAY=display.name, HOME=home, XDG_CONFIG_HOME=f"{home}/config",
            XDG_STATE_HOME=f"{home}/state", XDG_RUNTIME_DIR=home, QT_QPA_PLATFORM="xcb")
        os.chmod(home, 0o700)
        yield server, home
