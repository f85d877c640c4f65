// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as QQT
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*! An image file drawn in one colour, such as the colour of its button's state. */
QQT.Control {
    id: _icon

    /*! Address of the image. */
    property string source
    /*!
        What an iconColor of "transparent" means: true, colour the icon with it (it disappears);
        false, leave the icon as its file draws it.
    */
    property bool colorizeOnTransparent: true
    /*! The colour of the icon. The default hides the icon: give it a colour, or clear colorizeOnTransparent. */
    property color iconColor: "transparent"
    /*! ImageColorizer.DestinationAlpha (the colour's alpha counts) or ImageColorizer.SourceAlpha. */
    property int coloringMethod: 1 // ImageColorizer.DestinationAlpha
    /*! Corner radius in pixels; accepted, not drawn without OpenGL. */
    property alias roundingRadius: _contentItem.roundingRadius
    /*! Keep the decoded image in the image cache. */
    property alias cacheIconImage: _contentItem.cache
    /*! Mirror the image horizontally. */
    property alias mirror: _contentItem.mirror

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             implicitContentHeight + topPadding + bottomPadding)
    topInset: 0
    leftInset: 0
    rightInset: 0
    bottomInset: 0
    // Nobody points at an icon; asking its ancestors about it would make a button a fortieth slower to create.
    hoverEnabled: false

    contentItem: KELUIQCG.RoundedImage {
        id: _contentItem

        source: _icon.source

        KELUIQCG.ImageColorizer {
            sourceItem: _contentItem
            color: _icon.iconColor
            coloringMethod: _icon.coloringMethod
            enabled: _icon.colorizeOnTransparent || !Qt.colorEqual(_icon.iconColor, "transparent")
        }
    }

    background: Item {
        id: _background
    }
}
