// SPDX-License-Identifier: MIT
#include <QtQml/QQmlIncubationController>
#include <QtQuick/QQuickItem>
#include <QtTest/QTest>

#include "galleryengine.h"
#include "keyrecorder.h"
#include "language.h"
#include "remotekeys.h"

using namespace Qt::StringLiterals;

//! What each key of a remote, a keyboard and a game pad is to the pages, and what it does in the gallery.
class tst_remotekeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void translates_data();
    void translates();
    void marksWhatRepeats();
    void keepsWhatIsMarked();
    void forgetsWithTheFocus();
    void leavesTheLastWindow();
    void doesTheSameEverywhere_data();
    void doesTheSameEverywhere();

private:
    static void send(QWindow &window, QEvent::Type type, int key, quint32 scanCode = 0, bool isRepeat = false,
        const QString &text = {});
};

void tst_remotekeys::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
}

void tst_remotekeys::send(
    QWindow &window, QEvent::Type type, int key, quint32 scanCode, bool isRepeat, const QString &text)
{
    QKeyEvent event(type, key, Qt::NoModifier, scanCode, 0, 0, text, isRepeat);
    QCoreApplication::sendEvent(&window, &event);
}

void tst_remotekeys::translates_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<quint32>("scanCode");
    QTest::addColumn<int>("expected");
    const auto add = [](const char *name, int key, int expected) {
        QTest::newRow(name) << key << 0U << expected;
    };
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Return,
             Qt::Key_Back, Qt::Key_0, Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_6,
             Qt::Key_7, Qt::Key_8, Qt::Key_9, Qt::Key_AudioRewind, Qt::Key_AudioForward,
             Qt::Key_MediaTogglePlayPause, Qt::Key_MediaPause, Qt::Key_MediaStop, Qt::Key_Red, Qt::Key_Green,
             Qt::Key_Yellow, Qt::Key_Blue, Qt::Key_Menu, Qt::Key_HomePage, Qt::Key_Search})
        QTest::addRow("itself, %x", unsigned(key)) << int(key) << 0U << int(key);
    add("enter of the number pad", Qt::Key_Enter, Qt::Key_Return);
    add("select", Qt::Key_Select, Qt::Key_Return);
    add("space", Qt::Key_Space, Qt::Key_Return);
    add("yes", Qt::Key_Yes, Qt::Key_Return);
    add("escape", Qt::Key_Escape, Qt::Key_Back);
    add("backspace", Qt::Key_Backspace, Qt::Key_Back);
    add("cancel", Qt::Key_Cancel, Qt::Key_Back);
    add("exit", Qt::Key_Exit, Qt::Key_Back);
    add("close", Qt::Key_Close, Qt::Key_Back);
    add("no", Qt::Key_No, Qt::Key_Back);
    add("previous", Qt::Key_MediaPrevious, Qt::Key_AudioRewind);
    add("next", Qt::Key_MediaNext, Qt::Key_AudioForward);
    add("play of the tape", Qt::Key_MediaPlay, Qt::Key_MediaTogglePlayPause);
    add("play", Qt::Key_Play, Qt::Key_MediaTogglePlayPause);
    add("F1", Qt::Key_F1, Qt::Key_Red);
    add("F2", Qt::Key_F2, Qt::Key_Green);
    add("F3", Qt::Key_F3, Qt::Key_Yellow);
    add("F4", Qt::Key_F4, Qt::Key_Blue);
    add("home of the keyboard", Qt::Key_Home, Qt::Key_HomePage);
    add("top menu", Qt::Key_TopMenu, Qt::Key_Menu);
    add("menu of the keyboard", Qt::Key_MenuKB, Qt::Key_Menu);
    add("find", Qt::Key_Find, Qt::Key_Search);

    // Without a key of Qt: by its number in linux/input-event-codes.h, and eight more.
    const auto addCode = [](const char *name, quint32 code, int expected) {
        QTest::addRow("%s without a key", name) << 0 << code + 8 << expected;
        QTest::addRow("%s, unknown", name) << int(Qt::Key_unknown) << code + 8 << expected;
    };
    addCode("menu", 139, Qt::Key_Menu);
    addCode("back", 158, Qt::Key_Back);
    addCode("play/pause", 164, Qt::Key_MediaTogglePlayPause);
    addCode("rewind", 168, Qt::Key_AudioRewind);
    addCode("home", 172, Qt::Key_HomePage);
    addCode("exit", 174, Qt::Key_Back);
    addCode("play", 207, Qt::Key_MediaTogglePlayPause);
    addCode("forward", 208, Qt::Key_AudioForward);
    addCode("search", 217, Qt::Key_Search);
    addCode("OK", 352, Qt::Key_Return);
    addCode("select", 353, Qt::Key_Return);
    addCode("red", 398, Qt::Key_Red);
    addCode("green", 399, Qt::Key_Green);
    addCode("yellow", 400, Qt::Key_Yellow);
    addCode("blue", 401, Qt::Key_Blue);
    QTest::newRow("nothing known") << int(Qt::Key_unknown) << 500U << int(Qt::Key_unknown);
    QTest::newRow("a key goes before its number") << int(Qt::Key_Up) << 352U + 8U << int(Qt::Key_Up);
}

void tst_remotekeys::translates()
{
    QFETCH(const int, key);
    QFETCH(const quint32, scanCode);
    QFETCH(const int, expected);
    KeyRecorder window;
    RemoteKeys keys;
    keys.setWindow(&window);
    send(window, QEvent::KeyPress, key, scanCode, false, u"x"_s);
    send(window, QEvent::KeyRelease, key, scanCode);
    QCOMPARE(window.events,
        (QStringList{KeyRecorder::text("press", expected), KeyRecorder::text("release", expected)}));
    // What a key types goes with its meaning.
    QCOMPARE(window.lastText, expected == key ? u"x"_s : QString());
}

