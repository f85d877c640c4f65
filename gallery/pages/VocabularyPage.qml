// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    readonly property list<string> layoutNames: ["numeric", "russian", "english", "symbols"]
    readonly property list<string> keys: [
        Generic.KelGlobal.numericLayout, Generic.KelGlobal.russianLayout,
        Generic.KelGlobal.englishLayout, Generic.KelGlobal.symbolsLayout
    ][currentLayout]
    property int currentLayout: 1

    caption: qsTr("KelGlobal: keyboard layouts and enumerations that all controls share")
    shots: [
        Shot {
            name: "KelGlobal"
        },
        Shot {
            name: "KelGlobal-symbols"

            onTaken: {
                _page.focusedStop = _page.stops[3];
                _page.activate();
            }
        }
    ]

    component Value: Row {
        id: _value

        required property string name
        required property string value

        spacing: 10

        Caption {
            width: 200
            text: _value.name
        }

        Label {
            font: Theme.caption
            text: _value.value
        }
    }

    Row {
        spacing: 12

        Repeater {
            model: _page.layoutNames

            StateButton {
                id: _choice

                required property int index
                required property string modelData

                page: _page
                fixedSize: Qt.size(201, 60)
                checked: _page.currentLayout === index
                titleText: modelData

                onClicked: _page.currentLayout = index
            }
        }
    }

    Card {
        y: 78
        width: 840
        height: 250
        caption: qsTr("%1Layout: %2 keys").arg(_page.layoutNames[_page.currentLayout]).arg(_page.keys.length)

        Flow {
            width: 808
            spacing: 6

            Repeater {
                model: _page.keys

                Generic.Rectangle {
                    id: _key

                    required property string modelData
                    readonly property bool hasFunction: modelData.length > 1

                    width: hasFunction ? _name.implicitWidth + 20 : 44
                    height: 40
                    color: hasFunction ? Theme.positive : Theme.raised

                    Label {
                        id: _name

                        anchors.centerIn: parent
                        font: _key.hasFunction ? Theme.caption : Theme.label
                        text: _key.modelData
                    }
                }
            }
        }
    }

    Card {
        y: 340
        width: 414
        height: 144
        caption: "KelGlobal"

        Column {
            spacing: 4

            Value {
                name: "LoopHorizontalGrid"
                value: String(Generic.KelGlobal.LoopHorizontalGrid)
            }

            Value {
                name: "ElementDefaultFlags"
                value: String(Generic.KelGlobal.ElementDefaultFlags)
            }

            Value {
                name: "numberMaxValue"
                value: Generic.KelGlobal.numberMaxValue.toExponential(3)
            }
        }
    }

    Card {
        x: 426
        y: 340
        width: 414
        height: 144
        caption: "PluginInfo, AnimationInterpolators"

        Column {
            spacing: 4

            Value {
                name: "pluginInfo"
                value: Generic.PluginInfo.pluginInfo
            }

            Value {
                name: "version"
                value: Generic.PluginInfo.majorVersion + "." + Generic.PluginInfo.minorVersion
            }

            Value {
                name: "linearInterpolator"
                value: Generic.AnimationInterpolators.linearInterpolator.join(" ")
            }
        }
    }
}
