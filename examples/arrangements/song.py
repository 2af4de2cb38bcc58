"""A song as the editor keeps it: tracks of note columns and curves, and the song file."""

from arrangements.notation import parse, pitch

EFFECTS = (
    "Instrument",
    "Volume",
    "Pan",
    "Modulation",
    "Brightness",
    "Reverb",
    "Chorus",
    "Variation",
    "Attack",
    "Release",
    "Pitch",
)

# What a new track's "Start value" cells read. They are also its curves' first values, but for
# Attack, which the editor starts at 1.
START_TEXTS = (None, "127", "64", "1", "64", "40", "1", "1", "64", "64", "64")
START_ATTACK = 1

# Program number and bank of the voices and drum kits that the examples use.
VOICES = {
    "Aco.Bass": (32, 0),
    "Acordion": (21, 0),
    "Banjo": (105, 0),
    "Bassoon": (70, 0),
    "BrasSect": (61, 0),
    "Celesta": (8, 0),
    "Cello": (42, 0),
    "Clarinet": (71, 0),
    "Dist.Gtr": (30, 0),
    "Fiddle": (110, 0),
    "FngrBass": (33, 0),
    "Fr.Horn": (60, 0),
    "GrandPno": (0, 0),
    "MelloGrP": (0, 18),
    "PickBass": (34, 0),
    "Pizz.Str": (45, 0),
    "Recorder": (74, 0),
    "S.SlwStr": (49, 3),
    "SteelGtr": (25, 0),
    "Strings1": (48, 0),
    "Timpani": (47, 0),
    "rock": (16, 0),
    "standard 1": (0, 0),
}

# Note and note column of each drum. Drums that one player cannot strike at once share a column.
DRUMS = {
    "kick": (36, 1),
    "snare": (38, 2),
    "stick": (37, 2),
    "hat": (42, 3),
    "low_tom": (41, 4),
    "mid_tom": (45, 4),
    "high_tom": (48, 4),
    "crash": (49, 5),
    "tambourine": (54, 6),
    "bodhran": (64, 7),
    "rim": (62, 8),
    "china": (52, 8),
}

NOTE_COLUMNS = 8
# Cells show softer notes wrongly, so none is softer.
SOFTEST, LOUDEST = 16, 127


def integer(number):
    """A number as song files hold it: a blank for the plus sign, and a blank behind."""
    return f"{number: d} "


def interpolated(keys, length):
    """The curve through the key attributes {line: value}, which holds its last value to the end."""
    lines = sorted(keys)
    values = []
    for first, last in zip(lines, lines[1:]):
        slope = (keys[last] - keys[first]) / (last - first)
        values += [round(slope * (i - first) + keys[first]) for i in range(first, last)]
    return values + [keys[lines[-1]]] * (length - len(values))


