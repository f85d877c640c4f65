// SPDX-License-Identifier: MIT
#include "kelframenode_p.h"

#include <QtGui/QPainter>
#include <QtQuick/QQuickPaintedItem>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRendererInterface>

#include <cmath>

namespace {

// In pixels, larger than any screen.
constexpr qreal longest = 1 << 24;

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

//! Whether nobody asked for a picture of a certain kind.
bool hasDefaultRenderSettings(const QQuickPaintedItem &item)
{
    return item.renderTarget() == QQuickPaintedItem::Image
        && item.performanceHints() == QQuickPaintedItem::PerformanceHints() && !item.opaquePainting()
        && !item.mipmap() && !item.antialiasing() && item.fillColor() == Qt::transparent
        && item.contentsScale() == 1.0 && item.contentsSize().isEmpty() && item.textureSize().isEmpty();
}

} // namespace

KelFrameNode::KelFrameNode(QQuickWindow *window)
    : m_window(window)
{
}

bool KelFrameNode::update(QSGNode *&node, const QQuickPaintedItem &item, const Paint &paint)
{
    const bool isFrameNode = node && node->type() == QSGNode::RenderNodeType;
    const auto api = item.window()->rendererInterface()->graphicsApi();
    // A picture, once made, stays: the item holds on to its node.
    const bool isPossible = paint && api == QSGRendererInterface::Software && hasDefaultRenderSettings(item)
        && (!node || isFrameNode);
    // Sides in whole pixels, as those of a picture; longer, they change nothing.
    // Of a number and NaN, these take the number.
    const auto bounded = [](qreal side) { return std::fmin(std::fmax(side, 0.0), longest); };
    const QSize size(qRound(bounded(item.width())), qRound(bounded(item.height())));
    if (isFrameNode && (!isPossible || size.isEmpty())) {
        delete node;
        node = nullptr;
    }
    if (!isPossible || size.isEmpty())
        return isPossible;
    auto *shown = node ? static_cast<KelFrameNode *>(node) : new KelFrameNode(item.window());
    shown->m_area.setSize(size);
    shown->m_paint = paint;
    shown->markDirty(DirtyMaterial | DirtyGeometry);
    node = shown;
    return true;
}

void KelFrameNode::render(const RenderState *state)
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
    m_paint(*painter);
}

//! The area, with all of the pixels that it touches: painters round a clip that stands between pixels.
QRect KelFrameNode::clipArea(const QTransform &transform) const
{
    // Out of sight, the pixels may be too far off for a whole number.
    const bool isNear = std::abs(transform.dx()) < longest && std::abs(transform.dy()) < longest;
    if (!isNear || transform.type() > QTransform::TxTranslate)
        return m_area;
    const QRect shown = transform.mapRect(QRectF(m_area)).toAlignedRect();
    return shown.translated(-qRound(transform.dx()), -qRound(transform.dy()));
}
