#!/usr/bin/env python3
"""Writes the example songs beside this file from their arrangements.

Each module in arrangements/ is the source of one song: its notes, drums, dynamics and curves as
readable text. Change one there, run this, and open the .lvx in the editor.

    python3 make_songs.py            write all songs
    python3 make_songs.py --check    compare with the files that are there; status 1 on a difference
"""

import sys
from pathlib import Path

from arrangements import first_steps, mountain_king, prelude_in_c, two_jigs

SONGS = {
    "first-steps.lvx": first_steps,
    "mountain-king.lvx": mountain_king,
    "prelude-in-c.lvx": prelude_in_c,
    "two-jigs.lvx": two_jigs,
}


def main(arguments):
    folder = Path(__file__).parent
    songs = {folder / name: module.make().file_bytes() for name, module in SONGS.items()}
    if arguments == ["--check"]:
        stale = [
            path.name
            for path, song in songs.items()
            if not path.exists() or path.read_bytes() != song
        ]
        for name in stale:
            print(f"{name} differs from its arrangement", file=sys.stderr)
        return 1 if stale else 0
    if arguments:
        print(__doc__, file=sys.stderr)
        return 2
    for path, song in songs.items():
        path.write_bytes(song)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
