"""Prelude in C major, BWV 846. Johann Sebastian Bach.

The piano plays what Bach wrote. Strings, a cello and a celesta come in one by one beneath it.
"""

from arrangements.notation import pitch
from arrangements.song import Song

# Bars 1..32 are one broken chord each: two notes for the left hand, three for the right.
BARS = [
    bar.split()
    for bar in """
    C5 E5 G5 C6 E6
    C5 D5 A5 D6 F6
    B4 D5 G5 D6 F6
    C5 E5 G5 C6 E6
    C5 E5 A5 E6 A6
    C5 D5 F#5 A5 D6
    B4 D5 G5 D6 G6
    B4 C5 E5 G5 C6
    A4 C5 E5 G5 C6
    D4 A4 D5 F#5 C6
    G4 B4 D5 G5 B5
    G4 Bb4 E5 G5 C#6
    F4 A4 D5 A5 D6
    F4 Ab4 D5 F5 B5
    E4 G4 C5 G5 C6
    E4 F4 A4 C5 F5
    D4 F4 A4 C5 F5
    G3 D4 G4 B4 F5
    C4 E4 G4 C5 E5
    C4 G4 Bb4 C5 E5
    F3 F4 A4 C5 E5
    F#3 C4 A4 C5 Eb5
    Ab3 F4 B4 C5 D5
    G3 F4 G4 B4 D5
    G3 E4 G4 C5 E5
    G3 D4 G4 C5 F5
    G3 D4 G4 B4 F5
    G3 Eb4 A4 C5 F#5
    G3 E4 G4 C5 G5
    G3 D4 G4 C5 F5
    G3 D4 G4 B4 F5
    C3 C4 G4 Bb4 E5
""".strip().splitlines()
]

# Bars 33 and 34, after their two bass notes.
BAR_33 = "F4 A4 C5 F5 C5 A4 C5 A4 F4 A4 F4 D4 F4 D4"
BAR_34 = "G5 B5 D6 F6 D6 B5 D6 B5 G5 B5 D5"
BAR_34_SLOWING = "F5 E5 D5"

# How loud each bar is, 1..32: arches that follow the harmony, the highest over the dominant pedal.
LOUDNESS = [
    int(loud)
    for loud in """
    76 78 82 76 84 86 90 82
    78 84 88 92 88 84 78 76
    74 78 80 86 80 90 96 92
    90 94 98 108 102 94 86 80
""".split()
]

BAR = 16
HALF = 8
ENDING = 32 * BAR  # line of bar 33
LENGTH = 608


def make():
    song = Song(bpm=69, lines_per_beat=4, length=LENGTH, reverb=1, chorus=4)
    song.track("standard 1")  # no drums here: the first track stays empty
    piano, strings, cello, celesta = (
        song.track(voice) for voice in ("MelloGrP", "S.SlwStr", "Cello", "Celesta")
    )
    for bar, chord in enumerate(BARS):
        play_bar(piano, bar, chord)
    play_ending(piano)
    play_strings(strings)
    play_cello(cello)
    play_celesta(celesta)
    write_curves(piano, strings, cello, celesta)
    for bar, name in (
        (0, "Opening"),
        (4, "Strings"),
        (10, "Cello"),
        (18, "Home again"),
        (23, "Dominant pedal"),
        (32, "Ending"),
    ):
        song.bookmark(bar * BAR, name)
    return song


def play_bar(piano, bar, chord):
    """Each half of the bar rises through the chord; the left hand holds, the right lets ring."""
    for half in range(2):
        line = bar * BAR + half * HALF
        loud = LOUDNESS[bar] - 4 * half
        for place, note in enumerate(chord):
            shade = (8, 0, -6, -4, 4)[place]
            piano.note(line + place, pitch(note), HALF - place, loud + shade, column=place + 1)
        for place, note in enumerate(chord[2:]):
            # The second time round starts where the first left each string: same columns.
            piano.note(
                line + 5 + place, pitch(note), 3 - place, loud - 8 + 4 * place, column=place + 3
            )


