// SPDX-License-Identifier: MIT
import Kelui.UI.Qml.Controls.Generic as Kelui

Kelui.Text {
    font.pixelSize: 32
    color: "#f3f6fb"
    text: Kelui.PluginInfo.pluginInfo + " " + Kelui.PluginInfo.majorVersion
          + "." + Kelui.PluginInfo.minorVersion
}
