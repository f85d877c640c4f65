// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery

/*! The film that the viewer is at, large. While the viewer hurries past films, it waits. */
Item {
    id: _pane

    required property int film
    property int shownFilm: film

    onFilmChanged: {
        if (Theme.isAnimated)
            _delay.restart();
        else
            shownFilm = film;
    }

    Timer {
        id: _delay

        interval: 250

        onTriggered: _pane.shownFilm = _pane.film
    }

    FilmBackdrop {
        x: 480
        width: 800
        height: 450
        film: _pane.shownFilm
    }

    FilmSummary {
        x: HomeTheme.sideMargin
        y: 132
        width: 520
        film: _pane.shownFilm
    }
}
