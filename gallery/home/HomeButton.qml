// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! The module's Button as the home screen has it: white in focus. */
Generic.Button {
    id: _button

    focusPolicy: Qt.NoFocus
    fixedSize: Qt.size(200, 64)
    leftPadding: 24
    rightPadding: 24
    spacing: 12
    titleFont: HomeTheme.button
    subtitleFont: HomeTheme.button
    backgroundColors: HomeTheme.buttonBackgrounds
    titleColors: HomeTheme.buttonTitles
    subtitleColors: HomeTheme.buttonTitles
    leftIconColors: HomeTheme.buttonTitles
    rightIconColors: HomeTheme.buttonTitles
    leftIconSize: Qt.size(leftIconSource ? 28 : 0, 28)
    rightIconSize: Qt.size(0, 28)
    animateBackgroundColors: Theme.isAnimated
    animateTextColors: Theme.isAnimated
}
