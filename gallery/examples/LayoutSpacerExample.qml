// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Layouts
import Kelui.UI.Qml.Controls.Generic as Kelui

RowLayout {
    width: 440
    height: 64

    Rectangle {
        implicitWidth: 120
        Layout.fillHeight: true
        color: "#1b6b5f"
    }

    Kelui.LayoutSpacer {}

    Rectangle {
        implicitWidth: 120
        Layout.fillHeight: true
        color: "#ffc247"
    }
}
