"""The horn call and the three verses."""

from arrangements.mountain_king.themes import (
    ACCENTS,
    ANSWER,
    ANSWER_CHORDS,
    BRASS,
    CLOSING_CHORDS,
    EIGHTHS,
    FASTER,
    FASTEST,
    HORNS,
    POWER,
    ROOT_AND_FIFTH,
    SLOW,
    THEME,
    THEME_CHORDS,
    THEME_CLOSING,
    VERSE_1,
    VERSE_2,
    VERSE_3,
    roll,
)


def play_opening(band):
    band.horns.play(0, "F#3+F#4" + " -" * 7, unit=SLOW, velocity=80)


def play_verse_1(band):
    """Basses on tiptoe, a bassoon answers, both together."""
    unit, phrase = SLOW, 4 * EIGHTHS * SLOW
    line = VERSE_1
    band.pizzicato.play(line, THEME, unit, (58, 66), 0.5, ACCENTS)
    band.pizzicato.play(line, THEME, unit, (50, 56), 0.5, ACCENTS, shift=-12)
    line += phrase
    band.bassoon.play(line, ANSWER, unit, (70, 80), 0.5, ACCENTS, shift=-12)
    band.pizzicato.play(
        line, "F#3 . C#3 . F#3 . C#3 . | F#3 . D3 . C#3 . F#2 . |" * 2, unit, 54, 0.5
    )
    line += phrase
    band.bassoon.play(line, THEME_CLOSING, unit, (66, 76), 0.5, ACCENTS)
    band.pizzicato.play(line, THEME_CLOSING, unit, (62, 72), 0.5, ACCENTS, shift=-12)
    band.strings.sustain(line, ["F#5+B5"] * 4, EIGHTHS * unit, (40, 52))
    for bar in range(4):
        band.timpani.play(line + bar * EIGHTHS * unit, "B3 . . . F#3 . . .", unit, 50 + 4 * bar)
        band.drums.beat(line + bar * EIGHTHS * unit, unit, rim="..3...3.")
    roll(band.timpani, VERSE_2 - 16, 16, 2, "F#3", (36, 80))


def play_verse_2(band):
    """Strings and clarinet take the theme up; horns answer each beat of the basses."""
    unit, phrase = FASTER, 4 * EIGHTHS * FASTER
    texts = (THEME, ANSWER, THEME_CLOSING)
    for part, (text, chords) in enumerate(
        zip(texts, (THEME_CHORDS, ANSWER_CHORDS, CLOSING_CHORDS))
    ):
        line = VERSE_2 + part * phrase
        loud = 70 + 7 * part
        band.strings.play(line, text, unit, (loud, loud + 8), 0.67, ACCENTS, shift=12)
        band.clarinet.play(
            line, text, unit, (loud - 4, loud + 4), 0.67, ACCENTS, shift=24 - 12 * (part == 1)
        )
        for half_bar, chord in enumerate(chords):
            oom_pah(band, line + half_bar * 4 * unit, unit, chord, half_bar % 2, loud)
        for bar in range(4):
            bar_line = line + bar * EIGHTHS * unit
            drum_bar_2(band.drums, bar_line, unit, part, bar)
            band.timpani.play(bar_line, "B3" if part != 1 else "F#3", unit, loud)
    roll(band.timpani, VERSE_3 - 12, 12, 1, "F#3", (50, 104))


def oom_pah(band, line, unit, chord, second_half, loud):
    root, fifth = ROOT_AND_FIFTH[chord]
    low = fifth if second_half and chord in ("Bm", "D", "F#") else root
    band.bass.play(line, f"{low} - . .", unit, loud + 8, 0.8)
    band.bassoon.play(line, f"{low} . . .", unit, loud - 8, 0.67, shift=12)
    band.horns.play(line + 2 * unit, HORNS[chord] + " .", unit, loud - 14, 0.67)


def drum_bar_2(drums, line, unit, part, bar):
    if part == 2 and bar == 3:
        drums.beat(line, unit, kick="8...8...", snare="..6.6677", low_tom=".......8")
    elif part == 2:
        drums.beat(line, unit, kick="7...6...", snare="..6...6.", hat="43434343")
    else:
        drums.beat(line, unit, kick="6...5...", stick="..5...5.", hat="4.3.4.3.")


def play_verse_3(band):
    """Everybody, at a run: six phrases, each louder than the one before."""
    unit, phrase = FASTEST, 4 * EIGHTHS * FASTEST
    texts = (THEME, THEME_CLOSING, ANSWER, ANSWER, THEME, THEME_CLOSING)
    for part, text in enumerate(texts):
        line = VERSE_3 + part * phrase
        chords = (
            ANSWER_CHORDS if text == ANSWER else THEME_CHORDS if text == THEME else CLOSING_CHORDS
        )
        play_theme_3(band, line, unit, part, text)
        for half_bar, chord in enumerate(chords):
            chase(band, line + half_bar * 4 * unit, unit, part, chord, half_bar)
        for bar in range(4):
            drum_bar_3(band.drums, line + bar * EIGHTHS * unit, unit, part, bar)


def play_theme_3(band, line, unit, part, text):
    loud = 80 + 4 * part
    band.strings.play(
        line, text, unit, (loud, loud + 4), 1, ACCENTS, shift=24 - 12 * (part in (2, 3))
    )
    band.clarinet.play(line, text, unit, loud - 2, 1, ACCENTS, shift=24)
    band.pizzicato.play(line, text, unit, loud + 4, 1, ACCENTS, shift=12)
    if part >= 2:
        band.brass.play(line, text, unit, loud, 1, ACCENTS, shift=12 if part > 3 else 0)
    if part >= 4:
        band.guitar.play(line, text, unit, loud + 2, 1, ACCENTS)


def chase(band, line, unit, part, chord, half_bar):
    """Half a bar of pumping bass, chugging guitar, horns off the beat, and brass stabs."""
    loud = 82 + 4 * part
    root = ROOT_AND_FIFTH[chord][0]
    band.bass.play(line, f"{root} {root} {root} {root}", unit, loud, 1, (10, -6, 0, -6))
    band.bassoon.play(line, f"{root} - {root} -", unit, loud - 6, 0.5, shift=12)
    band.horns.play(line, f". {HORNS[chord]} . {HORNS[chord]}", unit, loud - 14, 1)
    band.timpani.play(line, "F#3 ." if half_bar % 2 or root == "F#2" else "B3 .", unit, loud)
    if part < 4:
        chug = POWER[chord]
        band.guitar.play(
            line, f"{chug} {chug} {chug} {chug}", unit, loud - 12, 0.5, (14, -8, 2, -8)
        )
    if part < 2 and half_bar % 4 == 0:
        band.brass.play(line, BRASS[chord] + " . . .", unit, loud, 1)


def drum_bar_3(drums, line, unit, part, bar):
    fill = bar == 3 and part % 2
    if fill:
        drums.beat(
            line,
            unit,
            kick="9...8.8.",
            snare="..887...",
            high_tom=".....8..",
            mid_tom="......8.",
            low_tom=".......9",
        )
    elif part < 4:
        drums.beat(line, unit, kick="8..7....", snare="....8...", hat="6.4.6.4.")
    else:
        drums.beat(line, unit, kick="8...8...", snare="..8...8.", hat="6.6.6.6.")
    if bar == 0:
        drums.beat(line, unit, **{"china" if part == 4 else "crash": "8"})
