// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as QQT
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    // From the test program, which qmllint does not know.
    property var clock

    width: 700
    height: 300

    Component {
        id: _component

        KELUIQCG.TabButton {
            minimumHeight: 60
            backgroundColor: "#aa0001"
            backgroundFocusedColor: "#ff0001"
            backgroundSelectedColor: "#cc0001"
            textColor: "#aa0002"
            textFocusedColor: "#ff0002"
            textSelectedColor: "#cc0002"
            font {
                family: "DejaVu Sans"
                pixelSize: 20
            }
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.TabButton {}
    }

    Component {
        id: _barComponent

        Row {
            Repeater {
                model: 3

                KELUIQCG.TabButton {
                    minimumWidth: 100
                    minimumHeight: 60
                }
            }
        }
    }

    Component {
        id: _spyComponent

        SignalSpy {}
    }

    TestCase {
        id: _test

        name: "TabButton"
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
            const tab = createTemporaryObject(component ?? _component, _scene, properties ?? {});
            verify(tab);
            return tab;
        }

        function parts(tab) {
            return { text: tab.children.find(child => "textWidth" in child), background: tab.background };
        }

        function spy(target, signalName) {
            return createTemporaryObject(_spyComponent, _test, { target, signalName });
        }

        function test_defaults_data() {
            return [
                { tag: "selected", value: false },
                { tag: "focused", value: false },
                { tag: "animateBackgroundColors", value: false },
                { tag: "animateTextColors", value: false },
                { tag: "backgroundColorsAnimationDuration", value: 125 },
                { tag: "backgroundColorsAnimationEasingType", value: Easing.Linear },
                { tag: "textColorsAnimationDuration", value: 125 },
                { tag: "textColorsAnimationEasingType", value: Easing.Linear },
                { tag: "roundingRadius", value: 9 },
                { tag: "backgroundColor", value: "#000000" },
                { tag: "backgroundFocusedColor", value: "#000000" },
                { tag: "backgroundSelectedColor", value: "#000000" },
                { tag: "textColor", value: "#ffffff" },
                { tag: "textFocusedColor", value: "#ffffff" },
                { tag: "textSelectedColor", value: "#ffffff" },
                { tag: "minimumWidth", value: 0 },
                { tag: "minimumHeight", value: 0 },
                { tag: "implicitWidth", value: 0 },
                { tag: "implicitHeight", value: 0 },
                { tag: "checkable", value: true },
                { tag: "checked", value: false },
                { tag: "autoExclusive", value: true },
                { tag: "leftPadding", value: 0 },
                { tag: "topPadding", value: 0 },
                { tag: "rightPadding", value: 0 },
                { tag: "bottomPadding", value: 0 },
                { tag: "leftInset", value: 0 },
                { tag: "topInset", value: 0 },
                { tag: "rightInset", value: 0 },
                { tag: "bottomInset", value: 0 },
                { tag: "text", value: "" },
            ];
        }

        function test_defaults(data) {
            compare(create({}, _bareComponent)[data.tag], data.value);
        }

        function test_curvesAreStraightLinesByDefault() {
            const tab = create();
            for (const name of ["background", "text"]) {
                const curve = tab[name + "ColorsBezierAnimationInterpolator"];
                compare(Array.from(curve), [0, 0, 0, 0, 1, 1], name);
            }
        }

        function test_isATemplateTabButton() {
            verify(create() instanceof QQT.TabButton);
        }

        function test_size_data() {
            return [
                { tag: "none", properties: { minimumHeight: 0 }, width: 0, height: 0 },
                { tag: "text", properties: { text: "Tab" }, beside: 0, height: 60 },
                { tag: "paddings", properties: { text: "Tab", leftPadding: 11, rightPadding: 13, topPadding: 17,
                                                 bottomPadding: 19 }, beside: 24, height: 60 },
                { tag: "wide", properties: { text: "Tab", minimumWidth: 200 }, width: 200, height: 60 },
                { tag: "paddings within", properties: { text: "Tab", minimumWidth: 200, leftPadding: 50 }, width: 200,
                  height: 60 },
                { tag: "paddings alone", properties: { minimumWidth: 20, leftPadding: 50 }, width: 50, height: 60 },
                { tag: "longer text", properties: { text: "A tab with a long name", minimumWidth: 20 }, beside: 0,
                  height: 60 },
                { tag: "lower than its text", properties: { text: "Tab", minimumHeight: 3 }, beside: 0, height: 3 },
            ];
        }

        function test_size(data) {
            const check = tab => {
                const { text } = parts(tab);
                compare(tab.implicitWidth, data.width ?? text.implicitWidth + data.beside);
                compare(tab.implicitHeight, data.height);
                compare([tab.width, tab.height], [tab.implicitWidth, data.height]);
            };
            check(create(data.properties));
            const tab = create();
            for (const name in data.properties)
                tab[name] = data.properties[name];
            check(tab);
        }

        function test_textIsCentred() {
            const tab = create({ text: "Tab", leftPadding: 40, width: 300 });
            const { text } = parts(tab);
            verify(text.width > 0);
            compare(text.width, text.implicitWidth);
            compare(text.parent, tab);
            compare(text.font, tab.font);
            compare(text.text, "Tab");
            fuzzyCompare(text.x + text.width / 2, 150, 0.5);
            fuzzyCompare(text.y + text.height / 2, 30, 0.5);
            tab.width = 20;
            compare(text.width, text.implicitWidth);
            fuzzyCompare(text.x + text.width / 2, 10, 0.5);
        }

        function test_textFollows() {
            const tab = create({ text: "Tab" });
            const before = tab.width;
            tab.text = "Another tab";
            compare(parts(tab).text.text, "Another tab");
            verify(tab.width > before);
            compare(tab.width, create({ text: "Another tab" }).width);
        }

        function test_backgroundFillsWithSquareCorners() {
            const tab = create({ width: 120, roundingRadius: 25 });
            const { background } = parts(tab);
            compare([background.x, background.y, background.width, background.height], [0, 0, 120, 60]);
            compare(background.roundingRadius, 25);
            compare(background.forceRounding, false);
            const picture = grabImage(tab);
            for (const [x, y] of [[0, 0], [119, 0], [0, 59], [119, 59], [60, 30]])
                compare(picture.pixel(x, y), "#aa0001");
        }

        function test_states_data() {
            const rows = [];
            for (const enabled of [true, false]) {
                for (const checked of [false, true]) {
                    for (const focused of [false, true]) {
                        for (const selected of [false, true]) {
                            rows.push({
                                tag: [enabled ? "enabled" : "disabled", checked ? "checked" : "unchecked",
                                      focused ? "focused" : "not focused",
                                      selected ? "selected" : "not selected"].join(", "),
                                enabled, checked, focused, selected, color: checked ? "#cc" : focused ? "#ff" : "#aa",
                            });
                        }
                    }
                }
            }
            return rows;
        }

        function test_states(data) {
            const states = { enabled: data.enabled, checked: data.checked, focused: data.focused,
                             selected: data.selected };
            const created = createTemporaryObject(_component, _scene, Object.assign({ text: "Tab" }, states));
            const { text, background } = parts(created);
            compare([background.color, text.color].map(String), [data.color + "0001", data.color + "0002"]);
            const changed = create({ text: "Tab", autoExclusive: false });
            for (const name in states)
                changed[name] = states[name];
            compare([parts(changed).background.color, parts(changed).text.color].map(String),
                    [data.color + "0001", data.color + "0002"]);
        }

        function test_oneOfSiblingsIsChecked() {
            const bar = create({}, _barComponent);
            const tabs = [0, 1, 2].map(index => bar.children[index]);
            const checked = () => tabs.map(tab => tab.checked);
            compare(checked(), [false, false, false]);
            mouseClick(tabs[0]);
            compare(checked(), [true, false, false]);
            mouseClick(tabs[2]);
            compare(checked(), [false, false, true]);
            mouseClick(tabs[2]);
            compare(checked(), [false, false, true]);
            tabs[1].checked = true;
            compare(checked(), [false, true, false]);
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
            const tab = create({ text: "Tab" });
            const clicked = spy(tab, "clicked");
            tab.forceActiveFocus();
            keyClick(data.key);
            compare([clicked.count, tab.checked], [data.clicks, data.clicks === 1]);
        }

        function test_colorsJumpUnlessAnimated_data() {
            return [
                { tag: "neither", background: false, text: false },
                { tag: "background", background: true, text: false },
                { tag: "text", background: false, text: true },
            ];
        }

        function test_colorsJumpUnlessAnimated(data) {
            const tab = create({ text: "Tab", animateBackgroundColors: data.background,
                                 animateTextColors: data.text });
            const { text, background } = parts(tab);
            tab.focused = true;
            compare(background.color, data.background ? "#aa0001" : "#ff0001");
            compare(text.color, data.text ? "#aa0002" : "#ff0002");
            _scene.clock.step(124);
            compare(background.color == "#ff0001", !data.background);
            compare(text.color == "#ff0002", !data.text);
            _scene.clock.step(1);
            compare(background.color, "#ff0001");
            compare(text.color, "#ff0002");
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
                const tab = create({
                    text: "Tab", backgroundColor: "#000000", textColor: "#000000",
                    backgroundFocusedColor: "#c86428", textFocusedColor: "#c86428",
                    animateBackgroundColors: true, animateTextColors: true,
                    [prefix + "ColorsAnimationEasingType"]: data.type,
                    [prefix + "ColorsAnimationDuration"]: data.duration,
                    [other + "ColorsAnimationDuration"]: 100000,
                });
                tab[prefix + "ColorsBezierAnimationInterpolator"] = data.curve;
                const element = parts(tab)[prefix];
                tab.focused = true;
                for (const color of data.colors) {
                    for (const channel of ["r", "g", "b"])
                        fuzzyCompare(element.color[channel], Qt.color(color)[channel], 1.01 / 255, color);
                    verify(parts(tab)[other].color.r < 0.01);
                    _scene.clock.step(100);
                }
            }
        }
    }
}
