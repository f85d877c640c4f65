// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

/*!
    Stands for the service from which an application has its pictures. It makes each to measure, by the query
    of its address: within width and height where keep_ratio is true, else of just this size; and in a frame
    unless borderless is true.
*/
class PictureSource : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit PictureSource(QQmlEngine *engine);
    static PictureSource *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    //! The address of one of the gallery's pictures, as it is without wishes; "icons/name" is one of its
    //! icons.
    Q_INVOKABLE static QUrl address(const QString &name);
};
