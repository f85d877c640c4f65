// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Rectangle {
    id: _scene

    readonly property url grid: Qt.resolvedUrl("data/grid.png")

    width: 500
    height: 400
    color: "#00ff00"

    Component {
        id: _component

        KELUIQCG.ClippableImage {
            image.source: _scene.grid
        }
    }

    TestCase {
        name: "ClippableImage"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        // The colour of a cell of the picture.
        function cell(column, row) {
            return Qt.rgba(column * 40 / 255, row * 60 / 255, 1, 1);
        }

        function test_isAsLargeAsItsImageUnlessSized() {
            const item = createTemporaryObject(_component, _scene);
            compare(item.clip, true);
            compare(item.implicitWidth, 300);
            compare(item.implicitHeight, 200);
            compare(item.width, 300);
            compare(item.height, 200);
            item.image.source = Qt.resolvedUrl("data/icon.png");
            compare(item.width, 24);
            compare(item.height, 16);
            item.image.source = "";
            compare(item.width, 0);
            compare(item.height, 0);
        }

        function test_smallWindowShowsTheMiddle_data() {
            return [
                { tag: "image larger than the window", image: {} },
                { tag: "image as large, its picture larger",
                  image: { width: 100, height: 100, fillMode: Image.Pad } },
            ];
        }

        function test_smallWindowShowsTheMiddle(data) {
            const item = createTemporaryObject(_component, _scene, { width: 100, height: 100 });
            for (const name in data.image)
                item.image[name] = data.image[name];
            compare(item.image.width, data.image.width ?? 300);
            const picture = grabImage(item);
            compare(picture.width, 100);
            compare(picture.height, 100);
            // Of six columns and four rows of cells, the middle four.
            const edges = [0, 49, 50, 99];
            for (const x of edges) {
                for (const y of edges)
                    compare(picture.pixel(x, y), cell(x < 50 ? 2 : 3, y < 50 ? 1 : 2), x + ", " + y);
            }
        }

        function test_cutsOffWhatReachesBeyondIt() {
            const item = createTemporaryObject(_component, _scene, { x: 150, y: 150, width: 100, height: 100 });
            const picture = grabImage(_scene);
            verify(item.image.x < 0);
            for (const [x, y] of [[149, 199], [250, 199], [199, 149], [199, 250]])
                compare(picture.pixel(x, y), _scene.color, x + ", " + y);
            for (const [x, y] of [[150, 199], [249, 199], [199, 150], [199, 249]])
                verify(picture.pixel(x, y) !== _scene.color, x + ", " + y);
        }

        function test_largeWindowHasEmptyMargins() {
            const item = createTemporaryObject(_component, _scene, { width: 400, height: 300 });
            const picture = grabImage(item);
            compare(picture.pixel(50, 50), cell(0, 0));
            compare(picture.pixel(349, 249), cell(5, 3));
            for (const [x, y] of [[49, 50], [50, 49], [350, 249], [349, 250]])
                compare(picture.pixel(x, y), _scene.color, x + ", " + y);
        }
    }
}
