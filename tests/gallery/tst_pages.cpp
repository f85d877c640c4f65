// SPDX-License-Identifier: MIT
#include <QtQml/QQmlListReference>
#include <QtQuick/QQuickItem>
#include <QtTest/QTest>

#include <random>

#include "../../gallery/animationclock.h"
#include "galleryengine.h"
#include "language.h"

using namespace Qt::StringLiterals;

//! Walks over every page of the gallery with the remote: no stop is out of reach, and focus is never lost.
class tst_pages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyStopIsReached_data();
    void everyStopIsReached();
    void heldArrowScrolls_data();
    void heldArrowScrolls();

private:
    void load(const QString &language);
    void open(int index, int view = 0);
    void press(Qt::Key key);
    void activate();
    void checkFocus();
    QQuickItem *page() const { return m_window->property("currentPage").value<QQuickItem *>(); }
    QQuickItem *focused() const { return page()->property("focusedStop").value<QQuickItem *>(); }
    QQuickItem *keyTarget() const { return page()->property("keyTarget").value<QQuickItem *>(); }
    bool isInTabs() const { return m_window->property("isInTabs").toBool(); }
    bool isInMenu() const { return m_window->property("isInMenu").toBool(); }
    QList<QQuickItem *> stops() const;

    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
    QQuickItem *m_keyReceiver = nullptr;
};

void tst_pages::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
}

void tst_pages::cleanup()
{
    endGallery(m_engine);
}

void tst_pages::load(const QString &language)
{
    m_engine = loadGallery({{u"language"_s, language}});
    m_window = windowOf(*m_engine);
    QVERIFY(m_window);
}

void tst_pages::open(int index, int view)
{
    QMetaObject::invokeMethod(m_window, "openView", index, view);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    m_keyReceiver = m_window->activeFocusItem();
    QVERIFY(m_keyReceiver);
    checkFocus();
    QVERIFY(isInMenu());
}

void tst_pages::press(Qt::Key key)
{
    QTest::keyClick(m_window, key);
    checkFocus();
}

//! OK, and out again of what it may have opened.
void tst_pages::activate()
{
    press(Qt::Key_Return);
    if (!keyTarget())
        return;
    press(Qt::Key_Back);
    QVERIFY(!keyTarget());
}

//! Either the menu has focus, or the tabs above a page, or a stop that can be seen and used.
void tst_pages::checkFocus()
{
    QCOMPARE(m_window->activeFocusItem(), m_keyReceiver);
    QVERIFY(page());
    QCOMPARE(isInMenu() || isInTabs(), focused() == nullptr);
    QVERIFY(!isInMenu() || !isInTabs());
    if (!focused())
        return;
    QVERIFY(stops().contains(focused()));
    QVERIFY(focused()->isVisible());
    QVERIFY(focused()->isEnabled());
}

QList<QQuickItem *> tst_pages::stops() const
{
    const QQmlListReference list(page(), "stops");
    QList<QQuickItem *> result;
    for (qsizetype i = 0; i < list.count(); ++i)
        result += qobject_cast<QQuickItem *>(list.at(i));
    return result;
}

void tst_pages::everyStopIsReached_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("view");
    load(Language::codes().constFirst());
    QStringList names;
    QMetaObject::invokeMethod(m_window, "pageNames", qReturnArg(names));
    QVERIFY(!names.isEmpty());
    const QStringList languages = Language::codes();
    for (int index = 0; index < names.size(); ++index) {
        int views = 0;
        QMetaObject::invokeMethod(m_window, "viewCount", qReturnArg(views), index);
        for (int view = 0; view < views; ++view) {
            open(index, view);
            // Home moves its focus itself; it has a test of its own.
            if (page()->property("isFullScreen").toBool())
                continue;
            for (const QString &language : languages)
                QTest::addRow("%s %s %d", qPrintable(language), qPrintable(names.at(index)), view)
                    << language << index << view;
        }
    }
    endGallery(m_engine);
}

