// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QAbstractAnimation>
#include <QtCore/QCoreApplication>
#include <QtCore/QVariantAnimation>

/*!
    The time of animations and of timers in QML, which passes only when told, from the creation of this object
    to its end.
*/
class AnimationClock : public QAnimationDriver
{
    Q_OBJECT

public:
    explicit AnimationClock(QObject *parent = nullptr)
        : QAnimationDriver(parent)
    {
        install();
        // While nothing but timers runs, Qt would ask the clock on the wall.
        m_animation.setStartValue(0);
        m_animation.setEndValue(1);
        m_animation.setLoopCount(-1);
        m_animation.start();
        deliver();
    }

    ~AnimationClock() override
    {
        m_animation.stop();
        uninstall();
    }

    qint64 elapsed() const override { return m_elapsed; }

    //! Lets time pass, in one step: a timer that repeats fires once.
    Q_INVOKABLE void step(int milliseconds)
    {
        deliver();
        m_elapsed += milliseconds;
        advanceAnimation();
        deliver();
    }

private:
    //! Timers start and fire by events. To start one takes two, and what a call posts is sent by the next.
    static void deliver()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents();
    }

    qint64 m_elapsed = 0;
    QVariantAnimation m_animation;
};
