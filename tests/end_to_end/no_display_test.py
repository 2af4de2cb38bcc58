"""The built editor where it cannot open a window.

usage: no_display_test.py LUNAVOX"""

import os
import subprocess
import sys
import tempfile
import unittest

LUNAVOX = None


class NoDisplay(unittest.TestCase):
    def test_the_editor_says_so_in_one_line(self):
        for display in ({}, {"DISPLAY": ":4711"}):
            with self.subTest(display), tempfile.TemporaryDirectory() as home:
                others = {name: value for name, value in os.environ.items()
                          if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
                ended = subprocess.run([LUNAVOX], env={**others, "HOME": home, **display},
                                       capture_output=True, text=True, check=False, timeout=60)
                self.assertEqual(ended.returncode, 1, ended.stderr)
                self.assertEqual(ended.stderr, "lunavox: there is no display for the window; "
                                               "lunavox --help tells what needs none\n")


if __name__ == "__main__":
    LUNAVOX = sys.argv.pop(1)
    unittest.main()
