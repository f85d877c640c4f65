// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>

//! Brushes for pages to fill areas with. As variants: QML has no name for their type.
class Brushes : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(QVariant hatching READ hatching CONSTANT FINAL)
    Q_PROPERTY(QVariant grid READ grid CONSTANT FINAL)
    Q_PROPERTY(QVariant sunset READ sunset CONSTANT FINAL)
    Q_PROPERTY(QVariant glow READ glow CONSTANT FINAL)
    Q_PROPERTY(QVariant wheel READ wheel CONSTANT FINAL)
    Q_PROPERTY(QVariant weave READ weave CONSTANT FINAL)

public:
    explicit Brushes(QObject *parent = nullptr);

    static QVariant hatching();
    static QVariant grid();
    static QVariant sunset();
    static QVariant glow();
    static QVariant wheel();
    static QVariant weave();
};
