// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as QQT
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*!
    A push button: left icon, title over subtitle, right icon. Its colours follow enabled, checked and
    focused, in this order. A map of state colours is an object with the keys "disabled", "checked",
    "focused" and "normal"; every map must be set.
*/
QQT.Button {
    id: _button

    // Some defaults are numbers: a name would be a binding, evaluated for each button.

    /*! Set by the application's own focus logic; selects the "focused" colours. */
    property bool focused

    /*! Animate changes of the background's colour. */
    property alias animateBackgroundColors: _backgroundAnimation.enabled
    /*! Animate changes of the title's and subtitle's colours. */
    property alias animateTextColors: _titleAnimation.enabled
    /*! Milliseconds. */
    property int backgroundColorsAnimationDuration: 125
    /*! An Easing type. */
    property int backgroundColorsAnimationEasingType: 0 // Easing.Linear
    /*! Curve for Easing.BezierSpline; not used with other types. */
    property var backgroundColorsBezierAnimationInterpolator: KELUIQCG.AnimationInterpolators.linearInterpolator
    /*! Milliseconds. */
    property int textColorsAnimationDuration: 125
    /*! An Easing type. */
    property int textColorsAnimationEasingType: 0 // Easing.Linear
    /*! Curve for Easing.BezierSpline; not used with other types. */
    property var textColorsBezierAnimationInterpolator: KELUIQCG.AnimationInterpolators.linearInterpolator

    /*! Corner radius in pixels, handed to the background, which draws square corners all the same. */
    property alias roundingRadius: _background.roundingRadius
    /*! State colours of the background. */
    property var backgroundColors

    /*! Image address. */
    property alias leftIconSource: _leftIcon.source
    /*! Size in pixels; a side that is not above 0 is the image's own. */
    property size leftIconSize
    /*! State colours of the left icon. */
    property var leftIconColors
    /*! Kept for the application; has no effect here. */
    property bool leftIconColored: true

    /*! Image address. */
    property alias rightIconSource: _rightIcon.source
    /*! Size in pixels; a side that is not above 0 is the image's own. */
    property size rightIconSize
    /*! State colours of the right icon. */
    property var rightIconColors
    /*! Kept for the application; has no effect here. */
    property bool rightIconColored: true

    /*! Paddings of the text block, in pixels; deliberately not taken off the room for the texts. */
    property int textBlockLeftMargin
    property int textBlockTopMargin
    property int textBlockRightMargin
    property int textBlockBottomMargin
    /*! Pixels between title and subtitle. */
    property int textBlockSpacing: 10

    /*! Also the template's text. */
    property alias titleText: _title.text
    property alias titleFont: _title.font
    /*! State colours of the title. */
    property var titleColors
    /*! Horizontal and vertical alignment flags in one value. */
    property int titleAlignment: 33 // Qt.AlignTop | Qt.AlignLeft

    property alias subtitleText: _subtitle.text
    property alias subtitleFont: _subtitle.font
    /*! State colours of the subtitle. */
    property var subtitleColors
    /*! Horizontal and vertical alignment flags in one value. */
    property int subtitleAlignment: 66 // Qt.AlignBottom | Qt.AlignRight

    /*! Outer size in pixels: always the height, and the width while isFixedWidth is set. Must be set. */
    property size fixedSize
    /*! Take the width from fixedSize and cut the texts to the room left; else grow with the texts. */
    property bool isFixedWidth: true

    /*! The subtitle as shown. */
    readonly property alias subtitle: _subtitle.text

    implicitWidth: isFixedWidth ? fixedSize.width : _contentBlock.width + leftPadding + rightPadding
    implicitHeight: fixedSize.height
    leftPadding: 0
    topPadding: 0
    rightPadding: 0
    bottomPadding: 0
    text: _title.text

    // Handlers, as they cost a button less than bindings, most of all where nothing is given.
    onTextBlockLeftMarginChanged: _textBlock.leftPadding = textBlockLeftMargin
    onTextBlockTopMarginChanged: _textBlock.topPadding = textBlockTopMargin
    onTextBlockRightMarginChanged: _textBlock.rightPadding = textBlockRightMargin
    onTextBlockBottomMarginChanged: _textBlock.bottomPadding = textBlockBottomMargin
    onLeftIconSizeChanged: {
        if (leftIconSize.width > 0)
            _leftIcon.width = leftIconSize.width;
        else
            _leftIcon.width = undefined;
        if (leftIconSize.height > 0)
            _leftIcon.height = leftIconSize.height;
        else
            _leftIcon.height = undefined;
    }
    onRightIconSizeChanged: {
        if (rightIconSize.width > 0)
            _rightIcon.width = rightIconSize.width;
        else
            _rightIcon.width = undefined;
        if (rightIconSize.height > 0)
            _rightIcon.height = rightIconSize.height;
        else
            _rightIcon.height = undefined;
    }
    onTitleAlignmentChanged: {
        _title.horizontalAlignment = titleAlignment;
        _title.verticalAlignment = titleAlignment;
    }
    onSubtitleAlignmentChanged: {
        _subtitle.horizontalAlignment = subtitleAlignment;
        _subtitle.verticalAlignment = subtitleAlignment;
    }

    background: KELUIQCG.Rectangle {
        id: _background

        roundingRadius: 15
        color: _button.stateColor(_button.backgroundColors)

        Behavior on color {
            id: _backgroundAnimation

            enabled: false

            ColorAnimation {
                duration: _button.backgroundColorsAnimationDuration
                easing.type: _button.backgroundColorsAnimationEasingType
                easing.bezierCurve: _button.backgroundColorsAnimationEasingType === Easing.BezierSpline
                                    ? _button.backgroundColorsBezierAnimationInterpolator : []
            }
        }
    }

    contentItem: Item {
        id: _contentItem

        Row {
            id: _contentBlock

            anchors.centerIn: parent
            spacing: _button.spacing

            Component.onCompleted: {
                if (_button.isFixedWidth) {
                    _title.textWidth = KELUIQCG.KelGlobal.numberMaxValue;
                    _subtitle.textWidth = KELUIQCG.KelGlobal.numberMaxValue;
                }
                _button.recalculateTextWidth();
            }

            KELUIQCG.Icon {
                id: _leftIcon

                anchors.verticalCenter: parent.verticalCenter
                iconColor: _button.stateColor(_button.leftIconColors)
            }

            Column {
                id: _textBlock

                anchors.verticalCenter: parent.verticalCenter
                width: _title.width
                spacing: _button.textBlockSpacing

                KELUIQCG.Text {
                    id: _title

                    maximumLineCount: 1
                    color: _button.stateColor(_button.titleColors)
                    visible: false

                    onTextChanged: {
                        _title.visible = _title.text !== "";
                        if (_button.isFixedWidth)
                            _title.textWidth = KELUIQCG.KelGlobal.numberMaxValue;
                    }
                    onImplicitWidthChanged: _button.recalculateTextWidth()

                    Behavior on color {
                        id: _titleAnimation

                        enabled: false

                        ColorAnimation {
                            duration: _button.textColorsAnimationDuration
                            easing.type: _button.textColorsAnimationEasingType
                            easing.bezierCurve: _button.textColorsAnimationEasingType === Easing.BezierSpline
                                                ? _button.textColorsBezierAnimationInterpolator : []
                        }
                    }
                }

                KELUIQCG.Text {
                    id: _subtitle

                    horizontalAlignment: Qt.AlignRight
                    verticalAlignment: Qt.AlignBottom
                    maximumLineCount: 1
                    color: _button.stateColor(_button.subtitleColors)
                    visible: false

                    onTextChanged: {
                        _subtitle.visible = _subtitle.text !== "";
                        if (_button.isFixedWidth)
                            _subtitle.textWidth = KELUIQCG.KelGlobal.numberMaxValue;
                    }
                    onImplicitWidthChanged: _button.recalculateTextWidth()

                    Behavior on color {
                        enabled: _titleAnimation.enabled

                        ColorAnimation {
                            duration: _button.textColorsAnimationDuration
                            easing.type: _button.textColorsAnimationEasingType
                            easing.bezierCurve: _button.textColorsAnimationEasingType === Easing.BezierSpline
                                                ? _button.textColorsBezierAnimationInterpolator : []
                        }
                    }
                }
            }

            KELUIQCG.Icon {
                id: _rightIcon

                anchors.verticalCenter: parent.verticalCenter
                iconColor: _button.stateColor(_button.rightIconColors)
            }
        }
    }

    /*!
        Gives both texts the room that the icons leave, or less where neither needs it. Call it after a
        change of the width or the icons: the button itself follows the texts only. Does nothing unless
        isFixedWidth is set.
    */
    function recalculateTextWidth() {
        if (!isFixedWidth)
            return;
        // Deliberately the left padding twice.
        let room = width - leftPadding - leftPadding;
        if (_leftIcon.visible)
            room -= _leftIcon.width + _contentBlock.spacing;
        if (_rightIcon.visible)
            room -= _rightIcon.width + _contentBlock.spacing;
        const textWidth = Math.min(room, Math.max(_title.implicitWidth, _subtitle.implicitWidth));
        _title.width = textWidth;
        _title.textWidth = textWidth;
        _subtitle.width = textWidth;
        _subtitle.textWidth = textWidth;
    }

    /*! The colour of a map for the state that the button is in. */
    function stateColor(colors: var): color {
        if (!enabled)
            return colors["disabled"];
        if (checked)
            return colors["checked"];
        if (focused)
            return colors["focused"];
        return colors["normal"];
    }
}
