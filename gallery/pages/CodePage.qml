// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! The file that makes the sample of a control. */
GalleryPage {
    id: _page

    /*! The control's type. */
    required property string name
    required property string summary
    readonly property alias code: _example.code

    caption: summary
    // All look like this.
    shots: name === "Button" ? [_shot] : []

    function handleKey(key: int, text: string): bool {
        const step = key === Qt.Key_Down ? 1 : key === Qt.Key_Up ? -1 : 0;
        const bottom = Math.max(0, _text.contentHeight - _text.height);
        const to = Math.max(0, Math.min(bottom, _text.contentY + step * 66));
        if (step === 0 || to === _text.contentY)
            return handleStopKey(key);
        _text.contentY = to;
        return true;
    }

    Shot {
        id: _shot

        name: "Button-code"

        onTaken: _page.focusedStop = _text
    }

    Example {
        id: _example

        name: _page.name
    }

    Generic.Rectangle {
        width: 840
        height: 484
        color: Theme.panel

        FocusFrame {
            focused: _page.focusedStop === _text
        }
    }

    Caption {
        x: 16
        y: 10
        text: _example.fileName
    }

    // Where there is more.
    Caption {
        x: 824 - width
        y: 10
        text: (_text.atYBeginning ? "" : "↑ ") + (_text.atYEnd ? "" : "↓")
    }

    Flickable {
        id: _text

        x: 16
        y: 42
        width: 816
        height: 436
        contentHeight: _code.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        Component.onCompleted: _page.addStop(_text)

        // Of many colours, which the module's own text has not.
        Text {
            id: _code

            width: 816
            font: Theme.code
            color: Theme.text
            textFormat: Text.RichText
            wrapMode: Text.WrapAnywhere
            text: _example.markup
        }
    }
}
