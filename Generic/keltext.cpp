// SPDX-License-Identifier: MIT
#include "keltext.h"

#include <QtGui/QPainter>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRenderNode>
#include <QtQuick/QSGRendererInterface>

#include <algorithm>
#include <limits>

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

//! What the painter's window and viewport do to its coordinates: nothing in a frame, something in a layer.
QTransform viewTransform(const QPainter &painter)
{
    if (!painter.viewTransformEnabled())
        return {};
    const QRect from = painter.window();
    const QRect to = painter.viewport();
    const qreal xScale = qreal(to.width()) / from.width();
    const qreal yScale = qreal(to.height()) / from.height();
    return {xScale, 0, 0, yScale, to.x() - from.x() * xScale, to.y() - from.y() * yScale};
}

void paintText(QPainter &painter, const kelcore::TextRenderer &renderer, const QColor &color)
{
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    renderer.draw(painter);
}

/*!
    Paints the text straight into the frame of the software renderer, where a painted item would keep a
    picture of its own size. It draws what KelText::paint() draws, cut at the item's edges like that picture.
*/
class TextNode : public QSGRenderNode
{
public:
    explicit TextNode(QQuickWindow *window)
        : m_window(window)
    {
    }

    void sync(QSize size, const kelcore::TextRenderer &renderer, const QColor &color)
    {
        m_area.setSize(size);
        m_renderer = renderer;
        m_color = color;
        markDirty(DirtyMaterial | DirtyGeometry);
    }

    void render(const RenderState *state) override
    {
        auto *painter = static_cast<QPainter *>(
            m_window->rendererInterface()->getResource(m_window, QSGRendererInterface::PainterResource));
        if (!painter)
            return;
        const QRegion *clip = state->clipRegion();
        // The node is asked to paint even where a clip leaves nothing of it.
        if (!clip || clip->isEmpty())
            return;
        // The window of the painter tells the renderer the item's area; what it was before goes into the
        // matrix.
        const QTransform transform = matrix()->toTransform() * viewTransform(*painter);
        painter->setClipRegion(*clip, Qt::ReplaceClip);
        painter->setTransform(transform);
        painter->setViewport(m_area);
        painter->setWindow(m_area);
        painter->setOpacity(inheritedOpacity());
        painter->setClipRect(clipArea(transform), Qt::IntersectClip);
        paintText(*painter, m_renderer, m_color);
    }

    //! The area, with all of the pixels that it touches: painters round a clip that stands between pixels.
    QRect clipArea(const QTransform &transform) const
    {
        if (transform.type() > QTransform::TxTranslate)
            return m_area;
        const QRect shown = transform.mapRect(QRectF(m_area)).toAlignedRect();
        return shown.translated(-qRound(transform.dx()), -qRound(transform.dy()));
    }

    RenderingFlags flags() const override { return BoundedRectRendering; }
    QRectF rect() const override { return m_area; }

private:
    QQuickWindow *m_window;
    QRect m_area;
    kelcore::TextRenderer m_renderer;
    QColor m_color;
};

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
    const bool isTextNode = oldNode && oldNode->type() == QSGNode::RenderNodeType;
    const bool isSoftware = window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
    // A picture, once made, stays: the base class holds on to its node.
    if (!isSoftware || !hasDefaultRenderSettings() || (oldNode && !isTextNode)) {
        if (isTextNode) {
            delete oldNode;
            oldNode = nullptr;
        }
        return QQuickPaintedItem::updatePaintNode(oldNode, data);
    }
    // Sides in whole pixels, as those of a picture; larger than any screen, they change nothing.
    constexpr qreal longest = 1 << 24;
    const QSize size(qRound(std::clamp(width(), 0.0, longest)), qRound(std::clamp(height(), 0.0, longest)));
    if (size.isEmpty()) {
        delete oldNode;
        return nullptr;
    }
    auto *node = oldNode ? static_cast<TextNode *>(oldNode) : new TextNode(window());
    node->sync(size, m_renderer, m_color);
    return node;
}

void KelText::updateLayout()
{
    if (!isComponentComplete())
        return;
    m_renderer.relayout();
    const QSize size = m_renderer.boundingSize(QMargins());
    setImplicitSize(size.width(), size.height());
}

//! Whether nobody asked for a picture of a certain kind.
bool KelText::hasDefaultRenderSettings() const
{
    return renderTarget() == Image && performanceHints() == PerformanceHints() && !opaquePainting()
        && !mipmap() && !antialiasing() && fillColor() == Qt::transparent && contentsScale() == 1.0
        && contentsSize().isEmpty() && textureSize().isEmpty();
}
