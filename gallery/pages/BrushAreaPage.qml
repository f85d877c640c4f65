// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    property int current: 2

    caption: qsTr("Areas filled with brushes that are made in C++")
    shots: [
        Shot {
            name: "BrushArea"
        },
        Shot {
            name: "BrushArea-focused"

            onTaken: {
                _page.focusedStop = _wheel;
                _page.activate();
            }
        }
    ]

    component Area: Generic.BrushArea {
        property var fill

        // No type of QML.
        brush: fill // qmllint disable missing-type
    }

    component Sample: Card {
        id: _sample

        required property int index
        property alias fill: _area.fill

        page: _page
        width: 272
        height: 150

        onClicked: _page.current = index

        // The fill begins at the area's position in its parent.
        Item {
            Area {
                id: _area

                width: 240
                height: 86
            }
        }
    }

    Sample {
        index: 0
        caption: qsTr("pattern: diagonals")
        fill: Brushes.hatching
    }

    Sample {
        x: 284
        index: 1
        caption: qsTr("pattern: crosses")
        fill: Brushes.grid
    }

    Sample {
        x: 568
        index: 2
        caption: qsTr("texture")
        fill: Brushes.weave
    }

    Sample {
        y: 162
        index: 3
        caption: qsTr("linear gradient")
        fill: Brushes.sunset
    }

    Sample {
        x: 284
        y: 162
        index: 4
        caption: qsTr("radial gradient")
        fill: Brushes.glow
    }

    Sample {
        id: _wheel

        x: 568
        y: 162
        index: 5
        caption: qsTr("conical gradient")
        fill: Brushes.wheel
    }

    Card {
        y: 324
        width: 840
        height: 160
        caption: qsTr("OK on a brush paints the wide area with it")

        Item {
            Area {
                width: 808
                height: 96
                fill: [
                    Brushes.hatching, Brushes.grid, Brushes.weave, Brushes.sunset, Brushes.glow, Brushes.wheel
                ][_page.current]
            }
        }
    }
}
