# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# as-user.sh COMMAND...: in the checkout of the ordinary user, as somebody who has just logged in.
cache=
if [ -d /var/cache/ccache ]; then
    cache="CCACHE_DIR=/var/cache/ccache CCACHE_UMASK=000"
fi
cd "/home/tester/My tests & 試験/it's Ünïcode/Usage Tracking"
exec setpriv --reuid tester --regid tester --init-groups env -i $cache \
    HOME=/home/tester USER=tester LOGNAME=tester SHELL=/bin/bash LANG=C.UTF-8 TERM=dumb \
    PATH=/usr/local/bin:/usr/bin:/bin bash -c \
    'TIMEFORMAT="processor %U s in programs, %S s in the kernel"; time "$@"' bash "$@"
