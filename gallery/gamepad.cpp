// SPDX-License-Identifier: MIT
#include "gamepad.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QWindow>

#include <SDL3/SDL.h>

#include <chrono>

using namespace std::chrono_literals;

namespace {

// A pad is looked for now and then, and looked at all the time.
constexpr auto seekInterval = 1s;
constexpr auto pollInterval = 10ms;
constexpr auto repeatDelay = 400ms;
constexpr auto repeatInterval = 100ms;
// Of 32767. A stick that is held at the edge must not flutter.
constexpr int pressThreshold = 20'000;
constexpr int releaseThreshold = 12'000;

Qt::Key toKey(int button)
{
    switch (button) {
    case SDL_GAMEPAD_BUTTON_DPAD_UP:
        return Qt::Key_Up;
    case SDL_GAMEPAD_BUTTON_DPAD_DOWN:
        return Qt::Key_Down;
    case SDL_GAMEPAD_BUTTON_DPAD_LEFT:
        return Qt::Key_Left;
    case SDL_GAMEPAD_BUTTON_DPAD_RIGHT:
        return Qt::Key_Right;
    case SDL_GAMEPAD_BUTTON_SOUTH:
        return Qt::Key_Select;
    case SDL_GAMEPAD_BUTTON_EAST:
        return Qt::Key_Back;
    case SDL_GAMEPAD_BUTTON_WEST:
        return Qt::Key_Blue;
    case SDL_GAMEPAD_BUTTON_NORTH:
        return Qt::Key_Search;
    case SDL_GAMEPAD_BUTTON_LEFT_SHOULDER:
        return Qt::Key_AudioRewind;
    case SDL_GAMEPAD_BUTTON_RIGHT_SHOULDER:
        return Qt::Key_AudioForward;
    case SDL_GAMEPAD_BUTTON_START:
        return Qt::Key_MediaTogglePlayPause;
    case SDL_GAMEPAD_BUTTON_BACK:
        return Qt::Key_Menu;
    case SDL_GAMEPAD_BUTTON_GUIDE:
        return Qt::Key_HomePage;
    default:
        return Qt::Key_unknown;
    }
}

void send(QEvent::Type type, Qt::Key key, bool isRepeat)
{
    QWindow *window = QGuiApplication::focusWindow();
    if (!window || key == Qt::Key_unknown)
        return;
    QKeyEvent event(type, key, Qt::NoModifier, QString(), isRepeat);
    QCoreApplication::sendEvent(window, &event);
}

} // namespace

Gamepad::Gamepad(QObject *parent)
    : QObject(parent)
{
    // There is no window of SDL's for a pad to belong to, and Ctrl-C is none of its business.
    SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (!SDL_Init(SDL_INIT_GAMEPAD))
        return;
    connect(&m_polling, &QTimer::timeout, this, &Gamepad::poll);
    connect(&m_repeating, &QTimer::timeout, this, &Gamepad::repeat);
    m_polling.start(pollInterval);
}

Gamepad::~Gamepad()
{
    for (SDL_Gamepad *pad : std::as_const(m_pads))
        SDL_CloseGamepad(pad);
    SDL_QuitSubSystem(SDL_INIT_GAMEPAD);
}

void Gamepad::poll()
{
    SDL_Event event;
    while (SDL_PollEvent(&event)) {
        switch (event.type) {
        case SDL_EVENT_GAMEPAD_ADDED:
            if (SDL_Gamepad *pad = SDL_OpenGamepad(event.gdevice.which))
                m_pads.insert(event.gdevice.which, pad);
            break;
        case SDL_EVENT_GAMEPAD_REMOVED:
            SDL_CloseGamepad(m_pads.take(event.gdevice.which));
            break;
        case SDL_EVENT_GAMEPAD_BUTTON_DOWN:
            press(toKey(event.gbutton.button));
            break;
        case SDL_EVENT_GAMEPAD_BUTTON_UP:
            release(toKey(event.gbutton.button));
            break;
        case SDL_EVENT_GAMEPAD_AXIS_MOTION:
            if (event.gaxis.axis == SDL_GAMEPAD_AXIS_LEFTX)
                moveStick(m_stickX, event.gaxis.value);
            else if (event.gaxis.axis == SDL_GAMEPAD_AXIS_LEFTY)
                moveStick(m_stickY, event.gaxis.value);
            break;
        default:
            break;
        }
    }
    m_polling.setInterval(m_pads.isEmpty() ? seekInterval : pollInterval);
}

void Gamepad::moveStick(int &axis, int value)
{
    axis = value;
    const bool isAcross = std::abs(m_stickX) > std::abs(m_stickY);
    const int most = isAcross ? m_stickX : m_stickY;
    const Qt::Key across = m_stickX < 0 ? Qt::Key_Left : Qt::Key_Right;
    const Qt::Key along = m_stickY < 0 ? Qt::Key_Up : Qt::Key_Down;
    Qt::Key key = isAcross ? across : along;
    if (std::abs(most) < (key == m_stickKey ? releaseThreshold : pressThreshold))
        key = Qt::Key_unknown;
    if (key == m_stickKey)
        return;
    release(m_stickKey);
    m_stickKey = key;
    press(key);
}

void Gamepad::press(Qt::Key key)
{
    if (key == Qt::Key_unknown)
        return;
    m_held = key;
    m_repeating.start(repeatDelay);
    send(QEvent::KeyPress, key, false);
}

void Gamepad::release(Qt::Key key)
{
    if (key == m_held) {
        m_held = Qt::Key_unknown;
        m_repeating.stop();
    }
    send(QEvent::KeyRelease, key, false);
}

void Gamepad::repeat()
{
    m_repeating.setInterval(repeatInterval);
    send(QEvent::KeyPress, m_held, true);
}
