#!/usr/bin/env python3
"""Prints tests/core/data/image-vectors.json: hashes and histograms of made pictures, computed from the definitions alone.

No library is used, so that the expectations are independent of the one that the program hashes with. Pictures are given
by a formula on x and y (tests/core/tst_imagefeature.cpp has the same ones).

    scripts/make-image-vectors.py > tests/core/data/image-vectors.json
"""

import json
import math
import sys

SIDE = 32
COSINES = [[math.cos(math.pi * (2 * x + 1) * u / (2 * SIDE)) for x in range(SIDE)] for u in range(8)]

FORMULAS = {
    "gradient": lambda x, y: (x * 5 + y * 2) // 9 % 256,
    "xor": lambda x, y: (x ^ y) & 255,
    "rings": lambda x, y: (x * x + y * y) // 100 % 256,
    "noise": lambda x, y: ((x + 1000 * y) * 2654435761 & 0xFFFFFFFF) >> 24,
    "blocks": lambda x, y: 255 * ((x // 37 * 7 + y // 29 * 5) % 3) // 2,
}
SIZES = [(96, 160), (100, 75), (333, 517), (385, 641)]


def picture(formula, width, height):
    return [[FORMULAS[formula](x, y) for x in range(width)] for y in range(height)]


def shares(source, target):
    """Of each target cell, the source cells it covers and how much of each."""
    scale = source / target
    cells = []
    for i in range(target):
        low, high = i * scale, min((i + 1) * scale, source)
        covered = range(int(low), min(math.ceil(high - 1e-9), source))
        weights = [(s, min(s + 1, high) - max(s, low)) for s in covered]
        whole = sum(weight for _, weight in weights)
        cells.append([(s, weight / whole) for s, weight in weights])
    return cells


def shrunk(rows, side):
    across = shares(len(rows[0]), side)
    narrow = [[sum(row[s] * w for s, w in cell) for cell in across] for row in rows]
    down = shares(len(rows), side)
    means = [[sum(narrow[s][x] * w for s, w in cell) for x in range(side)] for cell in down]
    assert all(abs(mean % 1 - 0.5) > 1e-4 for row in means for mean in row), "a tie in rounding"
    return [[round(mean) for mean in row] for row in means]


def image_hash(rows):
    small = shrunk(rows, SIDE)
    scale = [math.sqrt(1 / SIDE)] + [math.sqrt(2 / SIDE)] * 7
    lines = [[sum(row[x] * COSINES[u][x] for x in range(SIDE)) * scale[u] for u in range(8)] for row in small]
    waves = [sum(lines[y][u] * COSINES[v][y] for y in range(SIDE)) * scale[v] for v in range(8) for u in range(8)][1:]
    mean = sum(waves) / len(waves)
    assert min(abs(wave - mean) for wave in waves) > 0.005, "too close to call"
    return sum(1 << k for k, wave in enumerate(waves) if wave > mean)


def clockwise(rows):
    return [list(row) for row in zip(*rows[::-1])]


def variants(rows):
    found = []
    for base in (rows, [row[::-1] for row in rows]):
        for _ in range(4):
            value = image_hash(base)
            if value and value not in found:
                found.append(value)
            base = clockwise(base)
    return found


def histogram(rows):
    small = shrunk(rows, 128)
    counts = [0] * 64
    for row in small:
        for value in row:
            counts[value // 4] += 1
    return counts


def main():
    vectors = []
    for formula in FORMULAS:
        for width, height in SIZES:
            rows = picture(formula, width, height)
            entry = {"formula": formula, "width": width, "height": height}
            try:
                entry["variants"] = [f"{value:x}" for value in variants(rows)]
                if width >= 128:
                    entry["histogram"] = histogram(rows)
            except AssertionError as doubt:
                print(f"{formula} {width}x{height}: {doubt}", file=sys.stderr)
            if len(entry) > 3:
                vectors.append(entry)
    lines = ",\n".join(" " + json.dumps(entry, separators=(",", ":")) for entry in vectors)
    print("[\n" + lines + "\n]")


if __name__ == "__main__":
    main()
