#!/usr/bin/env bash
# Runs the fuzz targets and prints a line for each: inputs, seconds, inputs a second, findings.
#
#   tools/fuzz.sh BUILD-FOLDER SECONDS [TARGET...]         so long each, two side by side
#   tools/fuzz.sh BUILD-FOLDER --runs COUNT [TARGET...]    so many inputs each, one after the other
#
# TARGET is a name as in fuzz/CMakeLists.txt; without any all targets run. The input of a finding is kept in
# BUILD-FOLDER/findings, and what the target said beside it.
set -euo pipefail
build=$(realpath "$1")
here=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
if [ "$2" = --runs ]; then
    limit="-runs=$3 -entropic=0" side_by_side=1
    shift 3
else
    limit=-max_total_time=$2 side_by_side=2
    shift 2
fi
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    for program in "$build"/fuzz/*_fuzz; do targets+=("$(basename "$program" _fuzz)"); done
fi
mkdir -p "$build/findings"

# Stacks of allocations are not kept: they cost a third of the speed. A finding can be run again with them.
export ASAN_OPTIONS=malloc_context_size=1:quarantine_size_mb=16

run() {
    local target=$1 log=$build/findings/$1.log dictionary=$here/fuzz/dictionaries/$1.dict options=()
    [ -f "$dictionary" ] && options=(-dict="$dictionary")
    # Seeds are copied: what is found on the way is not kept.
    local seeds=$build/fuzz/seeds/$target longest=600 corpus=
    if [ -d "$seeds" ]; then
        corpus=$(mktemp -d)
        cp "$seeds"/* "$corpus"
        longest=4096
    fi
    local begin result=0
    begin=$(date +%s.%N)
    "$build/fuzz/${target}_fuzz" $limit "${options[@]}" -max_len=$longest -detect_leaks=0 -print_final_stats=1 \
        -artifact_prefix="$build/findings/$target-" ${corpus:+"$corpus"} >"$log" 2>&1 || result=1
    [ -z "$corpus" ] || rm -rf "$corpus"
    local inputs
    inputs=$(sed -n 's/^stat::number_of_executed_units: //p' "$log")
    awk -v target="$target" -v inputs="${inputs:-0}" -v begin="$begin" -v end="$(date +%s.%N)" -v found=$result '
        BEGIN { seconds = end - begin
                printf "%-14s %10d inputs %7.0f s %7.0f/s   %s\n", target, inputs, seconds, inputs / seconds,
                       found ? "A FINDING" : "no findings" }'
    [ $result -eq 0 ] || { tail -n 30 "$log" >&2; return 1; }
}
export -f run
export build here limit
printf '%s\n' "${targets[@]}" | xargs -P "$side_by_side" -I{} bash -c 'run {}' ||
    { printf 'tonebench: a fuzz target found something, see %s\n' "$build/findings" >&2; exit 1; }
