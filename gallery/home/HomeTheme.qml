// SPDX-License-Identifier: MIT
pragma Singleton

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! Sizes and type of the home screen, which is read from the sofa, and what its settings change. */
QtObject {
    id: _theme

    property bool isTextLarge: false
    property bool areTitlesShown: true
    /*! Pixels of the window to one of the design, so that pictures are made as large as they are shown. */
    property real pixelRatio: 1

    /*! What a television may cut off. */
    readonly property int sideMargin: 64
    readonly property int topMargin: 36
    readonly property int bottomMargin: 36
    /*! Of a row of films with its title. One for all, so that each comes to stand where the last one was. */
    readonly property int rowHeight: 248
    /*! Between a picture and the frame around it when it is in focus. */
    readonly property int framePadding: 8
    readonly property size tilePicture: Qt.size(256, 144)
    readonly property size posterPicture: Qt.size(120, 180)
    readonly property size gridPicture: Qt.size(210, 118)
    /*! What the title of a film adds to the height of its tile. */
    readonly property int tileTitleHeight: 36

    readonly property color shade: "#c00d121a"
    readonly property color clearShade: "#000d121a"
    readonly property color emptyBox: "#75869f"
    readonly property font title: contentFont(48, Font.Bold)
    readonly property font details: contentFont(22, Font.DemiBold)
    readonly property font description: contentFont(22, Font.Normal)
    readonly property font row: contentFont(24, Font.Bold)
    readonly property font tile: contentFont(19, Font.DemiBold)
    readonly property font rank: Theme.sizedFont(200, Font.Bold)
    readonly property font button: Theme.controlFont(22, Font.DemiBold)

    readonly property var buttonBackgrounds: ({
        disabled: Theme.panel, checked: Theme.text, focused: Theme.text, normal: Theme.raised
    })
    readonly property var buttonTitles: ({
        disabled: Theme.disabledText, checked: Theme.ink, focused: Theme.ink, normal: Theme.text
    })
    readonly property var boxes: ({
        disabled: Theme.panel, checked: Theme.positive, focused: emptyBox, normal: emptyBox
    })
    readonly property var boxTitles: ({
        disabled: Theme.disabledText, checked: Theme.text, focused: Theme.text, normal: Theme.text
    })

    function contentFont(pixelSize: int, weight: int): font {
        return Theme.sizedFont(isTextLarge ? pixelSize * 1.2 : pixelSize, weight);
    }

    /*! An icon made for that place on the screen. */
    function icon(name: string, side: real): string {
        return String(Generic.Helpers.imageUrl(PictureSource.address("icons/" + name), side * pixelRatio,
                                               side * pixelRatio, false, true));
    }

    /*! For what is drawn in the pixels of the window, and shown scaled down by pixelRatio. */
    function enlarged(design: font): font {
        return Qt.font({ family: design.family, pixelSize: design.pixelSize * pixelRatio, weight: design.weight });
    }
}
