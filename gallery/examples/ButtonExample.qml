// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.Button {
    fixedSize: Qt.size(320, 96)
    leftPadding: 20
    spacing: 16
    titleText: "Watch"
    titleFont.pixelSize: 26
    subtitleText: "25 minutes left"
    subtitleFont.pixelSize: 18
    subtitleAlignment: Qt.AlignLeft | Qt.AlignTop
    leftIconSource: Qt.resolvedUrl("../assets/icons/play.svg")
    leftIconSize: Qt.size(32, 32)
    backgroundColors: ({
        normal: "#2a3648", focused: "#ffc247", checked: "#1b6b5f", disabled: "#111"
    })
    titleColors: ({
        normal: "#f3f6fb", focused: "#14181f", checked: "#ffffff", disabled: "gray"
    })
    subtitleColors: titleColors
    leftIconColors: titleColors
    rightIconColors: titleColors
}
