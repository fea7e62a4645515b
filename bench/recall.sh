#!/usr/bin/env bash
# Measures what the search for similar pictures finds, misses and wrongly takes for similar, beside another finder; see
# README.md.
set -euo pipefail
export LC_ALL=C.UTF-8

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly here
work=${TMPDIR:-/tmp}/mirrix-bench
cli=$here/../build/release/bin/mirrix-cli
levels="0 1 2 3 4"
peer=findimagedupes
threads=2
scale=1
seed=1

usage() {
    cat <<'TEXT'
usage: recall.sh [OPTIONS]
  --work DIR      pictures, outputs and results (${TMPDIR:-/tmp}/mirrix-bench)
  --cli PATH      the console to measure (build/release/bin/mirrix-cli); "none" measures the other finder only
  --levels LIST   of 0 (exact) to 4 (loose) ("0 1 2 3 4")
  --peer NAME     findimagedupes, or none
  --threads N     for mirrix-cli; the other finder has only one (2)
  --scale F       factor on the number of pictures, for tries (1)
  --seed N        other pictures of the same kinds (1)
TEXT
}

die() {
    echo "recall.sh: $*" >&2
    exit 2
}

say() { echo "$*" >&2; }

while (($#)); do
    case $1 in
        --help) usage; exit 0 ;;
        --work | --cli | --levels | --peer | --threads | --scale | --seed)
            (($# > 1)) || die "$1 needs a value"
            printf -v "${1#--}" '%s' "$2"
            shift 2
            ;;
        *) usage >&2; die "unknown option $1" ;;
    esac
done
for level in $levels; do
    [[ $level =~ ^[0-4]$ ]] || die "unknown level $level"
done
[[ $threads =~ ^[1-9][0-9]*$ ]] || die "--threads takes a number from 1"
[[ $peer =~ ^(findimagedupes|none)$ ]] || die "unknown peer $peer"
[[ $peer == none ]] || command -v "$peer" >/dev/null || die "needs $peer (apt-get install $peer), or --peer none"
[[ $cli == none || -x $cli ]] || die "no console at $cli (build the release preset, or --cli PATH)"
[[ -x /usr/bin/time ]] || die "needs /usr/bin/time (apt-get install time)"

python=
for candidate in python3 /usr/bin/python3; do
    if [[ -z $python ]] && "$candidate" -c 'import numpy, PIL' 2>/dev/null; then
        python=$candidate
    fi
done
[[ $python ]] || die "needs Python with numpy and Pillow (apt-get install python3-numpy python3-pil)"

mkdir -p "$work"
work=$(cd "$work" && pwd -P)
readonly work out=$work/out results=$work/results pictures=$work/pictures
mkdir -p "$out" "$results"
readonly raw=$results/recall.tsv
: >"$raw"

# measured ROW FORMAT OUTPUT COMMAND...: one run, the pictures being in the page cache, into the raw figures. FORMAT and
# OUTPUT say where groups.py finds the groups.
measured() {
    local row=$1 form=$2 output=$3 begin end
    shift 3
    find "$pictures" -type f -print0 | xargs -0 cat >/dev/null
    begin=$EPOCHREALTIME
    /usr/bin/time -q -f $'%U\t%S\t%M' -o "$out/usage" "$@" >"$out/stdout" 2>"$out/stderr" ||
        die "$row failed: $* $(tail -c 2000 "$out/stderr")"
    end=$EPOCHREALTIME
    printf '%s\t%s\t%s\t%.3f\t%s\n' "$row" "$form" "$output" "$(awk -v b="$begin" -v e="$end" 'BEGIN { print e - b }')" \
        "$(tail -n 1 "$out/usage")" >>"$raw"
    say "  $row: $(tail -n 1 "$raw" | cut -f 4) s"
}

# scan ROW LEVEL TURNED OPTION...: TURNED says whether turned and mirrored copies are sought.
scan() {
    local row=$1 level=$2 turned=$3 output=$out/${1//[ ,]/-}.json
    local -r distances=(0 5 10 15 22)
    shift 3
    measured "$row" mirrix "$output" "$cli" scan --mode images --set "imageMaxDistance=${distances[level]}" \
        --set "imageFindRotated=$turned" --set "imageFindFlipped=$turned" --format json --output "$output" "$@" \
        "$pictures"
}

# The levels differ in grouping only, so all but the speed of reading and decoding is measured with the cache.
scans() {
    local level data=$out/pictures-cache
    scan "without cache" 4 true --no-cache --threads "$threads" --data-dir "$out/no-cache"
    scan "without cache, one thread" 4 true --no-cache --threads 1 --data-dir "$out/no-cache"
    rm -rf "$data"
    scan "first with cache" 4 true --threads "$threads" --data-dir "$data"
    for level in $levels; do
        scan "level $level" "$level" true --threads "$threads" --data-dir "$data"
    done
    for level in $levels; do
        scan "level $level, not turned" "$level" false --threads "$threads" --data-dir "$data"
    done
    rm -rf "$data" "$out/no-cache"
}

# Its shell function VIEW gets the paths of a group. The fingerprints of the first run serve the others.
finddupes() {
    local row=$1 threshold=$2 output=$out/${1//[ ,]/-}.txt
    # shellcheck disable=SC2016 # the other shell expands
    measured "$row" sets "$output" findimagedupes -q -R -t "$threshold%" -f "$out/fingerprints" \
        -i 'VIEW() { printf "%s\n" "$@"; echo; }' -- "$pictures"
    mv "$out/stdout" "$output"
}

peer_runs() {
    rm -f "$out/fingerprints"
    finddupes "findimagedupes, first" 90
    finddupes "findimagedupes 95 %" 95
    finddupes "findimagedupes 90 %" 90
    finddupes "findimagedupes 85 %" 85
    rm -f "$out/fingerprints"
}

awk '$1 > 0.5 { exit 1 }' /proc/loadavg || say "recall.sh: the machine is busy, which will affect wall times"
"$python" "$here/make-pictures" --scale "$scale" --seed "$seed" "$pictures" >&2 || die "no pictures"
[[ $cli == none ]] || scans
[[ $peer == none ]] || peer_runs
"$python" "$here/recall.py" "$work" | tee "$results/recall.md"
