// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A frame around the control that it is declared in, so that focus shows whatever the control's colours. */
Generic.Rectangle {
    id: _frame

    required property bool focused

    anchors.fill: parent
    anchors.margins: -6
    z: 1
    visible: focused
    color: "transparent"
    border.color: Theme.text
    border.width: 3
}
