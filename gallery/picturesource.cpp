// SPDX-License-Identifier: MIT
#include "picturesource.h"

#include <QtCore/QUrlQuery>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickImageProvider>

using namespace Qt::StringLiterals;

namespace {

const auto provider = "pictures"_L1;

QSize measure(QSize picture, const QUrlQuery &query)
{
    const int width = query.queryItemValue(u"width"_s).toInt();
    const int height = query.queryItemValue(u"height"_s).toInt();
    if (width <= 0 && height <= 0)
        return picture;
    if (width > 0 && height > 0 && query.queryItemValue(u"keep_ratio"_s) != "true"_L1)
        return {width, height};
    // A side that is not told follows from the other.
    constexpr int unlimited = 1 << 12;
    return picture.scaled(
        width > 0 ? width : unlimited, height > 0 ? height : unlimited, Qt::KeepAspectRatio);
}

void drawFrame(QImage &picture)
{
    constexpr int width = 6;
    QPainter painter(&picture);
    painter.setPen(QPen(QColor(0xf3, 0xf6, 0xfb), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(picture.rect().adjusted(width / 2, width / 2, -width / 2, -width / 2));
}

class Provider : public QQuickImageProvider
{
public:
    Provider()
        : QQuickImageProvider(Image)
    {
    }

    QImage requestImage(const QString &id, QSize *size, const QSize & /*requestedSize*/) override
    {
        const QUrlQuery query(id.section(u'?', 1));
        QString name = id.section(u'?', 0, 0);
        if (!name.contains(u'/'))
            name.prepend("pictures/"_L1);
        QImageReader reader(u":/qt/qml/Kelui/Gallery/assets/%1.svg"_s.arg(name));
        reader.setScaledSize(measure(reader.size(), query));
        QImage picture = reader.read();
        if (query.queryItemValue(u"borderless"_s) != "true"_L1)
            drawFrame(picture);
        *size = picture.size();
        return picture;
    }
};

} // namespace

PictureSource::PictureSource(QQmlEngine *engine)
{
    engine->addImageProvider(provider, new Provider);
}

PictureSource *PictureSource::create(QQmlEngine *engine, QJSEngine * /*scriptEngine*/)
{
    return new PictureSource(engine);
}

QUrl PictureSource::address(const QString &name)
{
    return u"image://%1/%2"_s.arg(provider, name);
}
