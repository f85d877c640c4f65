// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as QQT
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

// The colour around the keys tells what they leave unpainted.
Rectangle {
    id: _scene

    // White, 24 by 16 pixels.
    readonly property string icon: Qt.resolvedUrl("data/icon.png")

    width: 400
    height: 200
    color: "#0000ff"

    Component {
        id: _component

        KELUIQCG.Key {
            width: 60
            height: 60
            font {
                family: "DejaVu Sans"
                pixelSize: 20
            }
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.Key {}
    }

    Component {
        id: _textComponent

        KELUIQCG.Text {
            color: "#ffffff"
        }
    }

    Component {
        id: _pageComponent

        Rectangle {
            anchors.fill: parent
            color: "#000000"
        }
    }

    Component {
        id: _spyComponent

        SignalSpy {}
    }

    TestCase {
        id: _test

        name: "Key"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function create(properties) {
            const key = createTemporaryObject(_component, _scene, properties ?? {});
            verify(key);
            return key;
        }

        function parts(key) {
            const [label, icon] = key.contentItem.children;
            return { background: key.background, contentItem: key.contentItem, label, icon };
        }

        // The box around all pixels that are lighter than half: those of white letters or icons on black.
        function ink(item) {
            const picture = grabImage(item);
            let left = picture.width, top = picture.height, right = -1, bottom = -1;
            for (let y = 0; y < picture.height; ++y) {
                for (let x = 0; x < picture.width; ++x) {
                    if (picture.red(x, y) < 128)
                        continue;
                    left = Math.min(left, x);
                    right = Math.max(right, x);
                    top = Math.min(top, y);
                    bottom = Math.max(bottom, y);
                }
            }
            return { x: left, y: top, width: right - left + 1, height: bottom - top + 1 };
        }

        function test_defaults_data() {
            return [
                { tag: "type", value: 0 },
                { tag: "layout", value: 0 },
                { tag: "isInteractive", value: true },
                { tag: "backgroundColor", value: "#ff0000" },
                { tag: "roundingRadius", value: 0 },
                { tag: "text", value: "NaN" },
                { tag: "textColor", value: "#008000" },
                { tag: "imagePath", value: "" },
                { tag: "font", value: Application.font },
                { tag: "implicitWidth", value: 0 },
                { tag: "implicitHeight", value: 0 },
                { tag: "padding", value: 0 },
                { tag: "focusPolicy", value: Qt.NoFocus },
            ];
        }

        function test_defaults(data) {
            const key = createTemporaryObject(_bareComponent, _scene);
            compare(key[data.tag], data.value);
        }

        function test_isATemplateControl() {
            verify(create() instanceof QQT.Control);
        }

        function test_isInteractiveIsReadOnly() {
            const key = create();
            try {
                key.isInteractive = false;
                fail("written");
            } catch (error) {
                verify(error instanceof TypeError, error);
            }
            compare(key.isInteractive, true);
        }

        function test_typeAndLayoutTakeAnyNumber() {
            const key = create();
            for (const name of ["type", "layout"]) {
                for (const value of [-2147483648, -1, 7, 8, 2147483647]) {
                    key[name] = value;
                    compare(key[name], value);
                }
            }
            compare(key.text, "NaN");
        }

        function test_changesAreSignalled_data() {
            return [
                { tag: "type", value: KELUIQCG.KelGlobal.RightKey },
                { tag: "layout", value: KELUIQCG.KelGlobal.NumericLayout },
                { tag: "backgroundColor", value: "#123456" },
                { tag: "roundingRadius", value: 4.5 },
                { tag: "text", value: "ё" },
                { tag: "textColor", value: "#654321" },
                { tag: "imagePath", value: _scene.icon },
            ];
        }

        function test_changesAreSignalled(data) {
            const key = create();
            const spy = createTemporaryObject(_spyComponent, _test,
                                              { target: key, signalName: data.tag + "Changed" });
            for (let times = 0; times < 2; ++times)
                key[data.tag] = data.value;
            compare(spy.count, 1);
            compare(key[data.tag], data.value);
        }

        function test_kindsOfParts() {
            const key = create();
            const { background, contentItem, label, icon } = parts(key);
            verify(background instanceof KELUIQCG.Rectangle);
            verify(label instanceof KELUIQCG.Text);
            verify(icon instanceof Image);
            compare(contentItem.children.length, 2);
            for (const other of [Text, Image, Rectangle, QQT.Control])
                verify(!(contentItem instanceof other));
        }

        function test_partsFollow() {
            const key = create();
            const { background, label, icon } = parts(key);
            compare(background.color, "#ff0000");
            compare(background.roundingRadius, 0);
            compare(label.text, "NaN");
            compare(label.color, "#008000");
            compare(label.maximumLineCount, 1);
            compare(label.font, key.font);
            compare(icon.source, "");
            key.backgroundColor = "#123456";
            key.roundingRadius = 9.5;
            key.text = "ё";
            key.textColor = "#654321";
            key.font.pixelSize = 31;
            key.font.italic = true;
            key.imagePath = _scene.icon;
            compare(background.color, "#123456");
            compare(background.roundingRadius, 9.5);
            compare(background.forceRounding, false);
            compare(label.text, "ё");
            compare(label.color, "#654321");
            compare(label.font.pixelSize, 31);
            compare(label.font.italic, true);
            compare(icon.source, _scene.icon);
            compare([icon.width, icon.height], [24, 16]);
        }

        function test_partsFillTheKey() {
            const key = create();
            for (const [width, height] of [[60, 60], [91, 33]]) {
                key.width = width;
                key.height = height;
                for (const part of [key.background, key.contentItem])
                    compare([part.x, part.y, part.width, part.height], [0, 0, width, height]);
            }
        }

        function test_labelAndIconStayVisible_data() {
            return [
                { tag: "neither", text: "", imagePath: "" },
                { tag: "label", text: "A", imagePath: "" },
                { tag: "icon", text: "", imagePath: _scene.icon },
                { tag: "both", text: "A", imagePath: _scene.icon },
            ];
        }

        function test_labelAndIconStayVisible(data) {
            const { label, icon } = parts(create({ text: data.text, imagePath: data.imagePath }));
            compare([label.visible, icon.visible], [true, true]);
            compare([label.opacity, icon.opacity], [1, 1]);
            compare(label.width > 0, data.text !== "");
            compare(icon.width > 0, data.imagePath !== "");
        }

        function test_cornersStaySquare_data() {
            return [0, 1, 15, 30, 1000, -5].map(radius => ({ tag: radius, radius }));
        }

        function test_cornersStaySquare(data) {
            const key = create({ text: "", backgroundColor: "#336699", roundingRadius: data.radius });
            compare(key.background.radius, 0);
            const picture = grabImage(key);
            for (let x = 0; x < 60; ++x) {
                for (let y = 0; y < 60; ++y)
                    verify(Qt.colorEqual(picture.pixel(x, y), "#336699"), [x, y, picture.pixel(x, y)]);
            }
        }

        function test_labelIsOneLine() {
            const line = create({ text: "A B" });
            const lines = create({ text: "A\nB" });
            compare(parts(lines).label.height, parts(line).label.height);
        }

        function test_iconIsInTheMiddle_data() {
            return [
                { tag: "square", width: 60, height: 60, x: 18, y: 22 },
                { tag: "wide", width: 390, height: 60, x: 183, y: 22 },
                { tag: "tall", width: 40, height: 120, x: 8, y: 52 },
                { tag: "just as large", width: 24, height: 16, x: 0, y: 0 },
            ];
        }

        function test_iconIsInTheMiddle(data) {
            const key = create({ text: "", imagePath: _scene.icon, backgroundColor: "#000000", width: data.width,
                                 height: data.height });
            compare(ink(key), { x: data.x, y: data.y, width: 24, height: 16 });
        }

        function test_largeIconReachesBeyondTheKeyAlike() {
            const { contentItem, icon } = parts(create({ imagePath: _scene.icon, width: 10, height: 6 }));
            const corner = icon.mapToItem(contentItem, 0, 0);
            compare([corner.x, corner.y], [-7, -5]);
        }

        function test_labelIsInTheMiddle_data() {
            const rows = [];
            for (const text of ["H", "HOH", "—", "ж", "1#+", "Рус"]) {
                for (const pixelSize of [12, 21]) {
                    for (const [width, height] of [[60, 60], [201, 60], [60, 101]])
                        rows.push({ tag: [text, pixelSize, width, height].join(", "), text, pixelSize, width,
                                    height });
                }
            }
            return rows;
        }

        // Letters have room of their own around them, so that a text by itself tells where they are in it.
        function test_labelIsInTheMiddle(data) {
            const font = Qt.font({ family: "DejaVu Sans", pixelSize: data.pixelSize });
            const page = createTemporaryObject(_pageComponent, _scene);
            const text = createTemporaryObject(_textComponent, page, { text: data.text, font });
            const own = ink(text);
            const size = [text.width, text.height];
            const key = create({ text: data.text, font, width: data.width, height: data.height,
                                 textColor: "#ffffff", backgroundColor: "#000000" });
            const found = ink(key);
            compare([found.width, found.height], [own.width, own.height]);
            fuzzyCompare(found.x, (data.width - size[0]) / 2 + own.x, 1);
            fuzzyCompare(found.y, (data.height - size[1]) / 2 + own.y, 1);
            // The room beside a letter is two pixels at most.
            fuzzyCompare(found.x, data.width - found.x - found.width, 4);
        }

        function test_labelStaysInTheMiddle() {
            const key = create({ text: "H", textColor: "#ffffff", backgroundColor: "#000000" });
            const before = ink(key);
            key.width = 160;
            key.height = 90;
            compare(ink(key), Object.assign(before, { x: before.x + 50, y: before.y + 15 }));
            key.text = "HH";
            const { contentItem, label } = parts(key);
            const middle = label.mapToItem(contentItem, label.width / 2, label.height / 2);
            fuzzyCompare(middle.x, 80, 0.5);
            fuzzyCompare(middle.y, 45, 0.5);
        }

        function test_longLabelReachesBeyondTheKeyAlike() {
            const { contentItem, label } = parts(create({ text: "A label that is wider than its key" }));
            verify(label.width > 60);
            fuzzyCompare(label.mapToItem(contentItem, label.width / 2, 0).x, 30, 0.5);
        }

        // The icon comes last, so that it covers the label.
        function test_iconLiesOverTheLabel() {
            const key = create({ text: "█", textColor: "#00ff00", imagePath: _scene.icon });
            const picture = grabImage(key);
            compare(picture.pixel(30, 30), "#ffffff");
            key.imagePath = "";
            compare(grabImage(key).pixel(30, 30), "#00ff00");
        }

        function test_emptyPartsAreNotSeen() {
            const picture = grabImage(create({ text: "" }));
            for (let at = 0; at < 60; ++at) {
                compare(picture.pixel(at, 30), "#ff0000");
                compare(picture.pixel(30, at), "#ff0000");
            }
        }
    }
}
