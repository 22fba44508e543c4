#!/usr/bin/env bash
# Runs clang-tidy over the program's sources: tools/tidy.sh BUILD-FOLDER
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
git ls-files 'src/*.cpp' | xargs -P2 -n4 clang-tidy -p "$1" --quiet --extra-arg=-Wno-unknown-warning-option 2>/dev/null
