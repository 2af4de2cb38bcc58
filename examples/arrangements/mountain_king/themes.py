"""The phrases and chords of the Mountain King, its form in lines, and its band."""

EIGHTHS = 8  # in a bar

THEME = (
    "B3 C#4 D4 E4 F#4 D4 F#4 - | F4 C#4 F4 - E4 C4 E4 - |"
    "B3 C#4 D4 E4 F#4 D4 F#4 B4 | A4 F#4 D4 F#4 A4 - - -"
)
THEME_CLOSING = (
    "B3 C#4 D4 E4 F#4 D4 F#4 - | F4 C#4 F4 - E4 C4 E4 - |"
    "B3 C#4 D4 E4 F#4 D4 F#4 B4 | A4 F#4 D4 F#4 B4 - - -"
)
ANSWER = (
    "F#4 G#4 A#4 B4 C#5 A#4 C#5 - | D5 A#4 D5 - C#5 A#4 C#5 - |"
    "F#4 G#4 A#4 B4 C#5 A#4 C#5 - | D5 A#4 D5 - C#5 - - -"
)

# Chords, two a bar.
THEME_CHORDS = "Bm Bm C# C Bm Bm D D".split()
CLOSING_CHORDS = "Bm Bm C# C Bm Bm D Bm".split()
ANSWER_CHORDS = "F# F# F#+ F# F# F# F#+ F#".split()

HORNS = {
    "Bm": "F#4+B4+D5",
    "C#": "F4+G#4+C#5",
    "C": "E4+G4+C5",
    "D": "F#4+A4+D5",
    "F#": "F#4+A#4+C#5",
    "F#+": "F#4+A#4+D5",
}
BRASS = {
    "Bm": "B4+D5+F#5+B5",
    "C#": "C#5+F5+G#5+C#6",
    "C": "C5+E5+G5+C6",
    "D": "D5+F#5+A5+D6",
    "F#": "A#4+C#5+F#5+A#5",
    "F#+": "A#4+D5+F#5+A#5",
}
ROOT_AND_FIFTH = {
    "Bm": ("B2", "F#2"),
    "C#": ("C#3", "G#2"),
    "C": ("C3", "G2"),
    "D": ("D3", "A2"),
    "F#": ("F#2", "C#3"),
    "F#+": ("F#2", "D3"),
}
POWER = {
    "Bm": "B3+F#4",
    "C#": "C#4+G#4",
    "C": "C4+G4",
    "D": "D4+A4",
    "F#": "F#3+C#4",
    "F#+": "F#3+D4",
}

ACCENTS = (10, 0, 4, 0, 8, 0, 4, 0)

# Lines an eighth note takes, and the first line of each verse.
SLOW, FASTER, FASTEST = 4, 3, 2
VERSE_1 = EIGHTHS * SLOW  # after one bar of the horns alone
VERSE_2 = VERSE_1 + 12 * EIGHTHS * SLOW
VERSE_3 = VERSE_2 + 12 * EIGHTHS * FASTER
CODA = VERSE_3 + 24 * EIGHTHS * FASTEST
HUSH = CODA + 13 * EIGHTHS * FASTEST
LAST_CHORDS = HUSH + 32
FINAL = LAST_CHORDS + 2 * EIGHTHS * FASTEST
LENGTH = FINAL + 72


class Band:
    """The ten tracks."""

    def __init__(self, song):
        self.drums = song.track("rock")
        self.pizzicato = song.track("Pizz.Str")
        self.bassoon = song.track("Bassoon")
        self.clarinet = song.track("Clarinet")
        self.strings = song.track("Strings1")
        self.horns = song.track("Fr.Horn")
        self.brass = song.track("BrasSect")
        self.guitar = song.track("Dist.Gtr")
        self.bass = song.track("PickBass")
        self.timpani = song.track("Timpani")


def roll(track, line, lines, every, note, velocity):
    track.play(line, " ".join([note] * (lines // every)), every, velocity)
