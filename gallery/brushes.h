// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtGui/QBrush>
#include <QtQml/qqmlregistration.h>

//! Brushes for pages to fill areas with: QML itself has none.
class Brushes : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(QBrush hatching READ hatching CONSTANT FINAL)
    Q_PROPERTY(QBrush grid READ grid CONSTANT FINAL)
    Q_PROPERTY(QBrush sunset READ sunset CONSTANT FINAL)
    Q_PROPERTY(QBrush glow READ glow CONSTANT FINAL)
    Q_PROPERTY(QBrush wheel READ wheel CONSTANT FINAL)
    Q_PROPERTY(QBrush weave READ weave CONSTANT FINAL)

public:
    explicit Brushes(QObject *parent = nullptr);

    static QBrush hatching();
    static QBrush grid();
    static QBrush sunset();
    static QBrush glow();
    static QBrush wheel();
    static QBrush weave();
};
