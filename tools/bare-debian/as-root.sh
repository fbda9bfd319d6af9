# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# as-root.sh COMMAND...: in the checkout of root, with nothing in the environment that a bare Debian
# does not set.
cd /opt/checkout
if [ -d /var/cache/ccache ]; then
    export CCACHE_DIR=/var/cache/ccache CCACHE_UMASK=000
fi
export HOME=/root USER=root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin
unset CACHE
TIMEFORMAT='processor %U s in programs, %S s in the kernel'
time "$@"
