// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Image {
    width: 200
    height: 300
    source: Qt.resolvedUrl("../assets/pictures/poster-whale.svg")
    sourceSize: Qt.size(400, 600)

    Kelui.TopNumber {
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        number: 7
        font: Qt.font({ pixelSize: 160, bold: true })
        penWidth: 8
        borderColor: "#14181f"
        color: "#ffc247"
    }
}
