// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! All components of the module by what they are for; OK opens the page of one. */
GalleryPage {
    id: _page

    /*! All pages; those of controls are listed. */
    required property list<PageEntry> entries

    caption: qsTr("Each with its properties, its states, and the code that makes it")
    shots: [
        Shot {
            name: "Controls"
        },
        Shot {
            name: "Controls-ru"
            language: "ru"

            onTaken: _page.focusFirst()
        }
    ]

    function namesIn(group: string): list<string> {
        const names = [];
        for (const entry of entries) {
            if (entry.group === group)
                names.push(entry.name);
        }
        return names;
    }

    component Group: Column {
        id: _group

        required property string title
        required property string icon
        required property string group

        width: 201
        spacing: 4

        Row {
            height: 32
            spacing: 8

            Generic.RoundedImage {
                width: 24
                height: 24
                source: Theme.icon(_group.icon)
                sourceSize: Qt.size(24, 24)
            }

            Caption {
                text: _group.title
            }
        }

        Repeater {
            model: _page.namesIn(_group.group)

            MenuButton {
                id: _line

                required property string modelData

                focused: _page.focusedStop === _line
                focusPolicy: Qt.NoFocus
                fixedSize: Qt.size(201, 38)
                leftPadding: 10
                leftIconSize: Qt.size(0, 0)
                spacing: 0
                titleFont: Theme.sizedFont(16, Font.DemiBold)
                titleText: modelData
                backgroundColors: Theme.buttonBackgrounds
                titleColors: Theme.buttonTitles

                Component.onCompleted: _page.addStop(_line)
                onClicked: _page.pageRequested(modelData)

                FocusFrame {
                    focused: _line.focused
                }
            }
        }
    }

    Row {
        spacing: 12

        Column {
            spacing: 18

            Group {
                title: qsTr("Buttons")
                icon: "button"
                group: "buttons"
            }

            Group {
                title: qsTr("Typing")
                icon: "search"
                group: "typing"
            }
        }

        Column {
            spacing: 18

            Group {
                title: qsTr("Text")
                icon: "text"
                group: "text"
            }

            Group {
                title: qsTr("Pictures")
                icon: "picture"
                group: "pictures"
            }
        }

        Column {
            spacing: 18

            Group {
                title: qsTr("Lists and layout")
                icon: "list"
                group: "lists"
            }
        }

        Column {
            spacing: 18

            Group {
                title: qsTr("Indicators")
                icon: "hourglass"
                group: "indicators"
            }

            Group {
                title: qsTr("Vocabulary")
                icon: "book"
                group: "vocabulary"
            }
        }
    }
}
