#!/usr/bin/env bash
# The portable archive as a newcomer meets it: tests/package/archive_test.sh BUILD-FOLDER
# Builds the archive, unpacks it into a folder with a blank in its name in a fresh home, plays its first hour on a
# virtual screen before a JACK server and a witness, puts it into the menu and takes it out. Where the system lets
# us, Qt, RtMidi and what came with them are hidden from the program.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$(cd "$1" && pwd)
id=io.github.tonebench.Tonebench

work=$(mktemp -d "${TMPDIR:-/tmp}/tonebench-archive-XXXXXX")
end() {
    kill "${program-}" 2>/dev/null || true
    kill $(jobs -p) ${screen-} 2>/dev/null || true
    wait 2>/dev/null || true
    chmod -R u+w "$work"
    rm -rf "$work"
}
trap end EXIT
say() { printf '== %s\n' "$*"; }
fail() {
    printf 'archive_test: %s\n' "$*" >&2
    exit 1
}
# Asks again and again, for half a minute at most.
wait_for() {
    local tries=600
    until "$@" >/dev/null 2>&1; do
        ((tries -= 1)) || fail "waited in vain for: $*"
        sleep 0.05
    done
}
same() { [ "$2" = "$3" ] || fail "$1: '$3' instead of '$2'"; }

say "the archive is built and unpacked"
mkdir "$work/out"
XZ_OPT=-0 "$here/../../package" "$build" "$work/out" >"$work/package.log" || { cat "$work/package.log"; fail "no archive"; }
home="$work/home"
mkdir -p "$home/My Synths"
tar xf "$work"/out/Tonebench-*.tar.xz -C "$home/My Synths"
same "folders in the archive" 1 "$(find "$home/My Synths" -mindepth 1 -maxdepth 1 | wc -l)"
folder=$(echo "$home/My Synths"/Tonebench-*)
for file in tonebench JX8P.FNT README.txt LICENSE menu.sh docs/licences/Apache-2.0 docs/licences/fonts-roboto-unhinted.txt \
    docs/licences/libqt6core6.txt docs/licences/LGPL-3 "Tones/JX-8P/Glass Pad.syx" "Tones/Alpha Juno" Sequences lib/libQt6Core.so.6; do
    [ -e "$folder/$file" ] || fail "the archive lacks $file"
done
[ ! -e "$folder/lib/libjack.so.0" ] && [ ! -e "$folder/lib/libc.so.6" ] || fail "the archive carries what is the system's"
# A picture that a page of the guide shows came along.
for page in "$folder"/docs/guide/*.md; do
    [ -e "$page" ] || continue
    grep -oE '\]\([^):]+\.(png|svg|md)' "$page" | sed 's/^](//' | while read -r target; do
        [ -e "${page%/*}/$target" ] || fail "$page shows $target, which is not there"
    done
done

say "its entries are valid"
desktop-file-validate "$folder/lib/share/applications/$id.desktop" || fail "the desktop's entry is not valid"
appstreamcli validate --no-net "$folder/lib/share/metainfo/$id.metainfo.xml" >"$work/validate.log" ||
    { cat "$work/validate.log"; fail "the metadata are not valid"; }
for size in 16 24 32 48 64 128 256; do
    same "size of an icon" "${size}x$size" \
        "$(identify -format '%wx%h' "$folder/lib/share/icons/hicolor/${size}x$size/apps/$id.png")"
done

# One server's name for all tests of a user: JACK's servers share files.
exec 8>"${TMPDIR:-/tmp}/tonebench-test-$(id -u).lock"
flock 8
export JACK_DEFAULT_SERVER=tonebench-test JACK_NO_AUDIO_RESERVATION=1 JACK_NO_START_SERVER=1
export HOME=$home XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME WAYLAND_DISPLAY
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>/dev/null 8>&-)
screen=$!
read -r -t 30 display <&3 || fail "no virtual screen"
export DISPLAY=:$display
start_server() { jackd -r -n "$JACK_DEFAULT_SERVER" -d dummy -r 48000 -p 256 >/dev/null 2>&1 8>&- & }
answers() { jack_lsp 2>/dev/null | grep -qx "${1:-witness:input}"; }
start_server
wait_for jack_lsp
stdbuf -oL jack_midi_dump witness >"$work/witnessed" 2>/dev/null 8>&- &
jack_midiseq sender 48000 0 60 8000 >/dev/null 2>&1 8>&- &
wait_for answers
wait_for answers sender:out

# Puts an empty file over each library that the archive brings, and another over the toolkit's plugins.
hide='
for library in "$0"/lib/*.so*; do
    for file in /usr/lib/*/"${library##*/}" /lib/*/"${library##*/}"; do
        [ ! -f "$file" ] || mount --bind /dev/null "$file"
    done
