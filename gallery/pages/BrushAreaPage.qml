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

    component Sample: Card {
        id: _sample

        required property int index
        property alias area: _area

        page: _page
        width: 272
        height: 150

        onClicked: _page.current = index

        // The fill begins at the area's position in its parent.
        Item {
            Generic.BrushArea {
                id: _area

                width: 240
                height: 86
            }
        }
    }

    Sample {
        index: 0
        caption: qsTr("pattern: diagonals")
        area.brush: Brushes.hatching
    }

    Sample {
        x: 284
        index: 1
        caption: qsTr("pattern: crosses")
        area.brush: Brushes.grid
    }

    Sample {
        x: 568
        index: 2
        caption: qsTr("texture")
        area.brush: Brushes.weave
    }

    Sample {
        y: 162
        index: 3
        caption: qsTr("linear gradient")
        area.brush: Brushes.sunset
    }

    Sample {
        x: 284
        y: 162
        index: 4
        caption: qsTr("radial gradient")
        area.brush: Brushes.glow
    }

    Sample {
        id: _wheel

        x: 568
        y: 162
        index: 5
        caption: qsTr("conical gradient")
        area.brush: Brushes.wheel
    }

    Card {
        y: 324
        width: 840
        height: 160
        caption: qsTr("OK on a brush paints the wide area with it")

        Item {
            Generic.BrushArea {
                width: 808
                height: 96
                brush: [
                    Brushes.hatching, Brushes.grid, Brushes.weave, Brushes.sunset, Brushes.glow, Brushes.wheel
                ][_page.current]
            }
        }
    }
}
