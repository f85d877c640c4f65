// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<string> pictures: [...Films.posters, "dunes", "city", "north"]
    readonly property int columns: 6
    /*! How many tiles there are now. */
    property int tileCount: 0
    property int chosen: -1

    caption: qsTr("ScrolledGridView: a thousand tiles, of which those in sight exist")
    shots: [
        Shot {
            name: "ScrolledGridView"
        },
        Shot {
            name: "ScrolledGridView-focused"

            onTaken: {
                _page.focusedStop = _grid;
                _grid.currentIndex = 8;
                _page.activate();
                _grid.currentIndex = 15;
            }
        },
        Shot {
            name: "ScrolledGridView-scrolled"
            time: 4000

            onTaken: {
                _page.focusedStop = _grid;
                _grid.currentIndex = 999;
                _page.activate();
            }
        }
    ]

    onActivated: chosen = _grid.currentIndex

    function handleKey(key: int, text: string): bool {
        const index = _grid.currentIndex;
        const column = index % columns;
        switch (key) {
        case Qt.Key_Left:
            // The grid itself would go on to the end of the row above; here is the way to the menu.
            if (column > 0)
                _grid.moveCurrentIndexLeft();
            return column > 0;
        case Qt.Key_Right:
            if (column < columns - 1)
                _grid.moveCurrentIndexRight();
            return true;
        case Qt.Key_Up:
            _grid.moveCurrentIndexUp();
            return true;
        case Qt.Key_Down:
            _grid.moveCurrentIndexDown();
            return true;
        }
        return handleStopKey(key);
    }

    Caption {
        text: qsTr("current: %1 of %2").arg(_grid.currentIndex + 1).arg(_grid.count)
    }

    Caption {
        x: 284
        text: qsTr("tiles made: %1").arg(_page.tileCount)
    }

    Caption {
        x: 568
        text: _page.chosen < 0 ? qsTr("OK chooses") : qsTr("chosen: %1").arg(_page.chosen + 1)
    }

    Generic.ScrolledGridView {
        id: _grid

        // Around the tiles there is room for the frame.
        x: -8
        y: 28
        width: 868
        height: 464
        topMargin: 8
        leftMargin: 8
        // Below the last row is a gap as well.
        bottomMargin: 8 - verticalSpacing
        elementWidth: 130
        elementHeight: 103
        horizontalSpacing: 12
        verticalSpacing: 12
        clip: true
        // What is made ahead depends on the time left, and pictures do not.
        cacheBuffer: Theme.isAnimated ? 320 : 0
        boundsBehavior: Flickable.StopAtBounds
        highlightFollowsCurrentItem: false
        highlightRangeMode: GridView.ApplyRange
        preferredHighlightBegin: topMargin
        preferredHighlightEnd: height - 8
        highlight: Generic.Highlight {
            view: _grid
            animationEnabled: Theme.isAnimated
            animationDuration: 200
        }
        model: 1000

        Component.onCompleted: _page.addStop(_grid)

        HighlightFrame {
            view: _grid
            focused: _page.focusedStop === _grid
        }

        delegate: Item {
            id: _tile

            required property int index

            width: _grid.elementWidth
            height: _grid.elementHeight

            TapHandler {
                onTapped: {
                    _page.focusedStop = _grid;
                    _grid.currentIndex = _tile.index;
                    _page.activate();
                }
            }

            states: [
                State {
                    name: "normal"
                },
                State {
                    name: "focused"

                    PropertyChanges {
                        _number.color: _page.focusedStop ? Theme.accent : Theme.text
                        _name.color: _page.focusedStop ? Theme.ink : Theme.background
                    }
                }
            ]

            Component.onCompleted: ++_page.tileCount
            Component.onDestruction: --_page.tileCount

            Generic.ClippableImage {
                readonly property bool isPoster: picture.startsWith("poster")
                // A step that is no divisor of the number of columns.
                readonly property string picture: _page.pictures[_tile.index * 5 % _page.pictures.length]

                width: parent.width
                height: parent.height
                image.source: Theme.picture(picture)
                image.width: isPoster ? 130 : 184
                image.height: isPoster ? 195 : 104
                image.sourceSize: isPoster ? Qt.size(260, 390) : Qt.size(368, 208)
            }

            Generic.Rectangle {
                id: _number

                width: _name.implicitWidth + 16
                height: 26
                color: Theme.background

                Label {
                    id: _name

                    anchors.centerIn: parent
                    font: Theme.hint
                    text: String(_tile.index + 1)
                }
            }

            Generic.Rectangle {
                x: 90
                y: 63
                width: 40
                height: 40
                color: Theme.positive
                visible: _page.chosen === _tile.index

                Generic.Icon {
                    anchors.centerIn: parent
                    source: Theme.icon("small-check")
                    iconColor: "#ffffff"
                }
            }
        }
    }
}
