#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# update-translations.sh [FOLDER]: brings the catalogues in FOLDER (without one: translation/) up to
# date with the texts of the plug-in. A new text stands there without a translation, a text that is
# gone is removed. The English catalogue stays empty: the texts in the source are English.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
folder=$(cd "${1:-$root/translation}" && pwd)

lupdate=/usr/lib/qt5/bin/lupdate
[[ -x $lupdate ]] || lupdate=$(command -v lupdate) || {
    echo "update-translations: lupdate is missing; run tools/install-deps.sh" >&2
    exit 1
}

catalogues=()
for language in ja ko zh; do
    file=$folder/UsageTracking_$language.ts
    [[ ! -e $file ]] || catalogues+=("$file")
done
if [[ ${#catalogues[@]} -eq 0 ]]; then
    echo "update-translations: $folder has no UsageTracking_ja.ts, _ko.ts or _zh.ts" >&2
    exit 1
fi
cd "$root"
exec "$lupdate" -silent -locations none -no-obsolete -source-language en usagetracking \
    -ts "${catalogues[@]}"
