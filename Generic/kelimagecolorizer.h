// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QMetaObject>
#include <QtCore/QObject>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

/*!
    Gives the picture of a Qt Quick Image one colour, named ImageColorizer in QML. Declare it inside the
    image: an icon file then takes the colour of its control's state.

    The picture is replaced in place, so that each call starts from the last result. Hence two lasting
    effects: pixels once coloured pure black no longer count as coloured in SourceAlpha, and clearing enabled
    does not bring the file's own picture back (loading it again does).
*/
class KelImageColorizer : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ImageColorizer)

public:
    enum ColoringMethod : int {
        SourceAlpha = 0, //!< A pixel keeps its alpha. Pure black pixels are left alone.
        DestinationAlpha = 1 //!< A pixel's alpha is multiplied by the colour's.
    };
    Q_ENUM(ColoringMethod)

    //! Default: true.
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY enabledChanged)
    bool enabled() const;
    void setEnabled(bool enabled);

    //! The Image to recolour, not owned. Other items are kept and left alone. Default: null.
    Q_PROPERTY(QQuickItem *sourceItem READ sourceItem WRITE setSourceItem NOTIFY sourceItemChanged)
    QQuickItem *sourceItem() const;
    void setSourceItem(QQuickItem *item);

    //! Default: invalid; nothing is recoloured while it is.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    QColor color() const;
    void setColor(const QColor &color);

    //! Default: SourceAlpha. Values without a name work as SourceAlpha.
    Q_PROPERTY(ColoringMethod coloringMethod READ coloringMethod WRITE setColoringMethod NOTIFY
            coloringMethodChanged)
    ColoringMethod coloringMethod() const;
    void setColoringMethod(ColoringMethod method);

    explicit KelImageColorizer(QObject *parent = nullptr);

    //! Recolours the picture shown, if there is one. Called after each change and whenever the image loads.
    void tryColorizeImage();

Q_SIGNALS:
    void enabledChanged();
    void sourceItemChanged();
    void colorChanged();
    void coloringMethodChanged();

private:
    bool m_enabled = true;
    // Cleared when the item is destroyed, which may be before this object is.
    QPointer<QQuickItem> m_sourceItem;
    QColor m_color;
    int m_lastAlpha = 255;
    ColoringMethod m_coloringMethod = SourceAlpha;
    QMetaObject::Connection m_statusConnection;
};
