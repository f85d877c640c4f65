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

    Row {
        spacing: 12

        Repeater {
            id: _entries

            model: [qsTr("Home"), qsTr("Films"), qsTr("All films"), qsTr("Settings")]

            Generic.MainMenuButton {
                id: _entry

                required property int index
                required property string modelData

                focused: _zone.isActive && _zone.currentIndex === index
                checked: _zone.section === index
                baseHeight: 52
                roundingRadius: 0
                leftPadding: 18
                rightPadding: 22
                contentSpacing: 10
                text: modelData
                textFont: Theme.controlFont(22, Font.DemiBold)
                leftIconSource: Theme.icon(["menu-home", "menu-films", "menu-grid", "menu-settings"][index])
                backgroundColors: ["transparent", "transparent", Theme.text]
                textColors: [Theme.text, Theme.accent, Theme.ink]
                leftIconColors: textColors
                animateBackgroundColors: Theme.isAnimated
                animateTextColors: Theme.isAnimated
            }
        }
    }
}
