// SPDX-License-Identifier: MIT
import QtQml

/*! Rows of films that are shown together, and the row that its viewer is in. */
QtObject {
    id: _shelf

    property string title
    property list<FilmRow> rows
    property int currentIndex: 0
    /*! The number of the film that the viewer is at. */
    readonly property int currentFilm: rows[currentIndex].films[rows[currentIndex].currentIndex]
}
