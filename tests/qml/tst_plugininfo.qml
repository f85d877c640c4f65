// SPDX-License-Identifier: MIT
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

TestCase {
    name: "PluginInfo"

    function init() {
        failOnWarning(/.?/);
    }

    function test_values_data() {
        return [
            { tag: "majorVersion", value: 1 },
            { tag: "minorVersion", value: 0 },
            { tag: "pluginInfo", value: "Generic QML Plugin" },
        ];
    }

    function test_values(data) {
        verify(KELUIQCG.PluginInfo[data.tag] === data.value);
        try {
            KELUIQCG.PluginInfo[data.tag] = data.value;
            fail("is not read-only");
        } catch (error) {
            verify(error instanceof TypeError, error);
        }
    }
}
