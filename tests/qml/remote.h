// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>

/*!
    Presses keys as a remote control does: with any text, and held down. Qt Quick Test types what has a key
    of its own only.
*/
class Remote : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    //! Presses a key on an item, or on a window's item with focus. Returns whether the key was taken.
    Q_INVOKABLE static bool press(QObject *target, int key, const QString &text = {},
        int modifiers = Qt::NoModifier, bool isAutoRepeat = false)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers::fromInt(modifiers), text, isAutoRepeat);
        QCoreApplication::sendEvent(target, &event);
        return event.isAccepted();
    }
};
