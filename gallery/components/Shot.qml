// SPDX-License-Identifier: MIT
import QtQml

/*! One state of a page worth a picture. The page is fresh from loading when `taken` is emitted. */
QtObject {
    id: _shot

    /*! The component and its state, such as "Button-checked"; also the name of the file. */
    required property string name
    /*! The code of a language; by default that of all pictures. */
    property string language
    /*! Digits of the remote that are pressed in the state. */
    property string digits
    /*! Milliseconds that pass in the state; for the rest of the time clocks stand still. */
    property int time: 0

    /*! Puts the page into the state. */
    signal taken
}
