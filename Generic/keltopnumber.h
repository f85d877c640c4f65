// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

#include <memory>

class KelTopNumberPrivate;

/*!
    A number in large outlined digits, as for a place in a top ten, named TopNumber in QML. The implicit size
    fits the digits and the sides of their outline. Where the digits are depends on the implicit height alone,
    whatever height the item is given.

    All properties are required. Signals come before the item changes its size and asks for a repaint.
*/
class KelTopNumber : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TopNumber)

public:
    //! The colour of the outline; an invalid one is black. Default: invalid.
    Q_PROPERTY(
        QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged REQUIRED FINAL)
    QColor borderColor() const;
    void setBorderColor(const QColor &color);

    /*!
        What the inside of the digits gets in place of what was there, alpha included; with an invalid colour
        it is cut out, and the outline alone is seen. Default: invalid.
    */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED FINAL)
    QColor color() const;
    void setColor(const QColor &color);

    //! The font of the digits; its size in pixels adds to the room at their sides.
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged REQUIRED FINAL)
    QFont font() const;
    void setFont(const QFont &font);

    //! Default: -1, which is deliberately not shown unless another number was set before.
    Q_PROPERTY(int number READ number WRITE setNumber NOTIFY numberChanged REQUIRED FINAL)
    int number() const;
    void setNumber(int number);

    /*!
        The width of the outline in pixels, of which the half outside the digits is seen. Default: -1. Numbers
        that are no width of a pen, below 0 and above 32767, move the digits and are drawn as 1.
    */
    Q_PROPERTY(int penWidth READ penWidth WRITE setPenWidth NOTIFY penWidthChanged REQUIRED FINAL)
    int penWidth() const;
    void setPenWidth(int width);

    explicit KelTopNumber(QQuickItem *parent = nullptr);
    ~KelTopNumber() override;

    void componentComplete() override;
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void borderColorChanged(QColor color);
    void colorChanged(QColor color);
    void fontChanged(QFont font);
    void numberChanged(int number);
    void penWidthChanged(int penWidth);

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    friend class KelTopNumberPrivate;

    std::unique_ptr<KelTopNumberPrivate> d;
};
