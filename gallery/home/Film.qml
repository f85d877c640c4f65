// SPDX-License-Identifier: MIT
import QtQml

/*! A film that has a picture of its own. */
QtObject {
    id: _film

    required property string picture
    required property string title
    required property string genre
    required property string description
}
