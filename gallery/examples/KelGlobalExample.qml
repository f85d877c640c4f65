// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Grid {
    columns: 11
    spacing: 4

    Repeater {
        model: Kelui.KelGlobal.russianLayout

        Kelui.Key {
            required property string modelData

            width: 40
            height: 46
            text: modelData.length === 1 ? modelData : "…"
            textColor: "#f3f6fb"
            backgroundColor: "#2a3648"
            font.family: Application.font.family
            font.pixelSize: 20
        }
    }
}
