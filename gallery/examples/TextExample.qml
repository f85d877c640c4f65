// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.Text {
    width: 400
    height: 200
    font.pixelSize: 28
    color: "#f3f6fb"
    horizontalAlignment: Qt.AlignLeft
    verticalAlignment: Qt.AlignVCenter
    maximumLineCount: 3
    text: "Northern lights above the lake: the journey begins at night, "
          + "when the last village has put out its lamps."
}
