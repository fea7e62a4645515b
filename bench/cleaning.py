#!/usr/bin/env python3
"""Times `mirrix-cli clean --apply` over pairs of equal files by every method, with one or two builds of the program in
turn, and prints a table: what acting takes, that is without the scan, which has its digests in the cache, and the ratio
of both builds. Of several runs the quickest counts, of scanning and of the whole each."""

import argparse
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


def run_clean(clock, cli, work, method, *more):
    """Seconds that the command took, and what it printed last."""
    command = [cli, "clean", "--data-dir", work / "data", "--keep", "oldest", "--method", method, *more]
    if method == "move":
        command += ["--target", work / "target"]
    environment = dict(os.environ, HOME=str(work / "home"), XDG_DATA_HOME=str(work / "home"), LC_ALL="C.UTF-8")
    start = clock()
    done = subprocess.run([*command, work / "src"], env=environment, capture_output=True, text=True, check=False)
    seconds = clock() - start
    if done.returncode != 0:
        raise SystemExit(f"{method}: status {done.returncode}\n{done.stdout[-500:]}{done.stderr[:2000]}")
    return seconds, done.stdout.strip().rsplit("\n", 1)[-1]


def measure(clock, cli, folder, method, count, size_bytes, is_fresh):
    """Seconds that planning took, and that planning and acting took."""
    with tempfile.TemporaryDirectory(prefix="mirrix-cleaning-", dir=folder) as name:
        work = pathlib.Path(name)
        make_pairs(work / "src", count, size_bytes, is_fresh)
        (work / "home").mkdir()
        run_clean(clock, cli, work, method)  # fills the cache
        planning, _ = run_clean(clock, cli, work, method)
        whole, told = run_clean(clock, cli, work, method, "--apply")
        if not told.startswith(f"{count} of {count} files "):
            raise SystemExit(f"{method}: {told}")
        return planning, whole


def acting_seconds(runs):
    """The difference of the quickest ones: that of a single run takes a disturbance of its planning off the acting."""
    planning, whole = map(min, zip(*runs))
    return max(whole - planning, 0.001)


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
    parser.add_argument("--runs", type=int, default=1, help="the quickest counts")
    parser.add_argument("--processor", action="store_true", help="time of the processor, for a machine that is in use")
    given = parser.parse_args()
    clock = processor_seconds if given.processor else time.monotonic
    builds = [build.resolve() for build in (given.before, given.cli) if build]
    print("| Pairs | Folder | Method | " + ("before s | after s | ratio |" if given.before else "s |"))
    print("|---|---|---|" + "--:|" * (3 if given.before else 1))
    for count, size in ((given.small, 0), (given.large, given.large_mb << 20)):
        for folder in given.work if count else []:
            kind = f"{count:,} of {given.large_mb} MB" if size else f"{count:,} small"
            for method in given.methods:
                runs = [[measure(clock, build, folder, method, count, size, given.fresh) for build in builds]
                        for _ in range(given.runs)]
                best = [acting_seconds(of_build) for of_build in zip(*runs)]
                ratio = f" {best[1] / best[0]:.2f} |" if given.before else ""
                print(f"| {kind} | {folder} | {method} | " + " | ".join(f"{s:.2f}" for s in best) + " |" + ratio,
                      flush=True)


if __name__ == "__main__":
    main()
