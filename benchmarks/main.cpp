// SPDX-License-Identifier: MIT
#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>

#include "measure.h"

//! Prints one table of ratios. An argument chooses the rows whose names contain it.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    Table table(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    measureText(table);
    measureColorizer(table);
    table.print();
    return 0;
}
