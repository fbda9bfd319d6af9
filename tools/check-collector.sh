#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# check-collector.sh [BUILD_DIRECTORY]
#
# Runs docs/collector.yaml in a real OpenTelemetry Collector, with events from the viewer and from
# a program that delivers while it tracks. The collector is killed while the one behind it is away;
# then every event must have arrived there, once and whole.
#
# The collector is built once, of the library that Debian unstable has, in a bare system in
# ~/.cache/nerix-otelcol: that needs root, debootstrap and the network.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build/dev}")
cache=${XDG_CACHE_HOME:-$HOME/.cache}/nerix-otelcol
collector=$cache/otelcol
sources=tests/ruisdk/collector

build_collector() {
    local root=$cache/root package=golang-opentelemetry-collector-dev mirror
    mirror=$(tools/debian-mirror.sh)
    mkdir -p "$cache"
    [[ -e $root/etc/debian_version ]] || debootstrap --variant=minbase \
        --include="golang-go,golang-github-coreos-bbolt-dev,$package" \
        sid "$root" "$mirror"
    mkdir -p "$root/build"
    cp "$sources"/*.go "$root/build"
    local version
    version=$(chroot "$root" dpkg-query --show --showformat '${Version}' "$package")
    # The compiler looks itself up in /proc, which is there in a mount namespace that ends with it.
    unshare --mount sh -ec 'mount -t proc proc "$0/proc"; exec chroot "$0" "$@"' "$root" \
        env -i PATH=/usr/bin:/bin HOME=/root GOPATH=/usr/share/gocode GO111MODULE=off CGO_ENABLED=0 \
        go build -C /build -ldflags "-X main.version=$version" -o /build/otelcol .
    cp "$root/build/otelcol" "$collector"
}

if [[ ! -x $collector || $(find "$sources" -name '*.go' -newer "$collector") ]]; then
    build_collector
fi
if [[ -z ${NERIX_NETWORK:-} ]]; then
    exec tools/in-network-namespace.sh tools/check-collector.sh "$build"
fi

work=$(mktemp -d)
first=
next=
cleanup() {
    # shellcheck disable=SC2086
    kill $first $next 2>/dev/null || true
    wait
    rm -r "$work"
}
trap cleanup EXIT

fail() {
    echo "check-collector: $1" >&2
    tail -n 5 "$work"/*.log "$work/compared" >&2 2>/dev/null
    exit 1
}

# wait_until WHAT COMMAND...: for a minute at most.
wait_until() {
    local what=$1
    shift
    for _ in $(seq 300); do
        if "$@"; then
            return
        fi
        sleep 0.2
    done
    fail "$what: not within a minute"
}

listens() {
    (: <"/dev/tcp/127.0.0.1/$1") 2>/dev/null
}

# What differs here from the configuration as it is documented: where it keeps and sends things.
cat >"$work/here.yaml" <<END
extensions: {file_storage/queue: {directory: $work/queue}}
exporters: {otlphttp/next: {endpoint: "http://127.0.0.1:4319"}}
service: {telemetry: {metrics: {level: none}}}
END

start_first() {
    "$collector" --config docs/collector.yaml --config "$work/here.yaml" >>"$work/first.log" 2>&1 &
    first=$!
    wait_until "the collector listens" listens 4318
}

start_next() {
    "$collector" --config "$sources/next.yaml" >"$work/printed" 2>"$work/next.log" &
    next=$!
    wait_until "the next collector listens" listens 4319
}

has_all() {
    python3 "$sources/compare.py" "$work/printed" "$work"/*.events >"$work/compared"
}

echo "== $("$collector" --version)"
"$collector" validate --config docs/collector.yaml 2>"$work/validate.log" \
    || fail "docs/collector.yaml is refused"
sed 's/max_elapsed_time/max_time/' docs/collector.yaml >"$work/wrong.yaml"
if "$collector" validate --config "$work/wrong.yaml" 2>/dev/null; then
    fail "a wrong key is not refused"
fi
echo "docs/collector.yaml is valid, a wrong key is refused"

echo "== events while the next collector is away"
start_first
viewer/demo/run-demo.sh "$build" "$work/demo" >"$work/demo.log"
viewer_events=$(dirname "$(find "$work/demo" -name usage-events.sqlite | head -n 1)")
"$build/bin/rui-events" send --to http://127.0.0.1:4318 "$viewer_events" >/dev/null
"$build/tests/bin/rui-test-writer" "$work/writer" writer 700 http://127.0.0.1:4318 >/dev/null
"$build/bin/rui-events" send --to http://127.0.0.1:4318 "$work/writer" >/dev/null
"$build/bin/rui-events" --json "$viewer_events" >"$work/viewer.events"
"$build/bin/rui-events" --json "$work/writer" >"$work/writer.events"
if grep -hv '"state":"delivered"' "$work"/*.events; then
    fail "these are not delivered"
fi
echo "the collector has taken $(cat "$work"/*.events | wc -l) events"

echo "== the collector is killed, and both start"
{
    kill -KILL "$first"
    wait "$first" || true
} 2>/dev/null
start_next
start_first
wait_until "all events arrive at the next collector" has_all
cat "$work/compared"
