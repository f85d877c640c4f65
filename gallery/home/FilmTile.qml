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
    property size pictureSize: Qt.size(240, 135)
    readonly property bool focused: isViewActive && state === "focused"

    width: _picture.x + pictureSize.width + HomeTheme.framePadding
    height: pictureSize.height + HomeTheme.framePadding * 2 + (hasTitle ? 34 : 0)
    state: "normal"
    states: [
        State {
            name: "normal"
        },
        State {
            name: "focused"
        }
    ]

    Loader {
        id: _rank

        active: _tile.isRanked
        sourceComponent: Label {
            y: (_tile.pictureSize.height - height) / 2 + HomeTheme.framePadding
            width: _tile.index > 8 ? 200 : 120
            font: HomeTheme.rank
            color: Theme.outline
            text: String(_tile.index + 1)
        }
    }

    Generic.RoundedImage {
        id: _picture

        x: HomeTheme.framePadding + (_tile.isRanked ? _tile.index > 8 ? 186 : 96 : 0)
        y: HomeTheme.framePadding
        width: _tile.pictureSize.width
        height: _tile.pictureSize.height
        fillMode: Image.PreserveAspectCrop
        sourceSize: HomeTheme.decodedSize(height * 16 / 9, height)
        source: FilmCatalogue.picture(_tile.modelData)
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
