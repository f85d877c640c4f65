// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as QQT
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*! One tab of a bar; among its siblings one is checked. Checked wins over focused; a disabled tab looks like any. */
QQT.TabButton {
    id: _tabButton

    /*! Kept for the application; has no effect here. */
    property bool selected
    /*! Set by the application's own focus logic. */
    property bool focused

    /*! Animate changes of the background's colour. */
    property alias animateBackgroundColors: _backgroundAnimation.enabled
    /*! Animate changes of the text's colour. */
    property alias animateTextColors: _textAnimation.enabled
    /*! Milliseconds. */
    property int backgroundColorsAnimationDuration: 125
    /*! An Easing type. */
    property int backgroundColorsAnimationEasingType: 0 // Easing.Linear
    /*! Curve for Easing.BezierSpline; not used with other types. */
    property list<real> backgroundColorsBezierAnimationInterpolator: KELUIQCG.AnimationInterpolators.linearInterpolator
    /*! Milliseconds. */
    property int textColorsAnimationDuration: 125
    /*! An Easing type. */
    property int textColorsAnimationEasingType: 0 // Easing.Linear
    /*! Curve for Easing.BezierSpline; not used with other types. */
    property list<real> textColorsBezierAnimationInterpolator: KELUIQCG.AnimationInterpolators.linearInterpolator

    /*! Corner radius in pixels, handed to the background, which draws square corners all the same. */
    property alias roundingRadius: _background.roundingRadius
    // All the same on purpose: the application gives each state its colours.
    property color backgroundColor: "#000000"
    property color textColor: "#FFFFFF"
    property color backgroundFocusedColor: "#000000"
    property color textFocusedColor: "#FFFFFF"
    /*! The colours while checked. */
    property color backgroundSelectedColor: "#000000"
    property color textSelectedColor: "#FFFFFF"
    /*! Pixels; a longer text widens the tab. */
    property real minimumWidth
    /*! The height in pixels. Must be set. */
    property real minimumHeight

    implicitWidth: Math.max(minimumWidth, _contentItem.width + leftPadding + rightPadding)
    implicitHeight: minimumHeight
    checkable: true
    leftInset: 0
    topInset: 0
    rightInset: 0
    bottomInset: 0
    leftPadding: 0
    topPadding: 0
    rightPadding: 0
    bottomPadding: 0

    KELUIQCG.Text {
        id: _contentItem

        anchors.centerIn: parent
        font: _tabButton.font
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: Text.AlignHCenter
        color: _tabButton.checked ? _tabButton.textSelectedColor
               : _tabButton.focused ? _tabButton.textFocusedColor
               : _tabButton.textColor
        text: _tabButton.text

        Behavior on color {
            id: _textAnimation

            enabled: false

            ColorAnimation {
                duration: _tabButton.textColorsAnimationDuration
                easing.type: _tabButton.textColorsAnimationEasingType
                easing.bezierCurve: _tabButton.textColorsAnimationEasingType === Easing.BezierSpline
                                    ? _tabButton.textColorsBezierAnimationInterpolator : []
            }
        }
    }

    background: KELUIQCG.Rectangle {
        id: _background

        anchors.fill: parent
        roundingRadius: 9
        color: _tabButton.checked ? _tabButton.backgroundSelectedColor
               : _tabButton.focused ? _tabButton.backgroundFocusedColor
               : _tabButton.backgroundColor

        Behavior on color {
            id: _backgroundAnimation

            enabled: false

            ColorAnimation {
                duration: _tabButton.backgroundColorsAnimationDuration
                easing.type: _tabButton.backgroundColorsAnimationEasingType
                easing.bezierCurve: _tabButton.backgroundColorsAnimationEasingType === Easing.BezierSpline
                                    ? _tabButton.backgroundColorsBezierAnimationInterpolator : []
            }
        }
    }
}
