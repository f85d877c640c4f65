// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! One film and what can be done with it. */
HomeZone {
    id: _zone

    required property int film
    property int currentIndex: 0
    /*! The films that the viewer wants to keep. */
    property list<int> favourites
    readonly property list<Item> buttons: [_watch, _restart, _favourite]

    signal played(isFromStart: bool)

    isShown: isActive
    focusedItem: buttons[currentIndex]

    onFilmChanged: currentIndex = 0

    function handleKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
        case Qt.Key_Right:
            currentIndex = nextIndex(currentIndex, key === Qt.Key_Left ? -1 : 1, buttons.length);
            return true;
        case Qt.Key_MediaPlay:
        case Qt.Key_MediaTogglePlayPause:
            played(false);
            return true;
        case Qt.Key_Return:
            (buttons[currentIndex] as Generic.Button).click();
            return true;
        }
        return false;
    }

    function toggleFavourite() {
        const at = favourites.indexOf(film);
        if (at < 0)
            favourites.push(film);
        else
            favourites.splice(at, 1);
    }

    FilmBackdrop {
        x: 240
        width: 1040
        height: 585
        film: _zone.film
    }

    FilmSummary {
        x: HomeTheme.sideMargin
        y: 260
        width: 600
        film: _zone.film
    }

    Row {
        x: HomeTheme.sideMargin
        y: 560
        spacing: 20

        HomeButton {
            id: _watch

            focused: _zone.isActive && _zone.currentIndex === 0
            titleText: qsTr("Watch")
            leftIconSource: Theme.icon("play")

            onClicked: _zone.played(false)
        }

        HomeButton {
            id: _restart

            fixedSize: Qt.size(300, 64)
            focused: _zone.isActive && _zone.currentIndex === 1
            titleText: qsTr("From the beginning")

            onClicked: _zone.played(true)
        }

        HomeButton {
            id: _favourite

            fixedSize: Qt.size(260, 64)
            focused: _zone.isActive && _zone.currentIndex === 2
            titleText: _zone.favourites.includes(_zone.film) ? qsTr("In my list") : qsTr("To my list")
            leftIconSource: Theme.icon(_zone.favourites.includes(_zone.film) ? "check" : "heart")

            onClicked: _zone.toggleFavourite()
        }
    }
}
