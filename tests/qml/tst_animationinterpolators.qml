// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    property real progress: 0

    NumberAnimation {
        id: _animation

        target: _scene
        property: "progress"
        from: 0
        to: 1
        duration: 1000
        easing.type: Easing.BezierSpline
        // The engine converts the list; qmllint does not know.
        easing.bezierCurve: KELUIQCG.AnimationInterpolators.linearInterpolator // qmllint disable incompatible-type
    }

    TestCase {
        name: "AnimationInterpolators"

        function init() {
            failOnWarning(/.?/);
        }

        function test_linearInterpolatorIsAStraightLine() {
            const curve = KELUIQCG.AnimationInterpolators.linearInterpolator;
            compare(Array.from(curve), [0, 0, 0, 0, 1, 1]);
            compare(Array.from(_animation.easing.bezierCurve), [0, 0, 0, 0, 1, 1]);
        }
    }
}
