// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<real> widths: [0, 160.9, 320.9, 400.9]
    readonly property list<real> heights: [0, 120.5, 240.5]
    property int currentWidth: 2
    property int currentHeight: 2
    property bool keepRatio: false
    property bool borderless: false
    readonly property url address: PictureSource.address("city")
    readonly property url wanted: Generic.Helpers.imageUrl(address, widths[currentWidth], heights[currentHeight],
                                                           keepRatio, borderless)

    caption: qsTr("Helpers.imageUrl tells in the address how a picture is wanted; a source makes it so")
    shots: [
        Shot {
            name: "Helpers"
        },
        Shot {
            name: "Helpers-focused"

            onTaken: {
                _page.focusedStop = _borderless;
                _page.activate();
                _page.focusedStop = _keepRatio;
                _page.activate();
            }
        },
        Shot {
            name: "Helpers-ru"
            language: "ru"

            onTaken: {
                _page.currentWidth = 0;
                _page.currentHeight = 1;
            }
        }
    ]

    component Choice: StateButton {
        page: _page
        spacing: 0
    }

    Row {
        spacing: 8

        Choice {
            titleText: "width: " + _page.widths[_page.currentWidth]

            onClicked: _page.currentWidth = (_page.currentWidth + 1) % _page.widths.length
        }

        Choice {
            titleText: "height: " + _page.heights[_page.currentHeight]

            onClicked: _page.currentHeight = (_page.currentHeight + 1) % _page.heights.length
        }

        Choice {
            id: _keepRatio

            checked: _page.keepRatio
            titleText: "keepRatio"

            onClicked: _page.keepRatio = !_page.keepRatio
        }

        Choice {
            id: _borderless

            checked: _page.borderless
            titleText: "borderless"

            onClicked: _page.borderless = !_page.borderless
        }
    }

    Card {
        y: 76
        width: 840
        height: 90
        caption: qsTr("the address")

        Label {
            text: String(_page.wanted)
        }
    }

    Card {
        y: 178
        width: 448
        height: 306
        caption: qsTr("made to measure: %1 × %2").arg(_picture.implicitWidth).arg(_picture.implicitHeight)

        Item {
            width: 416
            height: 242
            clip: true

            Image {
                id: _picture

                source: _page.wanted
            }
        }
    }

    Card {
        x: 460
        y: 178
        width: 380
        height: 306
        caption: qsTr("without wishes, shown small")

        Image {
            width: 348
            height: 196
            source: _page.address
        }
    }
}
