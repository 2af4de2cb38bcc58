"""What a window says to a screen reader: the texts, places and states of all that it shows, asked
over the accessibility bus (AT-SPI), which knows nothing of how the program is made."""

import contextlib
import os
import shutil
import signal
import subprocess

import jack

with contextlib.suppress(ImportError):
    import dbus

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
ROOT = "/org/a11y/atspi/accessible/root"
SESSION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:path={}</listen><policy context="default">
<allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
</policy></busconfig>
"""

# Bits of the states that a node tells.
CHECKED, FOCUSED, SHOWING = 4, 12, 25
ON_SCREEN = 0


def missing():
    found = {"dbus-daemon": shutil.which("dbus-daemon"), "at-spi2-core": os.path.exists(LAUNCHER),
             "python3-dbus": "dbus" in globals()}
    return [name for name, there in found.items() if not there]


class AccessibilityBus:
    """A session of a test's own, in which a screen reader is switched on."""

    def __init__(self, server, home):
        path = os.path.join(home, "session-bus")
        with open(f"{path}.conf", "w", encoding="ascii") as configuration:
            configuration.write(SESSION.format(path))
        server.run("dbus-daemon", f"--config-file={path}.conf", "--nofork")
        jack.wait_until(lambda: os.path.exists(path), "session bus")
        server.environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={path}"
        self._launch(server)
        session = dbus.bus.BusConnection(f"unix:path={path}")
        jack.wait_until(lambda: session.name_has_owner("org.a11y.Bus"), "accessibility bus")
        self.bus = dbus.bus.BusConnection(session.call_blocking(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", "", ()))
        session.close()

    @staticmethod
    def _launch(server):
        # It starts a bus and a registry, which would hold on to its output when it has ended.
        launcher = subprocess.Popen(
            [LAUNCHER, "--launch-immediately", "--a11y=1"], env=server.environment,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
            preexec_fn=jack.end_with_parent)
        server.callback(launcher.wait)
        server.callback(os.killpg, launcher.pid, signal.SIGKILL)

    def program(self, name):
        """The root of a running program, once it is there."""
        def found():
            for client in self.bus.list_names():
                if client.startswith(":") and client != self.bus.get_unique_name():
                    node = Node(self.bus, client, ROOT)
                    with contextlib.suppress(dbus.DBusException):  # gone, or not yet there
                        if node.name() == name:
                            return node
            return None
        return jack.wait_until(found, f"{name} on the accessibility bus")


class Node:
    """Something that is shown: a window, a field, a cell."""

    def __init__(self, bus, client, path):
        self.bus, self.client, self.path = bus, client, path

    def __eq__(self, other):
        return self.path == other.path

    def _ask(self, interface, method, signature="", *arguments):
        return self.bus.call_blocking(self.client, self.path, f"org.a11y.atspi.{interface}", method,
                                      signature, arguments)

    def _property(self, interface, name):
        return self.bus.call_blocking(
            self.client, self.path, "org.freedesktop.DBus.Properties", "Get", "ss",
            (f"org.a11y.atspi.{interface}", name))

    def name(self):
        return str(self._property("Accessible", "Name"))

    def role(self):
        return str(self._ask("Accessible", "GetRoleName"))

    def children(self):
        return [Node(self.bus, client, path)
                for client, path in self._ask("Accessible", "GetChildren")]

    def _is(self, bit):
        states = self._ask("Accessible", "GetState")
        return bool(int(states[bit // 32]) >> bit % 32 & 1)

    def checked(self):
        return self._is(CHECKED)

    def focused(self):
        """Whether the keys go there."""
        return self._is(FOCUSED)

    def showing(self):
        return self._is(SHOWING)

    def text(self):
        """What stands in a text field."""
        return str(self._ask("Text", "GetText", "ii", 0, -1))

    def place(self):
        """Left, top, width and height on the screen, in pixels."""
        return tuple(int(n) for n in self._ask("Component", "GetExtents", "u", ON_SCREEN))

    def cell(self, row, column):
        """The cell of a table, counted from 0 without its headers."""
        _, path = self._ask("Table", "GetAccessibleAt", "ii", row, column)
        return Node(self.bus, self.client, path)

    def size(self):
        """A table's rows and columns, without its headers."""
        return int(self._property("Table", "NRows")), int(self._property("Table", "NColumns"))

    def heading(self, row=None, column=None):
        """What heads a row or a column of a table."""
        if row is not None:
            return str(self._ask("Table", "GetRowDescription", "i", row))
        return str(self._ask("Table", "GetColumnDescription", "i", column))

    def find_all(self, role):
        """The nodes below this one that have the role; a table's cells are not looked at."""
        for child in self.children():
            kind = child.role()
            if kind == role:
                yield child
            if kind != "table":
                yield from child.find_all(role)

    def find(self, role, name=None):
        """The first of them that has the name too; None where there is none."""
        return next((node for node in self.find_all(role) if name in (None, node.name())), None)
