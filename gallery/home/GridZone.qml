// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! All the films in one grid. */
HomeZone {
    id: _zone

    readonly property int columns: 5
    property int currentIndex: 0

    /*! OK on a film, by its number. */
    signal chosen(film: int)

    focusedItem: _grid.currentItem

    function handleKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
            if (currentIndex % columns > 0)
                move(-1);
            return true;
        case Qt.Key_Right:
            if (currentIndex % columns < columns - 1)
                move(1);
            return true;
        case Qt.Key_Up:
            return move(-columns);
        case Qt.Key_Down:
            return move(columns);
        case Qt.Key_Return:
            chosen(currentIndex);
            return true;
        }
        return false;
    }

    function move(step: int): bool {
        if (currentIndex + step < 0 || currentIndex + step >= FilmCatalogue.count)
            return false;
        currentIndex += step;
        _grid.currentIndex = currentIndex;
        if (!Theme.isAnimated)
            _grid.positionViewAtIndex(currentIndex, GridView.Center);
        return true;
    }

    Label {
        x: HomeTheme.sideMargin
        font: HomeTheme.row
        text: qsTr("All films")
    }

    Caption {
        x: 1280 - HomeTheme.sideMargin - width
        y: 4
        font: HomeTheme.tile
        text: qsTr("%1 of %2").arg(_zone.currentIndex + 1).arg(FilmCatalogue.count)
    }

    Generic.ScrolledGridView {
        id: _grid

        x: HomeTheme.sideMargin - HomeTheme.framePadding
        y: 42
        width: cellWidth * _zone.columns
        height: _zone.height - y
        elementWidth: HomeTheme.gridPicture.width + HomeTheme.framePadding * 2
        elementHeight: HomeTheme.gridPicture.height + HomeTheme.framePadding * 2
                       + (HomeTheme.areTitlesShown ? HomeTheme.tileTitleHeight : 0)
        horizontalSpacing: 2
        verticalSpacing: 6
        bottomMargin: HomeTheme.bottomMargin
        clip: true
        interactive: false
        highlightRangeMode: GridView.ApplyRange
        preferredHighlightBegin: 0
        preferredHighlightEnd: height - bottomMargin
        highlightMoveDuration: Theme.isAnimated ? 200 : 0
        model: _zone.isShown ? FilmCatalogue.count : 0
        delegate: FilmTile {
            isViewActive: _zone.isActive

            onClicked: {
                _zone.page.focusedStop = _zone;
                _zone.move(index - _zone.currentIndex);
                _zone.chosen(index);
            }

            hasTitle: HomeTheme.areTitlesShown
            pictureSize: HomeTheme.gridPicture
        }

        onModelChanged: {
            currentIndex = _zone.currentIndex;
            positionViewAtIndex(currentIndex, GridView.Center);
        }
    }

    Generic.ScrollBar {
        x: 1280 - HomeTheme.sideMargin - width
        y: _grid.y + HomeTheme.framePadding
        width: 6
        height: _zone.height - y - HomeTheme.bottomMargin
        maximum: Math.max(0, _grid.contentHeight + _grid.bottomMargin - _grid.height)
        sliderPosition: Math.min(maximum, _grid.contentY)
        backgroundColor: Theme.surface
        sliderColor: Theme.secondaryText
    }
}
