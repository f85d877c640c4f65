// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

GalleryPage {
    id: _page

    /*! The pages that the search field finds by their names. */
    property list<PageEntry> entries
    readonly property list<PageEntry> results: {
        const found = [];
        const sought = _search.text.toLowerCase();
        for (const entry of entries) {
            const isFound = entry.name.toLowerCase().includes(sought) || entry.title.toLowerCase().includes(sought);
            if (sought && isFound && found.length < 5)
                found.push(entry);
        }
        return found;
    }
    readonly property bool hasResults: results.length > 0

    /*! The field that the keyboard is for. */
    property FormField currentField: _search
    /*! The key in focus, null while the fields have it. */
    readonly property Item focusedKey: keyTarget ? _navigation.currentKey : null

    caption: qsTr("LineEdit and Keyboard: each field brings the keyboard that suits it")
    shots: [
        Shot {
            name: "Search"
        },
        Shot {
            name: "Search-focused"

            onTaken: _page.focusedStop = _search
        },
        Shot {
            name: "Search-english"

            onTaken: _page.type(_search, ["Eng", "k", "e", "l", "u", "i"])
        },
        Shot {
            name: "Search-results"

            onTaken: _page.type(_search, ["Eng", "b", "u", "t"])
        },
        Shot {
            name: "Search-symbols"

            onTaken: _page.type(_search, ["#+?", "5", "%"])
        },
        Shot {
            name: "Search-pending"
            digits: "7"

            onTaken: _page.type(_search, ["к", "а", "н", "а", "л"])
        },
        Shot {
            name: "Search-alphabetic"

            onTaken: _page.type(_name, ["а", "н", "н", "а"])
        },
        Shot {
            name: "Search-alphabetic-symbols"

            onTaken: _page.type(_name, ["1#+"])
        },
        Shot {
            name: "Search-capslock"

            onTaken: {
                _page.type(_name, []);
                _page.pressKey(key => key.type === Generic.KelGlobal.CapslockKey);
                _page.type(_name, ["Ж", "Ю", "Л", "Ь"]);
            }
        },
        Shot {
            name: "Search-numeric"

            onTaken: _page.type(_phone, ["9", "1", "2", "3", "4"])
        },
        Shot {
            name: "Search-password"

            onTaken: _page.type(_password, ["k", "e", "y", "4", "2"])
        },
        Shot {
            name: "Search-error"

            onTaken: {
                _page.type(_code, ["k", "e", "l"]);
                _page.leaveField();
                _page.type(_email, ["a", "n", "n", "a", "@", "k", "e", "l", "u", "i", ".ru"]);
            }
        },
        Shot {
            name: "Search-ru"
            language: "ru"

            onTaken: _page.type(_search, ["к", "и", "н", "о"])
        }
    ]

    onFocusedStopChanged: {
        const field = focusedStop as FormField;
        if (field)
            currentField = field;
    }
    onCurrentFieldChanged: showKeyboard()
    onActivated: editField()
    Component.onCompleted: showKeyboard()

    function showKeyboard() {
        // The type brings a layout of its own first.
        const layout = currentField.keyboardLayout;
        _keyboard.type = currentField.keyboardType;
        _keyboard.layout = layout;
        currentField.keyboardCapslockEnabled = _keyboard.capslockEnabled;
        _navigation.currentKey = null;
    }

    function editField() {
        focusedStop = currentField;
        keyTarget = currentField;
        if (!_navigation.currentKey)
            _navigation.focusKey(0);
    }

    function leaveField() {
        keyTarget = null;
    }

    function handleKey(key: int, text: string): bool {
        return keyTarget ? handleKeyboardKey(key) : handleFieldKey(key);
    }

    function handleFieldKey(key: int): bool {
        switch (key) {
        case Qt.Key_Down:
            if (!moveFocus(0, 1))
                editField();
            return true;
        case Qt.Key_Return:
            if (focusedStop !== currentField)
                return handleStopKey(key);
            editField();
            return true;
        }
        return handleStopKey(key);
    }

    function handleKeyboardKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
            _navigation.moveAlongRow(-1);
            return true;
        case Qt.Key_Right:
            _navigation.moveAlongRow(1);
            return true;
        case Qt.Key_Up:
            if (!_navigation.moveAcrossRows(-1))
                leaveField();
            return true;
        case Qt.Key_Down:
            _navigation.moveAcrossRows(1);
            return true;
        case Qt.Key_Return:
            _keyboard.processKeyActivated(_navigation.currentIndex());
            return true;
        case Qt.Key_Back:
            leaveField();
            return true;
        }
        return false;
    }

    /*! A click on the keyboard is for the field of which it is. */
    function pressKeyAt(position: point) {
        const key = _keyboard.childAt(position.x, position.y) as Generic.Key;
        if (!key?.isInteractive)
            return;
        editField();
        _navigation.focusKey(_navigation.keys().indexOf(key));
        _keyboard.processKeyActivated(_navigation.currentIndex());
    }

    /*! For pictures: presses the first key that is sought. */
    function pressKey(isSought: var) {
        _navigation.focusKey(_navigation.keys().findIndex(isSought));
        _keyboard.processKeyActivated(_navigation.currentIndex());
    }

    /*! For pictures: edits a field by the keys with these labels. */
    function type(field: FormField, labels: list<string>) {
        focusedStop = field;
        editField();
        for (const label of labels)
            pressKey(key => key.text === label);
    }

    Grid {
        y: 28
        columns: 3
        columnSpacing: 12
        rowSpacing: 42

        FormField {
            id: _search

            page: _page
            caption: qsTr("Search")
            placeholderText: qsTr("Film, channel, person")
            keyboardLayout: Generic.KelGlobal.RussianLayout
        }

        FormField {
            id: _name

            page: _page
            visible: !_page.hasResults
            caption: qsTr("Name")
            placeholderText: qsTr("As others see it")
            keyboardType: Generic.KelGlobal.AlphabeticKeyboard
            keyboardLayout: Generic.KelGlobal.RussianLayout
        }

        FormField {
            id: _phone

            readonly property int digitCount: text.replace(/\D/g, "").length

            page: _page
            visible: !_page.hasResults
            caption: qsTr("Phone")
            errorCaption: qsTr("Phone: digits are missing")
            inputMask: "+7 (999) 999-99-99;_"
            keyboardType: Generic.KelGlobal.NumericKeyboard
            isAcceptable: digitCount === 1 || digitCount === 11
        }

        FormField {
            id: _password

            page: _page
            visible: !_page.hasResults
            caption: qsTr("Password")
            placeholderText: qsTr("Letters and digits")
            echoMode: TextInput.Password
            keyboardLayout: Generic.KelGlobal.EnglishLayout
        }

        FormField {
            id: _email

            page: _page
            visible: !_page.hasResults
            caption: qsTr("E-mail")
            placeholderText: qsTr("name@example.com")
            errorCaption: qsTr("E-mail: not an address")
            keyboardLayout: Generic.KelGlobal.EnglishLayout
            isAcceptable: /^$|^\S+@\S+\.\S+$/.test(text)
        }

        FormField {
            id: _code

            page: _page
            visible: !_page.hasResults
            caption: qsTr("Promo code")
            placeholderText: qsTr("8 characters")
            errorCaption: qsTr("Promo code: 8 characters")
            keyboardLayout: Generic.KelGlobal.EnglishLayout
            isAcceptable: text.length === 0 || text.length === 8
        }

        // In the places of the other fields. Stops stay, so that there are always as many.
        Repeater {
            model: 5

            StateButton {
                required property int index
                readonly property PageEntry entry: _page.results[index] ?? null

                page: _page
                visible: entry !== null
                fixedSize: Qt.size(272, 54)
                titleText: entry?.title ?? ""

                onClicked: _page.pageRequested(entry.name)
            }
        }
    }

    Generic.Rectangle {
        y: 192
        width: 840
        height: _keyboard.height + 28
        color: Theme.surface

        Generic.Keyboard {
            id: _keyboard

            anchors.horizontalCenter: parent.horizontalCenter
            y: 14

            TapHandler {
                onTapped: point => _page.pressKeyAt(point.position)
            }

            // As large as the panel lets each layout be.
            keyWidth: (812 - (columns - 1) * columnSpacing) / columns
            keyHeight: Math.min(64, (264 - (rows - 1) * rowSpacing) / rows)
            keyBackgroundColor: Theme.raised
            keyTextColor: Theme.text
            symbolKeysFont: Theme.key
            controlKeysFont: Theme.smallKey
            domainKeysFont: Theme.smallKey
            backspaceIconPath: Theme.icon("key-backspace")
            leftIconPath: Theme.icon("key-left")
            rightIconPath: Theme.icon("key-right")
            capslockEnabledIconPath: Theme.icon("key-capslock-on")
            capslockDisabledIconPath: Theme.icon("key-capslock-off")

            onKeyTextActivated: text => _page.currentField.addText(text)
            onKeyBackspaceActivated: _page.currentField.delCurrentSymbol()
            onKeyLeftActivated: _page.currentField.moveCursorToLeft()
            onKeyRightActivated: _page.currentField.moveCursorToRight()
            onLayoutChanged: _page.currentField.keyboardLayout = layout
            onCapslockEnabledChanged: _page.currentField.keyboardCapslockEnabled = capslockEnabled
            onPreferablyFocusedLayoutChangeKeyIndexChanged:
                _navigation.focusKey(preferablyFocusedLayoutChangeKeyIndex)
        }

        Item {
            x: _keyboard.x + (_page.focusedKey?.x ?? 0)
            y: _keyboard.y + (_page.focusedKey?.y ?? 0)
            width: _page.focusedKey?.width ?? 0
            height: _page.focusedKey?.height ?? 0

            FocusFrame {
                focused: _page.focusedKey !== null
            }
        }

        Binding {
            target: _page.focusedKey
            property: "backgroundColor"
            value: Theme.outline
        }
    }

    KeyboardNavigation {
        id: _navigation

        keyboard: _keyboard
    }
}
