#!/usr/bin/env bash
# Runs every fuzz target for so many seconds: tools/fuzz.sh BUILD-FOLDER SECONDS
set -euo pipefail
for target in "$1"/fuzz/*_fuzz; do
    printf '== %s for %s s\n' "$(basename "$target")" "$2"
    "$target" -max_total_time="$2" -max_len=4096 -print_final_stats=1 -verbosity=0 2>&1 | grep number_of_executed_units ||
        { printf 'tonebench: %s found something\n' "$(basename "$target")" >&2; exit 1; }
done
