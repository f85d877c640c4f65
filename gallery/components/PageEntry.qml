// SPDX-License-Identifier: MIT
import QtQml

/*! A line of the menu and the page behind it, which is made when it is opened. */
QtObject {
    id: _entry

    required property string title
    required property string icon
    default property Component page
}
