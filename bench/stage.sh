# What the figures are taken on, for the scripts beside this one: a virtual screen, a JACK server of 48000 Hz
# and 128 frames with the witness and an instrument that could send, and the program in a folder of its own.
# Needs $build, the folder of the build. Everything ends with the script.

stage=$(mktemp -d)
bench=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
screen= server= witness= sender= program=
export XDG_RUNTIME_DIR=$stage
trap stage_ends EXIT

stage_ends() {
    exec 4>&-
    kill $program $sender $witness 2>/dev/null || true
    sleep 0.3 # the server behind its clients: it is busy for seconds with one that was killed
    kill $(jobs -p) $server $screen 2>/dev/null || true
    wait $server 2>/dev/null || true
    rm -rf "$stage"
}

start_screen() {
    exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp -noreset 2>/dev/null)
    screen=$!
    local display
    read -r display <&3
    export DISPLAY=:$display
}

# The witness writes what it has heard to $stage/heard.txt when witness_ends is called.
start_jack() {
    export JACK_NO_AUDIO_RESERVATION=1 JACK_DEFAULT_SERVER=tonebench-bench-$$
    jackd -r -n "$JACK_DEFAULT_SERVER" "$@" -d dummy -r 48000 -p 128 >"$stage/jack.txt" 2>&1 &
    server=$!
    local tries
    for tries in $(seq 100); do
        jack_lsp >/dev/null 2>&1 && break
        sleep 0.1
    done
    mkfifo "$stage/end"
    "$build/bench/witness" "$stage/heard.txt" <"$stage/end" >"$stage/witness.txt" 2>/dev/null &
    witness=$!
    exec 4>"$stage/end"
    jack_midiseq sender 48000 0 60 8000 >/dev/null 2>&1 &
    sender=$!
    for tries in $(seq 100); do
        [ "$(jack_lsp 2>/dev/null | grep -c '^witness:input\|^sender:out')" = 2 ] && break
        sleep 0.1
    done
}

witness_ends() {
    echo >&4
    wait "$witness"
}

# A sequence for tempo 120, base note 48; step s has a loud note in row s.
write_sequence() {
    local step
    {
        printf 'SEQ1\x78\x30'
        for step in 0 1 2 3 4 5 6 7; do
            head -c "$step" /dev/zero
            printf '\x7f'
            head -c $((12 - step)) /dev/zero
        done
    } >"$stage/bench.seq"
}

# start_program PROGRAM [jack]: waits until the panel shows; $menu is then the rows above it. Without JACK two boxes
# tell before that there is no MIDI.
start_program() {
    cp "$1" "$stage/tonebench"
    cp "$build/JX8P.FNT" "$stage"
    write_sequence
    : >"$stage/Tonebench.INI"
    [ "${2:-}" != jack ] ||
        printf '[MIDI]\nOutput=witness:input\nInput=sender:out\nSequence Preload=1\n[Recent Files]\nSequence1=%s\n' \
            "$stage/bench.seq" >"$stage/Tonebench.INI"
    (cd "$stage" && exec ./tonebench) &
    program=$!
    menu=
    local tries
    for tries in $(seq 100); do
        menu=$(import -window root -crop 1x100+520+0 -depth 8 txt:- | awk -F'[,:]' '/#1B1D21/ && !n++ {print $2}')
        [ -z "$menu" ] || break
        [ "${2:-}" = jack ] || xdotool key Return
        sleep 0.2
    done
    sleep 0.5
}

click() { # place on the panel
    xdotool mousemove "$1" $(($2 + menu)) click 1
    sleep 0.3
}

press() {
    xdotool key "$1"
    sleep "${2:-0.3}"
}

# The sequencer at tempo 120; a click anywhere else in its window first may choose a direction.
open_sequencer() {
    press ctrl+u 0.7
}
start_sequencer() { click 329 159; }
stop_sequencer() { click 391 159; }

# The oscillator on VCF Cutoff with 18 values that differ, a step every millisecond.
open_oscillator() {
    press ctrl+i 0.7
    local left=67 top=$((132 + menu)) moves=() point
    for point in $(seq 1 17); do moves+=(mousemove $((left + 8 + 7 * point + 5)) $((top + 24 + 4 + 7 * point)) sleep 0.02); done
    xdotool mousemove $((left + 11)) $((top + 28)) mousedown 1 mousemove $((left + 12)) $((top + 28)) "${moves[@]}" mouseup 1
    click $((left + 310)) $((132 + 32))
    press Home
    for point in $(seq 17); do press Down 0.05; done
    press Return
    click $((left + 213)) $((132 + 94))
    press Home
    press Up
}
start_oscillator() { click 87 304; }
stop_oscillator() { click 113 304; }

# Ends it by its own menu; what was dragged is not saved.
end_program() {
    press ctrl+x
    local tries
    for tries in $(seq 20); do
        kill -0 "$program" 2>/dev/null || break
        sleep 0.2
        [ "$tries" = 1 ] || xdotool key alt+n
    done
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
}
