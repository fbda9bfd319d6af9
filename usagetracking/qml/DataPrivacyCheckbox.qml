// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// An answer of the consent page: a tile with a picture and a word. Of the tiles in one panel at
// most one is checked.

import QtQuick 2.10
import QtQuick.Templates 2.1 as T
import NerixWelcome 1.0
import QtGraphicalEffects 1.0

T.RadioButton {
    id: control

    property string textColor: "#000000"
    property string highlightColor: "#007ad9"
    property string backgroundColor: "#f0f0f0"
    property url enabledImageSource
    property url disableImageSource
    property size imageSourceSize: "80x80"

    function faded(name, alpha) {
        const colour = Qt.darker(name, 1.0);
        return Qt.rgba(colour.r, colour.g, colour.b, alpha);
    }

    implicitWidth: 100
    implicitHeight: 64
    font: Constants.font
    checked: false
    hoverEnabled: true

    Accessible.name: control.text
    Accessible.role: Accessible.RadioButton

    background: buttonBackground
    contentItem: textItem

    Keys.onReturnPressed: choose()
    Keys.onEnterPressed: choose()

    // As a click and the space bar do.
    function choose() {
        if (!control.checked)
            control.toggle();
        control.clicked();
    }

    Rectangle {
        id: buttonBackground
        objectName: "buttonBackground"

        z: 1
        width: control.width
        height: control.height
        radius: 4
        color: "white"
        opacity: control.enabled ? 1 : 0.8
        border.color: control.backgroundColor
        border.width: 3
    }

    Rectangle {
        id: buttonInnerBackground
        objectName: "buttonInnerBackground"

        x: 8
        y: 8
        z: 1
        width: control.width - 16
        height: control.height - 16
        radius: 4
        color: control.backgroundColor
        opacity: control.enabled ? 1 : 0.8
    }

    // Where the keyboard is: nothing to see for those who use the mouse.
    Rectangle {
        objectName: "focusFrame"

        x: 12
        y: 12
        z: 1
        width: control.width - 24
        height: control.height - 24
        radius: 2
        color: "transparent"
        border.color: control.highlightColor
        border.width: 1
        visible: control.visualFocus
    }

    Text {
        id: textItem
        objectName: "textItem"

        z: 2
        topPadding: control.height - 40
        text: control.text
        font: control.font
        color: control.textColor
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
    }

    Image {
        id: buttonSymbol
        objectName: "buttonSymbol"

        x: (control.width - control.imageSourceSize.width) / 2
        y: (control.height - control.imageSourceSize.height) / 2
        z: 2
        source: control.enabled && control.checked ? control.enabledImageSource
                                                   : control.disableImageSource
        sourceSize: control.imageSourceSize
    }

    DropShadow {
        objectName: "buttonShadow"

        anchors.fill: buttonBackground
        source: buttonBackground
        horizontalOffset: 1
        verticalOffset: 1
        radius: 5.0
        color: "#b8b8b8"
    }

    states: [
        State {
            name: "hovered"
            when: control.enabled && control.hovered && !control.checked

            PropertyChanges {
                target: buttonBackground
                border.color: Qt.lighter(control.highlightColor)
                border.width: 2
            }
            PropertyChanges {
                target: textItem
                color: control.textColor
            }
        },
        State {
            name: "normal"
            when: control.enabled && !control.checked

            PropertyChanges {
                target: textItem
                color: control.faded(control.textColor, 0.6)
            }
        },
        State {
            name: "checked"
            when: control.enabled && control.checked

            PropertyChanges {
                target: textItem
                color: control.textColor
            }
            PropertyChanges {
                target: buttonBackground
                border.color: control.highlightColor
            }
        },
        State {
            name: "disabled"
            when: !control.enabled

            PropertyChanges {
                target: buttonBackground
                color: control.backgroundColor
            }
            PropertyChanges {
                target: textItem
                color: control.faded(control.textColor, 0.4)
            }
        }
    ]
}
