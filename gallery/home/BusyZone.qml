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

    function strip(name: string): string {
        return String(Generic.Helpers.imageUrl(PictureSource.address(name), 0, 120 * HomeTheme.pixelRatio, false, true));
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

    // The frames of a strip are shown as large as they are: here, in pixels of the window.
    Item {
        width: _zone.width * HomeTheme.pixelRatio
        height: _zone.height * HomeTheme.pixelRatio
        transformOrigin: Item.TopLeft
        scale: 1 / HomeTheme.pixelRatio

        Generic.BusyIndicator {
            anchors.centerIn: parent
            imageRight: _zone.strip("busy-first")
            imageLeft: _zone.strip("busy-second")
            animationInterval: 80
            header: FilmCatalogue.title(_zone.film)
            headerFont: HomeTheme.enlarged(HomeTheme.title)
            headerColor: Theme.text
            headerLeftMargin: HomeTheme.sideMargin * HomeTheme.pixelRatio
            headerRightMargin: headerLeftMargin
            description: qsTr("One moment, the film is being prepared")
            descriptionFont: HomeTheme.enlarged(HomeTheme.description)
            descriptionColor: Theme.text
            descriptionLeftMargin: headerLeftMargin
            descriptionRightMargin: headerLeftMargin
        }
    }

    HomeButton {
        id: _cancel

        x: (parent.width - width) / 2
        y: 520
        focused: _zone.isActive
        titleText: qsTr("Cancel")

        onClicked: _zone.cancelled()
    }
}
