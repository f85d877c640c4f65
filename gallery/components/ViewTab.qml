// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! The module's TabButton for the views of a page. A tab that is open and in focus has a frame. */
Generic.TabButton {
    id: _tab

    focusPolicy: Qt.NoFocus
    font: Theme.controlFont(18, Font.DemiBold)
    minimumWidth: 84
    minimumHeight: 44
    leftPadding: 14
    rightPadding: 14
    backgroundColor: Theme.surface
    textColor: Theme.secondaryText
    backgroundFocusedColor: Theme.surface
    textFocusedColor: Theme.secondaryText
    backgroundSelectedColor: focused ? Theme.accent : Theme.positive
    textSelectedColor: focused ? Theme.ink : "#ffffff"

    FocusFrame {
        focused: _tab.focused
    }
}
