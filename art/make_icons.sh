#!/usr/bin/env bash
# Renders the program's icon at the sizes of the desktops' menus and windows; needs librsvg2-bin. Run it when a
# drawing in art/app/ has changed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/app"
for size in 16 24 32 48 64 128 256; do
    drawing=tonebench
    [ "$size" -gt 32 ] || drawing=tonebench_small
    rsvg-convert --width="$size" --height="$size" "$drawing.svg" --output "$size.png"
done
