// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.RewindIcon {
    width: 320
    height: 160
    source: Qt.resolvedUrl("../assets/icons/arrow.svg")
    iconSize: Qt.size(57, 57)
    speed: 2
    textFont.pixelSize: 40
    textColor: "#f3f6fb"
}
