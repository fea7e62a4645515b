#!/usr/bin/env bash
# The long forms of the tests that ctest runs short: every fault, every kill, races, all tests under the sanitizers, ten
# minutes of the window driven at random under the address sanitizer, and ten minutes of each fuzzer.
# scripts/stress.sh [faults|kills|races|asan|tsan|monkey|fuzz]...; everything without arguments, which takes some hours.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

parts=("$@")
if [ ${#parts[@]} -eq 0 ]; then
    parts=(faults kills races asan tsan monkey fuzz)
fi
cmake --preset dev >/dev/null
cmake --build --preset dev --target tst_faults tst_races tst_crashes mirrix-cli

# Runs wait for the disk at every flush; in memory they take a fifth of the time.
if [ -d /dev/shm ]; then
    export TMPDIR=/dev/shm
fi
status=0
for part in "${parts[@]}"; do
    echo "=== $part"
    case $part in
        faults) MIRRIX_FAULT_STRIDE=1 QTEST_FUNCTION_TIMEOUT=86400000 build/dev/bin/tst_faults || status=1 ;;
        kills) QTEST_FUNCTION_TIMEOUT=86400000 build/dev/bin/tst_crashes || status=1 ;;
        races) MIRRIX_RACE_ROUNDS=5000 QTEST_FUNCTION_TIMEOUT=86400000 build/dev/bin/tst_races || status=1 ;;
        asan | tsan)
            if [ "$part" = tsan ] && [ ! -d .deps/qt-tsan ]; then
                scripts/build-qt-tsan.sh
            fi
            cmake --preset "$part" >/dev/null
            cmake --build --preset "$part"
            ctest --preset "$part" -j2 || status=1
            ;;
        monkey)
            cmake --preset asan >/dev/null
            cmake --build --preset asan --target tst_monkey
            LSAN_OPTIONS=suppressions=$PWD/cmake/lsan.supp QT_QPA_PLATFORM=offscreen MIRRIX_MONKEY_SECONDS=600 \
                QTEST_FUNCTION_TIMEOUT=86400000 build/asan/bin/tst_monkey -maxwarnings 0 |
                grep -v "This plugin does not support" || status=1
            ;;
        fuzz) scripts/fuzz.sh 600 || status=1 ;;
        *)
            echo "faults, kills, races, asan, tsan, monkey or fuzz, not \"$part\"" >&2
            exit 2
            ;;
    esac
done
exit $status
