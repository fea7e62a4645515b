#!/usr/bin/env bash
# Measures mirrix-cli and other duplicate finders side by side; see README.md beside this file.
set -euo pipefail
export LC_ALL=C.UTF-8

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly here
runs=5
corpora="small mixed large"
peers="rdfind jdupes rmlint fdupes"
work=${TMPDIR:-/tmp}/mirrix-bench
cli=$here/../build/release/bin/mirrix-cli
threads=2
scale=1

usage() {
    cat <<'TEXT'
usage: compare.sh [OPTIONS]
  --runs N         rounds over all commands (5)
  --corpora LIST   of small, mixed, large, million ("small mixed large")
  --work DIR       corpora, caches, outputs and results (${TMPDIR:-/tmp}/mirrix-bench)
  --cli PATH       the console to measure (build/release/bin/mirrix-cli); "none" measures the others only
  --threads N      for the finders that can use several (2)
  --peers LIST     of rdfind, jdupes, rmlint, fdupes (all)
  --scale F        factor on the number of files of the corpora, for tries (1)
TEXT
}

die() {
    echo "compare.sh: $*" >&2
    exit 2
}

say() { echo "$*" >&2; }

while (($#)); do
    case $1 in
        --help) usage; exit 0 ;;
        --runs | --corpora | --work | --cli | --threads | --peers | --scale)
            (($# > 1)) || die "$1 needs a value"
            printf -v "${1#--}" '%s' "$2"
            shift 2
            ;;
        *) usage >&2; die "unknown option $1" ;;
    esac
done
[[ $runs =~ ^[1-9][0-9]*$ ]] || die "--runs takes a number from 1"
[[ $threads =~ ^[1-9][0-9]*$ ]] || die "--threads takes a number from 1"
for corpus in $corpora; do
    [[ $corpus =~ ^(small|mixed|large|million)$ ]] || die "unknown corpus $corpus"
done
for peer in $peers; do
    [[ $peer =~ ^(rdfind|jdupes|rmlint|fdupes)$ ]] || die "unknown peer $peer"
done
[[ -x /usr/bin/time ]] || die "needs /usr/bin/time (apt-get install time)"

mkdir -p "$work"
work=$(cd "$work" && pwd -P)
readonly work out=$work/out results=$work/results
mkdir -p "$out" "$results"
readonly raw=$results/raw.tsv checks=$results/checks.tsv
: >"$raw"
: >"$checks"

cache=() # the data folder that the next run reads, if any
present=()
for peer in $peers; do
    if command -v "$peer" >/dev/null; then
        present+=("$peer")
    else
        say "compare.sh: $peer is not installed and left out (apt-get install $peer)"
    fi
done
if [[ $cli == none ]]; then
    ((${#present[@]})) || die "nothing to measure"
else
    [[ -x $cli ]] || die "no console at $cli (build the release preset, or --cli PATH)"
    command -v cc >/dev/null || die "needs a C compiler (apt-get install gcc)"
    cc -O2 -o "$out/create_files" "$here/create_files.c"
fi

# warm [CACHE]: the corpus into the page cache, before every run, until a pass reads next to nothing from disk: some
# systems drop again what was read only once.
warm() {
    local pass
    sync -f "$work"
    [[ $corpus != million ]] || return 0
    for pass in 1 2 3 4 5 6; do
        # shellcheck disable=SC2016 # the inner shell expands
        /usr/bin/time -f %I -o "$out/usage" \
            bash -c 'find "$@" -type f -print0 | xargs -0 cat >/dev/null' warm "$folder" "$@"
        (($(tail -n 1 "$out/usage") < 4096)) && return
    done
    say "  the page cache does not hold all of $folder after $pass passes"
}

# measured ROW KIND STDOUT COMMAND...: one run into the raw figures. /usr/bin/time has memory and disk reads only: its
# clock has steps of 10 ms.
measured() {
    local row=$1 kind=$2 stdout=$3 begin end seconds
    shift 3
    warm "${cache[@]}"
    begin=$EPOCHREALTIME
    /usr/bin/time -q -f $'%M\t%I' -o "$out/usage" "$@" >"$stdout" 2>"$out/stderr" ||
        die "$row failed: $* $(head -c 2000 "$out/stderr")"
    end=$EPOCHREALTIME
    seconds=$(awk -v b="$begin" -v e="$end" 'BEGIN { printf "%.6f", e - b }')
    record "$row" "$kind" "$seconds" "$(tail -n 1 "$out/usage")" "$@"
}

# record ROW KIND SECONDS KIB<tab>BLOCKS COMMAND...
record() {
    local row=$1 kind=$2 seconds=$3 usage=$4
    shift 4
    trial_seconds=$seconds
    [[ $kind == trial ]] && return
    printf '%s\t%s\t%s\t%s\t%s\t%s\n' "$corpus" "$row" "$kind" "$seconds" "$usage" "$*" >>"$raw"
    say "  $row: $seconds s"
}

rdfind_with() {
    measured rdfind "$2" "$out/log" rdfind -checksum "$1" -deterministic false -outputname "$out/rdfind.txt" "$folder"
}

# Which checksum is quickest depends on the processor's instructions.
choose_rdfind_checksum() {
    local checksum try found=
    for checksum in md5 sha1 sha256; do
        for try in 1 2 3; do
            rdfind_with "$checksum" trial
            found+="$trial_seconds $checksum $try"$'\n'
        done
    done
    rdfind_checksum=$(sort -g <<<"${found%$'\n'}" | awk 'NR == 1 { print $2 }')
    say "rdfind is quickest with $rdfind_checksum"
}

scan() {
    local row=$1 hash=$2
    shift 2
    measured "$row" ours "$out/log" "$cli" scan --hash "$hash" --threads "$threads" --format json \
        --output "$out/${row// /-}.json" "$@" "$folder"
}

scans_with_cache() {
    local hash=$1 data=$out/cache-$1 copy=$out/copy
    rm -rf "$data"
    scan "mirrix $hash first" "$hash" --data-dir "$data"
    cache=("$data")
    scan "mirrix $hash rescan" "$hash" --data-dir "$data"
    cache=()
    rm -rf "$copy"
    sync -f "$work"
    record "cache files $hash" baseline "$("$out/create_files" "$data" "$copy")" $'0\t0' create_files "$data" "$copy"
    rm -rf "$copy"
}

run_unit() {
    case $1 in
        rdfind) rdfind_with "$rdfind_checksum" peer ;;
        jdupes) measured jdupes peer "$out/jdupes.txt" jdupes -Q -r -q -C 131072 "$folder" ;;
        rmlint)
            measured rmlint peer "$out/log" rmlint -r -T df -a metro -t "$threads" --without-fiemap --no-backup \
                -o "json:$out/rmlint.json" "$folder"
            ;;
        fdupes) measured fdupes peer "$out/fdupes.txt" fdupes -r -q "$folder" ;;
        plain-*) scan "mirrix ${1#plain-}" "${1#plain-}" --no-cache --data-dir "$out/no-cache" ;;
        cached-*) scans_with_cache "${1#cached-}" ;;
    esac
}

