// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! The module's LineEdit below its name, a stop of a page. What is wrong with its text shows once it is left. */
Generic.LineEdit {
    id: _field

    required property GalleryPage page
    required property string caption
    /*! The keyboard that suits the field; its first layout is that of keyboardLayout. */
    property int keyboardType: Generic.KelGlobal.AlphanumericKeyboard
    property bool isAcceptable: true
    /*! Replaces the caption while there is an error. */
    property string errorCaption

    width: 272
    height: 54
    leftPadding: 16
    rightPadding: 16
    font: Theme.field
    focused: page.focusedStop === _field && !selected
    selected: page.keyTarget === _field
    backgroundColors: Theme.fieldBackgrounds
    textColors: Theme.fieldTexts
    placeholderTextColors: Theme.fieldPlaceholders
    cursorWidth: 3
    errorFrameWidth: 3
    errorFrameColor: Theme.rose

    Component.onCompleted: page.addStop(_field)
    onSelectedChanged: {
        if (!selected)
            error = !isAcceptable;
    }

    Caption {
        y: -28
        color: _field.error ? Theme.rose : Theme.secondaryText
        text: _field.error ? _field.errorCaption : _field.caption
    }

    FocusFrame {
        focused: _field.focused
    }

    // The input below would take the keys for itself.
    MouseArea {
        anchors.fill: parent

        onClicked: {
            _field.page.focusedStop = _field;
            _field.page.activate();
        }
    }
}
