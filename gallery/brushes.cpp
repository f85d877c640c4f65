// SPDX-License-Identifier: MIT
#include "brushes.h"

#include <QtGui/QBrush>
#include <QtGui/QImage>
#include <QtGui/QPainter>

namespace {

//! Fits any area: its coordinates run from 0 to 1 across it.
QBrush fitted(QGradient gradient, const QGradientStops &stops)
{
    gradient.setCoordinateMode(QGradient::ObjectMode);
    gradient.setStops(stops);
    return gradient;
}

} // namespace

Brushes::Brushes(QObject *parent)
    : QObject(parent)
{
}

QVariant Brushes::hatching()
{
    return QBrush(QColor(0xff, 0xc2, 0x47), Qt::BDiagPattern);
}

QVariant Brushes::grid()
{
    return QBrush(QColor(0x7f, 0xe3, 0xc4), Qt::CrossPattern);
}

QVariant Brushes::sunset()
{
    return fitted(QLinearGradient(0, 0, 0.4, 1),
        {{0, QColor(0x1b, 0x1a, 0x4b)}, {0.5, QColor(0xa3, 0x3b, 0x6b)}, {1, QColor(0xff, 0xc2, 0x47)}});
}

QVariant Brushes::glow()
{
    return fitted(QRadialGradient(0.5, 0.5, 0.7),
        {{0, QColor(0xff, 0xf3, 0xd0)}, {0.3, QColor(0x7f, 0xe3, 0xc4)}, {1, QColor(0x7f, 0xe3, 0xc4, 0)}});
}

QVariant Brushes::wheel()
{
    return fitted(QConicalGradient(0.5, 0.5, 90),
        {{0, QColor(0xff, 0x9a, 0xa8)}, {0.33, QColor(0xff, 0xc2, 0x47)}, {0.66, QColor(0x7f, 0xe3, 0xc4)},
            {1, QColor(0xff, 0x9a, 0xa8)}});
}

QVariant Brushes::weave()
{
    constexpr int side = 24;
    QImage tile(side, side, QImage::Format_RGB32);
    tile.fill(QColor(0x1b, 0x6b, 0x5f));
    QPainter painter(&tile);
    painter.fillRect(0, 0, side / 2, side / 2, QColor(0x24, 0x8a, 0x7a));
    painter.fillRect(side / 2, side / 2, side / 2, side / 2, QColor(0x24, 0x8a, 0x7a));
    painter.fillRect(side / 2 - 3, 0, 6, side / 2, QColor(0x7f, 0xe3, 0xc4));
    painter.fillRect(0, side * 3 / 4 - 3, side / 2, 6, QColor(0x7f, 0xe3, 0xc4));
    painter.end();
    return QBrush(tile);
}
