// SPDX-License-Identifier: MIT
#include "keltext.h"

#include <QtGui/QPainter>

#include <limits>

#include "kelframenode_p.h"
#include "kelpicture_p.h"

namespace {

constexpr Qt::Alignment horizontalMask = Qt::AlignHorizontal_Mask;
constexpr Qt::Alignment verticalMask = Qt::AlignVertical_Mask;

int toPixels(double value)
{
    using Limits = std::numeric_limits<int>;
    // Written so that NaN fails the test.
    if (!(value >= Limits::min() && value <= Limits::max()))
        return Limits::max();
    return int(value);
}

void paintText(QPainter &painter, const kelcore::TextRenderer &renderer, const QColor &color)
{
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    renderer.draw(painter);
}

} // namespace

KelText::KelText(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    m_renderer.setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
}

KelText::~KelText() = default;

QString KelText::text() const
{
    return m_renderer.text();
}

void KelText::setText(const QString &text)
{
    if (m_renderer.text() == text)
        return;
    m_renderer.setText(text);
    updateLayout();
    update();
    Q_EMIT textChanged(text);
}

QFont KelText::font() const
{
    return m_renderer.textFont();
}

void KelText::setFont(const QFont &font)
{
    if (m_renderer.textFont() == font)
        return;
    m_renderer.setTextFont(font);
    // Deliberately no relayout: the implicit size stays that of the previous font until another input
    // changes.
    update();
    Q_EMIT fontChanged();
}

QColor KelText::color() const
{
    return m_color;
}

void KelText::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

Qt::Alignment KelText::hAlign() const
{
    return m_renderer.textAlignment() & horizontalMask;
}

void KelText::setHAlign(Qt::Alignment alignment)
{
    if (hAlign() == alignment)
        return;
    // Deliberately unmasked: a combined value sets the vertical flags too.
    m_renderer.setTextAlignment((m_renderer.textAlignment() & ~horizontalMask) | alignment);
    updateLayout();
    update();
    Q_EMIT horizontalAlignmentChanged(alignment);
}

Qt::Alignment KelText::vAlign() const
{
    return m_renderer.textAlignment() & verticalMask;
}

void KelText::setVAlign(Qt::Alignment alignment)
{
    if (vAlign() == alignment)
        return;
    // Deliberately unmasked: a combined value sets the horizontal flags too.
    m_renderer.setTextAlignment((m_renderer.textAlignment() & ~verticalMask) | alignment);
    updateLayout();
    update();
    Q_EMIT verticalAlignmentChanged(alignment);
}

KelText::WrapMode KelText::wrapMode() const
{
    return m_wrapMode;
}

void KelText::setWrapMode(WrapMode mode)
{
    if (m_wrapMode == mode)
        return;
    // Deliberately not handed to the renderer, which breaks lines by its own rule.
    m_wrapMode = mode;
    updateLayout();
    update();
    Q_EMIT wrapModeChanged();
}

int KelText::maximumLineCount() const
{
    return m_renderer.maxLineCount();
}

void KelText::setMaximumLineCount(int count)
{
    if (m_renderer.maxLineCount() == count)
        return;
    m_renderer.setMaxLineCount(count);
    updateLayout();
    update();
    Q_EMIT maximumLineCountChanged();
}

double KelText::textWidth() const
{
    return m_renderer.textWidth();
}

void KelText::setTextWidth(double width)
{
    // Compared with the int held: 100.9 counts as a change of 100 each time, and so do NaN and
    // numberMaxValue.
    if (qFuzzyCompare(double(m_renderer.textWidth()), width))
        return;
    m_renderer.setTextWidth(toPixels(width));
    updateLayout();
    update();
    Q_EMIT textWidthChanged(width);
}

void KelText::componentComplete()
{
    QQuickPaintedItem::componentComplete();
    // Deliberately replaces a textWidth set before, without a signal.
    m_renderer.setTextWidth(toPixels(width()));
    m_renderer.setAvailableHeight(toPixels(height()));
    updateLayout();
}

void KelText::paint(QPainter *painter)
{
    paintText(*painter, m_renderer, m_color);
}

QSGNode *KelText::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data)
{
    QSGNode *node = oldNode;
    const auto paint = [renderer = m_renderer, color = m_color](
                           QPainter &painter) { paintText(painter, renderer, color); };
    if (KelFrameNode::update(node, *this, paint))
        return node;
    if (KelPicture::canKeep(*this))
        return QQuickPaintedItem::updatePaintNode(node, data);
    delete node;
    releaseResources();
    return nullptr;
}

void KelText::updateLayout()
{
    if (!isComponentComplete())
        return;
    m_renderer.relayout();
    const QSize size = m_renderer.boundingSize(QMargins());
    setImplicitSize(size.width(), size.height());
}
