// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Rectangle {
    id: _scene

    // Files of their own for the icons; the keyboard shows whatever picture it is given.
    readonly property string icon: Qt.resolvedUrl("data/icon.png")
    readonly property string otherIcon: Qt.resolvedUrl("data/pixels.png")
    // createObject() hands over a list of this type, but makes an empty one of an array.
    readonly property list<string> ownKeys: ["own", "keys"]

    width: 900
    height: 400
    color: "#0000ff"

    Component {
        id: _component

        KELUIQCG.Keyboard {
            backspaceIconPath: _scene.icon + "#backspace"
            leftIconPath: _scene.icon + "#left"
            rightIconPath: _scene.icon + "#right"
            capslockEnabledIconPath: _scene.icon + "#upper"
            capslockDisabledIconPath: _scene.icon + "#lower"
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.Keyboard {}
    }

    Component {
        id: _typeFirstComponent

        KELUIQCG.Keyboard {
            type: KELUIQCG.KelGlobal.AlphabeticKeyboard
            russianLayout: ["own", "keys"]
        }
    }

    Component {
        id: _typeLastComponent

        KELUIQCG.Keyboard {
            russianLayout: ["own", "keys"]
            type: KELUIQCG.KelGlobal.AlphabeticKeyboard
        }
    }

    Component {
        id: _boundComponent

        KELUIQCG.Keyboard {
            property list<string> keys: ["own", "keys"]
            property bool isAlphabetic: false

            type: isAlphabetic ? KELUIQCG.KelGlobal.AlphabeticKeyboard : KELUIQCG.KelGlobal.NumericKeyboard
            numericLayout: keys
            russianLayout: keys
        }
    }

    Component {
        id: _spyComponent

        SignalSpy {}
    }

    TestCase {
        id: _test

        readonly property int numeric: KELUIQCG.KelGlobal.NumericKeyboard
        readonly property int alphabetic: KELUIQCG.KelGlobal.AlphabeticKeyboard
        readonly property int alphanumeric: KELUIQCG.KelGlobal.AlphanumericKeyboard
        readonly property int russian: KELUIQCG.KelGlobal.RussianLayout
        readonly property int english: KELUIQCG.KelGlobal.EnglishLayout
        readonly property int symbols: KELUIQCG.KelGlobal.SymbolsLayout
        readonly property int digits: KELUIQCG.KelGlobal.NumericLayout

        // Every screen of keys, row by row: a letter for a text key, the label of others, the kind of those without.
        readonly property var screens: {
            const russianRows = ["й ц у к е н г ш щ з х ъ",
                                 "ф ы в а п р о л д ж э ё",
                                 "я ч с м и т ь б ю - _ ?"];
            const englishRows = ["q w e r t y u i o p ?",
                                 "a s d f g h j k l - _",
                                 "z x c v b n m . , .com .ru"];
            return [
                { tag: "numeric", type: numeric, layout: digits, list: "numericLayout", columns: 11, span: 5,
                  rows: ["1 2 3 4 5 6 7 8 9 0 backspace"] },
                { tag: "alphabetic Russian", type: alphabetic, layout: russian, list: "russianLayout",
                  columns: 12, span: 6,
                  rows: [...russianRows, "capslock 1#+ Eng SPACE_KEY left right backspace"] },
                { tag: "alphabetic English", type: alphabetic, layout: english, list: "englishLayout",
                  columns: 11, span: 5,
                  rows: [...englishRows, "capslock 1#+ Рус SPACE_KEY left right backspace"] },
                { tag: "alphabetic symbols", type: alphabetic, layout: symbols, list: "symbolsLayout",
                  columns: 10, span: 5,
                  rows: ["1 2 3 4 5 6 7 8 9 0",
                         ". , ? ! + - * / = @",
                         ": ; — _ % $ & № ^ #",
                         "Рус Eng SPACE_KEY left right backspace"] },
                { tag: "alphanumeric Russian", type: alphanumeric, layout: russian, list: "russianAndNumericLayout",
                  columns: 12, span: 6,
                  rows: ["1 2 3 4 5 6 7 8 9 0 . ,", ...russianRows,
                         "capslock #+? Eng SPACE_KEY left right backspace"] },
                { tag: "alphanumeric English", type: alphanumeric, layout: english, list: "englishAndNumericLayout",
                  columns: 11, span: 5,
                  rows: ["1 2 3 4 5 6 7 8 9 0 @", ...englishRows,
                         "capslock #+? Рус SPACE_KEY left right backspace"] },
                { tag: "alphanumeric symbols", type: alphanumeric, layout: symbols,
                  list: "symbolsAndNumericLayout", columns: 11, span: 6,
                  rows: ["1 2 3 4 5 6 7 8 9 0 @",
                         ". , ? ! + - * / = \\ '",
                         ": ; — _ % $ & № ^ # |",
                         "~ ` ( ) { } < > [ ] \"",
                         "Рус Eng SPACE_KEY left right backspace"] },
            ];
        }
        readonly property var extremes: [-2147483648, -1, 0, 1, 2, 3, 4, 2147483647]

        name: "Keyboard"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function create(properties, component) {
            const keyboard = createTemporaryObject(component ?? _component, _scene, properties ?? {});
            verify(keyboard);
            return keyboard;
        }

        // A keyboard of a type that shows a layout.
        function createAt(type, layout) {
            const keyboard = create();
            keyboard.type = type;
            keyboard.layout = layout;
            return keyboard;
        }

        // A numeric keyboard with keys of the test's own.
        function createWith(keys) {
            const keyboard = create();
            keyboard.numericLayout = keys;
            return keyboard;
        }

        function keysOf(keyboard) {
            return Array.from(keyboard.children).filter(child => child.isInteractive);
        }

        function textsOf(keyboard) {
            return keysOf(keyboard).map(key => key.text);
        }

        function labelOf(key) {
            switch (key.type) {
            case KELUIQCG.KelGlobal.BackspaceKey:
                return "backspace";
            case KELUIQCG.KelGlobal.CapslockKey:
                return "capslock";
            case KELUIQCG.KelGlobal.LeftKey:
                return "left";
            case KELUIQCG.KelGlobal.RightKey:
                return "right";
            }
            return key.text;
        }

        function indexOf(keyboard, label) {
            const index = keysOf(keyboard).findIndex(key => labelOf(key) === label);
            verify(index >= 0, label);
            return index;
        }

        function activate(keyboard, label) {
            keyboard.processKeyActivated(indexOf(keyboard, label));
        }

        function compareScreen(keyboard, screen) {
            compare(keysOf(keyboard).map(labelOf).join(" "), screen.rows.join(" "));
            compare(keyboard.rows, screen.rows.length);
            compare(keyboard.columns, screen.columns);
        }

        function settle(keyboard) {
            tryVerify(() => !isPolishScheduled(keyboard));
        }

        // All that the keyboard says from now on, in order.
        function record(keyboard) {
            const events = [];
            keyboard.keyTextActivated.connect(text => events.push("text " + text));
            keyboard.keyBackspaceActivated.connect(() => events.push("backspace"));
            keyboard.keyLeftActivated.connect(() => events.push("left"));
            keyboard.keyRightActivated.connect(() => events.push("right"));
            keyboard.typeChanged.connect(() => events.push("type " + keyboard.type));
            keyboard.layoutChanged.connect(() => events.push("layout " + keyboard.layout));
            keyboard.capslockEnabledChanged.connect(() => events.push("capslock " + keyboard.capslockEnabled));
            keyboard.preferablyFocusedLayoutChangeKeyIndexChanged.connect(
                () => events.push("hint " + keyboard.preferablyFocusedLayoutChangeKeyIndex));
            return events;
        }

        function stateOf(keyboard) {
            return [keyboard.type, keyboard.layout, keyboard.rows, keyboard.columns, keyboard.spaceKeyColumnSpan,
                    keyboard.capslockEnabled, keyboard.preferablyFocusedLayoutChangeKeyIndex,
                    keysOf(keyboard).map(key => [key.type, key.layout, key.text, key.imagePath].join())];
        }

        function test_defaults_data() {
            return [
                { tag: "type", value: 0 },
                { tag: "layout", value: 3 },
                { tag: "keyRoundingRadius", value: 0 },
                { tag: "keyBackgroundColor", value: "#ff0000" },
                { tag: "keyTextColor", value: "#008000" },
                { tag: "symbolKeysFont", value: Application.font },
                { tag: "controlKeysFont", value: Application.font },
                { tag: "domainKeysFont", value: Application.font },
                { tag: "keyHeight", value: 60 },
                { tag: "keyWidth", value: 60 },
                { tag: "backspaceIconPath", value: "" },
                { tag: "leftIconPath", value: "" },
                { tag: "rightIconPath", value: "" },
                { tag: "capslockEnabledIconPath", value: "" },
                { tag: "capslockDisabledIconPath", value: "" },
                { tag: "capslockEnabled", value: false },
                { tag: "spaceKeyColumnSpan", value: 5 },
                { tag: "preferablyFocusedLayoutChangeKeyIndex", value: -1 },
                { tag: "rows", value: 1 },
                { tag: "columns", value: 11 },
                { tag: "rowSpacing", value: 6 },
                { tag: "columnSpacing", value: 6 },
                { tag: "flow", value: GridLayout.LeftToRight },
                { tag: "activeFocus", value: false },
                { tag: "activeFocusOnTab", value: false },
            ];
        }

        function test_defaults(data) {
            const keyboard = create({}, _bareComponent);
            compare(keyboard[data.tag], data.value);
        }

        function test_isAGrid() {
            verify(create({}, _bareComponent) instanceof GridLayout);
        }

        function test_listsAreThoseOfKelGlobal_data() {
            return screens;
        }

        function test_listsAreThoseOfKelGlobal(data) {
            const keys = Array.from(KELUIQCG.KelGlobal[data.list]);
            verify(keys.length > 10);
            compare(Array.from(create({}, _bareComponent)[data.list]), keys);
        }

        function test_changesAreSignalled_data() {
            const names = ["keyRoundingRadius", "keyHeight", "keyWidth", "spaceKeyColumnSpan",
                           "preferablyFocusedLayoutChangeKeyIndex"];
            const paths = ["backspaceIconPath", "leftIconPath", "rightIconPath", "capslockEnabledIconPath",
                           "capslockDisabledIconPath"];
            return [...names.map(name => ({ tag: name, value: 7 })),
                    ...paths.map(name => ({ tag: name, value: _scene.otherIcon })),
                    { tag: "keyBackgroundColor", value: "#123456" }, { tag: "keyTextColor", value: "#654321" },
                    { tag: "capslockEnabled", value: true }];
        }

        function test_changesAreSignalled(data) {
            const keyboard = create();
            const spy = createTemporaryObject(_spyComponent, _test,
                                              { target: keyboard, signalName: data.tag + "Changed" });
            for (let times = 0; times < 2; ++times)
                keyboard[data.tag] = data.value;
            compare(spy.count, 1);
            compare(keyboard[data.tag], data.value);
        }

        function test_descriptors_data() {
            const { TextKey, SpaceKey, DomainKey, BackspaceKey, CapslockKey, LayoutChangeKey, LeftKey,
                    RightKey } = KELUIQCG.KelGlobal;
            const words = [
                { key: "backspace", type: BackspaceKey, text: "", image: "#backspace" },
                { key: "capslock", type: CapslockKey, text: "", image: "#lower", upperImage: "#upper" },
                { key: "domain_ru", type: DomainKey, text: ".ru" },
                { key: "domain_com", type: DomainKey, text: ".com" },
                { key: "layout_rus", type: LayoutChangeKey, layout: russian, text: "Рус" },
                { key: "layout_eng", type: LayoutChangeKey, layout: english, text: "Eng" },
                { key: "layout_symbols", type: LayoutChangeKey, layout: symbols, text: "1#+",
                  alphanumericText: "#+?" },
                { key: "space", type: SpaceKey, text: "SPACE_KEY" },
                { key: "left", type: LeftKey, text: "", image: "#left" },
                { key: "right", type: RightKey, text: "", image: "#right" },
            ];
            const texts = ["a", "A", "ё", "Ъ", "1", "№", "—", "?", "'", "\"", "\\", " ", "", "two letters", "Backspace",
                           "LEFT", "Space", "space ", "layout_", "layout_numeric", "domain_net", "constructor",
                           "toString", "__proto__", "hasOwnProperty", "prototype", "undefined", "null", "0", "NaN",
                           "😀"];
            for (const text of texts)
                words.push({ key: text, type: TextKey, text, upperText: text.toUpperCase() });
            const rows = [];
            for (const word of words) {
                for (const keyboardType of [numeric, alphabetic, alphanumeric, 3]) {
                    for (const capslock of [false, true]) {
                        let text = capslock ? word.upperText ?? word.text : word.text;
                        if (keyboardType === alphanumeric)
                            text = word.alphanumericText ?? text;
                        const image = capslock ? word.upperImage ?? word.image : word.image;
                        rows.push({ tag: [JSON.stringify(word.key), keyboardType, capslock].join(", "),
                                    keyboardType, capslock, key: word.key, type: word.type,
                                    layout: word.layout ?? -1, text, imagePath: image ? _scene.icon + image : "" });
                    }
                }
            }
            return rows;
        }

        function test_descriptors(data) {
            const keyboard = create({ type: data.keyboardType, capslockEnabled: data.capslock });
            const tell = () => [keyboard.keyType(data.key), keyboard.keyLayout(data.key), keyboard.keyText(data.key),
                                keyboard.keyImagePath(data.key)];
            compare(tell(), [data.type, data.layout, data.text, data.imagePath]);
            // A key that is shown says the same.
            keyboard.layout = digits;
            keyboard.numericLayout = [data.key];
            const keys = keysOf(keyboard);
            compare(keys.length, 1);
            const [key] = keys;
            compare([key.type, key.layout, key.text, key.imagePath],
                    [data.type, data.layout, data.text, data.imagePath]);
            // The other way round as well, while the key is there.
            keyboard.capslockEnabled = !data.capslock;
            compare([key.type, key.layout, key.text, key.imagePath], tell());
        }

        function test_upperCase_data() {
            return [
                { tag: "я", text: "Я" },
                { tag: "ё", text: "Ё" },
                { tag: "ъ", text: "Ъ" },
                { tag: "q", text: "Q" },
                { tag: "-", text: "-" },
                { tag: "5", text: "5" },
            ];
        }

        function test_upperCase(data) {
            const keyboard = create();
            compare(keyboard.keyText(data.tag), data.tag);
            keyboard.capslockEnabled = true;
            compare(keyboard.keyText(data.tag), data.text);
        }

        function test_iconsMayBeEmpty() {
            const keyboard = create({}, _bareComponent);
            for (const type of [numeric, alphabetic, alphanumeric]) {
                keyboard.type = type;
                verify(keysOf(keyboard).every(key => key.imagePath === ""));
            }
        }

        function test_screens_data() {
            return screens;
        }

        function test_screens(data) {
            const keyboard = createAt(data.type, data.layout);
            compareScreen(keyboard, data);
            compare(keyboard.spaceKeyColumnSpan, data.span);
            verify(keysOf(keyboard).every(key => key instanceof KELUIQCG.Key));
            compare(keysOf(keyboard).length, KELUIQCG.KelGlobal[data.list].length);
            // Besides the keys, the grid has the repeater alone.
            compare(keyboard.children.length, keysOf(keyboard).length + 1);
        }

        function test_eachKeyIsOfItsKind_data() {
            return screens;
        }

        function test_eachKeyIsOfItsKind(data) {
            const keyboard = createAt(data.type, data.layout);
            const keys = keysOf(keyboard);
            Array.from(KELUIQCG.KelGlobal[data.list]).forEach((descriptor, index) => {
                compare(keys[index].type, keyboard.keyType(descriptor), descriptor);
                compare(keys[index].layout, keyboard.keyLayout(descriptor), descriptor);
                compare(keys[index].imagePath, keyboard.keyImagePath(descriptor), descriptor);
                compare(keys[index].isInteractive, true);
            });
        }

        function test_placement_data() {
            const rows = [];
            for (const screen of screens) {
                for (const [width, height, columnSpacing, rowSpacing] of [[60, 60, 6, 6], [41, 33, 6, 6],
                                                                         [50, 20, 0, 9]]) {
                    const size = { width, height, columnSpacing, rowSpacing };
                    rows.push(Object.assign(size, screen, { tag: [screen.tag, width, height].join(", ") }));
                }
            }
            return rows;
        }

        function test_placement(data) {
            const keyboard = createAt(data.type, data.layout);
            keyboard.keyWidth = data.width;
            keyboard.keyHeight = data.height;
            keyboard.columnSpacing = data.columnSpacing;
            keyboard.rowSpacing = data.rowSpacing;
            comparePlacement(keyboard, data);
        }

        function comparePlacement(keyboard, screen) {
            settle(keyboard);
            const columnWidth = keyboard.keyWidth + keyboard.columnSpacing;
            const rowHeight = keyboard.keyHeight + keyboard.rowSpacing;
            const width = screen.columns * columnWidth - keyboard.columnSpacing;
            const height = screen.rows.length * rowHeight - keyboard.rowSpacing;
            compare([keyboard.implicitWidth, keyboard.implicitHeight], [width, height]);
            compare([keyboard.width, keyboard.height], [width, height]);
            const keys = keysOf(keyboard);
            let index = 0;
            screen.rows.forEach((row, line) => {
                let column = 0;
                for (const label of row.split(" ")) {
                    const span = label === "SPACE_KEY" ? screen.span : 1;
                    const key = keys[index++];
                    compare(labelOf(key), label);
                    compare([key.x, key.y, key.width, key.height],
                            [column * columnWidth, line * rowHeight, span * columnWidth - keyboard.columnSpacing,
                             keyboard.keyHeight], label);
                    compare(key.Layout.columnSpan, span, label);
                    compare(key.Layout.rowSpan, 1, label);
                    compare(key.Layout.fillWidth, label === "SPACE_KEY", label);
                    compare(key.Layout.fillHeight, false, label);
                    column += span;
                }
                compare(column, screen.columns, row);
            });
            compare(index, keys.length);
        }

        function test_placementFollowsEachChange() {
            const keyboard = create();
            for (const screen of [...screens, ...screens.slice().reverse()]) {
                keyboard.type = screen.type;
                keyboard.layout = screen.layout;
                comparePlacement(keyboard, screen);
            }
        }

        function test_placementOfWhatIsDeclared_data() {
            return [
                { tag: "numeric", type: numeric, layout: digits },
                { tag: "alphabetic", type: alphabetic, layout: russian },
                { tag: "alphanumeric", type: alphanumeric, layout: english },
            ];
        }

        // The type comes before there are keys.
        function test_placementOfWhatIsDeclared(data) {
            const isShown = screen => screen.type === data.type && screen.layout === data.layout;
            comparePlacement(create({ type: data.type }), screens.find(isShown));
        }

        function test_keySizeIsFollowed_data() {
            return screens;
        }

        function test_keySizeIsFollowed(data) {
            const keyboard = createAt(data.type, data.layout);
            comparePlacement(keyboard, data);
            const before = keysOf(keyboard);
            for (const [width, height] of [[80, 60], [80, 30], [20, 35], [0, 35], [60, 60]]) {
                keyboard.keyWidth = width;
                keyboard.keyHeight = height;
                comparePlacement(keyboard, data);
            }
            verify(keysOf(keyboard).every((key, index) => key === before[index]));
        }

        function test_keySizeIsThatOfLaterKeysToo() {
            const keyboard = create({ keyWidth: 33, keyHeight: 22 });
            for (const screen of screens) {
                keyboard.type = screen.type;
                keyboard.layout = screen.layout;
                comparePlacement(keyboard, screen);
            }
        }

        function test_spaceKeyColumnSpanIsFollowed() {
            const keyboard = createAt(alphabetic, english);
            const keys = keysOf(keyboard);
            const space = keys[indexOf(keyboard, "SPACE_KEY")];
            keyboard.spaceKeyColumnSpan = 3;
            settle(keyboard);
            compare(space.Layout.columnSpan, 3);
            compare(space.width, 3 * 66 - 6);
            compare(keys[indexOf(keyboard, "left")].x, 6 * 66);
            keyboard.layout = symbols;
            compare(keyboard.spaceKeyColumnSpan, 5);
        }

        function test_pixels() {
            const keyboard = createAt(alphabetic, symbols);
            keyboard.keyBackgroundColor = "#101010";
            keyboard.keyTextColor = "#ffffff";
            keyboard.keyRoundingRadius = 20;
            comparePlacement(keyboard, screens.find(screen => screen.tag === "alphabetic symbols"));
            const picture = grabImage(keyboard);
            compare([picture.width, picture.height], [654, 258]);
            // Along the upper edge of the last row: two keys, the space key, three keys, with gaps between them.
            const space = 2 * 66 + 5 * 66 - 6;
            const isGap = x => x < 2 * 66 || x >= space ? x % 66 >= 60 : false;
            for (let x = 0; x < 654; ++x)
                compare(picture.pixel(x, 3 * 66), isGap(x) ? "#0000ff" : "#101010", x);
            for (let y = 0; y < 258; ++y)
                compare(picture.pixel(0, y), y % 66 >= 60 ? "#0000ff" : "#101010", y);
            // The icon of the key for left, and nothing where a label would be wider.
            compare(picture.pixel(7 * 66 + 30, 3 * 66 + 30), "#ffffff");
            compare(picture.pixel(7 * 66 + 17, 3 * 66 + 30), "#101010");
            compare(picture.pixel(7 * 66 + 18, 3 * 66 + 22), "#ffffff");
        }

        function test_looksAreFollowed_data() {
            return [
                { tag: "keyBackgroundColor", key: "backgroundColor", before: "#ff0000", after: "#123456" },
                { tag: "keyTextColor", key: "textColor", before: "#008000", after: "#654321" },
                { tag: "keyRoundingRadius", key: "roundingRadius", before: 0, after: 12.5 },
            ];
        }

        function test_looksAreFollowed(data) {
            const keyboard = createAt(alphanumeric, english);
            for (const key of keysOf(keyboard))
                compare(key[data.key], data.before);
            keyboard[data.tag] = data.after;
            for (const key of keysOf(keyboard))
                compare(key[data.key], data.after);
            keyboard.layout = russian;
            for (const key of keysOf(keyboard))
                compare(key[data.key], data.after);
        }

        function test_fonts_data() {
            return screens;
        }

        function test_fonts(data) {
            const keyboard = createAt(data.type, data.layout);
            for (const start of [11, 21]) {
                keyboard.symbolKeysFont = Qt.font({ family: "DejaVu Sans", pixelSize: start });
                keyboard.controlKeysFont = Qt.font({ family: "DejaVu Sans", pixelSize: start + 1 });
                keyboard.domainKeysFont = Qt.font({ family: "DejaVu Sans", pixelSize: start + 2 });
                for (const key of keysOf(keyboard)) {
                    const size = key.type === KELUIQCG.KelGlobal.DomainKey ? start + 2
                               : key.type === KELUIQCG.KelGlobal.LayoutChangeKey ? start + 1 : start;
                    compare(key.font.pixelSize, size, labelOf(key));
                    compare(key.font.family, "DejaVu Sans");
                    compare(key.contentItem.children[0].font.pixelSize, size);
                }
            }
        }

        function test_iconsAreFollowed_data() {
            return [
                { tag: "backspaceIconPath", label: "backspace", capslock: false },
                { tag: "leftIconPath", label: "left", capslock: false },
                { tag: "rightIconPath", label: "right", capslock: false },
                { tag: "capslockDisabledIconPath", label: "capslock", capslock: false },
                { tag: "capslockEnabledIconPath", label: "capslock", capslock: true },
            ];
        }

        function test_iconsAreFollowed(data) {
            const keyboard = createAt(alphabetic, russian);
            keyboard.capslockEnabled = data.capslock;
            const before = keysOf(keyboard).map(key => key.imagePath);
            const index = indexOf(keyboard, data.label);
            compare(before[index], keyboard[data.tag]);
            before[index] = keyboard[data.tag] = _scene.otherIcon;
            compare(keysOf(keyboard).map(key => key.imagePath), before);
        }

        function test_ownLists_data() {
            return screens;
        }

        function test_ownLists(data) {
            const keyboard = createAt(data.type, data.layout);
            const lists = screens.map(screen => screen.list);
            for (const keys of [["own", "keys", "backspace"], ["other"], [], ["again", "space"]]) {
                keyboard[data.list] = keys;
                compare(keysOf(keyboard).length, keys.length);
                compare(textsOf(keyboard), keys.map(key => keyboard.keyText(key)));
                compare([keyboard.rows, keyboard.columns], [data.rows.length, data.columns]);
            }
            // The lists of other screens are not shown.
            for (const list of lists.filter(list => list !== data.list))
                keyboard[list] = ["not", "seen"];
            compare(textsOf(keyboard), ["again", "SPACE_KEY"]);
        }

        function test_ownListsAtCreation_data() {
            return screens;
        }

        function test_ownListsAtCreation(data) {
            const keyboard = create({ type: data.type, [data.list]: _scene.ownKeys });
            keyboard.layout = data.layout;
            compare(textsOf(keyboard), ["own", "keys"]);
            compare([keyboard.rows, keyboard.columns, keyboard.spaceKeyColumnSpan],
                    [data.rows.length, data.columns, data.span]);
        }

        function test_ownListsInADeclaration_data() {
            return [
                { tag: "type first", component: _typeFirstComponent },
                { tag: "type last", component: _typeLastComponent },
            ];
        }

        function test_ownListsInADeclaration(data) {
            const keyboard = create({}, data.component);
            compare(keyboard.layout, russian);
            compare(textsOf(keyboard), ["own", "keys"]);
            compare([keyboard.rows, keyboard.columns, keyboard.spaceKeyColumnSpan], [4, 12, 6]);
        }

        function test_boundListsAreFollowed() {
            const keyboard = create({}, _boundComponent);
            compare(textsOf(keyboard), ["own", "keys"]);
            keyboard.keys = ["a", "b", "c"];
            compare(textsOf(keyboard), ["a", "b", "c"]);
            keyboard.isAlphabetic = true;
            compare([keyboard.layout, keyboard.rows], [russian, 4]);
            compare(textsOf(keyboard), ["a", "b", "c"]);
            keyboard.keys = ["d"];
            compare(textsOf(keyboard), ["d"]);
            keyboard.isAlphabetic = false;
            compare(textsOf(keyboard), ["d"]);
            compare(keyboard.rows, 1);
        }

        function test_listsLeaveTheGrid() {
            const keyboard = create({ columns: 4, rows: 3 });
            compareScreenAndGrid(screens[0], 3, 4);
            keyboard.russianLayout = ["not", "seen"];
            compareScreenAndGrid(screens[0], 3, 4);
            keyboard.numericLayout = ["own", "keys"];
            compare(textsOf(keyboard), ["own", "keys"]);
            compare([keyboard.rows, keyboard.columns], [3, 4]);
            keyboard.type = alphabetic;
            compare([keyboard.rows, keyboard.columns], [4, 12]);
            keyboard.spaceKeyColumnSpan = 3;
            keyboard.englishLayout = ["not", "seen"];
            compare(keyboard.spaceKeyColumnSpan, 3);

            function compareScreenAndGrid(screen, rows, columns) {
                compare(keysOf(keyboard).map(labelOf).join(" "), screen.rows.join(" "));
                compare([keyboard.rows, keyboard.columns], [rows, columns]);
            }
        }

        function test_layoutThatTheTypeHasNotAtCreation_data() {
            return [russian, english, symbols, 4, -1].map(layout => ({ tag: String(layout), layout }));
        }

        function test_layoutThatTheTypeHasNotAtCreation(data) {
            const keyboard = create({ layout: data.layout });
            compare(keyboard.layout, data.layout);
            compareScreen(keyboard, screens[0]);
        }

        function test_typeAtCreation_data() {
            return [
                { tag: "numeric", type: numeric, screen: "numeric" },
                { tag: "alphabetic", type: alphabetic, screen: "alphabetic Russian" },
                { tag: "alphanumeric", type: alphanumeric, screen: "alphanumeric English" },
                { tag: "unknown", type: 3, screen: "numeric" },
            ];
        }

        function test_typeAtCreation(data) {
            const keyboard = create({ type: data.type });
            const screen = screens.find(screen => screen.tag === data.screen);
            compareScreen(keyboard, screen);
            compare(keyboard.layout, screen.layout);
            compare(keyboard.spaceKeyColumnSpan, screen.span);
            compare(keyboard.preferablyFocusedLayoutChangeKeyIndex, -1);
        }

        function test_typeLeadsToItsLayout_data() {
            const rows = [];
            for (const [from, startLayout] of screens.map(screen => [screen.type, screen.layout])) {
                for (const [to, layout] of [[numeric, digits], [alphabetic, russian], [alphanumeric, english]]) {
                    if (from !== to)
                        rows.push({ tag: [from, startLayout, "to", to].join(" "), from, startLayout, to, layout });
                }
            }
            return rows;
        }

        function test_typeLeadsToItsLayout(data) {
            const keyboard = createAt(data.from, data.startLayout);
            const events = record(keyboard);
            keyboard.type = data.to;
            compare(events, [...(data.layout === data.startLayout ? [] : ["layout " + data.layout]),
                             "type " + data.to]);
            compareScreen(keyboard, screens.find(screen => screen.type === data.to && screen.layout === data.layout));
        }

        function test_unknownTypeLeavesAll_data() {
            return screens;
        }

        function test_unknownTypeLeavesAll(data) {
            for (const type of extremes.filter(type => type < numeric || type > alphanumeric)) {
                const keyboard = createAt(data.type, data.layout);
                const before = keysOf(keyboard);
                keyboard.type = type;
                compare(keyboard.layout, data.layout);
                compare([keyboard.rows, keyboard.columns, keyboard.spaceKeyColumnSpan],
                        [data.rows.length, data.columns, data.span]);
                const after = keysOf(keyboard);
                compare(after.length, before.length);
                verify(after.every((key, index) => key === before[index]));
            }
        }

        function test_combinationsOfTypeAndLayout_data() {
            const rows = [];
            for (const type of extremes) {
                for (const layout of extremes)
                    rows.push({ tag: type + ", " + layout, type, layout });
            }
            return rows;
        }

        // From several screens, so that what stays is told from what is shown anew.
        function test_combinationsOfTypeAndLayout(data) {
            for (const start of [screens[0], screens[3], screens[4]]) {
                const keyboard = createAt(start.type, start.layout);
                keyboard.type = data.type;
                const before = [keysOf(keyboard).map(labelOf), keyboard.rows, keyboard.columns,
                                keyboard.spaceKeyColumnSpan];
                keyboard.layout = data.layout;
                const screen = screens.find(screen => screen.layout === data.layout
                                            && (screen.type === data.type || data.layout === digits));
                if (screen) {
                    compareScreen(keyboard, screen);
                    compare(keyboard.spaceKeyColumnSpan, data.layout === digits ? before[3] : screen.span);
                } else {
                    compare([keysOf(keyboard).map(labelOf), keyboard.rows, keyboard.columns,
                             keyboard.spaceKeyColumnSpan], before);
                }
                compare([keyboard.type, keyboard.layout], [data.type, data.layout]);
                keyboard.destroy();
            }
        }

        function test_numericScreenLeavesTheSpan() {
            const keyboard = createAt(alphabetic, russian);
            keyboard.layout = digits;
            compare([keyboard.rows, keyboard.columns, keyboard.spaceKeyColumnSpan], [1, 11, 6]);
            keyboard.spaceKeyColumnSpan = 2;
            keyboard.type = numeric;
            compare([keyboard.rows, keyboard.columns, keyboard.spaceKeyColumnSpan], [1, 11, 2]);
        }

        function test_functionsMayBeCalled() {
            const keyboard = createAt(alphabetic, symbols);
            const before = stateOf(keyboard);
            keyboard.processLayoutChanged();
            compare(stateOf(keyboard), before);
            keyboard.processTypeChanged();
            compare(keyboard.layout, russian);
            compareScreen(keyboard, screens[1]);
        }

        function test_everyKey_data() {
            return screens;
        }

        function test_everyKey(data) {
            const signalled = { backspace: "backspace", left: "left", right: "right", SPACE_KEY: "text  " };
            const keyboard = createAt(data.type, data.layout);
            const events = record(keyboard);
            const before = stateOf(keyboard);
            const expected = [];
            data.rows.join(" ").split(" ").forEach((label, index) => {
                if (["capslock", "1#+", "#+?", "Рус", "Eng"].includes(label))
                    return;
                keyboard.processKeyActivated(index);
                expected.push(signalled[label] ?? "text " + label);
            });
            compare(events, expected);
            compare(stateOf(keyboard), before);
        }

        function test_textIsThatOfTheKeyNow() {
            const keyboard = createAt(alphabetic, english);
            const events = record(keyboard);
            for (const [label, text] of [["q", "own"], [".com", ".org"], ["SPACE_KEY", "Пробел"], ["left", "<"]]) {
                const index = indexOf(keyboard, label);
                keysOf(keyboard)[index].text = text;
                keyboard.processKeyActivated(index);
            }
            compare(events, ["text own", "text .org", "text  ", "left"]);
        }

        function test_signalsComeInTheOrderOfTheKeys() {
            const keyboard = createAt(alphabetic, russian);
            const events = record(keyboard);
            for (const label of ["ё", "capslock"])
                activate(keyboard, label);
            for (const label of ["Ё", "SPACE_KEY", "left", "backspace", "right", "Eng", "Q", ".ru", "capslock", "q",
                                 "1#+", "№"])
                activate(keyboard, label);
            compare(events, ["text ё", "capslock true", "text Ё", "text  ", "left", "backspace", "right", "layout 1",
                             "hint 35", "text Q", "text .ru", "capslock false", "text q", "layout 2", "hint 31",
                             "text №"]);
        }

        function test_layoutChangeKeys_data() {
            return [
                { type: alphabetic, from: russian, label: "1#+", to: symbols, hint: 30 },
                { type: alphabetic, from: russian, label: "Eng", to: english, hint: 35 },
                { type: alphabetic, from: english, label: "1#+", to: symbols, hint: 31 },
                { type: alphabetic, from: english, label: "Рус", to: russian, hint: 38 },
                { type: alphabetic, from: symbols, label: "Рус", to: russian, hint: 37 },
                { type: alphabetic, from: symbols, label: "Eng", to: english, hint: 34 },
                { type: alphanumeric, from: russian, label: "#+?", to: symbols, hint: 44 },
                { type: alphanumeric, from: russian, label: "Eng", to: english, hint: 46 },
                { type: alphanumeric, from: english, label: "#+?", to: symbols, hint: 45 },
                { type: alphanumeric, from: english, label: "Рус", to: russian, hint: 50 },
                { type: alphanumeric, from: symbols, label: "Рус", to: russian, hint: 49 },
                { type: alphanumeric, from: symbols, label: "Eng", to: english, hint: 45 },
            ].map(row => Object.assign(row, { tag: [row.type, row.from, "to", row.to].join(" ") }));
        }

        function test_layoutChangeKeys(data) {
            const keyboard = createAt(data.type, data.from);
            const events = record(keyboard);
            // Who is told the hint finds the new keys, and among them the one that leads back.
            let hinted;
            keyboard.preferablyFocusedLayoutChangeKeyIndexChanged.connect(() => {
                hinted = keysOf(keyboard)[keyboard.preferablyFocusedLayoutChangeKeyIndex];
            });
            activate(keyboard, data.label);
            compare(events, ["layout " + data.to, "hint " + data.hint]);
            compare(keyboard.type, data.type);
            compareScreen(keyboard, screens.find(screen => screen.type === data.type && screen.layout === data.to));
            compare(hinted.type, KELUIQCG.KelGlobal.LayoutChangeKey);
            compare(hinted.layout, data.from);
        }

        function test_theWayBackLeadsBack_data() {
            return test_layoutChangeKeys_data();
        }

        function test_theWayBackLeadsBack(data) {
            const keyboard = createAt(data.type, data.from);
            activate(keyboard, data.label);
            keyboard.processKeyActivated(keyboard.preferablyFocusedLayoutChangeKeyIndex);
            compare(keyboard.layout, data.from);
            const back = keysOf(keyboard)[keyboard.preferablyFocusedLayoutChangeKeyIndex];
            compare(labelOf(back), data.label);
        }

        function test_sameHintIsSignalledAgain() {
            const keyboard = createAt(alphanumeric, english);
            const events = record(keyboard);
            activate(keyboard, "#+?");
            activate(keyboard, "Eng");
            activate(keyboard, "#+?");
            compare(events, ["layout 2", "hint 45", "layout 1", "hint 45", "layout 2", "hint 45"]);
        }

        function test_hintStaysWhereTheApplicationChangesTheLayout() {
            const keyboard = createAt(alphabetic, russian);
            activate(keyboard, "1#+");
            const events = record(keyboard);
            keyboard.layout = russian;
            compare(events, ["layout 0"]);
            compare(keyboard.preferablyFocusedLayoutChangeKeyIndex, 30);
            activate(keyboard, "1#+");
            compare(events, ["layout 0", "layout 2", "hint 30"]);
        }

        function test_noWayBackLeavesTheHint_data() {
            return [
                { tag: "before the first", hint: -1 },
                { tag: "after another", hint: 12 },
            ];
        }

        function test_noWayBackLeavesTheHint(data) {
            const keyboard = createAt(alphabetic, digits);
            keyboard.numericLayout = ["1", "layout_rus"];
            keyboard.preferablyFocusedLayoutChangeKeyIndex = data.hint;
            const events = record(keyboard);
            keyboard.processKeyActivated(1);
            compare(events, ["layout 0"]);
            compare(keyboard.preferablyFocusedLayoutChangeKeyIndex, data.hint);
            compareScreen(keyboard, screens[1]);
        }

        // Keys that change no layout have the number -1 as well.
        function test_unknownLayoutHasNoWayBack() {
            const keyboard = createAt(alphabetic, russian);
            keyboard.layout = -1;
            const events = record(keyboard);
            activate(keyboard, "Eng");
            compare(events, ["layout 1"]);
            compareScreen(keyboard, screens[2]);
        }

        function test_firstOfSeveralWaysBackIsTheHint() {
            const keyboard = createAt(alphabetic, russian);
            // A text key is no way back, whatever its number.
            keyboard.englishLayout = ["a", "layout_symbols", "domain_ru", "layout_rus", "b", "layout_rus"];
            activate(keyboard, "Eng");
            compare(keyboard.preferablyFocusedLayoutChangeKeyIndex, 3);
        }

        function test_keyOfItsOwnLayoutIsTheWayBack() {
            const keyboard = createAt(alphabetic, russian);
            keyboard.russianLayout = ["a", "layout_eng", "layout_rus"];
            const events = record(keyboard);
            keyboard.processKeyActivated(2);
            compare(events, ["hint 2"]);
            keyboard.processKeyActivated(2);
            compare(events, ["hint 2", "hint 2"]);
            compare(textsOf(keyboard), ["a", "Eng", "Рус"]);
        }

        // What is shown stays, and it has no way back.
        function test_layoutChangeKeyOfANumericKeyboard() {
            const keyboard = createWith(["1", "layout_eng"]);
            const events = record(keyboard);
            keyboard.processKeyActivated(1);
            compare(events, ["layout 1"]);
            compare(textsOf(keyboard), ["1", "Eng"]);
            compare([keyboard.rows, keyboard.columns], [1, 11]);
            keyboard.processKeyActivated(1);
            compare(events, ["layout 1", "hint 1"]);
        }

        function test_capslockKey_data() {
            return screens.filter(screen => screen.rows.join(" ").includes("capslock"));
        }

        function test_capslockKey(data) {
            const keyboard = createAt(data.type, data.layout);
            const events = record(keyboard);
            const keys = keysOf(keyboard);
            const before = stateOf(keyboard);
            const capslock = indexOf(keyboard, "capslock");
            compare(keys[capslock].imagePath, keyboard.capslockDisabledIconPath);
            keyboard.processKeyActivated(capslock);
            compare(events, ["capslock true"]);
            compare(keys[capslock].imagePath, keyboard.capslockEnabledIconPath);
            data.rows.join(" ").split(" ").forEach((label, index) => {
                const isText = keys[index].type === KELUIQCG.KelGlobal.TextKey;
                compare(labelOf(keys[index]), isText ? label.toUpperCase() : label);
                if (isText || keys[index].type === KELUIQCG.KelGlobal.DomainKey) {
                    keyboard.processKeyActivated(index);
                    compare(events.pop(), "text " + (isText ? label.toUpperCase() : label));
                }
            });
            keyboard.processKeyActivated(capslock);
            compare(events, ["capslock true", "capslock false"]);
            compare(stateOf(keyboard), before);
            verify(keysOf(keyboard).every((key, index) => key === keys[index]));
        }

        function test_capslockKeyChangesOtherImagesNever() {
            const keyboard = createAt(alphabetic, russian);
            const images = () => keysOf(keyboard).filter(key => key.type !== KELUIQCG.KelGlobal.CapslockKey)
                                                 .map(key => key.imagePath);
            const before = images();
            activate(keyboard, "capslock");
            compare(images(), before);
        }

        function test_capslockKeyWorksOnWhatIsShown() {
            const keyboard = createWith(["A", "bC", "ß", "domain_ru", "capslock", "space", "layout_rus"]);
            const capslock = indexOf(keyboard, "capslock");
            compare(textsOf(keyboard), ["A", "bC", "ß", ".ru", "", "SPACE_KEY", "Рус"]);
            keyboard.processKeyActivated(capslock);
            compare(textsOf(keyboard), ["A", "BC", "SS", ".ru", "", "SPACE_KEY", "Рус"]);
            keyboard.processKeyActivated(capslock);
            compare(textsOf(keyboard), ["a", "bc", "ss", ".ru", "", "SPACE_KEY", "Рус"]);
            compare(keyboard.keyText("A"), "A");
        }

        function test_severalCapslockKeys() {
            const keyboard = createWith(["capslock", "a", "capslock"]);
            keyboard.processKeyActivated(2);
            const path = keyboard.capslockEnabledIconPath;
            compare(keysOf(keyboard).map(key => key.imagePath), [path, "", path]);
        }

        function test_capslockSurvivesLayoutChanges() {
            const keyboard = createAt(alphabetic, russian);
            activate(keyboard, "capslock");
            for (const [label, first] of [["Eng", "Q"], ["1#+", "1"], ["Рус", "Й"]]) {
                activate(keyboard, label);
                compare(keyboard.capslockEnabled, true);
                compare(keysOf(keyboard)[0].text, first);
            }
            compare(keysOf(keyboard)[indexOf(keyboard, "capslock")].imagePath, keyboard.capslockEnabledIconPath);
            keyboard.type = alphanumeric;
            compare(keysOf(keyboard)[11].text, "Q");
            compare(textsOf(keyboard).filter(text => text.startsWith(".")), [".", ".com", ".ru"]);
            activate(keyboard, "capslock");
            compare(keyboard.capslockEnabled, false);
            activate(keyboard, "Рус");
            compare(keysOf(keyboard)[12].text, "й");
        }

        function test_capslockFromOutside() {
            const keyboard = createAt(alphabetic, english);
            const events = record(keyboard);
            const keys = keysOf(keyboard);
            const capslock = keys[indexOf(keyboard, "capslock")];
            const seen = () => [keys[0].text, capslock.imagePath.split("#")[1]];
            compare(seen(), ["q", "lower"]);
            keyboard.capslockEnabled = true;
            compare(seen(), ["Q", "upper"]);
            keyboard.capslockEnabled = false;
            compare(seen(), ["q", "lower"]);
            keyboard.capslockEnabled = true;
            activate(keyboard, "capslock");
            compare(seen(), ["q", "lower"]);
            compare(events, ["capslock true", "capslock false", "capslock true", "capslock false"]);
            // The key has ended the bindings: these keys follow it alone.
            keyboard.capslockEnabled = true;
            compare(seen(), ["q", "lower"]);
            compare(keyboard.keyText("q"), "Q");
            activate(keyboard, "q");
            compare(events.pop(), "text q");
            activate(keyboard, "capslock");
            compare(keyboard.capslockEnabled, false);
            compare(seen(), ["q", "lower"]);
            activate(keyboard, "capslock");
            compare(seen(), ["Q", "upper"]);
            keyboard.capslockEnabled = false;
            compare(seen(), ["Q", "upper"]);
            // New keys follow again.
            keyboard.layout = russian;
            compare(textsOf(keyboard)[0], "й");
            keyboard.capslockEnabled = true;
            compare(textsOf(keyboard)[0], "Й");
        }

        function test_capslockAtCreation() {
            const keyboard = create({ type: alphabetic, capslockEnabled: true });
            compare(textsOf(keyboard)[0], "Й");
            activate(keyboard, "Ё");
            activate(keyboard, "capslock");
            compare(textsOf(keyboard)[0], "й");
        }

        function test_indexWithoutAKey_data() {
            const rows = [];
            for (const screen of screens) {
                const count = screen.rows.join(" ").split(" ").length;
                for (const index of [-2147483648, -2, -1, count, count + 1, 1000, 2147483647])
                    rows.push({ tag: screen.tag + ", " + index, type: screen.type, layout: screen.layout, index });
            }
            return rows;
        }

        function test_indexWithoutAKey(data) {
            const keyboard = createAt(data.type, data.layout);
            const events = record(keyboard);
            const before = stateOf(keyboard);
            keyboard.processKeyActivated(data.index);
            compare(events, []);
            compare(stateOf(keyboard), before);
        }

        function test_noKeys() {
            const keyboard = createWith([]);
            const events = record(keyboard);
            compare(keysOf(keyboard).length, 0);
            keyboard.processKeyActivated(0);
            compare(events, []);
            settle(keyboard);
            compare([keyboard.implicitWidth, keyboard.implicitHeight], [0, 0]);
        }

        function test_handlersMayChangeTheKeyboard_data() {
            return [
                { tag: "text", label: "й", signalName: "keyTextActivated" },
                { tag: "space", label: "SPACE_KEY", signalName: "keyTextActivated" },
                { tag: "backspace", label: "backspace", signalName: "keyBackspaceActivated" },
                { tag: "left", label: "left", signalName: "keyLeftActivated" },
                { tag: "right", label: "right", signalName: "keyRightActivated" },
                { tag: "capslock", label: "capslock", signalName: "capslockEnabledChanged" },
                { tag: "hint", label: "1#+", signalName: "preferablyFocusedLayoutChangeKeyIndexChanged" },
                { tag: "layout", label: "1#+", signalName: "layoutChanged" },
            ];
        }

        function test_handlersMayChangeTheKeyboard(data) {
            const keyboard = createAt(alphabetic, russian);
            let calls = 0;
            keyboard[data.signalName].connect(() => {
                if (calls++ === 0)
                    keyboard.type = numeric;
            });
            activate(keyboard, data.label);
            verify(calls > 0);
            compareScreen(keyboard, screens[0]);
            settle(keyboard);
        }

        // Random, but the same with every run.
        function test_anyNumbers_data() {
            return Array.from({ length: 10 }, (_, seed) => ({ tag: seed, seed }));
        }

        function test_anyNumbers(data) {
            const keyboard = create();
            const events = record(keyboard);
            let state = data.seed * 7919 + 1;
            const random = limit => {
                state = (state * 1103515245 + 12345) % 2147483648;
                return Math.floor(state / 65536) % limit;
            };
            const number = () => random(3) ? random(5) - 1 : extremes[random(extremes.length)];
            const counts = screens.map(screen => screen.rows.join(" ").split(" ").length);
            for (let step = 0; step < 100; ++step) {
                switch (random(5)) {
                case 0:
                    keyboard.type = number();
                    break;
                case 1:
                    keyboard.layout = number();
                    break;
                case 2:
                    keyboard.preferablyFocusedLayoutChangeKeyIndex = number();
                    break;
                case 3:
                    keyboard.processKeyActivated(random(8) ? random(60) : number());
                    break;
                case 4:
                    keyboard.processKeyActivated(keysOf(keyboard).length - 1 - random(8));
                    break;
                }
                const keys = keysOf(keyboard);
                verify(counts.includes(keys.length), step + ": " + keys.length);
                if (random(10) === 0)
                    settle(keyboard);
            }
            verify(events.length > 30, events.length);
        }
    }
}
