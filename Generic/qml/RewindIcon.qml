// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*!
    The speed of a fast-forward or rewind: three arrows, one of them lit and running in the direction of
    play, over a text such as "x4".
*/
Item {
    id: _rewindIcon

    /*! Image address of the arrow, read once at creation; mirrored for rewind. */
    property string source
    /*! Positive plays forward, negative back; with 0, and beyond 1000, nothing moves. */
    property int speed: 1
    /*! The arrow that is lit; iconCount for none. */
    property int currentIcon
    /*! How many arrows the light runs through; there are three. */
    property int iconCount: 3
    /*! Opacity of the lit arrow, and of the others. */
    property real currentIconOpacity: 1.0
    property real otherIconOpacity: 0.5
    /*! Size in which the arrows are decoded, in pixels, read once at creation. */
    property size iconSize: Qt.size(57, 57)
    /*! Pixels between the arrows. */
    property int iconSpacing: 9
    /*! Pixels between the arrows and the text. */
    property int contentSpacing: 18
    property font textFont
    property color textColor

    ListModel {
        id: _model

        Component.onCompleted: {
            for (let i = 0; i < 3; ++i) {
                append({
                    source: _rewindIcon.source,
                    sourceSize: _rewindIcon.iconSize,
                    opacity: _rewindIcon.otherIconOpacity,
                    mirror: false
                });
            }
        }
    }

    Timer {
        id: _timer

        interval: Math.trunc(1000 / _private.factor)
        running: _rewindIcon.visible
        repeat: true

        onRunningChanged: _rewindIcon.currentIcon = 0
        onTriggered: _private.step()
    }

    QtObject {
        id: _private

        // Of a real, because the lowest int has no counterpart above 0.
        readonly property real factor: _rewindIcon.speed < 0 ? -1.0 * _rewindIcon.speed : _rewindIcon.speed

        // Deliberately unlike: forward shows a dark beat after the last arrow, rewind none.
        function step() {
            const count = _rewindIcon.iconCount;
            if (_rewindIcon.speed > 0) {
                const next = _rewindIcon.currentIcon + 1;
                _rewindIcon.currentIcon = next;
                if (next > count)
                    _rewindIcon.currentIcon = 0;
            } else {
                const next = _rewindIcon.currentIcon - 1;
                _rewindIcon.currentIcon = next;
                if (next < 0)
                    _rewindIcon.currentIcon = count - 1;
            }
            // Qt warns of each icon that is not there. Of absurdly many, some warnings will do.
            const written = Math.min(count, 100);
            for (let i = 0; i < written; ++i) {
                const isLit = i === _rewindIcon.currentIcon;
                _model.setProperty(i, "mirror", _rewindIcon.speed < 0);
                _model.setProperty(i, "opacity", isLit ? _rewindIcon.currentIconOpacity : _rewindIcon.otherIconOpacity);
            }
        }
    }

    ColumnLayout {
        anchors.centerIn: parent
        spacing: _rewindIcon.contentSpacing

        RowLayout {
            Layout.alignment: Qt.AlignHCenter
            spacing: _rewindIcon.iconSpacing

            Repeater {
                model: _model

                delegate: Image {
                    required source
                    required sourceSize
                    required opacity
                    required mirror
                }
            }
        }

        KELUIQCG.Text {
            id: _text

            Layout.alignment: Qt.AlignHCenter
            font: _rewindIcon.textFont
            color: _rewindIcon.textColor
            text: "x" + _private.factor
        }
    }
}
