// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

ListView {
    id: _list

    width: 320
    height: 300
    clip: true
    spacing: 8
    model: 12
    highlightFollowsCurrentItem: false
    highlight: Kelui.Highlight {
        view: _list
        animationEnabled: true
        animationDuration: 300
    }
    delegate: Rectangle {
        width: 320
        height: 54
        color: ListView.isCurrentItem ? "#ffc247" : "#2a3648"
    }
}
