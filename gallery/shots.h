// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDir>

class QQuickWindow;

//! Takes the pictures that the pages declare and prints their paths; false, with a message, on a failure.
bool takeShots(QQuickWindow &window, const QDir &folder);
