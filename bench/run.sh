#!/usr/bin/env bash
# Makes the tables of README.md beside this file, one part after the other.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly here bin=$here/../build/release/bin
work=${TMPDIR:-/tmp}/mirrix-bench
parts="exact memory growth log pictures rules hashing window"

usage() {
    cat <<'TEXT'
usage: run.sh [OPTIONS]
  --parts LIST   of exact, memory, growth, log, pictures, rules, hashing, window (all)
  --work DIR     files, outputs and results (${TMPDIR:-/tmp}/mirrix-bench), 24 GB for all parts
The release preset must be built. All parts take about an hour; nothing else should run at the same time.
TEXT
}

while (($#)); do
    case $1 in
        --help) usage; exit 0 ;;
        --parts | --work)
            (($# > 1)) || { usage >&2; exit 2; }
            printf -v "${1#--}" '%s' "$2"
            shift 2
            ;;
        *) usage >&2; exit 2 ;;
    esac
done

run_part() {
    case $1 in
        exact) "$here/compare.sh" --work "$work/exact" ;;
        memory) "$here/compare.sh" --work "$work/memory" --corpora million --runs 1 --peers jdupes ;;
        pictures)
            "$here/recall.sh" --work "$work/pictures" && "$bin/bench_images" || return
            # Permission to take profiles is not given everywhere; the rest holds without.
            for turned in "" --turned; do
                "$here/profile-pictures" $turned "$work"/pictures/pictures/00[0-4] || true
            done
            ;;
        growth) "$here/scale" --work "$work/growth" ;;
        log) "$bin/bench_log" ;;
        rules) "$bin/bench_match" ;;
        hashing) "$here/hashing.sh" --work "$work/hashing" ;;
        window)
            "$here/make-corpus" million "$work/window" || return
            QT_QPA_PLATFORM=offscreen "$bin/bench_results" && QT_QPA_PLATFORM=offscreen "$bin/bench_window" "$work/window"
            ;;
        *) echo "run.sh: unknown part $1" >&2; return 2 ;;
    esac
}

failed=
for part in $parts; do
    printf '\n## %s\n\n' "$part"
    run_part "$part" || failed+=" $part"
done
[[ -z $failed ]] || { echo "run.sh: failed:$failed" >&2; exit 1; }
