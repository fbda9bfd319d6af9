#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# Builds what a user runs and shows it at work: the viewer with a simulated camera, and the usage
# events that it stores. Without a display a script plays the user. Works on a bare Debian 12, as
# root or with sudo; run again, it is quick and needs no network.
set -euo pipefail
cd "$(dirname "$0")"
source tools/steps.bash

require_build_folder
tools/install-deps.sh run
drop_unusable_compiler_cache
step "Preparing build/release" build/configure.log cmake --preset release
step "Building build/release" build/build.log cmake --build --preset release
if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    exec viewer/demo/run-viewer.sh build/release build/viewer
fi
exec viewer/demo/run-demo.sh build/release build/demo
