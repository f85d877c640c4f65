// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as QQT
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*!
    An entry of a main menu: icon, text and picture on a rounded background. Its height is fixed; only the
    background grows, so that a change of focus moves nothing. A list of colours has three entries: normal,
    checked, focused. Focus wins, and a disabled button looks like any other.
*/
QQT.Button {
    id: _button

    /*! Set by the application's own focus logic. */
    property bool focused
    /*! Height of the button in pixels. */
    property real baseHeight: 57
    /*! Height of what is drawn, around the middle of the button. */
    property real backgroundHeight: baseHeight

    /*! Animate changes of the background's colour. */
    property alias animateBackgroundColors: _backgroundAnimation.enabled
    /*! Animate changes of the text's colour. */
    property alias animateTextColors: _textAnimation.enabled
    /*! Milliseconds. */
    property int backgroundColorsAnimationDuration: 125
    /*! An Easing type. */
    property int backgroundColorsAnimationEasingType: 0 // Easing.Linear
    /*! Curve for Easing.BezierSpline; not used with other types. */
    property list<real> backgroundColorsAnimationBezierInterpolator: KELUIQCG.AnimationInterpolators.linearInterpolator
    /*! Milliseconds. */
    property int textColorsAnimationDuration: 125
    /*! An Easing type. */
    property int textColorsAnimationEasingType: 0 // Easing.Linear
    /*! Curve for Easing.BezierSpline; not used with other types. */
    property list<real> textColorsAnimationBezierInterpolator: KELUIQCG.AnimationInterpolators.linearInterpolator

    /*! Corner radius of the background in pixels. */
    property alias roundingRadius: _background.roundingRadius
    property list<color> backgroundColors: ["#ffffffff", "#ccffffff", "#99ffffff"]

    /*! Image address. */
    property alias leftIconSource: _leftIcon.source
    /*! Kept for the application; the icon has the size of its image. */
    property size leftIconSize: Qt.size(16, 16)
    property list<color> leftIconColors: ["#ff000000", "#cc000000", "#99000000"]

    /*! Image address. */
    property string rightIconSource
    /*! Size of the picture in pixels, in which it is decoded as well. Must be set where there is a picture. */
    property size rightIconSize
    /*! Corner radius in pixels; accepted, not drawn without OpenGL. */
    property int rightIconRoundingRadius

    property alias textFont: _text.font
    property list<color> textColors: ["#ff000000", "#cc000000", "#99000000"]
    /*! Pixels between icon, text and picture. */
    property int contentSpacing: 8

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: baseHeight + topInset + bottomInset
    leftPadding: 16
    topPadding: 0
    rightPadding: 16
    bottomPadding: 0
    leftInset: 0
    rightInset: 0
    checkable: true
    checked: false

    // What may not fill keeps its preferred size, in the middle of the row.
    contentItem: RowLayout {
        spacing: _button.contentSpacing

        KELUIQCG.Icon {
            id: _leftIcon

            iconColor: _button.stateColor(_button.leftIconColors)
            cacheIconImage: true
            visible: source !== ""
        }

        KELUIQCG.Text {
            id: _text

            horizontalAlignment: Qt.AlignHCenter
            verticalAlignment: Qt.AlignVCenter
            maximumLineCount: 1
            color: _button.stateColor(_button.textColors)
            text: _button.text

            Behavior on color {
                id: _textAnimation

                enabled: false

                ColorAnimation {
                    duration: _button.textColorsAnimationDuration
                    easing.type: _button.textColorsAnimationEasingType
                    easing.bezierCurve: _button.textColorsAnimationEasingType === Easing.BezierSpline
                                        ? _button.textColorsAnimationBezierInterpolator : []
                }
            }
        }

        KELUIQCG.RoundedImage {
            id: _icon

            Layout.preferredWidth: _button.rightIconSize.width
            Layout.preferredHeight: _button.rightIconSize.height
            roundingRadius: _button.rightIconRoundingRadius
            sourceSize: _button.rightIconSize
            source: _button.rightIconSource
            visible: _button.rightIconSource !== ""
        }
    }

    background: KELUIQCG.Rectangle {
        id: _background

        anchors.verticalCenter: _button.verticalCenter
        height: _button.backgroundHeight
        forceRounding: true
        roundingRadius: 15
        color: _button.stateColor(_button.backgroundColors)

        Behavior on color {
            id: _backgroundAnimation

            enabled: false

            ColorAnimation {
                duration: _button.backgroundColorsAnimationDuration
                easing.type: _button.backgroundColorsAnimationEasingType
                easing.bezierCurve: _button.backgroundColorsAnimationEasingType === Easing.BezierSpline
                                    ? _button.backgroundColorsAnimationBezierInterpolator : []
            }
        }
    }

    /*! The colour of a list for the state that the button is in. */
    function stateColor(colors: list<color>): color {
        // A typed list that is a parameter cannot be indexed itself.
        const copy = colors;
        if (focused)
            return copy[2];
        if (checked)
            return copy[1];
        return copy[0];
    }
}
