// SPDX-License-Identifier: MIT
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.Rectangle {
    width: 280
    height: 180
    color: "#1b6b5f"
    border.color: "#7fe3c4"
    border.width: 6
    roundingRadius: 40
    forceRounding: false
}
