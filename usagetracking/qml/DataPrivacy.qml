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

                    onClicked: _dataPrivacyController.onDataPrivacyApplyClicked()
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
