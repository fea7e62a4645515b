#!/usr/bin/env bash
# Measures `mirrix-cli hash` beside b3sum and md5sum; see README.md beside this file.
set -euo pipefail
export LC_ALL=C.UTF-8

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly here
runs=5
mib=1024
work=${TMPDIR:-/tmp}/mirrix-bench
cli=$here/../build/release/bin/mirrix-cli

usage() {
    cat <<'TEXT'
usage: hashing.sh [OPTIONS]
  --runs N      rounds over all commands (5)
  --mib N       size of the large file, and of all small ones together, in MiB (1024)
  --work DIR    files and results (${TMPDIR:-/tmp}/mirrix-bench)
  --cli PATH    the console to measure (build/release/bin/mirrix-cli)
TEXT
}

die() {
    echo "hashing.sh: $*" >&2
    exit 2
}

while (($#)); do
    case $1 in
        --help) usage; exit 0 ;;
        --runs | --mib | --work | --cli)
            (($# > 1)) || die "$1 needs a value"
            printf -v "${1#--}" '%s' "$2"
            shift 2
            ;;
        *) usage >&2; die "unknown option $1" ;;
    esac
done
[[ $runs =~ ^[1-9][0-9]*$ && $mib =~ ^[1-9][0-9]*$ ]] || die "--runs and --mib take numbers from 1"
[[ -x $cli ]] || die "no console at $cli (build the release preset, or --cli PATH)"
command -v b3sum >/dev/null || die "needs b3sum (apt-get install b3sum)"

readonly files=$work/hashed results=$work/results
mkdir -p "$results"
readonly raw=$results/hashing.tsv
: >"$raw"

# One file, and files of 16 KiB that hold the same in all.
make_files() {
    rm -rf "$files"
    mkdir -p "$files/large" "$files/small"
    head -c "${mib}M" /dev/urandom >"$files/large/data"
    split -b 16K -a 6 "$files/large/data" "$files/small/"
}

# run SET TOOL COMMAND...: hashes the files of a set, which are in the page cache, and keeps the digests.
run() {
    local set=$1 tool=$2 begin end
    shift 2
    find "$files/$set" -type f -exec cat {} + >/dev/null
    begin=$EPOCHREALTIME
    find "$files/$set" -type f -print0 | xargs -0 -n 100000 -s 2000000 "$@" >"$work/digests" || die "$* failed"
    end=$EPOCHREALTIME
    sort -k 2 "$work/digests" >"$results/$set-${tool// /-}.txt"
    printf '%s\t%s\t%s\n' "$set" "$tool" "$(awk -v b="$begin" -v e="$end" 'BEGIN { print e - b }')" >>"$raw"
}

# table SET: medians, and each tool's to the one of the same digest that is not ours.
table() {
    printf '\n### %s\n\n| Tool | Median, s | Range, s | GB/s | To the other tool |\n|---|--:|--:|--:|--:|\n' "$2"
    sort -t $'\t' -k 2,2 -k 3,3g "$raw" | awk -F '\t' -v set="$1" -v bytes=$((mib << 20)) '
        $1 == set { times[$2] = times[$2] " " $3 }
        function median(tool,   t, n) { n = split(times[tool], t, " "); return (t[int((n + 1) / 2)] + t[int(n / 2) + 1]) / 2 }
        function row(tool, peer,   t, n) {
            n = split(times[tool], t, " ")
            printf "| %s | %.3f | %.3f-%.3f | %.2f | %s |\n", tool, median(tool), t[1], t[n], bytes / median(tool) / 1e9,
                tool == peer ? "" : sprintf("%.2f", median(tool) / median(peer))
        }
        END {
            row("b3sum", "b3sum"); row("b3sum, one thread", "b3sum, one thread"); row("mirrix blake3", "b3sum, one thread")
            row("md5sum", "md5sum"); row("mirrix md5", "md5sum")
        }'
}

same() {
    cmp -s "$results/$1-$2.txt" "$results/$1-$3.txt" || {
        echo "hashing.sh: $2 and $3 disagree on $1" >&2
        disagreed=1
    }
}

awk '$1 > 0.5 { exit 1 }' /proc/loadavg || echo "hashing.sh: the machine is busy, which will affect the figures" >&2
make_files
for ((i = 0; i < runs; ++i)); do
    for set in large small; do
        run $set "b3sum" b3sum
        run $set "b3sum, one thread" b3sum --num-threads 1
        run $set "mirrix blake3" "$cli" hash --algorithm blake3
        run $set "md5sum" md5sum
        run $set "mirrix md5" "$cli" hash --algorithm md5
    done
done
disagreed=0
for set in large small; do
    same $set b3sum mirrix-blake3
    same $set md5sum mirrix-md5
done
{
    table large "one file of $mib MiB"
    table small "$((mib * 64)) files of 16 KiB"
} | tee "$results/hashing.md"
rm -rf "$files" "$work/digests"
exit "$disagreed"
