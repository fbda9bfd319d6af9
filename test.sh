#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# test.sh: builds and passes the tests: those of the receiving side (insights/), all others as
# developers build (dev), and once more with the sanitizers those that have threads, parse, or lose
# a camera.
# test.sh PRESET...: all tests of these presets (dev, release, asan, tsan); of tsan without the few
# that it cannot follow.
# NERIX_CTEST_OPTIONS: further options of ctest, for example "--repeat until-pass:2".
# Works on a bare Debian 12, as root or with sudo; run again, it needs no network.
set -euo pipefail
cd "$(dirname "$0")"
: "${NERIX_CTEST_OPTIONS:=}"
source tools/steps.bash

# Which tests are worth their time in a second build. The names of tests are those of their targets.
asan_tests='^(UsageTracking(Session|Tracking|EventRecord|ConsentController|HelpMenu|Request|PluginLifecycle|PluginLibrary|PluginComponent|.*Events|Parameter.*|GrabFailures|StreamCounters)Test|test_ruisdk_(core|store|delivery|api|sessions|processes|tool)|PluginShutDownTest|(Vanishing|Lost)CameraTest|TwoCamerasTest|CameraPool(GvcpMessage|Busy)Test|StreamAttackTest|(Discovery|Control)AttackTest)$'
tsan_tests='^(test_ruisdk_(core|store|delivery|api|sessions|processes|tool)|ServiceRegistryThreadsTest|CameraPool(Grab|Busy)Test|UsageTracking(Session|Tracking|Subscriptions|QueuedBehindStop|PluginLifecycle)Test)$'

# What the thread sanitizer cannot follow: threads of libraries that are not built for it (Aravis,
# X, the file dialog), viewers that a shell starts, a signal to a script that calculates.
tsan_blind='^(Simulator(Control|Features|Stream|Vanish)Test|FeatureFilesPluginTest|KeyboardTest|DemoTest|ViewerDemoTest|DocumentsTest|ClosingTest)$'

configure() {
    echo "== $1: build"
    cmake --preset "$1" -DBUILD_TESTING=ON >/dev/null
}

run_all() {
    configure "$1"
    cmake --build --preset "$1"
    echo "== $1: tests"
    local left_out=()
    [[ $1 != tsan ]] || left_out=(-E "$tsan_blind")
    ctest --preset "$1" --parallel 2 "${left_out[@]}" $NERIX_CTEST_OPTIONS
}

run_some() {
    configure "$1"
    local names
    mapfile -t names < <(ctest --preset "$1" -N -R "$2" | sed -n 's/^ *Test *#[0-9]*: //p')
    cmake --build --preset "$1" --target "${names[@]}"
    echo "== $1: tests"
    ctest --preset "$1" --parallel 2 -R "$2" $NERIX_CTEST_OPTIONS
}

require_build_folder
tools/install-deps.sh test
drop_unusable_compiler_cache
if [[ $# -gt 0 ]]; then
    for preset in "$@"; do
        run_all "$preset"
    done
else
    echo "== insights: tests"
    insights/test.sh
    run_all dev
    run_some asan "$asan_tests"
    run_some tsan "$tsan_tests"
fi
