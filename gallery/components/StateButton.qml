// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! The module's Button in the colours of the gallery; with a page, one of its stops. */
Generic.Button {
    id: _control

    property GalleryPage page: null

    focused: page !== null && page.focusedStop === _control
    focusPolicy: Qt.NoFocus
    fixedSize: Qt.size(204, 64)
    spacing: 12
    leftPadding: 20
    rightPadding: 20
    titleFont: Theme.label
    subtitleFont: Theme.caption
    subtitleAlignment: Qt.AlignLeft | Qt.AlignTop
    textBlockSpacing: 2
    backgroundColors: Theme.buttonBackgrounds
    titleColors: Theme.buttonTitles
    subtitleColors: Theme.buttonSubtitles
    leftIconColors: Theme.buttonTitles
    rightIconColors: Theme.buttonTitles
    leftIconSize: Qt.size(leftIconSource ? 32 : 0, 32)
    rightIconSize: Qt.size(rightIconSource ? 32 : 0, 32)
    animateBackgroundColors: Theme.isAnimated
    animateTextColors: Theme.isAnimated

    Component.onCompleted: {
        if (page)
            page.addStop(_control);
    }
    onPressed: {
        if (page)
            page.focusedStop = _control;
    }

    FocusFrame {
        focused: _control.page !== null && _control.focused
    }
}
