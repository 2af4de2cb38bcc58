"""What is done to the notes once they are there."""

import day_score as score
from day_bench import DayBench

MIDDLE = (128, 254, 128)
KEY_RED, BLACK = (255, 0, 0), (0, 0, 0)


class Editing(DayBench):
    def a_volume_curve(self):
        window = self.window
        window.press(window.setting_cell(2, "Volume", "Active"))
        self.wait_to_see(lambda: window.settings(2, "Active"), ["yes", "yes"] + 9 * ["no"])
        self.set_start_value(2, "Volume", "100")
        self.wait_to_see(lambda: window.column(2, 9, 32), dict.fromkeys(range(32), "100"))
        window.key("Home", *["Down"] * 16)
        self.wait_for_status(line="Line 16 of 32   Beat 5", cell="Track 2 Volume: 100")
        window.type("5")
        window.key("Return")
        window.dismiss("error", "Invalid value (0-127)")
        self.wait_to_see(lambda: window.cell(2, 9, 16).name(), "100")
        # Each entry leaves the cursor at the end of what it has changed.
        window.main().key("Home", *["Down"] * 16)
        self.type_value("100", "20")
        self.wait_to_see(window.cell(2, 9, 31).name, "20")
        window.main().key("Home", "End")
        self.type_value("20", "64")
        self.wait_to_see(lambda: window.column(2, 9, 32),
                         {line: str(value) for line, value in enumerate(score.VOLUME)})
        self.see_colour(2, 9, 16, KEY_RED)
        self.see_colour(2, 9, 17, BLACK)
        self.expect_silence()

    def set_start_value(self, track, effect, value):
        window = self.window
        window.press(window.setting_cell(track, effect, "Start value"))
        window.answer("effect start value", value)
        self.wait_to_see(window.setting_cell(track, effect, "Start value").name, value)

    def type_value(self, former, value):
        """Types over what stands in the effect cell under the cursor."""
        self.window.key(*["BackSpace"] * len(former))
        self.window.type(value)
        self.window.key("Return")

    def more_reverb_for_the_drums(self):
        self.window.press(self.window.setting_cell(1, "Reverb", "Active"))
        self.set_start_value(1, "Reverb", str(score.DRUM_REVERB))
        self.assertEqual(self.window.settings(1, "Start value")[1:],
                         ["127", "64", "1", "64", "90", "1", "1", "64", "64", "64"])

    def a_copy_an_octave_higher(self):
        window = self.window
        window.select(1, 1, line=0, lines=8)
        window.press(window.cell(1, 1, 7), button=3)
        window.press(window.node("menu item", "Copy"))
        window.go_to(3, 2, 16)
        window.choose("Edit", "Paste")
        self.wait_to_see(lambda: window.column(3, 2, 32), {16: "C  3", 20: "F#3"})
        window.select(3, 2, line=16, lines=8)
        window.choose("Edit", "Selected notes", "Transpose")
        window.answer("Transpose", "12")
        self.wait_to_see(lambda: window.column(3, 2, 32),
                         {line: name for line, (name, _) in score.PASTED.items()})

    def softer_notes(self):
        window = self.window
        window.select(3, 2, line=16, lines=8)
        window.choose("Edit", "Selected notes", "Velocity: fixed value")
        window.answer("Velocity", "64")
        self.see_colour(3, 2, 16, MIDDLE)

    def a_bookmark(self):
        window = self.window
        window.go_to(1, 1, 16)
        window.press(window.node("push button", "Image1"))
        window.answer("Add a bookmark", "Chorus")
        window.key("Home")
        self.wait_for_status(line="Line 0 of 32   Beat 1")
        window.press(window.node("combo box", "bookmark"))
        window.press(window.node("list item", "Chorus"))
        self.wait_for_status(line="Line 16 of 32   Beat 5")
