# SPDX-License-Identifier: MIT
# Shared by with-display and with-wayland, which source it: a folder for what a run leaves behind, and
# servers that end with the run.

scratch=$(mktemp -d)
servers=()

end_servers() {
    local i
    # The server that was started last is ended first, since it is a client of those before it.
    for ((i = ${#servers[@]} - 1; i >= 0; i--)); do
        kill "${servers[i]}" 2>/dev/null
    done
    wait 2>/dev/null
    rm -rf "$scratch"
}
trap end_servers EXIT
trap 'exit 143' TERM INT

# wait_until COMMAND...: runs the command every 20 milliseconds until it succeeds, for up to ten seconds.
wait_until() {
    local tries=500
    until "$@"; do
        tries=$((tries - 1))
        if [ $tries -eq 0 ]; then
            printf '%s: gave up waiting for: %s\n' "$(basename "$0")" "$*" >&2
            cat "$scratch"/*.log >&2
            exit 1
        fi
        sleep 0.02
    done
}

# start_bus: starts a session bus and sets `bus`, its address. What it starts has its settings in the
# folder config of the run.
start_bus() {
    XDG_CONFIG_HOME=$scratch/config dbus-daemon --session --nofork --print-address=4 \
        4>"$scratch/bus" 2>"$scratch/bus.log" &
    servers+=($!)
    wait_until test -s "$scratch/bus"
    bus=$(cat "$scratch/bus")
}

# start_display: starts a virtual X display and sets DISPLAY. It is 1280x800 pixels large, or as
# OLV_DISPLAY_SIZE says.
start_display() {
    # Without -noreset the server resets when its last client disconnects, which drops one that connects
    # then.
    Xvfb -displayfd 3 -screen 0 "${OLV_DISPLAY_SIZE:-1280x800}x24" -nolisten tcp -noreset \
        3>"$scratch/display" 2>"$scratch/server.log" &
    servers+=($!)
    wait_until test -s "$scratch/display"
    DISPLAY=:$(cat "$scratch/display")
    export DISPLAY
    # The runtime folder is private, so that programs running in parallel share no sockets.
    export XDG_RUNTIME_DIR=$scratch/runtime XDG_CACHE_HOME=$scratch/cache
    mkdir -m 700 "$XDG_RUNTIME_DIR" "$XDG_CACHE_HOME"
    export QT_SCALE_FACTOR=${QT_SCALE_FACTOR:-1} QT_FONT_DPI=96
}
