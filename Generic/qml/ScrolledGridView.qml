// SPDX-License-Identifier: MIT
import QtQuick

/*!
    A grid whose cells are given by their elements and the gaps between them. It gives the delegates the
    states "normal" and "focused" as the current item changes.
*/
GridView {
    id: _view

    /*! Pixels between columns. */
    property real horizontalSpacing
    /*! Pixels between rows. */
    property real verticalSpacing
    /*! Size of an element in pixels. */
    property real elementWidth
    property real elementHeight
    /*! For the application's use. */
    property var mediaBlockItem

    cellWidth: elementWidth + horizontalSpacing
    cellHeight: elementHeight + verticalSpacing

    onCurrentItemChanged: {
        if (_private.previousItem)
            _private.previousItem.state = "normal";
        if (currentItem)
            currentItem.state = "focused";
        _private.previousItem = currentItem;
    }

    QtObject {
        id: _private

        property Item previousItem: null
    }
}
