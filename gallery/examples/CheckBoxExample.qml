// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.CheckBox {
    width: 360
    checked: true
    text: "Play the next episode"
    titleFont.pixelSize: 24
    titleColors: ({
        normal: "#aebbcd", focused: "#f3f6fb", checked: "#f3f6fb", disabled: "gray"
    })
    indicatorSize: Qt.size(48, 48)
    indicatorColors: ({
        normal: "#3d4c63", focused: "#ffc247", checked: "#1b6b5f", disabled: "#111"
    })
    iconPath: Qt.resolvedUrl("../assets/icons/small-check.svg")
    iconColors: ({
        normal: "white", focused: "white", checked: "white", disabled: "#60ffffff"
    })
}
