// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic

Item {
    readonly property Button button: Button {
        readonly property var colors: ({ disabled: "#111111", checked: "#222222", focused: "#333333", normal: "#444444" })

        fixedSize: Qt.size(200, 60)
        titleText: PluginInfo.pluginInfo
        backgroundColors: colors
        leftIconColors: colors
        rightIconColors: colors
        titleColors: colors
        subtitleColors: colors
        focused: KelGlobal.Pressed === 0
    }
}
