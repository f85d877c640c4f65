// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*!
    An on-screen keyboard. It takes no focus and no key presses: the application chooses the current key,
    calls processKeyActivated() on OK, and hands what the signals say to a field such as LineEdit.
*/
GridLayout {
    id: _keyboard

    /*! Which keys are offered, a KelGlobal.KeyboardType. A change goes to the first layout of that type. */
    property int type: 0 // KelGlobal.NumericKeyboard
    /*! What is shown, a KelGlobal.KeyboardLayoutType; a numeric keyboard shows no other than NumericLayout. */
    property int layout: 3 // KelGlobal.NumericLayout

    /*! Corner radius of the keys in pixels; they draw square corners all the same. */
    property real keyRoundingRadius
    // The defaults that strike the eye ask for colours of the application's own.
    property color keyBackgroundColor: "red"
    property color keyTextColor: "green"
    /*! The font of text keys, and of the space key. */
    property font symbolKeysFont
    /*! The font of the keys that change the layout. */
    property font controlKeysFont
    /*! The font of the keys that type the end of an address. */
    property font domainKeysFont
    /*! Pixels. */
    property int keyHeight: 60
    /*! Pixels; the space key takes what its columns give. */
    property int keyWidth: 60

    /*! Image addresses of the keys that have an icon. */
    property string backspaceIconPath
    property string leftIconPath
    property string rightIconPath
    property string capslockEnabledIconPath
    property string capslockDisabledIconPath

    /*! Whether letters are typed in upper case. */
    property bool capslockEnabled
    /*! Columns that the space key takes; set anew with each layout. */
    property int spaceKeyColumnSpan: 5
    /*!
        The key to focus after a key has changed the layout: the one that leads back. The signal comes with
        every such change, also when the number is the same. -1 before the first.
    */
    property int preferablyFocusedLayoutChangeKeyIndex: -1

    /*! The keys of each layout, row by row; KelGlobal tells what the words mean. */
    property list<string> numericLayout: KELUIQCG.KelGlobal.numericLayout
    property list<string> russianLayout: KELUIQCG.KelGlobal.russianLayout
    property list<string> russianAndNumericLayout: KELUIQCG.KelGlobal.russianAndNumericLayout
    property list<string> englishLayout: KELUIQCG.KelGlobal.englishLayout
    property list<string> englishAndNumericLayout: KELUIQCG.KelGlobal.englishAndNumericLayout
    property list<string> symbolsLayout: KELUIQCG.KelGlobal.symbolsLayout
    property list<string> symbolsAndNumericLayout: KELUIQCG.KelGlobal.symbolsAndNumericLayout

    /*! Text to insert at the cursor. */
    signal keyTextActivated(text: string)
    /*! Delete before the cursor. */
    signal keyBackspaceActivated
    /*! Move the cursor. */
    signal keyLeftActivated
    signal keyRightActivated

    rows: 1
    columns: 11
    rowSpacing: 6
    columnSpacing: 6

    Component.onCompleted: _private.widenSpaceKeys()
    onSpaceKeyColumnSpanChanged: _private.widenSpaceKeys()
    onTypeChanged: processTypeChanged()
    onLayoutChanged: processLayoutChanged()
    // Lists come at creation, and the one shown may be replaced later.
    onNumericLayoutChanged: _private.show()
    onRussianLayoutChanged: _private.show()
    onRussianAndNumericLayoutChanged: _private.show()
    onEnglishLayoutChanged: _private.show()
    onEnglishAndNumericLayoutChanged: _private.show()
    onSymbolsLayoutChanged: _private.show()
    onSymbolsAndNumericLayoutChanged: _private.show()

    QtObject {
        id: _private

        readonly property string spaceKeyText: qsTranslate("KeyItem", "SPACE_KEY")
        /*! The descriptors of the keys shown. */
        property list<string> keys

        // What the keys shown are of: the last layout and type that go together.
        property int layout: 3 // KelGlobal.NumericLayout
        property bool isAlphanumeric

        function showLayout(rows: int, columns: int, spaceKeyColumnSpan: int) {
            layout = _keyboard.layout;
            isAlphanumeric = _keyboard.type === KELUIQCG.KelGlobal.AlphanumericKeyboard;
            _keyboard.rows = rows;
            _keyboard.columns = columns;
            _keyboard.spaceKeyColumnSpan = spaceKeyColumnSpan;
            show();
        }

        function show() {
            keys = keysOfLayout();
            _repeater.model = keys;
            widenSpaceKeys();
        }

        function keysOfLayout(): list<string> {
            switch (layout) {
            case KELUIQCG.KelGlobal.RussianLayout:
                return isAlphanumeric ? _keyboard.russianAndNumericLayout : _keyboard.russianLayout;
            case KELUIQCG.KelGlobal.EnglishLayout:
                return isAlphanumeric ? _keyboard.englishAndNumericLayout : _keyboard.englishLayout;
            case KELUIQCG.KelGlobal.SymbolsLayout:
                return isAlphanumeric ? _keyboard.symbolsAndNumericLayout : _keyboard.symbolsLayout;
            }
            return _keyboard.numericLayout;
        }

        // Only these have a place of their own in the grid: an attached object for each key would cost more.
        function widenSpaceKeys() {
            for (let i = keys.indexOf("space"); i >= 0; i = keys.indexOf("space", i + 1)) {
                const key = _repeater.itemAt(i) as KELUIQCG.Key;
                if (key) {
                    key.Layout.columnSpan = _keyboard.spaceKeyColumnSpan;
                    key.Layout.fillWidth = true;
                }
            }
        }

        function changeLayout(layout: int) {
            const previousLayout = _keyboard.layout;
            _keyboard.layout = layout;
            for (let i = 0; i < _repeater.count; ++i) {
                const key = _repeater.itemAt(i) as KELUIQCG.Key;
                if (key.type === KELUIQCG.KelGlobal.LayoutChangeKey && key.layout === previousLayout) {
                    if (_keyboard.preferablyFocusedLayoutChangeKeyIndex === i)
                        _keyboard.preferablyFocusedLayoutChangeKeyIndexChanged();
                    else
                        _keyboard.preferablyFocusedLayoutChangeKeyIndex = i;
                    return;
                }
            }
        }

        // Apart, because a function that calls into JavaScript's library is not compiled.
        function cased(text: string): string {
            return _keyboard.capslockEnabled ? text.toUpperCase() : text.toLowerCase();
        }

        // Deliberately works on what the keys show and ends their bindings: "A" becomes "a", whatever its
        // descriptor.
        function toggleCapslock() {
            _keyboard.capslockEnabled = !_keyboard.capslockEnabled;
            for (let i = 0; i < _repeater.count; ++i) {
                const key = _repeater.itemAt(i) as KELUIQCG.Key;
                if (key.type === KELUIQCG.KelGlobal.TextKey)
                    key.text = cased(key.text);
                else if (key.type === KELUIQCG.KelGlobal.CapslockKey)
                    key.imagePath = _keyboard.capslockEnabled ? _keyboard.capslockEnabledIconPath
                                                              : _keyboard.capslockDisabledIconPath;
            }
        }
    }

    Repeater {
        id: _repeater

        delegate: KELUIQCG.Key {
            required property string modelData

            font: type === KELUIQCG.KelGlobal.DomainKey ? _keyboard.domainKeysFont
                  : type === KELUIQCG.KelGlobal.LayoutChangeKey ? _keyboard.controlKeysFont
                  : _keyboard.symbolKeysFont
            textColor: _keyboard.keyTextColor
            // A grid remembers the first width and height that it sees; it follows implicit ones.
            implicitHeight: _keyboard.keyHeight
            implicitWidth: _keyboard.keyWidth
            roundingRadius: _keyboard.keyRoundingRadius
            backgroundColor: _keyboard.keyBackgroundColor
            imagePath: modelData.length === 1 ? "" : _keyboard.keyImagePath(modelData)
            text: modelData.length === 1 && !_keyboard.capslockEnabled ? modelData : _keyboard.keyText(modelData)
            layout: modelData.length === 1 ? -1 : _keyboard.keyLayout(modelData)
            type: modelData.length === 1 ? KELUIQCG.KelGlobal.TextKey : _keyboard.keyType(modelData)
        }
    }

    /*! Does what the key at an index is for; nothing where there is no key. */
    function processKeyActivated(index: int) {
        const key = _repeater.itemAt(index) as KELUIQCG.Key;
        if (!key)
            return;
        switch (key.type) {
        case KELUIQCG.KelGlobal.TextKey:
        case KELUIQCG.KelGlobal.DomainKey:
            keyTextActivated(key.text);
            break;
        case KELUIQCG.KelGlobal.SpaceKey:
            keyTextActivated(" ");
            break;
        case KELUIQCG.KelGlobal.BackspaceKey:
            keyBackspaceActivated();
            break;
        case KELUIQCG.KelGlobal.LeftKey:
            keyLeftActivated();
            break;
        case KELUIQCG.KelGlobal.RightKey:
            keyRightActivated();
            break;
        case KELUIQCG.KelGlobal.LayoutChangeKey:
            _private.changeLayout(key.layout);
            break;
        case KELUIQCG.KelGlobal.CapslockKey:
            _private.toggleCapslock();
            break;
        }
    }

    /*! Shows the first layout of the type. */
    function processTypeChanged() {
        switch (type) {
        case KELUIQCG.KelGlobal.NumericKeyboard:
            layout = KELUIQCG.KelGlobal.NumericLayout;
            break;
        case KELUIQCG.KelGlobal.AlphabeticKeyboard:
            layout = KELUIQCG.KelGlobal.RussianLayout;
            break;
        case KELUIQCG.KelGlobal.AlphanumericKeyboard:
            layout = KELUIQCG.KelGlobal.EnglishLayout;
            break;
        }
        // A layout that stays has other keys in another type.
        processLayoutChanged();
    }

    /*! Makes the keys of the layout; leaves those shown where the type has no such layout. */
    function processLayoutChanged() {
        const isAlphanumeric = type === KELUIQCG.KelGlobal.AlphanumericKeyboard;
        if (layout === KELUIQCG.KelGlobal.NumericLayout) {
            _private.showLayout(1, 11, spaceKeyColumnSpan);
        } else if (isAlphanumeric || type === KELUIQCG.KelGlobal.AlphabeticKeyboard) {
            const rowCount = isAlphanumeric ? 5 : 4;
            switch (layout) {
            case KELUIQCG.KelGlobal.RussianLayout:
                _private.showLayout(rowCount, 12, 6);
                break;
            case KELUIQCG.KelGlobal.EnglishLayout:
                _private.showLayout(rowCount, 11, 5);
                break;
            case KELUIQCG.KelGlobal.SymbolsLayout:
                if (isAlphanumeric)
                    _private.showLayout(rowCount, 11, 6);
                else
                    _private.showLayout(rowCount, 10, 5);
                break;
            }
        }
    }

    /*! What the key of a descriptor does, a KelGlobal.KeyType. */
    function keyType(key: string): int {
        switch (key) {
        case "backspace":
            return KELUIQCG.KelGlobal.BackspaceKey;
        case "capslock":
            return KELUIQCG.KelGlobal.CapslockKey;
        case "space":
            return KELUIQCG.KelGlobal.SpaceKey;
        case "left":
            return KELUIQCG.KelGlobal.LeftKey;
        case "right":
            return KELUIQCG.KelGlobal.RightKey;
        case "layout_rus":
        case "layout_eng":
        case "layout_symbols":
            return KELUIQCG.KelGlobal.LayoutChangeKey;
        case "domain_com":
        case "domain_ru":
            return KELUIQCG.KelGlobal.DomainKey;
        }
        return KELUIQCG.KelGlobal.TextKey;
    }

    /*! The layout that the key of a descriptor switches to, -1 for other keys. */
    function keyLayout(key: string): int {
        switch (key) {
        case "layout_rus":
            return KELUIQCG.KelGlobal.RussianLayout;
        case "layout_eng":
            return KELUIQCG.KelGlobal.EnglishLayout;
        case "layout_symbols":
            return KELUIQCG.KelGlobal.SymbolsLayout;
        }
        return -1;
    }

    /*! The label of a descriptor's key: what a text key types now. */
    function keyText(key: string): string {
        switch (key) {
        case "backspace":
        case "capslock":
        case "left":
        case "right":
            return "";
        case "space":
            return _private.spaceKeyText;
        case "layout_rus":
            return "Рус";
        case "layout_eng":
            return "Eng";
        case "layout_symbols":
            return type === KELUIQCG.KelGlobal.AlphanumericKeyboard ? "#+?" : "1#+";
        case "domain_com":
            return ".com";
        case "domain_ru":
            return ".ru";
        }
        return capslockEnabled ? _private.cased(key) : key;
    }

    /*! Image address of a descriptor's icon, empty for keys with a label. */
    function keyImagePath(key: string): string {
        switch (key) {
        case "backspace":
            return backspaceIconPath;
        case "capslock":
            return capslockEnabled ? capslockEnabledIconPath : capslockDisabledIconPath;
        case "left":
            return leftIconPath;
        case "right":
            return rightIconPath;
        }
        return "";
    }
}