def play_ending(piano):
    """Bars 33 and 34 wander over the tonic pedal; the last notes slow down into the chord."""
    line = ENDING
    piano.note(line, pitch("C3"), BAR, 82, column=7)
    piano.note(line + 1, pitch("C4"), BAR - 1, 70, column=8)
    piano.play(line + 2, BAR_33, velocity=(74, 66))
    line += BAR
    piano.note(line, pitch("C3"), BAR + 3, 80, column=7)
    piano.note(line + 1, pitch("B3"), BAR + 2, 68, column=8)
    line = piano.play(line + 2, BAR_34, velocity=(70, 62))
    line = piano.play(line, BAR_34_SLOWING, unit=2, velocity=(60, 54))
    held = LENGTH - 8 - line
    for place, note in enumerate(("C3", "C4", "E5", "G5", "C6")):
        piano.note(line + place, pitch(note), held - place, 74 - 3 * place)


def play_strings(strings):
    """The inner voices of bars 5..32, tied where a note stays, and the last three bars."""
    chords = ["+".join(chord[1:4]) for chord in BARS[4:]]
    line = strings.sustain(4 * BAR, chords, BAR, (66, 76))
    line = strings.sustain(line, ["F4+A4+C5", "F4+G4+B4+D5"], BAR, 72)
    strings.sustain(line + 3, ["E4+G4+C5"], LENGTH - 12 - line - 3, 68)


def play_cello(cello):
    """The bass from bar 11 on, an octave up where the pedal would be too low for a cello."""
    bass = [chord[0] for chord in BARS[10:31]]
    line = cello.sustain(10 * BAR, bass, BAR, (62, 78))
    line = cello.sustain(line, ["C4"], 3 * BAR + 3, 70)
    cello.sustain(line, ["C4+G4"], LENGTH - 12 - line, 58)


def play_celesta(celesta):
    """Answers the top note of every second bar an octave up, off the beat."""
    for bar in range(18, 32):
        top, below = pitch(BARS[bar][4]) + 12, pitch(BARS[bar][3]) + 12
        line = bar * BAR
        celesta.note(line + 6, top, 4, LOUDNESS[bar] - 16)
        if bar % 2:
            celesta.note(line + 10, below, 2, LOUDNESS[bar] - 24)
            celesta.note(line + 12, top, 4, LOUDNESS[bar] - 20)
    for place, note in enumerate(("C6", "E6", "G6", "C7")):
        celesta.note(LENGTH - 40 + 2 * place, pitch(note), 30 - 2 * place, 58 - 2 * place)


def write_curves(piano, strings, cello, celesta):
    bar = BAR
    piano.curve("Volume", {0: 127}).curve("Reverb", {0: 50, ENDING: 50, ENDING + 24: 90})
    strings.curve(
        "Volume",
        {
            0: 1,
            4 * bar: 1,
            7 * bar: 62,
            11 * bar: 78,
            15 * bar: 60,
            20 * bar: 70,
            22 * bar: 92,
            24 * bar: 80,
            27 * bar: 108,
            29 * bar: 96,
            32 * bar: 66,
            34 * bar: 60,
            LENGTH - 12: 16,
        },
    )
    strings.curve("Pan", {0: 40}).curve("Reverb", {0: 80}).curve("Chorus", {0: 40})
    strings.curve("Brightness", {0: 50, 20 * bar: 50, 27 * bar: 80, 32 * bar: 54})
    cello.curve(
        "Volume",
        {
            0: 70,
            10 * bar: 70,
            14 * bar: 92,
            18 * bar: 80,
            23 * bar: 104,
            27 * bar: 118,
            32 * bar: 84,
            35 * bar: 70,
            LENGTH - 12: 20,
        },
    )
    cello.curve("Pan", {0: 84}).curve("Reverb", {0: 70})
    cello.curve("Modulation", {0: 1, 22 * bar: 1, 27 * bar: 40, 31 * bar: 10})
    celesta.curve("Volume", {0: 122}).curve("Reverb", {0: 100})
    celesta.curve(
        "Pan", {0: 20, 18 * bar: 20, 22 * bar: 108, 26 * bar: 24, 30 * bar: 104, 34 * bar: 64}
    )
    celesta.show("Pan")
