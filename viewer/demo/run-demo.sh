#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# run-demo.sh BUILD_DIR DEMO_DIR
#
# Two sessions with a simulated camera, one with the user's consent and one without, and the usage
# events as they are stored. All that the programs write goes to DEMO_DIR, which is emptied first.
# Status 1 if what should be stored is not, or the other way round.
set -euo pipefail

if [[ -z ${NERIX_NETWORK:-} ]]; then
    here=$(cd "$(dirname "$0")" && pwd)
    exec "$here/../../tools/in-network-namespace.sh" "$here/run-demo.sh" "$@"
fi

source_dir=$(cd "$(dirname "$0")/../.." && pwd)
bin=$(cd "$1" && pwd)/bin
rm -rf "$2"
mkdir -p "$2"
demo=$(cd "$2" && pwd)

# The demo is one for people without a display, and must not meet the settings of who runs it.
unset DISPLAY WAYLAND_DISPLAY
[[ ${QT_QPA_PLATFORM:-} == minimal ]] || export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR=$demo/runtime
mkdir -p -m 700 "$XDG_RUNTIME_DIR"

source "$source_dir/viewer/demo/demo.bash"

# run_session FOLDER: the viewer with settings and data of its own.
run_session() {
    export XDG_CONFIG_HOME=$1/config XDG_DATA_HOME=$1/data XDG_CACHE_HOME=$1/cache
    "$bin/nerix-viewer" --script "$source_dir/viewer/demo/session.js" | tell_and_obey
}

# Shows what the script prints, and passes on what it wants of the simulated camera.
tell_and_obey() {
    local line
    while IFS= read -r line; do
        if [[ $line == "simulator: "* ]]; then
            echo "${line#simulator: }" >&"$to_simulator"
        else
            echo "viewer   $line"
        fi
    done
}

require_event() {
    if ! stored_events | grep -qxF "$1"; then
        printf 'run-demo.sh: this event should be stored and is not: %s\n' "$1" >&2
        exit 1
    fi
}

# Some event of the category $1 and the name $2, whatever its text.
require_kind() {
    if ! stored_events | grep -q "^$1"$'\t'"$2"; then
        printf 'run-demo.sh: an event should be stored and is not: %s %s\n' "$1" "$2" >&2
        exit 1
    fi
}

session_with_consent() {
    local folder=$demo/with-consent
    events=$folder/data/Ostrand/nerix-viewer
    mkdir -p "$folder/config/Ostrand"
    printf '[UsageTracking]\nOptInEnabled=true\nOptInSelected=true\n' \
        >"$folder/config/Ostrand/nerix-viewer.ini"
    follow_events "$folder"
    run_session "$folder"
    stop_following
    require_event $'GeneralEvent\tSessionStarted\t{"EventCategory":"GeneralEvent","EventName":"SessionStarted"}'
    require_event $'GeneralEvent\tInitialCameraCount\t{"EventCategory":"GeneralEvent","EventName":"InitialCameraCount","InitialCameraCount":1}'
    require_event $'Model\tOstrand ***-2000\t'
    require_event $'Camera\tConnected\t{"CameraNr":0,"EventCategory":"Camera","EventName":"Connected","Model":"Ostrand ***-2000"}'
    require_kind Camera Opened
    require_event $'FeatureChosen\tExposureTime\t{"EventCategory":"FeatureChosen","EventName":"ExposureTime"}'
    require_event $'ParameterValueChanged\tExposureTime\t{"CameraNr":0,"EventCategory":"ParameterValueChanged","EventName":"ExposureTime","InitialValue":"5000","ParameterName":"ExposureTime","ParameterValue":"8000"}'
    require_event $'Grab\tStarted\t{"CameraNr":0,"EventCategory":"Grab","EventName":"Started","GrabType":"Continuous","Model":"Ostrand ***-2000"}'
    require_kind Grab Stopped
    require_kind Grab Failed
    require_kind Camera Closed
    require_event $'Camera\tRemoved\t{"CameraNr":0,"EventCategory":"Camera","EventName":"Removed","Model":"Ostrand ***-2000"}'
    require_event $'GeneralEvent\tSessionEnded\t{"EventCategory":"GeneralEvent","EventName":"SessionEnded","FinalCameraCount":0,"TotalUsedCameraCount":1}'
}

session_without_consent() {
    local folder=$demo/without-consent
    events=$folder/data/Ostrand/nerix-viewer
    mkdir -p "$folder"
    run_session "$folder" >/dev/null
    if [[ -n $(ls -A "$events" 2>/dev/null) ]]; then
        echo "run-demo.sh: without consent there are files in $events" >&2
        exit 1
    fi
    echo "Nothing was sent: no event was stored, and the analytics library has made no file."
}

echo
start_simulator
echo
echo "A session of a user who has agreed to usage tracking:"
session_with_consent
echo
echo "The same session of a user who was never asked:"
session_without_consent
echo
echo "The events are kept: ${bin#"$PWD"/}/rui-events ${demo#"$PWD"/}/with-consent/data/Ostrand/nerix-viewer"
