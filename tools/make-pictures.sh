#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# make-pictures.sh BUILD_DIR: draws the pictures of the README anew, on a display that nobody sees.
# Look at them before they are committed.
set -euo pipefail

if [[ -z ${NERIX_NETWORK:-} ]]; then
    exec "$(dirname "$0")/in-network-namespace.sh" "$0" "$@"
fi

bin=$(cd "$1" && pwd)/bin
tools=$(cd "$(dirname "$0")" && pwd)
cd "$tools/../docs/images"

home=$(mktemp -d)
"$bin/nerix-camera-simulator" >/dev/null &
simulator=$!
trap 'kill "$simulator"; rm -rf "$home"' EXIT

mkdir -m 700 "$home/runtime"
XDG_DATA_HOME=$home XDG_RUNTIME_DIR=$home/runtime \
    "$tools/with-display.sh" "$bin/nerix-viewer" --settings-dir "$home" --show-windows \
    --script pictures.js
