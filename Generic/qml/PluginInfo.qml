// SPDX-License-Identifier: MIT
pragma Singleton

import QtQml

/*! What this module is. */
QtObject {
    id: _pluginInfo

    readonly property int majorVersion: 1
    readonly property int minorVersion: 0
    readonly property string pluginInfo: "Generic QML Plugin"
}
