// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*!
    A window onto the middle of an image: as large as the image unless sized; made smaller, it cuts off
    what reaches beyond it, equally on opposite sides.
*/
Item {
    id: _control

    /*! The image within: its source, size and fill mode are set here. */
    property alias image: _image

    implicitWidth: _image.implicitWidth
    implicitHeight: _image.implicitHeight
    clip: true

    KELUIQCG.RoundedImage {
        id: _image

        anchors.centerIn: parent
        horizontalAlignment: Qt.AlignHCenter
        verticalAlignment: Qt.AlignVCenter
    }
}
