"""Standard MIDI Files, read byte by byte by the rules of that format."""

import struct


def read(path):
    """The header (format, tracks, division) and, for each track, its events: (delta, bytes in
    hexadecimal "90 3c 64")."""
    with open(path, "rb") as file:
        data = file.read()
    kind, length = struct.unpack_from(">4sI", data)
    assert (kind, length) == (b"MThd", 6), data[:8]
    header = struct.unpack_from(">HHH", data, 8)
    at, tracks = 14, []
    while at < len(data):
        kind, length = struct.unpack_from(">4sI", data, at)
        assert kind == b"MTrk", (at, kind)
        at += 8 + length
        assert at <= len(data), "a track ends after the file"
        tracks.append(list(_events(data[at - length:at])))
    return header, tracks


def _events(data):
    at = 0
    while at < len(data):
        delta, at = _length(data, at)
        end = _end_of_event(data, at)
        assert end <= len(data), "an event ends after its track"
        yield delta, data[at:end].hex(" ")
        at = end


def _length(data, at):
    value = 0
    while True:
        value = value << 7 | data[at] & 0x7F
        at += 1
        if data[at - 1] < 0x80:
            return value, at


def _end_of_event(data, at):
    status = data[at]
    if status in (0xF0, 0xFF):
        length, start = _length(data, at + (2 if status == 0xFF else 1))
        return start + length
    assert 0x80 <= status < 0xF0, f"no status byte: {status:02x}"
    return at + (2 if status & 0xF0 in (0xC0, 0xD0) else 3)
