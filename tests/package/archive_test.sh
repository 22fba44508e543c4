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
    kill ${program-} 2>/dev/null || true
    # A server that outlives its clients cleans up behind them.
    kill ${witness-} ${sender-} 2>/dev/null && wait $witness $sender 2>/dev/null || true
    kill ${server-} ${screen-} 2>/dev/null && wait ${server-} 2>/dev/null || true
    chmod -R u+w "$work"
    rm -rf "$work"
}
trap end EXIT
say() { printf '== %3d s: %s\n' $SECONDS "$*"; }
# The last picture stays in the build folder.
fail() {
    [ -z "${display-}" ] || import -window root "$build/archive_test.png" || true
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
# File managers start an executable (2) by a double click, but no position-independent one (3).
same "kind of the program" 02 "$(od -An -tx1 -j16 -N1 "$folder/tonebench" | tr -d ' ')"
# What a page of the guide shows or leads to came along.
[ -e "$folder/docs/guide/index.html" ] || fail "the archive lacks the guide"
grep -ohE '(src|href)="[^":]+"' "$folder"/docs/guide/*.html | sed 's/^[a-z]*="//; s/"$//' | sort -u |
    while IFS='#' read -r file anchor; do
        [ -z "$file" ] || [ -e "$folder/docs/guide/$file" ] || fail "the guide lacks $file"
        [ -z "$anchor" ] || grep -q "id=\"$anchor\"" -r "$folder/docs/guide/$file" || fail "$file has no $anchor"
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
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp -noreset 2>/dev/null 8>&-)
screen=$!
read -r -t 30 display <&3 || fail "no virtual screen"
export DISPLAY=:$display
answers() { jack_lsp 2>/dev/null | grep -qx "${1:-witness:input}"; }
jackd -r -n "$JACK_DEFAULT_SERVER" -d dummy -r 48000 -p 256 >/dev/null 2>&1 8>&- &
server=$!
wait_for jack_lsp
stdbuf -oL jack_midi_dump witness >"$work/witnessed" 2>/dev/null 8>&- &
witness=$!
jack_midiseq sender 48000 0 60 8000 >/dev/null 2>&1 8>&- &
sender=$!
wait_for answers
wait_for answers sender:out

# Puts an empty file over each library that the archive brings, hides the toolkit's plugins, and starts.
hide='
for library in "$0"/lib/*.so*; do
    for file in /usr/lib/*/"${library##*/}" /lib/*/"${library##*/}"; do
        [ ! -f "$file" ] || mount --bind /dev/null "$file"
    done
done
for plugins in /usr/lib/*/qt6/plugins; do [ ! -d "$plugins" ] || mount -t tmpfs none "$plugins"; done
case $1 in
read-only) mount --bind "$0" "$0" && mount -o remount,bind,ro "$0" ;;
no-jack)
    for file in /usr/lib/*/libjack.so* /lib/*/libjack.so* /usr/lib/*/pipewire-0.3/jack/libjack.so*; do
        [ ! -f "$file" ] || mount --bind /dev/null "$file"
    done
    ;;
esac
cd && exec "$0/tonebench"'
apart=(unshare --mount --propagation private)
[ "$(id -u)" = 0 ] || apart=(unshare --map-current-user --keep-caps --mount --propagation private)
hidden=yes
"${apart[@]}" mount --bind /dev/null "$here/archive_test.sh" 2>/dev/null || hidden=no

# Starts as a desktop starts programs: in the user's home. The window of the first boxes has the program's name.
start() {
    if [ $hidden = yes ]; then
        "${apart[@]}" bash -c "$hide" "$folder" "${1-}" 8>&- 2>>"$work/said" &
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
wait_for focused "Open Tone File"
# The list begins in the program's folder, though the program was started elsewhere.
press alt+d t space j space
xdotool mousemove 100 80 click 1
tone="$folder/Tones/JX-8P/Alien Call.syx"
wait_for witnessed "$(od -An -v -tx1 -j7 -N59 "$tone" | tr -d '\n' | cut -c2-)"
press alt+n Return
wait_for gone "Open Tone File"
leave

say "settings lie beside the program and nothing anywhere else"
grep -qx 'Output=witness:input' "$folder/Tonebench.INI" || fail "the settings do not lie beside the program"
same "files that came" "./${folder#"$home"/}/Tonebench.INI" \
    "$(cd "$home" && find . -type f | sort | comm -13 <(echo "$before") -)"

say "it starts from another place, in a folder that cannot be written to"
place="$home/Own \"best\" \$Tones \\ 100%"
mkdir "$place"
mv "$folder" "$place"
folder="$place/${folder##*/}"
chmod -R a-w "$folder"
settings=$(md5sum <"$folder/Tonebench.INI")
start read-only
wait_for menu_height
wait_for focused Tonebench
leave
same "settings of a folder that cannot be written to" "$settings" "$(md5sum <"$folder/Tonebench.INI")"
chmod -R u+w "$folder"

if [ $hidden = yes ]; then
    say "it starts without JACK, by a stand-in for its library"
    start no-jack
    wait_for focused Tonebench
    ! grep -q '/libjack\.so' "/proc/$program/maps" || fail "the system's libjack is not hidden"
    kill "$program"
    wait "$program" 2>/dev/null || true
fi
[ ! -s "$work/said" ] || { cat "$work/said"; fail "the program has complained"; }

say "it comes into the menu and goes"
before=$(cd "$home" && find . -type f | sort)
entry=$home/.local/share/applications/$id.desktop
"$folder/menu.sh" add >/dev/null
desktop-file-validate "$entry" || fail "the menu's entry is not valid"
same "the command in the menu" 'Exec=env "'"$home"'/Own \\"best\\" \\$Tones \\\\ 100%%/'"${folder##*/}"'/tonebench"' \
    "$(grep '^Exec=' "$entry")"
same "the folder in the menu" "Path=$home/"'Own "best" $Tones \\ 100%/'"${folder##*/}" "$(grep '^Path=' "$entry")"
cmp "$folder/lib/share/icons/hicolor/48x48/apps/$id.png" "$home/.local/share/icons/hicolor/48x48/apps/$id.png" ||
    fail "the menu has another icon"
added=$(cd "$home" && find . -type f -exec md5sum {} + | sort)
"$folder/menu.sh" add >/dev/null
same "the menu, added twice" "$added" "$(cd "$home" && find . -type f -exec md5sum {} + | sort)"
mkdir "$home/other"
cp -r "$folder/menu.sh" "$home/other"
! "$home/other/menu.sh" remove >/dev/null 2>&1 || fail "one folder removes the entry of another"
rm -r "$home/other"
for _ in once again; do "$folder/menu.sh" remove >/dev/null; done
same "the home without the menu's entry" "$before" "$(cd "$home" && find . -type f | sort)"
say "everything passed"
