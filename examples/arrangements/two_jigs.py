"""The Swallowtail Jig and The Kesh Jig, two Irish session tunes, traditional.

Three lines a beat: a line is an eighth note of the 6/8, a bar is six lines. Each round plays a tune
with its repeats (AABB): Swallowtail quietly, Kesh with the band, Kesh with all that there is.
"""

from arrangements.song import Song

BAR = 6
PART = 8 * BAR

SWALLOWTAIL_A = (
    "G5 E5 E5 B5 E5 E5 | G5 E5 E5 B5 A5 G5 | F#5 D5 D5 A5 D5 D5 | D6 C#6 D6 A5 G5 F#5 |"
    "G5 E5 E5 B5 E5 E5 | G5 E5 E5 B5 - C#6 | D6 C#6 B5 A5 G5 F#5 | G5 E5 E5 E5 - -"
)
SWALLOWTAIL_B = (
    "B5 C#6 D6 E6 - F#6 | E6 - F#6 E6 D6 B5 | B5 C#6 D6 E6 - F#6 | E6 D6 B5 D6 - C#6 |"
    "B5 C#6 D6 E6 - F#6 | E6 - F#6 E6 D6 B5 | D6 C#6 B5 A5 G5 F#5 | G5 E5 E5 E5 - -"
)
KESH_A = (
    "G5 - - G5 A5 B5 | A5 - - A5 B5 D6 | E6 D6 D6 G6 D6 D6 | E6 D6 B5 D6 B5 A5 |"
    "G5 - - G5 A5 B5 | A5 - - A5 B5 D6 | E6 D6 D6 G6 D6 B5 | A5 G5 F#5 G5 - -"
)
KESH_B = (
    "B5 A5 B5 D6 B5 D6 | E6 G6 E6 D6 B5 A5 | B5 A5 B5 D6 B5 G5 | A5 B5 A5 A5 G5 A5 |"
    "B5 A5 B5 D6 B5 D6 | E6 G6 E6 D6 B5 D6 | G6 F#6 G6 A6 G6 A6 | B6 G6 G6 G6 - -"
)
# The whistle's second voice to Kesh, below the tune.
KESH_A_SECOND = (
    "B4 - - B4 D5 G5 | F#5 - - F#5 G5 A5 | C6 B5 B5 B5 - B5 | C6 B5 G5 A5 - F#5 |"
    "B4 - - B4 D5 G5 | F#5 - - F#5 G5 A5 | C6 B5 B5 B5 - G5 | F#5 E5 D5 D5 - -"
)
KESH_B_SECOND = (
    "G5 - G5 B5 - B5 | C6 E6 C6 B5 - F#5 | G5 - G5 B5 - D5 | F#5 G5 F#5 F#5 E5 F#5 |"
    "G5 - G5 B5 - B5 | C6 E6 C6 B5 - B5 | E6 D6 E6 F#6 E6 F#6 | G6 B5 B5 B5 - -"
)

# Chords, two a bar.
SWALLOWTAIL_A_CHORDS = "Em Em Em Em D D D D Em Em Em Em Bm D Em Em".split()
SWALLOWTAIL_B_CHORDS = "Em Em Em Em Em Em Bm D Em Em Em Em Bm D Em Em".split()
KESH_A_CHORDS = "G G D D C G Em D G G D D C G D G".split()
KESH_B_CHORDS = "G G C G G G D D G G C G Em D G G".split()

# Each player's notes: the low string and those above it; what is held; root and fifth.
GUITAR = {
    "Em": ("E4", "B4+E5+G5"),
    "D": ("D4", "A4+D5+F#5"),
    "Bm": ("B3", "B4+D5+F#5"),
    "G": ("G3", "B4+D5+G5"),
    "C": ("C4", "G4+C5+E5"),
}
ACCORDION = {
    "Em": "G4+B4+E5",
    "D": "F#4+A4+D5",
    "Bm": "F#4+B4+D5",
    "G": "G4+B4+D5",
    "C": "G4+C5+E5",
}
BASS = {
    "Em": ("E3", "B2"),
    "D": ("D3", "A2"),
    "Bm": ("B2", "F#3"),
    "G": ("G2", "D3"),
    "C": ("C3", "G2"),
}

