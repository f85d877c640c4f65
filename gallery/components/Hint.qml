// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A key of the remote control and what it does now. */
Row {
    id: _hint

    required property string key
    required property string meaning

    spacing: 8
    rightPadding: 12

    Generic.Rectangle {
        width: _key.implicitWidth + 16
        height: 26
        color: Theme.raised

        Label {
            id: _key

            anchors.centerIn: parent
            font: Theme.hint
            text: _hint.key
        }
    }

    Caption {
        anchors.verticalCenter: parent.verticalCenter
        text: _hint.meaning
    }
}
