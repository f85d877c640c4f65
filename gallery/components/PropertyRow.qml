// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A property and its value, a line of a PropertyModel. */
Generic.Rectangle {
    id: _row

    required property string name
    required property int kind
    required property string value
    required property color swatch
    required property bool isWritable
    /*! Whether keys change this one. */
    required property bool isCurrent

    signal clicked(steps: int)

    height: 56
    color: isCurrent ? Theme.accent : Theme.surface

    TapHandler {
        onTapped: point => _row.clicked(point.position.x < _row.width - 64 ? 1 : -1)
    }

    Label {
        x: 14
        y: 6
        width: _row.width - 28
        maximumLineCount: 1
        font: Theme.sizedFont(16, Font.Normal)
        color: _row.isCurrent ? Theme.ink : Theme.secondaryText
        text: _row.name
    }

    Row {
        x: 14
        y: 27
        spacing: 8

        Generic.Rectangle {
            y: 3
            width: 18
            height: 18
            color: _row.swatch
            border.color: _row.isCurrent ? Theme.ink : Theme.text
            border.width: 1
            visible: _row.kind === PropertyModel.Color
        }

        Label {
            width: _row.width - 100
            maximumLineCount: 1
            font: Theme.sizedFont(18, Font.DemiBold)
            color: _row.isCurrent ? Theme.ink : _row.isWritable ? Theme.text : Theme.disabledText
            text: _row.value
        }
    }

    Label {
        anchors.right: parent.right
        anchors.rightMargin: 14
        y: 25
        font: Theme.label
        color: Theme.ink
        text: "‹  ›"
        visible: _row.isCurrent && _row.isWritable
    }
}
