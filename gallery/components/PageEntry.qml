// SPDX-License-Identifier: MIT
import QtQml

/*! A line of the menu and the page behind it, which is made when it is opened. */
QtObject {
    id: _entry

    /*! Names the page in every language, such as that of its component. */
    required property string name
    property string title: name
    property string icon
    /*!
        Where the page Controls lists a component of the module; empty for other pages. There is an example of the
        name of each component, and the page below shows its states.
    */
    property string group
    /*! What the component is, in a line. */
    property string summary
    readonly property bool isControl: group !== ""
    default property Component page
}
