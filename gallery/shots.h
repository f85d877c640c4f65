// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDir>

#include <optional>

class QQuickWindow;

/*!
    Takes the pictures that the pages declare, or one page by its number, and prints their paths; false, with
   a message, on a failure.
*/
bool takeShots(QQuickWindow &window, const QDir &folder, std::optional<int> onlyPage);
