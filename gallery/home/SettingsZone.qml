// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! Check boxes, each of which changes the home screen at once. */
HomeZone {
    id: _zone

    readonly property list<Item> boxes: [_animation, _largeText, _titles, _russian]
    readonly property real ratio: HomeTheme.pixelRatio
    property int currentIndex: 0

    focusedItem: boxes[currentIndex]

    function handleKey(key: int): bool {
        switch (key) {
        case Qt.Key_Up:
            return move(-1);
        case Qt.Key_Down:
            return move(1);
        case Qt.Key_Return:
            (boxes[currentIndex] as Generic.CheckBox).click();
            return true;
        }
        return false;
    }

    function move(step: int): bool {
        if (currentIndex + step < 0 || currentIndex + step >= boxes.length)
            return false;
        currentIndex += step;
        return true;
    }

    component Box: Generic.CheckBox {
        id: _box

        focusPolicy: Qt.NoFocus
        focused: _zone.isActive && _zone.focusedItem === _box
        width: 640 * _zone.ratio
        height: 60 * _zone.ratio
        spacing: 24 * _zone.ratio
        leftInset: -20 * _zone.ratio
        topInset: -10 * _zone.ratio
        bottomInset: -10 * _zone.ratio
        indicatorSize: Qt.size(48 * _zone.ratio, 48 * _zone.ratio)
        indicatorColors: HomeTheme.boxes
        iconPath: HomeTheme.icon("check", 48)
        iconColors: HomeTheme.boxTitles
        titleFont: HomeTheme.enlarged(HomeTheme.button)
        titleColors: HomeTheme.boxTitles

        onPressed: {
            _zone.page.focusedStop = _zone;
            _zone.currentIndex = _zone.boxes.indexOf(_box);
        }

        background: Generic.Rectangle {
            color: _box.focused ? Theme.raised : Theme.panel

            FocusFrame {
                anchors.margins: -6 * _zone.ratio
                focused: _box.focused
                border.width: 3 * _zone.ratio
            }
        }
    }

    Label {
        x: HomeTheme.sideMargin
        font: HomeTheme.title
        text: qsTr("Settings")
    }

    // The check in a box is shown as large as it is: here, in pixels of the window.
    Column {
        x: HomeTheme.sideMargin + 20
        y: 100
        transformOrigin: Item.TopLeft
        scale: 1 / _zone.ratio
        spacing: 36 * _zone.ratio

        Box {
            id: _animation

            checked: Theme.isAnimated
            text: qsTr("Smooth scrolling and colours")

            onClicked: Theme.isAnimated = checked
        }

        Box {
            id: _largeText

            checked: HomeTheme.isTextLarge
            text: qsTr("Large text")

            onClicked: HomeTheme.isTextLarge = checked
        }

        Box {
            id: _titles

            checked: HomeTheme.areTitlesShown
            text: qsTr("Titles below the pictures")

            onClicked: HomeTheme.areTitlesShown = checked
        }

        Box {
            id: _russian

            enabled: Language.codes.length > 1
            checked: Language.code === "ru"
            text: "Русский язык"

            onClicked: Language.code = checked ? "ru" : "en"
        }
    }
}
