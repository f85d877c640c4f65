// SPDX-License-Identifier: MIT
import QtQuick

/*! A film that has a picture of its own. */
QtObject {
    id: _film

    required property string picture
    required property string title
    required property string genre
    required property string description
    required property string story
    /*! Which part of the picture a poster shows. */
    property int alignment: Image.AlignHCenter
}
