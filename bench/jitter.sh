#!/usr/bin/env bash
# Prints how evenly the sequencer's steps leave the port while the program is worked: bench/jitter.sh
# BUILD-FOLDER [SECONDS]
# Starts a virtual screen and a JACK server, plays at the highest tempo (a step every 62 ms) with the
# sequencer's window open and its lights running, drags a slider on the panel all the time, and looks at the
# times by the system's clock at which the first note of each step arrives at another client. A step's due time
# is the first one's plus so many intervals, with the middle of all differences as the first one's.
set -euo pipefail
build=$(cd "$1" && pwd)
seconds=${2:-30}
folder=$(mktemp -d)
trap 'kill $(jobs -p) $screen 2>/dev/null || true; rm -rf "$folder"' EXIT

rate=48000
export JACK_NO_AUDIO_RESERVATION=1 JACK_DEFAULT_SERVER=tonebench-jitter XDG_RUNTIME_DIR=$folder
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>/dev/null)
screen=$!
read -r display <&3
export DISPLAY=:$display
jackd -r -n "$JACK_DEFAULT_SERVER" -d dummy -r $rate -p 128 >/dev/null 2>&1 &
sleep 1
mkfifo "$folder/end"
"$build/bench/step_witness" 144 60 <"$folder/end" >"$folder/heard" 2>/dev/null &
witness=$!
exec 4>"$folder/end"
jack_midiseq sender $rate 0 60 8000 >/dev/null 2>&1 &
sleep 1

# Tempo 120, base note 48, one note in each step.
{
    printf 'SEQ1\x78\x30'
    for _ in 1 2 3 4 5 6 7 8; do printf '\x7f%012d' 0 | tr 0 '\0'; done
} >"$folder/bench.seq"
cp "$build/tonebench" "$build/JX8P.FNT" "$folder"
printf '[MIDI]\nOutput=witness:input\nInput=sender:out\nSequence Preload=1\n[Recent Files]\nSequence1=%s\n' \
    "$folder/bench.seq" >"$folder/Tonebench.INI"
"$folder/tonebench" &
program=$!
sleep 2
xdotool key alt+m
sleep 0.3
xdotool key u
sleep 0.7
xdotool key space # Start has the focus
sleep 1

# The slider is dragged up and down, a move every few milliseconds.
xdotool mousemove 446 144 mousedown 1
moves=()
for row in $(seq 60 4 160) $(seq 160 -4 60); do moves+=(mousemove 446 "$row" sleep 0.008); done
end=$((SECONDS + seconds))
while [ $SECONDS -lt $end ]; do xdotool "${moves[@]}"; done
xdotool mouseup 1 key ctrl+x
for _ in $(seq 10); do # the dragged tone is not saved
    sleep 0.5
    kill -0 $program 2>/dev/null || break
    xdotool key alt+n
done
kill $program 2>/dev/null || true
wait $program 2>/dev/null || true

echo >&4
wait $witness

python3 - "$folder/heard" <<'EOF'
import statistics, sys

INTERVAL = 62
lines = open(sys.argv[1]).read().split("\n")
times = [int(line) / 1000 for line in lines if line.isdigit()]
others = next(line.split()[0] for line in lines if line.endswith("others"))
steps = [round((time - times[0]) / INTERVAL) for time in times]
late = [time - step * INTERVAL for time, step in zip(times, steps)]
middle = statistics.median(late)
off = [abs(difference - middle) for difference in late]
inside = sum(difference <= 2 for difference in off)
print(f"{len(off)} steps at {INTERVAL} ms, with {others} other messages beside their first notes")
print(f"within 2 ms of their due time: {100 * inside / len(off):.2f} %, the furthest {max(off):.1f} ms off")
print(f"the last step against the first: {late[-1] - late[0]:+.1f} ms, steps not heard: {steps[-1] + 1 - len(steps)}")
EOF
