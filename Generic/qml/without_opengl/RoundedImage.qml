// SPDX-License-Identifier: MIT
import QtQuick

/*!
    An image. It has the interface of a rounded and clipped one, and draws as a plain Image: the four
    properties below are accepted and deliberately have no effect without OpenGL.
*/
Image {
    id: _control

    /*! Corner radius in pixels. */
    property real roundingRadius
    /*! Edges that stay square. */
    property int notRoundedEdges
    /*! Width in pixels to which the image is clipped. */
    property real clippingWidth
    /*! Height in pixels to which the image is clipped. */
    property real clippingHeight
}
