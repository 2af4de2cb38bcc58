"""The built editor in its window for some minutes: songs are opened, played, stopped, saved and left
for new ones, over and over. What the process holds must stay flat, and no note may be left sounding.

usage: soak_test.py LUNAVOX SONG"""

import os
import shutil
import statistics
import sys
import time
import unittest

import editor
import midi_log

LUNAVOX = None
SONG = None
MINUTES = float(os.environ.get("LUNAVOX_SOAK_MINUTES", "4"))
NOTES_OF_A_ROUND = 6
RESIDENT_ALLOWANCE_KB = 4096
FEWEST_ROUNDS = 12

# Has the address sanitizer give back what was freed, and forget where.
GIVING_BACK = ["quarantine_size_mb=0", "thread_local_quarantine_size_kb=0",
               "allocator_release_to_os_interval_ms=200", "malloc_context_size=1"]


class Soak(unittest.TestCase):
    def setUp(self):
        stage = editor.stage()
        self.server, self.home = stage.__enter__()
        self.addCleanup(stage.__exit__, None, None, None)
        options = [self.server.environment.get("ASAN_OPTIONS"), *GIVING_BACK]
        self.server.environment["ASAN_OPTIONS"] = ":".join(filter(None, options))
        self.song = f"{self.home}/song.lvx"
        shutil.copy(SONG, self.song)

    def test_holds_no_more_after_minutes_and_leaves_no_note(self):
        window = editor.Editor(self.server, LUNAVOX, self.home, "--input", "virtual",
                               "--output", self.server.monitor().PORT).ready()
        held = []
        end = time.monotonic() + 60 * MINUTES
        while time.monotonic() < end or len(held) < FEWEST_ROUNDS:
            self.play_a_round(window, stops_by_button=len(held) % 2 == 0)
            held.append(holdings(window.process.process.pid))
        window.quit()
        print(len(held), "rounds,", len(window.notes()), "notes;", held[len(held) // 4], "at first,",
              held[-1], "at last")
        self.assertEqual(left_sounding(window.sent()), [])
        for name in ("threads", "files"):
            self.assertEqual(middle(held, name, 1), middle(held, name, 3), held)
        grown_kb = middle(held, "resident_kb", 3) - middle(held, "resident_kb", 1)
        self.assertLess(grown_kb, RESIDENT_ALLOWANCE_KB, held)

    def play_a_round(self, window, stops_by_button):
        window.open(self.song)
        earlier = len(window.notes())
        window.key("Home", "Control_L")
        window.wait_for_notes(earlier + NOTES_OF_A_ROUND)
        if stops_by_button:
            window.click(editor.PLAY_BUTTON)
        # Saving stops what plays, too.
        window.save_as(f"{self.home}/saved.lvx")
        window.file_command("New")
        window.main()


def holdings(process):
    """What a process holds of what there is only so much of."""
    with open(f"/proc/{process}/status", encoding="ascii") as status:
        lines = dict(line.split(":", 1) for line in status)
    return {"resident_kb": int(lines["VmRSS"].split()[0]), "threads": int(lines["Threads"]),
            "files": len(os.listdir(f"/proc/{process}/fd"))}


def middle(held, name, quarter):
    """The middle of the readings in a quarter of the time, 0 for the first."""
    first, last = len(held) * quarter // 4, len(held) * (quarter + 1) // 4
    return statistics.median_low(reading[name] for reading in held[first:last])


def left_sounding(messages):
    """The notes that have not ended by themselves when the channels are reset, or at the end."""
    sounding, left = [], []
    for time_ms, text in messages:
        note = (text[1], text[3:5])
        if midi_log.is_note(text):
            sounding.append((note, time_ms))
        elif text[0] in "89":
            sounding = [(other, since) for other, since in sounding if other != note]
        elif text == "b0 78 00":
            left += sounding
            sounding = []
    return left + sounding


class Checking(unittest.TestCase):
    """That the soak would see what it looks for."""

    def test_a_note_that_only_the_reset_silences_is_left(self):
        self.assertEqual(left_sounding([(1, "90 3c 64"), (2, "90 3d 00"), (3, "b0 78 00")]),
                         [(("0", "3c"), 1)])
        self.assertEqual(left_sounding([(1, "90 3c 64"), (2, "90 3c 00"), (3, "b0 78 00")]), [])

    def test_a_note_at_the_end_is_left(self):
        self.assertEqual(left_sounding([(1, "99 24 64")]), [(("9", "24"), 1)])

    def test_the_middle_of_a_quarter(self):
        held = [{"files": count} for count in (9, 9, 1, 2, 3, 4, 5, 7)]
        self.assertEqual((middle(held, "files", 1), middle(held, "files", 3)), (1, 5))


if __name__ == "__main__":
    if editor.missing_tools():
        print("not installed:", *editor.missing_tools())
        sys.exit(77)  # skipped
    LUNAVOX, SONG = sys.argv.pop(1), sys.argv.pop(1)
    unittest.main()
