// SPDX-License-Identifier: MIT
#include <QtTest/QTest>

#include <SDL3/SDL.h>

#include "gamepad.h"
#include "keyrecorder.h"

using namespace Qt::StringLiterals;

//! A game pad that SDL makes up, and the keys that come of it.
class tst_gamepad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void buttonsAreKeys_data();
    void buttonsAreKeys();
    void stickIsArrows_data();
    void stickIsArrows();
    void stickDoesNotFlutter();
    void repeatsWhatIsHeld();
    void leavesNothingHeld();

private:
    void setAxis(SDL_GamepadAxis axis, Sint16 value) { SDL_SetJoystickVirtualAxis(m_joystick, axis, value); }

    std::unique_ptr<KeyRecorder> m_window;
    std::unique_ptr<Gamepad> m_gamepad;
    SDL_JoystickID m_id = 0;
    SDL_Joystick *m_joystick = nullptr;
};

void tst_gamepad::initTestCase()
{
    QVERIFY2(SDL_Init(SDL_INIT_GAMEPAD), SDL_GetError());
}

void tst_gamepad::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_window = std::make_unique<KeyRecorder>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    SDL_VirtualJoystickDesc description;
    SDL_INIT_INTERFACE(&description);
    description.type = SDL_JOYSTICK_TYPE_GAMEPAD;
    description.naxes = SDL_GAMEPAD_AXIS_COUNT;
    description.nbuttons = SDL_GAMEPAD_BUTTON_COUNT;
    m_id = SDL_AttachVirtualJoystick(&description);
    QVERIFY2(m_id != 0, SDL_GetError());
    m_joystick = SDL_OpenJoystick(m_id);
    QVERIFY2(m_joystick, SDL_GetError());
    // What an axis says first is taken for its rest.
    SDL_UpdateJoysticks();
    m_gamepad = std::make_unique<Gamepad>();
    // Until it is opened as a game pad, nothing that is pressed counts.
    QTRY_VERIFY(SDL_GetGamepadFromID(m_id));
}

void tst_gamepad::cleanup()
{
    SDL_CloseJoystick(m_joystick);
    SDL_DetachVirtualJoystick(m_id);
    m_gamepad.reset();
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
}

void tst_gamepad::buttonsAreKeys_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("key");
    const auto add = [](const char *name, SDL_GamepadButton button, Qt::Key key) {
        QTest::newRow(name) << int(button) << int(key);
    };
    add("up", SDL_GAMEPAD_BUTTON_DPAD_UP, Qt::Key_Up);
    add("down", SDL_GAMEPAD_BUTTON_DPAD_DOWN, Qt::Key_Down);
    add("left", SDL_GAMEPAD_BUTTON_DPAD_LEFT, Qt::Key_Left);
    add("right", SDL_GAMEPAD_BUTTON_DPAD_RIGHT, Qt::Key_Right);
    add("A", SDL_GAMEPAD_BUTTON_SOUTH, Qt::Key_Select);
    add("B", SDL_GAMEPAD_BUTTON_EAST, Qt::Key_Back);
    add("X", SDL_GAMEPAD_BUTTON_WEST, Qt::Key_Blue);
    add("Y", SDL_GAMEPAD_BUTTON_NORTH, Qt::Key_Search);
    add("left shoulder", SDL_GAMEPAD_BUTTON_LEFT_SHOULDER, Qt::Key_AudioRewind);
    add("right shoulder", SDL_GAMEPAD_BUTTON_RIGHT_SHOULDER, Qt::Key_AudioForward);
    add("start", SDL_GAMEPAD_BUTTON_START, Qt::Key_MediaTogglePlayPause);
    add("back", SDL_GAMEPAD_BUTTON_BACK, Qt::Key_Menu);
    add("guide", SDL_GAMEPAD_BUTTON_GUIDE, Qt::Key_HomePage);
}

void tst_gamepad::buttonsAreKeys()
{
    QFETCH(const int, button);
    QFETCH(const int, key);
    SDL_SetJoystickVirtualButton(m_joystick, button, true);
    QTRY_COMPARE(m_window->events.value(0), KeyRecorder::text("press", key));
    SDL_SetJoystickVirtualButton(m_joystick, button, false);
    QTRY_COMPARE(m_window->events.last(), KeyRecorder::text("release", key));
}

