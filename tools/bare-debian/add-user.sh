# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# An ordinary user who may use sudo, and whose checkout lies in a folder with a difficult name.
set -eu
apt-get update -qq
apt-get install -y -qq --no-install-recommends sudo
useradd --create-home --shell /bin/bash tester
echo 'tester ALL=(ALL) NOPASSWD: ALL' >/etc/sudoers.d/tester
folder="/home/tester/My tests & 試験/it's Ünïcode"
mkdir -p "$folder"
mv /opt/checkout "$folder/Usage Tracking"
chown -R tester: /home/tester
