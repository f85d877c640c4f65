// SPDX-License-Identifier: MIT
pragma Singleton

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A thousand films by number. The first have a picture and a title of their own; the rest borrow and combine. */
QtObject {
    id: _catalogue

    readonly property int count: 1000

    /*! The shares that the viewer has seen of films, by their numbers. */
    property var seen: ({ 8: 0.62, 3: 0.35, 5: 0.81, 26: 0.12, 11: 0.47, 14: 0.9, 6: 0.28 })

    readonly property list<Film> films: [
        Film {
            picture: "north"
            title: qsTr("Northern Light")
            genre: qsTr("Adventure")
            description: qsTr("Two sisters walk beyond the last village to see the sky burn green.")
            story: qsTr("Ada and Mirja have not spoken since their father left them one sledge and two opposite "
                        + "maps. When the radio of the last village falls silent, they set out together, because "
                        + "neither would let the other go first. For nine nights the sky stays black. On the tenth the "
                        + "dogs stop, the snow begins to hum, and the sisters must decide whose map was right.")
            alignment: Image.AlignRight
        },
        Film {
            picture: "lighthouse"
            title: qsTr("The Keeper")
            genre: qsTr("Drama")
            description: qsTr("A lamp has been lit every night for a century. Tonight nobody comes to light it.")
            story: qsTr("Old Tomas has counted every ship that passed the ninth rock, and forgotten none of them. "
                        + "The evening he does not climb the stairs, a letter lies in the empty harbour office: the "
                        + "light is no longer needed. A girl who sells fish, a retired pilot and a postman afraid of "
                        + "water row out to do his work for one night, in the worst storm of the year.")
            alignment: Image.AlignRight
        },
        Film {
            picture: "orbit"
            title: qsTr("Silent Orbit")
            genre: qsTr("Science fiction")
            description: qsTr("The crew of a survey ship hears its own voices, sent back from the rings.")
            story: qsTr("The survey was to last eleven months. In the fourth, the antenna catches a conversation "
                        + "that nobody on board has held yet: the same voices, the same jokes, and an argument about a "
                        + "door. The commander forbids everyone to listen further. The engineer listens all the same, "
                        + "for in the last sentence someone says her name and asks her not to open it.")
        },
        Film {
            picture: "dunes"
            title: qsTr("Sea of Sand")
            genre: qsTr("Adventure")
            description: qsTr("A map, a camel and eleven days of water: a race to a well that may not exist.")
            story: qsTr("A mapmaker without money, a driver without a licence and a camel without manners share one "
                        + "canteen and one secret. Behind them comes a rich collector with three trucks and all the "
                        + "water in the world. The well is marked on the map in red ink. Nobody has asked yet why the "
                        + "ink is still wet.")
        },
        Film {
            picture: "highway"
            title: qsTr("Night Highway")
            genre: qsTr("Science fiction")
            description: qsTr("On a road that never ends, a courier carries something that wants to arrive.")
            story: qsTr("The rules are simple: never stop before dawn, never turn round, never look into the box. "
                        + "Rui has kept them for six years, on a road whose signs count upwards without end. Tonight "
                        + "the box knocks from the inside, politely, three times. And in the mirror, for the first "
                        + "time ever, there are lights.")
        },
        Film {
            picture: "winter"
            title: qsTr("The House in the Snow")
            genre: qsTr("Family")
            description: qsTr("Snowed in for a week, three generations learn to play one game of cards.")
            story: qsTr("The game was invented by a great-grandfather, and its rules fill a notebook that nobody has "
                        + "ever read to the end. With the road closed and the telephone dead, the family begins to "
                        + "read. Page by page, old debts, old recipes and one old quarrel turn out to be rules as "
                        + "well. By Sunday everyone has cheated, and nobody wants to win.")
        },
        Film {
            picture: "city"
            title: qsTr("City of Windows")
            genre: qsTr("Drama")
            description: qsTr("Forty flats, one evening, and a piano that everyone in the house can hear.")
            story: qsTr("Each evening at eight somebody plays the same waltz and stops before the last bar. A nurse "
                        + "comes home to it, a boy does his sums to it, a couple quarrels in its time. When one night "
                        + "there is no music, forty doors open on the stairs. The neighbours, who have never met, go "
                        + "looking for a pianist that no list of tenants knows.")
        },
        Film {
            picture: "balloons"
            title: qsTr("Five Days in the Sky")
            genre: qsTr("Family")
            description: qsTr("A boy, his grandmother and a balloon that refuses to come down.")
            story: qsTr("Grandmother Olga won the flight in a crossword, and meant to be home for supper. But the "
                        + "burner sticks, the wind turns, and below them pass a fair, a border, two weddings and a "
                        + "very surprised herd of cows. Five days are enough to learn to steer by smell, to land a "
                        + "sandwich on a church tower, and to say what one never says on the ground.")
        },
        Film {
            picture: "detective"
            title: qsTr("Rain at Nine")
            genre: qsTr("Drama")
            description: qsTr("An inspector waits under the lamp where, ten years ago, a case was closed.")
            story: qsTr("Inspector Marek closed the case, received a medal and never slept well again. Now a woman "
                        + "who died that night has sent him a ticket for the last tram. He takes his old coat, his "
                        + "older notebook and a place under the lamp. It begins to rain at nine, exactly as it did "
                        + "then. Someone across the street is taking notes about him.")
        },
        Film {
            picture: "forest"
            title: qsTr("Beyond the Pines")
            genre: qsTr("Adventure")
            description: qsTr("A forester follows tracks that lead, every morning, one valley further.")
            story: qsTr("The tracks are those of a bear, but they walk in a straight line. Each morning they begin "
                        + "at the forester's own door. He follows them past the last felled tree, past the last name "
                        + "on the map, and finds that someone has been mending the forest behind his back: a fence "
                        + "here, a nest there, and a bridge that was not needed until now.")
        },
        Film {
            picture: "volcano"
            title: qsTr("Under the Mountain")
            genre: qsTr("Science fiction")
            description: qsTr("What the geologists woke up does not want to go back to sleep.")
            story: qsTr("The drill goes down eleven kilometres and comes up clean, polished, and warm as a hand. By "
                        + "evening every clock of the station runs backwards by a second an hour. The youngest of the "
                        + "team thinks that the mountain is trying to say something. The oldest knows that it did so "
                        + "once before, and that nobody was left to write it down.")
        },
        Film {
            picture: "regatta"
            title: qsTr("The Last Regatta")
            genre: qsTr("Family")
            description: qsTr("An old boat, a young crew, and one summer to cross the bay.")
            story: qsTr("The Gull has lost every race since she was built, and this summer is to be her last. Then "
                        + "the sailing school is sold, and its pupils take the boat, the coach and the coach's dog "
                        + "across the bay to ask for it back. They have no engine, one sail and a wager with the "
                        + "richest man on the coast. The wind, for once, is on their side.")
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

    /*! How films were made. */
    readonly property list<string> notes: [
        qsTr("The film was made in one summer with a crew of nineteen. Every picture of the weather is real: the "
             + "director waited for it, sometimes for weeks, and let the actors wait as well. The music was recorded "
             + "in an empty water tower, whose echo lasts as long as a breath."),
        qsTr("The script lay in a drawer for twelve years, until a reader took it for a diary and asked how the "
             + "story went on. Most of the parts are played by people who had never stood before a camera. What they "
             + "say at the table in the middle of the film, they made up themselves."),
        qsTr("Nothing in this film was drawn by a computer. The models are up to six metres long and hang today in "
             + "the foyer of the studio. For the longest scene, which has no cut, the camera travelled on the rails of "
             + "a closed mine, pushed by eight students of physics.")
    ]
    readonly property list<string> people: [
        qsTr("Vera Lindqvist"), qsTr("Anton Belov"), qsTr("Mina Okafor"), qsTr("Jan Kovar"), qsTr("Lucia Ferrante"),
        qsTr("Pavel Sorokin"), qsTr("Hanna Weiss"), qsTr("Diego Marin"), qsTr("Irina Volkova"),
        qsTr("Tom Achterberg"), qsTr("Sofia Nilsen")
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

    /*! What there is to read about a film, paragraph by paragraph. */
    function story(number: int): string {
        const person = place => people[(number * 5 + place * 3) % people.length];
        return [
            film(number).story,
            notes[number % notes.length],
            qsTr("Director: %1").arg(person(0)) + "\n"
            + qsTr("Starring: %1, %2, %3").arg(person(1)).arg(person(2)).arg(person(3)) + "\n"
            + qsTr("Music: %1").arg(person(4)) + "\n"
            + qsTr("Sound: English, Russian") + "\n"
            + qsTr("Subtitles: English, Russian, for the hard of hearing")
        ].join("\n\n");
    }

    /*! A film's picture made for that place on the screen; a side of 0 follows from the other. */
    function picture(number: int, width: real, height: real): url {
        const ratio = HomeTheme.pixelRatio;
        return Generic.Helpers.imageUrl(PictureSource.address(film(number).picture), width * ratio, height * ratio,
                                        false, true);
    }

    /*! The share of a film that was seen. */
    function progress(number: int): real {
        return seen[number] ?? 0;
    }

    /*! A film that was seen to its end begins anew. */
    function keepProgress(number: int, share: real) {
        seen = Object.assign({}, seen, { [number]: share < 1 ? share : 0 });
    }
}
