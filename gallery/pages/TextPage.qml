// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    // Samples of scripts are the same in every language of the gallery.
    readonly property string story: "Северное сияние над озером: путешествие начинается ночью, когда гаснут огни "
                                    + "последней деревни и остаётся только снег."

    caption: qsTr("Plain text in one colour and font: wrapped, cut and aligned")
    shots: [
        Shot {
            name: "Text"
        },
        Shot {
            name: "Text-focused"

            onTaken: {
                _page.focusedStop = _lines;
                _page.activate();
                _page.focusedStop = _width;
                _page.activate();
            }
        }
    ]

    Card {
        width: 414
        height: 286
        caption: "horizontalAlignment × verticalAlignment"

        Grid {
            columns: 3
            spacing: 7

            Repeater {
                model: [
                    Qt.AlignLeft | Qt.AlignTop, Qt.AlignHCenter | Qt.AlignTop, Qt.AlignRight | Qt.AlignTop,
                    Qt.AlignLeft | Qt.AlignVCenter, Qt.AlignCenter, Qt.AlignRight | Qt.AlignVCenter,
                    Qt.AlignLeft | Qt.AlignBottom, Qt.AlignHCenter | Qt.AlignBottom, Qt.AlignRight | Qt.AlignBottom
                ]

                Generic.Rectangle {
                    id: _cell

                    required property int modelData

                    width: 122
                    height: 69
                    color: Theme.raised

                    Label {
                        x: 8
                        y: 4
                        width: 106
                        height: 61
                        horizontalAlignment: _cell.modelData
                        font: Theme.caption
                        text: "Эфир\nLive now"
                    }
                }
            }
        }
    }

    Card {
        id: _lines

        page: _page
        x: 426
        width: 414
        height: 137
        caption: "maximumLineCount: " + _story.maximumLineCount

        onClicked: _story.maximumLineCount = _story.maximumLineCount % 3 + 1

        Label {
            id: _story

            width: 382
            maximumLineCount: 2
            text: _page.story
        }
    }

    Card {
        id: _width

        page: _page
        x: 426
        y: 149
        width: 414
        height: 137
        caption: "textWidth: " + _wrapped.textWidth

        onClicked: _wrapped.textWidth = _wrapped.textWidth > 200 ? _wrapped.textWidth - 100 : 380

        Label {
            id: _wrapped

            maximumLineCount: 3
            text: qsTr("Lines break between words; a word wider than the line breaks anywhere.")

            Component.onCompleted: textWidth = 380
        }

        Generic.Rectangle {
            x: _wrapped.textWidth
            width: 2
            height: parent.height
            color: Theme.accent
        }
    }

    Card {
        y: 298
        width: 414
        height: 186
        caption: "font, color"

        Row {
            spacing: 22

            Label {
                id: _big

                font: Theme.sizedFont(76, Font.Bold)
                text: "Кино"
            }

            Column {
                topPadding: 8
                spacing: 2

                Label {
                    font: Theme.sizedFont(32, Font.DemiBold)
                    color: Theme.accent
                    text: "Сериалы"
                }

                Label {
                    font: Theme.sizedFont(22, Font.Normal)
                    color: Theme.mint
                    text: "Спорт · Sports"
                }
            }
        }

        Label {
            y: 98
            font: Theme.sizedFont(18, Font.Normal)
            color: Theme.rose
            text: "Новости, погода, music & kids — 18 px"
        }
    }

    Card {
        x: 426
        y: 298
        width: 414
        height: 186
        caption: qsTr("text: markup stays as typed, RTL at the right")

        Label {
            text: "<b>Not bold</b> &amp; 5 < 7"
        }

        Label {
            y: 34
            width: 382
            maximumLineCount: 1
            color: Theme.mint
            text: "ערוץ חמש: סרטים בשידור חי"
        }

        Label {
            y: 66
            width: 382
            maximumLineCount: 2
            color: Theme.accent
            text: "القناة الخامسة: أفلام ومسلسلات وأخبار على مدار الساعة"
        }
    }
}
