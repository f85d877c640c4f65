// SPDX-License-Identifier: MIT
#include "kelbrusharea.h"

#include <QtGui/QPainter>

#include <cmath>

#include "kelpicture_p.h"

namespace {

int toPixels(double value)
{
    // Larger than any screen, and small enough for sums of two.
    constexpr double longest = 1 << 24;
    // Of a number and NaN, these take the number.
    return int(std::fmin(std::fmax(value, -longest), longest));
}

} // namespace

KelBrushArea::KelBrushArea(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

QBrush KelBrushArea::brush() const
{
    return m_brush;
}

void KelBrushArea::setBrush(const QBrush &brush)
{
    if (m_brush == brush)
        return;
    m_brush = brush;
    update();
    Q_EMIT brushChanged();
}

QRect KelBrushArea::filledArea(const QRectF &geometry)
{
    return {toPixels(geometry.x()), toPixels(geometry.y()), toPixels(geometry.width()),
        toPixels(geometry.height())};
}

void KelBrushArea::paint(QPainter *painter)
{
    // Deliberately at the item's position in its parent, though the painter begins at the item's corner.
    const QRect area = filledArea({x(), y(), width(), height()});
    if (!area.isEmpty())
        painter->fillRect(area, m_brush);
}

QSGNode *KelBrushArea::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data)
{
    if (KelPicture::canKeep(*this))
        return QQuickPaintedItem::updatePaintNode(oldNode, data);
    delete oldNode;
    releaseResources();
    return nullptr;
}
