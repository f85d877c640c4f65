// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.Icon {
    source: Qt.resolvedUrl("../assets/icons/badge.svg")
    iconColor: "#ffc247"
    coloringMethod: Kelui.ImageColorizer.SourceAlpha
}