done
for plugins in /usr/lib/*/qt6/plugins; do [ ! -d "$plugins" ] || mount -t tmpfs none "$plugins"; done
cd && exec "$0/tonebench"'
apart=(unshare --mount --propagation private)
[ "$(id -u)" = 0 ] || apart=(unshare --map-current-user --keep-caps --mount --propagation private)
hidden=yes
"${apart[@]}" mount --bind /dev/null "$here/archive_test.sh" 2>/dev/null || hidden=no

# Starts as a desktop starts programs: in the user's home. The window of the first boxes has the program's name.
start() {
    if [ $hidden = yes ]; then
        "${apart[@]}" bash -c "$hide" "$folder" 8>&- 2>>"$work/said" &
    else
        (cd && exec "$folder/tonebench") 8>&- 2>>"$work/said" &
    fi
    program=$!
}
focused() { [ "$(xdotool getwindowfocus getwindowname)" = "$1" ]; }
shown() { xdotool search --onlyvisible --name "^$1\$"; }
gone() { ! shown "$1"; }
windows() { [ "$(shown Tonebench | wc -l)" = "$1" ]; }
press() { for key in "$@"; do xdotool key "$key" && sleep 0.3; done; }
menu_height() {
    import -window root -crop 1x100+520+0 -depth 8 txt:- | sed -n '/#1B1D21/s/^0,\([0-9]*\):.*/\1/p' | sed -n 1p | grep .
}
witnessed() { grep -q "$1" "$work/witnessed"; }
ended() { ! kill -0 "$program" 2>/dev/null; }
leave() {
    xdotool key ctrl+x
    wait_for ended
    wait "$program" || fail "the program ended with an error"
}

say "the first start leads through the setup (libraries of the system hidden: $hidden)"
before=$(cd "$home" && find . -type f | sort)
start
wait_for focused Tonebench
sleep 0.3
for answer in 1 2; do
    wait_for focused Tonebench
    xdotool key Return
    sleep 0.5
done
wait_for focused "MIDI Setup"
xdotool key Return
wait_for focused "MIDI System Exclusive enabled?"
sleep 0.2
xdotool key Return
wait_for gone "MIDI Setup"
wait_for focused Tonebench
wait_for menu_height
menu=$(menu_height)

say "all that the archive brings is taken from it"
loaded=$(sed -n 's#^[^/]*\(/.*\)#\1#p' "/proc/$program/maps" | sort -u)
for library in "$folder"/lib/*.so*; do
    name=${library##*/}
    foreign=$(grep "/${name%%.so*}\.so" <<<"$loaded" | grep -v "^$folder/" || true)
    same "libraries taken from elsewhere" "" "$foreign"
done
for part in libQt6Widgets librtmidi libweak_jack libqxcb libqsvgicon; do
    grep -q "^$folder/.*$part" <<<"$loaded" || fail "$part of the archive is not in use"
done

say "a slider is heard"
xdotool mousemove 446 $((menu + 120)) click 1
press Page_Up
wait_for witnessed 'f0 41 36 00 21 20 01 23 .. f7'

say "a tone that comes along is heard by one press and opened"
xdotool key ctrl+o
wait_for windows 2 # asks about the changed tone
wait_for focused Tonebench
press alt+n
sleep 1; xdotool getwindowfocus getwindowname
import -window root /tmp/pk/t1.png
xdotool getwindowfocus getwindowname
press alt+d t space
import -window root /tmp/pk/t2.png
press j space alt+f Down
sleep 1
import -window root /tmp/pk/t3.png
