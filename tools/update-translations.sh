#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# update-translations.sh [FOLDER]: brings the catalogues in FOLDER (without one: translation/) up to
# date with the texts of the plug-in and of the viewer. A new text stands there without a
# translation, a text that is gone is removed. The English catalogues stay empty: the texts in the
# source are English.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
folder=$(cd "${1:-$root/translation}" && pwd)

lupdate=/usr/lib/qt5/bin/lupdate
[[ -x $lupdate ]] || lupdate=$(command -v lupdate) || {
    echo "update-translations: lupdate is missing; run tools/install-deps.sh" >&2
    exit 1
}

found=0
# update NAME SOURCES: the catalogues that are there of those with this name
update() {
    local name=$1 sources=$2 catalogues=() language
    for language in ja ko zh; do
        [[ ! -e $folder/${name}_$language.ts ]] || catalogues+=("$folder/${name}_$language.ts")
    done
    [[ ${#catalogues[@]} -gt 0 ]] || return 0
    found=1
    "$lupdate" -silent -locations none -no-obsolete -source-language en "$sources" \
        -ts "${catalogues[@]}"
}

cd "$root"
update UsageTracking usagetracking
update NerixViewer viewer
if [[ $found -eq 0 ]]; then
    echo "update-translations: $folder has no UsageTracking_*.ts or NerixViewer_*.ts to update" >&2
    exit 1
fi
