"""What left the editor, by the log that --midi-log writes, as the bytes that stand on the wire in
hexadecimal: "90 3c 64"."""

import contextlib

CLICK = "99 25 60"  # of the metronome
CHANNEL_RESET = ["b{0} 78 00", "b{0} 7b 00", "b{0} 07 7f", "b{0} 0a 40", "b{0} 01 01", "b{0} 4a 40",
                 "b{0} 5b 28", "b{0} 5d 01", "b{0} 5e 01", "b{0} 49 40", "b{0} 48 40"]
RESET = [text.format(f"{channel:x}") for channel in range(15) for text in CHANNEL_RESET]
# What a port sends of its own when it is reset, which is not in the log.
PORT_RESET = [text.format(f"{channel:x}") for channel in range(16) for text in CHANNEL_RESET[:2]]
XG_SET_UP = ["f0 43 10 4c 00 00 7e 00 f7", "f0 43 10 4c 02 01 58 40 f7",
             "f0 43 10 4c 02 01 59 40 f7", "f0 43 10 4c 02 01 5a 01 f7"]


def wire_text(packed):
    """The bytes of a packed message; none without a status byte, which never reach the wire."""
    status = packed & 0xFF
    if status < 0x80:
        return None
    data = [packed >> 8 & 0x7F, packed >> 16 & 0x7F]
    length = 1 if status & 0xF0 in (0xC0, 0xD0) else 2
    return " ".join(f"{byte:02x}" for byte in [status] + data[:length])


def read(path):
    """All that was sent so far: (milliseconds, "short" or "sysex", hexadecimal digits)."""
    with contextlib.suppress(FileNotFoundError), open(path, encoding="ascii") as log:
        for line in log:
            if not line.endswith("\n"):
                return  # still being written
            time, kind, text = line.rstrip("\n").split("\t")
            yield float(time), kind, text


def timed_wire(path):
    """What was put on the wire: (milliseconds, bytes)."""
    for time, kind, text in read(path):
        wire = wire_text(int(text, 16)) if kind == "short" else bytes.fromhex(text).hex(" ")
        if wire:
            yield time, wire


def wire(path):
    return [text for _, text in timed_wire(path)]


def is_note(message):
    return message.startswith("9") and not message.endswith(" 00")
