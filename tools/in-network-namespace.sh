#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# in-network-namespace.sh PROGRAM [ARGUMENT...]
#
# Runs a program in a network of its own: only loopback, with the addresses 127.0.0.1 to 127.0.0.5.
# Cameras are looked for by broadcast, so what runs here meets no camera of the real network and
# nothing of another test. The exit status is the program's.
#
# NERIX_NETWORK tells the program where it is: "isolated"; or "loopback" where the system refuses
# such a network, and the program must open cameras by address only, at 127.0.0.1.
set -euo pipefail

if [[ $# -eq 0 ]]; then
    echo "in-network-namespace.sh: name a program to run" >&2
    exit 2
fi

if unshare --user --map-root-user --net ip link set lo up 2>/dev/null; then
    NERIX_NETWORK=isolated exec unshare --user --map-root-user --net sh -ec '
        ip link set lo up
        for last in 2 3 4 5; do ip address add "127.0.0.$last/8" dev lo; done
        exec "$@"' sh "$@"
fi

echo "in-network-namespace.sh: no network of its own is granted, running on the real loopback" >&2
NERIX_NETWORK=loopback exec "$@"
