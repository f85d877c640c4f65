// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.ScrolledGridView {
    width: 432
    height: 360
    clip: true
    elementWidth: 96
    elementHeight: 64
    horizontalSpacing: 12
    verticalSpacing: 12
    model: 100
    delegate: Rectangle {
        required property int index

        width: 96
        height: 64
        color: GridView.isCurrentItem ? "#ffc247" : Qt.hsla(index / 99, 0.5, 0.3, 1)
    }
}
