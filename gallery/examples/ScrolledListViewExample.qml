// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.ScrolledListView {
    width: 320
    height: 360
    clip: true
    spacing: 8
    model: 30
    delegate: Rectangle {
        id: _item

        width: 320
        height: 54
        color: "#2a3648"
        states: State {
            name: "focused"

            PropertyChanges {
                _item.color: "#ffc247"
            }
        }
    }
}
