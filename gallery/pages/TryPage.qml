// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A control at work, and its properties, which the remote changes. */
GalleryPage {
    id: _page

    /*! The control's type. */
    required property string name
    required property string summary
    readonly property alias properties: _properties

    caption: summary
    sideKeysMeaning: focusedStop === _list ? qsTr("change") : ""
    shots: [
        Shot {
            name: _page.name + "-try"

            onTaken: _page.focusedStop = _list
        }
    ]

    onNameChanged: _list.currentIndex = 0

    function focusFirst(): bool {
        focusedStop = _list;
        return true;
    }

    function handleKey(key: int, text: string): bool {
        return (focusedStop === _list && handleListKey(key)) || handleStopKey(key);
    }

    function handleListKey(key: int): bool {
        const index = _list.currentIndex;
        switch (key) {
        case Qt.Key_Up:
            _list.decrementCurrentIndex();
            return _list.currentIndex !== index;
        case Qt.Key_Down:
            _list.incrementCurrentIndex();
            return true;
        case Qt.Key_Left:
            _properties.change(index, -1);
            return true;
        case Qt.Key_Right:
        case Qt.Key_Return:
            _properties.change(index, 1);
            return true;
        }
        return false;
    }

    Example {
        id: _example

        name: _page.name
    }

    PropertyModel {
        id: _properties

        typeName: _page.name
        sample: _sample.item
        palette: Theme.palette
    }

    Generic.Rectangle {
        width: 488
        height: 484
        clip: true
        color: Theme.surface

        Loader {
            id: _sample

            anchors.centerIn: parent
            source: _page.name ? _example.url : ""
        }

        Caption {
            x: 16
            y: 450
            text: Math.round(_sample.width) + " × " + Math.round(_sample.height)
        }
    }

    Caption {
        x: 500
        y: 12
        visible: _properties.count > 0
        text: qsTr("%1 of %2").arg(_list.currentIndex + 1).arg(_properties.count)
    }

    StateButton {
        page: _page
        x: 700
        fixedSize: Qt.size(140, 44)
        titleFont: Theme.sizedFont(18, Font.DemiBold)
        titleText: qsTr("Reset")

        onClicked: {
            const index = _list.currentIndex;
            _sample.active = false;
            _sample.active = true;
            _list.currentIndex = index;
        }
    }

    Generic.ScrolledListView {
        id: _list

        // Around the rows there is room for the frame.
        x: 494
        y: 50
        width: 352
        height: 440
        leftMargin: 6
        topMargin: 6
        rightMargin: 6
        bottomMargin: 6
        spacing: 6
        clip: true
        // Rows that are still being made ahead would complain when there are others.
        cacheBuffer: 0
        highlightMoveDuration: Theme.isAnimated ? 200 : 0
        boundsBehavior: Flickable.StopAtBounds
        allowStateChange: false
        model: _properties

        Component.onCompleted: _page.addStop(_list)

        HighlightFrame {
            visible: _properties.count > 0
            view: _list
            focused: _page.focusedStop === _list
        }

        delegate: PropertyRow {
            required property int index

            width: 340
            isCurrent: _page.focusedStop === _list && ListView.isCurrentItem

            onClicked: steps => {
                _page.focusedStop = _list;
                _list.currentIndex = index;
                _properties.change(index, steps);
            }
        }
    }
}
