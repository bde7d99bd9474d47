"""The writes to a disk in their order, as an emulator logs them, and the disk that a power cut leaves.

Up to the last flush before the cut everything is there. Of what was written since then, a disk with a cache of its own
has stored what it liked, in any order: here each piece of it is kept or lost at random."""
import struct

MAGIC = 0x6A736677736872
FLUSH, FUA, DISCARD = 1, 2, 4
PIECE = 4096  # what a disk stores at once of a longer write


class Write:
    def __init__(self, offset, data, lasting):
        self.offset, self.data, self.lasting = offset, data, lasting


def read(path, mark_offset):
    """The log as a list of Write, "flush" and ("mark", number). The machine was killed: what is at the end may be
    half an entry."""
    entries = []
    with open(path, "rb") as log:
        magic, _, _, sector = struct.unpack("<QQQI", log.read(28))
        assert magic == MAGIC, "not a log of writes"
        log.seek(sector)
        while True:
            header = log.read(sector)
            if len(header) < sector:
                break
            start, count, flags, _ = struct.unpack("<QQQQ", header[:32])
            if (start, count, flags) == (0, 0, 0):
                break
            data = b"" if flags & DISCARD else log.read(count * sector)
            if len(data) < (0 if flags & DISCARD else count * sector):
                break
            if flags & FLUSH:
                entries.append("flush")
            if data and start * sector == mark_offset:
                entries.append(("mark", int(data)))
            elif data:
                entries.append(Write(start * sector, data, bool(flags & FUA)))
    return entries


def marked(entries):
    """The last number that was reported as saved."""
    numbers = [entry[1] for entry in entries if isinstance(entry, tuple)]
    return numbers[-1] if numbers else None


def cut(base, entries, random, share):
    """The disk after these entries; share: how much of what was not flushed is kept, 0 to 1."""
    disk = bytearray(base)
    flushed = max((i for i, entry in enumerate(entries) if entry == "flush"), default=-1)
    for i, entry in enumerate(entries):
        if not isinstance(entry, Write):
            continue
        for begin in range(0, len(entry.data), PIECE):
            if i < flushed or entry.lasting or random.random() < share:
                piece = entry.data[begin:begin + PIECE]
                disk[entry.offset + begin:entry.offset + begin + len(piece)] = piece
    return bytes(disk)
