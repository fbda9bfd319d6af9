#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# install-deps.sh [run] [package] [test]
#
# Installs, on Debian 12, what is needed to build and run the viewer (run), to make Debian packages
# of it (package), and to build and pass the tests, which includes the other two (test). Without a
# word: test. Does nothing, and needs no network, when all of it is there.
set -euo pipefail
source "$(dirname "$0")/steps.bash"

run=(
    # compiler and build
    g++ cmake ninja-build mold pkg-config ccache ca-certificates
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
    libaravis-dev libusb-1.0-0-dev libglib2.0-dev libglib2.0-dev-bin
    # analytics library
    libsqlite3-dev libcurl4-openssl-dev zlib1g-dev
    # the demonstration: an isolated network
    iproute2 util-linux
    # letters, those of Japanese, Korean and Chinese too
    fonts-dejavu-core fonts-noto-cjk
)
package=(
    # what a program links to is looked up by file and dpkg-shlibdeps
    dpkg-dev file
)
test=(
    git libgtest-dev libgmock-dev libbenchmark-dev
    # a display without a screen, with the software renderer of OpenGL for the consent page
    xvfb xauth libgl1-mesa-dri libglx-mesa0
    # a desktop: a window manager, and keys that come from outside
    openbox x11-utils xdotool libsm-dev libice-dev
    procps sqlite3 openssl strace faketime python3 python3-yaml clang-format
    # what checks that a desktop understands our packages
    appstream desktop-file-utils
)

# the receiving side; a Node.js of another source serves as well
command -v node >/dev/null && command -v npm >/dev/null || test+=(nodejs npm)

wanted=()
for group in "${@:-test}"; do
    case $group in
    run) wanted+=("${run[@]}") ;;
    package) wanted+=("${run[@]}" "${package[@]}") ;;
    test) wanted+=("${run[@]}" "${package[@]}" "${test[@]}") ;;
    *) fail "there is no group \"$group\": give run, package or test" ;;
    esac
done

command -v apt-get >/dev/null \
    || fail "this is no Debian, whose packages are listed in this script: install what they are here"

missing=()
for name in "${wanted[@]}"; do
    state=$(dpkg-query -W -f='${db:Status-Abbrev}' "$name" 2>/dev/null || true)
    [[ $state == ii* || " ${missing[*]} " == *" $name "* ]] || missing+=("$name")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

install=(apt-get install -y --no-install-recommends "${missing[@]}")
as_root=()
if [[ $(id -u) -ne 0 ]]; then
    command -v sudo >/dev/null \
        || fail "${#missing[@]} packages are missing, and only root may install them; as root run: apt-get update && ${install[*]}"
    sudo -v \
        || fail "${#missing[@]} packages are missing, and sudo does not let $(id -un) install them; let an administrator run: apt-get update && ${install[*]}"
    as_root=(sudo)
fi

# Two packages that are installed at once wait for each other.
apt_options=(-o DPkg::Lock::Timeout=120 -o APT::Status-Fd=1)

# An update that fails is no harm if the packages are still known.
install_missing() {
    "${as_root[@]}" apt-get "${apt_options[@]}" update || true
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        "${install[0]}" "${apt_options[@]}" "${install[@]:1}"
}

log=$(mktemp --tmpdir nerix-install-XXXXXX.log)
step "Installing ${#missing[@]} Debian packages and what they need" "$log" install_missing
rm -f "$log"
