"""In the Hall of the Mountain King, from Peer Gynt, op. 46 no. 4. Edvard Grieg.

The tempo of a song stands still, but this piece has to run away. So an eighth note takes four lines
in the first verse, three in the second and two in the third; a bar starts on a beat line in each.
"""

from arrangements.mountain_king.coda import play_coda, play_ending
from arrangements.mountain_king.curves import write_curves
from arrangements.mountain_king.themes import (
    Band,
    CODA,
    EIGHTHS,
    FASTEST,
    FINAL,
    HUSH,
    LENGTH,
    VERSE_1,
    VERSE_2,
    VERSE_3,
)
from arrangements.mountain_king.verses import play_opening, play_verse_1, play_verse_2, play_verse_3
from arrangements.song import Song


def make():
    song = Song(bpm=138, lines_per_beat=8, length=LENGTH, reverb=1, chorus=2)
    band = Band(song)
    play_opening(band)
    play_verse_1(band)
    play_verse_2(band)
    play_verse_3(band)
    play_coda(band)
    play_ending(band)
    write_curves(band)
    for line, name in (
        (0, "Horn call"),
        (VERSE_1, "Tiptoe"),
        (VERSE_2, "The trolls stir"),
        (VERSE_3, "Chase"),
        (CODA - 4 * EIGHTHS * FASTEST * 2, "Full flight"),
        (CODA, "Coda"),
        (HUSH, "Hush"),
        (FINAL, "Last chord"),
    ):
        song.bookmark(line, name)
    return song
