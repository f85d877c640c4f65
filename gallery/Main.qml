// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! The window: the menu, the page behind its current line, and the one place where keys arrive. */
Window {
    id: _window

    /*! The views of a page of a control; other pages have one. */
    enum View {
        Try,
        States,
        Code
    }

    /*! Whether changes of state are animated. */
    property bool isAnimated: true
    /*! The code of the language to begin with, and of pictures that ask for no other. */
    property string language: Language.code

    property int currentIndex: -1
    property int currentView: Main.Try
    property bool isInMenu: true
    /*! Whether the keys go to the tabs of the views. */
    property bool isInTabs: false
    /*! Whether the menu is on the line below the pages. */
    property bool isOnLanguage: false
    readonly property PageEntry currentEntry: pages[currentIndex] ?? null
    readonly property GalleryPage currentPage: _loader.item as GalleryPage

    readonly property list<PageEntry> pages: [
        PageEntry {
            name: "Home"
            title: qsTr("Home")
            icon: "television"

            HomePage {}
        },
        PageEntry {
            name: "Controls"
            title: qsTr("Controls")
            icon: "grid"

            ControlsPage {
                entries: _window.pages
            }
        },
        PageEntry {
            name: "Search"
            title: qsTr("Search")
            icon: "search"

            SearchPage {
                entries: _window.pages
            }
        },
        PageEntry {
            name: "Button"
            group: "buttons"
            summary: qsTr("A button with a title, a subtitle and two icons")

            ButtonPage {}
        },
        PageEntry {
            name: "CheckBox"
            group: "buttons"
            summary: qsTr("A box to check, with a title beside it")

            CheckBoxPage {}
        },
        PageEntry {
            name: "MainMenuButton"
            group: "buttons"
            summary: qsTr("A line of a main menu: icon, text and picture")

            MainMenuButtonPage {}
        },
        PageEntry {
            name: "TabButton"
            group: "buttons"
            summary: qsTr("One tab of a bar")

            TabButtonPage {}
        },
        PageEntry {
            name: "Key"
            group: "typing"
            summary: qsTr("One key of the on-screen keyboard")

            SearchPage {}
        },
        PageEntry {
            name: "Keyboard"
            group: "typing"
            summary: qsTr("The on-screen keyboard and its layouts")

            SearchPage {}
        },
        PageEntry {
            name: "LineEdit"
            group: "typing"
            summary: qsTr("A line of text that the remote edits")

            SearchPage {}
        },
        PageEntry {
            name: "LargeText"
            group: "text"
            summary: qsTr("A long text that scrolls")

            LargeTextPage {}
        },
        PageEntry {
            name: "Text"
            group: "text"
            summary: qsTr("Plain text in one colour and font")

            TextPage {}
        },
        PageEntry {
            name: "TopNumber"
            group: "text"
            summary: qsTr("A number in large outlined digits")

            TopNumberPage {}
        },
        PageEntry {
            name: "BrushArea"
            group: "pictures"
            summary: qsTr("An area filled with any brush")

            BrushAreaPage {}
        },
        PageEntry {
            name: "ClippableImage"
            group: "pictures"
            summary: qsTr("A window onto the middle of an image")

            ImagePage {}
        },
        PageEntry {
            name: "Icon"
            group: "pictures"
            summary: qsTr("An image file in one colour")

            IconPage {}
        },
        PageEntry {
            name: "ImageColorizer"
            group: "pictures"
            summary: qsTr("Gives an image another colour")

            ImageColorizerPage {}
        },
        PageEntry {
            name: "Rectangle"
            group: "pictures"
            summary: qsTr("A filled box with a border")

            RectanglePage {}
        },
        PageEntry {
            name: "RoundedImage"
            group: "pictures"
            summary: qsTr("An image, drawn without OpenGL")

            ImagePage {}
        },
        PageEntry {
            name: "Highlight"
            group: "lists"
            summary: qsTr("What a list scrolls after")

            ListsPage {}
        },
        PageEntry {
            name: "LayoutSpacer"
            group: "lists"
            summary: qsTr("Room in a layout")

            LayoutPage {}
        },
        PageEntry {
            name: "MediaBlock"
            group: "lists"
            summary: qsTr("What blocks of posters have in common")

            LayoutPage {}
        },
        PageEntry {
            name: "ScrollBar"
            group: "lists"
            summary: qsTr("How far a view is scrolled")

            ScrollBarPage {}
        },
        PageEntry {
            name: "ScrolledGridView"
            group: "lists"
            summary: qsTr("A grid given by its elements and gaps")

            GridPage {}
        },
        PageEntry {
            name: "ScrolledListView"
            group: "lists"
            summary: qsTr("A list that keeps its current item in sight")

            ListsPage {}
        },
        PageEntry {
            name: "BusyIndicator"
            group: "indicators"
            summary: qsTr("Waiting, told by strips of frames and two texts")

            BusyIndicatorPage {}
        },
        PageEntry {
            name: "RewindIcon"
            group: "indicators"
            summary: qsTr("The speed of winding, three arrows and a text")

            RewindIconPage {}
        },
        PageEntry {
            name: "SpinnerIndicator"
            group: "indicators"
            summary: qsTr("An arc that turns on a ring")

            SpinnerIndicatorPage {}
        },
        PageEntry {
            name: "AnimationInterpolators"
            group: "vocabulary"
            summary: qsTr("Curves for animations")

            VocabularyPage {}
        },
        PageEntry {
            name: "Helpers"
            group: "vocabulary"
            summary: qsTr("Addresses of pictures made to measure")

            HelpersPage {}
        },
        PageEntry {
            name: "KelGlobal"
            group: "vocabulary"
            summary: qsTr("Key layouts and enumerations that all share")

            VocabularyPage {}
        },
        PageEntry {
            name: "PluginInfo"
            group: "vocabulary"
            summary: qsTr("The name and the version of the module")

            VocabularyPage {}
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
        openView(index, Main.Try);
    }

    function openView(index: int, view: int) {
        isInMenu = true;
        isInTabs = false;
        isOnLanguage = false;
        currentIndex = -1;
        currentView = view;
        currentIndex = index;
    }

    function viewCount(index: int): int {
        return pages[index].isControl ? 3 : 1;
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

    /*! The pictures of the view. Of the states that controls share, each takes its own. */
    function currentShots(): list<Shot> {
        const shots = [];
        for (const shot of currentPage.shots) {
            if (!currentEntry.isControl || shot.name.split("-")[0] === currentEntry.name)
                shots.push(shot);
        }
        return shots;
    }

    function shotNames(): list<string> {
        const names = [];
        for (const shot of currentShots())
            names.push(shot.name);
        return names;
    }

    /*! Puts the page into the state of a picture; the digits to press then. */
    function takeShot(index: int): string {
        const shot = currentShots()[index];
        Language.code = shot.language || language;
        shot.taken();
        isInMenu = currentPage.focusedStop === null;
        return shot.digits;
    }

    /*! The milliseconds to let pass then. */
    function shotTime(index: int): int {
        return currentShots()[index].time;
    }

    function nextLanguage() {
        const codes = Language.codes;
        Language.code = codes[(codes.indexOf(Language.code) + 1) % codes.length];
    }

    function enterPage(): bool {
        if (!currentPage || !currentPage.focusFirst())
            return false;
        isInMenu = false;
        isInTabs = false;
        return true;
    }

    function leavePage() {
        currentPage.focusedStop = null;
        isInTabs = false;
        isInMenu = true;
    }

    function enterTabs() {
        currentPage.focusedStop = null;
        isInMenu = false;
        isInTabs = true;
    }

    /*! From line to line, round over the line of the language, which leaves the page open. */
    function moveInMenu(step: int) {
        const count = pages.length;
        const line = ((isOnLanguage ? count : currentIndex) + step + count + 1) % (count + 1);
        isOnLanguage = line === count && _language.visible;
        if (!isOnLanguage)
            currentIndex = line % count;
    }

    function handleKey(key: int, text: string): bool {
        if (handleGlobalKey(key))
            return true;
        if (isInMenu)
            return handleMenuKey(key);
        return isInTabs ? handleTabKey(key) : handlePageKey(key, text);
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
            moveInMenu(-1);
            return true;
        case Qt.Key_Down:
            moveInMenu(1);
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

    function handleTabKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
            if (currentView > 0)
                --currentView;
            else
                leavePage();
            return true;
        case Qt.Key_Right:
            if (currentView < viewCount(currentIndex) - 1)
                ++currentView;
            return true;
        case Qt.Key_Down:
        case Qt.Key_Return:
            enterPage();
            return true;
        case Qt.Key_Up:
            return true;
        case Qt.Key_Back:
            leavePage();
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
        case Qt.Key_Up:
            if (currentEntry.isControl)
                enterTabs();
            return true;
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

            Keys.onPressed: event => event.accepted = _window.handleKey(event.key, event.text)
        }

        // The other button of a mouse is Back, but does not end the program.
        TapHandler {
            acceptedButtons: Qt.RightButton
            enabled: !_window.isInMenu

            onTapped: _window.handleKey(Qt.Key_Back, "")
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

            readonly property int step: 48
            readonly property int firstVisible: Math.max(0, Math.min(_window.currentIndex - 7,
                                                                     _window.pages.length - 10))

            x: _scene.menuX
            y: 148
            width: 248
            height: step * 10
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

                        fixedSize: Qt.size(248, 44)
                        spacing: modelData.isControl ? 0 : 12
                        titleFont: modelData.isControl ? Theme.sizedFont(18, Font.DemiBold) : Theme.menu
                        titleText: modelData.title
                        leftIconSource: modelData.isControl ? "" : Theme.icon(modelData.icon)
                        leftIconSize: modelData.isControl ? Qt.size(0, 0) : Qt.size(32, 32)
                        focused: isCurrent && _window.isInMenu && !_window.isOnLanguage
                        checked: isCurrent && !focused
                        focusPolicy: Qt.NoFocus

                        onClicked: {
                            _window.openPage(index);
                            _window.enterPage();
                        }
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
            focusPolicy: Qt.NoFocus

            onClicked: _window.nextLanguage()
        }

        Label {
            x: _scene.pageX
            y: 40
            maximumLineCount: 1
            font: Theme.display
            text: _window.currentEntry?.title ?? ""
        }

        Row {
            id: _tabs

            x: _scene.pageX + 840 - width
            y: 40
            spacing: 8
            visible: _window.currentEntry?.isControl ?? false

            Repeater {
                model: [qsTr("Try"), qsTr("States"), qsTr("Code")]

                ViewTab {
                    required property int index
                    required property string modelData

                    text: modelData
                    checked: index === _window.currentView
                    focused: checked && _window.isInTabs

                    onClicked: {
                        _window.currentView = index;
                        _window.enterTabs();
                    }
                }
            }
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
            sourceComponent: {
                if (!_window.currentEntry)
                    return null;
                if (!_window.currentEntry.isControl || _window.currentView === Main.States)
                    return _window.currentEntry.page;
                return _window.currentView === Main.Try ? _try : _code;
            }

            // Why is on the console already; a window without its page would be no help.
            onStatusChanged: {
                if (status === Loader.Error)
                    Qt.exit(1);
            }
        }

        // What is shown small is no place to click at.
        MouseArea {
            x: _loader.x
            y: _loader.y
            z: 2
            width: _loader.width * _loader.scale
            height: _loader.height * _loader.scale
            visible: _loader.isPreview

            onClicked: _window.enterPage()
        }

        Component {
            id: _try

            TryPage {
                name: _window.currentEntry?.name ?? ""
                summary: _window.currentEntry?.summary ?? ""
            }
        }

        Component {
            id: _code

            CodePage {
                name: _window.currentEntry?.name ?? ""
                summary: _window.currentEntry?.summary ?? ""
            }
        }

        Connections {
            target: _window.currentPage

            // By a pointer, which goes where it likes.
            function onFocusedStopChanged() {
                if (_window.currentPage.focusedStop) {
                    _window.isInMenu = false;
                    _window.isInTabs = false;
                }
            }

            function onPageRequested(name: string) {
                _window.openPage(_window.pageIndex(name));
                _window.enterPage();
            }
        }

        Row {
            id: _hints

            x: _scene.pageX
            y: 656
            spacing: 10

            Hint {
                key: visible ? "← →" : ""
                meaning: _window.currentPage?.sideKeysMeaning ?? ""
                visible: meaning !== ""
            }
            Hint {
                key: _window.currentPage?.sideKeysMeaning ? "↑ ↓" : "← ↑ ↓ →"
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
