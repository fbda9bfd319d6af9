// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What all pages of the welcome screen have in common. Sizes are pixels, of the screen with its
// row of tabs.

pragma Singleton

import QtQuick 2.12

QtObject {
    readonly property int width: 1000
    readonly property int height: 750

    readonly property font font: Qt.application.font
}
