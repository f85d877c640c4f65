// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Layouts
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*!
    Waiting, told by two strips of square frames that are played one after the other, with two texts above.
    It runs while it is visible, from its first frame each time.
*/
Item {
    id: _busyIndicator

    /*! Image address of the strip that is played second. It is taken to have as many frames as the first. */
    property string imageLeft
    /*! Image address of the strip that is played first. Its height is the side of a frame. */
    property string imageRight

    property string header
    property font headerFont
    property color headerColor
    /*! Pixels that the header leaves free in the parent's width. */
    property real headerLeftMargin
    property real headerRightMargin

    property string description
    property font descriptionFont
    property color descriptionColor
    /*! Pixels that the description leaves free in the parent's width. */
    property real descriptionLeftMargin
    property real descriptionRightMargin

    /*! Milliseconds that a frame lasts. Must be set: with 0 the first frame stands. */
    property int animationInterval
    /*! The frame shown, from 0 to frameCount - 1. */
    property int currentFrameIndex
    /*! Frames of both strips, known once the first one is loaded. */
    property int frameCount
    /*! Frames of one strip. */
    property int switchingFrame

    // Deliberately without the width of the description. A hidden header keeps the last width it had.
    implicitWidth: Math.max(_canvas.width, header === "" ? 0 : _header.width)
    implicitHeight: _private.bottom

    onHeightChanged: _private.fit()
    Component.onCompleted: {
        _private.isComplete = true;
        _private.fit();
    }

    QtObject {
        id: _private

        // A label loses its textWidth when it is complete; told again afterwards, it stays.
        property bool isComplete
        readonly property real room: isComplete ? _busyIndicator.parent?.width ?? NaN : 0

        // Of the viewport. Not a binding, which would loop: in the item's own height the viewport is centred
        // in what comes of this, and then fills it.
        property real bottom

        function fit() {
            bottom = _canvas.height;
            if (_busyIndicator.height !== bottom)
                bottom = _canvas.y + _canvas.height;
        }
    }

    Timer {
        id: _timer

        interval: _busyIndicator.animationInterval
        running: _busyIndicator.visible
        repeat: true

        onRunningChanged: _busyIndicator.currentFrameIndex = 0
        onTriggered: {
            const next = _busyIndicator.currentFrameIndex + 1;
            _busyIndicator.currentFrameIndex = next;
            if (next >= _busyIndicator.frameCount)
                _busyIndicator.currentFrameIndex = 0;
        }
    }

    ColumnLayout {
        anchors.bottom: _canvas.top
        anchors.horizontalCenter: _canvas.horizontalCenter
        spacing: 5

        KELUIQCG.Text {
            id: _header

            objectName: "headerLabel"
            Layout.preferredWidth: textWidth
            Layout.maximumWidth: textWidth
            Layout.alignment: Qt.AlignHCenter
            horizontalAlignment: Qt.AlignHCenter
            maximumLineCount: 2
            textWidth: _private.room - _busyIndicator.headerLeftMargin - _busyIndicator.headerRightMargin
            font: _busyIndicator.headerFont
            color: _busyIndicator.headerColor
            wrapMode: KELUIQCG.Text.WrapMode.WordWrap
            text: _busyIndicator.header
            visible: _busyIndicator.header !== ""
        }

        KELUIQCG.Text {
            id: _description

            objectName: "descriptionLabel"
            Layout.preferredWidth: textWidth
            Layout.maximumWidth: textWidth
            Layout.alignment: Qt.AlignHCenter
            horizontalAlignment: Qt.AlignHCenter
            maximumLineCount: 2
            textWidth: _private.room - _busyIndicator.descriptionLeftMargin - _busyIndicator.descriptionRightMargin
            font: _busyIndicator.descriptionFont
            color: _busyIndicator.descriptionColor
            wrapMode: KELUIQCG.Text.WrapMode.WordWrap
            text: _busyIndicator.description
            visible: _busyIndicator.description !== ""
        }
    }

    Rectangle {
        id: _canvas

        anchors.centerIn: parent
        width: _right.height
        height: _right.height
        color: "transparent"
        clip: true

        onHeightChanged: _private.fit()

        Image {
            id: _left

            x: visible ? (_busyIndicator.switchingFrame - _busyIndicator.currentFrameIndex) * height : 0
            fillMode: Image.Pad
            // A file that was replaced is read again.
            cache: false
            source: _busyIndicator.imageLeft
            visible: _busyIndicator.currentFrameIndex >= _busyIndicator.switchingFrame
        }

        Image {
            id: _right

            x: visible ? -_busyIndicator.currentFrameIndex * height : 0
            fillMode: Image.Pad
            cache: false
            source: _busyIndicator.imageRight
            visible: _busyIndicator.currentFrameIndex < _busyIndicator.switchingFrame

            onStatusChanged: {
                if (status !== Image.Ready)
                    return;
                _busyIndicator.switchingFrame = Math.trunc(width / height);
                _busyIndicator.frameCount = _busyIndicator.switchingFrame * 2;
            }
        }
    }
}
