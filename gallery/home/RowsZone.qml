// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A list of rows of films: up and down between the rows, left and right along them. */
HomeZone {
    id: _zone

    required property FilmShelf shelf
    readonly property FilmBlock currentBlock: _rows.currentItem as FilmBlock

    /*! OK on a film, by its number. */
    signal chosen(film: int)

    focusedItem: currentBlock?.currentTile ?? null

    function handleKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
        case Qt.Key_Right:
            currentBlock?.move(key === Qt.Key_Left ? -1 : 1);
            return true;
        case Qt.Key_Up:
        case Qt.Key_Down:
            return moveToRow(nextIndex(shelf.currentIndex, key === Qt.Key_Up ? -1 : 1, shelf.rows.length));
        case Qt.Key_Return:
            chosen(shelf.currentFilm);
            return true;
        }
        return false;
    }

    function click(row: int, column: int) {
        page.focusedStop = _zone;
        moveToRow(row);
        shelf.rows[row].currentIndex = column;
        chosen(shelf.currentFilm);
    }

    function moveToRow(index: int): bool {
        if (index === shelf.currentIndex)
            return false;
        shelf.currentIndex = index;
        _rows.currentIndex = index;
        // Even without an animation the view would scroll with the next frame only.
        if (!Theme.isAnimated)
            _rows.positionViewAtIndex(index, ListView.Beginning);
        return true;
    }

    Generic.ScrolledListView {
        id: _rows

        anchors.fill: parent
        // The current row is the first one shown, the last one too.
        preferredHighlightEnd: HomeTheme.rowHeight
        bottomMargin: height - preferredHighlightEnd
        clip: true
        interactive: false
        highlightMoveDuration: Theme.isAnimated ? 200 : 0
        model: _zone.isShown ? _zone.shelf.rows : null
        delegate: FilmBlock {
            isZoneActive: _zone.isActive

            onClicked: column => _zone.click(index, column)
        }

        onModelChanged: {
            currentIndex = _zone.shelf.currentIndex;
            positionViewAtIndex(currentIndex, ListView.Beginning);
        }
    }
}
