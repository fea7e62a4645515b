#!/usr/bin/env python3
"""Prints the Markdown tables of a run of recall.sh: recall.py WORK_FOLDER.

The names of the pictures show what belongs together: NUMBER-KIND-EDIT.suffix, see make-pictures.
"""

from __future__ import annotations

import csv
import math
import os
import sys
from collections import Counter
from collections.abc import Iterable
from dataclasses import dataclass
from itertools import chain
from pathlib import Path
from typing import NamedTuple

from groups import FORMATS, Group

ORIGINAL = "base"
EDITS = ("resize", "quality", "crop", "bright", "watermark", "format", "rotate", "mirror")


class Picture(NamedTuple):
    number: str
    kind: str
    edit: str


@dataclass
class Run:
    name: str
    groups: list[list[Picture]]
    wall_seconds: float
    processor_seconds: float
    peak_kib: int


def is_first(run: Run) -> bool:
    """Whether it had to read the pictures. Another run gives the same groups from the cache."""
    return "first" in run.name or "without" in run.name


def picture_of(path: str | os.PathLike[str]) -> Picture:
    return Picture(*Path(path).stem.split("-"))


def merged(groups: list[Group]) -> list[list[Picture]]:
    """Groups that share a file as one, for finders that list a picture with each of those it resembles."""
    leader: dict[bytes, bytes] = {}

    def leader_of(path: bytes) -> bytes:
        while leader.setdefault(path, path) != path:
            leader[path] = path = leader[leader[path]]
        return path

    for group in groups:
        for path in group:
            leader[leader_of(path)] = leader_of(group[0])
    members: dict[bytes, list[Picture]] = {}
    for path in list(leader):
        members.setdefault(leader_of(path), []).append(picture_of(os.fsdecode(path)))
    return list(members.values())


def read_runs(raw: Path) -> list[Run]:
    runs = []
    with raw.open(newline="") as lines:
        for fields in csv.reader(lines, delimiter="\t", quoting=csv.QUOTE_NONE):
            name, form, file, wall, user, system, kib = fields
            groups = merged(FORMATS[form](Path(file).read_bytes()))
            runs.append(Run(name, groups, float(wall), float(user) + float(system), int(kib)))
    return runs


def found(run: Run) -> list[Picture]:
    """The copies that stand in one group with the picture they were made from."""
    copies: list[Picture] = []
    for group in run.groups:
        originals = {picture.number for picture in group if picture.edit == ORIGINAL}
        copies += (picture for picture in group if picture.edit != ORIGINAL and picture.number in originals)
    return copies


def bases_of(group: list[Picture]) -> Counter[str]:
    return Counter(picture.number for picture in group)


def false_pairs(group: list[Picture]) -> int:
    return math.comb(len(group), 2) - sum(math.comb(count, 2) for count in bases_of(group).values())


def table(head: Iterable[str], rows: Iterable[Iterable[str]]) -> str:
    head = list(head)
    lines = [head, ["---", *["--:"] * (len(head) - 1)], *rows]
    return "\n".join("| " + " | ".join(cells) + " |" for cells in lines)


def percent(part: int, whole: int) -> str:
    return f"{100 * part / whole:.1f}"


def recall_table(runs: list[Run], bases: int) -> str:
    def row(run: Run) -> list[str]:
        copies = found(run)
        by_edit = Counter(picture.edit for picture in copies)
        false_groups = sum(len(bases_of(group)) > 1 for group in run.groups)
        return [
            run.name,
            *(percent(by_edit[edit], bases) for edit in EDITS),
            percent(len(copies), bases * len(EDITS)),
            f"{len(run.groups):,}",
            f"{false_groups:,}",
            f"{sum(map(false_pairs, run.groups)):,}",
        ]

    head = ("Finder", *EDITS, "all", "Groups", "False groups", "False pairs")
    return table(head, map(row, runs))


def kinds_table(runs: list[Run], bases: dict[str, int]) -> str:
    def row(run: Run) -> list[str]:
        by_kind = Counter(picture.kind for picture in found(run))
        return [run.name, *(percent(by_kind[kind], count * len(EDITS)) for kind, count in bases.items())]

    return table(("Finder", *bases), map(row, runs))


def speed_table(runs: list[Run], files: int) -> str:
    def row(run: Run) -> list[str]:
        return [
            run.name,
            f"{run.wall_seconds:.1f}",
            f"{files / run.wall_seconds:,.0f}",
            f"{run.processor_seconds:.1f}",
            f"{run.processor_seconds * 1e3 / files:.2f}",
            f"{run.peak_kib / 1024:.0f}",
        ]

    head = ("Finder", "Wall, s", "Pictures/s", "Processor, s", "Processor, ms a picture", "Peak, MiB")
    return table(head, map(row, runs))


def main(arguments: list[str]) -> int:
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    work = Path(arguments[0])
    runs = read_runs(work / "results" / "recall.tsv")
    pictures = [picture_of(path) for path in sorted((work / "pictures").glob("*/*"))]
    bases = Counter(picture.kind for picture in pictures if picture.edit == ORIGINAL)
    known = set(pictures)
    strange = [picture for picture in chain.from_iterable(chain(*(run.groups for run in runs))) if picture not in known]
    if not bases or strange:
        print(f"recall.py: {strange[0] if strange else 'no picture'} does not belong to the set", file=sys.stderr)
        return 2
    print(f"{len(pictures):,} pictures, {bases.total():,} of them originals\n")
    answers = [run for run in runs if not is_first(run)]
    print("Copies found with their original, percent:\n")
    print(recall_table(answers, bases.total()), end="\n\n")
    print("The same by kind of picture, percent of all edits:\n")
    print(kinds_table(answers, dict(bases)), end="\n\n")
    print("The time, with cached features except for the first runs:\n")
    print(speed_table(runs, len(pictures)))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
