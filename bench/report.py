#!/usr/bin/env python3
"""Prints the Markdown tables of a run of compare.sh and writes its results.json: report.py WORK_FOLDER."""

from __future__ import annotations

import csv
import json
import shutil
import subprocess
import sys
from dataclasses import dataclass, field
from pathlib import Path
from statistics import median

PEERS = ("rdfind", "jdupes", "rmlint", "fdupes")
BASE_BYTES = 80 << 20
MANY_FILES = 200_000
MEANINGFUL_SECONDS = 0.01
# What loading a program may read from disk; more, and more than a hundredth of the corpus, was the corpus itself.
PROGRAM_BYTES = 16 << 20


@dataclass
class Row:
    name: str
    kind: str
    command: str
    seconds: list[float] = field(default_factory=list)
    peak_kib: list[int] = field(default_factory=list)
    disk_blocks: list[int] = field(default_factory=list)  # of 512 bytes, read during the run

    @property
    def median(self) -> float:
        return median(self.seconds)

    @property
    def peak_bytes(self) -> int:
        return max(self.peak_kib) * 1024

    @property
    def disk_bytes(self) -> int:
        return max(self.disk_blocks) * 512


def read_rows(raw: Path) -> dict[str, dict[str, Row]]:
    corpora: dict[str, dict[str, Row]] = {}
    with raw.open(newline="") as lines:
        for fields in csv.reader(lines, delimiter="\t", quoting=csv.QUOTE_NONE):
            corpus, name, kind, seconds, kib, blocks, command = fields
            row = corpora.setdefault(corpus, {}).setdefault(name, Row(name, kind, command))
            row.seconds.append(float(seconds))
            row.peak_kib.append(int(kib))
            row.disk_blocks.append(int(blocks))
    return corpora


def read_checks(checks: Path) -> dict[str, bool]:
    agree: dict[str, bool] = {}
    for line in checks.read_text().splitlines():
        corpus, answer = line.split("\t")
        agree[corpus] = agree.get(corpus, True) and answer == "agree"
    return agree


def peer_versions() -> dict[str, str]:
    if not shutil.which("dpkg-query"):
        return {}
    form = "-f=${db:Status-Status} ${Package} ${Version}\n"
    listed = subprocess.run(["dpkg-query", "-W", form, *PEERS], capture_output=True, text=True, check=False).stdout
    return {words[1]: words[2] for words in map(str.split, listed.splitlines()) if words[0] == "installed"}


def cache_ratios(row: Row, rows: dict[str, Row]) -> tuple[str, str]:
    """A first scan, and what it takes beyond the scan without a cache, to the making of its cache files alone."""
    if not row.name.endswith(" first"):
        return "", ""
    without = rows[row.name.removesuffix(" first")]
    files = rows[f"cache files {row.name.split()[1]}"]
    if files.median < MEANINGFUL_SECONDS:
        return "", ""
    return f"{row.median / files.median:.2f}", f"{(row.median - without.median) / files.median:.2f}"


def table(rows: dict[str, Row], files: int) -> list[str]:
    peers = [row.median for row in rows.values() if row.kind == "peer"]
    fastest = min(peers, default=0)
    many = files > MANY_FILES
    lines = [
        "| Finder | Median, s | Range, s | To fastest peer | To its cache files | Added, to its cache files "
        + "| Peak, MiB |"
        + (" Bytes a file above 80 MiB |" if many else ""),
        "|---|--:|--:|--:|--:|--:|--:|" + ("--:|" if many else ""),
    ]
    order = {"peer": 0, "ours": 1, "baseline": 2}
    for row in sorted(rows.values(), key=lambda row: (order[row.kind], row.kind == "peer" and row.median, row.name)):
        whole, added = cache_ratios(row, rows)
        is_finder = row.kind != "baseline"
        cells = [
            row.name,
            f"{row.median:.3f}",
            f"{min(row.seconds):.3f}-{max(row.seconds):.3f}",
            f"{row.median / fastest:.2f}" if fastest and is_finder else "",
            whole,
            added,
            f"{row.peak_bytes / 2**20:.1f}" if is_finder else "",
        ]
        if many:
            cells.append(f"{max(0, row.peak_bytes - BASE_BYTES) / files:.0f}" if is_finder else "")
        lines.append("| " + " | ".join(cells) + " |")
    return lines


def main(arguments: list[str]) -> int:
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    work = Path(arguments[0])
    results = work / "results"
    agree = read_checks(results / "checks.tsv")
    versions = peer_versions()
    figures: dict[str, object] = {"versions": versions}
    print("Peers: " + ", ".join(f"{name} {version}" for name, version in versions.items()) + "\n" if versions else "")
    for corpus, rows in read_rows(results / "raw.tsv").items():
        stamp = json.loads((work / "corpora" / f"{corpus}.stamp").read_text())
        rounds = max(len(row.seconds) for row in rows.values())
        print(f"### {corpus}: {stamp['files']:,} files, {stamp['bytes'] / 1e9:.2f} GB, rounds: {rounds}\n")
        print("\n".join(table(rows, stamp["files"])))
        cold = [row.name for row in rows.values() if row.disk_bytes > max(PROGRAM_BYTES, stamp["bytes"] // 100)]
        if cold:
            print(f"\nNot all from the page cache: {', '.join(cold)}.")
        print(f"\nGroups: {'all outputs agree' if agree[corpus] else 'THE OUTPUTS DISAGREE'}.\n")
        figures[corpus] = {"corpus": stamp, "groupsAgree": agree[corpus], "rows": [vars(row) for row in rows.values()]}
    (results / "results.json").write_text(json.dumps(figures, indent=2) + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
