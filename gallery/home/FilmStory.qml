// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! What there is to read about a film. It scrolls by whole lines, so that none is cut at rest. */
Item {
    id: _story

    required property int film
    required property bool focused
    /*! Pixels of the text above the top, where it has come or will have come to rest. */
    property int target: 0
    property int position: target

    readonly property int padding: 24
    readonly property int lineHeight: Math.ceil(_metrics.height)

    implicitHeight: _text.height + padding * 2

    /*! Towards the end where the step is positive; false at an end. */
    function scroll(step: int): bool {
        const next = Math.max(0, Math.min(target + step * 3 * lineHeight, _text.scrollMaximum));
        if (next === target)
            return false;
        target = next;
        return true;
    }

    Behavior on position {
        enabled: Theme.isAnimated && _story.visible

        NumberAnimation {
            duration: 200
            easing.type: Easing.OutCubic
        }
    }

    FontMetrics {
        id: _metrics

        font: HomeTheme.description
    }

    Generic.Rectangle {
        anchors.fill: parent
        color: _story.focused ? Theme.surface : Theme.panel
    }

    Generic.LargeText {
        id: _text

        x: _story.padding
        y: _story.padding
        width: _bar.x - x - 16
        height: Math.floor(232 / _story.lineHeight) * _story.lineHeight
        font: HomeTheme.description
        color: Theme.text
        // Prepared anew whenever it is shown: the type may have changed meanwhile.
        text: _story.visible ? FilmCatalogue.story(_story.film) : ""
        offset: _story.position

        onTextChanged: _story.target = 0
    }

    Generic.ScrollBar {
        id: _bar

        x: parent.width - _story.padding - width
        y: _text.y
        width: 8
        height: _text.height
        // What the slider leaves free of the track: its length is the share of the text that is seen.
        maximum: Math.max(0, height * _text.scrollMaximum / (height + _text.scrollMaximum))
        sliderPosition: Math.min(maximum, _story.position * maximum / Math.max(1, _text.scrollMaximum))
        backgroundColor: Theme.raised
        sliderColor: _story.focused ? Theme.accent : Theme.secondaryText
    }

    FocusFrame {
        focused: _story.focused
    }
}
