// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.Key {
    width: 96
    height: 96
    text: "Щ"
    textColor: "#f3f6fb"
    backgroundColor: "#2a3648"
    font.family: Application.font.family
    font.pixelSize: 40
}
