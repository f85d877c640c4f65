// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Window {
    width: 640; height: 112; visible: true; color: "#0d1117"
    ListView {
        anchors.fill: parent; anchors.margins: 20; orientation: Qt.Horizontal; spacing: 12; focus: true
        model: ["Watch", "Record", "Settings"]
        delegate: Kelui.Button {
            required property string modelData
            focused: ListView.isCurrentItem
            fixedSize: Qt.size(192, 72); titleText: modelData; titleFont.pixelSize: 24
            titleColors: ({ normal: "white", focused: "black", checked: "white", disabled: "gray" })
            backgroundColors: ({ normal: "#1c2533", focused: "gold", checked: "teal", disabled: "black" })
            subtitleColors: titleColors; leftIconColors: titleColors; rightIconColors: titleColors
        }
    }
}
