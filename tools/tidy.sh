#!/usr/bin/env bash
# Runs clang-tidy over the program's sources: tools/tidy.sh BUILD-FOLDER
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# What gcc keeps of the headers it has read, clang cannot read.
mkdir -p "$1/tidy"
sed 's/ -include [^ ]*cmake_pch\.hxx//' "$1/compile_commands.json" >"$1/tidy/compile_commands.json"
git ls-files 'src/*.cpp' |
    xargs -P2 -n1 clang-tidy -p "$1/tidy" --quiet --extra-arg=-Wno-unknown-warning-option 2>/dev/null
