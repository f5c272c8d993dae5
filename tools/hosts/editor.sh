# What the checks of the editor in a host share; sourced after common.sh, which has taken the first argument. Leaves a
# display server and a window manager of the check's own behind, both gone at its end, and what clients do with them.

picture=$(realpath -m "${2:-$name.png}")
need Xvfb xvfb
need openbox openbox
need xdotool xdotool
need xwininfo x11-utils
need import imagemagick
need timeout coreutils

servers=()
trap 'kill "${servers[@]}"; wait; rm -rf "$home"' EXIT  # whoever still shows a window ends with the display
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1600x1000x24 -nolisten tcp 2>/dev/null)
servers+=($!)
read -r -t 20 -u 3 number || finish 1 "Xvfb does not start"
export DISPLAY=:$number
shown() { alone env DISPLAY="$DISPLAY" "$@"; }
shown openbox >/dev/null 2>&1 &

# seconds, command: waits until it succeeds
within() {
    local end=$((SECONDS + $1))
    until "${@:2}"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.2
    done
}

# What xwininfo knows of the editor's window, which is found by its size; nothing without one. Ardour only hides it.
about_editor() {
    local window
    window=$(xwininfo -root -tree | awk '/ 1065x630\+/ { print $1; exit }')
    [ -z "$window" ] || xwininfo -id "$window"
}
editor_place() { about_editor | awk '/Absolute/ { print $NF }' | xargs; }
editor_is_open() { about_editor | grep -q IsViewable; }
editor_is_closed() { ! editor_is_open; }

# x, y in the editor; how far up: a drag as a hand does it
drag_up() {
    local left top
    read -r left top < <(editor_place)
    xdotool mousemove $((left + $1)) $((top + $2)) mousedown 1
    for ((n = 0; n < $3; n++)); do
        xdotool mousemove_relative -- 0 -1
        sleep 0.01
    done
    xdotool mouseup 1
}

# x, y in the editor; button
click() {
    local left top
    read -r left top < <(editor_place)
    xdotool mousemove $((left + $1)) $((top + $2)) sleep 0.1 click "$3" sleep 0.3
}

# Opens the score editor by a right click on LEVEL, sets a note at its upper left corner, takes a picture, takes the
# note away and closes with a right click; fails when the screen does not show these.
check_score() {
    local panel empty note
    panel=$(part_of_editor 60 20 520 143)
    click 534 160 3
    within 5 part_changes "$panel" 60 20 520 143 || failed "a right click on LEVEL does not open the score editor"
    click 700 610 1  # beside everything, so that no hint lies over the note
    empty=$(part_of_editor 7 13 37 235)
    click 40 240 1
    click 700 610 1
    within 5 part_changes "$empty" 7 13 37 235 || failed "a click in the score editor sets no note"
    take_picture
    note=$(part_of_editor 7 13 37 235)
    click 40 240 1
    click 700 610 1
    within 5 part_changes "$note" 7 13 37 235 || failed "a second click does not take the note away"
    click 700 400 3
    within 5 part_is "$panel" 60 20 520 143 || failed "a right click does not close the score editor"
    echo "The score editor opens, takes a note and closes"
}

# width, height, x, y in the editor: a number that changes with what is shown there
part_of_editor() {
    local left top
    read -r left top < <(editor_place)
    import -window root -crop "$1x$2+$((left + $3))+$((top + $4))" rgb:- | cksum
}
# number from before, the part
part_changes() { [ "$1" != "$(part_of_editor "${@:2}")" ]; }
part_is() { ! part_changes "$@"; }

# part of a title, key: presses a key in that window when it has come
answer() { within "${3:-20}" is_shown "$1" && press_key "$1" "$2"; }
is_shown() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
# part of a title, key: brings that window to the front and presses a key there
press_key() {
    xdotool search --onlyvisible --name "$1" windowactivate --sync >/dev/null 2>&1
    xdotool key "$2"
    sleep 1
}

take_picture() { import -window root "$picture" && echo "The screen is in $picture"; }
# words: ends the check, with a picture of what there was
failed() { take_picture; finish 1 "$1"; }
