"""What became of notes that came in while the editor recorded in real time with the metronome on.

A click goes out when its line ends, and a note is heard when it is written: so the order in which
they left the editor says between which lines each note came, however busy the machine is."""

import midi_log


class Take:
    """Lines count from 0; recording began on line 0."""

    def __init__(self, messages, count_in, lines_per_beat, column):
        """@param messages: (milliseconds, bytes) from before the count-in on
        @param count_in: its beats
        @param column: what stands in the note column, line by line"""
        self.clicks = [time for time, text in messages if text == midi_log.CLICK]
        self.column = column
        heard = []  # after each click
        times = []  # of what did not wait for the end of the count-in
        for time, text in messages:
            if text == midi_log.CLICK:
                heard.append([])
            elif midi_log.is_note(text) and heard:
                heard[-1].append(text)
                if len(heard) > count_in:
                    times.append(time)
        self.count_in = heard[:count_in - 1]
        self.heard = heard[count_in - 1:]
        self.note_ms = median(later - time for time, later in zip(times, times[1:]))
        self.lines_per_beat = lines_per_beat

    def beats(self):
        """For each click of the recording, the notes heard and the notes written before it. The
        first one's line is the first, and waits for what came in while it was counted."""
        for beat, heard in enumerate(self.heard):
            last = beat * self.lines_per_beat
            first = max(last - self.lines_per_beat + 1, 0)
            yield heard, [sounded(entry) for entry in self.column[first:last + 1] if entry]

    def check(self, test):
        """Each note was written in the beat in which it was heard. Notes on one line replace each
        other, the last one stands; the last beat was broken off."""
        test.assertFalse(any(self.count_in), self.count_in)
        beats = list(self.beats())
        for heard, written in beats:
            rest = iter(heard)
            test.assertTrue(all(note in rest for note in written), beats)
        for heard, written in beats[:-1]:
            test.assertEqual(heard[-1:], written[-1:], beats)
        after = self.column[(len(beats) - 1) * self.lines_per_beat + 1:]
        test.assertFalse([entry for entry in after if entry], beats)

    def check_time(self, test, beat_ms):
        """The metronome keeps its time, and notes stand as far apart as they came: on a busy
        machine that may be farther than they were sent."""
        beats = median(later - time for time, later in zip(self.clicks, self.clicks[1:]))
        test.assertLess(abs(beats - beat_ms), beat_ms / 10)
        lines = [line for line, entry in enumerate(self.column) if entry]
        distance = median(later - line for line, later in zip(lines, lines[1:]))
        line_ms = beat_ms / self.lines_per_beat
        test.assertLess(abs(distance * line_ms - self.note_ms), line_ms, lines)


def sounded(entry):
    """A note's entry, as the message that sounds it."""
    return f"{entry[-2:]} {entry[-4:-2]} {entry[:-4]:0>2}".lower()


def median(numbers):
    ordered = sorted(numbers)
    return ordered[len(ordered) // 2]
