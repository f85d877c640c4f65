// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    width: 700
    height: 300

    Component {
        id: _component

        KELUIQCG.RoundedImage {
            source: "data/grid.png"
        }
    }

    Component {
        id: _plainComponent

        Image {
            x: 350
            source: "data/grid.png"
        }
    }

    TestCase {
        name: "RoundedImage"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function test_defaults() {
            const image = createTemporaryObject(_component, _scene);
            compare(image.roundingRadius, 0);
            compare(image.notRoundedEdges, 0);
            compare(image.clippingWidth, 0);
            compare(image.clippingHeight, 0);
        }

        function test_drawsAsAPlainImageWhateverItsRounding_data() {
            const all = { roundingRadius: 60, notRoundedEdges: 3, clippingWidth: 50, clippingHeight: 40 };
            return [
                { tag: "none", properties: {} },
                { tag: "roundingRadius", properties: { roundingRadius: 60 } },
                { tag: "notRoundedEdges", properties: { notRoundedEdges: 15 } },
                { tag: "clippingWidth", properties: { clippingWidth: 50 } },
                { tag: "clippingHeight", properties: { clippingHeight: 40 } },
                { tag: "all", properties: all },
                { tag: "mirrored and scaled", properties: Object.assign({ mirror: true, width: 150, height: 80 }, all),
                  plain: { mirror: true, width: 150, height: 80 } },
            ];
        }

        function test_drawsAsAPlainImageWhateverItsRounding(data) {
            const image = createTemporaryObject(_component, _scene, data.properties);
            const plain = createTemporaryObject(_plainComponent, _scene, data.plain ?? {});
            for (const name in data.properties)
                compare(image[name], data.properties[name]);
            compare(image.width, plain.width);
            compare(image.height, plain.height);
            const picture = grabImage(image);
            verify(picture.equals(grabImage(plain)));
            compare(picture.pixel(0, 0), data.plain ? "#c800ff" : "#0000ff");
        }
    }
}
