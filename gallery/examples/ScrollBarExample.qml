// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Row {
    spacing: 12

    ListView {
        id: _list

        width: 320
        height: 240
        clip: true
        model: 40
        delegate: Rectangle { width: 320; height: 40; color: "#2a3648"; border.color: "#141b26" }

        NumberAnimation on contentY { to: 1360; duration: 8000; loops: Animation.Infinite }
    }

    Kelui.ScrollBar {
        width: 12
        height: 240
        maximum: _list.contentHeight - _list.height
        sliderPosition: Math.min(maximum, _list.contentY)
        backgroundColor: "#141b26"
        sliderColor: "#ffc247"
    }
}