void tst_gamepad::stickIsArrows_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("key");
    QTest::newRow("left") << -32768 << 0 << int(Qt::Key_Left);
    QTest::newRow("right") << 32767 << 0 << int(Qt::Key_Right);
    QTest::newRow("up") << 0 << -32768 << int(Qt::Key_Up);
    QTest::newRow("down") << 0 << 32767 << int(Qt::Key_Down);
    QTest::newRow("rather left") << -30000 << 15000 << int(Qt::Key_Left);
    QTest::newRow("rather down") << -15000 << 30000 << int(Qt::Key_Down);
}

void tst_gamepad::stickIsArrows()
{
    QFETCH(const int, x);
    QFETCH(const int, y);
    QFETCH(const int, key);
    setAxis(SDL_GAMEPAD_AXIS_LEFTX, Sint16(x));
    setAxis(SDL_GAMEPAD_AXIS_LEFTY, Sint16(y));
    const QString press = KeyRecorder::text("press", key);
    QTRY_COMPARE(m_window->events.filter(u"press"_s).value(0), press);
    setAxis(SDL_GAMEPAD_AXIS_LEFTX, 0);
    setAxis(SDL_GAMEPAD_AXIS_LEFTY, 0);
    QTRY_COMPARE(m_window->events.last(), KeyRecorder::text("release", key));
    QCOMPARE(m_window->events.filter(u"press"_s), QStringList(press));
}

void tst_gamepad::stickDoesNotFlutter()
{
    setAxis(SDL_GAMEPAD_AXIS_LEFTX, 19'000);
    setAxis(SDL_GAMEPAD_AXIS_LEFTX, 21'000);
    QTRY_COMPARE(m_window->events.value(0), KeyRecorder::text("press", Qt::Key_Right));
    setAxis(SDL_GAMEPAD_AXIS_LEFTX, 13'000);
    // It is repeated for as long as it is not released.
    QTRY_COMPARE(m_window->events.last(), KeyRecorder::text("repeat", Qt::Key_Right));
    setAxis(SDL_GAMEPAD_AXIS_LEFTX, 11'000);
    QTRY_COMPARE(m_window->events.last(), KeyRecorder::text("release", Qt::Key_Right));
}

void tst_gamepad::repeatsWhatIsHeld()
{
    SDL_SetJoystickVirtualButton(m_joystick, SDL_GAMEPAD_BUTTON_DPAD_DOWN, true);
    const QString repeat = KeyRecorder::text("repeat", Qt::Key_Down);
    QTRY_VERIFY(m_window->events.count(repeat) >= 2);
    // The last one pressed.
    SDL_SetJoystickVirtualButton(m_joystick, SDL_GAMEPAD_BUTTON_DPAD_RIGHT, true);
    QTRY_COMPARE(m_window->events.last(), KeyRecorder::text("repeat", Qt::Key_Right));
    const auto count = m_window->events.count(repeat);
    SDL_SetJoystickVirtualButton(m_joystick, SDL_GAMEPAD_BUTTON_DPAD_DOWN, false);
    QTRY_VERIFY(m_window->events.contains(KeyRecorder::text("release", Qt::Key_Down)));
    QCOMPARE(m_window->events.count(repeat), count);
}

//! A pad that is pulled out, or whose battery is empty.
void tst_gamepad::leavesNothingHeld()
{
    SDL_SetJoystickVirtualButton(m_joystick, SDL_GAMEPAD_BUTTON_DPAD_DOWN, true);
    QTRY_COMPARE(m_window->events.value(0), KeyRecorder::text("press", Qt::Key_Down));
    SDL_CloseJoystick(m_joystick);
    SDL_DetachVirtualJoystick(m_id);
    m_joystick = nullptr;
    QTRY_COMPARE(m_window->events.last(), KeyRecorder::text("release", Qt::Key_Down));
}

QTEST_MAIN(tst_gamepad)

#include "tst_gamepad.moc"
