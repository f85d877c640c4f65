// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<int> speeds: [-16, -8, -4, -2, -1, 0, 1, 2, 4, 8, 16]
    readonly property int filmSeconds: 5400
    property int currentSpeed: 6
    property real position: 1800

    caption: qsTr("The speed of winding: left and right change it, OK plays on")
    shots: [
        Shot {
            name: "RewindIcon"
            time: 1100
        },
        Shot {
            name: "RewindIcon-forward"
            time: 1150

            onTaken: {
                _page.focusedStop = _scale;
                _page.currentSpeed = 9;
            }
        },
        Shot {
            name: "RewindIcon-back"
            time: 300

            onTaken: {
                _page.focusedStop = _scale;
                _page.currentSpeed = 2;
            }
        },
        Shot {
            name: "RewindIcon-stopped"
            language: "ru"

            onTaken: {
                _page.focusedStop = _scale;
                _page.currentSpeed = 5;
            }
        }
    ]

    onActivated: currentSpeed = 6

    function handleKey(key: int, text: string): bool {
        switch (key) {
        case Qt.Key_Left:
            currentSpeed = Math.max(0, currentSpeed - 1);
            return true;
        case Qt.Key_Right:
            currentSpeed = Math.min(speeds.length - 1, currentSpeed + 1);
            return true;
        }
        return handleStopKey(key);
    }

    function clock(seconds: real): string {
        const whole = Math.floor(seconds);
        const two = number => String(number).padStart(2, "0");
        return Math.floor(whole / 3600) + ":" + two(Math.floor(whole / 60) % 60) + ":" + two(whole % 60);
    }

    Timer {
        interval: 50
        running: true
        repeat: true

        // A minute of film in a second, at the lowest speed.
        onTriggered: {
            const next = _page.position + _page.speeds[_page.currentSpeed] * 3;
            _page.position = Math.max(0, Math.min(_page.filmSeconds, next));
        }
    }

    Generic.ClippableImage {
        width: 840
        height: 380
        image.source: Theme.picture("north")
        image.width: 840
        image.height: 473
        image.sourceSize: Qt.size(1260, 709)
    }

    Generic.Rectangle {
        width: 840
        height: 380
        color: "#99000000"
    }

    Generic.RewindIcon {
        x: (840 - width) / 2
        y: 60
        width: 400
        height: 200
        source: Theme.icon("arrow")
        speed: _page.speeds[_page.currentSpeed]
        textFont: Theme.display
        textColor: Theme.text
    }

    Generic.Rectangle {
        x: 32
        y: 316
        width: 776
        height: 8
        color: "#66ffffff"

        Generic.Rectangle {
            width: parent.width * _page.position / _page.filmSeconds
            height: parent.height
            color: Theme.accent
        }
    }

    Label {
        x: 32
        y: 338
        text: _page.clock(_page.position)
    }

    Label {
        x: 808 - implicitWidth
        y: 338
        text: _page.clock(_page.filmSeconds)
    }

    Item {
        id: _scale

        y: 404
        width: 840
        height: 80

        Component.onCompleted: _page.addStop(_scale)

        Row {
            spacing: 6

            Repeater {
                model: _page.speeds

                Generic.Rectangle {
                    id: _speed

                    required property int index
                    required property int modelData
                    readonly property bool isCurrent: index === _page.currentSpeed

                    width: 70.9
                    height: 80
                    color: !isCurrent ? Theme.surface : _page.focusedStop ? Theme.accent : Theme.positive

                    Label {
                        anchors.centerIn: parent
                        font: Theme.label
                        color: _speed.isCurrent && _page.focusedStop ? Theme.ink : Theme.text
                        text: String(_speed.modelData).replace("-", "−")
                    }
                }
            }
        }

        FocusFrame {
            focused: _page.focusedStop === _scale
        }
    }
}
