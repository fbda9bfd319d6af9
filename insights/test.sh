#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# Passes the tests of the receiving side. Fetches what package-lock.json names if that has changed;
# run again, it needs no network.
set -euo pipefail
cd "$(dirname "$0")"
source ../tools/steps.bash

node -e 'process.exit(parseInt(process.versions.node) >= 18 ? 0 : 1)' 2>/dev/null \
    || fail "Node.js 18 or newer is needed: install nodejs and npm"
if ! cmp -s package-lock.json node_modules/.package-lock-of-these; then
    log=$(mktemp)
    npm ci --ignore-scripts --no-progress >"$log" 2>&1 || {
        tail -n 5 "$log" >&2
        fail "npm could not fetch what insights/package-lock.json names (600 MB): it needs its registry once"
    }
    rm "$log"
    cp package-lock.json node_modules/.package-lock-of-these
fi

mapfile -t tests < <(find test -name '*.test.js' | sort)
node --test --test-concurrency=2 "${tests[@]}"
