#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# Prints the mirror of this machine's first source of Debian 12, to make a bare Debian from.
set -euo pipefail

mirror=$(apt-get indextargets --format '$(SITE) $(CODENAME) $(LABEL)' 2>/dev/null \
    | awk '$2 == "bookworm" && $3 == "Debian" && !mirror { mirror = $1 } END { print mirror }')
if [[ -z $mirror ]]; then
    echo "debian-mirror: no source of Debian 12 is known here: name one in /etc/apt/sources.list and run apt-get update" >&2
    exit 1
fi
echo "$mirror"
