// SPDX-License-Identifier: MIT
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.SpinnerIndicator {
    width: 160
    height: 160
    lineWidth: 14
    backgroundColor: "#0d121a"
    foregroundColor: "#ffc247"
}
