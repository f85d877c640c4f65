// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

class KelLargeTextPrivate;

/*!
    A long plain text that scrolls vertically inside the item, named LargeText in QML. Each line is wrapped at
    the item's width as it was when the line was prepared: the first when the text is set, the others one by
    one in passes of the event loop. A later change of width or font does not prepare them again.
*/
class KelLargeText : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(LargeText)

public:
    //! The text to show. Default: empty. A change silently takes offset to 0 and scrollStep to 0.3.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    QString text() const;
    void setText(const QString &text);

    //! Default: invalid, which draws black. A change is seen at the next repaint.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    QColor color() const;
    void setColor(const QColor &color);

    //! A change is painted at once; heights follow as lines are painted or prepared.
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged FINAL)
    QFont font() const;
    void setFont(const QFont &font);

    /*!
        The pixels of text above the item's top edge. Default: 0. It is kept from 0 to scrollMaximum and one
        scrollStep beyond, so that the last lines can be read away from the bottom edge.
    */
    Q_PROPERTY(int offset READ offset WRITE setOffset NOTIFY offsetChanged FINAL)
    int offset() const;
    void setOffset(int offset);

    //! How far scrollToDirection() goes, as a share of the item's height. Default: 0.3, after each text.
    Q_PROPERTY(double scrollStep READ scrollStep WRITE setScrollStep NOTIFY scrollStepChanged FINAL)
    double scrollStep() const;
    void setScrollStep(double step);

    /*!
        The height of the text beyond that of the item; negative where the text is shorter. Known once the
        item is filled, and again once all lines are prepared. A number written is truncated to an int.
    */
    Q_PROPERTY(
        double scrollMaximum READ scrollMaximum WRITE setScrollMaximum NOTIFY scrollMaximumChanged FINAL)
    int scrollMaximum() const;
    void setScrollMaximum(int maximum);
    //! For the property, whose type is wider than the number kept.
    void setScrollMaximum(double maximum);

    explicit KelLargeText(QQuickItem *parent = nullptr);
    ~KelLargeText() override;

    //! Scrolls by a step for KelGlobal.ScrollDown and KelGlobal.ScrollUp; other values are ignored.
    Q_INVOKABLE void scrollToDirection(int direction);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void textChanged(const QString &text);
    void colorChanged(const QColor &color);
    void offsetChanged(int offset);
    void scrollStepChanged(double scrollStep);
    void fontChanged(const QFont &font);
    void scrollMaximumChanged(int maximum);

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    Q_INVOKABLE void startPreparingTextFrom(int index);

    friend class KelLargeTextPrivate;
    KelLargeTextPrivate *const d;
};
