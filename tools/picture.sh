#!/usr/bin/env bash
# Takes the pictures of the documents from the real program: tools/picture.sh BUILD-FOLDER
# Starts a virtual screen and a JACK server with a device each way, plays a little in every window, and writes
# docs/panel.png and the pictures of the guide; those whose names end in @2x have two pixels for each of the
# screen's. No menu opens the MKS-70's patch window; its picture, patch_mks70.png, is what the windows' tests leave in
# the build folder.
#
# The paths that some pictures show begin with TMPDIR.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$(cd "$1" && pwd)
docs=$PWD/docs
guide=$docs/guide/pictures
folder=${TMPDIR:-/tmp}/studio
mkdir -m 700 "$folder"
trap 'kill $(jobs -p) $screen 2>/dev/null || true; rm -rf "$folder"' EXIT

export JACK_NO_AUDIO_RESERVATION=1 JACK_DEFAULT_SERVER=tonebench-picture XDG_RUNTIME_DIR=$folder
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1100x24 -nolisten tcp -noreset 2>/dev/null)
screen=$!
read -r display <&3
export DISPLAY=:$display
jackd -r -n "$JACK_DEFAULT_SERVER" -d dummy -r 48000 -p 128 >/dev/null 2>&1 &
sleep 1
jack_midi_dump instrument >/dev/null 2>&1 &
jack_midiseq keyboard 48000 0 60 8000 >/dev/null 2>&1 &
sleep 1
cp "$build/tonebench" "$build/JX8P.FNT" "$folder"
mkdir -p "$folder/Tones/Basses" "$folder/Tones/Leads" "$folder/Tones/Pads and Strings"
cp "$build"/Tones/JX-8P/* "$folder/Tones"
cp -r "$build/Sequences" "$folder"

# Both devices and the folders chosen, as a user has them after some days; $1 is one more line of [MIDI].
settle() {
    printf '[MIDI]\nOutput=instrument:input\nInput=keyboard:out\n%s\n[Recent Files]\nTones=%s\nSequences=%s\n' \
        "${1:-}" "$folder/Tones" "$folder/Sequences" >"$folder/Tonebench.INI"
}

# Sets some controls: name of a key, times, and the place of the control on the panel.
touch_control() {
    local x=$1 y=$2 key=$3 times=$4
    xdotool mousemove $((x * scale)) $(((y + menu) * scale)) click 1
    for _ in $(seq "$times"); do xdotool key "$key"; done
}

# Drags a control upward by so many rows.
drag_control() {
    local x=$((${1} * scale)) y=$((($2 + menu) * scale))
    xdotool mousemove "$x" "$y" mousedown 1 mousemove "$x" $((y - $3 * scale)) mouseup 1
    sleep 0.05
}

play_panel() {
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
}

play_juno() {
    touch_control 26 37 Down 1      # range 8'
    drag_control 69 118 20
    touch_control 237 67 Up 3       # pulse width modulation
    touch_control 282 87 Up 1
    touch_control 326 87 Up 4
    touch_control 370 118 Up 2
    drag_control 451 118 70
    drag_control 481 118 50
    drag_control 59 254 60
    touch_control 107 254 Up 1
    drag_control 147 254 80
    drag_control 177 254 35
    drag_control 237 254 70
    drag_control 330 254 60
    drag_control 409 254 110
    drag_control 499 254 40
    touch_control 32 390 Up 1       # chorus on
    drag_control 75 390 60
    touch_control 387 330 Up 7      # bender
    drag_control 129 390 60
    drag_control 159 390 118
    drag_control 189 390 70
    drag_control 219 390 50
    drag_control 249 390 90
    drag_control 279 390 85
    drag_control 309 390 110
    sleep 2.2 # the envelope goes and the name comes back
}

play_envelope() {
    play_juno
    drag_control 309 326 10 # where the first drag has left the thumb
}

# A place in the oscillator's window, which stands in the middle of the main one.
oscillator_at() {
    echo $(((67 + $1) * scale)) $(((132 + menu + $2) * scale))
}

# Draws a curve by hand and plays it.
play_oscillator() {
    menu=21
    xdotool key ctrl+i
    sleep 1
    xdotool mousemove $(oscillator_at 310 32) click 1
    sleep 0.5
    xdotool key v v Return # VCF Cutoff
    xdotool mousemove $(oscillator_at 9 110) mousedown 1
    for place in 16,96 23,80 30,64 37,52 44,46 51,48 58,58 65,74 72,92 79,104 86,106 93,98 100,84 107,70 114,60 121,56 \
        131,58; do
        xdotool mousemove $(oscillator_at "${place%,*}" "${place#*,}")
    done
    xdotool mouseup 1
    xdotool mousemove $(oscillator_at 156 94) click 1
    xdotool key Page_Up Up Up Up
    xdotool mousemove $(oscillator_at 213 94) click 1
    xdotool key Page_Down Page_Down Page_Down Page_Down
    xdotool mousemove $(oscillator_at 20 172) click 1
    sleep 1.9
    area="394 192 67 $((132 + menu))"
}

# The sequencer's window, which stands at the panel's corner: a pattern clicked in, running. Loud cells by the
# left button, soft ones by the right.
play_sequencer() {
    menu=21
    xdotool key alt+m
    sleep 0.3
    xdotool key u
    sleep 0.7
    local cell step row button
    for cell in 0,12,1 0,5,3 1,9,1 2,5,1 2,12,3 3,2,1 4,0,1 4,8,3 5,2,1 6,5,1 6,12,3 7,9,1 7,7,3; do
        IFS=, read -r step row button <<<"$cell"
        xdotool mousemove $(((49 + step * 12) * scale)) $(((menu + 25 + row * 12) * scale)) click "$button"
    done
    xdotool mousemove $((329 * scale)) $(((menu + 159) * scale)) click 1 mousemove 1200 900
    sleep 1.4
    area="424 200 0 $menu"
}

# The Patch window opens at the upper left corner of the panel.
play_patch() {
    menu=21
    xdotool key ctrl+p
    sleep 0.5
    touch_control 28 120 Page_Up 4  # portamento time
    touch_control 28 155 Page_Up 0  # portamento on, by the press
    touch_control 94 120 Page_Up 2
    touch_control 125 70 Up 2       # range 4
    touch_control 159 84 Page_Up 0  # unison 2
    touch_control 229 39 Page_Up 0  # vibrato
    touch_control 175 150 Page_Up 1 # detune
    area="296 196 0 $menu"
}

# The help window stands in the middle of the screen. Opens a page by its letter in the menu.
open_help() {
    xdotool key alt+h
    sleep 0.4
    xdotool key "$1"
    sleep 0.8
    area="640 404 $(((1280 / scale - 640) / 2)) $(((1100 / scale - 404) / 2))"
}

# A place in the help window.
help_at() {
    local width height left top
    read -r width height left top <<<"$area"
    echo $(((left + $1) * scale)) $(((top + $2) * scale))
}

play_help_about() {
    open_help a
    xdotool mousemove $(help_at 440 58) click 1
}

play_help_howto() {
    open_help h
    xdotool mousemove $(help_at 58 187) click 1 key Up Up
    xdotool mousemove $(help_at 116 170) click 1 key Page_Up
    xdotool mousemove $(help_at 236 172) click 1
    xdotool mousemove $(help_at 308 176) click 1
    xdotool mousemove $(help_at 188 212) click 1 key Page_Up Page_Up Page_Up Page_Up Page_Up
}

play_help_search() {
    open_help s
    xdotool type matr
}

# The dialogs stand in the middle of the main window.
play_setup() {
    xdotool key alt+m
    sleep 0.4
    xdotool key s
    sleep 0.8
    area="400 300 70 104"
}

play_name() {
    xdotool key alt+t
    sleep 0.4
    xdotool key n
    sleep 0.6
    xdotool type "Glass Pad"
    area="300 130 120 189"
}

# The file window stands in the corner of the screen: a tone pressed and heard.
play_files_tones() {
    xdotool key ctrl+o
    sleep 0.8
    xdotool mousemove $((100 * scale)) $((120 * scale)) click 1 # the third file
    sleep 2.5
    area="540 444 0 0"
}

play_files_sequences() {
    local key
    for key in alt+f q o; do
        xdotool key "$key"
        sleep 0.4
    done
    sleep 0.6
    xdotool mousemove $((100 * scale)) $((80 * scale)) click 1
    sleep 0.6
    area="540 444 0 0"
}

# The new folder's name is asked for in a window at a fixed place.
play_new_folder() {
    xdotool key ctrl+o
    sleep 0.8
    xdotool mousemove $((290 * scale)) $((92 * scale)) click 1 mousemove $((485 * scale)) $((219 * scale)) click 1
    sleep 0.8
    area="360 170 150 150"
}

play_menu() {
    xdotool key alt+f
    sleep 0.4
    xdotool key t
    sleep 0.6
    area="541 290 0 0"
}

# A box stands where the toolkit puts it, and has the keyboard.
frame_box() {
    sleep 0.8
    local X Y WIDTH HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$(xdotool getwindowfocus)" | grep -E '^(X|Y|WIDTH|HEIGHT)=[0-9]+$')"
    area="$((WIDTH / scale)) $((HEIGHT / scale)) $((X / scale)) $((Y / scale))"
}

play_question() {
    touch_control 407 120 Page_Up 4
    xdotool key ctrl+o
    frame_box
}

play_reminder() {
    play_setup
    xdotool key Return
    frame_box
}

play_not_configured() {
    frame_box
}

# Shoots at a device pixel ratio, behind what is played, into a file: the main window, or the area (width,
# height, left, top in logical pixels) that the playing names.
shoot() {
    scale=$1
    menu=22
    area="541 508 0 0"
    (cd "$folder" && QT_SCALE_FACTOR=$scale exec ./tonebench) &
    local program=$!
    sleep 2
    "$2"
    sleep 0.2
    local width height left top
    read -r width height left top <<<"$area"
    import -window root -crop $((width * scale))x$((height * scale))+$((left * scale))+$((top * scale)) +repage "$3"
    kill $program
    wait $program 2>/dev/null || true
    sleep 4 # the server is busy behind a client that was killed
}

# The first start, with nothing chosen yet.
shoot 2 play_not_configured "$guide/not_configured@2x.png"

settle
shoot 1 play_panel "$docs/panel.png"
shoot 2 play_panel "$guide/panel@2x.png"
shoot 2 play_oscillator "$guide/oscillator@2x.png"
shoot 2 play_sequencer "$guide/sequencer@2x.png"
shoot 2 play_patch "$guide/patch@2x.png"
shoot 2 play_setup "$guide/setup@2x.png"
shoot 2 play_reminder "$guide/reminder@2x.png"
shoot 2 play_name "$guide/name@2x.png"
shoot 2 play_question "$guide/question@2x.png"
shoot 2 play_files_tones "$guide/files_tones@2x.png"
shoot 2 play_files_sequences "$guide/files_sequences@2x.png"
shoot 2 play_new_folder "$guide/new_folder@2x.png"
shoot 2 play_help_about "$guide/help_about@2x.png"
shoot 2 play_help_howto "$guide/help_howto@2x.png"
shoot 2 play_help_search "$guide/help_search@2x.png"

printf 'Tone1=%s\nTone2=%s\n' "$folder/Tones/Glass Pad.syx" "$folder/Tones/Warm Brass.syx" >>"$folder/Tonebench.INI"
shoot 2 play_menu "$guide/menu@2x.png"

settle "Synthesizer=Alpha Juno"
shoot 2 play_juno "$guide/juno@2x.png"
shoot 2 play_envelope "$guide/juno_envelope@2x.png"

cp "$build/patch_mks70.png" "$guide"
