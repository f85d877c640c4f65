// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! The main menu: left and right along it, OK opens a section. */
HomeZone {
    id: _zone

    property int currentIndex: 0
    /*! The section that is open. */
    property int section: 0

    signal chosen(section: int)

    focusedItem: _entries.count > 0 ? _entries.itemAt(currentIndex) : null

    onIsActiveChanged: currentIndex = section

    function handleKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
        case Qt.Key_Right:
            currentIndex = nextIndex(currentIndex, key === Qt.Key_Left ? -1 : 1, _entries.count);
            return true;
        case Qt.Key_Return:
            chosen(currentIndex);
            return true;
        }
        return false;
    }

    // An icon of the menu is shown as large as it is: here, in pixels of the window.
    Row {
        id: _row

        readonly property real ratio: HomeTheme.pixelRatio

        transformOrigin: Item.TopLeft
        scale: 1 / ratio
        spacing: 12 * ratio

        Repeater {
            id: _entries

            model: [qsTr("Home"), qsTr("Films"), qsTr("All films"), qsTr("Settings")]

            Generic.MainMenuButton {
                id: _entry

                required property int index
                required property string modelData

                focusPolicy: Qt.NoFocus
                checkable: false
                focused: _zone.isActive && _zone.currentIndex === index
                checked: _zone.section === index
                baseHeight: 52 * _row.ratio
                roundingRadius: 0
                leftPadding: 18 * _row.ratio
                rightPadding: 22 * _row.ratio
                contentSpacing: 10 * _row.ratio
                text: modelData
                textFont: HomeTheme.enlarged(HomeTheme.button)
                leftIconSource: HomeTheme.icon(["menu-home", "menu-films", "menu-grid", "menu-settings"][index], 28)
                backgroundColors: ["transparent", "transparent", Theme.text]
                textColors: [Theme.text, Theme.accent, Theme.ink]
                leftIconColors: textColors
                animateBackgroundColors: Theme.isAnimated
                animateTextColors: Theme.isAnimated

                onClicked: _zone.chosen(index)
            }
        }
    }
}
