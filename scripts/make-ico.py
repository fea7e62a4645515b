#!/usr/bin/env python3
"""Binds PNG pictures into one Windows icon: make-ico.py ICON PNG...

An icon holds a directory of 16 bytes a picture, then the pictures as they are; a width or height of 256 is written as 0."""

import struct
import sys
from pathlib import Path


def main() -> None:
    target, sources = Path(sys.argv[1]), [Path(name).read_bytes() for name in sys.argv[2:]]
    offset = 6 + 16 * len(sources)
    directory = struct.pack("<HHH", 0, 1, len(sources))
    for data in sources:
        width, height = struct.unpack(">II", data[16:24])
        directory += struct.pack("<BBBBHHII", width % 256, height % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    target.write_bytes(directory + b"".join(sources))


if __name__ == "__main__":
    main()
