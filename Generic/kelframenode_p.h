// SPDX-License-Identifier: MIT
#pragma once

#include <QtQuick/QSGRenderNode>

#include <functional>

class QPainter;
class QQuickPaintedItem;
class QQuickWindow;

/*!
    Paints an item straight into the frame of the software renderer, where a painted item would keep a picture
    of its own size. It draws what the item's paint() draws, cut at the item's edges like that picture.
*/
class KelFrameNode : public QSGRenderNode
{
public:
    using Paint = std::function<void(QPainter &)>;

    /*!
        Makes the node show the item, or nothing where that has no size. False where only a picture will do:
        with another renderer, for an item that is asked for a picture of a certain kind, and without paint.
    */
    static bool update(QSGNode *&node, const QQuickPaintedItem &item, const Paint &paint);

    void render(const RenderState *state) override;
    RenderingFlags flags() const override { return BoundedRectRendering; }
    QRectF rect() const override { return m_area; }

private:
    explicit KelFrameNode(QQuickWindow *window);
    QRect clipArea(const QTransform &transform) const;

    QQuickWindow *m_window;
    QRect m_area;
    Paint m_paint;
};
