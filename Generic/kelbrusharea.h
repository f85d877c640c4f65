// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QBrush>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

/*!
    A rectangle filled with any brush, named BrushArea in QML: patterns, gradients and textures that are made
    in C++.

    Deliberately, the fill begins at the item's position in its parent, within the item's own area: placed at
    (0, 0), the item is filled as a whole; placed at (30, 10), from (30, 10) on. Put it into a parent of its
    own to fill it anywhere.
*/
class KelBrushArea : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(BrushArea)

    //! Default: a brush without a style, which paints nothing.
    Q_PROPERTY(QBrush brush READ brush WRITE setBrush NOTIFY brushChanged)

public:
    QBrush brush() const;
    void setBrush(const QBrush &brush);

    explicit KelBrushArea(QQuickItem *parent = nullptr);

    /*!
        What is filled of an item with this position and size: all four truncated to whole pixels. A number
        that is none, or that is larger than any screen, fills nothing that can be seen.
    */
    static QRect filledArea(const QRectF &geometry);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void brushChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    QBrush m_brush;
};
