// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as QQT
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A sample with its caption; with a page, one of its stops: OK then emits clicked. */
QQT.AbstractButton {
    id: _card

    property GalleryPage page: null
    property bool focused: page !== null && page.focusedStop === _card
    property string caption: ""
    default property alias content: _content.data

    padding: 16
    focusPolicy: Qt.NoFocus

    Component.onCompleted: {
        if (page)
            page.addStop(_card);
    }
    onPressed: {
        if (page)
            page.focusedStop = _card;
    }

    background: Generic.Rectangle {
        color: _card.focused ? Theme.raised : Theme.surface
    }

    contentItem: Item {
        Caption {
            id: _caption

            text: _card.caption
        }

        Item {
            id: _content

            anchors.fill: parent
            anchors.topMargin: _card.caption === "" ? 0 : 32
        }
    }

    FocusFrame {
        focused: _card.focused
    }
}
