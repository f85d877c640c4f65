// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Layouts

/*! Room in a layout: of a fixed size, or all that is left. */
Item {
    id: _spacer

    /*! Pixels; -1 fills. */
    property real fixedWidth: -1
    property real fixedHeight: -1

    Component.onCompleted: relayout()
    onFixedWidthChanged: relayout()
    onFixedHeightChanged: relayout()

    /*!
        Hands the sizes to the layout. Deliberately nothing is taken back: a spacer that was fixed once
        keeps its size when it is to fill again.
    */
    function relayout() {
        if (fixedWidth !== -1) {
            Layout.preferredWidth = fixedWidth;
            Layout.minimumWidth = fixedWidth;
            Layout.maximumWidth = fixedWidth;
        } else {
            Layout.fillWidth = true;
        }
        if (fixedHeight !== -1) {
            Layout.preferredHeight = fixedHeight;
            Layout.minimumHeight = fixedHeight;
            Layout.maximumHeight = fixedHeight;
        } else {
            Layout.fillHeight = true;
        }
    }
}
