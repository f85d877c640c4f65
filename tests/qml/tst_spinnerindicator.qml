// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

// The colour around the spinners tells what they leave unpainted.
Rectangle {
    id: _scene

    // From the test program, which qmllint does not know.
    property var clock

    width: 300
    height: 200
    color: "#0000ff"

    Component {
        id: _component

        KELUIQCG.SpinnerIndicator {}
    }

    Component {
        id: _spyComponent

        SignalSpy {}
    }

    TestCase {
        id: _test

        name: "SpinnerIndicator"
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

        function create(properties) {
            const spinner = createTemporaryObject(_component, _scene, properties ?? {});
            verify(spinner);
            return spinner;
        }

        //! One that is painted.
        function show(properties) {
            const spinner = create(properties);
            const painted = spy(spinner, "painted");
            tryVerify(() => painted.count > 0);
            return spinner;
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
                { tag: "lineWidth", value: 10 },
                { tag: "backgroundColor", value: "#101828" },
                { tag: "foregroundColor", value: "#ffffff" },
                { tag: "startDeg", value: 0 },
                { tag: "endDeg", value: 5 },
                { tag: "rotationDeg", value: 0 },
                { tag: "updateCondition", value: 5 },
                { tag: "width", value: 100 },
                { tag: "height", value: 100 },
                { tag: "antialiasing", value: true },
            ];
        }

        function test_defaults(data) {
            compare(create()[data.tag], data.value);
        }

        function test_updateConditionIsTheSum() {
            const spinner = create({ startDeg: 100, endDeg: 20 });
            compare(spinner.updateCondition, 120);
            spinner.endDeg = -50;
            compare(spinner.updateCondition, 50);
            spinner.rotationDeg = 3;
            compare(spinner.updateCondition, 53);
            try {
                spinner.updateCondition = 1;
                fail("written");
            } catch (error) {
                verify(error instanceof TypeError, error);
            }
        }

        function inOutQuad(progress) {
            return progress < 0.5 ? 2 * progress * progress : 1 - 2 * (1 - progress) * (1 - progress);
        }

        // The arc grows at its end, then shrinks at its start, each from where the pause before it left both.
        function test_twoCycles() {
            const spinner = create();
            const phases = [
                { start: [0, 0], end: [5, 285] },
                { start: [0, 280], end: [285, 285] },
                { start: [280, 280], end: [285, 565] },
                { start: [280, 560], end: [205, 205] },
                { start: [200, 200], end: [205, 485] },
            ];
            let [startDeg, endDeg] = [0, 5];
            let time = 0;
            const check = (start, end) => {
                const context = time + " ms: " + [spinner.startDeg, spinner.endDeg, spinner.rotationDeg];
                verify(Math.abs(spinner.startDeg - start) <= 1, context + ", not " + start);
                verify(Math.abs(spinner.endDeg - end) <= 1, context + ", not " + end);
                verify(Math.abs(spinner.rotationDeg - time % 1200 * 0.3) <= 1, context);
                compare(spinner.updateCondition, spinner.startDeg + spinner.endDeg + spinner.rotationDeg);
            };
            const pass = () => {
                _scene.clock.step(50);
                time += 50;
            };
            for (const { start, end } of phases) {
                for (let part = 0; part < 6; ++part) {
                    check(startDeg, endDeg);
                    pass();
                }
                for (let part = 0; part < 12; ++part) {
                    const progress = inOutQuad(part / 12);
                    check(start[0] + (start[1] - start[0]) * progress, end[0] + (end[1] - end[0]) * progress);
                    pass();
                }
                [startDeg, endDeg] = [start[1], end[1]];
                compare([spinner.startDeg, spinner.endDeg], [startDeg, endDeg]);
            }
        }

        function test_pausesEndInFullDegrees() {
            const spinner = create({ startDeg: 725, endDeg: -365 });
            _scene.clock.step(299);
            compare([spinner.startDeg, spinner.endDeg], [725, -365]);
            _scene.clock.step(1);
            compare([spinner.startDeg, spinner.endDeg], [5, -5]);
            _scene.clock.step(600);
            compare([spinner.startDeg, spinner.endDeg], [5, 275]);
        }

        function test_runsWhileHidden() {
            const spinner = create({ visible: false });
            steps(6, 100);
            compare([spinner.startDeg, spinner.endDeg, spinner.rotationDeg], [0, 145, 180]);
            spinner.visible = true;
            compare(spinner.endDeg, 145);
            steps(3, 100);
            compare([spinner.endDeg, spinner.rotationDeg], [285, 270]);
        }

        function test_turnsForever() {
            const spinner = create();
            for (let turn = 0; turn < 5; ++turn) {
                steps(3, 100);
                compare(spinner.rotationDeg, 90);
                steps(9, 100);
                verify(spinner.rotationDeg % 360 === 0);
            }
        }

        function test_paintsWhenTheSumChanges_data() {
            return [
                { tag: "nothing", change: () => {}, paints: 0 },
                { tag: "end", change: spinner => { spinner.endDeg = 90; }, paints: 1 },
                { tag: "start", change: spinner => { spinner.startDeg = 1; }, paints: 1 },
                { tag: "rotation", change: spinner => { spinner.rotationDeg = 1; }, paints: 1 },
                { tag: "same end", change: spinner => { spinner.endDeg = 5; }, paints: 0 },
                { tag: "line", change: spinner => { spinner.lineWidth = 20; }, paints: 0 },
                { tag: "colours", change: spinner => { spinner.backgroundColor = "#ff0000";
                                                       spinner.foregroundColor = "#00ff00"; }, paints: 0 },
                { tag: "time", change: () => _scene.clock.step(50), paints: 1 },
                { tag: "no time", change: () => _scene.clock.step(0), paints: 0 },
            ];
        }

        function test_paintsWhenTheSumChanges(data) {
            const spinner = show();
            const [painted, paint] = [spy(spinner, "painted"), spy(spinner, "paint")];
            data.change(spinner);
            // A grab draws a frame with all that was asked for.
            grabImage(spinner);
            grabImage(spinner);
            compare([paint.count, painted.count], [data.paints, data.paints]);
        }

        // The middle of the line is a circle around the middle of the item.
        function test_ring_data() {
            return [
                { tag: "square", properties: {}, radius: 45 },
                { tag: "wide", properties: { height: 60 }, radius: 25 },
                { tag: "high", properties: { width: 60 }, radius: 25 },
                { tag: "wide line", properties: { lineWidth: 30 }, radius: 35 },
            ];
        }

        function test_ring(data) {
            const spinner = show(data.properties);
            const [x, y] = [spinner.width / 2, spinner.height / 2];
            const half = spinner.lineWidth / 2;
            const picture = grabImage(_scene);
            // To the left, to the right and below; the arc is above.
            for (const [right, down] of [[-1, 0], [1, 0], [0, 1]]) {
                const pixel = distance => picture.pixel(Math.floor(x + right * distance),
                                                        Math.floor(y + down * distance));
                for (const distance of [data.radius - half + 2, data.radius, data.radius + half - 2])
                    compare(pixel(distance), "#101828", distance);
                for (const distance of [0, data.radius - half - 2])
                    compare(pixel(distance), "#0000ff", distance);
            }
            for (const [right, down] of [[x + data.radius + half + 2, y], [x, y + data.radius + half + 2]])
                compare(picture.pixel(right, down), "#0000ff", right + " " + down);
            compare(picture.pixel(x, Math.floor(y - data.radius)), "#ffffff");
        }

        function test_arc_data() {
            return [
                { tag: "above", startDeg: -5, endDeg: 5, rotationDeg: 0, lit: [0] },
                { tag: "turned", startDeg: -5, endDeg: 5, rotationDeg: 90, lit: [90] },
                { tag: "quarter", startDeg: 0, endDeg: 90, rotationDeg: 0, lit: [0, 45, 90] },
                { tag: "clockwise", startDeg: 80, endDeg: 190, rotationDeg: 0, lit: [90, 135, 180] },
                { tag: "over the top", startDeg: 260, endDeg: 460, rotationDeg: 0, lit: [270, 315, 0, 45, 90] },
                { tag: "turned quarter", startDeg: 0, endDeg: 90, rotationDeg: 225, lit: [225, 270, 315] },
            ];
        }

        function test_arc(data) {
            const spinner = show({ startDeg: data.startDeg, endDeg: data.endDeg, foregroundColor: "#ff0001",
                                   backgroundColor: "#00ff01" });
            spinner.rotationDeg = data.rotationDeg;
            const picture = grabImage(spinner);
            for (let degrees = 0; degrees < 360; degrees += 45) {
                const angle = degrees / 180 * Math.PI;
                compare(picture.pixel(Math.floor(50 + 45 * Math.sin(angle)), Math.floor(50 - 45 * Math.cos(angle))),
                        data.lit.includes(degrees) ? "#ff0001" : "#00ff01", degrees);
            }
        }

        function test_oldArcIsWiped() {
            const spinner = show({ startDeg: 0, endDeg: 90 });
            compare(grabImage(spinner).pixel(95, 50), "#ffffff");
            spinner.endDeg = 10;
            compare(grabImage(spinner).pixel(95, 50), "#101828");
            spinner.height = 60;
            spinner.endDeg = 5;
            compare(grabImage(spinner).pixel(95, 30), "#0000ff");
            spinner.lineWidth = 200;
            spinner.endDeg = 90;
            compare(grabImage(spinner).pixel(75, 30), "#0000ff");
        }

        function test_lineWiderThanTheItemDrawsNothing_data() {
            return [
                { tag: "a little", properties: { lineWidth: 101 } },
                { tag: "by far", properties: { lineWidth: 2147483647 } },
                { tag: "than high", properties: { height: 60, lineWidth: 61 } },
                { tag: "no item", properties: { width: 0 } },
            ];
        }

        function test_lineWiderThanTheItemDrawsNothing(data) {
            const spinner = data.properties.width === 0 ? create(data.properties) : show(data.properties);
            steps(4, 100);
            const picture = grabImage(_scene);
            for (let x = 0; x < 120; x += 10) {
                for (let y = 0; y < 120; y += 10)
                    compare(picture.pixel(x, y), "#0000ff", x + " " + y);
            }
            compare(spinner.rotationDeg, 120);
        }

        function test_extremes_data() {
            const [least, most] = [-2147483648, 2147483647];
            return [
                { tag: "least angles", properties: { startDeg: least, endDeg: least, rotationDeg: least } },
                { tag: "most angles", properties: { startDeg: most, endDeg: most, rotationDeg: most } },
                { tag: "least and most", properties: { startDeg: least, endDeg: most } },
                { tag: "most and least", properties: { startDeg: most, endDeg: least } },
                { tag: "no line", properties: { lineWidth: 0 } },
                { tag: "negative line", properties: { lineWidth: -10 } },
                { tag: "least line", properties: { lineWidth: least } },
            ];
        }

        function test_extremes(data) {
            const spinner = show(data.properties);
            grabImage(spinner);
            for (let phase = 0; phase < 6; ++phase) {
                steps(3, 100);
                grabImage(spinner);
            }
            verify(Math.abs(spinner.startDeg) < 1000);
            verify(Math.abs(spinner.endDeg) < 1000);
            fuzzyCompare(spinner.rotationDeg % 360, 180, 1);
        }
    }
}
