// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

#include <memory>

class KelScrollBarPrivate;

/*!
    Shows how far a view is scrolled, named ScrollBar in QML: a track, and on it a slider whose length and
    place stand for the range and the position. Passive; it takes no input. With nothing to scroll, that is
    with a maximum of 0, it paints nothing.

    The slider is laid out at completion and when maximum or sliderPosition change. Deliberately not when the
    size does: the track then follows at once, the slider at the next of these changes.
*/
class KelScrollBar : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ScrollBar)

public:
    //! The range: the position at the end of the view. Default: 0. Negative values are ignored.
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum NOTIFY maximumChanged)
    int maximum() const;
    void setMaximum(int maximum);

    /*!
        From 0 to the maximum of the moment, else the nearer of them. A declaration may set it before maximum,
        when that is still 0: bind it to an expression that reads maximum. A maximum that is lowered later
        leaves it as it is. A value out of range counts as a change each time. Default: 0.
    */
    Q_PROPERTY(int sliderPosition READ sliderPosition WRITE setSliderPosition NOTIFY sliderPositionChanged)
    int sliderPosition() const;
    void setSliderPosition(int position);

    //! The colour of the track. Default: black with an alpha of 0.2.
    Q_PROPERTY(
        QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);

    //! Default: white with an alpha of 0.5.
    Q_PROPERTY(QColor sliderColor READ sliderColor WRITE setSliderColor NOTIFY sliderColorChanged)
    QColor sliderColor() const;
    void setSliderColor(const QColor &color);

    explicit KelScrollBar(QQuickItem *parent = nullptr);
    ~KelScrollBar() override;

    //! Which way the slider moves: vertically.
    Qt::Orientation orientation() const;

    /*!
        Rounds the corners of track and slider, in pixels; below 1, the default, they are square. Seen at the
        next repaint, which it does not ask for.
    */
    void setRoundingRadius(int radius);

    void componentComplete() override;
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void maximumChanged();
    void sliderPositionChanged();
    void backgroundColorChanged();
    void sliderColorChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    friend class KelScrollBarPrivate;

    std::unique_ptr<KelScrollBarPrivate> d;
};
