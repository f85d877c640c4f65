// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    caption: qsTr("A filled box; its corners are square unless rounding is forced")
    shots: [
        Shot {
            name: "Rectangle"
        },
        Shot {
            name: "Rectangle-focused"

            onTaken: {
                _page.focusedStop = _forced;
                _page.activate();
            }
        }
    ]

    Card {
        width: 272
        height: 236
        caption: "color"

        Row {
            spacing: 12

            Repeater {
                model: [Theme.accent, Theme.mint, Theme.rose]

                Generic.Rectangle {
                    required property color modelData

                    width: 72
                    height: 172
                    color: modelData
                }
            }
        }
    }

    Card {
        x: 284
        width: 272
        height: 236
        caption: "border"

        Generic.Rectangle {
            width: 240
            height: 172
            color: Theme.positive
            border.color: Theme.mint
            border.width: 6
        }
    }

    Card {
        x: 568
        width: 272
        height: 236
        caption: "gradient"

        Generic.Rectangle {
            width: 240
            height: 172

            gradient: Gradient {
                GradientStop {
                    position: 0
                    color: Theme.accent
                }

                GradientStop {
                    position: 1
                    color: "#7a3b62"
                }
            }
        }
    }

    Card {
        y: 248
        width: 272
        height: 236
        caption: "roundingRadius: 40"

        Generic.Rectangle {
            width: 240
            height: 172
            roundingRadius: 40
            color: Theme.mint
        }
    }

    Card {
        id: _forced

        page: _page
        x: 284
        y: 248
        width: 556
        height: 236
        caption: qsTr("roundingRadius: 40, forceRounding: %1 — OK switches").arg(String(_first.forceRounding))

        onClicked: _first.forceRounding = !_first.forceRounding

        Row {
            spacing: 22

            Generic.Rectangle {
                id: _first

                width: 251
                height: 172
                roundingRadius: 40
                color: Theme.mint
            }

            Generic.Rectangle {
                width: 251
                height: 172
                forceRounding: _first.forceRounding
                roundingRadius: 40
                color: "transparent"
                border.color: Theme.accent
                border.width: 6
            }
        }
    }
}
