// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QKeyEvent>
#include <QtGui/QWindow>

//! A window that keeps what its keys say: "press 16777220", "repeat …", "release …".
class KeyRecorder : public QWindow
{
    Q_OBJECT

public:
    static QString text(const char *what, int key)
    {
        return QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(key);
    }

    QStringList events;
    QString lastText;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        events += text(event->isAutoRepeat() ? "repeat" : "press", event->key());
        lastText = event->text();
    }
    void keyReleaseEvent(QKeyEvent *event) override { events += text("release", event->key()); }
};
