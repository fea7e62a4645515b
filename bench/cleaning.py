#!/usr/bin/env python3
"""Times `mirrix-cli clean --apply` over pairs of equal files by every method, with one or two builds of the program in
turn, and prints a table: what acting takes, that is without the scan, which has its digests in the cache, and the ratio
of both builds. Of several runs the fastest counts, of scanning and of the whole each. With --undo: what undoing the run
takes, and whether everything is as it was."""

import argparse
import hashlib
import os
import pathlib
import random
import resource
import subprocess
import tempfile
import time

METHODS = ["delete", "symlink", "hardlink", "recycle", "move", "backup"]
FILES_IN_FOLDER = 500
PIECE_BYTES = 1 << 20


def write_file(path, size, seed, modified):
    """Pseudo-random bytes: the same for the same seed."""
    noise = random.Random(seed)
    with open(path, "wb") as file:
        while size > 0:
            size -= file.write(noise.randbytes(min(size, PIECE_BYTES)))
    os.utime(path, (modified, modified))


def make_pairs(root, count, size_bytes, is_fresh):
    """`count` pairs, the copies newer than what they were copied from. Either in folders of their own and all of it on
    the disk, or side by side and still in memory."""
    for number in range(count):
        for side, modified in (("kept", 1_500_000_000), ("copies", 1_600_000_000)):
            folder = root / ("" if is_fresh else side) / str(number // FILES_IN_FOLDER)
            folder.mkdir(parents=True, exist_ok=True)
            size = size_bytes or 200 + number % 4000
            write_file(folder / f"{number}-{side}.bin" if is_fresh else folder / f"{number}.bin", size, number, modified)
    if not is_fresh:
        os.sync()


def processor_seconds():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def listing(folder):
    """Digest of what find and sha256sum say of everything below: kind, permissions, size, owner, time, name, content."""
    command = r"find . -printf '%y %m %s %u %T@ %p %l\n' | grep -v '^d' | sort; find . -type f -print0 | sort -z | " \
        "xargs -0 sha256sum"
    printed = subprocess.run(["bash", "-c", command], cwd=folder, capture_output=True, check=True).stdout
    return hashlib.sha256(printed).digest()


def run(clock, cli, work, command, *more):
    """Seconds that the command took, and what it printed last."""
    environment = dict(os.environ, HOME=str(work / "home"), XDG_DATA_HOME=str(work / "home"), LC_ALL="C.UTF-8")
    start = clock()
    done = subprocess.run([cli, command, "--data-dir", work / "data", *more], env=environment, capture_output=True,
                          text=True, check=False)
    seconds = clock() - start
    if done.returncode != 0:
        raise SystemExit(f"{command}: status {done.returncode}\n{done.stdout[-500:]}{done.stderr[:2000]}")
    return seconds, done.stdout.strip().rsplit("\n", 1)[-1]


def run_clean(clock, cli, work, method, *more):
    target = ["--target", work / "target"] if method == "move" else []
    return run(clock, cli, work, "clean", "--keep", "oldest", "--method", method, *target, *more, work / "src")


def undo_seconds(clock, cli, work, count, before):
    seconds, text = run(clock, cli, work, "undo", "last", "--apply")
    if not text.startswith(f"{count} of {count} files undone") or listing(work / "src") != before:
        raise SystemExit(f"not as it was: {text}")
    _, text = run(clock, cli, work, "undo", "last", "--apply")
    if not text.startswith("0 of 0 files"):
        raise SystemExit(f"something was left to undo: {text}")
    return seconds


def measure(clock, cli, folder, method, count, size_bytes, given):
    """Seconds that planning took, that planning and acting took, and that undoing took."""
    with tempfile.TemporaryDirectory(prefix="mirrix-cleaning-", dir=folder) as name:
        work = pathlib.Path(name)
        make_pairs(work / "src", count, size_bytes, given.fresh)
        (work / "home").mkdir()
        run_clean(clock, cli, work, method)  # fills the cache
        planning, _ = run_clean(clock, cli, work, method)
        before = listing(work / "src") if given.undo else None
        whole, text = run_clean(clock, cli, work, method, "--apply")
        if not text.startswith(f"{count} of {count} files "):
            raise SystemExit(f"{method}: {text}")
        return planning, whole, undo_seconds(clock, cli, work, count, before) if given.undo else 0


def figures_of(runs, is_undone):
    """Acting, and undoing if asked for. The difference of the fastest ones: that of a single run takes a disturbance of
    its planning off the acting."""
    planning, whole, undoing = map(min, zip(*runs))
    return [max(whole - planning, 0.001)] + ([undoing] if is_undone else [])


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--cli", default="build/release/bin/mirrix-cli", type=pathlib.Path)
    parser.add_argument("--before", type=pathlib.Path, help="another build to compare with")
    parser.add_argument("--work", nargs="+", default=[tempfile.gettempdir()], help="folders, one a disk")
    parser.add_argument("--methods", nargs="+", default=METHODS, choices=METHODS)
    parser.add_argument("--small", type=int, default=50000, help="pairs of 200 to 4,199 bytes; 0 leaves them out")
    parser.add_argument("--large", type=int, default=50, help="pairs of --large-mb; 0 leaves them out")
    parser.add_argument("--large-mb", type=int, default=100)
    parser.add_argument("--fresh", action="store_true", help="copies beside the kept files, nothing flushed before")
    parser.add_argument("--undo", action="store_true", help="undo each run; then one build only")
    parser.add_argument("--runs", type=int, default=1, help="the quickest counts")
    parser.add_argument("--processor", action="store_true", help="time of the processor, for a machine that is in use")
    given = parser.parse_args()
    clock = processor_seconds if given.processor else time.monotonic
    if given.undo and given.before:
        parser.error("--undo takes one build")
    builds = [build.resolve() for build in (given.before, given.cli) if build]
    columns = ["s", "undo s", "ratio"] if given.undo else ["before s", "after s", "ratio"] if given.before else ["s"]
    print("| Pairs | Folder | Method | " + " | ".join(columns) + " |")
    print("|---|---|---|" + "--:|" * len(columns))
    for count, size in ((given.small, 0), (given.large, given.large_mb << 20)):
        for folder in given.work if count else []:
            kind = f"{count:,} of {given.large_mb} MB" if size else f"{count:,} small"
            for method in given.methods:
                runs = [[measure(clock, build, folder, method, count, size, given) for build in builds]
                        for _ in range(given.runs)]
                best = [s for of_build in zip(*runs) for s in figures_of(of_build, given.undo)]
                ratio = f" {best[1] / best[0]:.2f} |" if len(best) > 1 else ""
                print(f"| {kind} | {folder} | {method} | " + " | ".join(f"{s:.2f}" for s in best) + " |" + ratio,
                      flush=True)


if __name__ == "__main__":
    main()
