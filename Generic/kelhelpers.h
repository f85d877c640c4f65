// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

//! Addresses of pictures made to measure. Stateless; one per engine, named Helpers in QML.
class KelHelpers : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Helpers)
    QML_SINGLETON

public:
    explicit KelHelpers(QObject *parent = nullptr);

    //! A new instance without a parent; the engine that asks owns it.
    static KelHelpers *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    /*!
        The address with the size at which its picture is wanted, in pixels, and two wishes, as its query:
        "width", "height", "keep_ratio" and "borderless", each where it is asked for. Sizes are truncated to
        whole numbers; those of 0 or less, and NaN, are left out. A query that the address has is dropped.
        An invalid address gives an empty one.
    */
    Q_INVOKABLE QUrl imageUrl(
        const QUrl &url, double width, double height, bool keepRatio = false, bool borderless = false) const;
};
