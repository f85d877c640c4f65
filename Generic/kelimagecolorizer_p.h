// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QImage>
#include <QtGui/QRgb>

//! Recolouring of pictures, apart from any item.
namespace KelColorizing {

/*!
    The picture with the colour of its coloured pixels replaced; their alpha, and pixels whose red, green
    and blue are all 0, stay. The alpha of the colour is ignored. The result is in Format_ARGB32.
*/
QImage withSourceAlpha(const QImage &picture, QRgb color);

/*!
    The picture in one colour, each pixel's alpha multiplied by that of the colour. lastAlpha is the alpha by
    which the picture was multiplied before, to be undone first; 0 and 255 (and beyond) mean none.
    A fully transparent colour leaves pixels alone whose red, green and blue are all 0.
    The result is in Format_ARGB32.
*/
QImage withDestinationAlpha(const QImage &picture, QRgb color, int lastAlpha);

} // namespace KelColorizing
