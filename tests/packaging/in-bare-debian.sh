#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# in-bare-debian.sh PACKAGE.deb [FOLDER]
#
# Installs the package into a Debian 12 that has nothing else, lets an ordinary user there run
# smoke.js with a simulated camera, without and with windows, removes the package, and looks for
# what it left. Needs root, debootstrap and the network; FOLDER (default: a temporary one) keeps the
# bare system for the next time.
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
package=$(realpath "$1")
root=${2:-$(mktemp -d)}
mirror=$("$here/../../tools/debian-mirror.sh")

[[ -e $root/etc/debian_version ]] || debootstrap --variant=minbase bookworm "$root" "$mirror"
mountpoint -q "$root/proc" || mount -t proc proc "$root/proc"
trap 'umount "$root/proc"' EXIT

inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}

echo "== install"
cp "$package" "$root/tmp/package.deb"
inside apt-get update -qq
inside apt-get install -y -qq --no-install-recommends /tmp/package.deb >/dev/null
name=$(dpkg-deb -f "$package" Package)
inside dpkg -L "$name" | sort >"$root/tmp/installed-files"

echo "== run as an ordinary user"
inside id tester >/dev/null 2>&1 || inside useradd --create-home tester
cp "$here/smoke.js" "$root/tmp/smoke.js"
cat >"$root/tmp/smoke.sh" <<'END'
set -eu
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=/home/tester/runtime
cd /home/tester
rm -rf first second
mkdir -p -m 700 runtime
nerix-camera-simulator >ready &
simulator=$!
trap 'kill "$simulator"' EXIT
nerix-viewer --version
HOME=$PWD/first nerix-viewer --script /tmp/smoke.js
HOME=$PWD/second nerix-viewer --show-windows --script /tmp/smoke.js
rui-events --raw first/.local/share/Ostrand/nerix-viewer | cut -f 1,2 | sort | uniq -c
END
# A network of its own: no camera of a real one is touched.
unshare --net bash -c '
    ip link set lo up
    exec chroot "$0" setpriv --reuid tester --regid tester --init-groups \
        env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 sh /tmp/smoke.sh' "$root"

echo "== remove"
inside apt-get purge -y -qq "$name" >/dev/null
left=0
while read -r path; do
    if [[ ! -d $root$path && -e $root$path ]] \
        || [[ -d $root$path && $path == *nerix* ]]; then
        echo "left behind: $path"
        left=1
    fi
done <"$root/tmp/installed-files"
[[ $left -eq 0 ]] && echo "nothing is left behind"
exit "$left"
