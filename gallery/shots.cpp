// SPDX-License-Identifier: MIT
#include "shots.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QTextStream>
#include <QtCore/QThread>
#include <QtGui/QImage>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

namespace {

bool isLoading(const QQuickItem &item)
{
    constexpr int loadingStatus = 2; // Image.Loading
    if (item.inherits("QQuickImageBase") && item.property("status").toInt() == loadingStatus)
        return true;
    const QList<QQuickItem *> children = item.childItems();
    return std::any_of(
        children.cbegin(), children.cend(), [](const QQuickItem *child) { return isLoading(*child); });
}

//! Lets everything that was posted happen, and pictures load.
void settle(const QQuickWindow &window)
{
    constexpr int patience = 5000;
    QElapsedTimer timer;
    timer.start();
    do {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        // A page that has just been left is gone only after this.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (!isLoading(*window.contentItem()))
            return;
        QThread::msleep(5);
    } while (timer.elapsed() < patience);
}

bool takeShot(QQuickWindow &window, int page, int shot, const QString &path)
{
    QMetaObject::invokeMethod(&window, "openPage", page);
    settle(window);
    QMetaObject::invokeMethod(&window, "takeShot", shot);
    settle(window);
    // What the first frame changes, such as the size of a text, is in the second.
    window.grabWindow();
    settle(window);
    const QImage picture = window.grabWindow().convertToFormat(QImage::Format_RGB888);
    return !picture.isNull() && picture.save(path);
}

} // namespace

bool takeShots(QQuickWindow &window, const QDir &folder)
{
    QTextStream output(stdout);
    QTextStream errors(stderr);
    if (!folder.mkpath(QStringLiteral("."))) {
        errors << "kelui-gallery: cannot make the folder " << folder.path() << '\n';
        return false;
    }
    QStringList titles;
    QMetaObject::invokeMethod(&window, "pageTitles", qReturnArg(titles));
    for (int page = 0; page < titles.size(); ++page) {
        QMetaObject::invokeMethod(&window, "openPage", page);
        settle(window);
        if (!window.property("currentPage").value<QQuickItem *>()) {
            errors << "kelui-gallery: cannot show the page " << titles.at(page) << '\n';
            return false;
        }
        QStringList names;
        QMetaObject::invokeMethod(&window, "shotNames", qReturnArg(names));
        for (int shot = 0; shot < names.size(); ++shot) {
            const QString path = folder.filePath(names.at(shot) + QStringLiteral(".png"));
            if (!takeShot(window, page, shot, path)) {
                errors << "kelui-gallery: cannot make the picture " << path << '\n';
                return false;
            }
            output << path << '\n';
            output.flush();
        }
    }
    return true;
}
