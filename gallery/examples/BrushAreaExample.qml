// SPDX-License-Identifier: MIT
import Kelui.UI.Qml.Controls.Generic as Kelui
import Kelui.Gallery

Kelui.BrushArea {
    width: 320
    height: 200
    // Brushes come from C++: a QBrush property of an object of the application.
    brush: Brushes.sunset // qmllint disable missing-type
}
