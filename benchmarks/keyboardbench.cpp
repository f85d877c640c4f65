// SPDX-License-Identifier: MIT
#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>

#include <chrono>
#include <cstdio>
#include <functional>
#include <optional>

#include "measure.h"
#include "scene.h"

using namespace Qt::StringLiterals;

namespace {

//! The keyboard as an application dresses it, above it the field that it types into.
const QByteArray ourSource = R"(
Item {
    id: root

    readonly property string icons: "file://)" KELUI_ICON_DIR R"(/"
    readonly property list<string> english: K.KelGlobal.englishAndNumericLayout
    readonly property list<string> russian: K.KelGlobal.russianAndNumericLayout
    readonly property list<string> symbols: K.KelGlobal.symbolsAndNumericLayout
    readonly property list<string> englishLabels: english.map(key => keyboard.keyText(key))
    readonly property list<string> russianLabels: russian.map(key => keyboard.keyText(key))

    function activate(index: int) { keyboard.processKeyActivated(index); }
    function clear() { field.text = ""; }

    K.LineEdit {
        id: field
        x: 20; y: 20; width: 786; height: 60; font.pixelSize: 28
        selected: true; keyboardLayout: keyboard.layout
        backgroundColors: ({ normal: "#1c2533", selected: "#26303d" })
        textColors: ({ normal: "white", selected: "white", wide: "black" })
        placeholderTextColors: ({ normal: "gray", selected: "gray" })
    }
    K.Keyboard {
        id: keyboard
        x: 20; y: 100
        type: K.KelGlobal.AlphanumericKeyboard
        keyBackgroundColor: "#26303d"; keyTextColor: "white"
        symbolKeysFont.pixelSize: 24; controlKeysFont.pixelSize: 24; domainKeysFont.pixelSize: 24
        backspaceIconPath: root.icons + "box.svg"
        leftIconPath: root.icons + "play.svg"
        rightIconPath: root.icons + "forward.svg"
        capslockEnabledIconPath: root.icons + "lock.svg"
        capslockDisabledIconPath: root.icons + "star.svg"
        onKeyTextActivated: text => field.addText(text)
    }
}
)";

//! What a key does is done as the panel does it for the OK key of its own navigation by arrow keys.
const QByteArray theirSource = R"(
import QtQuick.VirtualKeyboard
import QtQuick.VirtualKeyboard.Settings

Item {
    id: root
    width: 1280; height: 720

    property Item letter
    readonly property bool isShown: panel.active && panel.keyboard.locale === "en_GB" && letter

    function findKey(item: Item, text: string): Item {
        if (item.keyType !== undefined && item.text === text)
            return item;
        for (const child of item.children) {
            const key = findKey(child, text);
            if (key)
                return key;
        }
        return null;
    }
    function takeLetter() { letter = findKey(panel.keyboard.keyboardLayoutLoader, "q"); }
    function clear() { field.text = ""; }
    function switchLanguage() { panel.keyboard.changeInputLanguage(false); }
    function switchSymbols() { panel.keyboard.symbolMode = !panel.keyboard.symbolMode; }
    function toggleCapslock() {
        InputContext.priv.shiftHandler.capsLockActive = !InputContext.priv.shiftHandler.capsLockActive;
    }
    function typeLetter() {
        if (!letter) // It goes with its layout.
            takeLetter();
        const area = panel.keyboard.keyboardInputArea;
        area.setActiveKey(letter);
        area.press(letter, true);
        area.release(letter);
        area.setActiveKey(null);
    }

    Rectangle {
        x: 20; y: 20; width: 786; height: 60; color: "#26303d"

        TextInput {
            id: field
            anchors.fill: parent
            verticalAlignment: TextInput.AlignVCenter; font.pixelSize: 28; color: "white"; clip: true; focus: true
            inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
        }
    }
    InputPanel {
        id: panel
        y: root.height - height; width: root.width
    }
    Component.onCompleted: {
        VirtualKeyboardSettings.defaultInputMethodDisabled = true; // It predicts words.
        VirtualKeyboardSettings.activeLocales = ["en_GB", "ru_RU"];
        VirtualKeyboardSettings.locale = "en_GB";
    }
}
)";

//! The same grid with as many cells as keys, without and with what is seen of a key.
const QByteArray gridSource = R"(
GridLayout {
    property list<string> labels

    columns: 12; rowSpacing: 6; columnSpacing: 6

    Repeater { model: parent.labels; delegate: CELL }
}
)";
const QByteArray bareCell = "Item { implicitWidth: 60; implicitHeight: 60 }";
const QByteArray labelledCell = R"(
Rectangle {
    required property string modelData
    implicitWidth: 60; implicitHeight: 60; color: "#26303d"
    Text { anchors.centerIn: parent; text: parent.modelData; color: "white"; font.pixelSize: 24 }
}
)";

void call(QObject *object, const char *function)
{
    if (!QMetaObject::invokeMethod(object, function))
        qFatal("cannot call %s", function);
}

//! What an event loop does between input and picture: the keys that were replaced are deleted as well.
void finishFrame(Scene &scene)
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    scene.renderFrame();
}

//! A row about work that consists of several equal steps tells of one of them.
Row perStep(Row row, int steps)
{
    row.ours /= steps;
    row.theirs /= steps;
    return row;
}

class OurKeyboard
{
public:
    OurKeyboard() { finishFrame(m_scene); }

    QStringList list(const char *name) const { return Property(m_item.get(), name).read().toStringList(); }
    int index(const char *layout, const QString &key) const { return int(list(layout).indexOf(key)); }

