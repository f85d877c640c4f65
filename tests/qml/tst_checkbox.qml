// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as QQT
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

// The colour around the boxes tells what they leave unpainted.
Rectangle {
    id: _scene

    // White, 24 by 16 pixels.
    readonly property string icon: Qt.resolvedUrl("data/icon.png")
    readonly property var indicatorColors: ({ disabled: "#dd0001", checked: "#cc0001", focused: "#ff0001",
                                              normal: "#aa0001" })
    // The alpha counts only.
    readonly property var iconColors: ({ disabled: "#33ff0000", checked: "#66ff0000", focused: "#99ff0000",
                                         normal: "#ccff0000" })
    readonly property var titleColors: ({ disabled: "#dd0003", checked: "#cc0003", focused: "#ff0003",
                                          normal: "#aa0003" })

    width: 900
    height: 400
    color: "#0000ff"

    Component {
        id: _component

        KELUIQCG.CheckBox {
            indicatorColors: _scene.indicatorColors
            iconColors: _scene.iconColors
            titleColors: _scene.titleColors
            titleFont {
                family: "DejaVu Sans"
                pixelSize: 20
            }
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.CheckBox {}
    }

    // Two boxes share the width of a row, whose own width is that for which they ask.
    Component {
        id: _rowComponent

        RowLayout {
            id: _row

            property list<Item> boxes: [_left, _right]

            width: implicitWidth

            KELUIQCG.CheckBox {
                id: _left

                Layout.fillWidth: true
                indicatorColors: _scene.indicatorColors
                iconColors: _scene.iconColors
                titleColors: _scene.titleColors
                text: "Several words of a title"
            }

            KELUIQCG.CheckBox {
                id: _right

                Layout.fillWidth: true
                indicatorColors: _scene.indicatorColors
                iconColors: _scene.iconColors
                titleColors: _scene.titleColors
                text: "Short"
            }
        }
    }

    Component {
        id: _columnComponent

        ColumnLayout {
            property list<Item> boxes: [_box]

            width: _box.implicitWidth

            KELUIQCG.CheckBox {
                id: _box

                Layout.maximumWidth: 200
                Layout.fillWidth: true
                indicatorColors: _scene.indicatorColors
                iconColors: _scene.iconColors
                titleColors: _scene.titleColors
                text: "Several words of a title that do not fit"
            }
        }
    }

    Component {
        id: _spyComponent

        SignalSpy {}
    }

    TestCase {
        id: _test

        readonly property string longText: "Several words of a title that is too long for the boxes in these tests"

        name: "CheckBox"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function create(properties, component) {
            const box = createTemporaryObject(component ?? _component, _scene, properties ?? {});
            verify(box);
            return box;
        }

        function parts(box) {
            return { indicator: box.indicator, icon: box.indicator.children[0], title: box.contentItem.children[0] };
        }

        function spy(target, signalName) {
            return createTemporaryObject(_spyComponent, _test, { target, signalName });
        }

        function test_defaults_data() {
            return [
                { tag: "focused", value: false },
                { tag: "forceRounding", value: false },
                { tag: "roundingRadius", value: 9 },
                { tag: "indicatorSize", value: Qt.size(60, 60) },
                { tag: "iconPath", value: "" },
                { tag: "spacing", value: 24 },
                { tag: "checked", value: false },
                { tag: "text", value: "" },
                { tag: "implicitWidth", value: 84 },
                { tag: "implicitHeight", value: 60 },
            ];
        }

        function test_defaults(data) {
            compare(create()[data.tag], data.value);
        }

        function test_unsetMapsWarnAndLeaveTheColors() {
            // For each of the three elements, the failed look-up and what never came of it.
            ignoreUndefined(6);
            const bare = create({}, _bareComponent);
            for (const map of ["indicatorColors", "iconColors", "titleColors"]) {
                verify(map in bare, map);
                compare(bare[map], undefined, map);
            }
            compare(bare.titleFont, Application.font);
            compare(parts(bare).icon.opacity, 1);

            const box = create({ text: "Title" });
            ignoreUndefined(6);
            box.indicatorColors = undefined;
            box.iconColors = undefined;
            box.titleColors = undefined;
            compare(parts(box).indicator.color, "#aa0001");
            fuzzyCompare(parts(box).icon.opacity, 0.8, 0.001);
            compare(parts(box).title.color, "#aa0003");
        }

        function ignoreUndefined(count) {
            for (let warning = 0; warning < count; ++warning)
                ignoreWarning(/TypeError: .*undefined|Could not find any constructor for value type .*undefined/);
        }

        function test_isATemplateCheckBox() {
            verify(create() instanceof QQT.CheckBox);
        }

        function test_frameSourceItemIsTheIndicator() {
            const box = create({ text: "Title" });
            compare(box.frameSourceItem, box.indicator);
            try {
                box.frameSourceItem = box;
                fail("written");
            } catch (error) {
                verify(error instanceof TypeError, error);
            }
        }

        function test_size_data() {
            return [
                { tag: "text", properties: { text: "Title" }, beside: 84, height: 60 },
                { tag: "spacing", properties: { text: "Title", spacing: 5 }, beside: 65, height: 60 },
                { tag: "flat indicator", properties: { text: "Title", indicatorSize: Qt.size(100, 2) }, beside: 124 },
                { tag: "high indicator", properties: { text: "Title", indicatorSize: Qt.size(10, 99) }, beside: 34,
                  height: 99 },
                { tag: "no indicator", properties: { text: "Title", indicatorSize: Qt.size(0, 0) }, beside: 24 },
                { tag: "no text", properties: {}, beside: 84, height: 60 },
                { tag: "paddings do not count", properties: { text: "Title", padding: 30 }, beside: 84, height: 60 },
            ];
        }

        function test_size(data) {
            const box = create(data.properties);
            const { title, indicator } = parts(box);
            tryCompare(box, "implicitWidth", title.implicitWidth + data.beside);
            compare(box.implicitHeight, data.height ?? title.implicitHeight);
            compare(box.implicitWidth, box.contentItem.implicitWidth);
            const size = data.properties.indicatorSize ?? Qt.size(60, 60);
            compare([indicator.width, indicator.height], [size.width, size.height]);
        }

        function test_arrangement() {
            const box = create({ text: "Title", width: 400, height: 100 });
            const { indicator, icon, title } = parts(box);
            compare([indicator.x, indicator.y], [0, 20]);
            compare([icon.x, icon.y, icon.width, icon.height], [0, 0, 60, 60]);
            compare(icon.fillMode, Image.Pad);
            tryCompare(title, "width", 400 - 84);
            compare(title.x, 84);
            compare(title.textWidth, 400 - 84);
            compare(title.horizontalAlignment, Qt.AlignLeft);
            compare(title.font, box.titleFont);
            compare(title.text, "Title");
            fuzzyCompare(title.y + title.height / 2, 50, 0.5);
        }

        function test_indicatorIsInTheMiddle_data() {
            return [
                { height: 60, box: 57, y: 1 },
                { height: 60, box: 61, y: -1 },
                { height: 60, box: 63, y: -2 },
                { height: 61, box: 60, y: 1 },
                { height: 60.4, box: 57, y: 1 },
                { height: 99, box: 61, y: 19 },
            ].map(row => Object.assign(row, { tag: row.box + " in " + row.height }));
        }

        // Where anchors would put it, on whole pixels.
        function test_indicatorIsInTheMiddle(data) {
            const box = create({ height: data.height, indicatorSize: Qt.size(20, data.box) });
            compare(parts(box).indicator.y, data.y);
        }

        function test_corners_data() {
            return [
                { tag: "square", properties: { roundingRadius: 20 }, radius: 0, corner: "#aa0001" },
                { tag: "round", properties: { roundingRadius: 20, forceRounding: true }, radius: 20,
                  corner: "#0000ff" },
                { tag: "default round", properties: { forceRounding: true }, radius: 9, corner: "#0000ff" },
            ];
        }

        function test_corners(data) {
            const box = create(data.properties);
            compare(box.indicator.radius, data.radius);
            const picture = grabImage(_scene);
            for (const [x, y] of [[0, 0], [59, 0], [0, 59], [59, 59]])
                compare(picture.pixel(x, y), data.corner);
            compare(picture.pixel(30, 30), "#aa0001");
        }

        function test_states_data() {
            const rows = [];
            for (const enabled of [true, false]) {
                for (const checked of [false, true]) {
                    for (const focused of [false, true]) {
                        rows.push({
                            tag: [enabled ? "enabled" : "disabled", checked ? "checked" : "unchecked",
                                  focused ? "focused" : "not focused"].join(", "),
                            enabled, checked, focused,
                            key: !enabled ? "disabled" : checked ? "checked" : focused ? "focused" : "normal",
                        });
                    }
                }
            }
            return rows;
        }

        function test_states(data) {
            const states = { enabled: data.enabled, checked: data.checked, focused: data.focused };
            const created = create(Object.assign({ text: "Title" }, states));
            const changed = create({ text: "Title" });
            for (const name in states)
                changed[name] = states[name];
            for (const box of [created, changed]) {
                const { indicator, icon, title } = parts(box);
                compare(indicator.color, _scene.indicatorColors[data.key]);
                fuzzyCompare(icon.opacity, Qt.color(_scene.iconColors[data.key]).a, 0.0001);
                compare(icon.visible, data.checked);
                compare(title.color, _scene.titleColors[data.key]);
                compare(box.stateColor({ [data.key]: "#123456" }), "#123456");
            }
        }

        // In the middle of the box, in its own size and colours, as strong as its state's alpha tells.
        function test_iconIsDrawnWhileChecked() {
            const box = create({ iconPath: _scene.icon, indicatorColors: { checked: "#000000", normal: "#000000" } });
            compare(parts(box).icon.source, _scene.icon);
            compare(grabImage(box).pixel(30, 30), "#000000");
            box.checked = true;
            const picture = grabImage(box);
            for (const [x, y] of [[18, 22], [41, 22], [18, 37], [41, 37], [30, 30]]) {
                for (const channel of ["red", "green", "blue"])
                    fuzzyCompare(picture[channel](x, y), 0x66, 1, x + " " + y);
            }
            for (const [x, y] of [[17, 30], [42, 30], [30, 21], [30, 38]])
                compare(picture.pixel(x, y), "#000000", x + " " + y);
        }

        function test_clickChecksAndUnchecks() {
            const box = create({ text: "Title" });
            const clicked = spy(box, "clicked");
            mouseClick(box);
            compare([clicked.count, box.checked], [1, true]);
            mouseClick(box);
            compare([clicked.count, box.checked], [2, false]);
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
            const box = create({ text: "Title" });
            const clicked = spy(box, "clicked");
            box.forceActiveFocus();
            keyClick(data.key);
            compare([clicked.count, box.checked], [data.clicks, data.clicks === 1]);
        }

        function test_longTitleWraps() {
            const line = parts(create({ text: longText })).title.implicitHeight;
            const box = create({ text: longText, width: 84 + 200 });
            const { title } = parts(box);
            tryCompare(title, "textWidth", 200);
            verify(title.implicitWidth <= 200);
            compare(title.implicitHeight % line, 0);
            verify(title.implicitHeight >= 3 * line);
            tryCompare(box, "implicitHeight", title.implicitHeight);
            compare(box.implicitWidth, 84 + title.implicitWidth);
            box.text = "Title";
            tryCompare(box, "implicitHeight", 60);
            compare([title.implicitHeight, title.textWidth], [line, 200]);
            box.text = longText;
            tryCompare(box, "implicitHeight", title.implicitHeight);
            verify(title.implicitHeight >= 3 * line);
            box.width = 900;
            tryCompare(title, "implicitHeight", line);
            compare(title.textWidth, 900 - 84);
        }

        function test_settles_data() {
            const widths = [0, 10, 84, 85, 99.5, 120, 200, 284.25, 900];
            const rows = padding => widths.map(width => ({ tag: `${width}, ${padding}`, width, padding }));
            return rows(0).concat(rows(7));
        }

        // A title must not ask for less than it was given again and again.
        function test_settles(data) {
            const box = create({ text: longText, width: data.width, padding: data.padding });
            const { title } = parts(box);
            waitForItemPolished(box.contentItem);
            const before = [box.implicitWidth, box.implicitHeight, title.width, title.textWidth];
            for (let pass = 0; pass < 20; ++pass) {
                box.width = data.width + 7 - pass % 2 * 7;
                waitForItemPolished(box.contentItem);
            }
            compare([box.implicitWidth, box.implicitHeight, title.width, title.textWidth], before);
        }

        function test_titleWithoutAWidthIsNotBroken_data() {
            return [
                { tag: "spacing", properties: { spacing: 24.3 } },
                { tag: "indicator", properties: { indicatorSize: Qt.size(60.3, 60) } },
                { tag: "both", properties: { spacing: 24.3, indicatorSize: Qt.size(60.15, 60) } },
                { tag: "paddings", properties: { padding: 7 } },
                { tag: "a padding", properties: { rightPadding: 300 } },
                { tag: "fractions and paddings", properties: { spacing: 24.7, padding: 0.4 } },
            ];
        }

        // Paddings and fractions leave less room than the title asks for.
        function test_titleWithoutAWidthIsNotBroken(data) {
            const text = "Several words of a title";
            const { title: whole } = parts(create({ text }));
            const late = create({ text });
            waitForItemPolished(late.contentItem);
            for (const name in data.properties)
                late[name] = data.properties[name];
            for (const box of [late, create(Object.assign({ text }, data.properties))]) {
                const { title } = parts(box);
                const check = () => {
                    for (let pass = 0; pass < 5; ++pass)
                        waitForItemPolished(box.contentItem);
                    compare([title.implicitWidth, title.implicitHeight], [whole.implicitWidth, whole.implicitHeight]);
                    compare(box.implicitWidth, box.contentItem.implicitWidth);
                };
                check();
                // As a layout of the application rounds it.
                for (const round of [Math.floor, Math.round, Math.ceil]) {
                    box.width = round(box.implicitWidth);
                    check();
                }
            }
        }

        function test_ownImplicitWidthDoesNotCreep_data() {
            const texts = ["Title", "Several words of a title", "Two\u2028lines", "fi AV Ж й"];
            return texts.map(text => ({ tag: text, text }));
        }

        function test_ownImplicitWidthDoesNotCreep(data) {
            const box = create({ text: data.text });
            const before = [box.implicitWidth, box.implicitHeight];
            for (let pass = 0; pass < 20; ++pass) {
                box.width = box.implicitWidth + pass % 3;
                waitForItemPolished(box.contentItem);
                box.width = box.implicitWidth;
                waitForItemPolished(box.contentItem);
                compare([box.implicitWidth, box.implicitHeight], before, pass);
            }
        }

        function test_sharedWidthDoesNotCreep_data() {
            return [
                { tag: "row", component: _rowComponent },
                { tag: "column", component: _columnComponent },
            ];
        }

        function test_sharedWidthDoesNotCreep(data) {
            const layout = create({}, data.component);
            // The first pass may break the title, and the second takes its new width.
            relayout(layout);
            relayout(layout);
            const state = () => [layout.width].concat(layout.boxes.map(box => box.width),
                                                      layout.boxes.map(box => box.implicitWidth));
            const before = state();
            verify(before[0] > 84);
            for (let pass = 0; pass < 20; ++pass) {
                layout.spacing = 6 - pass % 2;
                relayout(layout);
            }
            compare(state(), before);
        }

        function relayout(layout) {
            waitForItemPolished(layout);
            for (const box of layout.boxes)
                waitForItemPolished(box.contentItem);
        }
    }
}
