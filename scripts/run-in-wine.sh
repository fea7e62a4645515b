#!/usr/bin/env bash
# Runs a cross-built program under Wine: run-in-wine.sh PROGRAM.exe [ARG...]. A Qt Test program prints its report, which
# under Wine never reaches a pipe by itself. The exit status is the program's.
#
# WINDOWS_SDK names the prefix with the libraries (default: .deps/winsdk); WINEPREFIX the Wine folder to use (default:
# one of this checkout, made on first use). Tests need no display; what shows a window needs one (xvfb-run).
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
sdk=${WINDOWS_SDK:-$root/.deps/winsdk}
export WINEPREFIX=${WINEPREFIX:-$root/build/wine}
export WINEDEBUG=${WINEDEBUG:--all}
wine=/usr/lib/wine/wine64

windows_path() { printf 'Z:%s' "${1//\//\\}"; }

gcc=$(dirname "$(x86_64-w64-mingw32-gcc-posix -print-libgcc-file-name)")
WINEPATH=$(windows_path "$sdk/qt/bin")
for folder in "$sdk/bin" "$gcc" /usr/x86_64-w64-mingw32/lib; do
    WINEPATH+=";$(windows_path "$folder")"
done
export WINEPATH
mkdir -p "$WINEPREFIX" # its parent must exist before Wine makes it

program=$1
shift
case "$(basename "$program")" in
tst_*)
    report=$(mktemp)
    trap 'rm -f "$report"' EXIT
    if [ -n "${QT_QPA_PLATFORM:-}" ]; then
        set -- "$@" -platform "$QT_QPA_PLATFORM" # Wine keeps Qt's variables from its programs
    fi
    status=0
    "$wine" "$program" -o "$(windows_path "$report"),txt" "$@" </dev/null || status=$?
    cat "$report"
    exit "$status"
    ;;
*)
    exec "$wine" "$program" "$@"
    ;;
esac
