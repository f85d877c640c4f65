// SPDX-License-Identifier: MIT
#include "kelscrollbar.h"
#include "kelscrollbar_p.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

#include "kelpicture_p.h"

namespace {

// Beyond any screen, and within the reach of painters and of int.
constexpr double longest = 1 << 30;

//! In whole pixels, rounded.
QSize toPixels(QSizeF size)
{
    // Of a number and NaN, these take the number.
    const auto bounded = [](double side) { return std::fmin(std::fmax(side, -longest), longest); };
    return {qRound(bounded(size.width())), qRound(bounded(size.height()))};
}

} // namespace

KelScrollBarPrivate::KelScrollBarPrivate(KelScrollBar *item)
    : q(item)
{
}

QRect KelScrollBarPrivate::sliderArea(
    QSize track, Qt::Orientation orientation, int maximum, int sliderPosition)
{
    const qint64 length = orientation == Qt::Horizontal ? track.width() : track.height();
    if (length < 1 || maximum < 1)
        return {};
    const double ratio = double(length) / maximum;
    const qint64 sliderLength = std::max({length - maximum, length / 20, qint64(ratio)});
    // Far beyond the track, and beyond an int, where the maximum was lowered below the position.
    const auto offset = qint64(sliderPosition * ratio);
    auto start = qint64(double(offset) - double(offset) / double(length) * double(sliderLength));
    qint64 end = start + sliderLength - 1;
    // Deliberately inclusive: the slider may end one pixel beyond the track.
    if (length < end) {
        start = length - sliderLength + 1;
        end = length;
    }
    if (orientation == Qt::Horizontal)
        return {QPoint(int(start), 0), QPoint(int(end), track.height() - 1)};
    return {QPoint(0, int(start)), QPoint(track.width() - 1, int(end))};
}

void KelScrollBarPrivate::relayout()
{
    sliderRect = sliderArea(toPixels(q->clipRect().size()), orientation, maximum, sliderPosition);
}

void KelScrollBarPrivate::updateSlider()
{
    const QRect before = sliderRect;
    relayout();
    if (sliderRect != before)
        q->update();
}

KelScrollBar::KelScrollBar(QQuickItem *parent)
    : QQuickPaintedItem(parent)
    , d(std::make_unique<KelScrollBarPrivate>(this))
{
}

KelScrollBar::~KelScrollBar() = default;

int KelScrollBar::maximum() const
{
    return d->maximum;
}

void KelScrollBar::setMaximum(int maximum)
{
    if (maximum < 0 || d->maximum == maximum)
        return;
    // Deliberately leaves the position as it is, even beyond the new maximum.
    d->maximum = maximum;
    d->updateSlider();
    Q_EMIT maximumChanged();
}

int KelScrollBar::sliderPosition() const
{
    return d->sliderPosition;
}

void KelScrollBar::setSliderPosition(int position)
{
    // Deliberately compared as given: a position out of range counts as a change each time.
    if (d->sliderPosition == position)
        return;
    d->sliderPosition = std::max(std::min(position, d->maximum), 0);
    d->updateSlider();
    Q_EMIT sliderPositionChanged();
}

QColor KelScrollBar::backgroundColor() const
{
    return d->backgroundColor;
}

void KelScrollBar::setBackgroundColor(const QColor &color)
{
    if (d->backgroundColor == color)
        return;
    d->backgroundColor = color;
    update();
    Q_EMIT backgroundColorChanged();
}

QColor KelScrollBar::sliderColor() const
{
    return d->sliderColor;
}

void KelScrollBar::setSliderColor(const QColor &color)
{
    if (d->sliderColor == color)
        return;
    d->sliderColor = color;
    update();
    Q_EMIT sliderColorChanged();
}

Qt::Orientation KelScrollBar::orientation() const
{
    return d->orientation;
}

void KelScrollBar::setRoundingRadius(int radius)
{
    // Deliberately no repaint: the next one shows it.
    d->roundingRadius = radius;
}

void KelScrollBar::componentComplete()
{
    QQuickPaintedItem::componentComplete();
    d->updateSlider();
}

void KelScrollBar::paint(QPainter *painter)
{
    if (!d->sliderRect.isValid())
        return;
    // Deliberately the painter's pen: rounded shapes are outlined with it.
    painter->setBrush(d->backgroundColor);
    const int radius = d->roundingRadius;
    const QRectF track = clipRect() & QRectF(0, 0, longest, longest);
    if (radius < 1) {
        painter->fillRect(track, d->backgroundColor);
        painter->fillRect(d->sliderRect, d->sliderColor);
        return;
    }
    painter->setRenderHint(QPainter::Antialiasing);
    painter->drawRoundedRect(track, radius, radius, Qt::AbsoluteSize);
    painter->setBrush(d->sliderColor);
    painter->drawRoundedRect(d->sliderRect, radius, radius, Qt::AbsoluteSize);
    painter->setRenderHint(QPainter::Antialiasing, false);
}

QSGNode *KelScrollBar::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data)
{
    if (KelPicture::canKeep(*this))
        return QQuickPaintedItem::updatePaintNode(oldNode, data);
    delete oldNode;
    releaseResources();
    return nullptr;
}
