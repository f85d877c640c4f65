// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! One film, what can be done with it, and below what there is to read about it. */
HomeZone {
    id: _zone

    required property int film
    property int currentIndex: 0
    /*! Whether the keys scroll the story. */
    property bool isReading: false
    /*! The films that the viewer wants to keep. */
    property list<int> favourites
    readonly property list<Item> buttons: [_watch, _restart, _favourite]

    signal played(isFromStart: bool)

    isShown: isActive
    focusedItem: isReading ? _story : buttons[currentIndex]

    onFilmChanged: currentIndex = 0
    onIsActiveChanged: isReading = false

    function handleKey(key: int): bool {
        switch (key) {
        case Qt.Key_Down:
            if (isReading)
                _story.scroll(1);
            isReading = true;
            return true;
        case Qt.Key_Up:
            isReading = isReading && _story.scroll(-1);
            return true;
        case Qt.Key_Left:
        case Qt.Key_Right:
            if (!isReading)
                currentIndex = nextIndex(currentIndex, key === Qt.Key_Left ? -1 : 1, buttons.length);
            return true;
        case Qt.Key_MediaPlay:
        case Qt.Key_MediaTogglePlayPause:
            played(false);
            return true;
        case Qt.Key_Return:
            if (!isReading)
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
        x: 256
        width: 1024
        height: 576
        film: _zone.film
    }

    FilmSummary {
        x: HomeTheme.sideMargin
        y: 60
        width: 640
        film: _zone.film
    }

    Row {
        x: HomeTheme.sideMargin
        y: 300
        spacing: 16

        HomeButton {
            id: _watch

            fixedSize: Qt.size(240, 64)
            focused: _zone.isActive && _zone.focusedItem === _watch
            titleText: FilmCatalogue.progress(_zone.film) > 0 ? qsTr("Continue") : qsTr("Watch")
            leftIconSource: HomeTheme.icon("play", 28)

            onClicked: _zone.played(false)
        }

        HomeButton {
            id: _restart

            fixedSize: Qt.size(268, 64)
            focused: _zone.isActive && _zone.focusedItem === _restart
            titleText: qsTr("From the beginning")

            onClicked: _zone.played(true)
        }

        HomeButton {
            id: _favourite

            fixedSize: Qt.size(260, 64)
            focused: _zone.isActive && _zone.focusedItem === _favourite
            titleText: _zone.favourites.includes(_zone.film) ? qsTr("In my list") : qsTr("To my list")
            leftIconSource: HomeTheme.icon(_zone.favourites.includes(_zone.film) ? "check" : "heart", 28)

            onClicked: _zone.toggleFavourite()
        }
    }

    FilmStory {
        id: _story

        x: HomeTheme.sideMargin
        y: 400
        width: 800
        film: _zone.film
        focused: _zone.isActive && _zone.isReading
    }
}
