// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Window {
    id: window

    property Item key: null

    // To the key that lies beyond the edge of the current one, whatever the layout.
    function move(dx: int, dy: int) {
        const next = keyboard.childAt(key.x + key.width / 2 + dx * (key.width / 2 + keyboard.columnSpacing + 1),
                                      key.y + key.height / 2 + dy * (key.height / 2 + keyboard.rowSpacing + 1));
        key = next ?? key;
    }

    function press() {
        const keys = keyboard.children.filter(child => child.isInteractive);
        keyboard.processKeyActivated(keys.indexOf(key));
    }

    width: 826; height: 438; visible: true; color: "#0d1117"
    Component.onCompleted: key = keyboard.children[0]

    Item {
        focus: true
        Keys.forwardTo: [remote, field] // What the first does not take, such as digits, goes to the field.
    }

    Item {
        id: remote
        Keys.onLeftPressed: window.move(-1, 0)
        Keys.onRightPressed: window.move(1, 0)
        Keys.onUpPressed: window.move(0, -1)
        Keys.onDownPressed: window.move(0, 1)
        Keys.onReturnPressed: window.press()
        Keys.onSelectPressed: window.press()
    }

    Kelui.LineEdit {
        id: field
        objectName: "field"
        x: 20; y: 20; width: 786; height: 54; leftPadding: 12; font.pixelSize: 26
        selected: true
        keyboardLayout: keyboard.layout
        placeholderText: "Search"
        backgroundColors: ({ normal: "#1c2533", selected: "white" })
        textColors: ({ normal: "white", selected: "black", wide: "white" })
        placeholderTextColors: ({ normal: "gray", selected: "gray" })
    }

    Kelui.Keyboard {
        id: keyboard
        objectName: "keyboard"
        x: 20; y: 94
        type: Kelui.KelGlobal.AlphanumericKeyboard
        keyBackgroundColor: "#1c2533"; keyTextColor: "white"
        symbolKeysFont.pixelSize: 24; controlKeysFont.pixelSize: 20; domainKeysFont.pixelSize: 20
        // Images of yours; the label of the space key is a translation of yours.
        backspaceIconPath: Qt.resolvedUrl("../../gallery/assets/icons/key-backspace.svg")
        leftIconPath: Qt.resolvedUrl("../../gallery/assets/icons/key-left.svg")
        rightIconPath: Qt.resolvedUrl("../../gallery/assets/icons/key-right.svg")
        capslockEnabledIconPath: Qt.resolvedUrl("../../gallery/assets/icons/key-capslock-on.svg")
        capslockDisabledIconPath: Qt.resolvedUrl("../../gallery/assets/icons/key-capslock-off.svg")
        onKeyTextActivated: text => field.addText(text)
        onKeyBackspaceActivated: field.delCurrentSymbol()
        onKeyLeftActivated: field.moveCursorToLeft()
        onKeyRightActivated: field.moveCursorToRight()
        // The layout was changed by a key: on with the one that leads back.
        onPreferablyFocusedLayoutChangeKeyIndexChanged:
            window.key = children.filter(child => child.isInteractive)[preferablyFocusedLayoutChangeKeyIndex]
    }

    Rectangle {
        x: keyboard.x + window.key?.x; y: keyboard.y + window.key?.y
        width: window.key?.width ?? 0; height: window.key?.height ?? 0
        color: "transparent"; border.color: "gold"; border.width: 3
    }
}
