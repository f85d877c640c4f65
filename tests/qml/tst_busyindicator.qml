// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

// The colour around the indicators tells what they leave unpainted.
Rectangle {
    id: _scene

    // From the test program, which qmllint does not know.
    property var clock

    // Eight frames of 60 by 60 pixels each, of which a pixel tells frame, column and strip; and less than two.
    readonly property string rightStrip: Qt.resolvedUrl("data/strip_right.png")
    readonly property string leftStrip: Qt.resolvedUrl("data/strip_left.png")
    readonly property string briefStrip: Qt.resolvedUrl("data/strip_short.png")

    width: 600
    height: 400
    color: "#ffffff"

    Component {
        id: _component

        KELUIQCG.BusyIndicator {
            headerFont {
                family: "DejaVu Sans"
                pixelSize: 20
            }
            descriptionFont {
                family: "DejaVu Sans"
                pixelSize: 14
            }
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.BusyIndicator {}
    }

    Component {
        id: _parentComponent

        Item {
            width: 300
            height: 200
        }
    }

    Component {
        id: _spyComponent

        SignalSpy {}
    }

    TestCase {
        id: _test

        readonly property string longText: "Several words that are too long for one line"
        readonly property string longerText: longText + ", and by far too long for two of them, which is why they end"

        name: "BusyIndicator"
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
            const indicator = createTemporaryObject(_component, parent ?? _scene, properties ?? {});
            verify(indicator);
            return indicator;
        }

        //! One that plays the strips of eight frames each.
        function play(properties) {
            return create(Object.assign({ imageLeft: _scene.leftStrip, imageRight: _scene.rightStrip,
                                          animationInterval: 100 }, properties));
        }

        function parts(indicator) {
            const header = findChild(indicator, "headerLabel");
            const description = findChild(indicator, "descriptionLabel");
            const viewport = indicator.children.find(child => child.clip);
            const [left, right] = viewport.children;
            return { header, description, texts: header.parent, viewport, left, right };
        }

        function spy(target, signalName) {
            return createTemporaryObject(_spyComponent, _test, { target, signalName });
        }

        function steps(count, milliseconds) {
            for (let step = 0; step < count; ++step)
                _scene.clock.step(milliseconds);
        }

        function test_defaults_data() {
            return [
                { tag: "imageLeft", value: "" },
                { tag: "imageRight", value: "" },
                { tag: "header", value: "" },
                { tag: "headerFont", value: Application.font },
                { tag: "headerColor", value: "#000000" },
                { tag: "headerLeftMargin", value: 0 },
                { tag: "headerRightMargin", value: 0 },
                { tag: "description", value: "" },
                { tag: "descriptionFont", value: Application.font },
                { tag: "descriptionColor", value: "#000000" },
                { tag: "descriptionLeftMargin", value: 0 },
                { tag: "descriptionRightMargin", value: 0 },
                { tag: "animationInterval", value: 0 },
                { tag: "currentFrameIndex", value: 0 },
                { tag: "frameCount", value: 0 },
                { tag: "switchingFrame", value: 0 },
                { tag: "implicitWidth", value: 0 },
                { tag: "implicitHeight", value: 0 },
            ];
        }

        function test_defaults(data) {
            compare(createTemporaryObject(_bareComponent, _scene)[data.tag], data.value);
        }

        function test_framesAreCounted_data() {
            return [
                { tag: "eight", image: _scene.rightStrip, switchingFrame: 8, side: 60 },
                { tag: "not quite two", image: _scene.briefStrip, switchingFrame: 1, side: 60 },
                { tag: "wider than high", image: Qt.resolvedUrl("data/icon.png"), switchingFrame: 1, side: 16 },
            ];
        }

        function test_framesAreCounted(data) {
            const check = indicator => {
                tryCompare(indicator, "switchingFrame", data.switchingFrame);
                compare(indicator.frameCount, 2 * data.switchingFrame);
                const { viewport } = parts(indicator);
                compare([viewport.width, viewport.height], [data.side, data.side]);
                compare([indicator.implicitWidth, indicator.implicitHeight], [data.side, data.side]);
                compare([indicator.width, indicator.height, viewport.y], [data.side, data.side, 0]);
            };
            check(create({ imageRight: data.image }));
            const indicator = create();
            indicator.imageRight = data.image;
            check(indicator);
            indicator.imageRight = _scene.rightStrip;
            tryCompare(indicator, "frameCount", 16);
            indicator.imageRight = data.image;
            check(indicator);
        }

        function test_implicitHeightMayBeTheApplications() {
            const indicator = create({ imageRight: _scene.rightStrip, implicitHeight: 200 });
            compare(indicator.height, 200);
            indicator.implicitHeight = Qt.binding(() => _scene.width / 2);
            compare(indicator.height, _scene.width / 2);
            compare(parts(indicator).viewport.y, Math.round((_scene.width / 2 - 60) / 2));
        }

        function test_implicitHeightIsTheViewportsBottom_data() {
            return [0, 20, 60, 61, 80, 100, 300].map(height => ({ tag: height, height }));
        }

        function test_implicitHeightIsTheViewportsBottom(data) {
            const check = indicator => {
                const { viewport } = parts(indicator);
                compare(viewport.height, 60);
                fuzzyCompare(viewport.y, (data.height - 60) / 2, 0.5);
                compare([indicator.height, indicator.implicitHeight], [data.height, viewport.y + 60]);
            };
            check(create({ imageRight: _scene.rightStrip, height: data.height }));
            const indicator = create({ imageRight: _scene.rightStrip });
            compare(indicator.height, 60);
            indicator.height = 100;
            indicator.height = data.height;
            check(indicator);
        }

        function test_leftStripIsNotCounted() {
            const indicator = create({ imageLeft: _scene.briefStrip, imageRight: _scene.rightStrip });
            compare([indicator.switchingFrame, indicator.frameCount], [8, 16]);
            const alone = create({ imageLeft: _scene.rightStrip });
            compare([alone.switchingFrame, alone.frameCount, parts(alone).viewport.width], [0, 0, 0]);
        }

        function test_imageOfNoHeight() {
            const indicator = create();
            const { right } = parts(indicator);
            for (const width of [480, 0]) {
                right.width = width;
                right.height = 0;
                indicator.imageRight = width ? _scene.rightStrip : _scene.briefStrip;
                compare(right.status, Image.Ready);
                compare([indicator.switchingFrame, indicator.frameCount], [0, 0]);
            }
        }

        function test_missingImages() {
            const indicator = create({ animationInterval: 100 });
            ignoreWarning(/Cannot open: .*none\.png/);
            indicator.imageRight = Qt.resolvedUrl("data/none.png");
            ignoreWarning(/Cannot open: .*none\.png/);
            indicator.imageLeft = Qt.resolvedUrl("data/none.png");
            compare([indicator.switchingFrame, indicator.frameCount], [0, 0]);
            compare(parts(indicator).viewport.width, 0);
            steps(5, 100);
            compare(indicator.currentFrameIndex, 0);
        }

        function test_imageThatFailsLaterLeavesTheNumbers() {
            const indicator = play();
            ignoreWarning(/Cannot open: .*none\.png/);
            indicator.imageRight = Qt.resolvedUrl("data/none.png");
            compare([indicator.switchingFrame, indicator.frameCount], [8, 16]);
            steps(17, 100);
            compare(indicator.currentFrameIndex, 1);
        }

        function test_imagesAreReadAnew() {
            const { left, right } = parts(create());
            for (const image of [left, right]) {
                compare(image.cache, false);
                compare(image.fillMode, Image.Pad);
            }
        }

        function test_play() {
            const indicator = play();
            const { left, right } = parts(indicator);
            for (let tick = 0; tick < 40; ++tick) {
                const frame = tick % 16;
                compare(indicator.currentFrameIndex, frame);
                compare([right.visible, left.visible], [frame < 8, frame >= 8], frame);
                if (frame < 8)
                    compare(right.x, -60 * frame);
                else
                    compare(left.x, 60 * (8 - frame));
                _scene.clock.step(99);
                compare(indicator.currentFrameIndex, frame);
                _scene.clock.step(1);
            }
        }

        function test_frameEightAndFifteen() {
            const indicator = play();
            const { left } = parts(indicator);
            steps(8, 100);
            compare([indicator.currentFrameIndex, left.x], [8, 0]);
            steps(7, 100);
            compare([indicator.currentFrameIndex, left.x], [15, -420]);
            steps(1, 100);
            compare([indicator.currentFrameIndex, left.visible], [0, false]);
        }

        function test_framesAreDrawnWithinTheViewport() {
            const indicator = play({ x: 100, y: 50, width: 200, height: 100 });
            for (let frame = 0; frame < 16; ++frame) {
                const picture = grabImage(_scene);
                for (const x of [0, 1, 30, 59]) {
                    for (const y of [0, 59]) {
                        const pixel = [picture.red(170 + x, 70 + y), picture.green(170 + x, 70 + y),
                                       picture.blue(170 + x, 70 + y)];
                        compare(pixel, [frame % 8 * 30, x * 4, frame < 8 ? 0 : 255], frame + ": " + x + " " + y);
                    }
                }
                for (const [x, y] of [[169, 100], [230, 100], [200, 69], [200, 130]])
                    compare(picture.pixel(x, y), "#ffffff", frame + ": " + x + " " + y);
                _scene.clock.step(100);
            }
        }

        function test_oneFrameOfAShortStrip() {
            const indicator = create({ imageLeft: _scene.briefStrip, imageRight: _scene.briefStrip,
                                       animationInterval: 100 });
            const { left, right } = parts(indicator);
            for (let tick = 0; tick < 4; ++tick) {
                compare([indicator.currentFrameIndex, right.visible, left.visible],
                        [tick % 2, tick % 2 === 0, tick % 2 === 1]);
                compare([right.x, left.x], [0, 0]);
                compare(grabImage(indicator).pixel(59, 30), "#00ec00");
                _scene.clock.step(100);
            }
        }

        function test_hiddenItStandsAndStartsAnew() {
            const indicator = play();
            steps(5, 100);
            compare(indicator.currentFrameIndex, 5);
            _scene.clock.step(60);
            indicator.visible = false;
            compare(indicator.currentFrameIndex, 0);
            steps(5, 100);
            compare(indicator.currentFrameIndex, 0);
            indicator.currentFrameIndex = 3;
            indicator.visible = true;
            compare(indicator.currentFrameIndex, 0);
            _scene.clock.step(99);
            compare(indicator.currentFrameIndex, 0);
            _scene.clock.step(1);
            compare(indicator.currentFrameIndex, 1);
        }

        function test_hiddenWithItsParent() {
            const parent = createTemporaryObject(_parentComponent, _scene);
            const indicator = create({ imageRight: _scene.rightStrip, animationInterval: 100 }, parent);
            steps(3, 100);
            compare(indicator.currentFrameIndex, 3);
            parent.visible = false;
            compare(indicator.currentFrameIndex, 0);
            steps(3, 100);
            compare(indicator.currentFrameIndex, 0);
        }

        // The step beyond the last frame is taken before it is corrected, also while there are no frames.
        function test_framesAreSignalledAsTheyAreSet() {
            const indicator = play();
            const frames = [];
            indicator.currentFrameIndexChanged.connect(() => frames.push(indicator.currentFrameIndex));
            indicator.currentFrameIndex = 14;
            steps(2, 100);
            compare(frames, [14, 15, 16, 0]);
            frames.length = 0;
            indicator.frameCount = 0;
            steps(2, 100);
            compare(frames, [1, 0, 1, 0]);
        }

        function test_withoutAnIntervalTheFirstFrameStands() {
            const indicator = play({ animationInterval: 0 });
            const changes = spy(indicator, "currentFrameIndexChanged");
            steps(10, 100);
            compare([indicator.currentFrameIndex, changes.count], [0, 0]);
            indicator.animationInterval = 50;
            _scene.clock.step(50);
            compare(indicator.currentFrameIndex, 1);
        }

        function test_intervalIsFollowed() {
            const indicator = play({ animationInterval: 40 });
            steps(3, 40);
            compare(indicator.currentFrameIndex, 3);
            indicator.animationInterval = 200;
            _scene.clock.step(199);
            compare(indicator.currentFrameIndex, 3);
            _scene.clock.step(1);
            compare(indicator.currentFrameIndex, 4);
        }

        function test_labels() {
            const indicator = play({ width: 300, height: 200, header: "Header", headerColor: "#ff0001",
                                     description: "Description", descriptionColor: "#ff0002" });
            const { header, description, texts, viewport } = parts(indicator);
            compare([header.text, header.color.toString(), header.font], ["Header", "#ff0001", indicator.headerFont]);
            compare([description.text, description.color.toString(), description.font],
                    ["Description", "#ff0002", indicator.descriptionFont]);
            compare([header.maximumLineCount, description.maximumLineCount], [2, 2]);
            compare(texts.spacing, 5);
            waitForItemPolished(texts);
            compare([viewport.x, viewport.y], [120, 70]);
            tryVerify(() => texts.y + texts.height === 70);
            tryVerify(() => description.y === header.height + 5);
            compare(description.y + description.height, texts.height);
            compare(texts.x + texts.width / 2, 150);
            compare([indicator.implicitWidth, indicator.implicitHeight], [Math.max(60, header.width), 130]);
        }

        function test_emptyLabelsAreHidden() {
            const indicator = create();
            const { header, description } = parts(indicator);
            for (const [name, label] of [["header", header], ["description", description]]) {
                compare(label.visible, false, name);
                indicator[name] = "Text";
                compare(label.visible, true, name);
                indicator[name] = "";
                compare(label.visible, false, name);
            }
        }

        function test_emptiedHeaderTakesNoWidth() {
            const indicator = play({ width: 300, height: 200, header: "Wider than the viewport" });
            tryVerify(() => indicator.implicitWidth > 60);
            indicator.header = "";
            compare(indicator.implicitWidth, 60);
        }

        function test_lonelyDescriptionStandsOnTheViewport() {
            const indicator = play({ width: 300, height: 200, description: "Description" });
            const { description, texts } = parts(indicator);
            tryVerify(() => texts.y + texts.height === 70);
            tryCompare(texts, "height", description.height);
            compare(description.y, 0);
            compare(indicator.implicitWidth, 60);
        }

        function test_labelsWrapInTheParentsWidth_data() {
            return [
                { tag: "header", label: "header", left: 0, right: 0 },
                { tag: "header with margins", label: "header", left: 40, right: 30 },
                { tag: "description", label: "description", left: 0, right: 0 },
                { tag: "description with margins", label: "description", left: 20, right: 60 },
            ];
        }

        function test_labelsWrapInTheParentsWidth(data) {
            const parent = createTemporaryObject(_parentComponent, _scene);
            const margins = { [data.label + "LeftMargin"]: data.left, [data.label + "RightMargin"]: data.right };
            const room = 300 - data.left - data.right;
            const created = create(Object.assign({ [data.label]: longText }, margins), parent);
            const changed = create({ [data.label]: "Word" }, parent);
            const line = parts(changed)[data.label].implicitHeight;
            verify(line > 0);
            for (const name in margins)
                changed[name] = margins[name];
            changed[data.label] = longText;
            for (const indicator of [created, changed]) {
                const { texts, viewport } = parts(indicator);
                const label = parts(indicator)[data.label];
                compare(label.textWidth, room);
                compare(label.implicitHeight, 2 * line);
                verify(label.implicitWidth <= room);
                tryCompare(label, "width", room);
                tryCompare(label, "height", 2 * line);
                tryVerify(() => texts.y + texts.height === viewport.y);
                indicator[data.label] = longerText;
                compare(label.implicitHeight, 2 * line);
                compare(label.implicitWidth, room);
            }
            parent.width = 900;
            compare(parts(created)[data.label].textWidth, room + 600);
            created[data.label] = longText;
            compare(parts(created)[data.label].implicitHeight, line);
            tryCompare(parts(created)[data.label], "height", line);
            parent.width = 250;
            compare(parts(created)[data.label].implicitHeight, 2 * line);
            tryCompare(parts(created)[data.label], "height", 2 * line);
        }

        function test_withoutAParentLabelsAreNotBroken() {
            const indicator = _component.createObject(null, { header: longerText, description: longerText });
            const { header, description } = parts(indicator);
            compare([header.textWidth, description.textWidth], Array(2).fill(2147483647));
            indicator.parent = createTemporaryObject(_parentComponent, _scene);
            compare([header.textWidth, description.textWidth], [300, 300]);
            tryCompare(header, "width", 300);
            indicator.parent = null;
            compare([header.textWidth, description.textWidth], Array(2).fill(2147483647));
            indicator.destroy();
        }
    }
}
