// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

ListView {
    id: _list

    width: 320
    height: 302
    spacing: 8
    model: 5
    highlightFollowsCurrentItem: false
    highlight: Kelui.Highlight {
        view: _list
        animationEnabled: true
        animationDuration: 300

        Rectangle { anchors.fill: parent; color: "#ffc247" }
    }
    delegate: Rectangle { width: 320; height: 54; color: "transparent"; border.color: "#8593a8" }

    Timer {
        interval: 1000; running: true; repeat: true
        onTriggered: _list.currentIndex = (_list.currentIndex + 1) % _list.count
    }
}
