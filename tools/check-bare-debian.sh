#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# check-bare-debian.sh [OPTION...]
#
# Tries ./run.sh and ./test.sh, at the last commit, in a Debian 12 that has nothing else: as root,
# and as an ordinary user with sudo in a folder with blanks and signs in its name; each once more
# without a network. Ends with a table of what passed and how long it took, and status 1 if
# something did not pass.
#
#   --as root|user      only as one of them
#   --only run|test     only one of the two commands
#   --preset PRESET     give this to test.sh (may be repeated); the default is test.sh without any
#   --once              not a second time without a network
#   --base FILE.tar     keep the bare Debian in this file for the next time
#   --ccache FOLDER     use this compiler cache, which makes the times untrue
#   --logs FOLDER       where the output goes, default build/bare-debian
#
# Needs root, debootstrap and the network. The mirror is that of this machine, with its settings of
# apt. Everything happens in a temporary folder (TMPDIR, 8 GB), which is removed at the end.
set -euo pipefail
source "$(dirname "$0")/steps.bash"
project=$(cd "$(dirname "$0")/.." && pwd)

people=(root user)
commands=(run test)
presets=()
networks=(online offline)
base= cache= logs=$project/build/bare-debian
while [[ $# -gt 0 ]]; do
    case $1 in
    --once) networks=(online) && shift && continue ;;
    --as | --only | --preset | --base | --ccache | --logs) [[ $# -gt 1 ]] || fail "$1 needs a value" ;;
    *) fail "there is no option \"$1\": see the head of the script" ;;
    esac
    case $1 in
    --as) people=("$2") ;;
    --only) commands=("$2") ;;
    --preset) presets+=("$2") ;;
    --base) base=$(realpath "$2") ;;
    --ccache) mkdir -p "$2" && chmod 1777 "$2" && cache=$(realpath "$2") ;;
    --logs) mkdir -p "$2" && logs=$(realpath "$2") ;;
    esac
    shift 2
done
[[ $(id -u) -eq 0 ]] || fail "only root can make a Debian: run it with sudo"
command -v debootstrap >/dev/null || fail "debootstrap is missing: apt-get install debootstrap"

work=$(mktemp -d --tmpdir bare-debian-XXXXXX)
trap 'rm -rf --one-file-system "$work"' EXIT
mkdir -p "$logs"

mirror=$("$project/tools/debian-mirror.sh")
# What apt must know to reach it.
apt_settings() {
    apt-config dump | grep -E '^Acquire::(https?::Proxy|https?::No-Proxy|https::CaInfo|Check-Valid-Until|Check-Date|Retries) '
}

make_base() {
    debootstrap --variant=minbase bookworm "$work/base" "$mirror"
    apt_settings >"$work/base/etc/apt/apt.conf.d/99host" || true
    # Downloaded packages are read once.
    echo 'APT::Keep-Downloaded-Packages "false";' >>"$work/base/etc/apt/apt.conf.d/99host"
    tar -C "$work/base" -cf "${base:-$work/base.tar}" .
    rm -rf --one-file-system "$work/base"
}

# Of a user: an account with sudo, as an installed Debian has.
make_root() {
    mkdir "$work/$1"
    tar -C "$work/$1" -xf "${base:-$work/base.tar}"
    cp -L /etc/resolv.conf /etc/hosts "$work/$1/etc/"
    cp -r "$project/tools/bare-debian" "$work/$1/opt/"
    git clone -q "file://$project" "$work/$1/opt/checkout"
    git -C "$work/$1/opt/checkout" checkout -q "$commit"
    [[ $1 == root ]] || inside "$1" online bash /opt/bare-debian/add-user.sh
}

# inside PERSON online|offline COMMAND...: in that Debian, with its own processes and mounts, which
# are gone at the end whatever happens.
inside() {
    local root=$work/$1 network=()
    [[ $2 == online ]] || network=(--net)
    shift 2
    unshare --mount --pid --ipc --uts --fork --kill-child --propagation private "${network[@]}" \
        env -i TERM=dumb CACHE="$cache" "$(command -v bash)" \
        "$project/tools/bare-debian/enter.sh" "$root" "$@"
}

# try PERSON NETWORK COMMAND: its line of the table.
try() {
    local person=$1 network=$2 command=$3 arguments=() begin=$SECONDS result=passed
    local log=$logs/$person-$command-$network.log
    [[ $command == run ]] || arguments=("${presets[@]}")
    inside "$person" "$network" bash "/opt/bare-debian/as-$person.sh" "./$command.sh" "${arguments[@]}" \
        >"$log" 2>&1 </dev/null || result="FAILED, see $log"
    printf '%-5s ./%-8s %-8s %8s  %s\n' "$person" "$command.sh" "$network" \
        "$(say_clock $((SECONDS - begin)))" "$result" | tee -a "$work/table"
    # What the commands tell of their own steps, and of the processor's time.
    grep -E '^(Installing|Preparing|Building|== )|^   done in|^processor|tests passed|tests failed' "$log" \
        | sed 's/, log: .*//; s/^ *//; s/^/      /' | tee -a "$work/table"
}

commit=$(git -C "$project" rev-parse HEAD)
[[ -n $base && -e $base ]] || step "Making a bare Debian 12 from $mirror" "$logs/debootstrap.log" make_base
for person in "${people[@]}"; do
    step "Laying it out for $person" "$logs/$person-root.log" make_root "$person"
    for command in "${commands[@]}"; do
        for network in "${networks[@]}"; do
            try "$person" "$network" "$command"
        done
    done
    du -sm "$work/$person" --exclude=proc | awk '{ print "      on disk in the end: " $1 " MB" }' | tee -a "$work/table"
    rm -rf --one-file-system "${work:?}/$person"
done

printf '\nCommit %.10s, Debian %s, %s processors\n\n' "$commit" \
    "$(tar -xOf "${base:-$work/base.tar}" ./etc/debian_version)" "$(nproc)"
cat "$work/table"
! grep -q FAILED "$work/table"
