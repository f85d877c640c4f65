// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    // From the test program, which qmllint does not know.
    property var clock

    width: 400
    height: 400

    Component {
        id: _listComponent

        ListView {
            width: 300
            height: 300
            // So that nothing is scrolled.
            highlightRangeMode: ListView.NoHighlightRange
            highlightFollowsCurrentItem: false
            model: 4
            delegate: Item {
                required property int index

                width: 60 + index
                height: 40 + index
            }
        }
    }

    Component {
        id: _gridComponent

        GridView {
            width: 300
            height: 300
            highlightFollowsCurrentItem: false
            cellWidth: 60
            cellHeight: 60
            model: 25
            delegate: Item {
                required property int index

                width: 30 + index
                height: 20 + index
            }
        }
    }

    Component {
        id: _component

        KELUIQCG.Highlight {}
    }

    TestCase {
        id: _test

        name: "Highlight"
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

        function createView(component, properties) {
            const view = createTemporaryObject(component, _scene, properties ?? {});
            verify(view);
            view.forceLayout();
            return view;
        }

        function create(view, properties) {
            const highlight = createTemporaryObject(_component, view.contentItem, Object.assign({ view }, properties));
            verify(highlight);
            return highlight;
        }

        function geometry(item) {
            return Qt.rect(item.x, item.y, item.width, item.height);
        }

        function test_defaults_data() {
            return [
                { tag: "animationEnabled", value: false },
                { tag: "animationDuration", value: 0 },
            ];
        }

        function test_defaults(data) {
            compare(create(createView(_listComponent))[data.tag], data.value);
        }

        function test_animations_data() {
            return [
                { tag: "horizontal", name: "horizontalScrollingAnimation" },
                { tag: "vertical", name: "verticalScrollingAnimation" },
            ];
        }

        function test_animations(data) {
            const highlight = create(createView(_listComponent));
            const animation = highlight[data.name];
            compare(animation.duration, 0);
            compare(animation.velocity, 200);
            compare(animation.maximumEasingTime, -1);
            compare(animation.reversingMode, SmoothedAnimation.Eased);
            highlight.animationDuration = 350;
            compare(animation.duration, 350);
            try {
                highlight[data.name] = null;
                fail("is not read-only");
            } catch (error) {
                verify(error instanceof TypeError, error);
            }
            verify(highlight.horizontalScrollingAnimation !== highlight.verticalScrollingAnimation);
        }

        function test_viewIsRequired() {
            try {
                Qt.createQmlObject("import Kelui.UI.Qml.Controls.Generic\nHighlight {}", _scene);
                fail("was created");
            } catch (error) {
                compare(error.qmlErrors[0].message, "Required property view was not initialized");
            }
        }

        function test_followsAtOnce_data() {
            return [
                { tag: "vertical list", component: _listComponent, index: 2, expected: Qt.rect(0, 81, 62, 42) },
                { tag: "horizontal list", component: _listComponent, properties: { orientation: Qt.Horizontal },
                  index: 2, expected: Qt.rect(121, 0, 62, 42) },
                { tag: "grid", component: _gridComponent, index: 7, expected: Qt.rect(120, 60, 37, 27) },
                { tag: "duration alone", component: _gridComponent, highlight: { animationDuration: 200 },
                  index: 7, expected: Qt.rect(120, 60, 37, 27) },
            ];
        }

        function test_followsAtOnce(data) {
            const view = createView(data.component, data.properties);
            const highlight = create(view, data.highlight);
            compare(geometry(highlight), geometry(view.currentItem));
            view.currentIndex = data.index;
            compare(geometry(highlight), data.expected);
            view.currentIndex = -1;
            compare(geometry(highlight), Qt.rect(0, 0, 0, 0));
            view.currentIndex = data.index;
            compare(geometry(highlight), data.expected);
        }

        // Accelerates for half of its time and slows down for the other half.
        function test_placeIsAnimatedAndSizeIsNot() {
            const view = createView(_gridComponent);
            const highlight = create(view, { animationEnabled: true, animationDuration: 200 });
            view.currentIndex = 9;
            compare(geometry(highlight), Qt.rect(0, 0, 39, 29));
            for (const [milliseconds, share] of [[50, 0.125], [50, 0.5], [50, 0.875], [50, 1], [50, 1]]) {
                _scene.clock.step(milliseconds);
                fuzzyCompare(highlight.x, 240 * share, 0.001);
                fuzzyCompare(highlight.y, 60 * share, 0.001);
                compare(highlight.width, 39);
                compare(highlight.height, 29);
            }
            view.currentIndex = -1;
            compare(geometry(highlight), Qt.rect(240, 60, 0, 0));
            _scene.clock.step(200);
            compare(geometry(highlight), Qt.rect(0, 0, 0, 0));
        }

        function test_firstPlaceIsNotAnimated() {
            const view = createView(_gridComponent, { currentIndex: 9 });
            const highlight = create(view, { animationEnabled: true, animationDuration: 200 });
            compare(geometry(highlight), Qt.rect(240, 60, 39, 29));
        }

        function test_itemsOwnChangesAreFollowed_data() {
            return [
                { tag: "at once", animated: false },
                { tag: "animated", animated: true },
            ];
        }

        function test_itemsOwnChangesAreFollowed(data) {
            const view = createView(_gridComponent, { currentIndex: 7 });
            const highlight = create(view, { animationEnabled: data.animated, animationDuration: 200 });
            view.currentItem.x = 20;
            view.currentItem.y = 100;
            view.currentItem.width = 5;
            view.currentItem.height = 6;
            const place = data.animated ? [120, 60] : [20, 100];
            compare(geometry(highlight), Qt.rect(...place, 5, 6));
            _scene.clock.step(200);
            compare(geometry(highlight), Qt.rect(20, 100, 5, 6));
        }

        function test_anotherViewIsFollowed() {
            const view = createView(_listComponent, { currentIndex: 1 });
            const other = createView(_gridComponent, { currentIndex: 9 });
            const highlight = create(view);
            compare(geometry(highlight), Qt.rect(0, 40, 61, 41));
            highlight.view = other;
            compare(geometry(highlight), Qt.rect(240, 60, 39, 29));
            highlight.view = null;
            compare(geometry(highlight), Qt.rect(0, 0, 0, 0));
        }

        function test_outlivesItsView_data() {
            return test_itemsOwnChangesAreFollowed_data();
        }

        function test_outlivesItsView(data) {
            const view = createView(_gridComponent);
            const highlight = createTemporaryObject(_component, _scene, {
                view, animationEnabled: data.animated, animationDuration: 200
            });
            view.currentIndex = 9;
            _scene.clock.step(100);
            view.destroy();
            tryCompare(highlight, "view", null);
            _scene.clock.step(300);
            compare(geometry(highlight), Qt.rect(0, 0, 0, 0));
        }
    }
}
