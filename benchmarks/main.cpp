// SPDX-License-Identifier: MIT
#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>

#include "measure.h"

//! Prints one table of ratios. An argument chooses the rows whose names contain it.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // For the peer of the keyboard; it waits for a focused field, which no other row has.
    qputenv("QT_IM_MODULE", "qtvirtualkeyboard");
    qunsetenv("QT_IM_MODULES");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    Table table(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    measureText(table);
    measureColorizer(table);
    measureKeyboard(table);
    measureControls(table);
    measureViews(table);
    measureIndicators(table);
    measureLargeText(table);
#ifdef KELUI_HAS_GALLERY
    measureHome(table);
#endif
    table.print();
    return 0;
}
