// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    /*! How often the end of the text was told: for the first screen, and for all of it. */
    property int ends: 0

    isBusy: ends < 2
    caption: qsTr("A book of a megabyte: up and down scroll, OK goes to the other end")
    shots: [
        Shot {
            name: "LargeText"
        },
        Shot {
            name: "LargeText-focused"

            onTaken: {
                _page.focusFirst();
                for (let i = 0; i < 8; ++i)
                    _page.handleKey(Qt.Key_Down, "");
            }
        },
        Shot {
            name: "LargeText-ru"
            language: "ru"
        }
    ]

    function handleKey(key: int, text: string): bool {
        switch (key) {
        case Qt.Key_Up:
            _text.scrollToDirection(Generic.KelGlobal.ScrollUp);
            return focusedStop !== null;
        case Qt.Key_Down:
            _text.scrollToDirection(Generic.KelGlobal.ScrollDown);
            return focusedStop !== null;
        }
        return handleStopKey(key);
    }

    Card {
        page: _page
        width: 840
        height: 484
        padding: 24

        onClicked: _text.offset = _text.offset < _text.scrollMaximum ? _text.scrollMaximum : 0

        Generic.LargeText {
            id: _text

            width: 752
            height: 400
            color: Theme.text
            font: Theme.body
            text: Book.text(Language.code)

            onTextChanged: _page.ends = 0
            onScrollMaximumChanged: ++_page.ends
        }

        Generic.ScrollBar {
            x: 784
            width: 8
            height: 400
            maximum: Math.max(0, _text.scrollMaximum)
            sliderPosition: Math.min(maximum, _text.offset)
            backgroundColor: Theme.outline
            sliderColor: Theme.accent
        }

        Caption {
            y: 414
            text: qsTr("%1 characters, offset %2 of %3").arg(_text.text.length).arg(_text.offset).arg(_text.scrollMaximum)
        }
    }
}
