#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# with-display.sh [--screen WIDTHxHEIGHT] COMMAND...: runs a command on an X display of its own that
# nobody sees, with OpenGL drawn by software. The display picks a free number itself, so any number
# of them run side by side.
set -euo pipefail

screen=2560x1600
if [[ ${1:-} == --screen ]]; then
    screen=${2:-}
    shift $(($# < 2 ? 1 : 2))
fi

if [[ $# -eq 0 ]] || ! command -v Xvfb >/dev/null; then
    echo "with-display: needs a command, and Xvfb from tools/install-deps.sh" >&2
    exit 2
fi

folder=$(mktemp -d)
number=$folder/number
mkfifo "$number"
Xvfb -displayfd 3 -screen 0 "${screen}x24" -dpi 96 -noreset -nolisten tcp 3>"$number" 2>"$folder/log" &
server=$!
trap 'kill "$server" 2>/dev/null || true; wait "$server" 2>/dev/null || true; rm -rf "$folder"' EXIT

# The server says its number when it is ready; it says nothing if it could not start.
if ! read -r display <"$number"; then
    echo "with-display: the display does not start: $(tail -n 1 "$folder/log")" >&2
    exit 2
fi
DISPLAY=:$display QT_QPA_PLATFORM=xcb LIBGL_ALWAYS_SOFTWARE=1 "$@"
