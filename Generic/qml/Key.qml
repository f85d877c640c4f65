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
    property int layout
    /*! Lets the application's navigation tell keys from other items. */
    readonly property bool isInteractive: true
    // Aliases: a keyboard makes dozens of keys at a time, and what is handed on by a binding costs each of them.
    // The defaults that strike the eye ask for colours and a text of the application's own.
    property alias backgroundColor: _background.color
    /*! Corner radius in pixels, handed to the background, which draws square corners all the same. */
    property alias roundingRadius: _background.roundingRadius
    /*! The label; an empty one is not seen. */
    property alias text: _label.text
    property alias textColor: _label.color
    /*! Image address of the icon; an empty one is not seen. */
    property string imagePath

    hoverEnabled: false

    background: KELUIQCG.Rectangle {
        id: _background

        color: "red"
    }

    contentItem: Item {
        id: _contentItem

        KELUIQCG.Text {
            id: _label

            anchors.centerIn: _contentItem
            maximumLineCount: 1
            font: _key.font
            color: "green"
            text: "NaN"
        }

        Image {
            anchors.centerIn: _contentItem
            source: _key.imagePath
        }
    }
}
