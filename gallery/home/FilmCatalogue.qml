// SPDX-License-Identifier: MIT
pragma Singleton

import QtQml
import Kelui.Gallery

/*! A thousand films by number. The first have a picture and a title of their own; the rest borrow and combine. */
QtObject {
    id: _catalogue

    readonly property int count: 1000

    readonly property list<Film> films: [
        Film {
            picture: "north"
            title: qsTr("Northern Light")
            genre: qsTr("Adventure")
            description: qsTr("Two sisters walk beyond the last village to see the sky burn green.")
        },
        Film {
            picture: "lighthouse"
            title: qsTr("The Keeper")
            genre: qsTr("Drama")
            description: qsTr("A lamp has been lit every night for a century. Tonight nobody comes to light it.")
        },
        Film {
            picture: "orbit"
            title: qsTr("Silent Orbit")
            genre: qsTr("Science fiction")
            description: qsTr("The crew of a survey ship hears its own voices, sent back from the rings.")
        },
        Film {
            picture: "dunes"
            title: qsTr("Sea of Sand")
            genre: qsTr("Adventure")
            description: qsTr("A map, a camel and eleven days of water: a race to a well that may not exist.")
        },
        Film {
            picture: "highway"
            title: qsTr("Night Highway")
            genre: qsTr("Science fiction")
            description: qsTr("On a road that never ends, a courier carries something that wants to arrive.")
        },
        Film {
            picture: "winter"
            title: qsTr("The House in the Snow")
            genre: qsTr("Family")
            description: qsTr("Snowed in for a week, three generations learn to play one game of cards.")
        },
        Film {
            picture: "city"
            title: qsTr("City of Windows")
            genre: qsTr("Drama")
            description: qsTr("Forty flats, one evening, and a piano that everyone in the house can hear.")
        },
        Film {
            picture: "balloons"
            title: qsTr("Five Days in the Sky")
            genre: qsTr("Family")
            description: qsTr("A boy, his grandmother and a balloon that refuses to come down.")
        },
        Film {
            picture: "detective"
            title: qsTr("Rain at Nine")
            genre: qsTr("Drama")
            description: qsTr("An inspector waits under the lamp where, ten years ago, a case was closed.")
        },
        Film {
            picture: "forest"
            title: qsTr("Beyond the Pines")
            genre: qsTr("Adventure")
            description: qsTr("A forester follows tracks that lead, every morning, one valley further.")
        },
        Film {
            picture: "volcano"
            title: qsTr("Under the Mountain")
            genre: qsTr("Science fiction")
            description: qsTr("What the geologists woke up does not want to go back to sleep.")
        },
        Film {
            picture: "regatta"
            title: qsTr("The Last Regatta")
            genre: qsTr("Family")
            description: qsTr("An old boat, a young crew, and one summer to cross the bay.")
        }
    ]

    readonly property list<string> adjectives: [
        qsTr("Quiet"), qsTr("Distant"), qsTr("Golden"), qsTr("Hidden"), qsTr("Winter"), qsTr("Wild"), qsTr("Old"),
        qsTr("Bright"), qsTr("Secret"), qsTr("Blue"), qsTr("Lost"), qsTr("Evening"), qsTr("Open"), qsTr("Eternal"),
        qsTr("Strange"), qsTr("Empty"), qsTr("High"), qsTr("Warm"), qsTr("Stone"), qsTr("White")
    ]
    readonly property list<string> nouns: [
        qsTr("Shore"), qsTr("Garden"), qsTr("Wind"), qsTr("Bridge"), qsTr("Island"), qsTr("Road"), qsTr("Echo"),
        qsTr("Harbour"), qsTr("Forest"), qsTr("Morning"), qsTr("Station"), qsTr("Train"), qsTr("Snow"),
        qsTr("Fire"), qsTr("Dream"), qsTr("Town"), qsTr("Ocean"), qsTr("Castle"), qsTr("Guest"), qsTr("Voice"),
        qsTr("Waltz"), qsTr("Sunset"), qsTr("Trace"), qsTr("House"), qsTr("Horizon")
    ]

    function film(number: int): Film {
        return films[number % films.length];
    }

    function title(number: int): string {
        if (number < films.length)
            return films[number].title;
        // Neighbours differ in both words; a pair that comes again is a sequel.
        const pair = number % (adjectives.length * nouns.length);
        const adjective = adjectives[pair % adjectives.length];
        const noun = nouns[(pair + Math.floor(pair / adjectives.length)) % nouns.length];
        const words = qsTr("%1 %2", "adjective and noun").arg(adjective).arg(noun);
        return pair === number ? words : words + " 2";
    }

    /*! What is told of a film in one line. */
    function details(number: int): string {
        const year = 1979 + (number + 1) * 37 % 46;
        return qsTr("%1  ·  %2  ·  %3 min").arg(year).arg(film(number).genre).arg(minutes(number));
    }

    function minutes(number: int): int {
        return 82 + number * 13 % 70;
    }

    function picture(number: int): string {
        return Theme.picture(film(number).picture);
    }
}
