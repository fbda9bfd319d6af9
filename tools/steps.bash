# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# What the scripts for people have in common: steps that tell how far they are, and reasons in a
# sentence. Sourced by bash.

# How often a step tells its progress where lines do not move, in seconds.
readonly quiet_interval=30

say_clock() {
    printf '%d:%02d' $(($1 / 60)) $(($1 % 60))
}

# fail TEXT: one line, named after the script.
fail() {
    echo "${0##*/}: $1" >&2
    exit 1
}

# Where a log stands: "120 of 430" for a build, "45 %" for an installation.
progress_of() {
    tail -c 4000 "$1" 2>/dev/null | tr '\r' '\n' | sed -nE \
        -e 's/^\[([0-9]+)\/([0-9]+)\].*/\1 of \2 steps/p' \
        -e 's/^dlstatus:[^:]*:([0-9]+).*/downloading, \1 %/p' \
        -e 's/^pmstatus:[^:]*:([0-9]+).*/unpacking, \1 %/p' | tail -n 1
}

# One line that moves on a terminal, or a line now and then.
show_progress() {
    local text=$1 log=$2 begin=$SECONDS passed never
    # A second passes without a program, which would outlive the step.
    exec {never}<> <(:)
    while ! read -rt 1 -u "$never" && kill -0 $$ 2>/dev/null; do
        passed=$((SECONDS - begin))
        if [[ -t 2 ]]; then
            printf '\r\033[K%s %s, %s' "$text" "$(say_clock $passed)" "$(progress_of "$log")" >&2
        elif ((passed % quiet_interval == 0)); then
            echo "$text $(say_clock $passed), $(progress_of "$log")" >&2
        fi
    done
}

# What helps, if the log says why a command failed.
remedy_of() {
    if grep -qiE 'no space left on device|enough free space' "$1"; then
        echo "the disk is full: free 3 GB, then run it again"
    elif grep -qE 'Could not resolve|Temporary failure resolving|Could not connect|Network is unreachable|Failed to fetch|Unable to locate package|has no installation candidate' "$1"; then
        echo "Debian's packages cannot be reached: check the network and /etc/apt/sources.list, then run it again"
    elif grep -qE 'Could not get lock|Unable to acquire the dpkg' "$1"; then
        echo "another program installs packages: wait for its end, then run it again"
    elif grep -qE 'Killed signal terminated program|std::bad_alloc|virtual memory exhausted' "$1"; then
        echo "the memory is used up: close other programs, then run it again"
    elif grep -qE 'Permission denied|Operation not permitted' "$1"; then
        echo "a file belongs to somebody else: $(grep -m 1 -E 'Permission denied|Operation not permitted' "$1")"
    fi
}

# step TEXT LOG COMMAND...: runs the command, whose output goes to LOG. Tells what is done, how far
# it is and how long it took. If it fails: why, or the end of the log.
step() {
    local text=$1 log=$2 begin=$SECONDS status=0 ticker remedy
    shift 2
    echo "$text, log: $log" >&2
    : >"$log"
    show_progress "  " "$log" &
    ticker=$!
    "$@" >"$log" 2>&1 || status=$?
    kill "$ticker" 2>/dev/null || true
    wait "$ticker" 2>/dev/null || true
    [[ ! -t 2 ]] || printf '\r\033[K' >&2
    if [[ $status -eq 0 ]]; then
        echo "   done in $(say_clock $((SECONDS - begin)))" >&2
        return
    fi
    remedy=$(remedy_of "$log")
    [[ -z $remedy ]] || fail "$remedy"
    tail -n 30 "$log" >&2
    fail "this failed, the whole log is $log: $*"
}

# Whoever built here before, what a build makes can be written now.
require_build_folder() {
    local folder foreign
    if ! mkdir -p build 2>/dev/null; then
        fail "$PWD cannot be written by $(id -un): copy it to a folder of your own, or run this as its owner"
    fi
    for folder in build insights/node_modules; do
        [[ -e $folder ]] || continue
        foreign=$(find "$folder" -maxdepth 4 ! -type l ! -writable -print -quit)
        if [[ -n $foreign ]]; then
            fail "$foreign belongs to $(stat -c %U "$foreign"), who built here before: run this as that user, or remove the build with: sudo rm -rf $folder"
        fi
    done
}

# A compiler cache that cannot be written would stop the compiler.
drop_unusable_compiler_cache() {
    local folder=${CCACHE_DIR:-${XDG_CACHE_HOME:-${HOME:-/nonexistent}/.cache}/ccache}
    if ! mkdir -p "$folder" 2>/dev/null || [[ -n $(find "$folder" -maxdepth 1 ! -writable -print -quit) ]]; then
        export CCACHE_DISABLE=1
    fi
}
