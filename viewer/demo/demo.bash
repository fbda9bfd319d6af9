# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# What the demonstrations have in common: a simulated camera, and the events as they are stored.
# Wants `bin`, the folder of the programs, and `events`, where the analytics library keeps its files.
# Sourced by bash.

simulator_pid=
follower_pid=
cleanup() {
    [[ -z $follower_pid ]] || kill "$follower_pid" 2>/dev/null || true
    [[ -z $simulator_pid ]] || kill "$simulator_pid" 2>/dev/null || true
}
trap cleanup EXIT

start_simulator() {
    coproc SIMULATOR { exec "$bin/nerix-camera-simulator"; }
    simulator_pid=$SIMULATOR_PID
    # A copy, since a pipeline's shell does not get the original.
    exec {to_simulator}>&"${SIMULATOR[1]}"
    local line
    if ! read -r line <&"${SIMULATOR[0]}"; then
        echo "run-demo.sh: the simulated camera did not start" >&2
        exit 1
    fi
    echo "camera   ${line#ready: }"
}

# An event's text in full, unless it is so long that nobody would read on.
print_events() {
    local category name text
    while IFS=$'\t' read -r category name text; do
        if [[ ${#text} -gt 500 ]]; then
            text="${text:0:150} ... (${#text} characters, rui-events shows all)"
        fi
        printf 'stored   %-21s %-18s %s\n' "$category" "$name" "$text"
        echo "$category" >>"$printed"
    done
}

follow_events() {
    printed=$1/printed
    : >"$printed"
    mkdir -p "$events"
    "$bin/rui-events" --raw --follow "$events" > >(print_events) 2>/dev/null &
    follower_pid=$!
}

# The follower looks for new events now and then: waits until it has seen the last one.
stop_following() {
    local stored
    stored=$(stored_events | wc -l)
    for _ in $(seq 100); do
        [[ $(wc -l <"$printed") -ge $stored ]] && break
        sleep 0.1
    done
    kill "$follower_pid" 2>/dev/null || true
    wait "$follower_pid" 2>/dev/null || true
    follower_pid=
}

stored_events() {
    [[ -e $events/usage-events.sqlite ]] && "$bin/rui-events" --raw "$events" || true
}
