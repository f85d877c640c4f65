// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Item {
    width: 440
    height: 280

    Kelui.BusyIndicator {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 40
        imageRight: Qt.resolvedUrl("../assets/pictures/busy-first.svg")
        imageLeft: Qt.resolvedUrl("../assets/pictures/busy-second.svg")
        animationInterval: 80
        header: "Looking for channels"
        headerFont.pixelSize: 26
        headerColor: "white"
        description: "This takes some minutes"
        descriptionFont.pixelSize: 20
        descriptionColor: "#aebbcd"
    }
}
