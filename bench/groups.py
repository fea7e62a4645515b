#!/usr/bin/env python3
"""Checks that duplicate finders agree: groups.py NAME=FORMAT:FILE...

FORMAT is mirrix (JSON of `mirrix-cli scan`), rmlint (JSON), rdfind (its results file) or sets (paths one a line, a
blank line between groups: jdupes, fdupes). All are compared with the first. Exit status 0: the same groups, at least
one; 1: not.
"""

from __future__ import annotations

import json
import os
import sys
from collections.abc import Callable, Iterable
from pathlib import Path

Group = tuple[bytes, ...]


def normalised(groups: Iterable[Iterable[bytes]]) -> list[Group]:
    return sorted(tuple(sorted(group)) for group in groups)


def from_mirrix(text: bytes) -> list[Group]:
    groups = json.loads(text)["groups"]
    return normalised([os.fsencode(file["path"]) for file in group["files"]] for group in groups)


def from_rmlint(text: bytes) -> list[Group]:
    groups: list[list[bytes]] = []
    for entry in json.loads(text.decode("utf-8", "surrogateescape")):
        if entry.get("type") != "duplicate_file":
            continue
        # The original comes first, its twins follow: no checksum is needed to distinguish groups.
        if entry["is_original"]:
            groups.append([])
        groups[-1].append(os.fsencode(entry["path"]))
    return normalised(groups)


def from_rdfind(text: bytes) -> list[Group]:
    groups: dict[int, list[bytes]] = {}
    for line in text.split(b"\n"):
        if line.startswith(b"DUPTYPE_"):
            # type id depth size device inode priority name; the id of all but the first of a group is negative
            fields = line.split(b" ", 7)
            groups.setdefault(abs(int(fields[1])), []).append(fields[7])
    return normalised(groups.values())


def from_sets(text: bytes) -> list[Group]:
    return normalised(block.split(b"\n") for block in text.strip(b"\n").split(b"\n\n") if block)


FORMATS: dict[str, Callable[[bytes], list[Group]]] = {
    "mirrix": from_mirrix,
    "rmlint": from_rmlint,
    "rdfind": from_rdfind,
    "sets": from_sets,
}


def shown(group: Group) -> str:
    return "".join(f"\n    {os.fsdecode(path)}" for path in group)


def first_difference(name: str, groups: list[Group], other_name: str, others: list[Group]) -> str:
    difference = set(groups) ^ set(others)
    if not difference:
        return "  the same group is listed more than once"
    group = min(difference)
    if group not in set(groups):
        name, other_name, others = other_name, name, groups
    related = [other for other in others if set(other) & set(group)]
    counterpart = "".join(shown(other) for other in related) or "\n    nothing of these"
    return f"  {name} has:{shown(group)}\n  {other_name} has:{counterpart}"


def read(argument: str) -> tuple[str, list[Group]]:
    name, _, source = argument.partition("=")
    form, _, file = source.partition(":")
    return name, FORMATS[form](Path(file).read_bytes())


def main(arguments: list[str]) -> int:
    if not arguments:
        print(__doc__, file=sys.stderr)
        return 2
    first_name, first = read(arguments[0])
    agree = True
    for argument in arguments[1:]:
        name, groups = read(argument)
        if groups == first:
            continue
        agree = False
        print(f"{name} ({len(groups)} groups) disagrees with {first_name} ({len(first)} groups)")
        print(first_difference(name, groups, first_name, first))
    if agree and not first:
        agree = False
        print(f"{first_name} and all others found no group: the scan saw no duplicates")
    if agree:
        print(f"{len(arguments)} outputs agree: {len(first)} groups of {sum(map(len, first))} files")
    return 0 if agree else 1


if __name__ == "__main__":
    sys.stdout.reconfigure(errors="backslashreplace")
    sys.exit(main(sys.argv[1:]))
