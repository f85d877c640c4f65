// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery

GalleryPage {
    id: _page

    property bool areEnabled: true

    caption: qsTr("Four states, two ways to find the width, titles cut to the room left")
    shots: [
        Shot {
            name: "Button"
        },
        Shot {
            name: "Button-focused"

            onTaken: _page.focusedStop = _watch
        },
        Shot {
            name: "Button-checked"

            onTaken: {
                _page.focusedStop = _watch;
                _page.activate();
                _page.focusedStop = _subscribe;
                _page.activate();
            }
        },
        Shot {
            name: "Button-disabled"

            onTaken: {
                _page.focusedStop = _switch;
                _page.activate();
            }
        },
        Shot {
            name: "Button-ru"
            language: "ru"
        }
    ]

    Caption {
        text: "normal"
    }

    Caption {
        x: 213
        text: "focused"
    }

    Caption {
        x: 426
        text: "checked"
    }

    Caption {
        x: 639
        text: "disabled"
    }

    Row {
        y: 28
        spacing: 12

        StateButton {
            fixedSize: Qt.size(201, 64)
            titleText: qsTr("Channels")
            leftIconSource: Theme.icon("television")
        }

        StateButton {
            focused: true
            fixedSize: Qt.size(201, 64)
            titleText: qsTr("Channels")
            leftIconSource: Theme.icon("television")
        }

        StateButton {
            checked: true
            fixedSize: Qt.size(201, 64)
            titleText: qsTr("Channels")
            leftIconSource: Theme.icon("television")
        }

        StateButton {
            enabled: false
            fixedSize: Qt.size(201, 64)
            titleText: qsTr("Channels")
            leftIconSource: Theme.icon("television")
        }
    }

    Caption {
        y: 112
        text: qsTr("isFixedWidth: true, animated colours — OK toggles checked")
    }

    Row {
        y: 140
        spacing: 12

        StateButton {
            id: _watch

            page: _page
            enabled: _page.areEnabled
            checkable: true
            fixedSize: Qt.size(240, 64)
            titleText: qsTr("Watch")
            leftIconSource: Theme.icon("play")
        }

        StateButton {
            page: _page
            enabled: _page.areEnabled
            checkable: true
            fixedSize: Qt.size(64, 64)
            spacing: 0
            leftIconSource: Theme.icon("heart")
        }

        StateButton {
            page: _page
            enabled: _page.areEnabled
            checkable: true
            fixedSize: Qt.size(512, 64)
            titleText: qsTr("Add the programme “Northern Lights” to favourites")
            leftIconSource: Theme.icon("star")
        }
    }

    Caption {
        y: 224
        text: qsTr("isFixedWidth: false — as wide as the texts")
    }

    Row {
        y: 252
        spacing: 12

        StateButton {
            page: _page
            enabled: _page.areEnabled
            checkable: true
            isFixedWidth: false
            titleText: qsTr("Yes")
        }

        StateButton {
            page: _page
            enabled: _page.areEnabled
            checkable: true
            isFixedWidth: false
            titleText: qsTr("Record the programme")
        }

        StateButton {
            page: _page
            enabled: _page.areEnabled
            checkable: true
            isFixedWidth: false
            titleText: qsTr("All episodes")
            rightIconSource: Theme.icon("forward")
        }
    }

    Caption {
        y: 336
        text: qsTr("subtitleText, both icons")
    }

    Row {
        y: 364
        spacing: 12

        StateButton {
            id: _subscribe

            page: _page
            enabled: _page.areEnabled
            checkable: true
            fixedSize: Qt.size(340, 96)
            titleText: qsTr("“Cinema” package")
            subtitleText: qsTr("299 ₽ a month")
            leftIconSource: Theme.icon("lock")
            rightIconSource: Theme.icon("forward")
        }

        StateButton {
            page: _page
            enabled: _page.areEnabled
            checkable: true
            fixedSize: Qt.size(276, 96)
            titleText: qsTr("Sound")
            subtitleText: qsTr("Surround, all the loudspeakers")
            leftIconSource: Theme.icon("sound")
        }

        StateButton {
            id: _switch

            page: _page
            fixedSize: Qt.size(200, 96)
            titleText: "enabled"
            subtitleText: String(_page.areEnabled)

            onClicked: _page.areEnabled = !_page.areEnabled
        }
    }
}
