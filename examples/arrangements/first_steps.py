"""The Ode to Joy in four bars: a tune, a second voice, a bass and a beat. Ludwig van Beethoven."""

from arrangements.song import Song

TUNE = "E5 - E5 - F5 - G5 - | G5 - F5 - E5 - D5 - | C5 - C5 - D5 - E5 - | D5 - - C5 C5 - - ."
SECOND = "C5 - - - D5 - E5 - | E5 - D5 - C5 - B4 - | G4 - - - B4 - C5 - | B4 - - G4 E4 - - ."
BASS = "C3 - G3 - C4 - G3 - | C4 - B3 - A3 - G3 - | E3 - G3 - G3 - C3 - | G3 - G2 - C3 - - ."


def make():
    song = Song(bpm=120, lines_per_beat=2, length=32)
    drums, piano, bass = song.track("standard 1"), song.track("GrandPno"), song.track("FngrBass")

    piano.play(0, TUNE, velocity=100, accents=(8, 0, 0, 0, 4, 0, 0, 0))
    piano.play(0, SECOND, velocity=70)
    bass.play(0, BASS, velocity=92, accents=(8, 0, 0, 0))
    for line in (0, 8, 16):
        drums.beat(line, kick="8...7...", snare="..6...6.", hat="53535354")
    drums.beat(24, kick="8..58...", snare="..6.....", hat="5353....", crash="....6...")
    bass.curve("Volume", 100)
    song.bookmark(16, "Second half")
    return song
