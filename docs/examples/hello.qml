// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Window {
    width: 640; height: 112; visible: true; color: "#0d1117"

    Row {
        id: _menu

        property int current: 0

        anchors.centerIn: parent
        focus: true
        Keys.onLeftPressed: current = Math.max(current - 1, 0)
        Keys.onRightPressed: current = Math.min(current + 1, 2)

        Repeater {
            model: ["Watch", "Record", "Settings"]

            Kelui.Button {
                required property int index
                required property string modelData

                fixedSize: Qt.size(200, 72)
                focused: index === _menu.current
                titleText: modelData
                titleFont.pixelSize: 24
                titleColors: ({ normal: "white", focused: "black", checked: "gold", disabled: "gray" })
                backgroundColors: ({ normal: "#1c2533", focused: "gold", checked: "#2b3648", disabled: "#0d1117" })
                subtitleColors: titleColors
                leftIconColors: titleColors
                rightIconColors: titleColors
            }
        }
    }
}
