// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.MediaBlock {
    id: _block

    width: 414
    height: 195
    spacing: 12
    model: ["poster-whale", "poster-forest", "poster-train"]
    delegate: Kelui.RoundedImage {
        required property string modelData

        width: 130
        height: 195
        source: Qt.resolvedUrl("../assets/pictures/" + modelData + ".svg")
    }
    contentItem: Row {
        spacing: _block.spacing

        Repeater {
            model: _block.model
            delegate: _block.delegate
        }
    }
}
