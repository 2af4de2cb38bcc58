"""The curves of all ten tracks."""

from arrangements.mountain_king.themes import (
    CODA,
    EIGHTHS,
    FASTEST,
    FINAL,
    HUSH,
    SLOW,
    VERSE_1,
    VERSE_2,
    VERSE_3,
)


def write_curves(band):
    """Volumes climb from verse to verse; the far hall of the opening comes near."""
    bar3 = EIGHTHS * FASTEST
    rolls, pause = CODA + 10 * bar3, CODA + 12 * bar3
    end = FINAL + 40
    band.drums.curve("Volume", {0: 70, VERSE_2: 74, VERSE_3: 84, CODA: 90})
    band.drums.curve("Reverb", {0: 90, VERSE_2: 70, VERSE_3: 34, pause: 34, HUSH: 60})
    band.pizzicato.curve("Volume", {0: 100, VERSE_2: 112, VERSE_3: 96})
    band.pizzicato.curve("Reverb", {0: 100, VERSE_2: 60, VERSE_3: 30, pause: 30, HUSH: 110})
    band.pizzicato.curve("Pan", {0: 44})
    band.bassoon.curve("Volume", {0: 124, VERSE_2: 104, VERSE_3: 84}).curve("Pan", {0: 84})
    band.bassoon.curve("Reverb", {0: 90, VERSE_2: 56})
    band.clarinet.curve("Volume", {0: 78, VERSE_2: 78, VERSE_3: 88})
    # The clarinet runs through the hall from wall to wall.
    sweep = (VERSE_3 - VERSE_2) // 6
    band.clarinet.curve(
        "Pan",
        {
            0: 64,
            VERSE_2: 64,
            VERSE_2 + sweep: 14,
            VERSE_2 + 3 * sweep: 114,
            VERSE_2 + 5 * sweep: 14,
            VERSE_3: 90,
        },
    )
    band.strings.curve(
        "Volume",
        {
            0: 1,
            VERSE_2 - 4 * EIGHTHS * SLOW: 1,
            VERSE_2 - 1: 56,
            VERSE_2: 62,
            VERSE_3: 66,
            CODA: 74,
            rolls: 46,
            pause: 62,
            FINAL: 66,
            FINAL + 20: 66,
            end: 36,
        },
    )
    band.strings.curve("Pan", {0: 48}).curve("Chorus", {0: 20, VERSE_3: 20, CODA: 60})
    band.strings.curve("Reverb", {0: 80, VERSE_3: 50})
    band.horns.curve(
        "Volume",
        {
            0: 40,
            VERSE_1 - 12: 84,
            VERSE_1: 30,
            VERSE_2: 80,
            VERSE_3: 90,
            rolls: 90,
            pause: 112,
            FINAL: 104,
            end: 50,
        },
    )
    band.horns.curve("Pan", {0: 78}).curve("Reverb", {0: 110, VERSE_2: 70})
    band.brass.curve(
        "Volume", {0: 116, VERSE_3: 116, CODA: 124, rolls: 84, pause: 122, FINAL: 122, end: 64}
    )
    band.brass.curve("Pan", {0: 72}).curve("Modulation", {0: 1, FINAL: 1, end: 60})
    band.guitar.curve(
        "Volume", {0: 108, VERSE_3: 108, CODA: 118, rolls: 104, pause: 122, FINAL: 118, end: 76}
    )
    band.guitar.curve("Pan", {0: 34}).curve("Brightness", {0: 40, VERSE_3: 40, CODA: 84})
    # Up a tone through the long dominant, back for the blow; a dive under the last chord.
    band.guitar.curve(
        "Pitch",
        {
            0: 64,
            rolls: 64,
            rolls + 8: 64,
            pause - 2: 127,
            pause - 1: 127,
            pause: 64,
            FINAL + 16: 64,
            end: 1,
        },
    )
    band.guitar.show("Pitch")
    band.guitar.curve(
        "Modulation", {0: 1, rolls: 1, pause - 1: 90, pause: 1, FINAL: 20, FINAL + 16: 90}
    )
    band.bass.curve("Volume", {0: 90, VERSE_3: 104}).curve("Reverb", {0: 14})
    band.timpani.curve("Volume", {0: 84, VERSE_3: 88, CODA: 96}).curve(
        "Reverb", {0: 90, VERSE_3: 50}
    )
