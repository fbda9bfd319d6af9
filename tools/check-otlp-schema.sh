#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# Checks the requests of the analytics library, and mutants of them, with the code that is
# generated from the standard's own definitions: an npm package, which is fetched once and kept.
# Needs node and npm, and a build with the tests:
#
#     tools/check-otlp-schema.sh [BUILD_DIRECTORY]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/dev}
cache=${XDG_CACHE_HOME:-$HOME/.cache}/ruisdk-otlp-0.208.0

command -v node >/dev/null || { echo "check-otlp-schema: node is missing; install nodejs and npm" >&2; exit 1; }
if [[ ! -d $cache/node_modules ]]; then
    mkdir -p "$cache"
    npm install --silent --no-audit --no-fund --ignore-scripts --prefix "$cache" \
        @opentelemetry/otlp-transformer@0.208.0
fi

dump=$(mktemp -d)
trap 'rm -r "$dump"' EXIT
RUI_OTLP_DUMP=$dump "$build/tests/bin/test_ruisdk_delivery" --gtest_filter='*Otlp*' >/dev/null
NODE_PATH=$cache/node_modules node tests/ruisdk/otlp/check.js "$dump"
