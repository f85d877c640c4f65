// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    width: 400
    height: 300

    Component {
        id: _rowComponent

        RowLayout {
            width: 200
            height: 100
            spacing: 0

            Item {
                implicitWidth: 30
                implicitHeight: 20
            }
        }
    }

    Component {
        id: _columnComponent

        ColumnLayout {
            width: 200
            height: 100
            spacing: 0

            Item {
                implicitWidth: 30
                implicitHeight: 20
            }
        }
    }

    Component {
        id: _gridComponent

        GridLayout {
            width: 200
            height: 100
            columns: 1
            rowSpacing: 0

            Item {
                implicitWidth: 30
                implicitHeight: 20
            }
        }
    }

    Component {
        id: _component

        KELUIQCG.LayoutSpacer {}
    }

    TestCase {
        id: _test

        name: "LayoutSpacer"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        //! A spacer in a layout of 200x100, after an item of 30x20.
        function create(layoutComponent, properties) {
            const layout = createTemporaryObject(layoutComponent, _scene);
            const spacer = createTemporaryObject(_component, layout, properties ?? {});
            verify(spacer);
            arrange(spacer);
            return spacer;
        }

        function arrange(spacer) {
            if (isPolishScheduled(spacer.parent))
                verify(waitForPolish(spacer.parent));
        }

        function size(spacer) {
            arrange(spacer);
            return Qt.size(spacer.width, spacer.height);
        }

        function test_defaults_data() {
            return [
                { tag: "fixedWidth", value: -1 },
                { tag: "fixedHeight", value: -1 },
            ];
        }

        function test_defaults(data) {
            const spacer = createTemporaryObject(_component, _scene);
            compare(spacer[data.tag], data.value);
        }

        function test_size_data() {
            return [
                { tag: "row", layout: _rowComponent, size: Qt.size(170, 100) },
                { tag: "column", layout: _columnComponent, size: Qt.size(200, 80) },
                { tag: "grid", layout: _gridComponent, size: Qt.size(200, 80) },
                { tag: "row, fixed width", layout: _rowComponent, properties: { fixedWidth: 40 },
                  size: Qt.size(40, 100) },
                { tag: "row, no width", layout: _rowComponent, properties: { fixedWidth: 0 }, size: Qt.size(0, 100) },
                { tag: "column, fixed height", layout: _columnComponent, properties: { fixedHeight: 40 },
                  size: Qt.size(200, 40) },
                { tag: "column, no height", layout: _columnComponent, properties: { fixedHeight: 0 },
                  size: Qt.size(200, 0) },
                { tag: "grid, both fixed", layout: _gridComponent, properties: { fixedWidth: 40, fixedHeight: 12.5 },
                  size: Qt.size(40, 12.5) },
                { tag: "wider than the row", layout: _rowComponent, properties: { fixedWidth: 500 },
                  size: Qt.size(500, 100) },
            ];
        }

        function test_size(data) {
            compare(size(create(data.layout, data.properties)), data.size);
        }

        function test_sizeIsHandedToTheLayout() {
            const layout = createTemporaryObject(_rowComponent, _scene);
            const spacer = createTemporaryObject(_component, layout, { fixedWidth: 40, fixedHeight: 12 });
            compare([spacer.Layout.minimumWidth, spacer.Layout.preferredWidth, spacer.Layout.maximumWidth],
                    [40, 40, 40]);
            compare([spacer.Layout.minimumHeight, spacer.Layout.preferredHeight, spacer.Layout.maximumHeight],
                    [12, 12, 12]);
        }

        function test_fillingIsAskedAtCompletion() {
            const spacer = createTemporaryObject(_component, createTemporaryObject(_rowComponent, _scene));
            compare([spacer.Layout.fillWidth, spacer.Layout.fillHeight], [true, true]);
            compare([spacer.Layout.preferredWidth, spacer.Layout.preferredHeight], [-1, -1]);
        }

        function test_nothingIsTakenBack_data() {
            return [
                { tag: "row", layout: _rowComponent, name: "fixedWidth", sizes: [170, 40, 40, 60, 0, 0], of: "width",
                  fill: "fillWidth" },
                { tag: "column", layout: _columnComponent, name: "fixedHeight", sizes: [80, 40, 40, 60, 0, 0],
                  of: "height", fill: "fillHeight" },
            ];
        }

        function test_nothingIsTakenBack(data) {
            const spacer = create(data.layout);
            const sizes = [];
            for (const value of [-1, 40, -1, 60, 0, -1]) {
                spacer[data.name] = value;
                sizes.push(size(spacer)[data.of]);
                verify(spacer.Layout[data.fill]);
            }
            compare(sizes, data.sizes);
        }

        function test_fixedFirstFillsLaterWithinItsSize() {
            const spacer = create(_rowComponent, { fixedWidth: 40 });
            verify(!spacer.Layout.fillWidth);
            spacer.fixedWidth = -1;
            verify(spacer.Layout.fillWidth);
            compare(size(spacer).width, 40);
        }

        function test_aChangeOfOneSideKeepsTheOther() {
            const spacer = create(_rowComponent, { fixedWidth: 40 });
            spacer.fixedHeight = 30;
            compare(size(spacer), Qt.size(40, 30));
        }

        function test_relayoutAppliesAgain() {
            const spacer = create(_rowComponent, { fixedWidth: 40 });
            spacer.Layout.preferredWidth = spacer.Layout.minimumWidth = spacer.Layout.maximumWidth = 70;
            compare(size(spacer).width, 70);
            spacer.relayout();
            compare(size(spacer).width, 40);
        }

        function test_oddSizesDoNoHarm_data() {
            return [
                { tag: "not a number", value: NaN },
                { tag: "negative", value: -2 },
                { tag: "very negative", value: -1e9 },
                { tag: "less than nothing", value: -Infinity },
            ];
        }

        function test_oddSizesDoNoHarm(data) {
            const spacer = create(_rowComponent, { fixedWidth: data.value });
            const neighbour = spacer.parent.children[0];
            arrange(spacer);
            verify(neighbour.width >= 0 && neighbour.width <= 200, neighbour.width);
            spacer.fixedWidth = 40;
            compare(size(spacer).width, 40);
            compare(neighbour.x, 0);
            compare(neighbour.width, 30);
        }
    }
}
