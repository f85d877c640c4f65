// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    caption: qsTr("A title wraps beside its box; the focus frame is around the box alone")
    shots: [
        Shot {
            name: "CheckBox"
        },
        Shot {
            name: "CheckBox-focused"

            onTaken: _page.focusedStop = _subtitles
        },
        Shot {
            name: "CheckBox-checked"

            onTaken: {
                for (const box of [_downloads, _subtitles]) {
                    _page.focusedStop = box;
                    _page.activate();
                }
            }
        },
        Shot {
            name: "CheckBox-ru"
            language: "ru"

            onTaken: _page.focusedStop = _downloads
        }
    ]

    component Box: Generic.CheckBox {
        id: _box

        property GalleryPage page: null

        focused: page !== null && page.focusedStop === _box
        focusPolicy: Qt.NoFocus
        indicatorSize: Qt.size(48, 48)
        indicatorColors: ({
            disabled: Theme.background, checked: Theme.positive, focused: Theme.accent, normal: Theme.outline
        })
        iconPath: Theme.icon("small-check")
        iconColors: ({ disabled: "#60ffffff", checked: "#ffffff", focused: "#ffffff", normal: "#ffffff" })
        titleFont: Theme.label
        titleColors: ({
            disabled: Theme.disabledText, checked: Theme.text, focused: Theme.text, normal: Theme.secondaryText
        })
        spacing: 20

        Component.onCompleted: {
            if (page)
                page.addStop(_box);
        }

        FocusFrame {
            anchors.fill: _box.frameSourceItem
            focused: _box.focused
        }
    }

    Generic.Rectangle {
        width: 840
        height: 80
        color: Theme.surface

        Row {
            x: 32
            y: 16
            spacing: 12

            Box {
                width: 185
                text: "normal"
            }

            Box {
                width: 185
                focused: true
                text: "focused"
            }

            Box {
                width: 185
                checked: true
                text: "checked"
            }

            Box {
                width: 185
                enabled: false
                checked: true
                text: "disabled"
            }
        }
    }

    Generic.Rectangle {
        y: 92
        width: 840
        height: 392
        color: Theme.surface

        Grid {
            x: 32
            y: 25
            columns: 2
            columnSpacing: 40
            rowSpacing: 30

            Box {
                page: _page
                width: 368
                height: 94
                checked: true
                text: qsTr("Play the next episode")
            }

            Box {
                id: _downloads

                page: _page
                width: 368
                height: 94
                text: qsTr("Downloads")
            }

            Box {
                id: _subtitles

                page: _page
                width: 368
                height: 94
                text: qsTr("Subtitles in the language of the menus whenever a programme has them")
            }

            Box {
                page: _page
                width: 368
                height: 94
                enabled: _downloads.checked
                checked: true
                text: qsTr("Only at night, and not over mobile networks")
            }

            Box {
                page: _page
                width: 368
                height: 94
                forceRounding: true
                roundingRadius: 24
                text: qsTr("A round box, forceRounding")
            }

            Box {
                width: 368
                height: 94
                enabled: false
                text: qsTr("Not with your subscription")
            }
        }
    }
}
