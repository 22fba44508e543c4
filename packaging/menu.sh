#!/bin/sh
# Adds Tonebench to the desktop's menu, or removes it again: menu.sh add | remove
# The entry starts the program of the folder in which this script lies. After the folder has been moved, add it
# once more.
set -eu
folder=$(cd "$(dirname "$0")" && pwd)
name=io.github.tonebench.Tonebench
data=${XDG_DATA_HOME:-$HOME/.local/share}
entry=$data/applications/$name.desktop

# A path as the value of a key, where a backslash counts as the beginning of an escape.
value() { printf '%s' "$1" | sed 's/\\/\\\\/g'; }

# A path as a quoted argument of Exec, where more characters have a meaning.
argument() { value "$(printf '%s' "$1" | sed 's/[\\"`$]/\\&/g; s/%/%%/g')"; }

add() {
    missing=$(ldd "$folder/tonebench" 2>&1 | sed -n 's/^[[:space:]]*\([^ ]*\) => not found.*/\1/p' | sort -u | tr '\n' ' ')
    [ -z "$missing" ] || echo "Tonebench will not start yet, this system lacks: $missing(README.txt names the packages)" >&2
    # Some desktops look for the command before they make one per cent sign of two; env they find.
    case $folder in *%*) by='env ' ;; *) by= ;; esac
    mkdir -p "$data/applications" "$data/icons"
    cp -R "$folder/lib/share/icons/hicolor" "$data/icons/"
    while IFS= read -r line; do
        case $line in
        Exec=*)
            printf 'Exec=%s"%s"\n' "$by" "$(argument "$folder/tonebench")"
            printf 'TryExec=%s\n' "$(value "$folder/tonebench")"
            printf 'Path=%s\n' "$(value "$folder")"
            ;;
        *) printf '%s\n' "$line" ;;
        esac
    done <"$folder/lib/share/applications/$name.desktop" >"$entry.new"
    mv "$entry.new" "$entry"
    touch "$data/icons/hicolor"
    echo "Tonebench is in the menu now and starts from $folder"
}

remove() {
    if [ -e "$entry" ] && ! grep -qxF "Path=$(value "$folder")" "$entry"; then
        other=$(sed -n 's/^Path=//p' "$entry" | sed 's/\\\\/\\/g')
        if [ -x "$other/tonebench" ]; then
            echo "The menu's entry belongs to $other; remove it there" >&2
            exit 1
        fi
    fi
    rm -f "$entry" "$data"/icons/hicolor/*/apps/$name.png "$data"/icons/hicolor/*/apps/$name.svg
    [ ! -d "$data/icons/hicolor" ] || touch "$data/icons/hicolor"
    echo "Tonebench is not in the menu"
}

case ${1-} in
add | remove) "$1" ;;
*)
    echo "usage: menu.sh add | remove" >&2
    exit 2
    ;;
esac
