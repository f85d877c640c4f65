// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! A home screen as a product has it: it takes the whole window, and has zones instead of stops. */
GalleryPage {
    id: _page

    readonly property HomeZone currentZone: focusedStop as HomeZone
    /*! The one item in focus; null while the gallery's menu has the keys. */
    readonly property Item focusedItem: currentZone?.focusedItem ?? null
    /*! Whether Back leaves the home screen. */
    readonly property bool isAtTop: currentZone !== null && currentZone.back === null

    /*! The film that was chosen last, and where. */
    property int film: 0
    property HomeZone origin: _home

    readonly property HomeShelves shelves: HomeShelves {}

    isFullScreen: true
    caption: qsTr("A product's home screen, made of the module's controls: OK opens it")
    shots: [
        Shot {
            name: "Home-preview"
        },
        Shot {
            name: "Home"

            onTaken: _page.begin([])
        },
        Shot {
            name: "Home-menu"

            onTaken: _page.begin([Qt.Key_Back, Qt.Key_Right])
        },
        Shot {
            name: "Home-rows"

            onTaken: _page.begin([Qt.Key_Right, Qt.Key_Down, Qt.Key_Down, Qt.Key_Right, Qt.Key_Right])
        },
        Shot {
            name: "Home-films"

            onTaken: {
                _page.begin([Qt.Key_Back, Qt.Key_Right, Qt.Key_Return, Qt.Key_Right, Qt.Key_Return]);
                _page.press([Qt.Key_Right]);
            }
        },
        Shot {
            name: "Home-grid"

            onTaken: {
                _page.begin([Qt.Key_Back, Qt.Key_Right, Qt.Key_Right, Qt.Key_Return]);
                _page.press(Array(40).fill(Qt.Key_Down).concat([Qt.Key_Right, Qt.Key_Right]));
            }
        },
        Shot {
            name: "Home-settings"

            onTaken: {
                _page.begin([Qt.Key_Back, Qt.Key_Right, Qt.Key_Right, Qt.Key_Right, Qt.Key_Return]);
                _page.press([Qt.Key_Down]);
            }
        },
        Shot {
            name: "Home-busy"

            onTaken: _page.begin([Qt.Key_Right, Qt.Key_Right, Qt.Key_Return])
        },
        Shot {
            name: "Home-details"
            time: 200

            onTaken: _page.showDetails([Qt.Key_Right, Qt.Key_Right, Qt.Key_Return])
        },
        Shot {
            name: "Home-story"
            // While the lines of the story are wrapped.
            time: 200

            onTaken: {
                _page.showDetails([Qt.Key_Right, Qt.Key_Return]);
                _page.press([Qt.Key_Down]);
            }
        },
        Shot {
            name: "Home-story-ru"
            language: "ru"
            time: 200

            onTaken: {
                _page.showDetails([Qt.Key_Down, Qt.Key_Return]);
                _page.press([Qt.Key_Down]);
            }
        },
        Shot {
            name: "Home-rewind"
            // To the first of the arrows that is lit.
            time: 130

            onTaken: {
                _page.showDetails([Qt.Key_Right, Qt.Key_Right, Qt.Key_Right, Qt.Key_Return]);
                _page.press([Qt.Key_Return, Qt.Key_Right, Qt.Key_Right, Qt.Key_Right]);
                _player.position = 2315;
            }
        },
        Shot {
            name: "Home-ru"
            language: "ru"

            onTaken: _page.begin([Qt.Key_Right, Qt.Key_Right, Qt.Key_Right])
        }
    ]

    function focusFirst(): bool {
        focusedStop = sectionZone();
        return true;
    }

    /*! The zone that a section begins with. */
    function sectionZone(): HomeZone {
        return [_home, _tabs, _grid, _settings][_menu.section];
    }

    function handleKey(key: int, text: string): bool {
        if (currentZone.handleKey(key))
            return true;
        switch (key) {
        case Qt.Key_Up:
            focusZone(currentZone.above);
            return true;
        case Qt.Key_Down:
            focusZone(currentZone.below);
            return true;
        case Qt.Key_Left:
        case Qt.Key_Right:
        case Qt.Key_Return:
            return true;
        case Qt.Key_Back:
            return focusZone(currentZone.back);
        }
        return false;
    }

    function focusZone(zone: HomeZone): bool {
        if (!zone)
            return false;
        focusedStop = zone;
        return true;
    }

    function openSection(section: int) {
        _menu.section = section;
        focusZone(sectionZone());
    }

    function choose(number: int) {
        film = number;
        origin = currentZone;
        focusZone(_busy);
    }

    /*! For pictures: presses keys one after the other. */
    function press(keys: list<int>) {
        for (const key of keys)
            handleKey(key, "");
    }

    function begin(keys: list<int>) {
        focusFirst();
        press(keys);
    }

    /*! For pictures: as if the wait for the film that the keys choose were over. */
    function showDetails(keys: list<int>) {
        begin(keys);
        focusZone(_details);
    }

    Binding {
        target: HomeTheme
        property: "pixelRatio"
        value: Math.max(1, (_page.Window.height ?? 720) / 720)
    }

    Generic.Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    Item {
        id: _browsing

        anchors.fill: parent
        visible: !_busy.isActive && !_details.isActive && !_player.isActive

        HeroPane {
            anchors.fill: parent
            visible: _home.isShown
            film: _page.shelves.home.currentFilm
        }

        FilmBackdrop {
            x: 480
            width: 800
            height: 450
            visible: _settings.isShown
            film: 5
        }

        // For the menu above pictures.
        Generic.Rectangle {
            width: parent.width
            height: 150
            visible: _home.isShown || _settings.isShown
            gradient: Gradient {
                GradientStop {
                    position: 0
                    color: HomeTheme.shade
                }
                GradientStop {
                    position: 1
                    color: HomeTheme.clearShade
                }
            }
        }

        Generic.Rectangle {
            x: HomeTheme.sideMargin
            y: 45
            width: 10
            height: 34
            color: Theme.accent
        }

        Label {
            x: HomeTheme.sideMargin + 22
            y: 37
            font: Theme.display
            text: "Kelui"
        }

        MenuZone {
            id: _menu

            page: _page
            x: 236
            y: 36
            below: _page.sectionZone()

            onChosen: section => _page.openSection(section)
        }

        RowsZone {
            id: _home

            page: _page
            y: 388
            width: 1280
            height: 332
            isShown: _menu.section === 0
            shelf: _page.shelves.home
            above: _menu
            back: _menu

            onChosen: film => _page.choose(film)
        }

        TabsZone {
            id: _tabs

            page: _page
            x: HomeTheme.sideMargin
            y: 112
            isShown: _menu.section === 1
            shelves: _page.shelves
            above: _menu
            below: _films
            back: _menu
        }

        RowsZone {
            id: _films

            page: _page
            y: 176
            width: 1280
            height: 544
            isShown: _menu.section === 1
            shelf: _page.shelves.films[_tabs.openIndex]
            above: _tabs
            back: _tabs

            onChosen: film => _page.choose(film)
        }

        GridZone {
            id: _grid

            page: _page
            y: 124
            width: 1280
            height: 596
            isShown: _menu.section === 2
            above: _menu
            back: _menu

            onChosen: film => _page.choose(film)
        }

        SettingsZone {
            id: _settings

            page: _page
            y: 140
            isShown: _menu.section === 3
            above: _menu
            back: _menu
        }
    }

    BusyZone {
        id: _busy

        page: _page
        anchors.fill: parent
        film: _page.film
        back: _page.origin

        onFinished: _page.focusZone(_details)
        onCancelled: _page.focusZone(_page.origin)
    }

    DetailsZone {
        id: _details

        page: _page
        anchors.fill: parent
        film: _page.film
        back: _page.origin

        onPlayed: isFromStart => {
            if (isFromStart)
                _player.position = 0;
            _page.focusZone(_player);
        }
    }

    PlayerZone {
        id: _player

        page: _page
        anchors.fill: parent
        film: _page.film
        back: _details
    }
}
