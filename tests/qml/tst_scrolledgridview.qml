// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    // From the test program, which qmllint does not know.
    property var clock
    property var remote

    //! How many delegates were created.
    property int created: 0

    width: 400
    height: 400

    // Three elements of 90x60 in a row, in cells of 100x80.
    Component {
        id: _component

        KELUIQCG.ScrolledGridView {
            width: 300
            height: 200
            elementWidth: 90
            elementHeight: 60
            horizontalSpacing: 10
            verticalSpacing: 20
            // Qt warns where a model shrinks while an item that is gone is made ahead.
            cacheBuffer: 0
            model: 20
            delegate: Item {
                required property int index

                width: 90
                height: 60

                Component.onCompleted: ++_scene.created
            }
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.ScrolledGridView {}
    }

    Component {
        id: _modelComponent

        ListModel {}
    }

    TestCase {
        id: _test

        readonly property var directions: [
            { tag: "left to right", layoutDirection: Qt.LeftToRight, flow: GridView.FlowLeftToRight },
            { tag: "right to left", layoutDirection: Qt.RightToLeft, flow: GridView.FlowLeftToRight },
            { tag: "columns", layoutDirection: Qt.LeftToRight, flow: GridView.FlowTopToBottom },
            { tag: "columns, right to left", layoutDirection: Qt.RightToLeft, flow: GridView.FlowTopToBottom },
        ]

        name: "ScrolledGridView"
        when: windowShown

        function initTestCase() {
            _scene.clock = Qt.createQmlObject("import TestTools\nAnimationClock {}", _scene);
            _scene.remote = Qt.createQmlObject("import TestTools\nRemote {}", _scene);
        }

        function cleanupTestCase() {
            _scene.clock.destroy();
        }

        function init() {
            failOnWarning(/.?/);
            _scene.created = 0;
        }

        function create(properties) {
            const view = createTemporaryObject(_component, _scene, properties ?? {});
            verify(view);
            settle(view);
            return view;
        }

        function createModel(count) {
            const model = createTemporaryObject(_modelComponent, _scene);
            for (let index = 0; index < count; ++index)
                model.append({ name: `item ${index}` });
            return model;
        }

        function step(view, milliseconds) {
            _scene.clock.step(milliseconds);
            view.forceLayout();
        }

        //! Until nothing moves any more.
        function settle(view) {
            view.forceLayout();
            for (let frame = 0; frame < 50; ++frame)
                step(view, 16);
        }

        //! Each of the one rows with each of the other.
        function combined(rows, otherRows) {
            const result = [];
            for (const row of rows) {
                for (const other of otherRows)
                    result.push(Object.assign({}, row, other, { tag: `${row.tag}, ${other.tag}` }));
            }
            return result;
        }

        function state(view, index) {
            return view.itemAtIndex(index)?.state;
        }

        //! All that holds for a current item that was gone to.
        function verifyAtRest(view) {
            const item = view.currentItem;
            verify(item);
            compare(item.state, "focused");
            for (let index = 0; index < view.count; ++index) {
                if (index !== view.currentIndex)
                    verify(state(view, index) !== "focused", index);
            }
            const { x, y } = item.mapToItem(view, 0, 0);
            verify(x >= 0 && x + item.width <= view.width, `${x}`);
            verify(y >= 0 && y + item.height <= view.height, `${y}`);
        }

        function test_defaults_data() {
            return [
                { tag: "horizontalSpacing", value: 0 },
                { tag: "verticalSpacing", value: 0 },
                { tag: "elementWidth", value: 0 },
                { tag: "elementHeight", value: 0 },
                { tag: "mediaBlockItem", value: undefined },
            ];
        }

        function test_defaults(data) {
            const view = createTemporaryObject(_bareComponent, _scene);
            verify(data.tag in view);
            verify(view[data.tag] === data.value);
        }

        function test_mediaBlockItemTakesAnything_data() {
            return [
                { tag: "item", value: _scene },
                { tag: "string", value: "text" },
                { tag: "object", value: { a: 1 } },
            ];
        }

        function test_mediaBlockItemTakesAnything(data) {
            compare(create({ mediaBlockItem: data.value }).mediaBlockItem, data.value);
        }

        function test_cells_data() {
            return [
                { tag: "all given", properties: {}, cell: Qt.size(100, 80) },
                { tag: "no gaps", properties: { horizontalSpacing: 0, verticalSpacing: 0 }, cell: Qt.size(90, 60) },
                { tag: "fractions", properties: { elementWidth: 50.25, horizontalSpacing: 0.5, elementHeight: 40.5,
                                                  verticalSpacing: 0.25 }, cell: Qt.size(50.75, 40.75) },
                { tag: "gaps alone", properties: { elementWidth: 0, elementHeight: 0 }, cell: Qt.size(10, 20) },
                { tag: "overlapping", properties: { horizontalSpacing: -10, verticalSpacing: -20 },
                  cell: Qt.size(80, 40) },
            ];
        }

        function test_cells(data) {
            const view = create(Object.assign({ model: 40 }, data.properties));
            compare(Qt.size(view.cellWidth, view.cellHeight), data.cell);
            const item = view.itemAtIndex(1);
            compare(item.x, data.cell.width);
            compare(view.itemAtIndex(Math.floor(300 / data.cell.width)).y, data.cell.height);
        }

        function test_cellsFollowChanges() {
            const view = create();
            view.elementWidth = 40;
            compare([view.cellWidth, view.cellHeight], [50, 80]);
            view.verticalSpacing = 5;
            compare([view.cellWidth, view.cellHeight], [50, 65]);
            view.horizontalSpacing = 3;
            compare([view.cellWidth, view.cellHeight], [43, 65]);
            view.elementHeight = 7;
            compare([view.cellWidth, view.cellHeight], [43, 12]);
        }

        // A grid has no such cells: it stays as it was.
        function test_cellsOfNoSize() {
            const bare = createTemporaryObject(_bareComponent, _scene);
            compare([bare.cellWidth, bare.cellHeight], [100, 100]);
            const view = create();
            view.horizontalSpacing = view.verticalSpacing = 0;
            view.elementWidth = view.elementHeight = 0;
            compare([view.cellWidth, view.cellHeight], [90, 60]);
            view.elementWidth = view.elementHeight = -5;
            compare([view.cellWidth, view.cellHeight], [90, 60]);
            view.elementWidth = view.elementHeight = 30;
            compare([view.cellWidth, view.cellHeight], [30, 30]);
        }

        function test_states() {
            const view = create();
            compare([0, 1, 3].map(index => state(view, index)), ["focused", "", ""]);
            view.currentIndex = 1;
            compare([0, 1, 3].map(index => state(view, index)), ["normal", "focused", ""]);
            view.moveCurrentIndexDown();
            compare(view.currentIndex, 4);
            compare([0, 1, 4].map(index => state(view, index)), ["normal", "normal", "focused"]);
            view.currentIndex = -1;
            compare([0, 1, 4].map(index => state(view, index)), ["normal", "normal", "normal"]);
            // Nothing is remembered from before.
            view.itemAtIndex(4).state = "own";
            view.currentIndex = 0;
            compare([0, 1, 4].map(index => state(view, index)), ["focused", "normal", "own"]);
        }

        function test_jumps_data() {
            return directions;
        }

        function test_jumps(data) {
            const view = create({ layoutDirection: data.layoutDirection, flow: data.flow });
            for (const index of [19, 0, 10, 12, 9, 19, 18, 1]) {
                view.currentIndex = index;
                settle(view);
                verifyAtRest(view);
            }
        }

        function test_modelChanges_data() {
            return combined(directions, [
                { tag: "insert before", change: model => model.insert(0, { name: "new" }), current: "item 3" },
                { tag: "insert at", change: model => model.insert(3, { name: "new" }), current: "item 3" },
                { tag: "insert after", change: model => model.insert(4, { name: "new" }), current: "item 3" },
                { tag: "remove before", change: model => model.remove(0), current: "item 3" },
                { tag: "remove current", change: model => model.remove(3), current: "item 4" },
                { tag: "remove after", change: model => model.remove(4), current: "item 3" },
                { tag: "remove to the end", change: model => model.remove(3, 7), current: "item 2" },
                { tag: "move current away", change: model => model.move(3, 9, 1), current: "item 3" },
                { tag: "move another over", change: model => model.move(0, 5, 1), current: "item 3" },
                { tag: "clear and fill", change: model => {
                    model.clear();
                    model.append({ name: "new" });
                  }, current: "new" },
            ]);
        }

        function test_modelChanges(data) {
            const model = createModel(10);
            const view = create({ layoutDirection: data.layoutDirection, flow: data.flow, model });
            view.currentIndex = 3;
            settle(view);
            data.change(model);
            settle(view);
            compare(model.get(view.currentIndex).name, data.current);
            verifyAtRest(view);
            view.currentIndex = 0;
            settle(view);
            verifyAtRest(view);
        }

        function test_removalsOfTheCurrentItem() {
            const model = createModel(8);
            const view = create({ model });
            view.currentIndex = 7;
            while (model.count > 1) {
                model.remove(view.currentIndex);
                settle(view);
                verifyAtRest(view);
            }
            model.remove(0);
            settle(view);
            compare(view.currentItem, null);
        }

        function test_otherModels_data() {
            return [
                { tag: "null", model: null, count: 0 },
                { tag: "undefined", model: undefined, count: 0 },
                { tag: "empty", model: [], count: 0 },
                { tag: "number", model: 2, count: 2 },
                { tag: "list", model: ["a", "b", "c"], count: 3 },
            ];
        }

        function test_otherModels(data) {
            const view = create();
            view.currentIndex = 19;
            step(view, 50);
            view.model = data.model;
            settle(view);
            compare(view.count, data.count);
            if (data.count > 0)
                verifyAtRest(view);
            else
                compare(view.currentItem, null);
            view.model = 20;
            view.currentIndex = 7;
            settle(view);
            verifyAtRest(view);
        }

        function test_directionChanges() {
            const view = create();
            for (const { layoutDirection, flow } of [...directions, directions[0]]) {
                view.currentIndex = (view.currentIndex + 7) % view.count;
                step(view, 50);
                view.flow = flow;
                view.layoutDirection = layoutDirection;
                settle(view);
                compare(view.currentItem.state, "focused");
                view.currentIndex = (view.currentIndex + 1) % view.count;
                settle(view);
                verifyAtRest(view);
            }
        }

        function test_noRoom_data() {
            return [
                { tag: "no width", size: Qt.size(0, 200) },
                { tag: "no height", size: Qt.size(300, 0) },
                { tag: "neither", size: Qt.size(0, 0) },
            ];
        }

        function test_noRoom(data) {
            const view = create({ width: data.size.width, height: data.size.height });
            view.currentIndex = 7;
            settle(view);
            view.width = 300;
            view.height = 200;
            settle(view);
            view.currentIndex = 8;
            settle(view);
            verifyAtRest(view);
        }

        function test_manyItems_data() {
            return directions;
        }

        function test_manyItems(data) {
            const view = create({ layoutDirection: data.layoutDirection, flow: data.flow, model: 100000 });
            verify(_scene.created < 20, _scene.created);
            view.currentIndex = 99999;
            settle(view);
            compare(view.currentItem.state, "focused");
            const { x, y } = view.currentItem.mapToItem(view, 0, 0);
            verify(x >= 0 && x + 90 <= 300 && y >= 0 && y + 60 <= 200, `${x} ${y}`);
            verify(_scene.created < 300, _scene.created);
        }

        function test_destroyedWhileItScrolls() {
            const view = create();
            view.currentIndex = 19;
            step(view, 100);
            verify(view.contentY > 0 && view.contentY < 360);
            let isGone = false;
            view.Component.destruction.connect(() => isGone = true);
            view.destroy();
            tryVerify(() => isGone);
            for (let frame = 0; frame < 20; ++frame)
                _scene.clock.step(16);
            wait(0);
        }

        function test_heldKey_data() {
            return [
                { tag: "down", key: Qt.Key_Down, from: 0, to: 57, sign: 1 },
                { tag: "up", key: Qt.Key_Up, from: 59, to: 2, sign: -1 },
            ];
        }

        // 30 times a second.
        function test_heldKey(data) {
            const view = create({ model: 60 });
            view.currentIndex = data.from;
            settle(view);
            const positions = [];
            for (let press = 0; press < 25; ++press) {
                const isTaken = _scene.remote.press(view, data.key, "", Qt.NoModifier, press > 0);
                verify(view.currentItem);
                compare(view.currentItem.state, "focused");
                compare(isTaken, press < 19);
                for (let frame = 0; frame < 3; ++frame) {
                    step(view, 11);
                    positions.push(view.contentY);
                }
            }
            compare(view.currentIndex, data.to);
            settle(view);
            verifyAtRest(view);
            positions.push(view.contentY);
            for (let index = 1; index < positions.length; ++index)
                verify((positions[index] - positions[index - 1]) * data.sign >= 0, `${positions}`);
            verify(positions.some(position => position !== positions[0]));
        }
    }
}
