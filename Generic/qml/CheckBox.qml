// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as QQT
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*!
    A box with a check icon, and a title beside it. Its colours follow enabled, checked and focused, in this
    order. A map of state colours is an object with the keys "disabled", "checked", "focused" and "normal";
    every map must be set.
*/
QQT.CheckBox {
    id: _checkBox

    /*! Set by the application's own focus logic; selects the "focused" colours. */
    property bool focused
    /*! The box alone, for a focus frame around it: while checked, the colours do not tell of the focus. */
    readonly property alias frameSourceItem: _checkBox.indicator

    /*! Round the corners of the box by roundingRadius. */
    property alias forceRounding: _indicator.forceRounding
    /*! Pixels. */
    property int roundingRadius: 9
    /*! Size of the box in pixels. */
    property size indicatorSize
    /*! State colours of the box. */
    property var indicatorColors
    /*! Image address of the check icon, which is drawn in its own size and colours. */
    property string iconPath
    /*! State colours whose alpha is the opacity of the check icon. */
    property var iconColors
    property alias titleFont: _title.font
    /*! State colours of the title. */
    property var titleColors

    implicitWidth: implicitContentWidth
    implicitHeight: Math.max(implicitContentHeight, implicitIndicatorHeight)
    spacing: 24
    indicatorSize.width: 60
    indicatorSize.height: 60

    indicator: KELUIQCG.Rectangle {
        id: _indicator

        // In the middle, as anchors round it; they would cost more.
        y: Math.ceil(Math.floor(_checkBox.height) / 2) - Math.ceil(Math.floor(height) / 2)
        implicitWidth: _checkBox.indicatorSize.width
        implicitHeight: _checkBox.indicatorSize.height
        roundingRadius: _checkBox.roundingRadius
        color: _checkBox.stateColor(_checkBox.indicatorColors)

        Image {
            id: _checkBoxIcon

            anchors.fill: parent
            fillMode: Image.Pad
            source: _checkBox.iconPath
            visible: _checkBox.checked
            opacity: _checkBox.stateColor(_checkBox.iconColors).a
        }
    }

    contentItem: RowLayout {
        id: _contentItem

        KELUIQCG.Text {
            id: _title

            Layout.leftMargin: _indicator.width + _checkBox.spacing
            // Paddings and fractions leave less than the title asks for: it would wrap, and ask for less, without
            // end.
            Layout.minimumWidth: _checkBox.width === _checkBox.implicitWidth ? implicitWidth : 0
            Layout.alignment: Qt.AlignVCenter
            Layout.fillWidth: true
            color: _checkBox.stateColor(_checkBox.titleColors)
            textWidth: width
            text: _checkBox.text
        }
    }

    /*! The colour of a map for the state that the check box is in. */
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
