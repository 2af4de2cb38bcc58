"""Song files, read by the rules of their format and by nothing of the editor's."""

import dataclasses

EFFECTS = 11


@dataclasses.dataclass
class Song:
    """Tracks, note columns and effects count from 1, lines from 0; bookmarks hold rows."""
    version: str = ""
    tracks: int = 0
    lines: int = 0
    fields: dict = dataclasses.field(default_factory=dict)
    bookmarks: list = dataclasses.field(default_factory=list)
    banks: list = dataclasses.field(default_factory=list)
    settings: dict = dataclasses.field(default_factory=dict)  # track, effect: active, start, show
    used_columns: list = dataclasses.field(default_factory=list)
    notes: dict = dataclasses.field(default_factory=dict)  # track, column, line: what is not empty
    channels: list = dataclasses.field(default_factory=list)
    values: dict = dataclasses.field(default_factory=dict)  # track, effect: a number for each line
    keys: dict = dataclasses.field(default_factory=dict)  # track, effect: lines that were typed
    shown_effects: list = dataclasses.field(default_factory=list)
    xg_effects: list = dataclasses.field(default_factory=list)

    def column(self, track, column):
        """What stands in a note column, line by line."""
        return [self.notes.get((track, column, line), "") for line in range(self.lines)]


def read(path):
    with open(path, encoding="latin-1", newline="") as file:
        return parse(file.read())


def parse(text):
    lines = text.split("\r\n")
    assert lines.pop() == "", "the last line is not ended"
    reader = iter(lines)
    song = _parse(reader)
    assert next(reader, None) is None, "there is more than a song in the file"
    return song


def _parse(reader):
    def number():
        text = next(reader)
        assert text == f"{int(text): d} ", f"written otherwise than numbers are: {text!r}"
        return int(text)

    song = Song(next(reader))
    song.tracks, song.lines = number(), number() - 1
    tracks = range(1, song.tracks + 1)
    song.fields = {name: next(reader) for name in ("step", "bpm", "length", "number")}
    song.bookmarks = [(next(reader), number()) for _ in range(number())]
    song.banks = [number() for _ in tracks]
    for track in tracks:
        columns = [[next(reader) for _ in range(EFFECTS)] for _ in range(3)]
        for effect, setting in enumerate(zip(*columns), 1):
            song.settings[track, effect] = setting
    song.used_columns = [number() for _ in tracks]
    for track, used in zip(tracks, song.used_columns):
        for column in range(1, used + 1):
            for line in range(song.lines):
                entry = next(reader)
                if entry:
                    song.notes[track, column, line] = entry
    song.channels = [number() for _ in tracks]
    for track in tracks:
        for effect in range(1, EFFECTS + 1):
            points = [(number(), number()) for _ in range(song.lines)]
            song.values[track, effect] = [value for value, _ in points]
            song.keys[track, effect] = [line for line, (_, key) in enumerate(points) if key]
    song.shown_effects = [number() for _ in tracks]
    song.xg_effects = [number() for _ in range(3)]
    return song
