// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    property string clippedPicture: "city"

    caption: qsTr("RoundedImage draws the whole picture, ClippableImage a window onto its middle")
    shots: [
        Shot {
            name: "RoundedImage"

            onTaken: _page.focusedStop = _page.stops[1]
        },
        Shot {
            name: "ClippableImage"

            onTaken: {
                _page.focusedStop = _window;
                _page.activate();
            }
        }
    ]

    component Poster: Card {
        id: _poster

        required property string title
        required property string subtitle
        required property string picture

        page: _page
        width: 272
        height: 222
        padding: 0

        onClicked: _page.clippedPicture = picture

        Generic.RoundedImage {
            width: 272
            height: 153
            source: Theme.picture(_poster.picture)
            sourceSize: Qt.size(544, 306)
        }

        Label {
            x: 14
            y: 161
            font: Theme.label
            text: _poster.title
        }

        Caption {
            x: 14
            y: 190
            text: _poster.subtitle
        }
    }

    Row {
        spacing: 12

        Poster {
            title: qsTr("Dunes")
            subtitle: qsTr("Documentary, 2024")
            picture: "dunes"
        }

        Poster {
            title: qsTr("City at Night")
            subtitle: qsTr("Drama, 12 episodes")
            picture: "city"
        }

        Poster {
            title: qsTr("Northern Lights")
            subtitle: qsTr("Travel, live")
            picture: "north"
        }
    }

    Card {
        id: _window

        readonly property list<int> widths: [400, 240, 120]
        property int current: 0

        page: _page
        y: 238
        width: 840
        height: 246
        caption: qsTr("ClippableImage %1 × %2 on an image of %3 × %4 — OK for the next width")
                 .arg(_clipped.width).arg(_clipped.height).arg(_clipped.image.width).arg(_clipped.image.height)

        onClicked: current = (current + 1) % widths.length

        Generic.ClippableImage {
            id: _clipped

            x: (400 - width) / 2
            width: _window.widths[_window.current]
            height: 180
            image.source: Theme.picture(_page.clippedPicture)
            image.width: 400
            image.height: 225
            image.sourceSize: Qt.size(800, 450)
        }

        Repeater {
            model: ["dunes", "north"]

            Generic.ClippableImage {
                required property string modelData
                required property int index

                x: 424 + index * 196
                width: 180
                height: 180
                image.source: Theme.picture(modelData)
                image.width: 320
                image.height: 180
                image.sourceSize: Qt.size(640, 360)
            }
        }
    }
}
