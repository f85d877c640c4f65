// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*!
    A list that keeps the current item between its margins. It scrolls smoothly to an item at an edge, and
    gives the delegates the states "normal" and "focused" as the current item changes.
*/
ListView {
    id: _view

    /*! Set the states of the delegates. */
    property bool allowStateChange: true

    highlightMoveDuration: 200
    highlightMoveVelocity: -1
    highlightResizeDuration: 0
    highlightResizeVelocity: -1
    highlightRangeMode: ListView.ApplyRange
    preferredHighlightBegin: orientation === ListView.Horizontal ? leftMargin : topMargin
    preferredHighlightEnd: orientation === ListView.Horizontal ? width - rightMargin : height - bottomMargin
    highlightFollowsCurrentItem: false

    highlight: KELUIQCG.Highlight {
        view: _view
        animationEnabled: _private.currentItemOnTheBeginEdge || _private.currentItemOnTheEndEdge
        animationDuration: _view.highlightMoveDuration
    }

    onCurrentItemChanged: {
        _private.updateEdges();
        _private.handOverState();
    }

    QtObject {
        id: _private

        property bool currentItemOnTheBeginEdge
        property bool currentItemOnTheEndEdge
        property Item previousItem: null

        // Where the content stands now, before the view scrolls to the new item.
        function updateEdges() {
            const item = _view.currentItem;
            if (!item) {
                currentItemOnTheBeginEdge = false;
                currentItemOnTheEndEdge = false;
            } else if (_view.orientation === ListView.Horizontal) {
                currentItemOnTheBeginEdge = item.x < _view.contentX + _view.preferredHighlightBegin;
                // Deliberately the edge of the view, not the end of the preferred range.
                currentItemOnTheEndEdge = item.x + item.width + _view.spacing > _view.contentX + _view.width;
            } else {
                currentItemOnTheBeginEdge = item.y < _view.contentY + _view.preferredHighlightBegin;
                currentItemOnTheEndEdge = item.y + item.height + _view.spacing > _view.contentY + _view.height;
            }
        }

        function handOverState() {
            const item = _view.currentItem;
            if (_view.allowStateChange) {
                if (previousItem)
                    previousItem.state = "normal";
                if (item)
                    item.state = "focused";
            }
            previousItem = item;
        }
    }
}
