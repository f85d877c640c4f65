// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A film in a row or a grid. The view sets its state; in focus it is only while the viewer is there. */
Item {
    id: _tile

    required property int index
    /*! The number of the film. */
    required property int modelData
    property bool isViewActive: false
    property bool hasTitle: true
    /*! Whether the place in the view is shown beside the picture. */
    property bool isRanked: false
    property size pictureSize: HomeTheme.tilePicture
    readonly property bool focused: isViewActive && state === "focused"

    /*! By a pointer. */
    signal clicked

    width: _picture.x + pictureSize.width + HomeTheme.framePadding
    height: pictureSize.height + HomeTheme.framePadding * 2 + (hasTitle ? HomeTheme.tileTitleHeight : 0)
    state: "normal"
    states: [
        State {
            name: "normal"
        },
        State {
            name: "focused"
        }
    ]

    TapHandler {
        onTapped: _tile.clicked()
    }

    Loader {
        id: _rank

        y: HomeTheme.framePadding + _tile.pictureSize.height - height
        active: _tile.isRanked
        sourceComponent: Generic.TopNumber {
            // Its picture is sharp where the window is larger than the design.
            textureSize: Qt.size(width * HomeTheme.pixelRatio, height * HomeTheme.pixelRatio)
            number: _tile.index + 1
            font: HomeTheme.rank
            penWidth: 8
            borderColor: _tile.focused ? Theme.text : HomeTheme.emptyBox
            color: Theme.background
        }
    }

    Generic.RoundedImage {
        id: _picture

        // The number reaches behind the picture.
        x: HomeTheme.framePadding + (_tile.isRanked ? _rank.width - 30 : 0)
        y: HomeTheme.framePadding
        width: _tile.pictureSize.width
        height: _tile.pictureSize.height
        fillMode: Image.PreserveAspectCrop
        horizontalAlignment: FilmCatalogue.film(_tile.modelData).alignment
        // Of a poster's picture the sides are cut off, so that its width is not told.
        source: FilmCatalogue.picture(_tile.modelData, _tile.isRanked ? 0 : width, height)
    }

    Loader {
        id: _progress

        x: _picture.x
        y: _picture.y + _picture.height - height
        active: FilmCatalogue.progress(_tile.modelData) > 0
        sourceComponent: Generic.Rectangle {
            width: _picture.width
            height: 8
            color: HomeTheme.shade

            Generic.Rectangle {
                width: parent.width * FilmCatalogue.progress(_tile.modelData)
                height: parent.height
                color: Theme.accent
            }
        }
    }

    Label {
        id: _title

        x: HomeTheme.framePadding
        y: _tile.pictureSize.height + HomeTheme.framePadding * 2 + 4
        width: _tile.pictureSize.width
        maximumLineCount: 1
        visible: _tile.hasTitle
        font: HomeTheme.tile
        color: _tile.focused ? Theme.text : Theme.secondaryText
        text: _tile.hasTitle ? FilmCatalogue.title(_tile.modelData) : ""
    }

    Generic.Rectangle {
        x: _picture.x - HomeTheme.framePadding
        width: _picture.width + HomeTheme.framePadding * 2
        height: _picture.height + HomeTheme.framePadding * 2
        visible: _tile.focused
        color: "transparent"
        border.color: Theme.text
        border.width: 4
    }
}
