// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Image {
    id: _image

    width: 192
    height: 192
    source: Qt.resolvedUrl("../assets/icons/television.svg")
    sourceSize: Qt.size(192, 192)
    // Else all images of this file would change.
    cache: false

    Kelui.ImageColorizer {
        sourceItem: _image
        color: "#7fe3c4"
        coloringMethod: Kelui.ImageColorizer.DestinationAlpha
    }
}
