// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    // From the test program, which qmllint does not know.
    property var clock
    property var remote

    readonly property var backgroundColors: ({ normal: "#aa0001", selected: "#ee0001" })
    readonly property var textColors: ({ normal: "#aa0002", selected: "#ee0002", wide: "#bb0002" })
    readonly property var placeholderTextColors: ({ normal: "#aa0003", selected: "#ee0003" })

    width: 700
    height: 300

    Component {
        id: _component

        KELUIQCG.LineEdit {
            backgroundColors: _scene.backgroundColors
            textColors: _scene.textColors
            placeholderTextColors: _scene.placeholderTextColors
            font.pixelSize: 20
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.LineEdit {}
    }

    Component {
        id: _boundComponent

        KELUIQCG.LineEdit {
            property string model: "first"

            backgroundColors: _scene.backgroundColors
            textColors: _scene.textColors
            placeholderTextColors: _scene.placeholderTextColors
            text: model
        }
    }

    Component {
        id: _metricsComponent

        TextMetrics {}
    }

    // Told apart by what it draws: red, with the colours of the tests beside it.
    Component {
        id: _drawnComponent

        KELUIQCG.LineEdit {
            readonly property var colors: ({ normal: "#cc0000", selected: "#cc0000", wide: "#cc0000" })

            backgroundColors: ({ normal: "#ffffff", selected: "#ffffff" })
            textColors: colors
            placeholderTextColors: colors
        }
    }

    TestCase {
        id: _test

        readonly property int letters: KELUIQCG.KelGlobal.EnglishLayout
        readonly property int digits: KELUIQCG.KelGlobal.NumericLayout
        readonly property string phoneMask: "+7 (999) 999-99-99"

        name: "LineEdit"
        when: windowShown

        function initTestCase() {
            _scene.clock = Qt.createQmlObject("import TestTools\nAnimationClock {}", _scene);
            _scene.remote = Qt.createQmlObject("import TestTools\nRemote {}", _scene);
        }

        function cleanupTestCase() {
            _scene.clock.destroy();
        }

        function init() {
            failOnWarning(/.?/);
        }

        function create(properties) {
            const field = createTemporaryObject(_component, _scene,
                                                Object.assign({ width: 300, height: 60 }, properties));
            verify(field);
            return field;
        }

        //! A field that is being edited, with the cursor where asked.
        function edit(properties, cursorPosition) {
            const field = create(Object.assign({ selected: true, keyboardLayout: letters }, properties));
            if (cursorPosition !== undefined)
                field.cursorPosition = cursorPosition;
            return field;
        }

        function parts(field) {
            const input = field.contentItem;
            const placeholder = input.children.find(child => "textWidth" in child);
            const cursor = input.children.find(child => "isWide" in child);
            const letter = cursor ? cursor.children[0] : null;
            return { input, placeholder, cursor, letter, background: field.background,
                     frame: field.background.children[0] };
        }

        function press(field, key, text, modifiers, isAutoRepeat) {
            return _scene.remote.press(field, key, text ?? "", modifiers ?? Qt.NoModifier, isAutoRepeat ?? false);
        }

        //! What the digits of a remote would type, one after another.
        function pressDigits(field, text) {
            for (const letter of text)
                press(field, Qt.Key_2, letter);
        }

        function state(field) {
            return [field.text, field.cursorPosition, field.contentItem.cursorLetter];
        }

        function letterWidth(field, letter) {
            return createTemporaryObject(_metricsComponent, _test, { font: field.font, text: letter }).width;
        }

        function test_defaults_data() {
            return [
                { tag: "text", value: "" },
                { tag: "placeholderText", value: "" },
                { tag: "focused", value: false },
                { tag: "selected", value: false },
                { tag: "error", value: false },
                { tag: "roundingRadius", value: 15 },
                { tag: "errorFrameWidth", value: 0 },
                { tag: "errorFrameColor", value: "#00000000" },
                { tag: "horizontalAlignment", value: Qt.AlignLeft },
                { tag: "verticalAlignment", value: Qt.AlignVCenter },
                { tag: "cursorWidth", value: 2 },
                { tag: "echoMode", value: TextInput.Normal },
                { tag: "inputMask", value: "" },
                { tag: "keyboardLayout", value: KELUIQCG.KelGlobal.NumericLayout },
                { tag: "keyboardCapslockEnabled", value: false },
                { tag: "cursorPosition", value: 0 },
                { tag: "leftPadding", value: 0 },
                { tag: "topPadding", value: 0 },
                { tag: "rightPadding", value: 0 },
                { tag: "bottomPadding", value: 0 },
                { tag: "spacing", value: 0 },
                { tag: "activeFocus", value: false },
            ];
        }

        function test_defaults(data) {
            compare(create()[data.tag], data.value);
        }

        function test_mapsAreUndefinedByDefault() {
            for (let warning = 0; warning < 6; ++warning)
                ignoreWarning(/TypeError: .*undefined|Could not find any constructor for value type .*undefined/);
            const field = createTemporaryObject(_bareComponent, _scene);
            verify(field);
            for (const map of ["backgroundColors", "textColors", "placeholderTextColors"]) {
                verify(map in field, map);
                compare(field[map], undefined, map);
            }
        }

        function test_implicitSizeIsThatOfTheText() {
            const field = create({ text: "Some text", leftPadding: 3, rightPadding: 5, topPadding: 7,
                                   bottomPadding: 11 });
            const input = field.contentItem;
            compare(field.implicitWidth, input.implicitWidth + 8);
            compare(field.implicitHeight, input.implicitHeight + 18);
            verify(input.implicitWidth > 50);
        }

        function test_colors_data() {
            return [
                { tag: "normal", properties: {}, background: "#aa0001", text: "#aa0002", placeholder: "#aa0003" },
                { tag: "selected", properties: { selected: true },
                  background: "#ee0001", text: "#ee0002", placeholder: "#ee0003" },
                { tag: "focused", properties: { focused: true },
                  background: "#aa0001", text: "#aa0002", placeholder: "#aa0003" },
                { tag: "error", properties: { error: true },
                  background: "#aa0001", text: "#aa0002", placeholder: "#aa0003" },
                { tag: "disabled", properties: { enabled: false },
                  background: "#aa0001", text: "#aa0003", placeholder: "#aa0003" },
                { tag: "disabled, selected", properties: { enabled: false, selected: true },
                  background: "#ee0001", text: "#ee0003", placeholder: "#ee0003" },
            ];
        }

        function test_colors(data) {
            const check = field => {
                const { background, input, placeholder, cursor } = parts(field);
                compare(background.color, data.background);
                compare(input.color, data.text);
                compare(placeholder.color, data.placeholder);
                if (cursor)
                    compare(cursor.color, data.text);
            };
            check(create(data.properties));
            const field = create();
            for (const name in data.properties)
                field[name] = data.properties[name];
            check(field);
            for (const name in data.properties)
                field[name] = !data.properties[name];
            compare(parts(field).background.color, "#aa0001");
            compare(parts(field).input.color, "#aa0002");
        }

        function test_newMapsAreFollowed() {
            const field = edit({});
            field.backgroundColors = { normal: "#000001", selected: "#000002" };
            field.textColors = { normal: "#000003", selected: "#000004", wide: "#000005" };
            field.placeholderTextColors = { normal: "#000006", selected: "#000007" };
            const { background, input, placeholder, cursor, letter } = parts(field);
            compare([background.color, input.color, placeholder.color, cursor.color, letter.color].map(String),
                    ["#000002", "#000004", "#000007", "#000004", "#000005"]);
        }

        function test_backgroundHasSquareCorners() {
            const field = create({ roundingRadius: 20, errorFrameWidth: 4, error: true });
            const { background, frame } = parts(field);
            compare([background.roundingRadius, background.radius], [20, 0]);
            compare([frame.roundingRadius, frame.radius], [24, 0]);
            compare([background.x, background.y, background.width, background.height], [0, 0, 300, 60]);
            compare(grabImage(field).pixel(0, 0), "#aa0001");
        }

        function test_errorFrame_data() {
            const rows = [];
            for (const error of [false, true]) {
                for (const focused of [false, true]) {
                    for (const selected of [false, true])
                        rows.push({ tag: [error, focused, selected].join(), error, focused, selected });
                }
            }
            return rows;
        }

        function test_errorFrame(data) {
            const field = create({ errorFrameWidth: 3, errorFrameColor: "#123456" });
            const { frame } = parts(field);
            compare(frame.visible, false);
            field.error = data.error;
            field.focused = data.focused;
            field.selected = data.selected;
            compare(frame.visible, data.error && !data.focused);
            compare([frame.x, frame.y, frame.width, frame.height], [-3, -3, 306, 66]);
            compare(frame.border.width, 3);
            compare(frame.border.color, "#123456");
            compare(frame.color.a, 0);
        }

        function test_errorFrameIsDrawnOutside() {
            const field = create({ x: 20, y: 20, error: true, errorFrameWidth: 3, errorFrameColor: "#00ff00" });
            const image = grabImage(_scene);
            for (const [x, y, isFrame] of [[17, 50, true], [19, 50, true], [16, 50, false], [20, 50, false],
                                           [319, 50, false], [320, 50, true], [322, 50, true], [323, 50, false],
                                           [100, 17, true], [100, 82, true], [100, 20, false], [100, 83, false]])
                compare(image.pixel(x, y) == "#00ff00", isFrame, x + " " + y);
            field.errorFrameWidth = 0;
            compare(grabImage(_scene).pixel(19, 50) == "#00ff00", false);
        }

        function test_placeholder_data() {
            return [
                { tag: "empty", text: "", visible: true },
                { tag: "a letter", text: "a", visible: false },
                { tag: "a space", text: " ", visible: false },
            ];
        }

        function test_placeholder(data) {
            const field = create({ placeholderText: "Search", text: data.text });
            const { placeholder } = parts(field);
            compare(placeholder.text, "Search");
            compare(placeholder.visible, data.visible);
            field.placeholderText = "Find";
            compare(placeholder.text, "Find");
            field.text = "b";
            compare(placeholder.visible, false);
            field.text = "";
            compare(placeholder.visible, true);
            compare(field.text, "");
        }

        function test_placeholderHidesFromTheFirstLetterOn() {
            const field = edit({ placeholderText: "Search" });
            const { placeholder } = parts(field);
            press(field, Qt.Key_2, "a");
            compare(placeholder.visible, false);
            field.moveCursorToRight();
            field.delCurrentSymbol();
            compare(placeholder.visible, true);
        }

        function test_textIsHandedToTheInput() {
            const field = create({ horizontalAlignment: Qt.AlignRight, verticalAlignment: Qt.AlignBottom,
                                   echoMode: TextInput.Password, text: "abc" });
            const { input } = parts(field);
            compare([input.horizontalAlignment, input.verticalAlignment, input.echoMode, input.text],
                    [TextInput.AlignRight, TextInput.AlignBottom, TextInput.Password, "abc"]);
            compare(input.font.pixelSize, 20);
            compare(input.displayText.length, 3);
            verify(input.displayText !== "abc");
        }

        function test_bindingOfTextSurvivesEdits() {
            const field = createTemporaryObject(_boundComponent, _scene, { selected: true, keyboardLayout: letters });
            compare(field.text, "first");
            field.addText("!");
            compare(field.text, "first!");
            field.delCurrentSymbol();
            pressDigits(field, "a");
            press(field, Qt.Key_Z, "z");
            press(field, Qt.Key_Backspace);
            compare(field.text, "firsta");
            field.model = "second";
            compare(state(field).slice(0, 2), ["second", 6]);
            _scene.clock.step(1001);
            compare(state(field), ["second", 6, ""]);
        }

        function test_cursorGeometry_data() {
            return [
                { tag: "start", properties: {}, position: 0 },
                { tag: "middle", properties: {}, position: 2 },
                { tag: "end", properties: {}, position: 5 },
                { tag: "wide bar", properties: { cursorWidth: 7 }, position: 3 },
                { tag: "right", properties: { horizontalAlignment: Qt.AlignRight }, position: 5 },
                { tag: "center, top", properties: { horizontalAlignment: Qt.AlignHCenter,
                                                    verticalAlignment: Qt.AlignTop }, position: 1 },
                { tag: "bottom", properties: { verticalAlignment: Qt.AlignBottom }, position: 4 },
                { tag: "padding", properties: { leftPadding: 30, topPadding: 9 }, position: 4 },
                { tag: "scrolled", properties: { width: 30 }, position: 5 },
            ];
        }

        function test_cursorGeometry(data) {
            const field = edit(Object.assign({ text: "hello" }, data.properties), data.position);
            const { input, cursor, letter } = parts(field);
            const place = () => [cursor.x, cursor.y, cursor.height];
            const expected = shift => [input.cursorRectangle.x - shift, input.cursorRectangle.y,
                                       input.cursorRectangle.height];
            compare(cursor.roundingRadius, 0);
            compare(cursor.width, data.properties.cursorWidth ?? 2);
            compare(place(), expected(0));
            for (const text of ["m", "i", "Ж", "Ж"]) {
                press(field, Qt.Key_5, text);
                compare(cursor.width, letterWidth(field, text) + 2, text);
                compare(place(), expected(1), text);
                compare([letter.text, letter.color.toString(), letter.font], [text, "#bb0002", field.font]);
                compare(cursor.color, "#ee0002");
                compare(cursor.visible, true);
            }
            for (const step of [() => field.moveCursorToLeft(), () => field.moveCursorToRight(),
                                () => field.addText("wq"), () => field.delCurrentSymbol(),
                                () => { field.cursorPosition = 0; }, () => { field.cursorPosition = 3; },
                                () => { field.width += 20; }, () => { field.font.pixelSize = 31; }]) {
                step();
                compare(place(), expected(1), step);
                compare(cursor.width, letterWidth(field, "Ж") + 2, step);
            }
            _scene.clock.step(1001);
            compare(cursor.width, data.properties.cursorWidth ?? 2);
            compare(place(), expected(0));
            compare(letter.text, "");
            field.cursorPosition = 1;
            compare(place(), expected(0));
        }

        function test_wideCursorCoversTheLetter() {
            const field = edit({ text: "ab" }, 1);
            press(field, Qt.Key_5, "W");
            const { cursor, letter } = parts(field);
            compare([letter.x, letter.width], [0, cursor.width]);
            compare(letter.horizontalAlignment, Text.AlignHCenter);
            const image = grabImage(field);
            // The room that the letter takes in the text, without what its neighbours reach over.
            const [left, right] = [Math.ceil(cursor.x), Math.floor(cursor.x + cursor.width)];
            let isSeen = false;
            for (let x = left; x < right; ++x) {
                for (let y = Math.ceil(cursor.y); y < cursor.y + cursor.height - 1; ++y) {
                    const color = image.pixel(x, y);
                    verify(color != "#ee0001", x + " " + y);
                    isSeen = isSeen || color == "#bb0002";
                }
            }
            verify(isSeen);
        }

        function test_cursorBlinks() {
            const field = create({ text: "abc" });
            field.selected = true;
            const { cursor } = parts(field);
            compare(cursor.visible, true);
            for (const isVisible of [false, true, false, true]) {
                _scene.clock.step(499);
                compare(cursor.visible, !isVisible);
                _scene.clock.step(1);
                compare(cursor.visible, isVisible);
            }
            _scene.clock.step(500);
            compare(cursor.visible, false);
            field.selected = false;
            compare(cursor.visible, false);
            _scene.clock.step(500);
            compare(cursor.visible, false);
            field.selected = true;
            compare(cursor.visible, true);
            _scene.clock.step(499);
            compare(cursor.visible, true);
            field.selected = false;
            compare(cursor.visible, false);
        }

        function test_cursorOfAFieldMadeSelectedIsShown() {
            const { cursor } = parts(edit({}));
            compare(cursor.visible, true);
            _scene.clock.step(499);
            compare(cursor.visible, true);
            _scene.clock.step(1);
            compare(cursor.visible, false);
        }

        function test_cursorIsHiddenWhileNotSelected_data() {
            return [
                { tag: "normal", properties: {} },
                { tag: "focused", properties: { focused: true } },
                { tag: "with active focus", properties: { focus: true, focused: true } },
                { tag: "with active focus on the input", properties: {}, isInputFocused: true },
            ];
        }

        function test_cursorIsHiddenWhileNotSelected(data) {
            const field = create(Object.assign({ text: "abc" }, data.properties));
            if (data.isInputFocused)
                field.contentItem.forceActiveFocus();
            for (let time = 0; time < 3; ++time) {
                const { cursor } = parts(field);
                verify(!cursor || !cursor.visible);
                _scene.clock.step(500);
            }
            press(field, Qt.Key_A, "a");
            const { cursor } = parts(field);
            verify(!cursor || !cursor.visible);
        }

        function test_pendingLetterIsAlwaysShown() {
            const field = edit({});
            const { cursor } = parts(field);
            _scene.clock.step(500);
            compare(cursor.visible, false);
            press(field, Qt.Key_2, "a");
            compare(cursor.visible, true);
            for (let time = 0; time < 9; ++time) {
                _scene.clock.step(100);
                compare(cursor.visible, true, time);
            }
            press(field, Qt.Key_2, "b");
            for (let time = 0; time < 9; ++time) {
                _scene.clock.step(100);
                compare(cursor.visible, true, time);
            }
            compare(state(field), ["b", 0, "b"]);
        }

        function test_cursorOfAPendingLetterIsHiddenWithSelected() {
            const field = edit({});
            press(field, Qt.Key_2, "a");
            const { cursor } = parts(field);
            field.selected = false;
            compare(cursor.visible, false);
            for (let time = 0; time < 15; ++time) {
                _scene.clock.step(100);
                compare(cursor.visible, false, time);
            }
            compare(state(field), ["a", 1, ""]);
        }

        function test_pendingLetterOfAFieldThatIsNotSelectedShowsNoCursor() {
            const field = edit({});
            const { cursor } = parts(field);
            field.selected = false;
            field.processLetterInput({ accepted: false, text: "a" });
            compare(cursor.visible, false);
            compare(state(field), ["a", 0, "a"]);
        }

        function test_functions_data() {
            return [
                { tag: "add at the end", text: "ab", at: 2, run: f => f.addText("c"), state: ["abc", 3, ""] },
                { tag: "add in the middle", text: "ab", at: 1, run: f => f.addText("xyz"), state: ["axyzb", 4, ""] },
                { tag: "add at the start", text: "ab", at: 0, run: f => f.addText("я"), state: ["яab", 1, ""] },
                { tag: "add to nothing", text: "", at: 0, run: f => f.addText(".com"), state: [".com", 4, ""] },
                { tag: "add nothing", text: "ab", at: 1, run: f => f.addText(""), state: ["ab", 1, ""] },
                { tag: "add a space", text: "ab", at: 1, run: f => f.addText(" "), state: ["a b", 2, ""] },
                { tag: "delete at the end", text: "ab", at: 2, run: f => f.delCurrentSymbol(), state: ["a", 1, ""] },
                { tag: "delete in the middle", text: "abc", at: 2, run: f => f.delCurrentSymbol(),
                  state: ["ac", 1, ""] },
                { tag: "delete at the start", text: "ab", at: 0, run: f => f.delCurrentSymbol(),
                  state: ["ab", 0, ""] },
                { tag: "delete from nothing", text: "", at: 0, run: f => f.delCurrentSymbol(), state: ["", 0, ""] },
                { tag: "delete all", text: "ab", at: 2, run: f => times(5, () => f.delCurrentSymbol()),
                  state: ["", 0, ""] },
                { tag: "left", text: "ab", at: 2, run: f => f.moveCursorToLeft(), state: ["ab", 1, ""] },
                { tag: "left at the start", text: "ab", at: 0, run: f => f.moveCursorToLeft(), state: ["ab", 0, ""] },
                { tag: "right", text: "ab", at: 1, run: f => f.moveCursorToRight(), state: ["ab", 2, ""] },
                { tag: "right at the end", text: "ab", at: 2, run: f => f.moveCursorToRight(), state: ["ab", 2, ""] },
                { tag: "right in nothing", text: "", at: 0, run: f => f.moveCursorToRight(), state: ["", 0, ""] },
                { tag: "far left, far right", text: "abc", at: 1,
                  run: f => { times(9, () => f.moveCursorToLeft()); times(9, () => f.moveCursorToRight()); },
                  state: ["abc", 3, ""] },
                { tag: "replaced text", text: "abc", at: 1, run: f => { f.text = "longer"; },
                  state: ["longer", 6, ""] },
                { tag: "same text", text: "abc", at: 1, run: f => { f.text = "abc"; }, state: ["abc", 1, ""] },
                { tag: "cleared text", text: "abc", at: 1, run: f => { f.text = ""; f.addText("z"); },
                  state: ["z", 1, ""] },
                { tag: "password", text: "abc", at: 1, properties: { echoMode: TextInput.Password },
                  run: f => { f.addText("1"); f.moveCursorToRight(); f.delCurrentSymbol(); }, state: ["a1c", 2, ""] },
                { tag: "no echo", text: "abc", at: 1, properties: { echoMode: TextInput.NoEcho },
                  run: f => { f.addText("1"); f.moveCursorToRight(); f.delCurrentSymbol(); }, state: ["a1c", 2, ""] },
                { tag: "password echo on edit", text: "abc", at: 1,
                  properties: { echoMode: TextInput.PasswordEchoOnEdit },
                  run: f => { f.addText("1"); f.moveCursorToRight(); f.delCurrentSymbol(); }, state: ["a1c", 2, ""] },
            ];
        }

        function times(count, run) {
            for (let call = 0; call < count; ++call)
                run();
        }

        function test_functions(data) {
            const properties = Object.assign({ text: data.text }, data.properties);
            const field = edit(properties, data.at);
            data.run(field);
            compare(state(field), data.state);
        }

        function test_functionsWorkOnlyWhileSelected_data() {
            return [
                { tag: "normal", properties: {} },
                { tag: "focused", properties: { focused: true } },
            ];
        }

        function test_functionsWorkOnlyWhileSelected(data) {
            const field = create(Object.assign({ text: "abc" }, data.properties));
            field.cursorPosition = 1;
            field.addText("x");
            field.delCurrentSymbol();
            field.moveCursorToLeft();
            field.moveCursorToRight();
            field.moveCursorToRight();
            compare(state(field), ["abc", 1, ""]);
            field.inputMask = "AAAA";
            field.addText("x");
            field.delCurrentSymbol();
            compare(field.text, "abc");
        }

        function test_masks_data() {
            const phone = _test.phoneMask;
            return [
                { tag: "phone", mask: phone, add: "9123", shown: "+7 (912) 3  -  -  ", cursor: 10 },
                { tag: "phone, until a fixed part", mask: phone, add: "912", shown: "+7 (912)    -  -  ", cursor: 9 },
                { tag: "phone, full", mask: phone, add: "9123456789", shown: "+7 (912) 345-67-89", cursor: 18 },
                { tag: "phone, overfull", mask: phone, add: "91234567890", shown: "+7 (912) 345-67-89", cursor: 18 },
                { tag: "phone, letters are ignored", mask: phone, add: "a9b1", shown: "+7 (91 )    -  -  ",
                  cursor: 6 },
                { tag: "phone, delete", mask: phone, add: "9123", del: 1, shown: "+7 (912)    -  -  ", cursor: 9 },
                { tag: "phone, delete over fixed characters", mask: phone, add: "9123", del: 2,
                  shown: "+7 (91 )    -  -  ", cursor: 6 },
                { tag: "phone, delete all", mask: phone, add: "9123", del: 4, shown: "+7 (   )    -  -  ",
                  cursor: 4 },
                { tag: "phone, delete from nothing", mask: phone, add: "9123", del: 9,
                  shown: "+7 (   )    -  -  " },
                { tag: "phone, add again", mask: phone, add: "9123", del: 3, again: "55",
                  shown: "+7 (955)    -  -  ", cursor: 9 },
                { tag: "blank character", mask: "000.000;_", add: "1234", shown: "123.4__", cursor: 5 },
                { tag: "blank character, delete", mask: "000.000;_", add: "1234", del: 2, shown: "12_.___", cursor: 2 },
                { tag: "blank character typed", mask: "NNN;_", add: "a_", shown: "a__", cursor: 1 },
                { tag: "upper case", mask: ">AAA", add: "ab1", shown: "AB ", cursor: 2 },
                { tag: "lower case", mask: "<AA>AA", add: "QwEr", shown: "qwER", cursor: 4 },
                { tag: "password", mask: "9999", echoMode: TextInput.Password, add: "123", text: "123", cursor: 3 },
                { tag: "password, delete", mask: "9999", echoMode: TextInput.Password, add: "123", del: 1,
                  text: "12", cursor: 2 },
                { tag: "password, full", mask: "9999", echoMode: TextInput.Password, add: "12345", text: "1234",
                  cursor: 4 },
            ];
        }

        function test_masks(data) {
            const field = edit({ inputMask: data.mask, echoMode: data.echoMode ?? TextInput.Normal });
            // As at the start of editing: before the first character to be typed.
            field.cursorPosition = 0;
            for (const key of data.add)
                field.addText(key);
            for (let call = 0; call < (data.del ?? 0); ++call)
                field.delCurrentSymbol();
            for (const key of data.again ?? "")
                field.addText(key);
            if (data.shown !== undefined)
                compare(parts(field).input.displayText, data.shown);
            if (data.text !== undefined)
                compare(field.text, data.text);
            if (data.cursor !== undefined)
                compare(field.cursorPosition, data.cursor);
        }

        function test_masksAreEditedAsByKeys_data() {
            const masks = [[_test.phoneMask, "123"], ["000.000;_", "123"], ["(999)", "123"], [">AAA<aaa!aa", "aBя"],
                           ["XXXX", "a1-"], ["xxxx;_", "a1-"], ["XXXX;_", "a b"], ["NNnn;.", "aя1"], ["Hh-bB", "101"],
                           ["\\A99", "123"], ["HH:HH:HH;_", "1aF"], ["99/99/0000;_", "123"]];
            const rows = [];
            for (const [mask, letters] of masks) {
                for (const [name, steps] of [["forth", "123123123123123"], ["back", "1231232<<<<<<<<<12"],
                                             ["to and fro", "12<3<1<<2312<3<<1"], ["left", "123ll12lll3l<l<2"],
                                             ["fill a gap", "123123ll<3<<1l"]])
                    rows.push({ tag: mask + " " + name, mask, letters, steps });
            }
            return rows;
        }

        // What a key types into the input, and where that leaves the cursor.
        function test_masksAreEditedAsByKeys(data) {
            const [field, byKeys] = [edit({ inputMask: data.mask }), edit({ inputMask: data.mask })];
            field.cursorPosition = byKeys.cursorPosition = 0;
            const look = item => [item.text, item.contentItem.displayText, item.cursorPosition];
            Array.from(data.steps).forEach((step, index) => {
                if (step === "<") {
                    field.delCurrentSymbol();
                    press(byKeys, Qt.Key_Backspace);
                } else if (step === "l") {
                    field.moveCursorToLeft();
                    press(byKeys, Qt.Key_Left);
                } else {
                    const letter = data.letters[Number(step) - 1];
                    field.addText(letter);
                    press(byKeys, Qt.Key_A, letter);
                }
                compare(look(field), look(byKeys), index + " " + step);
            });
        }

        // What does not fit is not typed, and does not move the cursor.
        function test_masksIgnoreWhatDoesNotFit_data() {
            return [
                { tag: "start", mask: "999", add: "", wrong: "a" },
                { tag: "digits", mask: "999", add: "1", wrong: "a- " },
                { tag: "before a fixed part", mask: phoneMask, add: "912", wrong: "x" },
                { tag: "blank", mask: "XXX", add: "a", wrong: " " },
                { tag: "blank character", mask: "XXX;_", add: "a", wrong: "_" },
                { tag: "blank before text", mask: "XXX", add: "abc", left: 2, wrong: " " },
                { tag: "blank character before text", mask: "XXX;_", add: "abc", left: 2, wrong: "_" },
                { tag: "before text", mask: "999", add: "123", left: 3, wrong: "a " },
                { tag: "full", mask: "AA", add: "ab", wrong: "c" },
            ];
        }

        function test_masksIgnoreWhatDoesNotFit(data) {
            const field = edit({ inputMask: data.mask });
            field.cursorPosition = 0;
            for (const letter of data.add)
                field.addText(letter);
            times(data.left ?? 0, () => field.moveCursorToLeft());
            const before = state(field);
            for (const letter of data.wrong) {
                field.addText(letter);
                compare(state(field), before, letter);
            }
        }

        function test_digits_data() {
            const letters = _test.letters;
            const { RussianLayout, SymbolsLayout } = KELUIQCG.KelGlobal;
            return [
                { tag: "numeric", layout: _test.digits, run: f => press(f, Qt.Key_5, "5"), state: ["ab5c", 3, ""] },
                { tag: "symbols", layout: SymbolsLayout, run: f => press(f, Qt.Key_5, "5"), state: ["ab5c", 3, ""] },
                { tag: "several", layout: _test.digits, run: f => pressDigits(f, "1234"),
                  state: ["ab1234c", 6, ""] },
                { tag: "keypad", layout: _test.digits, run: f => press(f, Qt.Key_5, "5", Qt.KeypadModifier),
                  state: ["ab5c", 3, ""] },
                { tag: "pending", layout: letters, run: f => press(f, Qt.Key_2, "x"), state: ["abxc", 2, "x"] },
                { tag: "pending, Russian", layout: RussianLayout, run: f => press(f, Qt.Key_2, "й"),
                  state: ["abйc", 2, "й"] },
                { tag: "pending, 0", layout: letters, run: f => press(f, Qt.Key_0, "0"), state: ["ab0c", 2, "0"] },
                { tag: "pending, 9", layout: letters, run: f => press(f, Qt.Key_9, "w"), state: ["abwc", 2, "w"] },
                { tag: "replaced", layout: letters, run: f => pressDigits(f, "xyz"), state: ["abzc", 2, "z"] },
                { tag: "replaced by the same", layout: letters, run: f => pressDigits(f, "xx"),
                  state: ["abxc", 2, "x"] },
                { tag: "held down", layout: letters,
                  run: f => times(5, () => press(f, Qt.Key_2, "x", Qt.NoModifier, true)), state: ["abxc", 2, "x"] },
                { tag: "at the start", layout: letters, at: 0, run: f => pressDigits(f, "xy"),
                  state: ["yabc", 0, "y"] },
                { tag: "at the end", layout: letters, at: 3, run: f => pressDigits(f, "xy"),
                  state: ["abcy", 3, "y"] },
                { tag: "moved left", layout: letters, run: f => {
                      press(f, Qt.Key_2, "x"); f.moveCursorToLeft(); press(f, Qt.Key_2, "y");
                  }, state: ["ayxc", 1, "y"] },
                { tag: "moved right", layout: letters, run: f => {
                      press(f, Qt.Key_2, "x"); f.moveCursorToRight(); press(f, Qt.Key_2, "y");
                  }, state: ["abxy", 3, "y"] },
                { tag: "moved right to the end", layout: letters, at: 3, run: f => {
                      press(f, Qt.Key_2, "x"); times(3, () => f.moveCursorToRight()); press(f, Qt.Key_2, "y");
                  }, state: ["abcxy", 4, "y"] },
                { tag: "moved by the input", layout: letters, run: f => {
                      press(f, Qt.Key_2, "x"); press(f, Qt.Key_Left); press(f, Qt.Key_Left);
                  }, state: ["abxc", 0, "x"], later: ["abxc", 1, ""] },
                { tag: "deleted before", layout: letters,
                  run: f => { press(f, Qt.Key_2, "x"); f.delCurrentSymbol(); }, state: ["axc", 1, "x"] },
                { tag: "deleted all before", layout: letters,
                  run: f => { press(f, Qt.Key_2, "x"); times(5, () => f.delCurrentSymbol()); },
                  state: ["xc", 0, "x"] },
                { tag: "added before", layout: letters,
                  run: f => { press(f, Qt.Key_2, "x"); f.addText("uv"); }, state: ["abuvxc", 4, "x"] },
                { tag: "digit at once before", layout: letters,
                  run: f => { press(f, Qt.Key_2, "x"); f.keyboardLayout = _test.digits; press(f, Qt.Key_5, "5"); },
                  state: ["ab5xc", 3, "x"] },
                { tag: "other letters", layout: letters,
                  run: f => { press(f, Qt.Key_2, "x"); f.keyboardLayout = RussianLayout; press(f, Qt.Key_2, "й"); },
                  state: ["abйc", 2, "й"] },
                { tag: "back to letters", layout: letters,
                  run: f => {
                      press(f, Qt.Key_2, "x"); f.keyboardLayout = SymbolsLayout; f.keyboardLayout = letters;
                      press(f, Qt.Key_2, "y");
                  }, state: ["abyc", 2, "y"] },
                { tag: "deselected", layout: letters,
                  run: f => { press(f, Qt.Key_2, "x"); f.selected = false; }, state: ["abxc", 2, "x"] },
                { tag: "deselected and selected", layout: letters,
                  run: f => {
                      press(f, Qt.Key_2, "x"); f.selected = false; f.selected = true; press(f, Qt.Key_2, "y");
                  }, state: ["abyc", 2, "y"] },
                { tag: "replaced from outside", layout: letters,
                  run: f => { press(f, Qt.Key_2, "x"); f.text = "other"; }, state: ["other", 5, "x"],
                  later: ["other", 5, ""] },
                { tag: "cleared from outside", layout: letters,
                  run: f => { press(f, Qt.Key_2, "x"); f.text = ""; }, state: ["", 0, "x"], later: ["", 0, ""] },
                { tag: "cleared from outside and typed", layout: letters,
                  run: f => { press(f, Qt.Key_2, "x"); f.text = ""; press(f, Qt.Key_2, "y"); },
                  state: ["y", 0, "y"], later: ["y", 1, ""] },
                { tag: "removed by the input", layout: letters, at: 3,
                  run: f => { press(f, Qt.Key_2, "x"); press(f, Qt.Key_Delete); }, state: ["abc", 3, "x"],
                  later: ["abc", 3, ""] },
                { tag: "typed by a keyboard", layout: letters,
                  run: f => { press(f, Qt.Key_2, "x"); press(f, Qt.Key_Q, "q"); }, state: ["abqxc", 3, "x"] },
                { tag: "masked", layout: letters, mask: "XXXXXX", run: f => pressDigits(f, "45"),
                  state: ["ab45", 4, ""] },
                { tag: "password", layout: letters, echoMode: TextInput.Password, run: f => pressDigits(f, "xy"),
                  state: ["abyc", 2, "y"] },
                { tag: "no echo", layout: letters, echoMode: TextInput.NoEcho, run: f => pressDigits(f, "xy"),
                  state: ["abyc", 2, "y"] },
                { tag: "echo on edit", layout: letters, echoMode: TextInput.PasswordEchoOnEdit,
                  run: f => pressDigits(f, "xy"), state: ["abyc", 2, "y"] },
                { tag: "a digit without text", layout: letters, run: f => press(f, Qt.Key_2, ""),
                  state: ["abc", 2, ""], later: ["abc", 2, ""] },
            ];
        }

        function test_digits(data) {
            const field = edit({ text: "abc", keyboardLayout: data.layout, inputMask: data.mask ?? "",
                                 echoMode: data.echoMode ?? TextInput.Normal }, data.at ?? 2);
            data.run(field);
            compare(state(field), data.state);
            _scene.clock.step(999);
            compare(state(field), data.state);
            _scene.clock.step(2);
            const [text, cursorPosition, letter] = data.state;
            const later = data.later ?? [text, Math.min(cursorPosition + (letter ? 1 : 0), text.length), ""];
            compare(state(field), later);
            _scene.clock.step(5000);
            compare(state(field), later);
        }

        function test_nextDigitStartsTheSecondAnew() {
            const field = edit({});
            press(field, Qt.Key_2, "a");
            _scene.clock.step(999);
            compare(state(field), ["a", 0, "a"]);
            press(field, Qt.Key_2, "b");
            _scene.clock.step(999);
            compare(state(field), ["b", 0, "b"]);
            _scene.clock.step(1);
            compare(state(field), ["b", 1, ""]);
            press(field, Qt.Key_2, "c");
            compare(state(field), ["bc", 1, "c"]);
            _scene.clock.step(1000);
            compare(state(field), ["bc", 2, ""]);
        }

        function test_digitsAreDroppedWhileNotSelected_data() {
            const rows = [];
            for (const focused of [false, true]) {
                for (const layout of [digits, letters]) {
                    for (const mask of ["", "9999"])
                        rows.push({ tag: [focused, layout, mask].join(), focused, layout, mask });
                }
            }
            return rows;
        }

        function test_digitsAreDroppedWhileNotSelected(data) {
            const field = create({ text: "12", focused: data.focused, keyboardLayout: data.layout,
                                   inputMask: data.mask });
            const before = state(field);
            for (let key = Qt.Key_0; key <= Qt.Key_9; ++key)
                compare(press(field, key, "5"), data.focused, key);
            compare(state(field), before);
        }

        function test_keysAreTakenOnlyWhileSelectedOrFocused_data() {
            return [
                { tag: "normal", selected: false, focused: false, isTaken: false },
                { tag: "focused", selected: false, focused: true, isTaken: true },
                { tag: "selected", selected: true, focused: false, isTaken: true },
                { tag: "both", selected: true, focused: true, isTaken: true },
            ];
        }

        function test_keysAreTakenOnlyWhileSelectedOrFocused(data) {
            const field = create({ text: "ab", keyboardLayout: letters });
            const expected = (text, cursor) => data.isTaken ? [text, cursor, ""] : ["ab", 2, ""];
            field.selected = data.selected;
            field.focused = data.focused;
            field.cursorPosition = 2;
            for (const [key, text, result] of [[Qt.Key_C, "c", ["abc", 3]], [Qt.Key_Backspace, "", ["ab", 2]],
                                               [Qt.Key_Left, "", ["ab", 1]], [Qt.Key_Delete, "", ["a", 1]],
                                               [Qt.Key_B, "ы", ["aы", 2]], [Qt.Key_Home, "", ["aы", 0]],
                                               [Qt.Key_End, "", ["aы", 2]], [Qt.Key_Minus, "-", ["aы-", 3]]]) {
                compare(press(field, key, text), data.isTaken, key);
                compare(state(field), expected(...result), key);
            }
            compare(press(field, Qt.Key_Down), false);
        }

        function test_noFocusIsTakenByAClick() {
            const field = create({ text: "abc" });
            mouseClick(field, 20, 30);
            compare([field.activeFocus, field.contentItem.activeFocus], [false, false]);
        }

        function test_colonAndSlashAreNoDigits() {
            const field = edit({});
            press(field, Qt.Key_Colon, ":");
            press(field, Qt.Key_Slash, "/");
            compare(state(field), [":/", 2, ""]);
        }

        function test_destroyedWithAPendingLetter() {
            for (const delay of [0, 500, 999]) {
                const field = edit({ text: "a" });
                press(field, Qt.Key_2, "x");
                _scene.clock.step(delay);
                field.destroy();
                wait(0);
                _scene.clock.step(2000);
            }
        }

        function test_digitsOfAnyEvent() {
            const field = edit({ text: "ab" }, 1);
            const event = { accepted: false, text: "5" };
            field.processLetterInput(event);
            compare(event.accepted, true);
            compare([field.text, field.cursorPosition], ["a5b", 1]);
        }

        function test_halvesOfPairsAreLetters() {
            const field = edit({ text: "\ud83dя\ude00" });
            const positions = [];
            for (let i = 0; i < 3; ++i) {
                field.moveCursorToLeft();
                positions.push(field.cursorPosition);
            }
            compare(positions, [2, 1, 0]);
        }

        function test_pairsOfUnitsStayWhole() {
            const field = edit({ text: "a😀б" });
            const walk = step => {
                const positions = [field.cursorPosition];
                for (let i = 0; i < 4; ++i) {
                    step();
                    positions.push(field.cursorPosition);
                }
                return positions.join();
            };
            compare(walk(() => field.moveCursorToLeft()), "4,3,1,0,0");
            compare(walk(() => field.moveCursorToRight()), "0,1,3,4,4");
            field.moveCursorToLeft();
            field.delCurrentSymbol();
            compare(field.text, "aб");
            compare(field.cursorPosition, 1);
        }

        function test_hugeTextFromTheStart() {
            const field = edit({ text: "0123456789".repeat(10000) });
            compare(field.text.length, 100000);
            compare(field.cursorPosition, 100000);
        }

        function test_hugeText() {
            const text = "0123456789".repeat(10000);
            const field = edit({ text: "" });
            for (const at of [100000, 50000, 0]) {
                field.text = "";
                field.text = text;
                field.cursorPosition = at;
                const [before, after] = [text.slice(0, at), text.slice(at)];
                field.addText("xy");
                verify(field.text === before + "xy" + after, at);
                compare(field.cursorPosition, at + 2);
                field.delCurrentSymbol();
                press(field, Qt.Key_2, "p");
                press(field, Qt.Key_2, "q");
                verify(field.text === before + "xq" + after, at);
                _scene.clock.step(1000);
                compare(field.cursorPosition, at + 2);
                field.moveCursorToLeft();
                field.delCurrentSymbol();
                verify(field.text === before + "q" + after, at);
                compare(field.cursorPosition, at);
            }
            verify(grabImage(field));
        }

        //! The rows that are not all white.
        function inkRows(image, field) {
            const rows = [];
            for (let y = 0; y < field.height; ++y) {
                for (let x = 0; x < field.width; ++x) {
                    if (image.pixel(x, y) != "#ffffff") {
                        rows.push(y);
                        break;
                    }
                }
            }
            return rows.join();
        }

        function test_placeholderStandsWhereTextStands_data() {
            const rows = [];
            const fonts = [{ pixelSize: 11 }, { pixelSize: 16 }, { pixelSize: 21 }, { pixelSize: 28, bold: true },
                           { pixelSize: 35 }, { pixelSize: 48 }];
            const names = ["left", "center", "right"];
            for (const font of fonts) {
                for (const [column, horizontal] of [Qt.AlignLeft, Qt.AlignHCenter, Qt.AlignRight].entries()) {
                    for (const vertical of [Qt.AlignTop, Qt.AlignVCenter, Qt.AlignBottom])
                        rows.push({ tag: [font.pixelSize, names[column], vertical].join(), font, horizontal,
                                    vertical });
                }
            }
            return rows;
        }

        function test_placeholderStandsWhereTextStands(data) {
            const alignment = { horizontalAlignment: data.horizontal, verticalAlignment: data.vertical };
            const draw = (width, height) => createTemporaryObject(_drawnComponent, _scene, Object.assign(
                { width, height, font: Qt.font(data.font) }, alignment));
            const shown = field => {
                const placeholder = grabImage(field);
                field.text = field.placeholderText;
                return [placeholder, grabImage(field)];
            };
            const differences = [];
            const check = (name, width, height, change) => {
                for (const word of ["Поиск", "Agjpq", "חיפוש"]) {
                    const field = draw(width, height);
                    field.placeholderText = word;
                    if (change)
                        change(field);
                    const [placeholder, typed] = shown(field);
                    if (!typed.equals(placeholder))
                        differences.push(name + " " + word);
                    field.destroy();
                }
            };
            for (const [width, height] of [[300, 60], [301, 61], [260, 80], [300, 20], [301, 9]])
                check([width, height].join(), width, height);
            for (const [width, height] of [[281, 71], [282, 74], [283, 15]])
                check("resized " + [width, height], 200, 40, field => { field.width = width; field.height = height; });
            check("padding", 300, 74, field => {
                field.leftPadding = 13;
                field.rightPadding = 6;
                field.topPadding = 9;
                field.bottomPadding = 4;
            });
            for (const pixelSize of [19, 32])
                check("font " + pixelSize, 300, 60, field => { field.font.pixelSize = pixelSize; });
            // The placeholder shows its start where the text shows its end.
            for (const [width, height] of [[250, 60], [251, 23]]) {
                const narrow = draw(width, height);
                narrow.placeholderText = "Agjpq".repeat(9);
                const [placeholder, typed] = shown(narrow);
                verify(narrow.contentItem.contentWidth > width);
                if (inkRows(placeholder, narrow) !== inkRows(typed, narrow))
                    differences.push("rows of narrow " + [width, height]);
                narrow.destroy();
            }
            compare(differences.join("\n"), "");
        }
    }
}
