// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>

class KelTopNumber;

//! The state of a number, and where its digits are.
class KelTopNumberPrivate
{
public:
    explicit KelTopNumberPrivate(KelTopNumber *item);

    //! The room to the left of the digits.
    static int leftInset(int penWidth, int pixelSize);
    //! The size of the item around digits of this size.
    static QSizeF outerSize(QSize text, int xOffset);
    //! Where the digits begin, on their baseline.
    static QPointF origin(int xOffset, double implicitHeight, int penWidth);

    //! Takes new sizes and repaints, once the component is complete.
    void recalculate();
    //! Repaints, once the component is complete.
    void update() const;

    KelTopNumber *q;
    QColor borderColor;
    QColor color;
    QFont font;
    int number = -1;
    QString numberText;
    int penWidth = -1;
    int xOffset = 0;
};
