#!/usr/bin/env bash
# Prints every figure with its limit beside it, as a table: bench/table.sh BUILD-FOLDER [FIGURE...]
# Figures: drag start memory idle jitter scan build refresh folder exit. Without one: all, in five to ten minutes.
# What each is and what its limit means is told in docs/speed.md.
set -euo pipefail
build=$(cd "$1" && pwd)
shift
bench=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$bench/stage.sh"

slider=446 # VCF Resonance, which stands at its lower end in the new tone

row() { # figure, measured, limit, name
    printf '| %s | %s | %s | `%s` |\n' "$1" "$2" "$3" "$4"
}

drag_slider() { # seconds, gap
    "$bench/hand.py" drag "$stage/moves.txt" $slider $((40 + menu)) $((120 + menu)) "$1" "$2"
}

# Runs a benchmark without its talk: bench_run PROGRAM [ARGUMENTS]. Then `bench_figure NAME` is the middle of its
# times in microseconds, `bench_rate NAME` that of its megabytes a second.
bench_run() {
    "$build/bench/$1" "${@:2}" --benchmark_out="$stage/bench.json" --benchmark_out_format=json >/dev/null 2>&1
}
bench_pick() {
    python3 - "$stage/bench.json" "$1" "$2" <<'PYTHON'
import json, sys
for run in json.load(open(sys.argv[1]))["benchmarks"]:
    if run["run_name"].split("/repeats")[0] == sys.argv[2] and run["aggregate_name"] == "median":
        value = run["cpu_time"] if sys.argv[3] == "time" else run["bytes_per_second"] / 1e6
        print(f"{value:.2g}" if value < 10 else f"{value:.0f}")
PYTHON
}
bench_figure() { bench_pick "$1" time; }
bench_rate() { bench_pick "$1" rate; }

stage_anew() { # the screen stays
    exec 4>&-
    kill $sender 2>/dev/null || true
    [ -z "$witness" ] || wait "$witness" 2>/dev/null || true
    sleep 0.3
    kill $server 2>/dev/null || true
    wait $server 2>/dev/null || true
    server= witness= sender=
    rm -f "$stage/end"
}

figure_drag() {
    start_jack -S
    start_program "$build/bench/tapped_tonebench" jack
    drag_slider 5 0.04
    end_program
    witness_ends
    stage_anew
    python3 - "$stage" <<'PYTHON'
import bisect, sys
folder = sys.argv[1]
def slider(name):
    lines = (line.split() for line in open(f"{folder}/{name}"))
    return [int(time) for time, message, *_ in lines if message.startswith("f041360021200123")]
moves = [int(line) for line in open(f"{folder}/moves.txt")][:101]
def behind(times):
    waits = sorted(times[bisect.bisect(times, move)] - move for move in moves[:100])
    return waits[49] / 1000, waits[98] / 1000
for what, times, limit in (("the bytes at our port", slider("sent.txt"), "a frame of the display: 16.7 ms"),
                           ("the bytes at the other end", slider("heard.txt"),
                            "a period of the server: 2.7 ms; the wire's 10 bytes: 3.2 ms")):
    middle, late = behind(times)
    print(f"| a drag event to {what}, middle and 99th of 100 | {middle:.1f} and {late:.1f} ms | {limit} | `drag` |")
PYTHON
}

figure_start() {
    start_jack
    printf '[MIDI]\nOutput=witness:input\nInput=sender:out\n' >"$stage/Tonebench.INI"
    cp "$build/tonebench" "$build/JX8P.FNT" "$stage"
    read -r ours memory < <("$build/bench/start_bench" 9 "$stage/tonebench")
    read -r bare bare_memory < <("$build/bench/start_bench" 9 "$build/bench/start_bench" bare)
    local listed=() begin
    for _ in 1 2 3 4 5 6 7 8 9; do
        begin=$(date +%s%N)
        jack_lsp >/dev/null 2>&1
        listed+=($((($(date +%s%N) - begin) / 1000000)))
    done
    stage_anew
    [ "$1" != start ] ||
        row "start to the first painted panel, JACK running" "$ours ms" \
            "the toolkit's empty window: $bare ms; jack_lsp: $(printf '%s\n' "${listed[@]}" | sort -n | sed -n 5p) ms" start
    [ "$1" != memory ] ||
        row "resident memory (private and files)" "$memory MB" "the toolkit's empty window: $bare_memory MB" memory
}
figure_memory() { figure_start memory; }

