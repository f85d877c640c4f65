// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as QQT

/*! What blocks of media items have in common; it shows nothing itself. */
QQT.Control {
    id: _mediaBlock

    /*! The items of the block. */
    required property var model
    /*! Whether the items show titles. */
    property bool itemsHaveTitles: true
    /*! What the application tells of the block. */
    property var mediaBlockItem
    /*! Draws one item. */
    property Component delegate: null
}
