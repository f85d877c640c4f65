// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A row of films below its title. It writes down where its viewer is, and begins there when it is made again. */
Generic.MediaBlock {
    id: _block

    required property int index
    required property FilmRow modelData
    property bool isZoneActive: false
    readonly property bool isActive: isZoneActive && state === "focused"
    readonly property Item currentTile: _films.currentItem

    /*! On a film of the row. */
    signal clicked(column: int)

    width: 1280
    height: HomeTheme.rowHeight
    model: modelData.films
    itemsHaveTitles: HomeTheme.areTitlesShown && !modelData.isRanked
    state: "normal"
    states: [
        State {
            name: "normal"
        },
        State {
            name: "focused"
        }
    ]

    delegate: FilmTile {
        isViewActive: _block.isActive

        onClicked: _block.clicked(index)

        hasTitle: _block.itemsHaveTitles
        isRanked: _block.modelData.isRanked
        pictureSize: isRanked ? HomeTheme.posterPicture : HomeTheme.tilePicture
    }

    /*! To the next film of the row; at its ends, nowhere. */
    function move(step: int) {
        modelData.currentIndex = Math.max(0, Math.min(modelData.currentIndex + step, modelData.films.length - 1));
    }

    Label {
        x: HomeTheme.sideMargin
        font: HomeTheme.row
        color: _block.isActive ? Theme.text : Theme.secondaryText
        text: _block.modelData.title
    }

    Generic.ScrolledListView {
        id: _films

        y: HomeTheme.isTextLarge ? 40 : 36
        width: _block.width
        height: HomeTheme.posterPicture.height + HomeTheme.framePadding * 2
        leftMargin: HomeTheme.sideMargin - HomeTheme.framePadding
        rightMargin: leftMargin
        spacing: 2
        orientation: ListView.Horizontal
        interactive: false
        highlightMoveDuration: Theme.isAnimated ? 200 : 0
        model: _block.model
        delegate: _block.delegate
        currentIndex: _block.modelData.currentIndex
    }
}
