// SPDX-License-Identifier: MIT
pragma Singleton

import QtQml

/*! What the pages fill their lists with. */
QtObject {
    readonly property list<string> posters: [
        "poster-lighthouse", "poster-rocket", "poster-whale", "poster-forest", "poster-balloon", "poster-train",
        "poster-island", "poster-chess"
    ]
    readonly property list<string> titles: [
        qsTr("The Last Lamp"), qsTr("First Launch"), qsTr("Deep Song"), qsTr("Amber Forest"), qsTr("Above the Hills"),
        qsTr("Evening Express"), qsTr("Far Island"), qsTr("Knight’s Move")
    ]
}
