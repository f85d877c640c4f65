// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QTimer>

struct SDL_Gamepad;

//! Game pads as remote controls: what is pressed on any of them is a key of the window in focus.
class Gamepad : public QObject
{
    Q_OBJECT

public:
    explicit Gamepad(QObject *parent = nullptr);
    ~Gamepad() override;
    Q_DISABLE_COPY_MOVE(Gamepad)

private:
    void poll();
    void moveStick(int &axis, int value);
    void press(Qt::Key key);
    void release(Qt::Key key);
    void repeat();

    QHash<quint32, SDL_Gamepad *> m_pads;
    QTimer m_polling;
    QTimer m_repeating;
    Qt::Key m_held = Qt::Key_unknown;
    int m_stickX = 0;
    int m_stickY = 0;
    Qt::Key m_stickKey = Qt::Key_unknown;
};
