"""The coda and the ending."""

from arrangements.mountain_king.themes import (
    ACCENTS,
    BRASS,
    CODA,
    EIGHTHS,
    FASTEST,
    FINAL,
    HORNS,
    HUSH,
    LAST_CHORDS,
    POWER,
    ROOT_AND_FIFTH,
    THEME,
    roll,
)


def play_coda(band):
    """Runs against blows, a chromatic climb of chords, a long dominant with rolls."""
    unit, bar = FASTEST, EIGHTHS * FASTEST
    run(band, CODA, "B3 C#4 D4 E4 F#4 D4 F#4 -", 96)
    blows(band, CODA + bar, "Bm . . .".split())
    run(band, CODA + 2 * bar, "F4 C#4 F4 - E4 C4 E4 -", 98)
    blows(band, CODA + 3 * bar, "C . F# .".split())
    for k, (text, chords) in enumerate(
        (
            ("B3 C#4 D4 - B3 C#4 D4 -", ". Bm . Bm"),
            ("D4 E4 F#4 - D4 E4 F#4 -", ". D . D"),
            ("E4 F#4 G4 - E4 F#4 G4 -", ". C . C"),
            ("F#4 G#4 A#4 - F#4 G#4 A#4 -", ". F# . F#+"),
        )
    ):
        run(band, CODA + (4 + k) * bar, text, 98 + 2 * k)
        blows(band, CODA + (4 + k) * bar, chords.split(), stroke="6")
    climb(band, CODA + 8 * bar)
    dominant(band, CODA + 10 * bar)
    blows(band, CODA + 12 * bar, "F# . . .".split())


def run(band, line, text, velocity):
    """A bar of all who can run, in four octaves."""
    for track, shift in (
        (band.strings, 24),
        (band.strings, 12),
        (band.clarinet, 24),
        (band.pizzicato, 12),
        (band.bassoon, 0),
        (band.guitar, 0),
        (band.bass, -12),
    ):
        track.play(line, text, FASTEST, velocity, 1, ACCENTS, shift)
    band.drums.beat(line, FASTEST, kick="8...8...", hat="7.7.7.7.", snare="..6...7.")


def blows(band, line, chords, stroke="9"):
    """Short chords of the brass, horns, guitar and timpani, one a quarter note."""
    for beat, chord in enumerate(chords):
        if chord == ".":
            continue
        at = line + beat * 2 * FASTEST
        root = ROOT_AND_FIFTH[chord][0]
        band.brass.play(at, BRASS[chord], 3, 104)
        band.horns.play(at, HORNS[chord], 3, 98)
        band.timpani.play(at, "B3" if root == "B2" else "F#3", 3, 108)
        if stroke == "9":  # nobody runs meanwhile
            band.guitar.play(at, POWER[chord], 3, 106)
            band.bass.play(at, root, 3, 108)
            band.strings.play(at, BRASS[chord], 3, 100, shift=12)
        band.drums.beat(at, kick=stroke, snare=stroke, crash=stroke)


def climb(band, line):
    """Eight chords, each a semitone above the last, from B minor to F sharp."""
    for step in range(8):
        at = line + step * 2 * FASTEST
        loud = 88 + 3 * step
        third = "D5" if step == 0 else "D#5"  # minor to begin with, then major
        band.brass.play(at, f"B4+{third}+F#5", 3, loud, shift=step)
        band.horns.play(at, f"F#4+B4+{third}", 3, loud - 8, shift=step)
        band.strings.play(at, f"B5+{third[:-1]}6+F#6", 4, loud - 4, shift=step)
        band.guitar.play(at, "B3+F#4", 3, loud, shift=step)
        band.bass.play(at, "B2", 3, loud + 4, shift=step)
        band.drums.beat(at, FASTEST, level=0.8 + 0.02 * step, kick="8.", snare="87", low_tom=".6")
    roll(band.timpani, line, 32, 2, "F#3", (60, 100))


def dominant(band, line):
    """Two bars of F sharp seven: strings tremble, drums roll, the guitar is bent up from E."""
    lines = 4 * EIGHTHS
    for note in ("F#5", "A#5", "E6"):
        roll(band.strings, line, lines, 1, note, (78, 108))
    band.horns.play(line, "F#4+A#4+E5", lines, 100)
    band.brass.play(line, "A#4+C#5+E5+A#5", lines, 96)
    band.guitar.play(line, "E3+B3+E4", lines, 108)
    roll(band.bass, line, lines, 2, "F#2", (92, 112))
    roll(band.timpani, line, lines, 1, "F#3", (70, 116))
    band.drums.beat(line, crash="8")
    band.drums.beat(
        line,
        snare="4.4.4.4.5.5.5.5.6565656576767788",
        kick="8...8...8...8...8...8...8.8.8.8.",
        level=0.95,
    )


def play_ending(band):
    """One more time on tiptoe, then the door slams."""
    band.pizzicato.play(HUSH, THEME.split("|")[0], 3, (56, 46), 0.5, ACCENTS, shift=-12)
    band.bassoon.play(HUSH, THEME.split("|")[0], 3, (50, 40), 0.5, ACCENTS)
    blows(band, LAST_CHORDS, "Bm . F# .".split())
    blows(band, LAST_CHORDS + EIGHTHS * FASTEST, "Bm . . .".split())
    band.timpani.play(LAST_CHORDS + EIGHTHS * FASTEST + 6, "B3 B3 F#3 F#3 B3", 2, (90, 112))
    band.drums.beat(LAST_CHORDS + EIGHTHS * FASTEST + 8, snare="7.7.8.8.", low_tom="....8.9.")
    held = 40
    for track, chord, velocity in (
        (band.brass, BRASS["Bm"], 110),
        (band.horns, HORNS["Bm"], 104),
        (band.guitar, "B3+F#4+B4", 112),
        (band.strings, "B5+D6+F#6+B6", 104),
        (band.bass, "B2", 112),
        (band.clarinet, "B6", 96),
        (band.bassoon, "B3", 96),
        (band.pizzicato, "B3+B4", 110),
    ):
        track.play(FINAL, chord, held, velocity)
    roll(band.timpani, FINAL, held, 1, "B3", (112, 70))
    band.drums.beat(FINAL, kick="9", snare="9", crash="9", china="9")
