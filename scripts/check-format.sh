#!/usr/bin/env bash
# Ends with 1 and a diff when a source is not formatted as .clang-format asks. With --fix, formats instead.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mapfile -t files < <(git ls-files --cached --others --exclude-standard '*.cpp' '*.h' '*.c')
if [ "${1:-}" = --fix ]; then
    clang-format -i "${files[@]}"
else
    clang-format --dry-run --Werror "${files[@]}"
    echo "${#files[@]} files formatted"
fi
