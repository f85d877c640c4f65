// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<int> intervals: [80, 160, 320]
    readonly property list<string> headers: [qsTr("Looking for channels"), ""]
    readonly property list<string> descriptions: [
        qsTr("This takes some minutes; the remote control can be laid aside"), qsTr("One moment, please"), ""
    ]
    property int currentInterval: 0
    property int currentTexts: 0

    caption: qsTr("Two strips of square frames, played one after the other")
    shots: [
        Shot {
            name: "BusyIndicator"
            time: 280
        },
        Shot {
            name: "BusyIndicator-second"
            time: 1000

            onTaken: _page.focusedStop = _interval
        },
        Shot {
            name: "BusyIndicator-hidden"

            onTaken: {
                _page.focusedStop = _visible;
                _page.activate();
            }
        },
        Shot {
            name: "BusyIndicator-ru"
            language: "ru"
            time: 280

            onTaken: _page.focusedStop = _texts
        }
    ]

    Generic.Rectangle {
        width: 556
        height: 296
        color: Theme.surface

        Generic.BusyIndicator {
            id: _busy

            anchors.horizontalCenter: parent.horizontalCenter
            anchors.verticalCenter: parent.verticalCenter
            anchors.verticalCenterOffset: header || description ? 46 : 0
            imageRight: Theme.picture("busy-first")
            imageLeft: Theme.picture("busy-second")
            header: _page.headers[_page.currentTexts === 2 ? 1 : 0]
            headerFont: Theme.heading
            headerColor: Theme.text
            headerLeftMargin: 40
            headerRightMargin: 40
            description: _page.descriptions[_page.currentTexts]
            descriptionFont: Theme.body
            descriptionColor: Theme.secondaryText
            descriptionLeftMargin: 90
            descriptionRightMargin: 90
            animationInterval: _page.intervals[_page.currentInterval]
        }
    }

    Column {
        x: 568
        spacing: 10

        StateButton {
            id: _visible

            page: _page
            fixedSize: Qt.size(272, 92)
            titleText: "visible"
            subtitleText: String(_busy.visible)

            onClicked: _busy.visible = !_busy.visible
        }

        StateButton {
            id: _interval

            page: _page
            fixedSize: Qt.size(272, 92)
            titleText: "animationInterval"
            subtitleText: qsTr("%1 ms").arg(_busy.animationInterval)

            onClicked: _page.currentInterval = (_page.currentInterval + 1) % _page.intervals.length
        }

        StateButton {
            id: _texts

            page: _page
            fixedSize: Qt.size(272, 92)
            titleText: "header, description"
            subtitleText: [qsTr("long"), qsTr("short"), qsTr("none")][_page.currentTexts]

            onClicked: _page.currentTexts = (_page.currentTexts + 1) % _page.descriptions.length
        }
    }

    Card {
        y: 308
        width: 840
        height: 176
        caption: qsTr("frame %1 of %2").arg(_busy.currentFrameIndex + 1).arg(_busy.frameCount)

        Repeater {
            model: ["busy-first", "busy-second"]

            Image {
                required property int index
                required property string modelData

                x: index * 408
                y: 30
                width: 400
                height: 50
                source: Theme.picture(modelData)
                sourceSize: Qt.size(800, 100)
            }
        }

        Generic.Rectangle {
            readonly property bool isSecond: _busy.currentFrameIndex >= _busy.switchingFrame

            x: _busy.currentFrameIndex * 50 + (isSecond ? 8 : 0) - 4
            y: 26
            width: 58
            height: 58
            color: "transparent"
            border.color: isSecond ? Theme.mint : Theme.accent
            border.width: 3
            visible: _busy.visible
        }
    }
}
