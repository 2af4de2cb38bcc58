"""The song of the day: what its file, its export and its playing must hold."""

from midi_log import CHANNEL_RESET, XG_SET_UP

LINES = 32
CHANNELS = {1: 9, 2: 0, 3: 1}
PROGRAMS = {1: 32, 2: 5, 3: 33}  # jazz, DX Hard and FngrBass
BANKS = {1: 0, 2: 33, 3: 0}

# Played on three nations' keyboards: place of the key on an American one, note, name, entry.
DRUMS = [("z", 36, "C  3", "7F2499"), ("g", 42, "F#3", "7F2A99"), ("x", 38, "D  3", "7F2699"),
         (";", 51, "D#4", "7F3399"), ("z", 36, "C  3", "7F2499"), ("m", 47, "B  3", "7F2F99"),
         ("x", 38, "D  3", "7F2699"), ("q", 48, "C  4", "7F3099")]
MELODY = [("q", 48, "C  4", "7F3090"), ("w", 50, "D  4", "7F3290"), ("e", 52, "E  4", "7F3490"),
          ("y", 57, "A  4", "7F3990"), ("]", 66, "F#5", "7F4290"), ("[", 67, "G  5", "7F4390"),
          ("m", 47, "B  3", "7F2F90"), ("z", 36, "C  3", "7F2490")]
BASS = [("q", 36, "C  3", "7F2491"), ("2", 37, "C#3", "7F2591"), ("w", 38, "D  3", "7F2691"),
        ("y", 45, "A  3", "7F2D91"), ("z", 24, "C  2", "7F1891"), ("/", 38, "D  3", "7F2691"),
        ("]", 53, "F  4", "7F3591"), ("m", 35, "B  2", "7F2391")]
STOP_LINE = 31
# The first two drums on the bass's channel, an octave higher and softer.
PASTED = {16: ("C  4", "403091"), 20: ("F#4", "403691")}

VOLUME = [100, 95, 90, 85, 80, 75, 70, 65, 60, 55, 50, 45, 40, 35, 30, 25,
          20, 23, 26, 29, 32, 35, 38, 41, 43, 46, 49, 52, 55, 58, 61, 64]
DRUM_REVERB = 90

VOICES = {track: [f"b{channel:x} 00 {127 if track == 1 else 0:02x}",
                  f"b{channel:x} 20 {BANKS[track]:02x}", f"c{channel:x} {PROGRAMS[track]:02x}",
                  f"9{channel:x} 30 00"]
          for track, channel in CHANNELS.items()}


def written_notes(recorded):
    """All entries: (track, column, line) -> text.

    @param recorded: what came in from outside, line by line"""
    notes = {(track, 1, 4 * beat): entry
             for track, tune in enumerate((DRUMS, MELODY, BASS), 1)
             for beat, (_, _, _, entry) in enumerate(tune)}
    notes[2, 1, STOP_LINE] = "stop"
    notes.update({(3, 2, line): entry for line, (_, entry) in PASTED.items()})
    notes.update({(2, 2, line): entry for line, entry in enumerate(recorded) if entry})
    return notes


def controllers(track, line):
    """The active curves of a track on a line."""
    if track == 1:
        return [f"b9 5b {DRUM_REVERB:02x}"]
    return [f"b0 07 {VOLUME[line]:02x}"] if track == 2 else []


def note_messages(track, line, notes, sounding):
    """What a line's note columns send; `sounding` holds how to silence what they play."""
    for column in range(1, 9):
        entry = notes.get((track, column, line), "")
        if entry and (track, column) in sounding:
            yield sounding.pop((track, column))
        if entry not in ("", "stop"):
            status, note = f"{entry[-2:]}", entry[-4:-2].lower()
            yield f"{status} {note} {entry[:-4].lower():0>2}"
            sounding[track, column] = f"{status} {note} 00"


def played(notes):
    """All messages of the song, from its first line to the reset at its end."""
    messages, sounding = [], {}
    for line in range(LINES):
        for track in CHANNELS:
            messages += controllers(track, line)
            messages += note_messages(track, line, notes, sounding)
    messages += [sounding[place] for place in sorted(sounding)]
    return messages + [text.format(f"{channel:x}") for channel in range(15)
                       for text in CHANNEL_RESET]


def exported(track, notes):
    """The events of a track's chunk: (delta, bytes)."""
    channel = CHANNELS[track]
    events = [(0, "ff 51 03 07 a1 20")]  # 500,000 microseconds a beat
    events += [(0, text) for text in VOICES[track][:3]]
    set_up = [text.replace("f0", "f0 08", 1) for text in XG_SET_UP]
    effects = [f"f0 09 43 10 4c 02 01 {code} f7" for code in ("00 01 00", "20 41 00", "40 05 00")]
    events += [(0, text) for text in set_up + effects]
    sounding = {}
    for line in range(LINES - 1):  # the last one is not exported
        line_events = controllers(track, line) or [f"b{channel:x} 07 7f"]
        line_events += note_messages(track, line, notes, sounding)
        events += [(0 if place else 1, text) for place, text in enumerate(line_events)]
    events += [(0 if place else 1, sounding[key]) for place, key in enumerate(sorted(sounding))]
    return events + [(0, "ff 2f 00")]
