// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.ClippableImage {
    width: 240
    height: 240
    image.source: Qt.resolvedUrl("../assets/pictures/city.svg")
    image.width: 480
    image.height: 270
    image.sourceSize: Qt.size(960, 540)
}
