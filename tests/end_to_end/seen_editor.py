"""The built editor as one who sees its window knows it: what it shows is read as a screen reader
reads it, colours are taken from the screen, and clicks go to where things are shown."""

import collections
import contextlib

import dbus

import editor
import jack

Status = collections.namedtuple("Status", "file output line cell octave")


class SeenEditor(editor.Editor):
    """Tracks and sub-columns count from 1, lines from 0."""

    SUB_COLUMNS = 9
    SETTINGS = ["Active", "Start value", "Show"]
    EFFECTS = ["Instrument", "Volume", "Pan", "Modulation", "Brightness", "Reverb", "Chorus",
               "Variation", "Attack", "Release", "Pitch"]

    def __init__(self, bus, server, program, home, *options):
        super().__init__(server, program, home, *options)
        self.shown = bus.program("lunavox")

    # What there is to see

    def node(self, role, name=None):
        """Waits until something of that role and name is shown."""
        def found():
            with contextlib.suppress(dbus.DBusException):  # it went while it was asked
                for node in self.shown.find_all(role):
                    if name in (None, node.name()) and node.showing():
                        return node
            return None
        return jack.wait_until(found, f"{role} {name or ''}")

    def names(self, window, role):
        """What all nodes of that role say in the window with that title."""
        frame = next(node for node in self.shown.children()
                     if node.name() == window and node.showing())
        return [node.name() for node in frame.find_all(role)]

    def labels(self, window):
        return self.names(window, "label")

    def labels_if_shown(self, window):
        try:
            return self.labels(window)
        except (dbus.DBusException, StopIteration):
            return []

    def status(self):
        return Status(*self.labels(editor.MAIN)[-len(Status._fields):])

    def field(self, name):
        return self.node("text", name).text()

    def headers(self):
        """What stands above the tracks."""
        table = self.node("table", "channels")
        return [table.cell(0, track).name() for track in range(table.size()[1])]

    def setting_cell(self, track, effect, setting):
        return self.node("table", "effects").cell(
            self.EFFECTS.index(effect), 3 * (track - 1) + self.SETTINGS.index(setting))

    def settings(self, track, setting):
        """A column of the settings, from "Instrument" to "Pitch"."""
        table = self.node("table", "effects")
        column = 3 * (track - 1) + self.SETTINGS.index(setting)
        return [table.cell(row, column).name() for row in range(len(self.EFFECTS))]

    def cell(self, track, column, line):
        """@param column: from 1 to 8, 9 for the effect column"""
        return self.node("table", "tracks").cell(
            line, self.SUB_COLUMNS * (track - 1) + column - 1)

    def column(self, track, column, lines):
        """What is written in a column of the notes, without the empty cells: line, text."""
        table = self.node("table", "tracks")
        place = self.SUB_COLUMNS * (track - 1) + column - 1
        texts = [table.cell(line, place).name() for line in range(lines)]
        return {line: text for line, text in enumerate(texts) if text != "empty"}

    def picture(self, place):
        """The colours of a part of the screen, row by row: (red, green, blue)."""
        left, top, width, height = place
        raw = editor.run("import", "-silent", "-window", "root", "-crop",
                         f"{width}x{height}+{left}+{top}", "-depth", "8", "rgb:-",
                         env=self.server.environment)
        return list(zip(raw[0::3], raw[1::3], raw[2::3]))

    def looks(self, place, colour):
        """Whether some of it has the colour, or nearly so: the edges of letters are blended."""
        return any(max(abs(a - b) for a, b in zip(seen, colour)) <= 24
                   for seen in self.picture(place))

    def line_number_place(self, line):
        left = self.node("table", "tracks").place()[0]
        right, top, _, height = self.cell(1, 1, line).place()
        return left, top, right - left, height

    # What a hand does

    def press(self, node, times=1, button=1):
        """Clicks on the middle of what is shown."""
        left, top, width, height = node.place()
        self.click((left + width // 2, top + height // 2), times, button)

    def choose(self, *captions):
        """Goes through the menus."""
        self.main()
        for caption in captions:
            self.press(self.node("menu item", caption))

    def type_over(self, name, text):
        """Types over what stands in a field."""
        self.press(self.node("text", name), times=2)
        self.type(text)
        self.key("Return")

    def enter(self, name, text):
        """Types what a field of the main window takes."""
        self.type_over(name, text)
        # What was entered has had its effect once the notes have the keys again.
        jack.wait_until(self.node("table", "tracks").focused, "end of the entry")
        self.main()

    def answer(self, title, text):
        """Types over what a question offers."""
        self.window(title)
        self.key("ctrl+a")
        self.type(text)
        self.key("Return")
        self.wait_for_no_window(title)
        self.main()

    def go_to(self, track, column, line):
        """Puts the cursor on a cell: with the mouse on its column, with keys on its line."""
        self.main().key("Home")  # into view
        jack.wait_until(lambda: self.status().line.startswith("Line 0 "), "first line")
        self.press(self.cell(track, column, 0))
        self.key(*["Down"] * line)

    def select(self, track, column, line, lines):
        """Selects so many cells of a column, from a line on."""
        self.go_to(track, column, line)
        self.key(*["shift+Down"] * (lines - 1))

    def dismiss(self, title, text):
        """Reads a message and closes it."""
        self.window(title)
        self.node("label", text)
        self.key("Return")
        self.wait_for_no_window(title)
