// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Row {
    spacing: 12

    Kelui.LargeText {
        id: _story

        width: 420
        height: 240
        color: "#f3f6fb"
        font.pixelSize: 22
        text: "Fog lay over the bay, and the lighthouse rang its bell.\n".repeat(200)
    }

    Kelui.ScrollBar {
        width: 8
        height: 240
        maximum: Math.max(0, _story.scrollMaximum)
        sliderPosition: Math.min(maximum, _story.offset)
        sliderColor: "#ffc247"
    }

    Timer {
        interval: 1500; running: true; repeat: true
        onTriggered: _story.scrollToDirection(Kelui.KelGlobal.ScrollDown)
    }
}
