// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as QQT
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    width: 400
    height: 300

    Component {
        id: _component

        KELUIQCG.MediaBlock {}
    }

    Component {
        id: _delegateComponent

        Item {}
    }

    TestCase {
        id: _test

        name: "MediaBlock"

        function init() {
            failOnWarning(/.?/);
        }

        function create(properties) {
            const block = createTemporaryObject(_component, _scene, Object.assign({ model: 3 }, properties));
            verify(block);
            return block;
        }

        function test_defaults_data() {
            return [
                { tag: "itemsHaveTitles", value: true },
                { tag: "mediaBlockItem", value: undefined },
                { tag: "delegate", value: null },
                { tag: "contentItem", value: null },
                { tag: "background", value: null },
                { tag: "implicitWidth", value: 0 },
                { tag: "implicitHeight", value: 0 },
            ];
        }

        function test_defaults(data) {
            const block = create();
            verify(data.tag in block);
            verify(block[data.tag] === data.value);
        }

        function test_isAControl() {
            verify(create() instanceof QQT.Control);
        }

        function test_keepsWhatItIsTold_data() {
            return [
                { tag: "a model", name: "model", value: ["a", "b"] },
                { tag: "undefined as model", name: "model", value: undefined },
                { tag: "null as model", name: "model", value: null },
                { tag: "itemsHaveTitles", name: "itemsHaveTitles", value: false },
                { tag: "mediaBlockItem", name: "mediaBlockItem", value: _scene },
                { tag: "delegate", name: "delegate", value: _delegateComponent },
            ];
        }

        function test_keepsWhatItIsTold(data) {
            compare(create({ [data.name]: data.value })[data.name], data.value);
        }

        function test_modelIsRequired() {
            try {
                Qt.createQmlObject("import Kelui.UI.Qml.Controls.Generic\nMediaBlock {}", _scene);
                fail("was created");
            } catch (error) {
                compare(error.qmlErrors[0].message, "Required property model was not initialized");
            }
        }
    }
}
