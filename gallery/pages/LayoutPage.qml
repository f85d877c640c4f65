// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    caption: qsTr("LayoutSpacer keeps items apart; MediaBlock is what blocks of posters build on")
    shots: [
        Shot {
            name: "LayoutSpacer"
        },
        Shot {
            name: "LayoutSpacer-fixed"

            onTaken: {
                for (const stop of [_row, _column]) {
                    _page.focusedStop = stop;
                    _page.activate();
                }
            }
        },
        Shot {
            name: "MediaBlock"

            onTaken: _page.focusedStop = _block
        },
        Shot {
            name: "MediaBlock-untitled"
            language: "ru"

            onTaken: {
                _page.focusedStop = _block;
                _page.activate();
            }
        }
    ]

    component Box: Generic.Rectangle {
        property alias text: _text.text

        implicitWidth: _text.implicitWidth + 32
        implicitHeight: 52
        color: Theme.positive

        Label {
            id: _text

            anchors.centerIn: parent
            font: Theme.menu
        }
    }

    /*! A spacer made visible. */
    component Spacer: Generic.LayoutSpacer {
        id: _spacer

        Generic.Rectangle {
            anchors.fill: parent
            color: "transparent"
            border.color: Theme.accent
            border.width: 2
        }

        Caption {
            anchors.centerIn: parent
            color: Theme.accent
            text: Math.round(_spacer.width) + " × " + Math.round(_spacer.height)
        }
    }

    /*! Posters in a row, below a title of the application's. */
    component PosterBlock: Generic.MediaBlock {
        id: _posters

        padding: 16

        background: Generic.Rectangle {
            color: _page.focusedStop === _posters ? Theme.raised : Theme.surface
        }

        contentItem: Item {
            Label {
                font: Theme.label
                text: _posters.mediaBlockItem.title
            }

            Row {
                anchors.verticalCenter: parent.verticalCenter
                anchors.verticalCenterOffset: 18
                spacing: 12

                Repeater {
                    model: _posters.model
                    delegate: _posters.delegate
                }
            }
        }
    }

    Card {
        id: _row

        property bool isFixed: false

        page: _page
        width: 556
        height: 140
        caption: isFixed ? "fixedWidth: 120" : qsTr("RowLayout, fills — OK fixes")

        onClicked: isFixed = !isFixed

        RowLayout {
            y: 12
            // Without a spacer that fills, what is left would go between all of them.
            width: _row.isFixed ? implicitWidth : 524
            height: 52
            spacing: 8

            Box {
                text: qsTr("Back")
            }

            // A spacer once fixed stays so: each change makes another one.
            Repeater {
                model: [_row.isFixed ? 120 : -1]

                Spacer {
                    required property real modelData

                    fixedWidth: modelData
                }
            }

            Box {
                text: qsTr("Sound")
            }

            Box {
                text: "20:45"
            }
        }
    }

    Card {
        id: _column

        property bool isFixed: false

        page: _page
        x: 568
        width: 272
        height: 484
        caption: isFixed ? "fixedHeight: 80" : qsTr("ColumnLayout, fills")

        onClicked: isFixed = !isFixed

        ColumnLayout {
            y: 8
            width: 240
            height: _column.isFixed ? implicitHeight : 412
            spacing: 8

            Box {
                Layout.fillWidth: true
                text: qsTr("Settings")
            }

            Repeater {
                model: [_column.isFixed ? 80 : -1]

                Spacer {
                    required property real modelData

                    fixedHeight: modelData
                }
            }

            Box {
                Layout.fillWidth: true
                text: qsTr("Account")
            }

            Box {
                Layout.fillWidth: true
                text: qsTr("Sign out")
            }
        }
    }

    PosterBlock {
        id: _block

        y: 152
        width: 556
        height: 332
        model: Films.posters.slice(0, 4)
        mediaBlockItem: ({ title: qsTr("Tonight, itemsHaveTitles: %1").arg(String(itemsHaveTitles)) })

        delegate: Item {
            id: _poster

            required property int index
            required property string modelData

            width: 122
            height: _block.itemsHaveTitles ? 238 : 183

            Generic.RoundedImage {
                width: 122
                height: 183
                source: Theme.picture(_poster.modelData)
                sourceSize: Qt.size(244, 366)
            }

            Caption {
                y: 190
                width: 122
                maximumLineCount: 2
                text: Films.titles[_poster.index]
                visible: _block.itemsHaveTitles
            }
        }

        Component.onCompleted: _page.addStop(_block)

        FocusFrame {
            focused: _page.focusedStop === _block
        }
    }

    onActivated: _block.itemsHaveTitles = !_block.itemsHaveTitles
}
