// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! The window: the menu, the page behind its current line, and the one place where keys arrive. */
Window {
    id: _window

    /*! Whether changes of state are animated. */
    property bool isAnimated: true
    /*! The code of the language to begin with, and of pictures that ask for no other. */
    property string language: Language.code

    property int currentIndex: -1
    property bool isInMenu: true
    /*! Whether the menu is on the line below the pages. */
    property bool isOnLanguage: false
    readonly property GalleryPage currentPage: _loader.item as GalleryPage

    readonly property list<PageEntry> pages: [
        PageEntry {
            name: "Home"
            title: qsTr("Home")
            icon: "television"

            HomePage {}
        },
        PageEntry {
            name: "Text"
            icon: "text"

            TextPage {}
        },
        PageEntry {
            name: "Button"
            icon: "button"

            ButtonPage {}
        },
        PageEntry {
            name: "Icon"
            icon: "icons"

            IconPage {}
        },
        PageEntry {
            name: "ImageColorizer"
            icon: "palette"

            ImageColorizerPage {}
        },
        PageEntry {
            name: "Images"
            title: qsTr("Images")
            icon: "picture"

            ImagePage {}
        },
        PageEntry {
            name: "Rectangle"
            icon: "box"

            RectanglePage {}
        },
        PageEntry {
            name: "Search"
            title: qsTr("Search")
            icon: "search"

            SearchPage {}
        },
        PageEntry {
            name: "Vocabulary"
            title: qsTr("Vocabulary")
            icon: "book"

            VocabularyPage {}
        },
        PageEntry {
            name: "MainMenuButton"
            icon: "menu"

            MainMenuButtonPage {}
        },
        PageEntry {
            name: "TabButton"
            icon: "tabs"

            TabButtonPage {}
        },
        PageEntry {
            name: "CheckBox"
            icon: "checkbox"

            CheckBoxPage {}
        },
        PageEntry {
            name: "Lists"
            title: qsTr("Lists")
            icon: "list"

            ListsPage {}
        },
        PageEntry {
            name: "Grid"
            title: qsTr("Grid")
            icon: "grid"

            GridPage {}
        },
        PageEntry {
            name: "BusyIndicator"
            icon: "hourglass"

            BusyIndicatorPage {}
        },
        PageEntry {
            name: "SpinnerIndicator"
            icon: "spinner"

            SpinnerIndicatorPage {}
        },
        PageEntry {
            name: "RewindIcon"
            icon: "rewind"

            RewindIconPage {}
        },
        PageEntry {
            name: "Layout"
            title: qsTr("Layout")
            icon: "layout"

            LayoutPage {}
        }
    ]

    width: 1280
    height: 720
    color: Theme.background
    title: "Kelui"

    Component.onCompleted: {
        Theme.isAnimated = isAnimated;
        Language.code = language;
    }

    RemoteKeys {
        window: _window
    }

    /*! Opens a page afresh; focus stays in the menu. */
    function openPage(index: int) {
        isInMenu = true;
        isOnLanguage = false;
        currentIndex = -1;
        currentIndex = index;
    }

    /*! The number of a page by its name in any case, or by its digit; -1 for none. */
    function pageIndex(name: string): int {
        for (let i = 0; i < pages.length; ++i) {
            if (pages[i].name.toLowerCase() === name.toLowerCase() || String(i + 1) === name)
                return i;
        }
        return -1;
    }

    function pageNames(): list<string> {
        const names = [];
        for (const entry of pages)
            names.push(entry.name);
        return names;
    }

    function shotNames(): list<string> {
        const names = [];
        for (const shot of currentPage.shots)
            names.push(shot.name);
        return names;
    }

    /*! Puts the page into the state of a picture; the digits to press then. */
    function takeShot(index: int): string {
        const shot = currentPage.shots[index];
        Language.code = shot.language || language;
        shot.taken();
        isInMenu = currentPage.focusedStop === null;
        return shot.digits;
    }

    /*! The milliseconds to let pass then. */
    function shotTime(index: int): int {
        return currentPage.shots[index].time;
    }

    function nextLanguage() {
        const codes = Language.codes;
        Language.code = codes[(codes.indexOf(Language.code) + 1) % codes.length];
    }

    function enterPage(): bool {
        if (!currentPage || !currentPage.focusFirst())
            return false;
        isInMenu = false;
        return true;
    }

    function leavePage() {
        currentPage.focusedStop = null;
        isInMenu = true;
    }

    /*! Keys that do the same everywhere. */
    function handleGlobalKey(key: int): bool {
        switch (key) {
        case Qt.Key_HomePage:
        case Qt.Key_Red:
            return enter("Home");
        case Qt.Key_Search:
        case Qt.Key_Green:
            return enter("Search");
        case Qt.Key_Menu:
        case Qt.Key_Yellow:
            leavePage();
            return true;
        case Qt.Key_Blue:
            nextLanguage();
            return true;
        }
        return false;
    }

    /*! Opens a page by its name and goes into it. */
    function enter(name: string): bool {
        openPage(pageIndex(name));
        return enterPage();
    }

    function handleMenuKey(key: int): bool {
        switch (key) {
        case Qt.Key_Up:
            if (isOnLanguage)
                isOnLanguage = false;
            else
                currentIndex = Math.max(0, currentIndex - 1);
            return true;
        case Qt.Key_Down:
            if (currentIndex < pages.length - 1)
                ++currentIndex;
            else
                isOnLanguage = _language.visible;
            return true;
        case Qt.Key_Right:
            if (!isOnLanguage)
                enterPage();
            return true;
        case Qt.Key_Return:
            if (isOnLanguage)
                nextLanguage();
            else
                enterPage();
            return true;
        case Qt.Key_Back:
            Qt.quit();
            return true;
        }
        return handleDigit(key);
    }

    function handlePageKey(key: int, text: string): bool {
        if (currentPage.handleKey(key, text))
            return true;
        if (currentPage.keyTarget)
            return false;
        switch (key) {
        case Qt.Key_Left:
        case Qt.Key_Back:
            leavePage();
            return true;
        }
        return handleDigit(key);
    }

    function handleDigit(key: int): bool {
        const index = key - Qt.Key_1;
        if (index < 0 || index > 8 || index >= pages.length)
            return false;
        openPage(index);
        return true;
    }

    Item {
        id: _scene

        readonly property int menuX: 64
        readonly property int pageX: 376

        width: 1280
        height: 720
        x: (_window.width - width * scale) / 2
        y: (_window.height - height * scale) / 2
        transformOrigin: Item.TopLeft
        scale: Math.min(_window.width / width, _window.height / height)
        focus: true

        // What the menu and the page leave is for the field being edited.
        Keys.forwardTo: [_keys, _window.currentPage?.keyTarget ?? null]

        Item {
            id: _keys

            Keys.onPressed: event => {
                event.accepted = _window.handleGlobalKey(event.key)
                    || (_window.isInMenu ? _window.handleMenuKey(event.key)
                                         : _window.handlePageKey(event.key, event.text));
            }
        }

        Generic.Rectangle {
            width: 336
            height: parent.height
            color: Theme.panel
        }

        Generic.Rectangle {
            x: _scene.menuX
            y: 48
            width: 10
            height: 34
            color: Theme.accent
        }

        Label {
            x: _scene.menuX + 24
            y: 40
            font: Theme.display
            text: "Kelui"
        }

        Caption {
            x: _scene.menuX
            y: 96
            text: "Generic " + Generic.PluginInfo.majorVersion + "." + Generic.PluginInfo.minorVersion
        }

        Item {
            id: _menu

            readonly property int step: 60
            readonly property int firstVisible: Math.max(0, Math.min(_window.currentIndex - 6, _window.pages.length - 8))

            x: _scene.menuX
            y: 148
            width: 248
            height: step * 8
            clip: true

            Column {
                y: -_menu.firstVisible * _menu.step
                spacing: 4

                Repeater {
                    model: _window.pages

                    MenuButton {
                        id: _line

                        required property int index
                        required property PageEntry modelData
                        readonly property bool isCurrent: index === _window.currentIndex

                        titleText: modelData.title
                        leftIconSource: Theme.icon(modelData.icon)
                        focused: isCurrent && _window.isInMenu && !_window.isOnLanguage
                        checked: isCurrent && !focused
                    }
                }
            }
        }

        MenuButton {
            id: _language

            x: _scene.menuX
            y: 641
            visible: Language.codes.length > 1
            //: The name of the language of this translation, in itself.
            titleText: qsTr("English")
            leftIconSource: Theme.icon("globe")
            focused: _window.isOnLanguage
        }

        Label {
            x: _scene.pageX
            y: 40
            width: 840
            maximumLineCount: 1
            font: Theme.display
            text: _window.currentIndex >= 0 ? _window.pages[_window.currentIndex].title : ""
        }

        Caption {
            x: _scene.pageX
            y: 96
            text: _window.currentPage?.caption ?? ""
        }

        Loader {
            id: _loader

            readonly property bool isFullScreen: _window.currentPage?.isFullScreen ?? false
            readonly property bool isPreview: isFullScreen && _window.isInMenu

            x: isFullScreen && !isPreview ? 0 : _scene.pageX
            y: isFullScreen && !isPreview ? 0 : 152
            z: 1
            width: isFullScreen ? _scene.width : 840
            height: isFullScreen ? _scene.height : 484
            transformOrigin: Item.TopLeft
            scale: isPreview ? 840 / _scene.width : 1
            sourceComponent: _window.currentIndex >= 0 ? _window.pages[_window.currentIndex].page : null

            // Why is on the console already; a window without its page would be no help.
            onStatusChanged: {
                if (status === Loader.Error)
                    Qt.exit(1);
            }
        }

        Row {
            id: _hints

            x: _scene.pageX
            y: 656
            spacing: 10

            Hint {
                key: "← ↑ ↓ →"
                meaning: qsTr("move")
            }
            Hint {
                key: "OK"
                meaning: _window.isInMenu && !_window.isOnLanguage ? qsTr("open") : qsTr("press")
            }
            Hint {
                key: qsTr("Back")
                meaning: _window.isInMenu ? qsTr("quit")
                         : _window.currentPage?.keyTarget ? qsTr("fields") : qsTr("menu")
            }
            Hint {
                key: _window.currentPage?.keyTarget ? "0–9" : "1–" + Math.min(9, _window.pages.length)
                meaning: _window.currentPage?.keyTarget ? qsTr("type") : qsTr("page")
            }
        }
    }
}