# The arguments of groups.py for what a unit left behind.
outputs_of() {
    case $1 in
        rdfind) echo "rdfind=rdfind:$out/rdfind.txt" ;;
        jdupes | fdupes) echo "$1=sets:$out/$1.txt" ;;
        rmlint) echo "rmlint=rmlint:$out/rmlint.json" ;;
        plain-*) echo "mirrix ${1#plain-}=mirrix:$out/mirrix-${1#plain-}.json" ;;
        cached-*)
            echo "mirrix ${1#cached-} first=mirrix:$out/mirrix-${1#cached-}-first.json"
            echo "mirrix ${1#cached-} rescan=mirrix:$out/mirrix-${1#cached-}-rescan.json"
            ;;
    esac
}

check_groups() {
    local outputs=() unit answer=agree
    for unit in "${units[@]}"; do
        mapfile -t -O "${#outputs[@]}" outputs < <(outputs_of "$unit")
    done
    python3 "$here/groups.py" "${outputs[@]}" >&2 || { answer=disagree && disagreed=1; }
    printf '%s\t%s\n' "$corpus" "$answer" >>"$checks"
}

warn_if_memory_is_short() {
    local kib
    kib=$(du -sk "$folder" | cut -f 1)
    (($(awk '$1 == "MemAvailable:" { print $2 }' /proc/meminfo) > kib + kib / 4)) ||
        say "compare.sh: memory may not hold all of $folder; the figures may be those of the disk"
}

awk '$1 > 0.5 { exit 1 }' /proc/loadavg || say "compare.sh: the machine is busy, which will affect the figures"
disagreed=0
for corpus in $corpora; do
    folder=$work/corpora/$corpus
    python3 "$here/make-corpus" --scale "$scale" "$corpus" "$folder" >&2
    warn_if_memory_is_short

    units=("${present[@]}")
    if [[ $cli != none ]]; then
        units+=(plain-blake3 plain-md5)
        if [[ $corpus == million ]]; then
            say "compare.sh: million is for memory: no warming up, no scans with the cache"
        else
            units+=(cached-blake3 cached-md5)
        fi
    fi
    rdfind_checksum=sha1
    if [[ " ${present[*]} " == *" rdfind "* && $corpus != million ]]; then
        choose_rdfind_checksum
    fi

    for ((run = 0; run < runs; ++run)); do
        say "$corpus, round $((run + 1)) of $runs"
        # Each round starts with another command, so that none always has the same one before it.
        for ((i = 0; i < ${#units[@]}; ++i)); do
            run_unit "${units[(i + run) % ${#units[@]}]}"
        done
        check_groups
    done
    rm -rf "$out"/cache-* "$out/no-cache"
done

python3 "$here/report.py" "$work" | tee "$results/results.md"
exit "$disagreed"