class Track:
    """One track: notes with their lines and velocities, and curves by their key attributes."""

    def __init__(self, number, voice):
        self.channel = 9 if number == 1 else number - 2
        self.voice = voice
        self.program, self.bank = VOICES[voice]
        self.notes = []  # (line, end line or None for drums, note, velocity, wanted column or None)
        self.keys = {}  # effect number: {line: value}
        self.shown = 2

    def curve(self, effect, keys):
        """Makes a curve active. `keys` is {line: value} or the one value of the whole song."""
        if isinstance(keys, int):
            keys = {0: keys}
        assert 0 in keys and keys[0] >= 1, "line 0 holds the start value"
        self.keys[EFFECTS.index(effect) + 1] = keys
        return self

    def show(self, effect):
        self.shown = EFFECTS.index(effect) + 1

    def note(self, line, note, lines, velocity, column=None):
        """One note of so many lines. Without a column it takes the first that is free."""
        velocity = max(SOFTEST, min(LOUDEST, round(velocity)))
        self.notes.append((line, None if lines is None else line + lines, note, velocity, column))

    def play(self, line, text, unit=1, velocity=80, gate=1.0, accents=(0,), shift=0):
        """Plays a phrase (see notation.py) of `unit` lines a step; returns the line after it.

        velocity: a number, or (first, last) for a crescendo or diminuendo over the phrase.
        gate: the sounding part of each note. accents: added to the velocity, step by step in turn.
        shift: semitones up.
        """
        first, last = velocity if isinstance(velocity, tuple) else (velocity, velocity)
        events, steps = parse(text)
        for step, held, pitches in events:
            strength = (
                first + (last - first) * step / max(1, steps - 1) + accents[step % len(accents)]
            )
            for note in pitches:
                self.note(
                    line + step * unit, note + shift, max(1, round(held * unit * gate)), strength
                )
        return line + steps * unit

    def sustain(self, line, chords, lines, velocity):
        """Chords of so many lines each, tied where a note stays. `velocity` as in play()."""
        first, last = velocity if isinstance(velocity, tuple) else (velocity, velocity)
        sets = [{pitch(name) for name in chord.split("+") if name != "."} for chord in chords] + [
            set()
        ]
        started = {}
        for k, notes in enumerate(sets):
            strength = first + (last - first) * k / len(chords)
            for note in [n for n in started if n not in notes]:
                begin, velocity_then = started.pop(note)
                self.note(begin, note, line + k * lines - begin, velocity_then)
            for note in sorted(notes - started.keys()):
                started[note] = (line + k * lines, strength)
        return line + len(chords) * lines

    def beat(self, line, unit=1, level=1.0, **patterns):
        """Drum patterns by drum, a character a step: a digit 1..9 strikes (9 is 127), "." rests."""
        steps = 0
        for drum, pattern in patterns.items():
            note, column = DRUMS[drum]
            strokes = pattern.replace(" ", "").replace("|", "")
            for step, stroke in enumerate(strokes):
                if stroke != ".":
                    self.note(
                        line + step * unit, note, None, int(stroke) / 9 * LOUDEST * level, column
                    )
            steps = max(steps, len(strokes))
        return line + steps * unit

    def columns(self, length):
        """The note columns in use, each a list of cell texts."""
        cells = [[""] * length for _ in range(NOTE_COLUMNS)]
        ends = [(-1, None)] * NOTE_COLUMNS  # end line and note of each column's last note
        for line, end, note, velocity, wanted in sorted(self.notes, key=lambda n: n[0]):
            column = self._column(line, note, wanted, ends)
            last_end = ends[column][0]
            if 0 <= last_end < line and not cells[column][last_end]:
                cells[column][last_end] = "stop"
            cells[column][line] = f"{velocity:X}{note:02X}9{self.channel:X}"
            ends[column] = (-1 if end is None else end, note)
        for column, (end, _) in enumerate(ends):
            if 0 <= end < length and not cells[column][end]:
                cells[column][end] = "stop"
        used = max((c + 1 for c in range(NOTE_COLUMNS) if any(cells[c])), default=0)
        return cells[:used]

    @staticmethod
    def _column(line, note, wanted, ends):
        if wanted:
            return wanted - 1
        # A note that still sounds, or ends here, is struck again in its own column: a note-off
        # that came from another column would silence the new one.
        for column, (end, sounding) in enumerate(ends):
            if end >= line and sounding == note:
                return column
        return next(c for c, (end, _) in enumerate(ends) if end <= line)

    def values(self, effect, length):
        """The effect's value on every line."""
        if effect == 1:
            return [self.program] * length
        if effect in self.keys:
            return interpolated(self.keys[effect], length)
        start = START_ATTACK if EFFECTS[effect - 1] == "Attack" else int(START_TEXTS[effect - 1])
        return [start] * length

    def key_lines(self, effect):
        return {0} | self.keys.get(effect, {}).keys()

    def active_texts(self):
        return ["yes" if e == 1 or e in self.keys else "no" for e in range(1, 12)]

    def start_texts(self):
        texts = [self.voice, *START_TEXTS[1:]]
        for effect, keys in self.keys.items():
            texts[effect - 1] = str(keys[0])
        return texts

    def show_texts(self):
        return ["yes" if e == self.shown else "no" for e in range(1, 12)]


class Song:
    """A song; `reverb`, `chorus` and `variation` are places in the three XG lists."""

    def __init__(self, bpm, lines_per_beat, length, reverb=0, chorus=0, variation=0):
        self.bpm, self.lines_per_beat, self.length = bpm, lines_per_beat, length
        self.xg_effects = (reverb, chorus, variation)
        self.tracks = []
        self.bookmarks = []

    def track(self, voice):
        """Adds a track; the first is the drum track."""
        self.tracks.append(Track(len(self.tracks) + 1, voice))
        return self.tracks[-1]

    def bookmark(self, line, name):
        self.bookmarks.append((name, line + 1))  # a bookmark holds its grid row

    def fields(self):
        """The fields of the song file, a line each, in their order."""
        rows = self.length + 1
        yield "2.0"
        yield integer(len(self.tracks))
        yield integer(rows)
        yield from ("1", str(self.bpm), str(self.length), str(self.lines_per_beat))
        yield integer(len(self.bookmarks))
        for name, row in self.bookmarks:
            yield name
            yield integer(row)
        yield from (integer(track.bank) for track in self.tracks)
        for track in self.tracks:
            yield from track.active_texts() + track.start_texts() + track.show_texts()
        yield from self._notes()
        yield from (integer(track.channel) for track in self.tracks)
        for track in self.tracks:
            yield from self._curves(track)
        yield from (integer(track.shown) for track in self.tracks)
        yield from (integer(item) for item in self.xg_effects)

    def _notes(self):
        columns = [track.columns(self.length) for track in self.tracks]
        yield from (integer(len(used)) for used in columns)
        for used in columns:
            for cells in used:
                yield from cells

    def _curves(self, track):
        for effect in range(1, len(EFFECTS) + 1):
            keys = track.key_lines(effect)
            for line, value in enumerate(track.values(effect, self.length)):
                yield integer(value)
                yield integer(-1 if line in keys else 0)

    def file_bytes(self):
        return "".join(field + "\r\n" for field in self.fields()).encode("ascii")
