// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A film that plays: left, right and the keys of the tape change the speed, OK pauses or plays on. */
HomeZone {
    id: _zone

    required property int film
    /*! Seconds. */
    property real position: 0
    property int speedIndex: normalIndex
    property bool isPaused: false
    readonly property list<int> speeds: [-32, -16, -8, -4, -2, 1, 2, 4, 8, 16, 32]
    readonly property int normalIndex: 5
    readonly property int speed: speeds[speedIndex]
    readonly property int duration: FilmCatalogue.minutes(film) * 60

    isShown: isActive
    focusedItem: _button

    onFilmChanged: position = FilmCatalogue.progress(film) * FilmCatalogue.minutes(film) * 60
    onIsActiveChanged: {
        play();
        if (!isActive)
            FilmCatalogue.keepProgress(film, position / duration);
    }

    function handleKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
        case Qt.Key_AudioRewind:
            changeSpeed(-1);
            return true;
        case Qt.Key_Right:
        case Qt.Key_AudioForward:
            changeSpeed(1);
            return true;
        case Qt.Key_MediaPlay:
            play();
            return true;
        case Qt.Key_MediaPause:
            speedIndex = normalIndex;
            isPaused = true;
            return true;
        case Qt.Key_Return:
        case Qt.Key_MediaTogglePlayPause:
            isPaused = !isPaused && speed === 1;
            speedIndex = normalIndex;
            return true;
        }
        return false;
    }

    function play() {
        isPaused = false;
        speedIndex = normalIndex;
    }

    function changeSpeed(step: int) {
        isPaused = false;
        speedIndex = nextIndex(speedIndex, step, speeds.length);
    }

    /*! Lets half a second of the viewer's time pass. */
    function advance() {
        position = Math.max(0, Math.min(position + speed / 2, duration));
        if (position === 0 && speed < 0)
            play();
        if (position === duration) {
            speedIndex = normalIndex;
            isPaused = true;
        }
    }

    function clock(seconds: int): string {
        const parts = [Math.floor(seconds / 3600), Math.floor(seconds / 60) % 60, seconds % 60];
        return parts.map(part => String(part).padStart(2, "0")).join(":");
    }

    Timer {
        interval: 500
        running: _zone.isActive && !_zone.isPaused
        repeat: true

        onTriggered: _zone.advance()
    }

    Generic.RoundedImage {
        anchors.fill: parent
        source: _zone.visible ? FilmCatalogue.picture(_zone.film, width, height) : ""
    }

    Generic.Rectangle {
        anchors.centerIn: _rewind
        width: 300
        height: 170
        visible: _rewind.active
        color: HomeTheme.shade
    }

    Loader {
        id: _rewind

        x: parent.width / 2
        y: 300
        active: _zone.isActive && _zone.speed !== 1
        // Its arrows are shown as large as they are decoded: here, in pixels of the window.
        sourceComponent: Generic.RewindIcon {
            scale: 1 / HomeTheme.pixelRatio
            source: Theme.icon("arrow")
            iconSize: Qt.size(57 * HomeTheme.pixelRatio, 57 * HomeTheme.pixelRatio)
            iconSpacing: 9 * HomeTheme.pixelRatio
            contentSpacing: 18 * HomeTheme.pixelRatio
            speed: _zone.speed
            textFont: HomeTheme.enlarged(HomeTheme.row)
            textColor: Theme.text
        }
    }

    Generic.Rectangle {
        y: 440
        width: parent.width
        height: parent.height - y
        gradient: Gradient {
            GradientStop {
                position: 0
                color: HomeTheme.clearShade
            }
            GradientStop {
                position: 0.5
                color: HomeTheme.shade
            }
            GradientStop {
                position: 1
                color: Theme.background
            }
        }
    }

    Label {
        x: _button.x + _button.width + 28
        y: 592
        width: 800
        maximumLineCount: 1
        font: HomeTheme.row
        text: FilmCatalogue.title(_zone.film)
    }

    Label {
        x: parent.width - HomeTheme.sideMargin - width
        y: 594
        font: HomeTheme.details
        text: _zone.clock(_zone.position) + " / " + _zone.clock(_zone.duration)
    }

    Generic.Rectangle {
        id: _track

        x: _button.x + _button.width + 28
        y: 640
        width: parent.width - HomeTheme.sideMargin - x
        height: 8
        color: Theme.outline

        Generic.Rectangle {
            width: _track.width * _zone.position / _zone.duration
            height: _track.height
            color: Theme.accent
        }
    }

    HomeButton {
        id: _button

        x: HomeTheme.sideMargin
        y: 592
        focused: _zone.isActive
        fixedSize: Qt.size(64, 64)
        leftPadding: 0
        rightPadding: 0
        spacing: 0
        leftIconSource: HomeTheme.icon(_zone.isPaused || _zone.speed !== 1 ? "play" : "pause", 28)

        onClicked: _zone.handleKey(Qt.Key_Return)
    }
}
