// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Kelui.Gallery

/*! The gallery's home screen as Qt Quick Controls make it: the same films, pictures, type and parts. */
Item {
    id: _screen

    readonly property int film: shelves.home.currentFilm
    readonly property HomeShelves shelves: HomeShelves {}

    width: 1280
    height: 720

    component Title: Text {
        color: Theme.text
        elide: Text.ElideRight
    }

    component Backdrop: Item {
        id: _backdrop

        property int film: 0

        Image {
            anchors.fill: parent
            source: _backdrop.visible ? FilmCatalogue.picture(_backdrop.film, width, height) : ""
        }

        Rectangle {
            width: parent.width * 0.6
            height: parent.height
            gradient: Gradient {
                orientation: Gradient.Horizontal

                GradientStop { position: 0; color: Theme.background }
                GradientStop { position: 0.25; color: "#d00d121a" }
                GradientStop { position: 1; color: "#000d121a" }
            }
        }

        Rectangle {
            y: parent.height - height
            width: parent.width
            height: parent.height * 0.4
            gradient: Gradient {
                GradientStop { position: 0; color: "#000d121a" }
                GradientStop { position: 1; color: Theme.background }
            }
        }
    }

    component Summary: Column {
        id: _summary

        property int film: 0

        spacing: 14

        Title {
            width: parent.width
            font: HomeTheme.title
            text: FilmCatalogue.title(_summary.film)
        }

        Title {
            font: HomeTheme.details
            color: Theme.accent
            text: FilmCatalogue.details(_summary.film)
        }

        Title {
            width: parent.width
            wrapMode: Text.WordWrap
            maximumLineCount: 3
            font: HomeTheme.description
            text: FilmCatalogue.film(_summary.film).description
        }
    }

    component Rows: ListView {
        id: _rows

        required property FilmShelf shelf

        clip: true
        interactive: false
        preferredHighlightBegin: 0
        preferredHighlightEnd: HomeTheme.rowHeight
        highlightRangeMode: ListView.StrictlyEnforceRange
        model: visible ? shelf.rows : null
        delegate: Item {
            id: _row

            required property FilmRow modelData

            width: 1280
            height: HomeTheme.rowHeight

            Title {
                x: HomeTheme.sideMargin
                font: HomeTheme.row
                color: _row.ListView.isCurrentItem ? Theme.text : Theme.secondaryText
                text: _row.modelData.title
            }

            ListView {
                y: 36
                width: parent.width
                height: parent.height - 36
                leftMargin: HomeTheme.sideMargin - HomeTheme.framePadding
                spacing: 4
                orientation: ListView.Horizontal
                interactive: false
                model: _row.modelData.films
                delegate: Item {
                    id: _tile

                    required property int index
                    required property int modelData
                    readonly property bool isRanked: _row.modelData.isRanked
                    readonly property size pictureSize: isRanked ? HomeTheme.posterPicture : HomeTheme.tilePicture

                    width: _picture.x + pictureSize.width + HomeTheme.framePadding
                    height: parent?.height ?? 0

                    Loader {
                        id: _rank

                        active: _tile.isRanked
                        sourceComponent: Title {
                            font: HomeTheme.rank
                            style: Text.Outline
                            styleColor: HomeTheme.emptyBox
                            color: Theme.background
                            text: _tile.index + 1
                        }
                    }

                    Image {
                        id: _picture

                        x: HomeTheme.framePadding + (_tile.isRanked ? _rank.width - 30 : 0)
                        y: HomeTheme.framePadding
                        width: _tile.pictureSize.width
                        height: _tile.pictureSize.height
                        fillMode: Image.PreserveAspectCrop
                        source: FilmCatalogue.picture(_tile.modelData, _tile.isRanked ? 0 : width, height)
                    }

                    Loader {
                        x: _picture.x
                        y: _picture.y + _picture.height - height
                        active: FilmCatalogue.progress(_tile.modelData) > 0
                        sourceComponent: ProgressBar {
                            width: _picture.width
                            height: 8
                            value: FilmCatalogue.progress(_tile.modelData)
                        }
                    }

                    Title {
                        x: HomeTheme.framePadding
                        y: _picture.height + HomeTheme.framePadding * 2 + 4
                        width: _picture.width
                        visible: !_tile.isRanked
                        font: HomeTheme.tile
                        color: _tile.ListView.isCurrentItem ? Theme.text : Theme.secondaryText
                        text: FilmCatalogue.title(_tile.modelData)
                    }

                    Rectangle {
                        x: _picture.x - HomeTheme.framePadding
                        width: _picture.width + HomeTheme.framePadding * 2
                        height: _picture.height + HomeTheme.framePadding * 2
                        visible: _row.ListView.isCurrentItem && _tile.ListView.isCurrentItem
                        color: "transparent"
                        border.color: Theme.text
                        border.width: 4
                    }
                }
            }
        }
    }

    component Choice: Button {
        icon.color: Theme.text
        font: HomeTheme.button
        palette.buttonText: Theme.text
        palette.button: Theme.raised
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    Backdrop {
        x: 480
        width: 800
        height: 450
        film: _screen.film
    }

    Summary {
        x: HomeTheme.sideMargin
        y: 132
        width: 520
        film: _screen.film
    }

    Rectangle {
        width: parent.width
        height: 150
        gradient: Gradient {
            GradientStop { position: 0; color: HomeTheme.shade }
            GradientStop { position: 1; color: "#000d121a" }
        }
    }

    Rectangle {
        x: HomeTheme.sideMargin
        y: 45
        width: 10
        height: 34
        color: Theme.accent
    }

    Title {
        x: HomeTheme.sideMargin + 22
        y: 37
        font: Theme.display
        text: "Kelui"
    }

    Row {
        x: 236
        y: 36
        spacing: 12

        Repeater {
            id: _menu

            readonly property list<string> icons: ["menu-home", "menu-films", "menu-grid", "menu-settings"]

            model: ["Home", "Films", "All films", "Settings"]

            ToolButton {
                required property int index
                required property string modelData

                checked: index === 0
                font: HomeTheme.button
                text: modelData
                icon.source: Theme.icon(_menu.icons[index])
                icon.color: checked ? Theme.accent : Theme.text
                palette.buttonText: icon.color
                background: Item {}
            }
        }
    }

    Rows {
        y: 388
        width: 1280
        height: 332
        shelf: _screen.shelves.home
    }

    // The other screens, which wait for their turn.
    TabBar {
        y: 124
        visible: false

        Repeater {
            model: _screen.shelves.films

            TabButton {
                required property FilmShelf modelData

                text: modelData.title
            }
        }
    }

    Rows {
        y: 206
        width: 1280
        height: 514
        visible: false
        shelf: _screen.shelves.films[0]
    }

    GridView {
        y: 124
        width: 1280
        height: 596
        visible: false
    }

    Column {
        visible: false

        Title {
            font: HomeTheme.title
            text: "Settings"
        }

        Repeater {
            model: ["Smooth scrolling and colours", "Large text", "Titles below the pictures", "Русский язык"]

            CheckBox {
                required property string modelData

                text: modelData
            }
        }
    }

    Item {
        visible: false

        BusyIndicator {
            running: false
        }

        Title {
            text: "One moment"
        }
    }

    Item {
        anchors.fill: parent
        visible: false

        Backdrop {
            width: 1040
            height: 585
        }

        Summary {
            width: 600
        }

        Row {
            Choice { text: "Watch"; icon.source: Theme.icon("play") }
            Choice { text: "From the beginning" }
            Choice { text: "To my list"; icon.source: Theme.icon("heart") }
        }
    }

    Item {
        anchors.fill: parent
        visible: false

        Image {
            anchors.fill: parent
        }

        Title {
            font: HomeTheme.title
        }

        ProgressBar {
            width: 1000
        }

        RowLayout {
            Image { source: Theme.icon("rewind") }
            Title { text: "0:00" }
            Title { text: "1:22" }
        }
    }
}
