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

    // Items of 100x100, 110 pixels from one to the next.
    Component {
        id: _component

        KELUIQCG.ScrolledListView {
            width: 300
            height: 300
            spacing: 10
            leftMargin: 20
            rightMargin: 30
            topMargin: 20
            bottomMargin: 30
            // Qt warns where a model shrinks while an item that is gone is made ahead.
            cacheBuffer: 0
            model: 20
            delegate: Item {
                required property int index

                width: 100
                height: 100

                Component.onCompleted: ++_scene.created
            }
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.ScrolledListView {}
    }

    Component {
        id: _modelComponent

        ListModel {}
    }

    TestCase {
        id: _test

        readonly property var orientations: [
            { tag: "horizontal", orientation: Qt.Horizontal, layoutDirection: Qt.LeftToRight },
            { tag: "vertical", orientation: Qt.Vertical, layoutDirection: Qt.LeftToRight },
            { tag: "right to left", orientation: Qt.Horizontal, layoutDirection: Qt.RightToLeft },
        ]

        name: "ScrolledListView"
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
            const view = createTemporaryObject(_component, _scene,
                                               Object.assign({ orientation: Qt.Horizontal }, properties));
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

        function isHorizontal(view) {
            return view.orientation === Qt.Horizontal;
        }

        function geometry(item) {
            return Qt.rect(item.x, item.y, item.width, item.height);
        }

        //! Sets where the content stands along the list.
        function scroll(view, position) {
            if (isHorizontal(view))
                view.contentX = position;
            else
                view.contentY = position;
        }

        function place(view, item) {
            return isHorizontal(view) ? item.x : item.y;
        }

        function state(view, index) {
            return view.itemAtIndex(index)?.state;
        }

        function verifyCurrent(view) {
            const item = view.currentItem;
            verify(item);
            compare(item.state, "focused");
            for (let index = 0; index < view.count; ++index) {
                if (index !== view.currentIndex)
                    verify(state(view, index) !== "focused", index);
            }
            compare(geometry(view.highlightItem), geometry(item));
        }

        //! All that holds for a current item that was gone to.
        function verifyAtRest(view) {
            verifyCurrent(view);
            const item = view.currentItem;
            const { x, y } = item.mapToItem(view, 0, 0);
            if (isHorizontal(view))
                verify(x >= 0 && x + item.width <= view.width, `${x}`);
            else
                verify(y >= 0 && y + item.height <= view.height, `${y}`);
        }

        function test_defaults_data() {
            return [
                { tag: "allowStateChange", value: true },
                { tag: "highlightMoveDuration", value: 200 },
                { tag: "highlightMoveVelocity", value: -1 },
                { tag: "highlightResizeDuration", value: 0 },
                { tag: "highlightResizeVelocity", value: -1 },
                { tag: "highlightRangeMode", value: ListView.ApplyRange },
                { tag: "highlightFollowsCurrentItem", value: false },
                { tag: "orientation", value: ListView.Vertical },
                { tag: "spacing", value: 0 },
                { tag: "preferredHighlightBegin", value: 0 },
                { tag: "preferredHighlightEnd", value: 0 },
            ];
        }

        function test_defaults(data) {
            compare(createTemporaryObject(_bareComponent, _scene)[data.tag], data.value);
        }

        function test_preferredRange() {
            const view = create({ width: 310, height: 290, leftMargin: 1, topMargin: 2, rightMargin: 3,
                                  bottomMargin: 4 });
            compare([view.preferredHighlightBegin, view.preferredHighlightEnd], [1, 307]);
            view.orientation = Qt.Vertical;
            compare([view.preferredHighlightBegin, view.preferredHighlightEnd], [2, 286]);
            view.width = view.height = 500;
            view.topMargin = 20;
            compare([view.preferredHighlightBegin, view.preferredHighlightEnd], [20, 496]);
            view.orientation = Qt.Horizontal;
            compare([view.preferredHighlightBegin, view.preferredHighlightEnd], [1, 497]);
        }

        function test_highlight() {
            const view = create();
            verify(view.highlightItem instanceof KELUIQCG.Highlight);
            compare(view.highlightItem.view, view);
            compare(view.highlightItem.animationDuration, 200);
            view.highlightMoveDuration = 70;
            compare(view.highlightItem.animationDuration, 70);
        }

        // Item 1 stands at 110 and ends at 210, item 2 at 220 and 320.
        function test_edges_data() {
            const rows = [
                { tag: "first to second", from: 0, position: -20, to: 1, animated: false },
                { tag: "first to third", from: 0, position: -20, to: 2, animated: true },
                { tag: "ends one spacing before the edge", from: 1, position: 30, to: 2, animated: false },
                { tag: "ends in the last spacing", from: 1, position: 29, to: 2, animated: true },
                { tag: "starts at the margin", from: 2, position: 90, to: 1, animated: false },
                { tag: "starts in the margin", from: 2, position: 91, to: 1, animated: true },
                { tag: "far behind", from: 0, position: -20, to: 15, animated: true },
                { tag: "far before", from: 15, position: 1500, to: 3, animated: true },
            ];
            return combined(orientations.slice(0, 2), rows);
        }

        function test_edges(data) {
            const view = create({ orientation: data.orientation, currentIndex: data.from });
            scroll(view, data.position);
            const from = place(view, view.currentItem);
            view.currentIndex = data.to;
            const to = data.to * 110;
            compare(place(view, view.currentItem), to);
            compare(view.highlightItem.animationEnabled, data.animated);
            compare(place(view, view.highlightItem), data.animated ? from : to);
            compare(view.highlightItem.width, 100);
            for (const share of [0.125, 0.5, 0.875, 1]) {
                step(view, 50);
                const expected = data.animated ? from + (to - from) * share : to;
                // A short way is not slower than 200 pixels a second.
                if (Math.abs(to - from) > 40)
                    fuzzyCompare(place(view, view.highlightItem), expected, 0.01);
            }
            settle(view);
            verifyAtRest(view);
        }

        function test_oversizedItemIsAcrossAnEdge() {
            const view = create({ width: 105, leftMargin: 0, rightMargin: 0 });
            view.currentIndex = 1;
            verify(view.highlightItem.animationEnabled);
            settle(view);
            verifyAtRest(view);
        }

        function test_walk_data() {
            return orientations;
        }

        function test_walk(data) {
            const view = create({ orientation: data.orientation, layoutDirection: data.layoutDirection });
            for (let index = 1; index < view.count; ++index) {
                view.incrementCurrentIndex();
                settle(view);
                compare(view.currentIndex, index);
                verifyAtRest(view);
                compare(state(view, index - 1), "normal");
            }
            for (let index = view.count - 2; index >= 0; --index) {
                view.decrementCurrentIndex();
                settle(view);
                compare(view.currentIndex, index);
                verifyAtRest(view);
                compare(state(view, index + 1), "normal");
            }
        }

        function test_rightToLeftAnimatesAtTheLeftEdge() {
            const view = create({ layoutDirection: Qt.RightToLeft });
            compare(view.currentItem.mapToItem(view, 0, 0).x, 170);
            view.currentIndex = 1;
            verify(!view.highlightItem.animationEnabled);
            compare(view.highlightItem.x, -210);
            view.currentIndex = 2;
            verify(view.highlightItem.animationEnabled);
            compare(view.highlightItem.x, -210);
            settle(view);
            compare(view.highlightItem.x, -320);
            // The preferred range is mirrored, with what was the right margin on the left.
            compare(view.currentItem.mapToItem(view, 0, 0).x, 30);
        }

        function test_jumps_data() {
            return orientations;
        }

        function test_jumps(data) {
            const view = create({ orientation: data.orientation, layoutDirection: data.layoutDirection });
            for (const index of [19, 0, 10, 12, 9, 19, 18, 1]) {
                view.currentIndex = index;
                settle(view);
                verifyAtRest(view);
            }
        }

        function test_noCurrentItem() {
            const view = create();
            view.currentIndex = 2;
            settle(view);
            view.currentIndex = 3;
            const item = view.currentItem;
            const highlight = view.highlightItem;
            verify(highlight.animationEnabled);
            view.currentIndex = -1;
            compare(view.currentItem, null);
            compare(item.state, "normal");
            compare(view.highlightItem, null);
            // Qt destroys it later.
            compare(highlight.animationEnabled, false);
            settle(view);
            // Nothing is remembered from before.
            view.itemAtIndex(3).state = "own";
            // The new highlight is where it belongs from the start, and not animated unless across an edge.
            scroll(view, 40);
            view.currentIndex = 1;
            verify(!view.highlightItem.animationEnabled);
            compare(view.highlightItem.x, 110);
            compare(state(view, 3), "own");
            settle(view);
            verifyAtRest(view);
        }

        function test_states() {
            const view = create();
            compare([state(view, 0), state(view, 1)], ["focused", ""]);
            view.currentIndex = 1;
            compare([state(view, 0), state(view, 1)], ["normal", "focused"]);
            view.currentIndex = 0;
            compare([state(view, 0), state(view, 1)], ["focused", "normal"]);
        }

        function test_statesAreLeftAlone() {
            const view = create({ allowStateChange: false });
            view.currentIndex = 1;
            compare([state(view, 0), state(view, 1)], ["", ""]);
            view.currentIndex = -1;
            compare([state(view, 0), state(view, 1)], ["", ""]);
        }

        function test_statesAreHandedOverAgain() {
            const view = create();
            view.allowStateChange = false;
            view.currentIndex = 1;
            compare([0, 1, 2].map(index => state(view, index)), ["focused", "", ""]);
            view.allowStateChange = true;
            compare([0, 1, 2].map(index => state(view, index)), ["focused", "", ""]);
            view.currentIndex = 2;
            compare([0, 1, 2].map(index => state(view, index)), ["focused", "normal", "focused"]);
        }

        function test_modelChanges_data() {
            const rows = [
                { tag: "insert before", change: model => model.insert(0, { name: "new" }), current: "item 3" },
                { tag: "insert at", change: model => model.insert(3, { name: "new" }), current: "item 3" },
                { tag: "insert after", change: model => model.insert(4, { name: "new" }), current: "item 3" },
                { tag: "insert many before", change: model => {
                    for (let index = 0; index < 30; ++index)
                        model.insert(0, { name: "new" });
                  }, current: "item 3" },
                { tag: "remove before", change: model => model.remove(0), current: "item 3" },
                { tag: "remove current", change: model => model.remove(3), current: "item 4" },
                { tag: "remove after", change: model => model.remove(4), current: "item 3" },
                { tag: "remove around", change: model => model.remove(2, 3), current: "item 5" },
                { tag: "remove to the end", change: model => model.remove(3, 7), current: "item 2" },
                { tag: "move current away", change: model => model.move(3, 9, 1), current: "item 3" },
                { tag: "move another over", change: model => model.move(0, 5, 1), current: "item 3" },
                { tag: "clear and fill", change: model => {
                    model.clear();
                    model.append({ name: "new" });
                  }, current: "new" },
            ];
            return combined(orientations, rows);
        }

        function test_modelChanges(data) {
            const model = createModel(10);
            const view = create({ orientation: data.orientation, layoutDirection: data.layoutDirection, model });
            // The view follows an item that was gone to, not one that it began with.
            view.currentIndex = 3;
            settle(view);
            compare(state(view, 3), "focused");
            data.change(model);
            settle(view);
            compare(model.get(view.currentIndex).name, data.current);
            verifyAtRest(view);
            view.currentIndex = 0;
            settle(view);
            verifyAtRest(view);
        }

        function test_removalsOfTheCurrentItem() {
            const model = createModel(6);
            const view = create({ model, currentIndex: 5 });
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
            const view = create({ currentIndex: 5 });
            view.currentIndex = 9;
            step(view, 100);
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

        function test_rememberedItemIsDestroyed() {
            const model = createModel(3);
            const view = create({ model, currentIndex: 1, allowStateChange: false });
            model.remove(1);
            settle(view);
            wait(0);
            view.allowStateChange = true;
            view.currentIndex = 0;
            settle(view);
            verifyAtRest(view);
        }

        function test_orientationChanges_data() {
            return [
                { tag: "at rest", milliseconds: 1000 },
                { tag: "while the highlight moves", milliseconds: 100 },
            ];
        }

        function test_orientationChanges(data) {
            const view = create();
            for (const orientation of [Qt.Vertical, Qt.Horizontal, Qt.Vertical]) {
                view.currentIndex = (view.currentIndex + 7) % view.count;
                step(view, data.milliseconds);
                view.orientation = orientation;
                settle(view);
                // Qt puts the content back to its start.
                verifyCurrent(view);
                view.incrementCurrentIndex();
                settle(view);
                verifyAtRest(view);
            }
        }

        function test_layoutDirectionChanges() {
            const view = create({ currentIndex: 7 });
            for (const layoutDirection of [Qt.RightToLeft, Qt.LeftToRight]) {
                view.currentIndex += 3;
                step(view, 100);
                view.layoutDirection = layoutDirection;
                settle(view);
                verifyAtRest(view);
            }
        }

        function test_noRoom_data() {
            return [
                { tag: "no width", size: Qt.size(0, 300) },
                { tag: "no height", size: Qt.size(300, 0) },
                { tag: "neither", size: Qt.size(0, 0) },
            ];
        }

        function test_noRoom(data) {
            const view = create({ width: data.size.width, height: data.size.height });
            view.currentIndex = 7;
            settle(view);
            view.width = view.height = 300;
            settle(view);
            view.currentIndex = 8;
            settle(view);
            verifyAtRest(view);
        }

        function test_manyItems_data() {
            return orientations;
        }

        function test_manyItems(data) {
            const view = create({ orientation: data.orientation, layoutDirection: data.layoutDirection,
                                  model: 100000 });
            verify(_scene.created < 15, _scene.created);
            view.currentIndex = 99999;
            settle(view);
            compare(view.currentItem.state, "focused");
            const { x, y } = view.currentItem.mapToItem(view, 0, 0);
            compare(view.orientation === Qt.Vertical ? y : x, data.layoutDirection === Qt.RightToLeft ? 20 : 170);
            verify(_scene.created < 300, _scene.created);
        }

        function test_destroyedWhileTheHighlightMoves() {
            const view = create();
            view.currentIndex = 9;
            verify(view.highlightItem.animationEnabled);
            step(view, 100);
            verify(view.highlightItem.x > 0 && view.highlightItem.x < 990);
            const highlight = view.highlightItem;
            let isGone = false;
            highlight.Component.destruction.connect(() => isGone = true);
            view.destroy();
            tryVerify(() => isGone);
            for (let frame = 0; frame < 20; ++frame)
                _scene.clock.step(16);
            wait(0);
        }

        function test_heldKey_data() {
            return [
                { tag: "right", orientation: Qt.Horizontal, layoutDirection: Qt.LeftToRight, key: Qt.Key_Right,
                  from: 0, to: 19, sign: 1 },
                { tag: "left", orientation: Qt.Horizontal, layoutDirection: Qt.LeftToRight, key: Qt.Key_Left,
                  from: 19, to: 0, sign: -1 },
                { tag: "down", orientation: Qt.Vertical, layoutDirection: Qt.LeftToRight, key: Qt.Key_Down,
                  from: 0, to: 19, sign: 1 },
                { tag: "up", orientation: Qt.Vertical, layoutDirection: Qt.LeftToRight, key: Qt.Key_Up,
                  from: 19, to: 0, sign: -1 },
                { tag: "left, right to left", orientation: Qt.Horizontal, layoutDirection: Qt.RightToLeft,
                  key: Qt.Key_Left, from: 0, to: 19, sign: -1 },
                { tag: "right, right to left", orientation: Qt.Horizontal, layoutDirection: Qt.RightToLeft,
                  key: Qt.Key_Right, from: 19, to: 0, sign: 1 },
            ];
        }

        // 30 times a second.
        function test_heldKey(data) {
            const view = create({ orientation: data.orientation, layoutDirection: data.layoutDirection,
                                  currentIndex: data.from });
            const positions = [];
            for (let press = 0; press < 25; ++press) {
                const isTaken = _scene.remote.press(view, data.key, "", Qt.NoModifier, press > 0);
                verify(view.currentItem);
                compare(view.currentItem.state, "focused");
                compare(Math.abs(view.currentIndex - data.from), Math.min(press + 1, 19));
                compare(isTaken, press < 19);
                for (let frame = 0; frame < 3; ++frame) {
                    step(view, 11);
                    positions.push(isHorizontal(view) ? view.contentX : view.contentY);
                }
            }
            compare(view.currentIndex, data.to);
            settle(view);
            verifyAtRest(view);
            positions.push(isHorizontal(view) ? view.contentX : view.contentY);
            for (let index = 1; index < positions.length; ++index)
                verify((positions[index] - positions[index - 1]) * data.sign >= 0, `${positions}`);
            verify(positions.some(position => position !== positions[0]));
        }
    }
}
