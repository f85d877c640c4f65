// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<string> sections: [qsTr("Home"), qsTr("Films"), qsTr("Live"), qsTr("Anna")]
    readonly property list<string> descriptions: [
        qsTr("What to watch tonight"), qsTr("Eight films, one for every evening"), qsTr("On all channels, now"),
        qsTr("Where Anna stopped watching")
    ]
    property int currentSection: 0

    caption: qsTr("Icon, text and picture; only the background grows, so that focus moves nothing")
    shots: [
        Shot {
            name: "MainMenuButton"
        },
        Shot {
            name: "MainMenuButton-focused"

            onTaken: _page.focusedStop = _page.stops[2]
        },
        Shot {
            name: "MainMenuButton-checked"

            onTaken: {
                _page.focusedStop = _page.stops[3];
                _page.activate();
                _page.focusedStop = _page.stops[1];
            }
        },
        Shot {
            name: "MainMenuButton-ru"
            language: "ru"

            onTaken: _page.focusedStop = _page.stops[0]
        }
    ]

    component Line: Generic.MainMenuButton {
        id: _line

        property GalleryPage page: null

        leftPadding: 24
        rightPadding: 24
        focused: page !== null && page.focusedStop === _line
        focusPolicy: Qt.NoFocus
        backgroundHeight: focused ? baseHeight + 16 : baseHeight
        backgroundColors: [Theme.raised, Theme.positive, Theme.accent]
        leftIconColors: textColors
        textColors: [Theme.text, "#ffffff", Theme.ink]
        textFont: Theme.label
        contentSpacing: 12
        rightIconSize: rightIconSource ? Qt.size(36, 36) : Qt.size(0, 0)
        animateBackgroundColors: Theme.isAnimated
        animateTextColors: Theme.isAnimated

        Component.onCompleted: {
            if (page)
                page.addStop(_line);
        }

        Behavior on backgroundHeight {
            enabled: Theme.isAnimated

            NumberAnimation {
                duration: 125
            }
        }
    }

    component Sample: Column {
        id: _sample

        required property string title
        property bool focused: false
        property bool checked: false

        width: 272
        spacing: 16

        Caption {
            text: _sample.title
        }

        Line {
            focused: _sample.focused
            checked: _sample.checked
            text: _page.sections[2]
            leftIconSource: Theme.icon("small-television")
            rightIconSource: Theme.picture("ribbon")
        }
    }

    Row {
        spacing: 12

        Sample {
            title: "normal"
        }

        Sample {
            title: "checked"
            checked: true
        }

        Sample {
            title: "focused"
            focused: true
        }
    }

    Caption {
        y: 126
        text: qsTr("autoExclusive — OK checks; focus wins over checked")
    }

    Row {
        y: 168
        spacing: 12

        Repeater {
            model: ["small-home", "small-film", "small-television", ""]

            Line {
                required property int index
                required property string modelData

                page: _page
                autoExclusive: true
                checked: index === 0
                text: _page.sections[index]
                leftIconSource: modelData ? Theme.icon(modelData) : ""
                rightIconSource: index === 2 ? Theme.picture("ribbon") : index === 3 ? Theme.picture("avatar") : ""

                onClicked: _page.currentSection = index
            }
        }
    }

    Generic.Rectangle {
        y: 246
        width: 840
        height: 238
        color: Theme.surface

        Column {
            x: 24
            y: 24
            spacing: 8

            Label {
                font: Theme.heading
                text: _page.sections[_page.currentSection]
            }

            Caption {
                width: 216
                text: _page.descriptions[_page.currentSection]
            }
        }

        Row {
            x: 272
            y: 24
            spacing: 12

            Repeater {
                model: 4

                Generic.RoundedImage {
                    required property int index

                    width: 127
                    height: 190
                    source: Theme.picture(Films.posters[(_page.currentSection * 3 + index) % Films.posters.length])
                    sourceSize: Qt.size(254, 380)
                }
            }
        }
    }
}
