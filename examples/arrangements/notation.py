"""Phrases as text.

A phrase is a row of steps with blanks between: a note ("F#5"), a chord ("B4+D5+F#5"), "-" to hold
what sounds one step longer, or "." for a rest. "|" may stand between bars. Octaves are counted as
the editor's cells show them: C5 is note 60, the middle C.
"""

SEMITONES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
ALTERATIONS = {"": 0, "#": 1, "b": -1}


def pitch(name):
    """The note number of "C5", "F#4", "Bb3"."""
    return 12 * int(name[-1]) + SEMITONES[name[0]] + ALTERATIONS[name[1:-1]]


def parse(text):
    """The notes of a phrase as [(step, steps held, note numbers)], and the number of its steps."""
    events = []
    step = 0
    for token in text.replace("|", " ").split():
        if token == "-":
            begin, held, notes = events[-1]
            events[-1] = (begin, held + 1, notes)
        elif token != ".":
            events.append((step, 1, [pitch(name) for name in token.split("+")]))
        step += 1
    return events, step
