// SPDX-License-Identifier: MIT
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! The module's Text in the colours and the type of the gallery. */
Generic.Text {
    font: Theme.body
    color: Theme.text
}