void tst_pages::everyStopIsReached()
{
    QFETCH(const QString, language);
    QFETCH(const int, index);
    QFETCH(const int, view);
    load(language);
    open(index, view);
    int listing = -1;
    QMetaObject::invokeMethod(m_window, "pageIndex", qReturnArg(listing), u"Controls"_s);

    // Aimless, so that no page has to be known here, yet the same each time; on the whole away from the menu.
    constexpr int patience = 1000;
    constexpr std::array arrows{
        Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up, Qt::Key_Left};
    std::minstd_rand random;
    QSet<QQuickItem *> visited;
    for (int i = 0; i < patience && visited.size() < stops().size(); ++i) {
        QQuickItem *before = focused();
        const Qt::Key back = isInTabs() ? Qt::Key_Down : Qt::Key_Right;
        press(before ? arrows.at(random() % arrows.size()) : back);
        if (QTest::currentTestFailed())
            return;
        QVERIFY(before || focused());
        if (!focused() || focused() == before)
            continue;
        visited += focused();
        // Each of its stops opens another page.
        if (index == listing)
            continue;
        activate();
        if (QTest::currentTestFailed())
            return;
    }
    const QList<QQuickItem *> all = stops();
    QVERIFY(!all.isEmpty());
    for (QQuickItem *stop : all) {
        if (stop->isVisible() && stop->isEnabled())
            QVERIFY2(visited.contains(stop), qPrintable(QDebug::toString(stop)));
    }

    if (keyTarget())
        press(Qt::Key_Back);
    if (!focused())
        press(isInTabs() ? Qt::Key_Down : Qt::Key_Right);
    press(Qt::Key_Back);
    QVERIFY(isInMenu());
    press(Qt::Key_Return);
    QVERIFY(!isInMenu());
}

void tst_pages::heldArrowScrolls_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("stopsToTheRight");
    QTest::addColumn<Qt::Key>("arrow");
    QTest::addColumn<QByteArray>("position");
    QTest::addColumn<int>("presses");
    QTest::addColumn<int>("expectedIndex");
    QTest::newRow("list") << u"ScrolledListView"_s << 0 << Qt::Key_Down << "contentY"_ba << 13 << 13;
    QTest::newRow("carousel") << u"ScrolledListView"_s << 1 << Qt::Key_Right << "contentX"_ba << 7 << 7;
    QTest::newRow("grid") << u"ScrolledGridView"_s << 0 << Qt::Key_Down << "contentY"_ba << 20 << 120;
}

//! From frame to frame the content goes on, never back and never by leaps, until the item has come into view.
void tst_pages::heldArrowScrolls()
{
    QFETCH(const QString, name);
    QFETCH(const int, stopsToTheRight);
    QFETCH(const Qt::Key, arrow);
    QFETCH(const QByteArray, position);
    QFETCH(const int, presses);
    QFETCH(const int, expectedIndex);
    load(Language::codes().constFirst());
    int index = -1;
    QMetaObject::invokeMethod(m_window, "pageIndex", qReturnArg(index), name);
    constexpr int states = 1;
    open(index, states);
    AnimationClock clock;
    for (int i = 0; i <= stopsToTheRight; ++i)
        press(Qt::Key_Right);
    QQuickItem *view = focused();
    QVERIFY(view);

    constexpr int frame = 16;
    constexpr int framesPerRepeat = 3;
    constexpr int framesToRest = 100;
    const qreal start = view->property(position).toReal();
    qreal before = start;
    qreal largest = 0;
    const auto passFrames = [&](int count) {
        for (int i = 0; i < count; ++i) {
            clock.step(frame);
            const qreal now = view->property(position).toReal();
            QVERIFY2(now >= before, qPrintable(u"back from %1 to %2"_s.arg(before).arg(now)));
            largest = std::max(largest, now - before);
            before = now;
        }
    };
    for (int i = 0; i < presses; ++i) {
        QKeyEvent event(QEvent::KeyPress, arrow, Qt::NoModifier, QString(), i > 0);
        QCoreApplication::sendEvent(m_window, &event);
        passFrames(framesPerRepeat);
    }
    passFrames(framesToRest);
    QCOMPARE(view->property("currentIndex").toInt(), expectedIndex);
    auto *item = view->property("currentItem").value<QQuickItem *>();
    QVERIFY(item);
    const QRectF seen = view->mapRectFromItem(item, QRectF(0, 0, item->width(), item->height()));
    QVERIFY(QRectF(0, 0, view->width(), view->height()).contains(seen));
    const qreal size = arrow == Qt::Key_Down ? item->height() : item->width();
    QVERIFY(before - start > size);
    QVERIFY2(largest < size * 2 / 3, qPrintable(QString::number(largest)));
}

QTEST_MAIN(tst_pages)

#include "tst_pages.moc"
