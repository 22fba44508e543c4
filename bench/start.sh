#!/usr/bin/env bash
# Prints what the program's start, memory and idling cost: bench/start.sh BUILD-FOLDER [RUNS]
# Starts a virtual screen and a JACK server with a device each way, and ends them.
set -euo pipefail
build=$(cd "$1" && pwd)
folder=$(mktemp -d)
trap 'kill $(jobs -p) $screen 2>/dev/null || true; rm -rf "$folder"' EXIT

export JACK_NO_AUDIO_RESERVATION=1 JACK_DEFAULT_SERVER=tonebench-bench XDG_RUNTIME_DIR=$folder
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>/dev/null)
screen=$!
read -r display <&3
export DISPLAY=:$display
jackd -r -n "$JACK_DEFAULT_SERVER" -d dummy -r 48000 -p 128 >/dev/null 2>&1 &
jack_wait -w -t 5 >/dev/null 2>&1 || sleep 1
jack_midi_dump witness >/dev/null 2>&1 &
jack_midiseq sender 48000 0 60 8000 >/dev/null 2>&1 &
sleep 1

cp "$build/tonebench" "$build/JX8P.FNT" "$folder"
printf '[MIDI]\nOutput=witness:input\nInput=sender:out\n' >"$folder/Tonebench.INI"
"$build/bench/start_bench" "$folder/tonebench" "${2:-9}"