LILT = (12, -8, 0, 6, -8, 2)  # the jig's long-short-middle, in velocities
PARTS = (
    (0, SWALLOWTAIL_A_CHORDS),
    (1, SWALLOWTAIL_A_CHORDS),
    (2, SWALLOWTAIL_B_CHORDS),
    (3, SWALLOWTAIL_B_CHORDS),
    (4, KESH_A_CHORDS),
    (5, KESH_A_CHORDS),
    (6, KESH_B_CHORDS),
    (7, KESH_B_CHORDS),
    (8, KESH_A_CHORDS),
    (9, KESH_A_CHORDS),
    (10, KESH_B_CHORDS),
    (11, KESH_B_CHORDS),
)
END = len(PARTS) * PART
LENGTH = END + 24


def make():
    song = Song(bpm=97, lines_per_beat=3, length=LENGTH, reverb=2, chorus=0)
    drums = song.track("standard 1")
    fiddle, whistle, accordion, banjo, guitar, bass = (
        song.track(voice)
        for voice in ("Fiddle", "Recorder", "Acordion", "Banjo", "SteelGtr", "Aco.Bass")
    )
    play_tunes(fiddle, whistle, banjo)
    play_chords(guitar, bass, accordion)
    play_drums(drums)
    play_last_chord(fiddle, whistle, accordion, banjo, guitar, bass, drums)
    write_curves(drums, fiddle, whistle, accordion, banjo, guitar, bass)
    for part, name in (
        (0, "Swallowtail A"),
        (2, "Swallowtail B"),
        (4, "Kesh A"),
        (6, "Kesh B"),
        (8, "Kesh with all"),
        (12, "Last chord"),
    ):
        song.bookmark(part * PART, name)
    return song


def play_tunes(fiddle, whistle, banjo):
    def tune(track, part, text, velocity, shift=0):
        track.play(part * PART, text, velocity=velocity, accents=LILT, shift=shift)

    tune(whistle, 0, SWALLOWTAIL_A, (74, 86))
    tune(fiddle, 1, SWALLOWTAIL_A, (78, 88))
    tune(fiddle, 2, SWALLOWTAIL_B, (84, 92))
    tune(fiddle, 3, SWALLOWTAIL_B, (86, 96))
    tune(whistle, 3, SWALLOWTAIL_B, (66, 78))
    for part in (4, 5):
        tune(fiddle, part, KESH_A, (86, 96))
    for part in (6, 7):
        tune(fiddle, part, KESH_B, (90, 98))
    tune(banjo, 5, KESH_A, (72, 84), -12)
    tune(whistle, 7, KESH_B_SECOND, (70, 80))
    for part in (8, 9):
        tune(fiddle, part, KESH_A, (92, 100))
        tune(whistle, part, KESH_A_SECOND, (74, 84))
        tune(banjo, part, KESH_A, (78, 90), -12)
    for part in (10, 11):
        tune(fiddle, part, KESH_B, (94, 106))
        tune(whistle, part, KESH_B_SECOND, (78, 88))
        tune(banjo, part, KESH_B, (82, 96), -12)


def play_chords(guitar, bass, accordion):
    for part, chords in PARTS:
        for half_bar, chord in enumerate(chords):
            line = part * PART + half_bar * 3
            if part >= 1:
                strum(guitar, line, chord, half_bar % 2 == 0, 62 + 2 * part)
            if part >= 2:
                step_bass(bass, line, chord, half_bar % 2, 80 + part)
        if part >= 3:
            accordion.sustain(part * PART, [ACCORDION[chord] for chord in chords], 3, 60 + part)
    # Before the guitar comes in the accordion holds a drone under the whistle.
    accordion.sustain(0, ["E4+B4"] * 2 + ["D4+A4"] * 2 + ["E4+B4"] * 4, BAR, 58)


