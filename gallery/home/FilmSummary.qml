// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! Title, facts and description of a film, one below the other. */
Column {
    id: _summary

    required property int film

    spacing: 14

    Label {
        width: _summary.width
        maximumLineCount: 1
        font: HomeTheme.title
        text: FilmCatalogue.title(_summary.film)
    }

    Label {
        font: HomeTheme.details
        color: Theme.accent
        text: FilmCatalogue.details(_summary.film)
    }

    Label {
        width: _summary.width
        wrapMode: Generic.Text.WrapMode.WordWrap
        maximumLineCount: 3
        font: HomeTheme.description
        color: Theme.text
        text: FilmCatalogue.film(_summary.film).description
    }
}
