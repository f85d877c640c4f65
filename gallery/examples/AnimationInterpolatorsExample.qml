// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Kelui

Rectangle {
    width: 80
    height: 80
    color: "#ffc247"

    SequentialAnimation on x {
        loops: Animation.Infinite

        NumberAnimation {
            to: 380
            duration: 2000
            easing.type: Easing.BezierSpline
            easing.bezierCurve: [...Kelui.AnimationInterpolators.linearInterpolator]
        }

        NumberAnimation {
            to: 0
            duration: 400
        }
    }
}