def strum(guitar, line, chord, strong, velocity):
    """Bass string, then the chord on the beat's last third, which gives the jig its lift."""
    low, high = GUITAR[chord]
    guitar.play(line, f"{low} - -", velocity=velocity + (10 if strong else 2))
    guitar.play(line + 2, high, velocity=velocity - 8)
    if strong and velocity > 70:
        guitar.play(line, f"{high} -", velocity=velocity - 14)


def step_bass(bass, line, chord, fifth, velocity):
    bass.play(line, f"{BASS[chord][fifth]} - .", velocity=velocity - 6 * fifth)


def play_drums(drums):
    for part, _ in PARTS[2:]:
        level = 0.6 + 0.03 * part
        for bar in range(8):
            play_drum_bar(drums, part, bar, level)


def play_drum_bar(drums, part, bar, level):
    line = part * PART + bar * BAR
    last = bar == 7
    drums.beat(line, level=level, bodhran="7.66.5" if not last else "7.6867")
    if part >= 4:
        drums.beat(line, level=level, kick="7.....", tambourine="...6.3")
    if part >= 6:
        drums.beat(line, level=level, stick="...6.." if not last else "...6.6")
    if part >= 8:
        drums.beat(line, level=level, kick="...5..", hat="324324")
    if part >= 8 and bar == 0:
        drums.beat(line, level=level, crash="6")
    if last and part in (7, 9, 11):
        drums.beat(line, level=level, high_tom="...7..", mid_tom="....7.", low_tom=".....8")


def play_last_chord(fiddle, whistle, accordion, banjo, guitar, bass, drums):
    """One long G for everybody, the strings spread over three lines."""
    held = LENGTH - END - 9
    for track, chord, velocity in (
        (fiddle, "G4+D5+B5+G6", 92),
        (whistle, "D6", 78),
        (accordion, "G4+B4+D5+G5", 70),
        (bass, "G2", 92),
    ):
        for place, name in enumerate(chord.split("+")):
            track.play(END, " ".join([name] + ["-"] * (held - 1)), velocity=velocity - 3 * place)
    for place, name in enumerate(("G3", "D4", "G4", "B4", "D5", "G5")):
        guitar.play(
            END + place // 2, " ".join([name] + ["-"] * (held - 1 - place // 2)), velocity=88
        )
    banjo.play(END, "G4+B4 D5 G5 . . .", velocity=(90, 76))
    drums.beat(END, kick="8", crash="6", bodhran="6", low_tom="5")


def write_curves(drums, fiddle, whistle, accordion, banjo, guitar, bass):
    fade = {END: 100, END + 6: 96, LENGTH - 10: 20}
    drums.curve("Reverb", {0: 50}).curve("Volume", {0: 118})
    fiddle.curve("Volume", {0: 92, 6 * PART: 98, **fade}).curve("Pan", {0: 50}).curve(
        "Reverb", {0: 46}
    )
    fiddle.curve("Modulation", {0: 1, 4 * PART: 12, END: 12, END + 9: 50})
    whistle.curve("Volume", {0: 80, PART: 92, **fade}).curve("Reverb", {0: 100, PART: 60})
    # Alone in the middle at first, then to the side that the fiddle leaves free.
    whistle.curve("Pan", {0: 64, PART: 64, 3 * PART: 94})
    accordion.curve("Volume", {0: 36, 3 * BAR: 96, PART: 84, 3 * PART: 80, 8 * PART: 100, **fade})
    accordion.curve("Pan", {0: 78})
    banjo.curve("Volume", {0: 84, 8 * PART: 92}).curve("Pan", {0: 26})
    guitar.curve("Volume", {0: 108, END: 114}).curve("Pan", {0: 42}).curve("Reverb", {0: 36})
    bass.curve("Volume", {0: 106, 8 * PART: 112, **fade}).curve("Reverb", {0: 20})
