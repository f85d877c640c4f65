// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

TestCase {
    name: "Rectangle"

    Component {
        id: _component

        KELUIQCG.Rectangle {}
    }

    function init() {
        failOnWarning(/.?/);
    }

    function test_radiusFollowsForcedRounding() {
        const rectangle = createTemporaryObject(_component, this, { roundingRadius: 20 });
        compare(rectangle.radius, 0);
        rectangle.forceRounding = true;
        compare(rectangle.radius, 20);
        rectangle.roundingRadius = 5;
        compare(rectangle.radius, 5);
        rectangle.forceRounding = false;
        compare(rectangle.radius, 0);
    }
}
