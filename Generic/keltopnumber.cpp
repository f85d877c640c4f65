// SPDX-License-Identifier: MIT
#include "keltopnumber.h"
#include "keltopnumber_p.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include "kelpicture_p.h"

namespace {

QPen outlinePen(const QColor &color, int width)
{
    // Qt complains about any other.
    constexpr int widest = (1 << 15) - 1;
    QPen pen(color);
    if (width >= 0 && width <= widest)
        pen.setWidth(width);
    return pen;
}

} // namespace

KelTopNumberPrivate::KelTopNumberPrivate(KelTopNumber *item)
    : q(item)
{
}

int KelTopNumberPrivate::leftInset(int penWidth, int pixelSize)
{
    return penWidth / 2 + pixelSize / 40;
}

QSizeF KelTopNumberPrivate::outerSize(QSize text, int xOffset)
{
    return {text.width() + 2.0 * xOffset, double(text.height())};
}

QPointF KelTopNumberPrivate::origin(int xOffset, double implicitHeight, int penWidth)
{
    return {double(xOffset), implicitHeight - double(penWidth) - double(penWidth / 2)};
}

void KelTopNumberPrivate::recalculate()
{
    if (!q->isComponentComplete())
        return;
    const QSize text = QFontMetrics(font).size(Qt::TextSingleLine | Qt::TextDontClip, numberText);
    xOffset = leftInset(penWidth, font.pixelSize());
    const QSizeF size = outerSize(text, xOffset);
    q->setImplicitSize(size.width(), size.height());
    q->update();
}

void KelTopNumberPrivate::update() const
{
    if (q->isComponentComplete())
        q->update();
}

KelTopNumber::KelTopNumber(QQuickItem *parent)
    : QQuickPaintedItem(parent)
    , d(std::make_unique<KelTopNumberPrivate>(this))
{
}

KelTopNumber::~KelTopNumber() = default;

QColor KelTopNumber::borderColor() const
{
    return d->borderColor;
}

void KelTopNumber::setBorderColor(const QColor &color)
{
    if (d->borderColor == color)
        return;
    d->borderColor = color;
    Q_EMIT borderColorChanged(color);
    d->update();
}

QColor KelTopNumber::color() const
{
    return d->color;
}

void KelTopNumber::setColor(const QColor &color)
{
    if (d->color == color)
        return;
    d->color = color;
    Q_EMIT colorChanged(color);
    d->update();
}

QFont KelTopNumber::font() const
{
    return d->font;
}

void KelTopNumber::setFont(const QFont &font)
{
    if (d->font == font)
        return;
    d->font = font;
    Q_EMIT fontChanged(font);
    d->recalculate();
}

int KelTopNumber::number() const
{
    return d->number;
}

void KelTopNumber::setNumber(int number)
{
    if (d->number == number)
        return;
    d->number = number;
    d->numberText = QString::number(number);
    Q_EMIT numberChanged(number);
    d->recalculate();
}

int KelTopNumber::penWidth() const
{
    return d->penWidth;
}

void KelTopNumber::setPenWidth(int width)
{
    if (d->penWidth == width)
        return;
    d->penWidth = width;
    Q_EMIT penWidthChanged(width);
    d->recalculate();
}

void KelTopNumber::componentComplete()
{
    QQuickPaintedItem::componentComplete();
    d->recalculate();
}

void KelTopNumber::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addText(
        KelTopNumberPrivate::origin(d->xOffset, implicitHeight(), d->penWidth), d->font, d->numberText);
    painter->strokePath(path, outlinePen(d->borderColor, d->penWidth));
    // Deliberately in place of the inner half of the outline, not over it.
    painter->setCompositionMode(QPainter::CompositionMode_Source);
    painter->fillPath(path, d->color.isValid() ? d->color : QColor(Qt::transparent));
}

QSGNode *KelTopNumber::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data)
{
    if (KelPicture::canKeep(*this))
        return QQuickPaintedItem::updatePaintNode(oldNode, data);
    delete oldNode;
    releaseResources();
    return nullptr;
}
