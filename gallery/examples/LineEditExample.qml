// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.LineEdit {
    width: 400
    height: 64
    leftPadding: 20
    rightPadding: 20
    font.family: Application.font.family
    font.pixelSize: 26
    selected: true
    text: "Northern lights"
    placeholderText: "Film, channel, person"
    backgroundColors: ({ normal: "#2a3648", selected: "#f3f6fb" })
    textColors: ({ normal: "#f3f6fb", selected: "#14181f", wide: "#f3f6fb" })
    placeholderTextColors: ({ normal: "#8593a8", selected: "#566176" })
    cursorWidth: 3
    errorFrameWidth: 3
    errorFrameColor: "#ff9aa8"
}
