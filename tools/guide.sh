#!/usr/bin/env bash
# Makes web pages of the user's guide: tools/guide.sh FOLDER
# FOLDER/index.html is the first page. Installs python3-markdown when it is missing.
set -euo pipefail
[ $# -eq 1 ] || { printf 'usage: %s FOLDER\n' "$0" >&2; exit 2; }
out=$(realpath -m "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/setup.sh

install_missing python3 python3-markdown
say "writing the guide's pages into $out"
/usr/bin/python3 tools/guide.py docs/guide "$out" || fail "the guide's pages could not be written"
say "the first page is $out/index.html"
