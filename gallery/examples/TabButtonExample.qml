// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.TabButton {
    text: "Tomorrow"
    font.family: Application.font.family
    font.pixelSize: 26
    minimumWidth: 200
    minimumHeight: 64
    leftPadding: 20
    rightPadding: 20
    backgroundColor: "#2a3648"
    textColor: "#f3f6fb"
    backgroundFocusedColor: "#ffc247"
    textFocusedColor: "#14181f"
    backgroundSelectedColor: "#1b6b5f"
    textSelectedColor: "#ffffff"
    animateBackgroundColors: true
}
