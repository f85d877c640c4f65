// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Rectangle {
    id: _scene

    width: 200
    height: 200
    color: "#ffffff"

    Component {
        id: _component

        KELUIQCG.Rectangle {
            width: 80
            height: 60
            color: "#336699"
        }
    }

    TestCase {
        name: "Rectangle"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function test_defaults() {
            const rectangle = createTemporaryObject(_component, _scene);
            compare(rectangle.forceRounding, false);
            compare(rectangle.roundingRadius, 0);
            compare(rectangle.radius, 0);
        }

        function test_radiusFollowsForcedRounding() {
            const rectangle = createTemporaryObject(_component, _scene, { roundingRadius: 20 });
            compare(rectangle.radius, 0);
            rectangle.forceRounding = true;
            compare(rectangle.radius, 20);
            rectangle.roundingRadius = 5;
            compare(rectangle.radius, 5);
            rectangle.forceRounding = false;
            compare(rectangle.radius, 0);
            rectangle.roundingRadius = 7;
            compare(rectangle.radius, 0);
        }

        function test_cornersStaySquareUnlessForced_data() {
            return [
                { tag: "not forced", forceRounding: false, corner: "#336699" },
                { tag: "forced", forceRounding: true, corner: "#ffffff" },
            ];
        }

        function test_cornersStaySquareUnlessForced(data) {
            const rectangle = createTemporaryObject(_component, _scene,
                                                    { roundingRadius: 20, forceRounding: data.forceRounding });
            const picture = grabImage(rectangle);
            for (const [x, y] of [[0, 0], [79, 0], [0, 59], [79, 59]])
                compare(picture.pixel(x, y), data.corner);
            compare(picture.pixel(40, 30), "#336699");
            compare(picture.pixel(0, 30), "#336699");
        }
    }
}
