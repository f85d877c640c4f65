// SPDX-License-Identifier: MIT
#pragma once

#include <QtQuick/QQuickPaintedItem>
#include <QtQuick/QQuickWindow>

#include <algorithm>

//! The picture that a painted item keeps of itself.
namespace KelPicture {

/*!
    Whether there can be one: with sides of a pixel or more, not longer than painters reach, and no larger
    than an 8K screen. An item of another size stays empty and takes no memory.
*/
inline bool canKeep(const QQuickPaintedItem &item)
{
    constexpr qreal longest = (1 << 15) - 1;
    constexpr qreal largest = 1 << 25;
    const QSizeF size =
        item.textureSize().isEmpty() ? item.contentsBoundingRect().size() : QSizeF(item.textureSize());
    const qreal ratio = item.window()->effectiveDevicePixelRatio();
    const qreal width = size.width() * ratio;
    const qreal height = size.height() * ratio;
    // Half a pixel is rounded up. Written so that NaN fails the test.
    return std::min({width, height, item.width(), item.height()}) >= 0.5 && std::max(width, height) <= longest
        && width * height <= largest;
}

} // namespace KelPicture
