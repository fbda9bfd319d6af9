// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The push button of the welcome screen's pages.

import QtQuick 2.12
import QtQuick.Templates 2.12 as T
import NerixWelcome 1.0

T.Button {
    id: control

    implicitWidth: Math.max(100, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(40, implicitContentHeight + topPadding + bottomPadding)
    padding: 6
    font: Constants.font
    hoverEnabled: true

    Accessible.name: control.text
    Accessible.role: Accessible.Button

    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    contentItem: Text {
        textFormat: Text.PlainText
        text: control.text
        font: control.font
        color: control.enabled ? "#ffffff" : "#767676"
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    background: Rectangle {
        color: {
            if (!control.enabled)
                return "#dadada";
            if (control.down)
                return "#005397";
            return control.hovered ? "#0069bb" : "#0073cc";
        }

        Rectangle {
            x: 3
            y: 3
            width: parent.width - 6
            height: parent.height - 6
            color: "transparent"
            border.color: "#ffffff"
            border.width: 1
            visible: control.visualFocus
        }
    }
}
