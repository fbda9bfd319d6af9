// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The consent page of the welcome screen. `_dataPrivacyController` holds the answer,
// `_navigationController` is the welcome screen itself.

import QtQuick 2.12
import NerixWelcome 1.0
import QtQuick.Controls 2.3

Item {
    id: dataPrivacyPage
    objectName: "dataPrivacyPage"

    readonly property bool answered: _dataPrivacyController.dataPrivacyOptInSelected
                                     || _dataPrivacyControllerPrivate.dataPrivacyOptInSelected

    implicitWidth: Constants.width
    implicitHeight: Constants.height - 65
    focus: true

    Keys.onRightPressed: walk(true)
    Keys.onDownPressed: walk(true)
    Keys.onLeftPressed: walk(false)
    Keys.onUpPressed: walk(false)

    // The arrow keys go where Tab and Shift+Tab go.
    function walk(forward) {
        const start = dataPrivacyPage.nextItemInFocusChain(true);
        let current = dataPrivacyPage;
        for (let item = start; current === dataPrivacyPage && item; ) {
            if (item.activeFocus)
                current = item;
            item = item.nextItemInFocusChain(true);
            if (item === start)
                break;
        }
        const reason = forward ? Qt.TabFocusReason : Qt.BacktabFocusReason;
        current.nextItemInFocusChain(forward).forceActiveFocus(reason);
    }

    // Where a link stands, line by line. A text tells which link is at a point, but not this.
    function areasOf(label, link) {
        const step = 3;
        const areas = [];
        for (let y = 0; y < label.height; y += step) {
            const hits = [];
            for (let x = 0; x < label.width; x += step) {
                if (label.linkAt(x, y) === link)
                    hits.push(x);
            }
            if (hits.length === 0)
                continue;
            const left = hits[0];
            const right = hits[hits.length - 1] + step;
            const last = areas[areas.length - 1];
            if (last && last.bottom === y && last.left === left && last.right === right)
                last.bottom = y + step;
            else
                areas.push({ "left": left, "right": right, "top": y, "bottom": y + step });
        }
        return areas;
    }

    // The links of a text for the keyboard: Tab stops at each of them, Space and Enter follow it.
    Component {
        id: linkStops

        Repeater {
            id: stops

            readonly property var links: label.text.match(/<a href="[^"]*">[^<]*/g) || []

            model: links.length

            Item {
                id: stop
                objectName: "linkStop"

                readonly property var parts: (stops.links[index] || "").split(/"|>/)
                readonly property string target: parts[1] || ""
                readonly property var areas: activeFocus ? dataPrivacyPage.areasOf(label, target)
                                                         : []

                function follow() {
                    label.linkActivated(target);
                }

                x: areas.reduce((edge, area) => Math.min(edge, area.left), areas.length ? 1e6 : 0)
                y: areas.length ? areas[0].top : 0
                width: areas.reduce((edge, area) => Math.max(edge, area.right - x),
                                    areas.length ? 0 : label.width)
                height: areas.length ? areas[areas.length - 1].bottom - y : label.height
                activeFocusOnTab: true

                Accessible.role: Accessible.Link
                Accessible.name: parts[3] || ""
                Accessible.focusable: true
                Accessible.onPressAction: follow()

                Keys.onSpacePressed: follow()
                Keys.onReturnPressed: follow()
                Keys.onEnterPressed: follow()

                Repeater {
                    model: stop.areas

                    Rectangle {
                        objectName: "linkFrame"

                        x: modelData.left - stop.x - 2
                        y: modelData.top - stop.y - 1
                        width: modelData.right - modelData.left + 4
                        height: modelData.bottom - modelData.top + 2
                        radius: 2
                        color: "transparent"
                        border.color: "#007ad9"
                        border.width: 2
                    }
                }
            }
        }
    }

    // An answer was clicked: the first click shows its selection before anything is applied.
    Item {
        id: _dataPrivacyControllerPrivate
        objectName: "_dataPrivacyControllerPrivate"

        property bool dataPrivacyOptInSelected: false
    }

    Row {
        x: 0
        y: 0
        width: dataPrivacyPage.width
        height: dataPrivacyPage.height
        spacing: 0

        Rectangle {
            id: leftPanel
            objectName: "leftPanel"

            width: parent.width - 250
            height: parent.height
            color: "#ffffff"

            Text {
                id: selectTrackingLabelTop
                objectName: "selectTrackingLabelTop"

                x: 75
                y: 35
                width: parent.width - 120
                text: qsTr("At Ostrand, we are constantly investing in our products and services. To learn more about how our customers use our features and camera models, we started our product improvement program. It helps us to tailor our products to your needs and optimize your experience with Ostrand. We will not gather any personal data and your system performance won`t be affected.<br/><h3>Would you like to participate in our product improvement program?</h3>")
                font.pixelSize: 12
                lineHeight: 1.4
                wrapMode: Text.WordWrap
            }

            // "Yes" and "No" are the same in every language.
            DataPrivacyCheckbox {
                id: yesCheckbox
                objectName: "yesCheckbox"

                x: (parent.width - (yesCheckbox.width + noCheckbox.width)) / 2
                y: selectTrackingLabelTop.y + selectTrackingLabelTop.height + 10
                width: 175
                height: 175
                text: "Yes"
                font.pixelSize: 12
                enabledImageSource: "images/thumbs-up-green.png"
                disableImageSource: "images/thumbs-up-grey.png"
                imageSourceSize: "50x50"
                checked: dataPrivacyPage.answered && _dataPrivacyController.dataPrivacyOptInEnabled

                onClicked: {
                    _dataPrivacyControllerPrivate.dataPrivacyOptInSelected = true;
                    _dataPrivacyController.dataPrivacyOptInEnabled = true;
                }
            }

            DataPrivacyCheckbox {
                id: noCheckbox
                objectName: "noCheckbox"

                x: yesCheckbox.x + yesCheckbox.width + 30
                y: selectTrackingLabelTop.y + selectTrackingLabelTop.height + 10
                width: 175
                height: 175
                text: "No"
                font.pixelSize: 12
                enabledImageSource: "images/thumbs-down-red.png"
                disableImageSource: "images/thumbs-down-grey.png"
                imageSourceSize: "50x50"
                checked: dataPrivacyPage.answered && !_dataPrivacyController.dataPrivacyOptInEnabled

                onClicked: {
                    _dataPrivacyControllerPrivate.dataPrivacyOptInSelected = true;
                    _dataPrivacyController.dataPrivacyOptInEnabled = false;
                }
            }

            Text {
                id: selectTrackingLabelBottom
                objectName: "selectTrackingLabelBottom"

                x: 75
                y: yesCheckbox.y + yesCheckbox.height + 30
                width: parent.width - 120
                text: {
                    if (!dataPrivacyPage.answered)
                        return "";
                    return _dataPrivacyController.dataPrivacyOptInEnabled
                        ? qsTr("Thank you. We will work hard to improve nerix and our cameras even further!<br/><br/>Our promise to you:<br/><ul><li><b>Benefit from improvements</b> that will save you time in your own product development.</li><li><b>Influence the development of new technologies</b> by participating in the program.</li><li><b>Be more competitive</b> with a user experience, features, and products tailored to your needs.</li></ul><br/>Any comments or concerns? <a href=\"https://www.ostrand.example/support/contact\">Let us know</a>")
                        : qsTr("Sorry to hear that. Are you sure?<br/><ul><li>Don’t <b>delay your time-to-market</b> due to a user experience optimized to others.</li><li>Don’t <b>minimize your influence</b> on the development of <b>new technologies</b>.</li><li>Don’t <b>lose your competitive advantage</b> through features and cameras not tailored to you.</li></ul><br/>Please reconsider and participate in our improvement program.<br/><br/>Any comments or concerns? <a href=\"https://www.ostrand.example/support/contact\">Let us know</a>");
                }
                font.pixelSize: 12
                lineHeight: 1.4
                wrapMode: Text.WordWrap

                onLinkActivated: _dataPrivacyController.onDataPrivacyLinkClicked(link)

                Loader {
                    readonly property Text label: parent

                    sourceComponent: linkStops
                }

                MouseArea {
                    anchors.fill: parent
                    acceptedButtons: Qt.NoButton
                    cursorShape: parent.hoveredLink ? Qt.PointingHandCursor : Qt.ArrowCursor
                }
            }
        }

        Rectangle {
            id: rightPanel
            objectName: "rightPanel"

            width: 250
            height: parent.height
            color: "#f0f0f0"

            Text {
                id: trackingLabelOne
                objectName: "trackingLabelOne"

                anchors.horizontalCenter: parent.horizontalCenter
                y: 35
                width: 200
                text: qsTr("You can withdraw your consent anytime. Click <b>Help > Data Privacy</b> and change your selection.")
                font.pixelSize: 14
                wrapMode: Text.WordWrap
            }

            Text {
                id: trackingLabelTwo
                objectName: "trackingLabelTwo"

                anchors.horizontalCenter: parent.horizontalCenter
                y: trackingLabelOne.y + trackingLabelOne.height + 14
                width: 200
                text: qsTr("For more information, read our <a href=\"DataPrivacy.txt\">privacy statement</a> and <a href=\"https://www.ostrand.example/faq\">FAQs</a>. Our <a href=\"https://www.ostrand.example/support/contact\">support</a> team is happy to answer your questions.")
                font.pixelSize: 14
                wrapMode: Text.WordWrap

                onLinkActivated: _dataPrivacyController.onDataPrivacyLinkClicked(link)

                Loader {
                    readonly property Text label: parent

                    sourceComponent: linkStops
                }

                MouseArea {
                    anchors.fill: parent
                    acceptedButtons: Qt.NoButton
                    cursorShape: parent.hoveredLink ? Qt.PointingHandCursor : Qt.ArrowCursor
                }
            }

            Rectangle {
                id: buttonsRectangle
                objectName: "buttonsRectangle"

                anchors.horizontalCenter: parent.horizontalCenter
                y: parent.height - 170
                width: 200
                height: 160
                color: "#f0f0f0"

                NerixFlatButton {
                    id: applyButton
                    objectName: "applyButton"

                    y: 0
                    width: 200
                    height: 50
                    text: qsTr("Apply")
                    font.pixelSize: 16
                    enabled: _dataPrivacyController.dataPrivacyApplyEnabled

                    onClicked: {
                        const byKeyboard = applyButton.visualFocus;
                        _dataPrivacyController.onDataPrivacyApplyClicked();
                        // A button that is disabled now would leave the keyboard nowhere.
                        if (byKeyboard)
                            closeButton.forceActiveFocus(Qt.TabFocusReason);
                    }
                }

                NerixFlatButton {
                    id: closeButton
                    objectName: "closeButton"

                    y: 60
                    width: 200
                    height: 50
                    text: qsTr("Close")
                    font.pixelSize: 16
                    enabled: !_navigationController.applyFromTabsIsNeeded

                    onClicked: _navigationController.onCloseNerixWelcomeClicked()
                }

                NerixCheckBox {
                    id: showOnStartCheckBox
                    objectName: "showOnStartCheckBox"

                    x: -6
                    y: 120
                    width: 200
                    height: 40
                    text: qsTr("Show this window on launch")
                    font.pixelSize: 12
                    textElide: Text.ElideNone
                    indicator.width: 22
                    indicator.height: 22
                    enabled: !_navigationController.applyFromTabsIsNeeded
                    checked: _navigationController.showAtStartup

                    onCheckedChanged: _navigationController.showAtStartup = checked
                }
            }
        }
    }
}
