#!/usr/bin/env bash
# Plays for a long time and accounts for every message: bench/soak.sh BUILD-FOLDER [SECONDS] [async]
# The program on a virtual screen with a JACK server: the sequencer at tempo 120 in random mode, the oscillator at
# one millisecond into VCF Cutoff, a hand that drags VCF Resonance without end, all on one port. Behind it, what
# the port was given (the tap), what a witness at the other end heard, what the rules of the engines say must have
# been played, and the memory meanwhile. Ends with 1 when a message is missing, torn or too many.
#
# The server waits for its clients. With "async" it does not, as it usually runs: on a machine that is too busy to
# call a client in its period it then drops what that client had to say, which no client can prevent.
set -euo pipefail
build=$(cd "$1" && pwd)
seconds=${2:-600}
. "$(dirname "${BASH_SOURCE[0]}")/stage.sh"

start_screen
if [ "${3:-}" = async ]; then start_jack; else start_jack -S; fi
start_program "$build/bench/tapped_tonebench" jack
open_sequencer
click 220 119 # the fourth direction: random
start_sequencer
open_oscillator
start_oscillator

"$bench/hand.py" drag "$stage/moves.txt" 446 $((40 + menu)) $((120 + menu)) "$seconds" 0.02 &
hand=$!
for _ in $(seq 0 10 "$seconds"); do
    grep -h '^RssAnon:' "/proc/$program/status" >>"$stage/memory.txt"
    sleep 10 &
    wait $! || true
    kill -0 "$hand" 2>/dev/null || break
done
wait "$hand"
stop_oscillator
click 274 232 # the panel's stop of the sequencer
end_program
witness_ends
cat "$stage/witness.txt"
"$bench/account.py" "$stage"
