// SPDX-License-Identifier: MIT
import QtQml

/*! A line of the menu and the page behind it, which is made when it is opened. */
QtObject {
    id: _entry

    /*! Names the page in every language, such as that of its component. */
    required property string name
    property string title: name
    required property string icon
    default property Component page
}
