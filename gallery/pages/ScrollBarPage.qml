// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    /*! How many lines a list shows at once. */
    readonly property int lines: 10

    caption: qsTr("How far a view is scrolled: up and down scroll, OK goes to the other end")
    shots: [
        Shot {
            name: "ScrollBar"
        },
        Shot {
            name: "ScrollBar-focused"

            onTaken: {
                _page.focusedStop = _dozens;
                for (let i = 0; i < 12; ++i)
                    _page.handleKey(Qt.Key_Down, "");
                _few.position = 2;
                _hundreds.position = 150;
                _thousand.position = 640;
            }
        },
        Shot {
            name: "ScrollBar-end"
            language: "ru"

            onTaken: {
                for (const list of [_few, _dozens, _hundreds, _thousand]) {
                    _page.focusedStop = list;
                    _page.activate();
                }
            }
        }
    ]

    function handleKey(key: int, text: string): bool {
        const list = focusedStop as List;
        if (list && (key === Qt.Key_Up || key === Qt.Key_Down)) {
            list.position = Math.max(0, Math.min(list.maximum, list.position + (key === Qt.Key_Up ? -1 : 1)));
            return true;
        }
        return handleStopKey(key);
    }

    component List: Card {
        id: _list

        required property int maximum
        required property int barWidth
        required property color sliderColor
        property color trackColor: Theme.outline
        property int position: 0

        page: _page
        width: 201
        height: 484
        caption: "maximum: " + maximum

        onClicked: position = position < maximum ? maximum : 0

        Column {
            spacing: 8

            Repeater {
                model: _page.lines

                Generic.Rectangle {
                    id: _line

                    required property int index

                    width: 135
                    height: 29
                    color: Theme.panel

                    Caption {
                        x: 8
                        anchors.verticalCenter: parent.verticalCenter
                        color: Theme.text
                        text: qsTr("Channel %1").arg(_list.position + _line.index + 1)
                    }
                }
            }
        }

        Generic.ScrollBar {
            x: 169 - width
            width: _list.barWidth
            height: 362
            maximum: _list.maximum
            sliderPosition: Math.min(maximum, _list.position)
            backgroundColor: _list.trackColor
            sliderColor: _list.sliderColor
        }

        Caption {
            y: 384
            text: "sliderPosition: " + _list.position
        }
    }

    Row {
        spacing: 12

        List {
            id: _few

            maximum: 3
            barWidth: 6
            sliderColor: Theme.accent
        }

        List {
            id: _dozens

            maximum: 30
            barWidth: 10
            sliderColor: Theme.mint
        }

        List {
            id: _hundreds

            maximum: 300
            barWidth: 14
            sliderColor: Theme.rose
        }

        List {
            id: _thousand

            maximum: 1000
            barWidth: 20
            trackColor: "#33ffffff"
            sliderColor: "#80ffffff"
        }
    }
}
