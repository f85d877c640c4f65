// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtGui/QKeyEvent>
#include <QtQml/qqmlregistration.h>

/*!
    Hears the keys of a window first: those of remote controls, keyboards and game pads become the few that
    the pages know. A key that is pressed again before it was released is marked as repeating: its way here
    may have lost that.
*/
class RemoteKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QObject *window READ window WRITE setWindow NOTIFY windowChanged FINAL)

public:
    using QObject::QObject;

    QObject *window() const { return m_window; }
    void setWindow(QObject *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

    //! What the pages know a key as; itself where it has no other meaning.
    static Qt::Key meaning(int key, quint32 scanCode);

Q_SIGNALS:
    void windowChanged();

private:
    bool hear(QObject *watched, QKeyEvent &event);

    QObject *m_window = nullptr;
    QSet<Qt::Key> m_held;
    bool m_isSending = false;
};
