# Running Windows programs under Wine. Sourced by the scripts that do, after scripts/lib.sh.
wine_packages=(wine wine64 xvfb xauth openbox xdotool x11-utils fonts-wine fonts-liberation fonts-droid-fallback)
wineserver=/usr/lib/wine/wineserver64

# No debug output; neither .NET nor a browser engine, which Wine would offer to fetch; no entries in the desktop's menu.
export WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"

# make_prefix FOLDER: a fresh Wine prefix, made once; the folder appears only when it is complete. Arial is mapped to
# a font that is there. Chinese fonts are not mapped: Wine's fallback finds them unasked.
make_prefix() (
    [ ! -d "$1" ] || exit 0
    say "Preparing Wine"
    export WINEPREFIX=$1.new
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    unset DISPLAY # else it opens a window while it prepares
    wine wineboot -i >/dev/null 2>&1
    local pair
    for pair in "Arial=Liberation Sans" "Times New Roman=Liberation Serif" "Courier New=Liberation Mono"; do
        wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "${pair%%=*}" /d "${pair#*=}" /f >/dev/null 2>&1
    done
    # Wine has a program for text files, but does not know which files are such.
    wine reg add 'HKLM\Software\Classes\.txt' /ve /d txtfile /f >/dev/null 2>&1
    $wineserver -w
    mv "$WINEPREFIX" "$1"
)

# copy_prefix FROM TO: Windows' own files, 700 MB that nobody writes to, become links; the registry is copied.
copy_prefix() {
    [ ! -d "$2" ] || return 0
    rm -rf "$2.new"
    cp -al "$1" "$2.new"
    cp -a --remove-destination "$1"/*.reg "$2.new/"
    mv "$2.new" "$2"
}

# start_display FOLDER: a virtual display with a window manager (without one, every first showing of a window waits
# for a time-out). Sets DISPLAY, and adds to display_pids.
display_pids=()
start_display() {
    mkdir -p "$1"
    rm -f "$1/display"
    mkfifo "$1/display"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$1/display" >"$1/xvfb.log" 2>&1 &
    display_pids+=($!)
    local number
    read -r -t 30 number <"$1/display" || { echo "Xvfb does not start: see $1/xvfb.log" >&2; return 1; }
    export DISPLAY=:$number
    start_window_manager "$1/openbox.log"
}

# start_window_manager LOG: returns when it manages the display. While other displays were starting it has been seen to end
# with "Failed to open the display", so it is started again then.
start_window_manager() {
    local manager end=$((SECONDS + 30))
    openbox >"$1" 2>&1 & manager=$!
    until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 0x; do
        [ $SECONDS -lt $end ] || { echo "openbox does not start: see $1" >&2; return 1; }
        kill -0 $manager 2>/dev/null || { openbox >>"$1" 2>&1 & manager=$!; }
        sleep 0.1
    done
    display_pids+=($manager)
}

stop_displays() {
    kill "${display_pids[@]}" 2>/dev/null || true
    wait "${display_pids[@]}" 2>/dev/null || true
    display_pids=()
}
