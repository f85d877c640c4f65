// SPDX-License-Identifier: MIT
#include "shots.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QTextStream>
#include <QtCore/QThread>
#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlIncubationController>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include "animationclock.h"

namespace {

//! In steps that no timer is shorter than.
void pass(AnimationClock &clock, int milliseconds)
{
    constexpr int step = 10;
    for (int passed = 0; passed < milliseconds; passed += step)
        clock.step(step);
}

bool isLoading(const QQuickItem &item)
{
    constexpr int loadingStatus = 2; // Image.Loading
    if (item.inherits("QQuickImageBase") && item.property("status").toInt() == loadingStatus)
        return true;
    const QList<QQuickItem *> children = item.childItems();
    return std::any_of(
        children.cbegin(), children.cend(), [](const QQuickItem *child) { return isLoading(*child); });
}

bool isBusy(const QQuickWindow &window)
{
    const auto *page = window.property("currentPage").value<QQuickItem *>();
    if (page && page->property("isBusy").toBool())
        return true;
    // A view still makes items; an engine must not end before it has.
    const QQmlIncubationController *controller = qmlEngine(&window)->incubationController();
    return controller && controller->incubatingObjectCount() > 0;
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
        if (isBusy(window))
            continue;
        if (!isLoading(*window.contentItem()))
            return;
        QThread::msleep(5);
    } while (timer.elapsed() < patience);
}

bool takeShot(QQuickWindow &window, AnimationClock &clock, int page, int view, int shot, const QString &path)
{
    QMetaObject::invokeMethod(&window, "openView", page, view);
    settle(window);
    QString digits;
    QMetaObject::invokeMethod(&window, "takeShot", qReturnArg(digits), shot);
    for (const QChar digit : std::as_const(digits)) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_0 + digit.digitValue(), Qt::NoModifier, digit);
        QCoreApplication::sendEvent(&window, &press);
    }
    settle(window);
    int time = 0;
    QMetaObject::invokeMethod(&window, "shotTime", qReturnArg(time), shot);
    if (time > 0) {
        // Views lay out their items with a frame, and move on from there.
        window.grabWindow();
        pass(clock, time);
        settle(window);
    }
    // What the first frame changes, such as the size of a text, is in the second.
    window.grabWindow();
    settle(window);
    const QImage picture = window.grabWindow().convertToFormat(QImage::Format_RGB888);
    return !picture.isNull() && picture.save(path);
}

} // namespace

bool takeShots(QQuickWindow &window, const QDir &folder, std::optional<int> onlyPage)
{
    QTextStream output(stdout);
    QTextStream errors(stderr);
    if (!folder.mkpath(QStringLiteral("."))) {
        errors << "kelui-gallery: cannot make the folder " << folder.path() << '\n';
        return false;
    }
    // No picture depends on when it was taken.
    AnimationClock clock;
    // No window system gives focus to a window that is not shown.
    window.contentItem()->setFocus(true);
    QStringList pages;
    QMetaObject::invokeMethod(&window, "pageNames", qReturnArg(pages));
    for (int page = 0; page < pages.size(); ++page) {
        if (onlyPage && page != *onlyPage)
            continue;
        int views = 0;
        QMetaObject::invokeMethod(&window, "viewCount", qReturnArg(views), page);
        for (int view = 0; view < views; ++view) {
            QMetaObject::invokeMethod(&window, "openView", page, view);
            settle(window);
            if (!window.property("currentPage").value<QQuickItem *>()) {
                errors << "kelui-gallery: cannot show the page " << pages.at(page) << '\n';
                return false;
            }
            QStringList names;
            QMetaObject::invokeMethod(&window, "shotNames", qReturnArg(names));
            for (int shot = 0; shot < names.size(); ++shot) {
                const QString path = folder.filePath(names.at(shot) + QStringLiteral(".png"));
                if (!takeShot(window, clock, page, view, shot, path)) {
                    errors << "kelui-gallery: cannot make the picture " << path << '\n';
                    return false;
                }
                output << path << '\n';
                output.flush();
            }
        }
    }
    return true;
}
