#!/usr/bin/env bash
# Lays all windows, boxes and menus side by side as they look: tools/looks.sh BUILD-FOLDER OUT-FOLDER
# Six looks: a light and a dark desktop, each at a device pixel ratio of 1, 1.5 and 2. OUT-FOLDER gets a folder
# of pictures for each, and a sheet of them (light-1.5.png).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
cmake --build "$1" --target looks
build=$(cd "$1" && pwd)
mkdir -p "$2"
out=$(cd "$2" && pwd)
folder=$(mktemp -d)
trap 'kill $screen 2>/dev/null || true; rm -rf "$folder"' EXIT
exec 3< <(exec Xvfb -displayfd 1 -screen 0 2600x2200x24 -nolisten tcp -noreset 2>/dev/null)
screen=$!
read -r display <&3

# A desktop of its own colours: ground, text, ground of lists, colour of what is chosen.
desktop() {
    mkdir -p "$folder/$1"
    local group
    for group in Window Button View Selection Tooltip; do
        local ground=$2
        [ $group = View ] && ground=$4
        [ $group = Selection ] && ground=$5
        printf '[Colors:%s]\nBackgroundNormal=%s\nBackgroundAlternate=%s\nForegroundNormal=%s\nForegroundInactive=%s\n\n' \
            $group "$ground" "$ground" "$3" "$3"
    done >"$folder/$1/kdeglobals"
}
desktop light 239,240,241 35,38,41 255,255,255 61,174,233
desktop dark 42,46,50 252,252,252 27,30,32 61,174,233

for theme in light dark; do
    for ratio in 1 1.5 2; do
        pictures=$out/$theme-$ratio
        rm -rf "$pictures"
        env DISPLAY=":$display" QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=kde KDE_SESSION_VERSION=5 \
            XDG_CONFIG_HOME="$folder/$theme" XDG_CONFIG_DIRS="$folder/$theme" HOME="$folder" \
            QT_SCALE_FACTOR=$ratio "$build/tests/looks" "$pictures"
        montage "$pictures"/*.png -background gray50 -geometry '+8+8' -tile 4x -label '%t' "$pictures.png"
    done
done
