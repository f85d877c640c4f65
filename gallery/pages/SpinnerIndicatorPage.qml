// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<color> colors: [Theme.accent, Theme.mint, Theme.rose, Theme.text]

    caption: qsTr("A ring with an arc that turns, grows and shrinks")
    shots: [
        Shot {
            name: "SpinnerIndicator"
            time: 700
        },
        Shot {
            name: "SpinnerIndicator-focused"
            time: 1100

            onTaken: {
                _page.focusedStop = _page.stops[2];
                _page.activate();
            }
        }
    ]

    component Sample: Card {
        id: _sample

        required property int side
        required property list<int> lineWidths
        required property int currentColor
        property int currentWidth: 0

        page: _page
        height: 380
        caption: qsTr("%1 × %1, lineWidth %2").arg(side).arg(_spinner.lineWidth)

        onClicked: {
            currentColor = (currentColor + 1) % _page.colors.length;
            currentWidth = (currentWidth + 1) % lineWidths.length;
        }

        Generic.SpinnerIndicator {
            id: _spinner

            anchors.centerIn: parent
            width: _sample.side
            height: _sample.side
            lineWidth: _sample.lineWidths[_sample.currentWidth]
            backgroundColor: Theme.background
            foregroundColor: _page.colors[_sample.currentColor]
        }
    }

    Row {
        spacing: 12

        Sample {
            width: 240
            side: 48
            lineWidths: [5, 3, 8]
            currentColor: 0
        }

        Sample {
            width: 264
            side: 100
            lineWidths: [10, 6, 20]
            currentColor: 1
        }

        Sample {
            width: 312
            side: 200
            lineWidths: [18, 10, 40]
            currentColor: 2
        }
    }

    Card {
        y: 392
        width: 840
        height: 92
        padding: 0

        Row {
            x: 24
            anchors.verticalCenter: parent.verticalCenter
            spacing: 20

            Generic.SpinnerIndicator {
                anchors.verticalCenter: parent.verticalCenter
                width: 44
                height: 44
                lineWidth: 5
                backgroundColor: Theme.outline
                foregroundColor: Theme.text
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Loading the programme guide. OK changes the lines and colours above.")
            }
        }
    }
}
