# Works windows with mouse and keys. Source it behind common.sh. Where the controls lie on the panels is read from the
# file $controls, which quernfield-panels --controls writes; behind a click it waits $click_pause seconds, none at first.
click_pause=0

# The titles of windows, as they are looked for.
main="^Dobrin's Quernfield 2025$"
floors='^Floors$'
setup='^Quernfield Setup$'
practice='^ClassicUO - Practice$'

window_named() { { xdotool search --onlyvisible --name "$1" 2>/dev/null || true; } | sed -n 1p; }
window_is_there() { [ -n "$(window_named "$1")" ]; }
window_is_gone() { ! window_is_there "$1"; }
has_ended() { ! kill -0 "$1" 2>/dev/null; }

# click_at PANEL TITLE CONTROL PLACE: the left button, where PLACE is an awk expression over the control's x, y,
# width and height, which are $3 to $6.
click_at() {
    local place window
    place=$(awk -F'\t' -v p="$1" -v c="$3" "\$1 == p && \$2 == c {print $4; exit}" "$controls")
    window=$(window_named "$2")
    if [ -z "$place" ] || [ -z "$window" ]; then
        echo "$1 has no control $3, or there is no window $2" >&2
        return 1
    fi
    # shellcheck disable=SC2086 # two numbers
    xdotool mousemove --window "$window" $place click 1
    sleep "$click_pause"
}
# shellcheck disable=SC2016 # $3 and the like are awk's
click() { click_at "$1" "$2" "$3" 'int($3 + $5 / 2), int($4 + $6 / 2)'; }
# An option or a box to be ticked is clicked on its mark, which is at its left end.
# shellcheck disable=SC2016
mark() { click_at "$1" "$2" "$3" 'int($3 + 9), int($4 + $6 / 2)'; }
fill() {
    click "$1" "$2" "$3"
    xdotool key ctrl+a type --clearmodifiers "$4"
}

# leave_by_key TITLE KEY: a key for a window, again until it is gone. It goes to whatever has the focus: a key sent to
# the window itself would outlive it.
leave_by_key() {
    local title=$1 key=$2
    # shellcheck disable=SC2317 # called by wait_for
    press() {
        local window
        window=$(window_named "$title")
        [ -z "$window" ] || {
            xdotool windowactivate "$window"
            sleep 0.2
            xdotool key "$key"
            return 1
        }
    }
    wait_for 20 "the end of a window $title" press
}

# floor X1 Y1 X2 Y2 Z: the commands of a floor of dark wood.
floor() {
    local x1=$1 y1=$2 x2=$3 y2=$4 z=$5
    cat <<LINES
'tile 0x04a9 $((x1 + 1)) $((x2 - 1)) $((y1 + 1)) $((y2 - 1)) $z
'tile 0x04b4 $x1 $x1 $y1 $y1 $z
'tile 0x04b3 $x2 $x2 $y1 $y1 $z
'tile 0x04b1 $x2 $x2 $y2 $y2 $z
'tile 0x04b2 $x1 $x1 $y2 $y2 $z
'tile 0x04b0 $((x1 + 1)) $((x2 - 1)) $y1 $y1 $z
'tile 0x04ae $((x1 + 1)) $((x2 - 1)) $y2 $y2 $z
'tile 0x04ad $x1 $x1 $((y1 + 1)) $((y2 - 1)) $z
'tile 0x04af $x2 $x2 $((y1 + 1)) $((y2 - 1)) $z
LINES
}
