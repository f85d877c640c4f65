// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

//! A book to read: a long story without an end, told of a few sentences that are put together anew each time.
class Book : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(int chapters READ chapters CONSTANT FINAL)

public:
    //! As many as make a megabyte of text.
    static int chapters();

    //! The same text each time: all chapters, paragraphs parted by "\n". Languages: "ru"; all others are
    //! English.
    Q_INVOKABLE QString text(const QString &language) const;
};
