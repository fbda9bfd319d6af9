# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# enter.sh ROOT COMMAND...: makes ROOT the root of the file system and runs the command there. Run by
# check-bare-debian.sh, in namespaces of its own. Not by chroot, in which the kernel grants nobody a
# network of his own, which tests ask for.
set -eu
export PATH=/usr/sbin:/usr/bin:/sbin:/bin
root=$1
shift

# Without a network there is still the machine itself.
ip link set lo up 2>/dev/null || true
mount --rbind "$root" "$root"
if [ -n "$CACHE" ]; then
    mkdir -p "$root/var/cache/ccache"
    mount --bind "$CACHE" "$root/var/cache/ccache"
fi
mount -t proc proc "$root/proc"
mount -t sysfs sysfs "$root/sys" 2>/dev/null || mount --rbind /sys "$root/sys"
mount -t tmpfs -o mode=755 tmpfs "$root/dev"
for device in null zero full random urandom tty; do
    touch "$root/dev/$device"
    mount --bind "/dev/$device" "$root/dev/$device"
done
mkdir "$root/dev/pts" "$root/dev/shm"
mount -t devpts -o newinstance,ptmxmode=666,mode=620 devpts "$root/dev/pts"
mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"
ln -s pts/ptmx "$root/dev/ptmx"
ln -s /proc/self/fd "$root/dev/fd"
ln -s fd/0 "$root/dev/stdin"
ln -s fd/1 "$root/dev/stdout"
ln -s fd/2 "$root/dev/stderr"

cd "$root"
mkdir -p .outside
pivot_root . .outside
umount -l .outside
cd /
exec "$@"
