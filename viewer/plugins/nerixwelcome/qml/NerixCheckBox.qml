// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The check box of the welcome screen's pages. A page may size the `indicator`.

import QtQuick 2.12
import QtQuick.Templates 2.12 as T
import NerixWelcome 1.0

T.CheckBox {
    id: control

    /// How a text is shortened that is wider than the control, as `Text.elide`.
    property int textElide: Text.ElideRight

    readonly property color accent: enabled ? "#0073cc" : "#a8a8a8"

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitContentHeight, implicitIndicatorHeight) + topPadding
                    + bottomPadding
    padding: 6
    rightPadding: 0
    spacing: 6
    font: Constants.font
    hoverEnabled: true

    Accessible.name: control.text
    Accessible.role: Accessible.CheckBox

    Keys.onReturnPressed: control.flip()
    Keys.onEnterPressed: control.flip()

    // As a click and the space bar do.
    function flip() {
        control.toggle();
        control.toggled();
        control.clicked();
    }

    // Where the keyboard is; the indicator alone looks alike with and without it once checked.
    background: Rectangle {
        radius: 2
        color: "transparent"
        border.color: control.accent
        border.width: 1
        visible: control.visualFocus
    }

    indicator: Rectangle {
        implicitWidth: 20
        implicitHeight: 20
        x: control.leftPadding
        y: (control.height - height) / 2
        radius: 2
        color: control.checked ? control.accent : "#ffffff"
        border.color: control.visualFocus || control.hovered || control.checked ? control.accent
                                                                                 : "#808080"
        border.width: control.visualFocus ? 2 : 1

        // The tick: two strokes that meet at its foot.
        Item {
            anchors.centerIn: parent
            width: parent.width * 0.5
            height: parent.height * 0.3
            rotation: -45
            visible: control.checked

            Rectangle {
                width: 2
                height: parent.height
                color: "#ffffff"
            }
            Rectangle {
                y: parent.height - 2
                width: parent.width
                height: 2
                color: "#ffffff"
            }
        }
    }

    contentItem: Text {
        textFormat: Text.PlainText
        leftPadding: control.indicator.width + control.spacing
        text: control.text
        font: control.font
        color: control.enabled ? "#000000" : "#767676"
        verticalAlignment: Text.AlignVCenter
        elide: control.textElide
    }
}
