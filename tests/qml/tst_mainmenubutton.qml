// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as QQT
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

// The colour around the buttons tells what they leave unpainted.
Rectangle {
    id: _scene

    // From the test program, which qmllint does not know.
    property var clock

    // White, 24 by 16 pixels.
    readonly property string icon: Qt.resolvedUrl("data/icon.png")
    readonly property list<string> states: ["normal", "checked", "focused"]
    readonly property list<string> backgroundColors: ["#aa0001", "#cc0001", "#ff0001"]
    readonly property list<string> leftIconColors: ["#aa0002", "#cc0002", "#ff0002"]
    readonly property list<string> textColors: ["#aa0003", "#cc0003", "#ff0003"]

    width: 700
    height: 300
    color: "#0000ff"

    Component {
        id: _component

        KELUIQCG.MainMenuButton {
            backgroundColors: ["#aa0001", "#cc0001", "#ff0001"]
            leftIconColors: ["#aa0002", "#cc0002", "#ff0002"]
            textColors: ["#aa0003", "#cc0003", "#ff0003"]
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.MainMenuButton {}
    }

    // Colours whose quarters are whole numbers.
    Component {
        id: _fadingComponent

        KELUIQCG.MainMenuButton {
            backgroundColors: ["#000000", "#ff0001", "#c86428"]
            textColors: ["#000000", "#ff0003", "#c86428"]
            animateBackgroundColors: true
            animateTextColors: true
            backgroundColorsAnimationDuration: 400
            textColorsAnimationDuration: 400
        }
    }

    Component {
        id: _spyComponent

        SignalSpy {}
    }

    TestCase {
        id: _test

        readonly property string longText: "An entry that is far too long for any button in these tests, and then some"

        name: "MainMenuButton"
        when: windowShown

        function initTestCase() {
            _scene.clock = Qt.createQmlObject("import TestTools\nAnimationClock {}", _scene);
        }

        function cleanupTestCase() {
            _scene.clock.destroy();
        }

        function init() {
            failOnWarning(/.?/);
        }

        function create(properties, component) {
            const button = createTemporaryObject(component ?? _component, _scene, properties ?? {});
            verify(button);
            return button;
        }

        function parts(button) {
            const [leftIcon, text, rightIcon] = button.contentItem.children;
            return { leftIcon, text, rightIcon, background: button.background };
        }

        function spy(target, signalName) {
            return createTemporaryObject(_spyComponent, _test, { target, signalName });
        }

        function places(button) {
            const { leftIcon, text, rightIcon } = parts(button);
            return [leftIcon, text, rightIcon].map(item => [item.width, item.height]);
        }

        function test_defaults_data() {
            return [
                { tag: "focused", value: false },
                { tag: "baseHeight", value: 57 },
                { tag: "backgroundHeight", value: 57 },
                { tag: "animateBackgroundColors", value: false },
                { tag: "animateTextColors", value: false },
                { tag: "backgroundColorsAnimationDuration", value: 125 },
                { tag: "backgroundColorsAnimationEasingType", value: Easing.Linear },
                { tag: "textColorsAnimationDuration", value: 125 },
                { tag: "textColorsAnimationEasingType", value: Easing.Linear },
                { tag: "roundingRadius", value: 15 },
                { tag: "leftIconSource", value: "" },
                { tag: "leftIconSize", value: Qt.size(16, 16) },
                { tag: "rightIconSource", value: "" },
                { tag: "rightIconSize", value: Qt.size(-1, -1) },
                { tag: "rightIconRoundingRadius", value: 0 },
                { tag: "textFont", value: Application.font },
                { tag: "contentSpacing", value: 8 },
                { tag: "leftPadding", value: 16 },
                { tag: "topPadding", value: 0 },
                { tag: "rightPadding", value: 16 },
                { tag: "bottomPadding", value: 0 },
                { tag: "leftInset", value: 0 },
                { tag: "topInset", value: 0 },
                { tag: "rightInset", value: 0 },
                { tag: "bottomInset", value: 0 },
                { tag: "checkable", value: true },
                { tag: "checked", value: false },
                { tag: "text", value: "" },
                { tag: "implicitHeight", value: 57 },
            ];
        }

        function test_defaults(data) {
            compare(create({}, _bareComponent)[data.tag], data.value);
        }

        function test_defaultColors_data() {
            return [
                { tag: "backgroundColors", gray: 1.0 },
                { tag: "leftIconColors", gray: 0.0 },
                { tag: "textColors", gray: 0.0 },
            ];
        }

        function test_defaultColors(data) {
            const colors = create({}, _bareComponent)[data.tag];
            compare(colors.length, 3);
            for (const [index, alpha] of [1.0, 0.8, 0.6].entries())
                compare(colors[index], Qt.rgba(data.gray, data.gray, data.gray, alpha));
        }

        function test_curvesAreStraightLinesByDefault() {
            const button = create();
            for (const name of ["background", "text"]) {
                const curve = button[name + "ColorsAnimationBezierInterpolator"];
                compare(Array.from(curve), [0, 0, 0, 0, 1, 1], name);
            }
        }

        function test_isATemplateButton() {
            verify(create() instanceof QQT.Button);
        }

        function test_implicitWidth_data() {
            const icon = _scene.icon;
            return [
                { tag: "text", properties: {}, beside: 32 },
                { tag: "paddings", properties: { leftPadding: 3, rightPadding: 5 }, beside: 8 },
                { tag: "left icon", properties: { leftIconSource: icon }, beside: 32 + 24 + 8 },
                { tag: "right icon", properties: { rightIconSource: icon, rightIconSize: Qt.size(40, 30) },
                  beside: 32 + 40 + 8 },
                { tag: "all", properties: { leftIconSource: icon, rightIconSource: icon,
                                            rightIconSize: Qt.size(40, 30), contentSpacing: 5 },
                  beside: 32 + 24 + 40 + 10 },
                { tag: "size of the left icon", properties: { leftIconSource: icon, leftIconSize: Qt.size(99, 99) },
                  beside: 32 + 24 + 8 },
                { tag: "size without a picture", properties: { rightIconSize: Qt.size(40, 30) }, beside: 32 },
            ];
        }

        function test_implicitWidth(data) {
            const button = create(Object.assign({ text: "Entry" }, data.properties));
            const { text } = parts(button);
            verify(text.implicitWidth > 0);
            tryCompare(button, "implicitWidth", text.implicitWidth + data.beside);
            tryCompare(text, "width", text.implicitWidth);
            compare(button.implicitHeight, 57);
        }

        function test_implicitWidthIsThatOfTheBackgroundWhereThatIsWider() {
            const button = create({ text: "Entry", leftInset: 3, rightInset: 4 });
            const natural = button.implicitWidth;
            button.background.implicitWidth = 250;
            compare(button.implicitWidth, 257);
            button.background.implicitWidth = 5;
            compare(button.implicitWidth, natural);
        }

        function test_implicitWidthFollowsTheText() {
            const button = create({ text: "Entry" });
            const { text } = parts(button);
            button.text = longText;
            compare(text.text, longText);
            tryCompare(button, "implicitWidth", text.implicitWidth + 32);
            verify(button.implicitWidth > 300);
        }

        function test_heights_data() {
            return [
                { tag: "normal", properties: {}, implicitHeight: 57, y: 0, height: 57 },
                { tag: "background follows", properties: { baseHeight: 40 }, implicitHeight: 40, y: 0, height: 40 },
                { tag: "higher background", properties: { backgroundHeight: 77 }, implicitHeight: 57, y: -10,
                  height: 77 },
                { tag: "lower background", properties: { backgroundHeight: 37 }, implicitHeight: 57, y: 10,
                  height: 37 },
                { tag: "none", properties: { backgroundHeight: 0 }, implicitHeight: 57, y: 28.5, height: 0 },
                { tag: "insets", properties: { topInset: 3, bottomInset: 4 }, implicitHeight: 64, y: 3.5,
                  height: 57 },
                { tag: "paddings", properties: { topPadding: 30, bottomPadding: 40 }, implicitHeight: 57, y: 0,
                  height: 57 },
            ];
        }

        function test_heights(data) {
            const check = button => {
                compare(button.implicitHeight, data.implicitHeight);
                compare(button.height, data.implicitHeight);
                compare(button.background.height, data.height);
                fuzzyCompare(button.background.y, data.y, 0.5);
            };
            check(create(data.properties));
            const button = create();
            for (const name in data.properties)
                button[name] = data.properties[name];
            check(button);
        }

        function test_growingBackgroundMovesNothing() {
            const button = create({ text: "Entry", leftIconSource: _scene.icon });
            const { leftIcon, text, background } = parts(button);
            tryCompare(text, "x", 32);
            const before = JSON.stringify([places(button), leftIcon.y, text.y, button.width]);
            const spies = [spy(button, "implicitHeightChanged"), spy(button, "heightChanged"),
                           spy(button, "implicitWidthChanged")];
            for (const height of [60, 90, 200, 0, 57]) {
                button.backgroundHeight = height;
                compare(background.height, height);
                compare(JSON.stringify([places(button), leftIcon.y, text.y, button.width]), before);
            }
            compare(spies.map(spy => spy.count), [0, 0, 0]);
        }

        function test_backgroundIsAsWideAsTheButton() {
            const button = create({ text: "Entry" });
            compare(button.background.width, button.width);
            button.width = 333;
            compare(button.background.width, 333);
        }

        function test_roundBackgroundIsDrawn() {
            const button = create({ x: 20, y: 40, width: 200, backgroundHeight: 77, roundingRadius: 20 });
            const { background } = parts(button);
            compare(background.forceRounding, true);
            compare(background.radius, 20);
            const picture = grabImage(_scene);
            for (const [x, y] of [[120, 31], [120, 105], [20, 68], [219, 68]])
                compare(picture.pixel(x, y), "#aa0001", x + " " + y);
            for (const [x, y] of [[20, 30], [219, 30], [20, 106], [219, 106], [120, 29], [120, 107]])
                compare(picture.pixel(x, y), "#0000ff", x + " " + y);
        }

        function test_content() {
            const button = create({ text: "Entry", textFont: Qt.font({ family: "DejaVu Sans", pixelSize: 20 }),
                                    leftIconSource: _scene.icon, rightIconSource: _scene.icon,
                                    rightIconSize: Qt.size(40, 30), rightIconRoundingRadius: 7, contentSpacing: 11 });
            const { leftIcon, text, rightIcon } = parts(button);
            verify(button.contentItem instanceof RowLayout);
            compare(button.contentItem.spacing, 11);
            compare(leftIcon.source, _scene.icon);
            compare(leftIcon.cacheIconImage, true);
            compare(rightIcon.source, _scene.icon);
            compare(rightIcon.sourceSize, Qt.size(40, 30));
            compare(rightIcon.roundingRadius, 7);
            compare(text.text, "Entry");
            compare(text.font.pixelSize, 20);
            compare(text.maximumLineCount, 1);
            tryCompare(text, "x", 24 + 11);
            tryCompare(rightIcon, "x", 24 + 11 + text.implicitWidth + 11);
            compare(places(button), [[24, 16], [text.implicitWidth, text.implicitHeight], [40, 30]]);
            for (const item of [leftIcon, text, rightIcon])
                fuzzyCompare(item.y + item.height / 2, 57 / 2, 1);
        }

        function test_iconsAreVisibleWithASource() {
            const button = create();
            const { leftIcon, rightIcon } = parts(button);
            for (const [name, item] of [["leftIconSource", leftIcon], ["rightIconSource", rightIcon]]) {
                compare(item.visible, false, name);
                button[name] = _scene.icon;
                compare(item.visible, true, name);
                button[name] = "";
                compare(item.visible, false, name);
            }
        }

        function test_widthDoesNotReachTheContent_data() {
            return [0, 20, 90, 150.5, 600].map(width => ({ tag: width, width }));
        }

        function test_widthDoesNotReachTheContent(data) {
            const button = create({ text: "Entry", leftIconSource: _scene.icon, rightIconSource: _scene.icon,
                                    rightIconSize: Qt.size(40, 30) });
            const { text } = parts(button);
            const natural = button.implicitWidth;
            const expected = [[24, 16], [text.implicitWidth, text.implicitHeight], [40, 30]];
            button.width = data.width;
            waitForRendering(button);
            compare(places(button), expected);
            compare(button.implicitWidth, natural);
        }

        function test_textStaysOnOneLine() {
            const button = create({ text: "Several words of an entry", width: 60 });
            const height = parts(button).text.implicitHeight;
            verify(height > 0);
            compare(height, parts(create({ text: "Entry" })).text.implicitHeight);
        }

        function test_states_data() {
            const rows = [];
            for (const enabled of [true, false]) {
                for (const checked of [false, true]) {
                    for (const focused of [false, true]) {
                        rows.push({
                            tag: [enabled ? "enabled" : "disabled", checked ? "checked" : "unchecked",
                                  focused ? "focused" : "not focused"].join(", "),
                            enabled, checked, focused, entry: focused ? 2 : checked ? 1 : 0,
                        });
                    }
                }
            }
            return rows;
        }

        function test_states(data) {
            const states = { enabled: data.enabled, checked: data.checked, focused: data.focused };
            const created = create(Object.assign({ text: "Entry" }, states));
            const changed = create({ text: "Entry" });
            for (const name in states)
                changed[name] = states[name];
            for (const button of [created, changed]) {
                const { leftIcon, text, background } = parts(button);
                compare(background.color, _scene.backgroundColors[data.entry]);
                compare(leftIcon.iconColor, _scene.leftIconColors[data.entry]);
                compare(text.color, _scene.textColors[data.entry]);
                compare(button.stateColor(button.textColors), _scene.textColors[data.entry]);
            }
        }

        function test_iconShowsTheStateColor() {
            const button = create({ leftIconSource: _scene.icon });
            compare(grabImage(button).pixel(28, 28), "#aa0002");
            button.focused = true;
            compare(grabImage(button).pixel(28, 28), "#ff0002");
        }

        function test_assignedListsAreFollowed() {
            const button = create();
            button.backgroundColors = ["#000001", "#000002", "#000003"];
            button.leftIconColors = ["#000004", "#000005", "#000006"];
            button.textColors = ["#000007", "#000008", "#000009"];
            const { leftIcon, text, background } = parts(button);
            compare([background.color, leftIcon.iconColor, text.color].map(String), ["#000001", "#000004", "#000007"]);
            button.focused = true;
            compare([background.color, leftIcon.iconColor, text.color].map(String), ["#000003", "#000006", "#000009"]);
            button.textColors[2] = "#00000a";
            compare(text.color, "#00000a");
        }

        function test_clickChecksAndUnchecks() {
            const button = create({ text: "Entry" });
            const clicked = spy(button, "clicked");
            mouseClick(button);
            compare([clicked.count, button.checked], [1, true]);
            compare(button.background.color, "#cc0001");
            mouseClick(button);
            compare([clicked.count, button.checked], [2, false]);
        }

        function test_keys_data() {
            return [
                { tag: "Space", key: Qt.Key_Space, clicks: 1 },
                { tag: "Select", key: Qt.Key_Select, clicks: 1 },
                { tag: "Return", key: Qt.Key_Return, clicks: 0 },
                { tag: "Enter", key: Qt.Key_Enter, clicks: 0 },
            ];
        }

        function test_keys(data) {
            const button = create({ text: "Entry" });
            const clicked = spy(button, "clicked");
            button.forceActiveFocus();
            keyClick(data.key);
            compare([clicked.count, button.checked], [data.clicks, data.clicks === 1]);
        }

        function test_colorsJumpUnlessAnimated_data() {
            return [
                { tag: "neither", background: false, text: false },
                { tag: "background", background: true, text: false },
                { tag: "text", background: false, text: true },
            ];
        }

        function test_colorsJumpUnlessAnimated(data) {
            const button = create({ text: "Entry", animateBackgroundColors: data.background,
                                    animateTextColors: data.text });
            const { leftIcon, text, background } = parts(button);
            button.focused = true;
            compare(background.color, data.background ? "#aa0001" : "#ff0001");
            compare(text.color, data.text ? "#aa0003" : "#ff0003");
            compare(leftIcon.iconColor, "#ff0002");
            _scene.clock.step(124);
            compare(background.color == "#ff0001", !data.background);
            compare(text.color == "#ff0003", !data.text);
            _scene.clock.step(1);
            compare(background.color, "#ff0001");
            compare(text.color, "#ff0003");
        }

        // The last curve stands at 0.875 after an eighth of its time, the quarters are those of straight lines.
        function test_animations_data() {
            const line = ["#000000", "#32190a", "#643214", "#964b1e", "#c86428"];
            return [
                { tag: "linear", type: Easing.Linear, curve: [0, 1, 0, 1, 1, 1], duration: 400, colors: line },
                { tag: "quadratic", type: Easing.InQuad, curve: [0, 1, 0, 1, 1, 1], duration: 400,
                  colors: ["#000000", "#0c0602", "#32190a", "#703816", "#c86428"] },
                { tag: "straight curve", type: Easing.BezierSpline, curve: [0, 0, 0, 0, 1, 1], duration: 400,
                  colors: line },
                { tag: "steep curve", type: Easing.BezierSpline, curve: [0, 1, 0, 1, 1, 1], duration: 800,
                  colors: ["#000000", "#af5723"] },
            ];
        }

        function test_animations(data) {
            for (const [prefix, other] of [["background", "text"], ["text", "background"]]) {
                const button = create({ text: "Entry" }, _fadingComponent);
                button[prefix + "ColorsAnimationEasingType"] = data.type;
                button[prefix + "ColorsAnimationBezierInterpolator"] = data.curve;
                button[prefix + "ColorsAnimationDuration"] = data.duration;
                button[other + "ColorsAnimationDuration"] = 100000;
                const element = parts(button)[prefix];
                button.focused = true;
                for (const color of data.colors) {
                    for (const channel of ["r", "g", "b"])
                        fuzzyCompare(element.color[channel], Qt.color(color)[channel], 1.01 / 255, color);
                    verify(parts(button)[other].color.r < 0.01);
                    _scene.clock.step(100);
                }
            }
        }

        function ignoreUndefined(count) {
            for (let warning = 0; warning < count; ++warning)
                ignoreWarning(/Unable to assign \[undefined\]|Could not find any constructor .* undefined/);
        }

        function test_missingEntriesWarnAndTouchNothingElse() {
            const button = create();
            button.textColors = ["#000001", "#000002"];
            const { leftIcon, text, background } = parts(button);
            compare(text.color, "#000001");
            // The failed look-up, and the colour that never came of it.
            ignoreUndefined(2);
            button.focused = true;
            // The text's own colour is undefined then: black where the binding is compiled, else the last one.
            compare([background.color, leftIcon.iconColor].map(String), ["#ff0001", "#ff0002"]);
            ignoreUndefined(1);
            compare(button.stateColor(button.textColors), undefined);
            button.focused = false;
            button.checked = true;
            compare(text.color, "#000002");
            ignoreUndefined(2);
            button.textColors = [];
            button.textColors = ["#000003", "#000004"];
            compare(text.color, "#000004");
        }

        function test_listGivenAtCreationDoesNotArrive() {
            ignoreUndefined(2);
            const button = create({ textColors: ["#000001", "#000002", "#000003"] });
            compare(button.textColors.length, 0);
            button.textColors = ["#000001", "#000002", "#000003"];
            compare(button.textColors.length, 3);
            compare(parts(button).text.color, "#000001");
        }
    }
}
