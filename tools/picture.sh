#!/usr/bin/env bash
# Takes the pictures of the documents from the real program: tools/picture.sh BUILD-FOLDER
# Starts a virtual screen and a JACK server with a device each way, plays a little on the panel, and writes
# docs/panel.png, docs/panel@2x.png, docs/sequencer.png and docs/setup.png.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$(cd "$1" && pwd)
docs=$PWD/docs
folder=$(mktemp -d)
trap 'kill $(jobs -p) $screen 2>/dev/null || true; rm -rf "$folder"' EXIT

export JACK_NO_AUDIO_RESERVATION=1 JACK_DEFAULT_SERVER=tonebench-picture XDG_RUNTIME_DIR=$folder
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1100x24 -nolisten tcp 2>/dev/null)
screen=$!
read -r display <&3
export DISPLAY=:$display
jackd -r -n "$JACK_DEFAULT_SERVER" -d dummy -r 48000 -p 128 >/dev/null 2>&1 &
sleep 1
jack_midi_dump instrument >/dev/null 2>&1 &
jack_midiseq keyboard 48000 0 60 8000 >/dev/null 2>&1 &
sleep 1
cp "$build/tonebench" "$build/JX8P.FNT" "$folder"
printf '[MIDI]\nOutput=instrument:input\nInput=keyboard:out\n' >"$folder/Tonebench.INI"

# Sets some controls: name of a key, times, and the place of the control on the panel.
touch_control() {
    local x=$1 y=$2 key=$3 times=$4
    xdotool mousemove $((x * scale)) $(((y + menu) * scale)) click 1
    for _ in $(seq "$times"); do xdotool key "$key"; done
}

# Shoots the window at a device pixel ratio into a file.
shoot() {
    scale=$1
    menu=22
    QT_SCALE_FACTOR=$scale "$folder/tonebench" &
    local program=$!
    sleep 2
    touch_control 27 70 Up 1        # range 8'
    touch_control 67 70 Home 1      # sawtooth
    touch_control 127 70 Up 1
    touch_control 167 70 Home 1
    touch_control 197 70 Up 3       # cross modulation
    touch_control 196 115 Page_Up 1 # fine tune
    touch_control 27 240 Page_Up 1
    touch_control 267 120 Home 1
    touch_control 306 120 Page_Up 5
    touch_control 407 120 Page_Up 4
    touch_control 407 240 Page_Up 5
    touch_control 446 240 Page_Up 3
    touch_control 497 120 Page_Up 6
    touch_control 143 445 Page_Up 1
    touch_control 173 445 Page_Up 4
    touch_control 203 445 Page_Up 5
    touch_control 233 445 Page_Up 3
    touch_control 323 445 Page_Up 0
    touch_control 353 445 Page_Up 5
    touch_control 383 445 Page_Up 6
    touch_control 413 445 Page_Up 3
    touch_control 496 426 Up 2      # chorus 2
    touch_control 53 445 Page_Up 2
    touch_control 92 445 Page_Up 5
    touch_control 446 120 Page_Up 3 # resonance last: its value stands in the display
    sleep 0.2
    import -window root -crop $((541 * scale))x$((508 * scale))+0+0 +repage "$2"
    kill $program
    wait $program 2>/dev/null || true
}

shoot 1 "$docs/panel.png"
sleep 4 # the server is busy behind a client that was killed
shoot 2 "$docs/panel@2x.png"
sleep 4

# The sequencer's window: a pattern clicked in, running. Loud cells by the left button, soft ones by the right.
shoot_sequencer() {
    scale=2
    menu=22
    QT_SCALE_FACTOR=$scale "$folder/tonebench" &
    local program=$!
    sleep 2
    xdotool key alt+m
    sleep 0.3
    xdotool key u
    sleep 0.7
    local cell
    for cell in 0,12,1 0,5,3 1,9,1 2,5,1 2,12,3 3,2,1 4,0,1 4,8,3 5,2,1 6,5,1 6,12,3 7,9,1 7,7,3; do
        IFS=, read -r step row button <<<"$cell"
        xdotool mousemove $(((44 + step * 12 + 5) * scale)) $(((menu + 20 + row * 12 + 5) * scale)) click "$button"
    done
    xdotool mousemove $((329 * scale)) $(((menu + 159) * scale)) click 1 mousemove 1200 900
    sleep 1.6
    import -window root -crop $((424 * scale))x$((200 * scale))+0+$((menu * scale)) +repage "$1"
    kill $program
    wait $program 2>/dev/null || true
}

shoot_sequencer "$docs/sequencer.png"
sleep 4

rm "$folder/Tonebench.INI"
"$folder/tonebench" &
sleep 1.5
xdotool key Return
sleep 0.5
xdotool key Return
sleep 1
import -window root -crop 541x508+0+0 +repage "$docs/setup.png"
