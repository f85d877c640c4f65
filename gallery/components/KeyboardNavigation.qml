// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Generic

/*! Moves between the keys of a keyboard by where they are, whatever its layout. */
QtObject {
    id: _navigation

    required property Generic.Keyboard keyboard
    /*! The key in focus; null before the first, and when its layout is gone. */
    property Item currentKey: null

    // Where up and down go along, however wide the keys on the way; negative: the middle of the current key.
    property real column: -1

    /*! The keys in the order of their numbers. */
    function keys(): list<Item> {
        const result = [];
        for (const child of keyboard.children) {
            if ((child as Generic.Key)?.isInteractive)
                result.push(child);
        }
        return result;
    }

    /*! The number of the current key, -1 for none. */
    function currentIndex(): int {
        return keys().indexOf(currentKey);
    }

    function focusKey(index: int) {
        currentKey = keys()[index] ?? null;
        column = -1;
    }

    /*! To the next key of the row; from its end to its other end. */
    function moveAlongRow(step: int) {
        if (!currentKey) {
            focusKey(0);
            return;
        }
        let next = null;
        let nextAhead = 0;
        let last = currentKey;
        let lastAhead = 0;
        for (const key of keys()) {
            if (key.y >= currentKey.y + currentKey.height || key.y + key.height <= currentKey.y)
                continue;
            const ahead = (key.x - currentKey.x) * step;
            if (ahead > 0 && (!next || ahead < nextAhead)) {
                next = key;
                nextAhead = ahead;
            }
            if (ahead < lastAhead) {
                last = key;
                lastAhead = ahead;
            }
        }
        currentKey = next ?? last;
        column = -1;
    }

    /*! To the next row; false, and no move, where there is none. */
    function moveAcrossRows(step: int): bool {
        if (!currentKey) {
            focusKey(0);
            return true;
        }
        const from = column >= 0 ? column : currentKey.x + currentKey.width / 2;
        let next = null;
        let nextAhead = 0;
        let nextAside = 0;
        for (const key of keys()) {
            const ahead = step > 0 ? key.y - currentKey.y - currentKey.height : currentKey.y - key.y - key.height;
            const aside = Math.max(0, key.x - from, from - key.x - key.width);
            if (ahead >= 0 && (!next || ahead < nextAhead || (ahead === nextAhead && aside < nextAside))) {
                next = key;
                nextAhead = ahead;
                nextAside = aside;
            }
        }
        if (!next)
            return false;
        currentKey = next;
        column = from;
        return true;
    }
}
