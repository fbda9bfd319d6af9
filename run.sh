#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# Builds what a user runs and shows it at work: the viewer with a simulated camera, and the usage
# events that it stores. Without a display a script plays the user. Works on a bare Debian 12, as
# root or with sudo; run again, it is quick and needs no network.
set -euo pipefail
cd "$(dirname "$0")"

log=build/run.log
mkdir -p build

# Shows the whole log only when a step fails.
step() {
    local text=$1
    shift
    printf '%s\n' "$text" >&2
    if ! "$@" >"$log" 2>&1; then
        cat "$log" >&2
        echo "run.sh: this failed: $*" >&2
        exit 1
    fi
}

tools/install-deps.sh
step "Building (build/release) ..." bash -ec '
    cmake --preset release
    cmake --build --preset release --target nerix-viewer nerix-camera-simulator rui-events UsageTracking'
if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    exec viewer/demo/run-viewer.sh build/release build/viewer
fi
exec viewer/demo/run-demo.sh build/release build/demo
