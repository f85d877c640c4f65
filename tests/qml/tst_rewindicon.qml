// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    // From the test program, which qmllint does not know.
    property var clock

    // White, 24 by 16 pixels.
    readonly property string icon: Qt.resolvedUrl("data/icon.png")

    width: 400
    height: 300

    Component {
        id: _component

        KELUIQCG.RewindIcon {
            source: _scene.icon
            textFont {
                family: "DejaVu Sans"
                pixelSize: 20
            }
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.RewindIcon {}
    }

    Component {
        id: _parentComponent

        Item {}
    }

    TestCase {
        id: _test

        name: "RewindIcon"
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

        function create(properties, parent) {
            const icon = createTemporaryObject(_component, parent ?? _scene, properties ?? {});
            verify(icon);
            return icon;
        }

        function parts(icon) {
            const column = icon.children.find(child => child.children.length > 0);
            const [row, text] = column.children;
            return { column, row, text, images: Array.from(row.children).filter(child => "mirror" in child) };
        }

        function opacities(icon) {
            return parts(icon).images.map(image => image.opacity);
        }

        function mirrors(icon) {
            return parts(icon).images.map(image => image.mirror);
        }

        function steps(count, milliseconds) {
            for (let step = 0; step < count; ++step)
                _scene.clock.step(milliseconds);
        }

        function test_defaults_data() {
            return [
                { tag: "source", value: "" },
                { tag: "speed", value: 1 },
                { tag: "currentIcon", value: 0 },
                { tag: "iconCount", value: 3 },
                { tag: "currentIconOpacity", value: 1.0 },
                { tag: "otherIconOpacity", value: 0.5 },
                { tag: "iconSize", value: Qt.size(57, 57) },
                { tag: "iconSpacing", value: 9 },
                { tag: "contentSpacing", value: 18 },
                { tag: "textFont", value: Application.font },
                { tag: "textColor", value: "#000000" },
                { tag: "implicitWidth", value: 0 },
                { tag: "implicitHeight", value: 0 },
            ];
        }

        function test_defaults(data) {
            compare(createTemporaryObject(_bareComponent, _scene)[data.tag], data.value);
        }

        function test_arrangement() {
            const icon = create({ width: 300, height: 200, iconSize: Qt.size(24, 16), speed: 12, textColor: "#ff0001",
                                  iconSpacing: 5, contentSpacing: 7 });
            const { column, row, text, images } = parts(icon);
            compare(images.length, 3);
            for (const image of images) {
                compare([image.source, image.sourceSize], [_scene.icon, Qt.size(24, 16)]);
                compare([image.width, image.height], [24, 16]);
            }
            tryCompare(row, "width", 3 * 24 + 2 * 5);
            compare(images.map(image => image.x), [0, 29, 58]);
            compare([text.text, text.color.toString(), text.font], ["x12", "#ff0001", icon.textFont]);
            tryCompare(text, "y", row.height + 7);
            compare(column.spacing, 7);
            fuzzyCompare(column.x + column.width / 2, 150, 0.5);
            fuzzyCompare(column.y + column.height / 2, 100, 0.5);
            for (const item of [row, text])
                fuzzyCompare(item.x + item.width / 2, column.width / 2, 0.5);
        }

        function test_imagesAreReadAtCreation() {
            const icon = create({ iconSize: Qt.size(24, 16), otherIconOpacity: 0.25 });
            icon.source = "";
            icon.iconSize = Qt.size(99, 99);
            icon.otherIconOpacity = 0.75;
            compare(opacities(icon), [0.25, 0.25, 0.25]);
            steps(5, 1000);
            for (const image of parts(icon).images)
                compare([image.source, image.sourceSize], [_scene.icon, Qt.size(24, 16)]);
        }

        function test_runs_data() {
            return [
                { tag: "forward", properties: { speed: 1 }, lit: [1, 2, 3, 0, 1, 2, 3, 0] },
                { tag: "back", properties: { speed: -1 }, lit: [2, 1, 0, 2, 1, 0] },
                { tag: "forward from the last", properties: { speed: 1, currentIcon: 3 }, lit: [0, 1] },
                { tag: "back from the last", properties: { speed: -1, currentIcon: 3 }, lit: [2, 1] },
                { tag: "forward from beyond", properties: { speed: 1, currentIcon: 99 }, lit: [0, 1] },
                { tag: "back from before", properties: { speed: -1, currentIcon: -99 }, lit: [2, 1] },
            ];
        }

        function test_runs(data) {
            const icon = create({ speed: data.properties.speed });
            compare(icon.currentIcon, 0);
            compare(opacities(icon), [0.5, 0.5, 0.5]);
            compare(mirrors(icon), [false, false, false]);
            icon.currentIcon = data.properties.currentIcon ?? 0;
            for (const lit of data.lit) {
                _scene.clock.step(1000);
                compare(icon.currentIcon, lit);
                compare(opacities(icon), [0, 1, 2].map(index => index === lit ? 1 : 0.5));
                compare(mirrors(icon), Array(3).fill(data.properties.speed < 0));
            }
        }

        // The step beyond the last position is taken before the position is corrected.
        function test_positionsAreSignalledAsTheyAreSet() {
            const icon = create({ speed: 1 });
            const positions = [];
            icon.currentIconChanged.connect(() => positions.push(icon.currentIcon));
            steps(4, 1000);
            compare(positions, [1, 2, 3, 4, 0]);
            positions.length = 0;
            icon.speed = -1;
            steps(2, 1000);
            compare(positions, [-1, 2, 1]);
        }

        function test_speeds_data() {
            return [
                { tag: "1", speed: 1, interval: 1000, text: "x1" },
                { tag: "2", speed: 2, interval: 500, text: "x2" },
                { tag: "-4", speed: -4, interval: 250, text: "x4" },
                { tag: "6", speed: 6, interval: 166, text: "x6" },
                { tag: "-7", speed: -7, interval: 142, text: "x7" },
                { tag: "999", speed: 999, interval: 1, text: "x999" },
                { tag: "1000", speed: 1000, interval: 1, text: "x1000" },
                { tag: "0", speed: 0, interval: 0, text: "x0" },
                { tag: "1001", speed: 1001, interval: 0, text: "x1001" },
                { tag: "-2147483648", speed: -2147483648, interval: 0, text: "x2147483648" },
                { tag: "2147483647", speed: 2147483647, interval: 0, text: "x2147483647" },
            ];
        }

        function test_speeds(data) {
            const created = create({ speed: data.speed });
            const changed = create({ speed: 3 });
            changed.speed = data.speed;
            const lit = () => [created.currentIcon, changed.currentIcon];
            compare([parts(created).text.text, parts(changed).text.text], [data.text, data.text]);
            if (data.interval === 0) {
                steps(5, 1000);
                compare(lit(), [0, 0]);
                return;
            }
            for (const expected of data.speed > 0 ? [1, 2, 3, 0] : [2, 1, 0, 2]) {
                const before = lit();
                _scene.clock.step(data.interval - 1);
                compare(lit(), before);
                _scene.clock.step(1);
                compare(lit(), [expected, expected]);
            }
        }

        function test_newSpeedCountsAtOnceForTheText() {
            const icon = create({ speed: 2 });
            steps(2, 500);
            compare(icon.currentIcon, 2);
            icon.speed = -4;
            compare(parts(icon).text.text, "x4");
            compare(mirrors(icon), [false, false, false]);
            compare(opacities(icon), [0.5, 0.5, 1]);
            _scene.clock.step(250);
            compare(mirrors(icon), [true, true, true]);
            compare(opacities(icon), [0.5, 1, 0.5]);
            icon.speed = 2;
            _scene.clock.step(500);
            compare(mirrors(icon), [false, false, false]);
            compare(icon.currentIcon, 2);
            icon.speed = 0;
            compare(parts(icon).text.text, "x0");
            steps(5, 1000);
            compare(icon.currentIcon, 2);
        }

        function test_opacitiesAreTakenAtTheTick() {
            const icon = create({ currentIconOpacity: 0.75, otherIconOpacity: 0.25 });
            compare(opacities(icon), [0.25, 0.25, 0.25]);
            _scene.clock.step(1000);
            compare(opacities(icon), [0.25, 0.75, 0.25]);
            icon.currentIconOpacity = 0.5;
            icon.otherIconOpacity = 0.125;
            compare(opacities(icon), [0.25, 0.75, 0.25]);
            _scene.clock.step(1000);
            compare(opacities(icon), [0.125, 0.125, 0.5]);
        }

        function test_hiddenItStandsAndStartsAnew() {
            const parent = createTemporaryObject(_parentComponent, _scene);
            const icon = create({}, parent);
            for (const item of [icon, parent]) {
                steps(2, 1000);
                compare(icon.currentIcon, 2);
                _scene.clock.step(600);
                item.visible = false;
                compare(icon.currentIcon, 0);
                compare(opacities(icon), [0.5, 0.5, 1]);
                steps(3, 1000);
                compare(icon.currentIcon, 0);
                icon.currentIcon = 2;
                item.visible = true;
                compare(icon.currentIcon, 0);
                compare(opacities(icon), [0.5, 0.5, 1]);
                _scene.clock.step(999);
                compare(icon.currentIcon, 0);
                _scene.clock.step(1);
                compare(icon.currentIcon, 1);
                compare(opacities(icon), [0.5, 1, 0.5]);
                item.visible = false;
                item.visible = true;
            }
        }

        function test_fewerIcons_data() {
            return [
                { tag: "forward, two", speed: 1, iconCount: 2, lit: [1, 2, 0], changed: 2 },
                { tag: "back, two", speed: -1, iconCount: 2, lit: [1, 0, 1], changed: 2 },
                { tag: "forward, one", speed: 1, iconCount: 1, lit: [1, 0, 1], changed: 1 },
                { tag: "forward, none", speed: 1, iconCount: 0, lit: [0, 0, 0], changed: 0 },
            ];
        }

        function test_fewerIcons(data) {
            const icon = create({ speed: data.speed, iconCount: data.iconCount, otherIconOpacity: 0.25 });
            icon.otherIconOpacity = 0.5;
            for (const lit of data.lit) {
                _scene.clock.step(1000);
                compare(icon.currentIcon, lit);
                compare(opacities(icon),
                        [0, 1, 2].map(index => index >= data.changed ? 0.25 : index === lit ? 1 : 0.5));
                compare(mirrors(icon), [0, 1, 2].map(index => index < data.changed && data.speed < 0));
            }
        }

        function test_absurdlyManyIconsDoNotHang() {
            const icon = create({ iconCount: 2147483647 });
            for (let warning = 0; warning < 2 * 97; ++warning)
                ignoreWarning(/ListModel: set: index [0-9]+ out of range/);
            _scene.clock.step(1000);
            compare(icon.currentIcon, 1);
            compare(opacities(icon), [0.5, 1, 0.5]);
        }

        function test_moreIconsWarnAndRun_data() {
            return [
                { tag: "forward", speed: 1, lit: [1, 2, 3, 4, 5, 0] },
                { tag: "back", speed: -1, lit: [4, 3, 2, 1, 0, 4] },
            ];
        }

        function test_moreIconsWarnAndRun(data) {
            const icon = create({ speed: data.speed, iconCount: 5 });
            for (const lit of data.lit) {
                // Two of each icon that is not there.
                for (let warning = 0; warning < 4; ++warning)
                    ignoreWarning(/ListModel: set: index [34] out of range/);
                _scene.clock.step(1000);
                compare(icon.currentIcon, lit);
                compare(opacities(icon), [0, 1, 2].map(index => index === lit ? 1 : 0.5));
                compare(mirrors(icon), Array(3).fill(data.speed < 0));
            }
        }
    }
}
