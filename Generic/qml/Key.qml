// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as QQT
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*! One key of the on-screen keyboard: a label, an icon, or both over each other. */
QQT.Control {
    id: _key

    /*! What the key does, a KelGlobal.KeyType. */
    property int type: KELUIQCG.KelGlobal.TextKey
    /*! The KelGlobal.KeyboardLayoutType that a layout-change key switches to; of no meaning to other keys. */
    property int layout: 0
    /*! Lets the application's navigation tell keys from other items. */
    readonly property bool isInteractive: true
    // The defaults that strike the eye ask for colours and a text of the application's own.
    property color backgroundColor: "red"
    /*! Corner radius in pixels, handed to the background, which draws square corners all the same. */
    property real roundingRadius: 0
    /*! The label; an empty one is not seen. */
    property string text: "NaN"
    property color textColor: "green"
    /*! Image address of the icon; an empty one is not seen. */
    property string imagePath: ""

    hoverEnabled: false

    background: KELUIQCG.Rectangle {
        id: _background

        roundingRadius: _key.roundingRadius
        color: _key.backgroundColor
    }

    contentItem: Item {
        id: _contentItem

        KELUIQCG.Text {
            anchors.centerIn: _contentItem
            maximumLineCount: 1
            font: _key.font
            color: _key.textColor
            text: _key.text
        }

        Image {
            anchors.centerIn: _contentItem
            source: _key.imagePath
        }
    }
}
