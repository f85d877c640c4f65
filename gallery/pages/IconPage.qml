// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<string> names: [
        "television", "play", "pause", "search", "settings", "star", "heart", "lock", "sound", "check", "forward",
        "book", "picture", "palette"
    ]

    caption: qsTr("An image file in one colour, that of its control's state")
    shots: [
        Shot {
            name: "Icon"
        },
        Shot {
            name: "Icon-focused"

            onTaken: {
                _page.focusedStop = _transparent;
                _page.activate();
                _page.focusedStop = _mirror;
                _page.activate();
            }
        }
    ]

    component StateSample: Generic.Rectangle {
        id: _sample

        required property string title
        required property color iconColor
        property color titleColor: iconColor

        width: 201
        height: 118

        Generic.Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 20
            source: Theme.icon("heart")
            iconColor: _sample.iconColor
        }

        Caption {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 82
            color: _sample.titleColor
            text: _sample.title
        }
    }

    component Method: Row {
        id: _method

        required property string title
        required property int method

        spacing: 12

        Repeater {
            model: ["star", "heart", "television"]

            Generic.Icon {
                required property string modelData

                source: Theme.icon(modelData)
                iconColor: "#80ffc247"
                coloringMethod: _method.method
            }
        }

        Caption {
            anchors.verticalCenter: parent.verticalCenter
            text: _method.title
        }
    }

    Row {
        spacing: 12

        StateSample {
            title: "normal"
            color: Theme.surface
            iconColor: Theme.text
        }

        StateSample {
            title: "focused"
            color: Theme.accent
            iconColor: Theme.ink
        }

        StateSample {
            title: "checked"
            color: Theme.positive
            iconColor: "#ffffff"
        }

        StateSample {
            title: "disabled"
            color: Theme.surface
            iconColor: Theme.disabledText
        }
    }

    Card {
        y: 130
        width: 414
        height: 172
        caption: qsTr("implicit size: that of the file")

        Grid {
            columns: 7
            columnSpacing: 7
            rowSpacing: 8

            Repeater {
                model: _page.names

                Generic.Icon {
                    required property string modelData

                    source: Theme.icon(modelData)
                    iconColor: Theme.text
                }
            }
        }
    }

    Card {
        x: 426
        y: 130
        width: 414
        height: 172
        caption: qsTr("coloringMethod, with gold of 50 % alpha")

        Column {
            spacing: 8

            Method {
                title: "SourceAlpha"
                method: Generic.ImageColorizer.SourceAlpha
            }

            Method {
                title: "DestinationAlpha"
                method: Generic.ImageColorizer.DestinationAlpha
            }
        }
    }

    Card {
        id: _mirror

        page: _page
        y: 314
        width: 414
        height: 170
        caption: "mirror: " + _arrow.mirror

        onClicked: _arrow.mirror = !_arrow.mirror

        Row {
            anchors.verticalCenter: parent.verticalCenter
            spacing: 34

            Generic.Icon {
                id: _arrow

                source: Theme.icon("forward")
                iconColor: Theme.mint
            }

            Repeater {
                model: ["sound", "search", "check", "play"]

                Generic.Icon {
                    required property string modelData

                    mirror: _arrow.mirror
                    source: Theme.icon(modelData)
                    iconColor: Theme.mint
                }
            }
        }
    }

    Card {
        id: _transparent

        page: _page
        x: 426
        y: 314
        width: 414
        height: 170
        caption: "colorizeOnTransparent: " + _weather.colorizeOnTransparent

        onClicked: _weather.colorizeOnTransparent = !_weather.colorizeOnTransparent

        Row {
            anchors.verticalCenter: parent.verticalCenter
            spacing: 20

            Generic.Icon {
                id: _weather

                colorizeOnTransparent: false
                source: Theme.icon("weather")
            }

            Caption {
                anchors.verticalCenter: parent.verticalCenter
                text: _weather.colorizeOnTransparent ? qsTr("coloured transparent: it is gone")
                                                     : qsTr("as the file draws it")
            }
        }
    }
}
