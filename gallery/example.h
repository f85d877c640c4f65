// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

//! A sample of a control: the file that makes it, and the text of that file.
class Example : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    //! That of the control.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL)
    Q_PROPERTY(QString fileName READ fileName NOTIFY nameChanged FINAL)
    Q_PROPERTY(QUrl url READ url NOTIFY nameChanged FINAL)
    //! Empty where there is no such file.
    Q_PROPERTY(QString code READ code NOTIFY nameChanged FINAL)
    //! The code as a text in HTML that tells words of different kinds apart by colours.
    Q_PROPERTY(QString markup READ markup NOTIFY nameChanged FINAL)

public:
    using QObject::QObject;

    QString name() const;
    void setName(const QString &name);
    QString fileName() const;
    QUrl url() const;
    QString code() const;
    QString markup() const;

Q_SIGNALS:
    void nameChanged();

private:
    QString m_name;
};
