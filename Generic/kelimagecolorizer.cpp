// SPDX-License-Identifier: MIT
#include "kelimagecolorizer.h"
#include "kelimagecolorizer_p.h"

#include <QtCore/QCache>
#include <QtGui/QColorSpace>
#include <QtQuick/private/qquickimage_p.h>
#include <QtQuick/private/qquickimage_p_p.h>

#include <array>

namespace {

constexpr QRgb colorMask = 0x00ffffff;
constexpr QRgb alphaMask = 0xff000000;

//! Builds the ARGB32 picture whose pixels are newPixel(old ARGB32 pixel).
template <typename NewPixel>
QImage mapped(const QImage &picture, NewPixel newPixel)
{
    QImage result(picture.size(), QImage::Format_ARGB32);
    if (result.isNull())
        return result;
    const int width = picture.width();
    for (int y = 0; y < picture.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        auto *to = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < width; ++x)
            to[x] = newPixel(from[x]);
    }
    result.setDevicePixelRatio(picture.devicePixelRatio());
    result.setDotsPerMeterX(picture.dotsPerMeterX());
    result.setDotsPerMeterY(picture.dotsPerMeterY());
    result.setOffset(picture.offset());
    result.setColorSpace(picture.colorSpace());
    const QStringList keys = picture.textKeys();
    for (const QString &key : keys)
        result.setText(key, picture.text(key));
    return result;
}

/*!
    The same from any format, by a function of a pixel's alpha and of whether it is coloured. Red, green and
    blue never matter beyond that, so that premultiplied pixels need no division: where alpha is not 0 they
    are all 0 before it exactly if they are after it.
*/
template <typename NewPixel>
QImage recolored(const QImage &picture, NewPixel newPixel)
{
    switch (picture.format()) {
    case QImage::Format_ARGB32_Premultiplied:
        return mapped(picture, [=](QRgb pixel) {
            return newPixel(pixel & alphaMask, (pixel & colorMask) != 0 && (pixel & alphaMask) != 0);
        });
    case QImage::Format_RGB32:
        return mapped(picture, [=](QRgb pixel) { return newPixel(alphaMask, (pixel & colorMask) != 0); });
    default:
        return mapped(picture.convertToFormat(QImage::Format_ARGB32),
            [=](QRgb pixel) { return newPixel(pixel & alphaMask, (pixel & colorMask) != 0); });
    }
}

//! A picture and what is done to it.
struct Recoloring
{
    qint64 picture;
    QRgb color;
    KelImageColorizer::ColoringMethod method;
    int lastAlpha;

    QImage apply(const QImage &picture) const
    {
        if (method == KelImageColorizer::DestinationAlpha)
            return KelColorizing::withDestinationAlpha(picture, color, lastAlpha);
        return KelColorizing::withSourceAlpha(picture, color);
    }

    bool operator==(const Recoloring &other) const = default;

    friend size_t qHash(const Recoloring &key, size_t seed) noexcept
    {
        return qHashMulti(seed, key.picture, key.color, int(key.method), key.lastAlpha);
    }
};

/*!
    The picture recoloured, as Qt Quick keeps and draws pictures. Icons share their pixels: the buttons of a
    screen show few icons in few colours, over and over.
*/
QImage shared(const Recoloring &recoloring, const QImage &picture)
{
    // Bytes; an icon has up to 128 × 128 pixels.
    constexpr qsizetype largestIcon = 1 << 16;
    constexpr qsizetype maximumSize = 1 << 20;
    static QCache<Recoloring, QImage> icons(maximumSize);
    if (const QImage *known = icons.object(recoloring))
        return *known;
    QImage result = recoloring.apply(picture).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (result.sizeInBytes() <= largestIcon)
        icons.insert(recoloring, new QImage(result), result.sizeInBytes());
    return result;
}

} // namespace

QImage KelColorizing::withSourceAlpha(const QImage &picture, QRgb color)
{
    const QRgb paint = color & colorMask;
    return recolored(picture, [=](QRgb alpha, bool isColored) { return isColored ? alpha | paint : alpha; });
}

QImage KelColorizing::withDestinationAlpha(const QImage &picture, QRgb color, int lastAlpha)
{
    const QRgb paint = color & colorMask;
    std::array<QRgb, 256> table;
    for (int alpha = 0; alpha < 256; ++alpha) {
        const int original = lastAlpha > 0 && lastAlpha < 255 ? alpha * 255 / lastAlpha : alpha;
        // Beyond 255 it wraps around, deliberately: only pixels that were not scaled before can get there.
        table[alpha] = QRgb(original * qAlpha(color) / 255) << 24 | paint;
    }
    if (qAlpha(color) == 0)
        return recolored(picture, [=](QRgb alpha, bool isColored) { return isColored ? paint : alpha; });
    return recolored(picture, [&table](QRgb alpha, bool) { return table[alpha >> 24]; });
}

KelImageColorizer::KelImageColorizer(QObject *parent)
    : QObject(parent)
{
}

bool KelImageColorizer::enabled() const
{
    return m_enabled;
}

void KelImageColorizer::setEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    Q_EMIT enabledChanged();
    tryColorizeImage();
}

QQuickItem *KelImageColorizer::sourceItem() const
{
    return m_sourceItem;
}

void KelImageColorizer::setSourceItem(QQuickItem *item)
{
    if (m_sourceItem == item)
        return;
    disconnect(m_statusConnection);
    m_statusConnection = {};
    m_sourceItem = item;
    if (auto *image = qobject_cast<QQuickImage *>(item)) {
        m_statusConnection =
            connect(image, &QQuickImageBase::statusChanged, this, &KelImageColorizer::tryColorizeImage);
    }
    Q_EMIT sourceItemChanged();
    tryColorizeImage();
}

QColor KelImageColorizer::color() const
{
    return m_color;
}

void KelImageColorizer::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    tryColorizeImage();
}

KelImageColorizer::ColoringMethod KelImageColorizer::coloringMethod() const
{
    return m_coloringMethod;
}

void KelImageColorizer::setColoringMethod(ColoringMethod method)
{
    if (m_coloringMethod == method)
        return;
    m_coloringMethod = method;
    Q_EMIT coloringMethodChanged();
    tryColorizeImage();
}

void KelImageColorizer::tryColorizeImage()
{
    if (!m_enabled || !m_color.isValid())
        return;
    auto *image = qobject_cast<QQuickImage *>(m_sourceItem);
    if (!image || image->status() != QQuickImageBase::Ready)
        return;
    const QImage picture = image->image();
    if (picture.isNull())
        return;
    const QRgb color = m_color.rgba();
    const QImage result = shared({picture.cacheKey(), color, m_coloringMethod, m_lastAlpha}, picture);
    if (m_coloringMethod == DestinationAlpha && qAlpha(color) != 0)
        m_lastAlpha = qAlpha(color);
    // Qt has no public way to give an Image a picture without changing its source. Should this one vanish,
    // an image provider that serves the recoloured picture to the same item takes its place.
    auto *shown = static_cast<QQuickImagePrivate *>(QQuickItemPrivate::get(image));
    shown->setImage(result);
}
