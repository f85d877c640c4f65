// SPDX-License-Identifier: MIT
import QtQuick as QQ

/*!
    A filled box. Corners cost the software renderer dearly, so they are square unless rounding is forced.
*/
QQ.Rectangle {
    id: _control

    /*! Round the corners by roundingRadius. */
    property bool forceRounding
    /*! Corner radius in pixels, drawn only while forceRounding is set. */
    property real roundingRadius

    radius: forceRounding ? roundingRadius : 0
}
