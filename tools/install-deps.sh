#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# Installs, on Debian 12, what building, running and testing need. Does nothing, and needs no
# network, when all of it is there.
set -euo pipefail

packages=(
    # compiler and build
    g++ cmake ninja-build mold pkg-config ccache git ca-certificates
    # Qt 5.15: libraries, tools, the modules of the consent page
    qtbase5-dev qtbase5-dev-tools qtdeclarative5-dev qtdeclarative5-dev-tools
    qttools5-dev qttools5-dev-tools qtquickcontrols2-5-dev libqt5svg5
    # TIFF files
    qt5-image-formats-plugins
    # the translations of Qt's own dialogs
    qttranslations5-l10n
    qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-controls2
    qml-module-qtquick-templates2 qml-module-qtgraphicaleffects qml-module-qttest
    # cameras (the USB headers are asked for by Aravis' pkg-config file)
    libaravis-dev libusb-1.0-0-dev libglib2.0-dev
    # analytics library
    libsqlite3-dev libcurl4-openssl-dev zlib1g-dev
    # tests and benchmarks: a display without a screen, an isolated network, tools
    # the software renderer of OpenGL, for the consent page without a graphics card
    libgl1-mesa-dri libglx-mesa0
    libgtest-dev libgmock-dev libbenchmark-dev
    xvfb xauth iproute2 util-linux procps sqlite3 openssl strace faketime python3 python3-yaml clang-format
    fonts-dejavu-core fonts-noto-cjk
    # Debian packages, and what checks that a desktop understands ours
    dpkg-dev appstream desktop-file-utils
    # a desktop for the tests: a window manager, and keys that come from outside
    openbox x11-utils xdotool
)

missing=()
for package in "${packages[@]}"; do
    state=$(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null || true)
    [[ $state == ii* ]] || missing+=("$package")
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

as_root=()
if [[ $(id -u) -ne 0 ]]; then
    if ! command -v sudo >/dev/null; then
        echo "install-deps: these packages are missing and neither root nor sudo is at hand; as root run: apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

echo "install-deps: installing ${#missing[@]} packages: ${missing[*]}" >&2
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
