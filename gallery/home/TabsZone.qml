// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! Tabs, one for each shelf of films: OK shows its films. */
HomeZone {
    id: _zone

    required property HomeShelves shelves
    property int currentIndex: 0
    /*! The tab that is open. */
    property int openIndex: 0

    focusedItem: _tabs.count > 0 ? _tabs.itemAt(currentIndex) : null

    onIsActiveChanged: currentIndex = openIndex

    function handleKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
        case Qt.Key_Right:
            currentIndex = nextIndex(currentIndex, key === Qt.Key_Left ? -1 : 1, _tabs.count);
            return true;
        case Qt.Key_Return:
            (_tabs.itemAt(currentIndex) as Generic.TabButton).click();
            return true;
        }
        return false;
    }

    Row {
        spacing: 16

        Repeater {
            id: _tabs

            model: _zone.shelves.films

            Generic.TabButton {
                id: _tab

                required property int index
                required property FilmShelf modelData

                focusPolicy: Qt.NoFocus
                focused: _zone.isActive && _zone.currentIndex === index
                checked: _zone.openIndex === index
                leftPadding: 22
                rightPadding: 22
                minimumHeight: 46
                font: Theme.controlFont(20, Font.DemiBold)
                text: modelData.title
                backgroundColor: Theme.surface
                textColor: Theme.secondaryText
                backgroundFocusedColor: Theme.text
                textFocusedColor: Theme.ink
                backgroundSelectedColor: Theme.accent
                textSelectedColor: Theme.ink
                animateBackgroundColors: Theme.isAnimated
                animateTextColors: Theme.isAnimated

                onPressed: {
                    _zone.page.focusedStop = _zone;
                    _zone.currentIndex = index;
                }
                onClicked: _zone.openIndex = index

                // The open tab has its colours in focus too.
                FocusFrame {
                    focused: _tab.focused
                }
            }
        }
    }
}
