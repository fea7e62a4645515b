#!/usr/bin/env bash
# Feeds every parser by libFuzzer: scripts/fuzz.sh [SECONDS [TARGET...]], 60 seconds each by default. Corpora are made
# here and grow in build/fuzz/corpus; what breaks a parser is left in build/fuzz as TARGET-crash-*.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

seconds=${1:-60}
shift || true
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    targets=(settings index fingerprint feature log plainlog journal plainjournal binnote options assignment extensions
        redaction rulekey)
fi

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target mirrix_fuzz

# seed TARGET TEXT...: one file a text.
seed() {
    local target=$1 number=0
    shift
    mkdir -p "build/fuzz/corpus/$target"
    for text in "$@"; do
        printf '%b' "$text" >"build/fuzz/corpus/$target/seed-$((number += 1))"
    done
}

seed settings '{"keepRule":1,"lastRoots":["/a"],"minFileBytes":-1e300,"uiLanguage":"en","other":[1]}' '[]' '' \
    '{"locations":[{"path":"/a","enabled":true,"protected":1,"subfolders":false,"find":2,"showRemaining":true}]}'
seed index '[{"original":"OUT/x","backup":"STORE/file","size":6,"at":1}]' \
    '[{"original":"OUT/../secret","backup":"STORE/../secret","size":6,"at":1}]' \
    '[{"original":"OUT/a","backup":"STORE/.mirrix-0123456789abcdef.aside"}]'
seed fingerprint '{"algo":"md5","full":"00","mtimeMs":7,"quick":"71717171717171717171717171717171","size":5}' '[]'
seed feature '{"size":5,"mtimeMs":7,"primary":"ff","variants":["ff","1"],"histogramValid":true,"histogram":"AAAA"}'
seed log '0123456789abcdef0123456789abcdef' ''
seed plainlog '[{"t":1,"a":"x","d":"y"}]' '[{"t":1e400,"a":1,"d":"\\ud800"}]' '{}'
seed journal '' '\x1c\0\0\0012345678901234567890123456789'
seed plainjournal '{"run":{"planned":2}}\n{"planned":[["/a","/b",1,2,3,4,"","",""]]}\n{"outcomes":[[0,"done","/c","","",5,6]]}\n{"end":{}}'
seed binnote '[Trash Info]\nPath=a%20b\nDeletionDate=2024-02-29T12:00:00' \
    '\x02\0\0\0\0\0\0\0\x05\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x02\0\0\0a\0\0\0'
seed options '{"roots":["/a"],"minFileBytes":1,"similarPercent":90,"sameName":true,"locations":[{"path":"/a"}]}' '{}'
seed assignment 'minFileBytes=1' 'createdFromMs=9223372036854775807' 'includeExtensions=a,b' 'roots=["/a"]' 'sameName=true'
seed extensions '*.jpg; .PNG,,gif' '*.*' ' \t.tar.gz'
seed redaction 'C:/Users/me/x' 'c:\\\\USERS\\\\me' '/home/me'
seed rulekey '{"sameName":true,"sameSize":true,"sameFolderPath":true,"folderPathDepth":2}\n/a/b/name (1).txt'

# Names of members, which libFuzzer cannot see being compared.
{
    grep -ohE '"[A-Za-z]{2,30}"' app/settings.cpp core/cache/*.cpp actions/*.cpp actions/records/*.{h,cpp} \
        ui/state/locationsjson.cpp | tr -d '"'
    grep -ohE '[A-Za-z]+( = .*)?;' app/settings.h core/model/scanoptions.h | grep -oE '^[A-Za-z]+'
} | sort -u | sed 's/.*/"\\"&\\":"/' >build/fuzz/names.dict

# In memory, where a flush costs nothing.
if [ -d /dev/shm ]; then
    export TMPDIR=/dev/shm
fi
status=0
for target in "${targets[@]}"; do
    echo "== $target"
    scratch=$(mktemp -d)
    MIRRIX_FUZZ_TARGET=$target TMPDIR=$scratch build/fuzz/bin/mirrix_fuzz "-max_total_time=$seconds" -max_len=4096 \
        -dict=build/fuzz/names.dict -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 -verbosity=0 \
        "-artifact_prefix=build/fuzz/$target-" "build/fuzz/corpus/$target" || status=1
    rm -rf "$scratch"
done
exit $status
