// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<string> days: [
        qsTr("Today"), qsTr("Tomorrow"), qsTr("Saturday"), qsTr("The best of the week")
    ]
    readonly property list<string> times: ["18:30", "19:00", "20:45", "22:10"]
    property int currentDay: 0

    caption: qsTr("Exclusive tabs; a long text widens its tab")
    shots: [
        Shot {
            name: "TabButton"
        },
        Shot {
            name: "TabButton-focused"

            onTaken: _page.focusedStop = _page.stops[1]
        },
        Shot {
            name: "TabButton-checked"

            onTaken: {
                _page.focusedStop = _page.stops[3];
                _page.activate();
            }
        },
        Shot {
            name: "TabButton-ru"
            language: "ru"

            onTaken: _page.focusedStop = _page.stops[2]
        }
    ]

    component Tab: Generic.TabButton {
        id: _tab

        property GalleryPage page: null

        focused: page !== null && page.focusedStop === _tab
        focusPolicy: Qt.NoFocus
        font: Theme.controlFont(22, Font.DemiBold)
        minimumWidth: 150
        minimumHeight: 60
        leftPadding: 20
        rightPadding: 20
        backgroundColor: Theme.raised
        textColor: Theme.text
        backgroundFocusedColor: Theme.accent
        textFocusedColor: Theme.ink
        backgroundSelectedColor: Theme.positive
        textSelectedColor: "#ffffff"
        animateBackgroundColors: Theme.isAnimated
        animateTextColors: Theme.isAnimated

        Component.onCompleted: {
            if (page)
                page.addStop(_tab);
        }

        FocusFrame {
            focused: _tab.focused
        }
    }

    component Sample: Column {
        id: _sample

        required property string title
        property bool focused: false
        property bool checked: false

        spacing: 10

        Caption {
            text: _sample.title
        }

        Tab {
            minimumWidth: 201
            focused: _sample.focused
            checked: _sample.checked
            text: _page.days[0]
        }
    }

    Row {
        spacing: 12

        Sample {
            title: "normal"
        }

        Sample {
            title: "focused"
            focused: true
        }

        Sample {
            title: "checked"
            checked: true
        }

        Sample {
            title: qsTr("checked wins")
            focused: true
            checked: true
        }
    }

    Caption {
        y: 122
        text: qsTr("minimumWidth: %1 — OK checks").arg(150)
    }

    Row {
        y: 154
        spacing: 12

        Repeater {
            model: _page.days.length

            Tab {
                required property int index

                page: _page
                checked: index === 0
                text: _page.days[index]

                onClicked: _page.currentDay = index
            }
        }
    }

    Generic.Rectangle {
        y: 226
        width: 840
        height: 258
        color: Theme.surface

        Repeater {
            model: _page.times

            Row {
                id: _line

                required property int index
                required property string modelData
                readonly property int film: (_page.currentDay * 3 + index) % Films.posters.length

                x: 24
                y: 16 + index * 58
                height: 52
                spacing: 20

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 68
                    font: Theme.label
                    color: Theme.mint
                    text: _line.modelData
                }

                Generic.ClippableImage {
                    width: 92
                    height: 52
                    image.source: Theme.picture(Films.posters[_line.film])
                    image.width: 92
                    image.height: 138
                    image.sourceSize: Qt.size(184, 276)
                }

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: Films.titles[_line.film]
                }
            }
        }

        Generic.RoundedImage {
            x: 672
            y: 21
            width: 144
            height: 216
            source: Theme.picture(Films.posters[(_page.currentDay * 3 + 3) % Films.posters.length])
            sourceSize: Qt.size(288, 432)
        }
    }
}
