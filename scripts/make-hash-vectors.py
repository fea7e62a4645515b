#!/usr/bin/env python3
"""Prints the expected digests in tests/core/data/hash-vectors.json.

Files hold the pattern of patternBytes() in tests/support/temptree.h. Every window is cut out here again, from its
definition, and hashed by Python's hashlib and the b3sum program, so that the tests do not check the program by itself.

    scripts/make-hash-vectors.py > tests/core/data/hash-vectors.json
"""

import hashlib
import json
import shutil
import subprocess
import sys

MIB = 1 << 20
SIZES = [0, 1, 4095, 4096, 4097, 8191, 8192, 8193, 16384, 16385, 16 * MIB - 1, 16 * MIB, 17 * MIB, 64 * MIB + 1]
PREFIXES = [1, 4096, MIB, 2 * MIB, 100 * MIB]
BLOCK = 4096


def pattern(length: int) -> bytes:
    """Byte i is the top byte of the 32-bit product of i and 2654435761."""
    result = bytearray(length)
    value = 0
    for i in range(length):
        result[i] = value >> 24
        value = (value + 2654435761) & 0xFFFFFFFF
    return bytes(result)


def blake3(data: bytes) -> str:
    run = subprocess.run(["b3sum", "--no-names"], input=data, stdout=subprocess.PIPE, check=True)
    return run.stdout.decode().strip()


def md5(data: bytes) -> str:
    return hashlib.md5(data).hexdigest()


def quick_input(data: bytes) -> bytes:
    tail = data[-BLOCK:] if len(data) > BLOCK else b""
    return str(len(data)).encode() + data[:BLOCK] + tail


def sample_input(data: bytes) -> bytes:
    size = len(data)
    offsets = [0]
    if size >= 2 * BLOCK + 1:
        offsets.append(size // 2 - BLOCK // 2)
    if size >= BLOCK + 1:
        offsets.append(size - BLOCK)
    if size > 4 * BLOCK:
        offsets += [size // 4, 3 * size // 4]
    return str(size).encode() + b"".join(data[at : at + BLOCK] for at in offsets)


def vector(data: bytes) -> dict:
    text = str(len(data)).encode()
    return {
        "size": len(data),
        "md5": md5(data),
        "blake3": blake3(data),
        "sha1": hashlib.sha1(data).hexdigest(),
        "sha256": hashlib.sha256(data).hexdigest(),
        "quickMd5": md5(quick_input(data)) if data else "",
        "quickBlake3": blake3(quick_input(data)) if data else "",
        "sample": md5(sample_input(data)),
        "prefixes": [
            {"limit": limit, "md5": md5(text + data[:limit]), "blake3": blake3(text + data[:limit])}
            for limit in PREFIXES
        ],
    }


def main() -> int:
    if not shutil.which("b3sum"):
        print("the program b3sum is missing (Debian package b3sum)", file=sys.stderr)
        return 1
    whole = pattern(max(SIZES))
    print("[" + ",\n ".join(json.dumps(vector(whole[:size])) for size in SIZES) + "]")
    return 0


if __name__ == "__main__":
    sys.exit(main())
