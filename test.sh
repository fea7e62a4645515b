#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test. Arguments go to ctest (for example -R core).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

./scripts/install-deps.sh
cmake --preset dev >/dev/null
cmake --build --preset dev
ctest --preset dev "$@"
