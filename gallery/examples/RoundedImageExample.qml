// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.RoundedImage {
    width: 200
    height: 300
    source: Qt.resolvedUrl("../assets/pictures/poster-lighthouse.svg")
    sourceSize: Qt.size(400, 600)
}
