// SPDX-License-Identifier: MIT
#include <QtGui/QPainter>

#include <cstring>

#include "kelimagecolorizer_p.h"
#include "measure.h"

using namespace Qt::StringLiterals;

namespace {

//! A soft-edged disc, as icons are, in the format in which Qt Quick keeps pictures.
QImage icon(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QRadialGradient gradient(image.rect().center(), size.height() / 2.0);
    gradient.setColorAt(0, Qt::white);
    gradient.setColorAt(1, Qt::transparent);
    painter.fillRect(image.rect(), gradient);
    return image;
}

void measureSize(Table &table, const QSize &size)
{
    const QString place = u"%1x%2"_s.arg(size.width()).arg(size.height());
    const QImage premultiplied = icon(size);
    const QImage straight = premultiplied.convertToFormat(QImage::Format_ARGB32);
    const QRgb color = qRgba(40, 160, 220, 128);

    const auto fill = [&] {
        QImage image = premultiplied;
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), QColor::fromRgba(color));
    };
    const auto copy = [&] {
        QImage image(size, QImage::Format_ARGB32);
        std::memcpy(image.bits(), premultiplied.constBits(), size_t(premultiplied.sizeInBytes()));
    };
    const auto measure = [&](const QString &method, const Work &work) {
        QString name = u"colorizer %1, %2, against SourceIn fill"_s.arg(place, method);
        if (table.wants(name))
            table.add(timed(name, 0.6, work, fill));
        name = u"colorizer %1, %2, against memcpy"_s.arg(place, method);
        if (table.wants(name))
            table.add(timed(name, 6, work, copy));
    };
    measure(u"SourceAlpha"_s, [&] { KelColorizing::withSourceAlpha(premultiplied, color); });
    measure(u"DestinationAlpha"_s, [&] { KelColorizing::withDestinationAlpha(premultiplied, color, 255); });
    measure(u"DestinationAlpha again"_s, [&] { KelColorizing::withDestinationAlpha(straight, color, 128); });
}

} // namespace

void measureColorizer(Table &table)
{
    measureSize(table, {512, 512});
    measureSize(table, {1920, 1080});
}
