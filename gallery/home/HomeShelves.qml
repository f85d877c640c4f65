// SPDX-License-Identifier: MIT
import QtQml
import Kelui.Gallery

/*! What is on the shelves of the home screen: its own one, and one for each tab. */
QtObject {
    id: _shelves

    readonly property FilmShelf home: FilmShelf {
        rows: [
            FilmRow {
                title: qsTr("New this week")
                films: [0, 2, 1, 7, 4, 9, 5, 10, 3, 11, 8, 6]
            },
            FilmRow {
                title: qsTr("Continue watching")
                films: [8, 3, 5, 26, 11, 14, 6]
            },
            FilmRow {
                title: qsTr("Top 10 today")
                films: [4, 1, 10, 0, 6, 7, 2, 8, 5, 3]
                isRanked: true
            },
            FilmRow {
                title: qsTr("For the whole family")
                films: [7, 11, 5, 19, 23, 31, 35, 43]
            },
            FilmRow {
                title: qsTr("Far from home")
                films: [9, 3, 0, 12, 15, 21, 24, 27, 33, 36]
            },
            FilmRow {
                title: qsTr("For a rainy evening")
                films: [6, 8, 1, 13, 18, 20, 25, 30, 32]
            }
        ]
    }

    readonly property list<FilmShelf> films: [
        FilmShelf {
            title: qsTr("Popular")
            rows: [
                FilmRow {
                    title: qsTr("Everybody watches")
                    films: [2, 4, 6, 8, 10, 0, 1, 3, 5, 7, 9, 11]
                },
                FilmRow {
                    title: qsTr("Critics recommend")
                    films: [6, 1, 0, 30, 44, 57, 61, 70]
                },
                FilmRow {
                    title: qsTr("Hidden treasures")
                    films: [50, 63, 76, 89, 102, 115, 128, 141]
                }
            ]
        },
        FilmShelf {
            title: qsTr("Drama")
            rows: [
                FilmRow {
                    title: qsTr("Strong characters")
                    films: [1, 6, 8, 13, 18, 20, 25, 30]
                },
                FilmRow {
                    title: qsTr("True stories")
                    films: [44, 37, 54, 56, 49, 42]
                },
                FilmRow {
                    title: qsTr("Family secrets")
                    films: [61, 66, 68, 73, 78, 80, 85]
                }
            ]
        },
        FilmShelf {
            title: qsTr("Adventure")
            rows: [
                FilmRow {
                    title: qsTr("Over land and sea")
                    films: [0, 3, 9, 12, 15, 21, 24, 27]
                },
                FilmRow {
                    title: qsTr("Against the clock")
                    films: [33, 36, 39, 45, 48, 51]
                },
                FilmRow {
                    title: qsTr("Under open skies")
                    films: [60, 57, 63, 69, 72, 75]
                }
            ]
        },
        FilmShelf {
            title: qsTr("Science fiction")
            rows: [
                FilmRow {
                    title: qsTr("Other worlds")
                    films: [2, 4, 10, 14, 16, 22, 26]
                },
                FilmRow {
                    title: qsTr("The day after tomorrow")
                    films: [28, 34, 38, 40, 46, 50]
                },
                FilmRow {
                    title: qsTr("Machines that think")
                    films: [62, 52, 58, 64, 74, 70]
                }
            ]
        },
        FilmShelf {
            title: qsTr("Family")
            rows: [
                FilmRow {
                    title: qsTr("Together on the sofa")
                    films: [5, 7, 11, 17, 19, 23, 29]
                },
                FilmRow {
                    title: qsTr("For the youngest")
                    films: [31, 35, 41, 43, 47, 53]
                },
                FilmRow {
                    title: qsTr("A good laugh")
                    films: [55, 59, 65, 67, 71, 77]
                }
            ]
        }
    ]
}
