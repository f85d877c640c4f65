// SPDX-License-Identifier: MIT
import QtQml

/*! A row of films and where its viewer is: the row's delegate comes and goes as the list scrolls. */
QtObject {
    id: _row

    property string title
    /*! Numbers of films. */
    property list<int> films
    /*! Whether the films are shown with their places. */
    property bool isRanked: false
    property int currentIndex: 0
}