void tst_remotekeys::marksWhatRepeats()
{
    KeyRecorder window;
    RemoteKeys keys;
    keys.setWindow(&window);
    for (const int key : {int(Qt::Key_Down), int(Qt::Key_Down), int(Qt::Key_Space), int(Qt::Key_Space)})
        send(window, QEvent::KeyPress, key);
    for (const int key : {int(Qt::Key_Space), int(Qt::Key_Down)})
        send(window, QEvent::KeyRelease, key);
    send(window, QEvent::KeyPress, Qt::Key_Down);
    QCOMPARE(window.events,
        (QStringList{KeyRecorder::text("press", Qt::Key_Down), KeyRecorder::text("repeat", Qt::Key_Down),
            KeyRecorder::text("press", Qt::Key_Return), KeyRecorder::text("repeat", Qt::Key_Return),
            KeyRecorder::text("release", Qt::Key_Return), KeyRecorder::text("release", Qt::Key_Down),
            KeyRecorder::text("press", Qt::Key_Down)}));
}

//! As X11 repeats: released and pressed again, both with a mark.
void tst_remotekeys::keepsWhatIsMarked()
{
    KeyRecorder window;
    RemoteKeys keys;
    keys.setWindow(&window);
    send(window, QEvent::KeyPress, Qt::Key_Select);
    send(window, QEvent::KeyRelease, Qt::Key_Select, 0, true);
    send(window, QEvent::KeyPress, Qt::Key_Select, 0, true);
    send(window, QEvent::KeyRelease, Qt::Key_Select);
    send(window, QEvent::KeyPress, Qt::Key_Select);
    QCOMPARE(window.events,
        (QStringList{KeyRecorder::text("press", Qt::Key_Return), KeyRecorder::text("release", Qt::Key_Return),
            KeyRecorder::text("repeat", Qt::Key_Return), KeyRecorder::text("release", Qt::Key_Return),
            KeyRecorder::text("press", Qt::Key_Return)}));
}

void tst_remotekeys::forgetsWithTheFocus()
{
    KeyRecorder window;
    RemoteKeys keys;
    keys.setWindow(&window);
    send(window, QEvent::KeyPress, Qt::Key_Up);
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&window, &out);
    send(window, QEvent::KeyPress, Qt::Key_Up);
    QCOMPARE(window.events, QStringList(2, KeyRecorder::text("press", Qt::Key_Up)));
}

void tst_remotekeys::leavesTheLastWindow()
{
    KeyRecorder window;
    KeyRecorder next;
    RemoteKeys keys;
    keys.setWindow(&window);
    keys.setWindow(&next);
    send(window, QEvent::KeyPress, Qt::Key_Select);
    send(next, QEvent::KeyPress, Qt::Key_Select);
    QCOMPARE(window.events, QStringList(KeyRecorder::text("press", Qt::Key_Select)));
    QCOMPARE(next.events, QStringList(KeyRecorder::text("press", Qt::Key_Return)));
}

void tst_remotekeys::doesTheSameEverywhere_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("isInMenu");
    QTest::addColumn<QString>("language");
    QTest::newRow("red") << int(Qt::Key_Red) << u"Home"_s << false << u"en"_s;
    QTest::newRow("home") << int(Qt::Key_HomePage) << u"Home"_s << false << u"en"_s;
    QTest::newRow("green") << int(Qt::Key_Green) << u"Search"_s << false << u"en"_s;
    QTest::newRow("search") << int(Qt::Key_Search) << u"Search"_s << false << u"en"_s;
    QTest::newRow("yellow") << int(Qt::Key_Yellow) << QString() << true << u"en"_s;
    QTest::newRow("menu") << int(Qt::Key_Menu) << QString() << true << u"en"_s;
    QTest::newRow("blue") << int(Qt::Key_Blue) << QString() << false << Language::codes().constLast();
}

void tst_remotekeys::doesTheSameEverywhere()
{
    QFETCH(const int, key);
    QFETCH(const QString, page);
    QFETCH(const bool, isInMenu);
    QFETCH(const QString, language);
    auto engine = loadGallery({{u"isAnimated"_s, false}, {u"language"_s, u"en"_s}});
    QQuickWindow *const window = windowOf(*engine);
    QVERIFY(window);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window));
    const auto indexOf = [&](const QString &name) {
        int index = -1;
        QMetaObject::invokeMethod(window, "pageIndex", qReturnArg(index), name);
        return index;
    };
    for (const QString &start : {u"Button"_s, u"Search"_s, u"Home"_s}) {
        QMetaObject::invokeMethod(window, "openPage", indexOf(start));
        QTest::keyClick(window, Qt::Key_Return);
        QTest::keyClick(window, Qt::Key_Return);
        send(*window, QEvent::KeyPress, key);
        send(*window, QEvent::KeyRelease, key);
        QCOMPARE(window->property("currentIndex").toInt(), indexOf(page.isEmpty() ? start : page));
        QCOMPARE(window->property("isInMenu").toBool(), isInMenu);
        QCOMPARE(engine->singletonInstance<Language *>("Kelui.Gallery", "Language")->code(), language);
        engine->singletonInstance<Language *>("Kelui.Gallery", "Language")->setCode(u"en"_s);
    }
    endGallery(engine);
}

QTEST_MAIN(tst_remotekeys)

#include "tst_remotekeys.moc"
