// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.MainMenuButton {
    leftPadding: 24
    rightPadding: 24
    checkable: true
    text: "Live"
    textFont.pixelSize: 26
    textColors: ["#f3f6fb", "#ffffff", "#14181f"]
    contentSpacing: 12
    leftIconSource: Qt.resolvedUrl("../assets/icons/small-television.svg")
    leftIconSize: Qt.size(24, 24)
    leftIconColors: textColors
    rightIconSource: Qt.resolvedUrl("../assets/pictures/ribbon.svg")
    rightIconSize: Qt.size(36, 36)
    backgroundColors: ["#2a3648", "#1b6b5f", "#ffc247"]
    backgroundHeight: focused ? baseHeight + 16 : baseHeight
}
