// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<string> channels: [
        qsTr("News"), qsTr("Films"), qsTr("Series"), qsTr("Nature"), qsTr("Science"), qsTr("History"), qsTr("Travel"),
        qsTr("Sport"), qsTr("Football"), qsTr("Music"), qsTr("Theatre"), qsTr("Children"), qsTr("Kitchen"),
        qsTr("Weather")
    ]
    readonly property list<int> durations: [200, 600, 0]
    property int currentDuration: 0
    property int currentChannel: 0
    property int currentFilm: 0

    caption: qsTr("ScrolledListView and Highlight: at an edge the list scrolls after the highlight")
    shots: [
        Shot {
            name: "ScrolledListView"
        },
        Shot {
            name: "ScrolledListView-focused"

            onTaken: {
                _page.focusedStop = _channels;
                _channels.currentIndex = 2;
                _page.activate();
                _channels.currentIndex = 5;
            }
        },
        Shot {
            name: "ScrolledListView-scrolled"
            time: 2000

            onTaken: {
                _page.focusedStop = _carousel;
                _channels.currentIndex = 10;
                _carousel.currentIndex = 5;
                _page.activate();
            }
        },
        Shot {
            name: "ScrolledListView-ru"
            language: "ru"
            time: 2000

            onTaken: {
                _page.focusedStop = _duration;
                _page.activate();
                _carousel.currentIndex = 7;
            }
        }
    ]

    onActivated: stop => {
        if (stop === _channels)
            currentChannel = _channels.currentIndex;
        else
            currentFilm = _carousel.currentIndex;
    }

    function handleKey(key: int, text: string): bool {
        const view = focusedStop as ListView;
        if (view) {
            const isHorizontal = view.orientation === ListView.Horizontal;
            const index = view.currentIndex;
            if (key === (isHorizontal ? Qt.Key_Right : Qt.Key_Down))
                view.incrementCurrentIndex();
            else if (key === (isHorizontal ? Qt.Key_Left : Qt.Key_Up))
                view.decrementCurrentIndex();
            if (view.currentIndex !== index)
                return true;
        }
        return handleStopKey(key);
    }

    component List: Generic.ScrolledListView {
        id: _list

        readonly property bool isFocused: _page.focusedStop === _list

        // The frame is wider than what it frames.
        leftMargin: 6
        topMargin: 6
        rightMargin: 6
        bottomMargin: 6
        spacing: 12
        clip: true
        highlightMoveDuration: _page.durations[_page.currentDuration]
        boundsBehavior: Flickable.StopAtBounds

        Component.onCompleted: _page.addStop(_list)

        HighlightFrame {
            view: _list
            focused: _list.isFocused
        }
    }

    component Value: Row {
        id: _value

        required property string name
        required property string value

        spacing: 10

        Caption {
            width: 132
            text: _value.name
        }

        Label {
            font: Theme.caption
            text: _value.value
        }
    }

    List {
        id: _channels

        x: -6
        y: -6
        width: 284
        height: 496
        model: _page.channels.length

        delegate: Generic.Rectangle {
            id: _channel

            required property int index

            width: 272
            height: 50
            color: Theme.surface
            states: [
                State {
                    name: "normal"
                },
                State {
                    name: "focused"

                    PropertyChanges {
                        _channel.color: _channels.isFocused ? Theme.accent : Theme.raised
                        _name.color: _channels.isFocused ? Theme.ink : Theme.text
                        _number.color: _channels.isFocused ? Theme.ink : Theme.secondaryText
                    }
                }
            ]

            Label {
                id: _number

                x: 16
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.secondaryText
                text: String(_channel.index + 1)
            }

            Label {
                id: _name

                x: 56
                anchors.verticalCenter: parent.verticalCenter
                font: Theme.menu
                text: _page.channels[_channel.index]
            }

            Generic.Icon {
                x: 224
                anchors.verticalCenter: parent.verticalCenter
                source: Theme.icon("small-television")
                iconColor: _name.color
                visible: _page.currentChannel === _channel.index
            }
        }
    }

    // Across a list, margins have no effect: the room for the frame is around it.
    Item {
        x: 278
        y: -6
        width: 568
        height: 252
        clip: true

        List {
            id: _carousel

            y: 6
            width: 568
            height: 240
            clip: false
            orientation: ListView.Horizontal
            model: Films.posters

            delegate: Generic.Rectangle {
                id: _film

                required property int index
                required property string modelData

                width: 130
                height: 240
                color: Theme.surface
                states: [
                    State {
                        name: "normal"
                    },
                    State {
                        name: "focused"

                        PropertyChanges {
                            _film.color: _carousel.isFocused ? Theme.accent : Theme.raised
                            _title.color: _carousel.isFocused ? Theme.ink : Theme.text
                        }
                    }
                ]

                Generic.RoundedImage {
                    width: 130
                    height: 195
                    source: Theme.picture(_film.modelData)
                    sourceSize: Qt.size(260, 390)
                }

                Label {
                    id: _title

                    x: 8
                    y: 195 + (45 - height) / 2
                    width: 114
                    maximumLineCount: 2
                    font: Theme.hint
                    text: Films.titles[_film.index]
                }
            }
        }
    }

    Card {
        x: 284
        y: 256
        width: 272
        height: 228
        caption: qsTr("chosen film: %1").arg(_page.currentFilm + 1)

        Row {
            spacing: 16

            Generic.RoundedImage {
                width: 108
                height: 162
                source: Theme.picture(Films.posters[_page.currentFilm])
                sourceSize: Qt.size(216, 324)
            }

            Label {
                width: 112
                font: Theme.menu
                text: Films.titles[_page.currentFilm]
            }
        }
    }

    Card {
        id: _duration

        page: _page
        x: 568
        y: 256
        width: 272
        height: 228
        caption: qsTr("OK for the next duration")

        onClicked: _page.currentDuration = (_page.currentDuration + 1) % _page.durations.length

        Column {
            y: 4
            spacing: 8

            Label {
                font: Theme.heading
                text: qsTr("%1 ms").arg(_page.durations[_page.currentDuration])
            }

            Value {
                name: "contentX"
                value: String(Math.round(_carousel.contentX))
            }

            Value {
                name: "contentY"
                value: String(Math.round(_channels.contentY))
            }

            Value {
                name: "highlightItem"
                value: Math.round(_carousel.highlightItem?.x ?? 0) + ", " + Math.round(_channels.highlightItem?.y ?? 0)
            }
        }
    }
}
