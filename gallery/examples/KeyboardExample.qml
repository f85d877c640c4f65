// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.Keyboard {
    type: Kelui.KelGlobal.AlphanumericKeyboard
    keyWidth: 34
    keyHeight: 50
    keyBackgroundColor: "#2a3648"
    keyTextColor: "#f3f6fb"
    symbolKeysFont: Qt.font({ family: Application.font.family, pixelSize: 22 })
    controlKeysFont: Qt.font({ family: Application.font.family, pixelSize: 16 })
    domainKeysFont: controlKeysFont
    backspaceIconPath: Qt.resolvedUrl("../assets/icons/key-backspace.svg")
    leftIconPath: Qt.resolvedUrl("../assets/icons/key-left.svg")
    rightIconPath: Qt.resolvedUrl("../assets/icons/key-right.svg")
    capslockEnabledIconPath:
        Qt.resolvedUrl("../assets/icons/key-capslock-on.svg")
    capslockDisabledIconPath:
        Qt.resolvedUrl("../assets/icons/key-capslock-off.svg")

    // The type brings a layout of its own first.
    Component.onCompleted: layout = Kelui.KelGlobal.RussianLayout
    onKeyTextActivated: text => console.log(text)
}
