// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

#include "kelcore/textrenderer.h"

/*!
    A text label, named Text in QML: a plain string in one colour and font. How lines are broken, cut and
    aligned is told in kelcore/textrenderer.h. The implicit size is that of the laid-out text.

    The item takes its textWidth, and the height in which it aligns, from its size at completion. Later
    changes of its size do not reach the text; a change of textWidth does.
*/
class KelText : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Text)

public:
    //! Names from Qt's text options, and their numbers; 2 is deliberately absent.
    enum class WrapMode {
        NoWrap = 0,
        WordWrap = 1,
        WrapAnywhere = 3,
        WrapAtWordBoundaryOrAnywhere = 4,
        Wrap = WrapAtWordBoundaryOrAnywhere
    };
    Q_ENUM(WrapMode)

    //! The string to show. Default: empty.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    QString text() const;
    void setText(const QString &text);

    //! A change is seen, in size and picture, at the next change of another property that moves lines.
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged FINAL)
    QFont font() const;
    void setFont(const QFont &font);

    //! Default: black. An invalid colour draws black, as everywhere in Qt.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    QColor color() const;
    void setColor(const QColor &color);

    /*!
        Default: Qt.AlignLeft. Vertical flags in the value set the vertical alignment too, so that one
        value can serve both properties. A value with such flags always counts as a change.
    */
    Q_PROPERTY(
        Qt::Alignment horizontalAlignment READ hAlign WRITE setHAlign NOTIFY horizontalAlignmentChanged FINAL)
    Qt::Alignment hAlign() const;
    void setHAlign(Qt::Alignment alignment);

    //! Default: Qt.AlignTop. Horizontal flags in the value set the horizontal alignment too.
    Q_PROPERTY(
        Qt::Alignment verticalAlignment READ vAlign WRITE setVAlign NOTIFY verticalAlignmentChanged FINAL)
    Qt::Alignment vAlign() const;
    void setVAlign(Qt::Alignment alignment);

    //! Default: NoWrap. Kept and reported, wraps nothing: textWidth and maximumLineCount decide about lines.
    Q_PROPERTY(WrapMode wrapMode READ wrapMode WRITE setWrapMode NOTIFY wrapModeChanged FINAL)
    WrapMode wrapMode() const;
    void setWrapMode(WrapMode mode);

    //! The most lines; 0 or less means no limit, as does the default 2147483647.
    Q_PROPERTY(int maximumLineCount READ maximumLineCount WRITE setMaximumLineCount NOTIFY
            maximumLineCountChanged FINAL)
    int maximumLineCount() const;
    void setMaximumLineCount(int count);

    /*!
        The width in which lines are broken, in pixels, truncated to an int; 0 or less, NaN and values beyond
        the range of int mean no limit. To begin with, give the item a width: completion silently takes that,
        and replaces what was given here.
    */
    Q_PROPERTY(double textWidth READ textWidth WRITE setTextWidth NOTIFY textWidthChanged FINAL)
    double textWidth() const;
    void setTextWidth(double width);

    explicit KelText(QQuickItem *parent = nullptr);
    ~KelText() override;

    void componentComplete() override;
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void fontChanged();
    void colorChanged();
    void textChanged(const QString &text);
    void horizontalAlignmentChanged(Qt::Alignment alignment);
    void verticalAlignmentChanged(Qt::Alignment alignment);
    void wrapModeChanged();
    void maximumLineCountChanged();
    void textWidthChanged(double textWidth);

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    void updateLayout();

    kelcore::TextRenderer m_renderer;
    QColor m_color = Qt::black;
    WrapMode m_wrapMode = WrapMode::NoWrap;
};