    void activate(int index)
    {
        if (!QMetaObject::invokeMethod(m_item.get(), "activate", index))
            qFatal("cannot activate a key");
        finishFrame(m_scene);
    }

    void clear() { call(m_item.get(), "clear"); }

private:
    Scene m_scene;
    std::unique_ptr<QQuickItem> m_item = m_scene.create(ourSource);
};

//! Qt Virtual Keyboard with a focused field. An application can have one.
class Peer
{
public:
    //! Whether it is there; where it is not, the first one who asks is told why rows are missing.
    bool isShown()
    {
        if (!m_isShown) {
            m_isShown = show();
            if (!*m_isShown)
                std::fprintf(stderr, "no rows against Qt Virtual Keyboard, which does not come up here\n");
        }
        return *m_isShown;
    }

    void act(const char *function)
    {
        call(m_item.get(), function);
        finishFrame(m_scene);
    }

    //! Back where it was in the end.
    Work twice(const char *function)
    {
        return [this, function] {
            act(function);
            act(function);
        };
    }

    void clear() { call(m_item.get(), "clear"); }

private:
    bool show()
    {
        if (!m_scene.canImport("QtQuick.VirtualKeyboard"))
            return false;
        m_item = m_scene.create(theirSource);
        m_scene.activate();
        const Property isShown(m_item.get(), "isShown");
        const QDeadlineTimer deadline(std::chrono::seconds(10));
        do
            act("takeLetter");
        while (!isShown.read().toBool() && !deadline.hasExpired());
        return isShown.read().toBool();
    }

    Scene m_scene;
    std::unique_ptr<QQuickItem> m_item;
    std::optional<bool> m_isShown;
};

//! From English to another layout and back.
class Switching
{
public:
    explicit Switching(const char *layout = "russian", const QString &key = u"layout_rus"_s)
        : m_there(m_keyboard.index("english", key))
        , m_back(m_keyboard.index(layout, u"layout_eng"_s))
    {
    }

    void operator()()
    {
        m_keyboard.activate(m_there);
        m_keyboard.activate(m_back);
    }

    const OurKeyboard &keyboard() const { return m_keyboard; }

private:
    OurKeyboard m_keyboard;
    int m_there;
    int m_back;
};

QString peerRow(const QString &what)
{
    return u"keyboard, %1, against Qt Virtual Keyboard"_s.arg(what);
}

void measureSwitch(Table &table, Peer &peer, const char *layout, const QString &key, const char *theirs)
{
    const QString name = peerRow(QLatin1StringView(layout) + u" and back"_s);
    if (!table.wants(name) || !peer.isShown())
        return;
    Switching ours(layout, key);
    table.add(perStep(timed(name, 0.45, std::ref(ours), peer.twice(theirs)), 2));
}

void measureCapslock(Table &table, Peer &peer)
{
    const QString name = peerRow(u"caps lock"_s);
    if (!table.wants(name) || !peer.isShown())
        return;
    OurKeyboard ours;
    const int key = ours.index("english", u"capslock"_s);
    const auto toggleTwice = [&] {
        ours.activate(key);
        ours.activate(key);
    };
    table.add(perStep(timed(name, 0.55, toggleTwice, peer.twice("toggleCapslock")), 2));
}

void measureKeystroke(Table &table, Peer &peer)
{
    const QString name = peerRow(u"keystroke"_s);
    if (!table.wants(name) || !peer.isShown())
        return;
    // Then the field is emptied, so that its text stays short.
    constexpr int wordLength = 8;
    OurKeyboard ours;
    const int key = ours.index("english", u"q"_s);
    const auto type = [&] {
        for (int i = 0; i < wordLength; ++i)
            ours.activate(key);
        ours.clear();
    };
    const auto theirType = [&] {
        for (int i = 0; i < wordLength; ++i)
            peer.act("typeLetter");
        peer.clear();
    };
    table.add(perStep(timed(name, 0.75, type, theirType), wordLength));
}

void measureAgainstGrid(Table &table, const QString &what, double goal, const QByteArray &cell)
{
    const QString name = u"keyboard, russian and back, against "_s + what;
    if (!table.wants(name))
        return;
    Switching ours;
    Scene scene;
    const auto grid = scene.create("import QtQuick.Layouts\n" + QByteArray(gridSource).replace("CELL", cell));
    const Property labels(grid.get(), "labels");
    const QVariant english = ours.keyboard().list("englishLabels");
    const QVariant russian = ours.keyboard().list("russianLabels");
    const Row row = timed(name, goal, std::ref(ours), [&] {
        labels.write(russian);
        finishFrame(scene);
        labels.write(english);
        finishFrame(scene);
    });
    table.add(perStep(row, 2));
}

void measureAgainstClock(Table &table)
{
    const QString name = u"keyboard, russian and back, against a 60 Hz frame"_s;
    if (!table.wants(name))
        return;
    Switching ours;
    Row row = perStep(timed(name, 1, std::ref(ours), [] { }), 2);
    constexpr double hertz = 60;
    row.theirs = 1e6 / hertz;
    row.ratio = row.ours / row.theirs;
    table.add(row);
}

} // namespace

void measureKeyboard(Table &table)
{
    Peer peer;
    measureSwitch(table, peer, "russian", u"layout_rus"_s, "switchLanguage");
    measureSwitch(table, peer, "symbols", u"layout_symbols"_s, "switchSymbols");
    measureCapslock(table, peer);
    measureKeystroke(table, peer);
    measureAgainstGrid(table, u"bare items"_s, 0, bareCell);
    measureAgainstGrid(table, u"boxes and texts"_s, 1.7, labelledCell);
    measureAgainstClock(table);
}
