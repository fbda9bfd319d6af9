#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# run-viewer.sh BUILD_DIR DEMO_DIR
#
# The viewer on this display with a simulated camera, in a network of their own, and the usage events
# as they are stored. Settings and events stay in DEMO_DIR, so the next run goes on with them. Ends
# when the viewer is closed.
set -euo pipefail

if [[ -z ${NERIX_NETWORK:-} ]]; then
    here=$(cd "$(dirname "$0")" && pwd)
    exec "$here/../../tools/in-network-namespace.sh" "$here/run-viewer.sh" "$@"
fi

source_dir=$(cd "$(dirname "$0")/../.." && pwd)
bin=$(cd "$1" && pwd)/bin
mkdir -p "$2"
demo=$(cd "$2" && pwd)
events=$demo/data/Ostrand/nerix-viewer
source "$source_dir/viewer/demo/demo.bash"

start_simulator
follow_events "$demo"
XDG_CONFIG_HOME=$demo/config XDG_DATA_HOME=$demo/data XDG_CACHE_HOME=$demo/cache \
    "$bin/nerix-viewer" &
viewer_pid=$!
trap 'kill "$viewer_pid" 2>/dev/null' TERM INT
echo "viewer   is open: close its window to end"

status=0
wait "$viewer_pid" || status=$?
# A signal interrupts the waiting, not the viewer, which ends in its own time.
while kill -0 "$viewer_pid" 2>/dev/null; do
    status=0
    wait "$viewer_pid" || status=$?
done
stop_following
exit "$status"
