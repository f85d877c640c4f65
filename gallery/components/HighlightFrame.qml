// SPDX-License-Identifier: MIT
import QtQuick

/*! A focus frame that goes where the highlight of a view goes. */
Item {
    id: _frame

    required property ItemView view
    required property bool focused

    parent: view.contentItem
    x: view.highlightItem?.x ?? 0
    y: view.highlightItem?.y ?? 0
    z: 2
    width: view.highlightItem?.width ?? 0
    height: view.highlightItem?.height ?? 0

    FocusFrame {
        focused: _frame.focused
    }
}
