// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QRect>
#include <QtCore/Qt>
#include <QtGui/QColor>

class KelScrollBar;

//! The state of a scroll bar, and where its slider is.
class KelScrollBarPrivate
{
public:
    explicit KelScrollBarPrivate(KelScrollBar *item);

    //! Where the slider is on a track of this size; invalid where there is none.
    static QRect sliderArea(QSize track, Qt::Orientation orientation, int maximum, int sliderPosition);

    void relayout();
    //! Lays out, and asks for a repaint where that moves the slider.
    void updateSlider();

    KelScrollBar *q;
    Qt::Orientation orientation = Qt::Vertical;
    int maximum = 0;
    int sliderPosition = 0;
    int roundingRadius = 0;
    QColor backgroundColor = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.2F);
    QColor sliderColor = QColor::fromRgbF(1.0F, 1.0F, 1.0F, 0.5F);
    QRect sliderRect;
};
