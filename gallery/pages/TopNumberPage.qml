// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<string> pictures: [
        "poster-rocket", "poster-whale", "poster-lighthouse", "poster-train", "poster-forest", "poster-balloon", "volcano",
        "poster-island", "poster-chess", "winter"
    ]

    caption: qsTr("Outlined numbers: filled, or cut out by an invalid color — OK switches")
    shots: [
        Shot {
            name: "TopNumber"
        },
        Shot {
            name: "TopNumber-focused"

            onTaken: {
                _page.focusedStop = _page.stops[9];
                _page.activate();
                _page.focusedStop = _page.stops[1];
                _page.activate();
            }
        }
    ]

    Grid {
        columns: 5
        spacing: 10

        Repeater {
            model: _page.pictures

            Card {
                id: _film

                required property int index
                required property string modelData
                property bool isFilled: index < 5

                page: _page
                width: 160
                height: 237
                padding: 0

                onClicked: isFilled = !isFilled

                Image {
                    width: 160
                    height: 237
                    source: Theme.picture(_film.modelData)
                    sourceSize.height: 356
                    fillMode: Image.PreserveAspectCrop
                }

                Generic.TopNumber {
                    x: 4
                    y: 231 - height
                    // Its picture is sharp where the window is larger than the design.
                    textureSize: Qt.size(width * 2, height * 2)
                    number: _film.index + 1
                    font: Theme.sizedFont(120, Font.Bold)
                    penWidth: 8
                    borderColor: _film.isFilled ? Theme.ink : Theme.text
                    color: _film.isFilled ? Theme.accent : _private.none
                }
            }
        }
    }

    QtObject {
        id: _private

        // Never set, and so invalid.
        property color none
    }
}
