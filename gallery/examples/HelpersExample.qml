// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Text {
    readonly property url poster: "https://pictures.example/whale.jpg"

    width: 460
    wrapMode: Text.WrapAnywhere
    font.pixelSize: 24
    color: "#f3f6fb"
    // The server of the pictures makes them to measure: less to load, nothing to scale.
    text: Kelui.Helpers.imageUrl(poster, 200, 300, true, true)
}
