// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QSysInfo>
#include <QtGui/QImage>

#include <algorithm>
#include <cstdlib>

// Qt scales pictures by different code on different processors; this much, nobody sees.
inline constexpr int tolerance = 2;

//! Why the references do not hold here, empty where they do: they show one rasteriser and one set of fonts.
inline QString whyNotComparable()
{
    const QString made = QStringLiteral("the references are made with Qt 6.8.2 on Debian 13; here is ");
    if (QLatin1String(qVersion()) != QLatin1String("6.8.2"))
        return made + QStringLiteral("Qt ") + QLatin1String(qVersion());
    if (QSysInfo::productType() != QLatin1String("debian")
        || QSysInfo::productVersion() != QLatin1String("13"))
        return made + QSysInfo::prettyProductName();
    return {};
}

//! The largest difference of a channel at a pixel.
inline int distance(QRgb left, QRgb right)
{
    return std::max({std::abs(qRed(left) - qRed(right)), std::abs(qGreen(left) - qGreen(right)),
        std::abs(qBlue(left) - qBlue(right))});
}

//! Marks what differs in red on a faint copy; the number of such pixels is in count.
inline QImage difference(const QImage &actual, const QImage &expected, int &count, int allowed = tolerance)
{
    count = 0;
    QImage result(actual.size().expandedTo(expected.size()), QImage::Format_RGB32);
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x) {
            const bool isCommon = actual.valid(x, y) && expected.valid(x, y);
            if (isCommon && distance(actual.pixel(x, y), expected.pixel(x, y)) <= allowed) {
                const int gray = 160 + qGray(expected.pixel(x, y)) / 3;
                result.setPixel(x, y, qRgb(gray, gray, gray));
            } else {
                ++count;
                result.setPixel(x, y, qRgb(220, 0, 0));
            }
        }
    }
    return result;
}
