// SPDX-License-Identifier: MIT
import QtQuick

/*!
    The highlight of an item view: it shows nothing, and takes the place and the size of the current item.
    The view scrolls after it. Without a current item it is an empty point in the corner.
*/
Item {
    id: _highlight

    /*! The view to follow. */
    required property ItemView view
    /*! Animate changes of the place; the size jumps. */
    property bool animationEnabled
    /*! Milliseconds. */
    property int animationDuration
    /*! The animations themselves, to tune what is not told above. */
    readonly property alias horizontalScrollingAnimation: _horizontalAnimation
    readonly property alias verticalScrollingAnimation: _verticalAnimation

    x: (view?.currentItem as Item)?.x ?? 0
    y: (view?.currentItem as Item)?.y ?? 0
    width: (view?.currentItem as Item)?.width ?? 0
    height: (view?.currentItem as Item)?.height ?? 0

    Behavior on x {
        enabled: _highlight.animationEnabled

        SmoothedAnimation {
            id: _horizontalAnimation

            duration: _highlight.animationDuration
        }
    }

    Behavior on y {
        enabled: _highlight.animationEnabled

        SmoothedAnimation {
            id: _verticalAnimation

            duration: _highlight.animationDuration
        }
    }
}
