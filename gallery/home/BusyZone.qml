// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! Waiting for a film; it can be called off. */
HomeZone {
    id: _zone

    required property int film

    /*! The film is there. */
    signal finished
    signal cancelled

    isShown: isActive
    focusedItem: _cancel

    function handleKey(key: int): bool {
        if (key !== Qt.Key_Return)
            return false;
        cancelled();
        return true;
    }

    Timer {
        interval: 1500
        running: _zone.isActive

        onTriggered: _zone.finished()
    }

    FilmBackdrop {
        anchors.fill: parent
        film: _zone.film
    }

    Generic.Rectangle {
        anchors.fill: parent
        color: HomeTheme.shade
    }

    Generic.BusyIndicator {
        anchors.centerIn: parent
        imageRight: Theme.icon("busy-first")
        imageLeft: Theme.icon("busy-second")
        animationInterval: 80
        header: FilmCatalogue.title(_zone.film)
        headerFont: HomeTheme.title
        headerColor: Theme.text
        headerLeftMargin: HomeTheme.sideMargin
        headerRightMargin: HomeTheme.sideMargin
        description: qsTr("One moment, the film is being prepared")
        descriptionFont: HomeTheme.description
        descriptionColor: Theme.secondaryText
        descriptionLeftMargin: HomeTheme.sideMargin
        descriptionRightMargin: HomeTheme.sideMargin
    }

    HomeButton {
        id: _cancel

        x: (parent.width - width) / 2
        y: 520
        focused: _zone.isActive
        titleText: qsTr("Cancel")
    }
}
