// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<color> colors: ["#ffc247", "#99ffc247", "#407fe3c4"]
    readonly property list<string> titles: [qsTr("opaque"), qsTr("60 % alpha"), qsTr("25 % alpha")]

    caption: qsTr("Replaces the colour of a picture, with its own alpha or with the colour's")
    shots: [
        Shot {
            name: "ImageColorizer"
        },
        Shot {
            name: "ImageColorizer-focused"

            onTaken: {
                _page.focusedStop = _live;
                _page.activate();
            }
        }
    ]

    component Sample: Generic.Rectangle {
        id: _sample

        required property color paint
        property int method: Generic.ImageColorizer.SourceAlpha
        property bool isColored: true

        width: 150
        height: 108
        color: Theme.surface

        Generic.Rectangle {
            y: parent.height / 2
            width: parent.width
            height: parent.height / 2
            color: "#4a5a74"
        }

        Image {
            id: _image

            anchors.centerIn: parent
            source: Theme.icon("badge")
            // Each sample recolours a picture of its own.
            cache: false

            Generic.ImageColorizer {
                sourceItem: _image
                enabled: _sample.isColored
                color: _sample.paint
                coloringMethod: _sample.method
            }
        }
    }

    component MethodRow: Row {
        id: _row

        required property string title
        required property string explanation
        required property int method

        spacing: 10

        Column {
            width: 200
            topPadding: 8
            spacing: 4

            Label {
                font: Theme.label
                text: _row.title
            }

            Caption {
                width: 190
                text: _row.explanation
            }
        }

        Sample {
            isColored: false
            paint: "transparent"
        }

        Repeater {
            model: _page.colors

            Sample {
                required property color modelData

                paint: modelData
                method: _row.method
            }
        }
    }

    Row {
        x: 210
        spacing: 10

        Caption {
            width: 150
            text: qsTr("the file")
        }

        Repeater {
            model: _page.titles

            Caption {
                required property string modelData

                width: 150
                text: modelData
            }
        }
    }

    MethodRow {
        y: 30
        title: "SourceAlpha"
        explanation: qsTr("A pixel keeps its alpha; black stays")
        method: Generic.ImageColorizer.SourceAlpha
    }

    MethodRow {
        y: 148
        title: "DestinationAlpha"
        explanation: qsTr("The colour's alpha counts; black too")
        method: Generic.ImageColorizer.DestinationAlpha
    }

    Card {
        id: _live

        readonly property list<string> colorNames: [
            qsTr("white"), qsTr("gold"), qsTr("mint"), qsTr("rose"), qsTr("50 % white")
        ]
        readonly property list<color> paints: ["#ffffff", Theme.accent, Theme.mint, Theme.rose, "#80ffffff"]
        property int current: 0

        page: _page
        y: 280
        width: 840
        height: 204
        caption: qsTr("color: %1 — OK for the next").arg(colorNames[current])

        onClicked: current = (current + 1) % paints.length

        Row {
            anchors.centerIn: parent
            spacing: 40

            Repeater {
                model: ["television", "search", "star", "heart", "picture", "sound", "book"]

                Image {
                    id: _icon

                    required property string modelData

                    width: 72
                    height: 72
                    source: Theme.icon(modelData)
                    sourceSize: Qt.size(144, 144)
                    cache: false

                    Generic.ImageColorizer {
                        sourceItem: _icon
                        color: _live.paints[_live.current]
                        coloringMethod: Generic.ImageColorizer.DestinationAlpha
                    }
                }
            }
        }
    }
}