# Processor time that all threads have used so far, in nanoseconds.
time_used() { # process
    cat /proc/"$1"/task/*/schedstat | awk '{sum += $1} END {printf "%d", sum}'
}

# What a process takes of a core, over 20 seconds.
idle_load() { # process
    sleep 1
    local before after
    before=$(time_used "$1")
    sleep 20
    after=$(time_used "$1")
    awk -v time=$((after - before)) 'BEGIN {printf "%.2f %%", time / 20e7}'
}

figure_idle() {
    start_program "$build/tonebench"
    # Two boxes tell that there is no MIDI.
    row "idle with the blink on, without MIDI" "$(idle_load "$program") of a core" "asked: 0.5 %" idle
    end_program
    start_jack
    local load listens plays player
    listens=$(idle_load "$witness")
    start_program "$build/tonebench" jack
    press ctrl+t 0.5
    load=$(idle_load "$program")
    end_program
    # In the program's place, a client with an output and next to nothing to say.
    jack_midiseq player 480000 0 60 8000 >/dev/null 2>&1 &
    player=$!
    sleep 1
    jack_connect player:out witness:input
    plays=$(idle_load "$player")
    kill "$player"
    row "idle with an open port, JACK at 128 frames" "$load of a core" \
        "asked: 0.5 %; a JACK client that only listens: $listens, one that plays in the program's place: $plays" idle
    stage_anew
}

figure_jitter() {
    local load
    for load in without with; do
        start_jack -S
        start_program "$build/tonebench" jack
        open_sequencer
        start_sequencer
        if [ $load = with ]; then drag_slider 30 0.008; else sleep 30; fi
        stop_sequencer
        end_program
        witness_ends
        stage_anew
        python3 - "$stage/heard.txt" $load <<'PYTHON'
import statistics, sys
INTERVAL = 62
lines = (line.split() for line in open(sys.argv[1]))
times = [int(time) / 1000 for time, message in lines if message.startswith("903c")]
steps = [round((time - times[0]) / INTERVAL) for time in times]
late = [time - step * INTERVAL for time, step in zip(times, steps)]
middle = statistics.median(late)
off = sorted(abs(difference - middle) for difference in late)
print(f"| a step of the sequencer against its due time, {sys.argv[2]} load: within 2 ms, furthest | "
      f"{100 * sum(difference <= 2 for difference in off) / len(off):.1f} % of {len(off)}, {off[-1]:.1f} ms | "
      f"a period of the server: 2.7 ms | `jitter` |")
print(f"| the last of these steps against the first, steps not heard | "
      f"{statistics.median(late[-9:]) - statistics.median(late[:9]):+.1f} ms, {steps[-1] + 1 - len(steps)} | 0 | `jitter` |")
PYTHON
    done
}

figure_scan() {
    bench_run scan_bench
    local size name copied
    copied=$(bench_rate Memory_Copied/268435456)
    for size in "1024 1_KB" "32768 32_KB" "1048576 1_MB" "16777216 16_MB" "268435456 256_MB"; do
        name=${size#* }
        row "a tone file of ${name/_/ }" "$(bench_rate "Tone_And_Nothing_Else/${size% *}") MB/s" \
            "a copy in memory: $copied MB/s" scan
    done
    row "the reading alone of a file of 256 MB" "$(bench_rate File_Read_Only/268435456) MB/s" \
        "a copy in memory: $copied MB/s" scan
}

figure_build() {
    bench_run panel_bench --benchmark_filter='Whole_Tone_Message|Slider_Drag'
    row "the whole tone's message of 90 bytes" "$(bench_figure Whole_Tone_Message) µs" "the wire: 28800 µs" build
    row "a slider's drag event to the port, without toolkit and screen" "$(bench_figure Slider_Drag_To_Bytes) µs" \
        "the wire: 3200 µs" build
}

figure_refresh() {
    bench_run panel_bench --benchmark_filter=Panel_Refresh
    row "all controls to a new tone, without painting" "$(bench_figure Panel_Refresh) µs" \
        "a frame of the display: 16700 µs" refresh
    bench_run window_bench
    row "all controls to a new tone, painted" "$(bench_figure Panel_Refresh_Painted) µs" \
        "a frame of the display: 16700 µs" refresh
    row "all windows compared with their records, behind each event" "$(bench_figure Windows_Compared) µs" \
        "a frame of the display: 16700 µs" refresh
    row "a step of the oscillator with its window" "$(bench_figure Oscillator_Step_On_Screen) µs" \
        "its shortest interval: 1000 µs" refresh
}

figure_folder() {
    bench_run folder_bench
    local names
    names=$(bench_figure Names_Alone/50000)
    row "both lists of a folder of 5,000 files" "$(bench_figure Both_Lists/5000) µs" "a tenth of the next" folder
    row "both lists of a folder of 50,000 files" "$(bench_figure Both_Lists/50000) µs" "the names alone: $names µs" folder
}

figure_exit() {
    local midi times sync
    for midi in without with; do
        times=()
        for _ in 1 2 3 4 5; do
            if [ $midi = without ]; then
                start_program "$build/tonebench"
            else
                [ -n "$server" ] || start_jack
                start_program "$build/tonebench" jack
                press ctrl+t 0.5
            fi
            times+=("$("$bench/hand.py" exit "$program")")
            wait "$program" 2>/dev/null || true
        done
        sync=$(python3 - "$stage" <<'PYTHON'
import os, sys, time
settings, times = open(sys.argv[1] + "/Tonebench.INI", "rb").read(), []
for _ in range(9):
    begin = time.monotonic()
    with open(sys.argv[1] + "/beside", "wb") as file:
        file.write(settings)
        file.flush()
        os.fsync(file.fileno())
    os.rename(sys.argv[1] + "/beside", sys.argv[1] + "/instead")
    times.append((time.monotonic() - begin) * 1000)
print(f"{sorted(times)[4]:.1f}")
PYTHON
        )
        row "Ctrl+X to the end of the process, settings written, $midi an open port at JACK" \
            "$(printf '%s\n' "${times[@]}" | sort -n | sed -n 3p) ms" "a file of this size put on the disk: $sync ms" \
            exit
    done
    stage_anew
}

processor=$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1)
printf '%s, %d cores, %s, Qt %s\n\n' "$processor" "$(nproc)" "$(. /etc/os-release && echo "$PRETTY_NAME")" \
    "$(pkg-config --modversion Qt6Core)"
printf '| what | figure | limit | alone |\n| --- | --- | --- | --- |\n'
[ $# -gt 0 ] || set -- drag start memory idle jitter scan build refresh folder exit
start_screen
for figure; do "figure_$figure" "$figure"; done
