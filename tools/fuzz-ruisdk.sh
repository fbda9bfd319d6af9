#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# Fuzzes the JSON writer and the UTF-8 check of the analytics library with libFuzzer; needs clang.
# What it finds interesting is merged into the corpus that the tests replay.
#
#     tools/fuzz-ruisdk.sh [SECONDS]      600 unless given
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-600}
corpus=tests/ruisdk/fuzz/corpus
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

command -v clang++ >/dev/null || { echo "fuzz-ruisdk: clang++ is missing; install clang" >&2; exit 1; }
clang++ -std=c++17 -g -O1 -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=undefined \
    -Iruisdk/src tests/ruisdk/fuzz/JsonFuzzer.cpp ruisdk/src/core/JsonWriter.cpp \
    ruisdk/src/core/Utf8.cpp -lsqlite3 -o "$work/fuzzer"
mkdir "$work/found"
"$work/fuzzer" -max_total_time="$seconds" -max_len=4096 -print_final_stats=1 \
    "$work/found" "$corpus" 2>&1 | tail -n 8
"$work/fuzzer" -merge=1 -max_len=64 "$corpus" "$work/found" 2>&1 | tail -n 1
