// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery

/*! A part of the home screen that takes the keys while it is active, and has one focused item then. */
Item {
    id: _zone

    required property GalleryPage page
    /*! Cleared while another section is shown: a list or a grid has no items then. */
    property bool isShown: true
    /*! Where up, down and back lead when the zone leaves them; null for nowhere. */
    property HomeZone above: null
    property HomeZone below: null
    property HomeZone back: null
    /*! The item in focus while the zone is active. */
    property Item focusedItem: null
    readonly property bool isActive: page.focusedStop === _zone

    visible: isShown

    /*! Zones with keys of their own replace this. */
    function handleKey(key: int): bool {
        return false;
    }

    /*! The number next to `index` among `count`, or itself at an end. */
    function nextIndex(index: int, step: int, count: int): int {
        return Math.max(0, Math.min(index + step, count - 1));
    }
}
