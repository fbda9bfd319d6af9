#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# test.sh [PRESET...]: builds the presets (without one: dev) and passes their tests. Works on a bare
# Debian 12, as root or with sudo.
set -euo pipefail
cd "$(dirname "$0")"

presets=("$@")
[[ ${#presets[@]} -gt 0 ]] || presets=(dev)

tools/install-deps.sh
for preset in "${presets[@]}"; do
    echo "== $preset: build"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    echo "== $preset: tests"
    ctest --preset "$preset" --parallel 2
done
