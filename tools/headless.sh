# Driving Pelorin on a machine without a display. Meant to be sourced by bash.
#   start_display            an X server of our own with a window manager; sets DISPLAY
#   play_sample APP FOLDER   starts Pelorin in APP, starts the game in APP/Games/FOLDER by keys,
#                            and leaves the picture of the whole screen in dist/run.png
# Every wait has a limit; what fails says so and ends the script. What was started ends with it.

started=()

stop_started() {
    local index pid
    # Backwards: windows first, the display last, which takes with it what still hangs on it.
    for ((index = ${#started[@]} - 1; index >= 0; index--)); do
        pid=${started[index]}
        kill "$pid" 2>/dev/null || continue
        for _ in $(seq 25); do
            is_running "$pid" || break
            sleep 0.2
        done
        kill -KILL "$pid" 2>/dev/null || true
    done
}
trap stop_started EXIT

fail() {
    echo "run.sh: $*" >&2
    if [ ${#started[@]} -gt 0 ] && import -window root dist/run.png 2>/dev/null; then
        echo "What the screen showed: $PWD/dist/run.png; what the program said: $PWD/dist/run.log" >&2
    fi
    exit 1
}

# wait_for SECONDS WHAT COMMAND...: runs the command until it succeeds.
wait_for() {
    local limit=$((SECONDS + $1)) what=$2
    shift 2
    until "$@" >/dev/null 2>&1; do
        [ $SECONDS -lt $limit ] || fail "waited in vain for $what"
        sleep 0.2
    done
}

start_display() {
    local folder
    folder=$(mktemp -d)
    # The server picks a free number and tells it when it is ready.
    Xvfb -displayfd 3 -screen 0 1280x960x24 -nolisten tcp -noreset \
        3>"$folder/number" >"$folder/log" 2>&1 &
    started+=($!)
    wait_for 30 "the display" test -s "$folder/number"
    export DISPLAY=:$(cat "$folder/number")
    unset WAYLAND_DISPLAY
    # It announces itself before it manages windows; what it runs at its start comes after that.
    openbox --sm-disable --startup "touch $folder/managed" >/dev/null 2>&1 &
    started+=($!)
    wait_for 30 "the window manager" test -e "$folder/managed"
    rm -rf "$folder"
}

is_running() { kill -0 "$1" 2>/dev/null; }
is_gone() { ! is_running "$1"; }

# The first window whose title matches, or nothing. A window that vanishes while the tree of windows
# is walked ends the search with status 1, as an empty result does, but with a word on stderr: then
# it is made again.
window_named() {
    local windows words
    words=$(mktemp)
    for _ in $(seq 10); do
        windows=$(xdotool search --onlyvisible --name "$1" 2>"$words") || true
        [ -z "$windows" ] && [ -s "$words" ] || break
    done
    rm -f "$words"
    head -n 1 <<<"$windows"
}
pelorin_window() { window_named 'Ver[.][0-9]+[.]'; }
dosbox_window() { window_named '^DOSBox '; }
has_pelorin_window() { [ -n "$(pelorin_window)" ]; }
has_dosbox_window() { [ -n "$(dosbox_window)" ]; }
has_no_dosbox_window() { ! has_dosbox_window; }

# Until two pictures of the screen in a row are equal, or for so many seconds.
let_settle() {
    local limit=$((SECONDS + $1)) before="" now
    while [ $SECONDS -lt $limit ]; do
        now=$(import -window root rgb:- | sha256sum)
        [ "$now" != "$before" ] || return 0
        before=$now
        sleep 0.5
    done
}

press() { xdotool windowactivate --sync "$(pelorin_window)" key --clearmodifiers "$@"; }
selected_title() { xdotool getwindowname "$(pelorin_window)"; }

# The titles of the game in this folder as the installation has them now, a line each.
titles_of() {
    local info line=""
    info=$(find "$1" -mindepth 2 -maxdepth 2 -ipath '*/dosbox/info.txt' -print -quit)
    [ -z "$info" ] || line=$(head -n 1 "$info" | tr -d '\r' | iconv -c -f CP949 -t UTF-8) || true
    tr '\003' '\n' <<<"${line:-${1##*/}}"
}

# Whether the game on hand has one of these titles. The window's title begins with its own, behind
# which its marks may stand in brackets.
is_selected() {
    local shown title
    shown=$(selected_title)
    for title in "$@"; do
        [[ "$shown" != "$title : "* && "$shown" != "$title ["* ]] || return 0
    done
    return 1
}

# Presses a key; status 1 when that leads to no other game.
walk() {
    local before
    before=$(selected_title)
    press "$1"
    for _ in $(seq 10); do
        sleep 0.05
        [ "$(selected_title)" = "$before" ] || return 0
    done
    return 1
}

# Selects a game of one of these titles by the arrow keys, through the rows of the list, there and
# back. It ends where the list does.
select_game() {
    local way=Right in_last_row=""
    walk Home || true
    until is_selected "$@"; do
        walk "$way" && continue
        [ "$way" = Right ] && way=Left || way=Right
        walk Down && continue
        # A last row that is shorter than the one above has to be entered at its end.
        if [ -n "$in_last_row" ] || ! walk End; then
            fail "the game \"$1\" is not in the list"
        fi
        in_last_row=yes way=Left
    done
}

# Presses Enter on a game of one of these titles until DOSBox shows a window.
start_game_by_keys() {
    select_game "$@"
    for _ in 1 2 3; do
        press Return
        for _ in $(seq 75); do
            has_dosbox_window && return 0
            sleep 0.2
        done
    done
    fail "DOSBox did not open a window"
}

# How many colours besides black the window shows in a picture of the screen.
colours_of_window() {
    local picture=$1 X Y WIDTH HEIGHT SCREEN WINDOW
    eval "$(xdotool getwindowgeometry --shell "$2")"
    convert "$picture" -crop "${WIDTH}x${HEIGHT}+${X}+${Y}" +repage \
        -unique-colors -depth 8 txt:- | grep -v '^#' | grep -vc '#000000' || true
}

play_sample() {
    local app=$1 game=$1/Games/$2 ready=$1/Games/$2/READY.TXT pelorin colours titles
    rm -f "$ready"
    (cd "$app" && SDL_AUDIODRIVER=dummy QT_QPA_PLATFORM=xcb exec ./Pelorin) >dist/run.log 2>&1 &
    pelorin=$!
    started+=("$pelorin")

    SECONDS=0
    until has_pelorin_window; do
        is_running "$pelorin" || fail "Pelorin ended at once: $(tail -n 5 dist/run.log)"
        [ $SECONDS -lt 60 ] || fail "Pelorin did not open its window"
        sleep 0.2
    done
    let_settle 10
    mapfile -t titles < <(titles_of "$game")
    start_game_by_keys "${titles[@]}"
    wait_for 60 "the game to say that it is up ($ready)" test -e "$ready"
    let_settle 10
    import -window root dist/run.png
    colours=$(colours_of_window dist/run.png "$(dosbox_window)")
    [ "$colours" -ge 8 ] || fail "the game's window shows $colours colours besides black"

    xdotool windowactivate --sync "$(dosbox_window)" key --clearmodifiers ctrl+F9
    wait_for 20 "DOSBox to end" has_no_dosbox_window
    xdotool windowactivate --sync "$(pelorin_window)" key --clearmodifiers alt+F4
    wait_for 20 "Pelorin to end" is_gone "$pelorin"
    wait "$pelorin" || fail "Pelorin ended with status $?: $(tail -n 5 dist/run.log)"
    [ -s "$app/Launcher.cfg" ] || fail "Pelorin did not save its settings"
    echo "The game ran and showed $colours colours. The picture: $PWD/dist/run.png"
}
