// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as QQT
import Kelui.Gallery

/*!
    The base of all pages: where focus is, how arrows move it, and which pictures are taken. Controls that
    focus can reach are its stops.
*/
Item {
    id: _page

    /*! A line below the title. */
    property string caption: ""
    /*! Whether the page takes the whole window while it has the keys. Beside the menu it is shown small. */
    property bool isFullScreen: false
    /*! Whether the page still prepares what it shows, in passes of the event loop. Pictures wait for that. */
    property bool isBusy: false
    /*! The pictures of this page. */
    property list<Shot> shots
    /*! The control in focus, or null while the menu has it. */
    property Item focusedStop: null
    /*! Gets the keys that the page does not handle; meanwhile digits open no pages. */
    property Item keyTarget: null
    /*! What left and right do now, where they do not move the focus. */
    property string sideKeysMeaning

    readonly property list<Item> stops: []

    /*! OK on a stop that is not a button. */
    signal activated(stop: Item)
    /*! Another page is to be opened, by its name. */
    signal pageRequested(name: string)

    function addStop(stop: Item) {
        stops.push(stop);
    }

    /*! Puts focus on the stop nearest to the top left corner; false where the page has none. */
    function focusFirst(): bool {
        let best = null;
        let bestDistance = Number.MAX_VALUE;
        for (const stop of stops) {
            const area = _private.area(stop);
            const distance = area.y * 4 + area.x;
            if (_private.canFocus(stop) && distance < bestDistance) {
                best = stop;
                bestDistance = distance;
            }
        }
        focusedStop = best;
        return best !== null;
    }

    /*! Moves focus to the nearest stop in a direction; false where there is none. */
    function moveFocus(dx: int, dy: int): bool {
        if (!focusedStop)
            return false;
        const from = _private.area(focusedStop);
        let best = null;
        let bestDistance = Number.MAX_VALUE;
        for (const stop of stops) {
            if (stop === focusedStop || !_private.canFocus(stop))
                continue;
            const to = _private.area(stop);
            const distance = dx !== 0
                ? _private.distance(dx, from.left, from.right, to.left, to.right, from.top, from.bottom, to.top, to.bottom)
                : _private.distance(dy, from.top, from.bottom, to.top, to.bottom, from.left, from.right, to.left, to.right);
            // Sideways only along the row: beyond its end is the menu.
            const isBeside = dx === 0 || (to.top < from.bottom && to.bottom > from.top);
            if (isBeside && distance >= 0 && distance < bestDistance) {
                best = stop;
                bestDistance = distance;
            }
        }
        if (best)
            focusedStop = best;
        return best !== null;
    }

    /*! Pages with keys of their own replace this; false hands the key on to keyTarget or the menu. */
    function handleKey(key: int, text: string): bool {
        return handleStopKey(key);
    }

    /*! Arrows and OK among the stops. */
    function handleStopKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
            return moveFocus(-1, 0);
        case Qt.Key_Right:
            return moveFocus(1, 0);
        case Qt.Key_Up:
            return moveFocus(0, -1);
        case Qt.Key_Down:
            return moveFocus(0, 1);
        case Qt.Key_Return:
            activate();
            return true;
        }
        return false;
    }

    /*! What OK does. */
    function activate() {
        const button = focusedStop as QQT.AbstractButton;
        if (button)
            button.click();
        else if (focusedStop)
            activated(focusedStop);
    }

    QtObject {
        id: _private

        function canFocus(stop: Item): bool {
            return stop.visible && stop.enabled;
        }

        function area(stop: Item): rect {
            return stop.mapToItem(_page, Qt.rect(0, 0, stop.width, stop.height));
        }

        /*! How far `to` is from `from` in a direction, -1 where it does not lie there. */
        function distance(direction: int, fromStart: real, fromEnd: real, toStart: real, toEnd: real,
                          fromSideStart: real, fromSideEnd: real, toSideStart: real, toSideEnd: real): real {
            const ahead = direction > 0 ? toStart - fromEnd : fromStart - toEnd;
            if (ahead < 0)
                return -1;
            const aside = Math.max(0, toSideStart - fromSideEnd, fromSideStart - toSideEnd);
            const offset = Math.abs(toSideStart + toSideEnd - fromSideStart - fromSideEnd);
            return ahead + aside * 3 + offset / 100;
        }
    }
}
