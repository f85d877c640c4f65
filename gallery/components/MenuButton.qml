// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A line of the menu. A Button centres what it shows; here the padding moves it to the left edge. */
Generic.Button {
    id: _control

    fixedSize: Qt.size(248, 56)
    spacing: 12
    leftPadding: 12
    rightPadding: Math.max(4, fixedSize.width - leftPadding - leftIconSize.width - spacing - _measure.implicitWidth)
    titleFont: Theme.menu
    subtitleFont: Theme.caption
    textBlockSpacing: 0
    backgroundColors: Theme.menuBackgrounds
    titleColors: Theme.menuTitles
    subtitleColors: Theme.menuTitles
    leftIconColors: Theme.menuTitles
    rightIconColors: Theme.menuTitles
    leftIconSize: Qt.size(32, 32)
    animateBackgroundColors: Theme.isAnimated
    animateTextColors: Theme.isAnimated

    Generic.Text {
        id: _measure

        visible: false
        font: _control.titleFont
        text: _control.titleText
    }

    Generic.Rectangle {
        width: 4
        height: parent.height
        color: Theme.accent
        visible: _control.checked
    }
}
