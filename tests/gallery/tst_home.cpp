// SPDX-License-Identifier: MIT
#include <QtCore/QMetaEnum>
#include <QtCore/QRandomGenerator>
#include <QtGui/QFont>
#include <QtGui/QKeyEvent>
#include <QtQuick/QQuickItem>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include "../../gallery/animationclock.h"
#include "galleryengine.h"
#include "language.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int filmCount = 1000;

// A television may cut off a twentieth of the picture at each edge.
constexpr int sideMargin = 64;
constexpr int topMargin = 36;
constexpr int frame = 8;

bool isFocused(const QQuickItem &item)
{
    return item.property("focused").toBool();
}

//! Calls a function with an item and all below it, until the function does not want what is below.
template <typename Function>
void visit(QQuickItem &item, const Function &function)
{
    if (!function(item))
        return;
    const QList<QQuickItem *> children = item.childItems();
    for (QQuickItem *child : children)
        visit(*child, function);
}

//! The list or grid that an item is a delegate of.
const QQuickItem *viewOf(const QQuickItem &item)
{
    const QQuickItem *content = item.parentItem();
    const QQuickItem *view = content ? content->parentItem() : nullptr;
    return view && view->inherits("QQuickItemView") ? view : nullptr;
}

} // namespace

//! The home screen as a viewer uses it: every step is a press of a key of the remote.
class tst_home : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void takesTheWindow();
    void rowsKeepTheirPlaces();
    void rowsEnd();
    void menuOpensSections_data();
    void menuOpensSections();
    void menuForgetsWhatWasNotOpened();
    void tabsSwitchShelves();
    void gridReachesItsEnd();
    void filmIsChosenAndKept();
    void waitIsCalledOff();
    void storyIsRead_data();
    void storyIsRead();
    void filmsContinue();
    void placesAreNumbered();
    void picturesAreSharp_data();
    void picturesAreSharp();
    void restsWhereNothingMoves_data();
    void restsWhereNothingMoves();
    void speedChanges_data();
    void speedChanges();
    void filmEnds();
    void settingsChangeTheScreen();
    void languageChanges();
    void backLeadsHome();
    void otherKeysOfRemotes();
    void walksAtRandom_data();
    void walksAtRandom();

private:
    void press(int key, int times = 1);
    void ok() { press(Qt::Key_Return); }
    void back() { press(Qt::Key_Back); }
    void pass(int milliseconds);
    void settle();
    void openSection(int section);
    QQuickItem *page() const { return m_window->property("currentPage").value<QQuickItem *>(); }
    QQuickItem *focused() const { return page()->property("focusedItem").value<QQuickItem *>(); }
    QQuickItem *zone() const { return page()->property("currentZone").value<QQuickItem *>(); }
    QString zoneName() const;
    int film() const { return focused() ? focused()->property("modelData").toInt() : -1; }
    QString text() const { return focused()->property("text").toString(); }
    bool isInGallery() const { return m_window->property("isInMenu").toBool(); }
    QObject *theme(const char *name) const;
    QString whatIsWrong() const;

    std::unique_ptr<AnimationClock> m_clock;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
};

void tst_home::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_clock = std::make_unique<AnimationClock>();
    m_engine = loadGallery();
    m_window = windowOf(*m_engine);
    QVERIFY(m_window);
    int index = -1;
    QMetaObject::invokeMethod(m_window, "pageIndex", qReturnArg(index), u"Home"_s);
    QMetaObject::invokeMethod(m_window, "openPage", index);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    ok();
    QVERIFY(focused());
}

void tst_home::cleanup()
{
    endGallery(m_engine);
    m_clock.reset();
}

//! As a viewer presses who looks at the screen: what moves comes to rest before the next press.
void tst_home::press(int key, int times)
{
    for (int i = 0; i < times; ++i) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &event);
        settle();
        const QString wrong = whatIsWrong();
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }
}

void tst_home::pass(int milliseconds)
{
    m_clock->step(milliseconds);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Views arrange their items when they are polished, which a frame would do.
    visit(*m_window->contentItem(), [](QQuickItem &item) {
        if (item.inherits("QQuickItemView"))
            item.ensurePolished();
        return item.isVisible();
    });
}

//! Lets the longest animation end, and what the first one starts.
void tst_home::settle()
{
    pass(0);
    pass(210);
    pass(0);
}

//! Opens a section of the main menu by its number, from anywhere but a film.
void tst_home::openSection(int section)
{
    for (int i = 0; i < 3 && zoneName() != u"MenuZone"; ++i)
        back();
    press(Qt::Key_Left, 5);
    press(Qt::Key_Right, section);
    ok();
}

QString tst_home::zoneName() const
{
    return zone() ? QString::fromLatin1(zone()->metaObject()->className()).section(u"_QML"_s, 0, 0)
                  : QString();
}

QObject *tst_home::theme(const char *name) const
{
    return m_engine->singletonInstance<QObject *>("Kelui.Gallery", name);
}

//! What breaks the rule that always one item is in focus, and can be seen to be; empty where all is well.
QString tst_home::whatIsWrong() const
{
    QList<const QQuickItem *> found;
    visit(*m_window->contentItem(), [&](QQuickItem &item) {
        // What is inside a focused item, such as its frame, belongs to it.
        if (isFocused(item))
            found += &item;
        return !isFocused(item);
    });
    if (found.size() != 1)
        return u"%1 items are in focus"_s.arg(found.size());
    const QQuickItem *item = found.constFirst();
    if (!isInGallery() && item != focused())
        return u"the page takes another item for the one in focus"_s;
    if (!item->isVisible())
        return u"the item in focus is not visible"_s;
    const QRectF area = item->mapRectToScene(item->boundingRect());
    QRectF safe(QPointF(), QSizeF(m_window->size()));
    // The frame around a picture reaches beyond what all televisions show.
    if (!isInGallery())
        safe.adjust(sideMargin - frame, topMargin - frame, frame - sideMargin, frame - topMargin);
    if (area.isEmpty() || !safe.contains(area)) {
        return u"the item in focus is where a television may not show it, at %1, %2 in %3 x %4"_s
            .arg(area.x())
            .arg(area.y())
            .arg(area.width())
            .arg(area.height());
    }
    if (const QQuickItem *view = viewOf(*item)) {
        if (item->state() != u"focused")
            return u"the state of the delegate in focus is '%1'"_s.arg(item->state());
        if (view->property("currentItem").value<QQuickItem *>() != item)
            return u"the delegate in focus is not the current one"_s;
        const auto *shelf = zone()->property("shelf").value<QObject *>();
        const QVariant chosen = shelf ? shelf->property("currentFilm") : zone()->property("currentIndex");
        if (item->property("modelData") != chosen)
            return u"OK would choose another film than the one in focus"_s;
    }
    return {};
}

void tst_home::takesTheWindow()
{
    QCOMPARE(page()->mapRectToScene(page()->boundingRect()), QRectF(QPointF(), QSizeF(m_window->size())));
    QCOMPARE(zoneName(), u"RowsZone"_s);
    back();
    back();
    QVERIFY(isInGallery());
    QCOMPARE(focused(), nullptr);
    QVERIFY(page()->mapRectToScene(page()->boundingRect()).left() > m_window->width() / 4.0);
    press(Qt::Key_Right);
    QVERIFY(!isInGallery());
    QCOMPARE(page()->mapRectToScene(page()->boundingRect()).topLeft(), QPointF());
}

void tst_home::rowsKeepTheirPlaces()
{
    QList<int> films;
    QList<int> indexes;
    constexpr int rows = 6;
    // So far apart that rows go and come again on the way.
    for (int row = 0; row < rows; ++row) {
        press(Qt::Key_Right, row % 2 == 0 ? 20 : row + 1);
        films += film();
        indexes += focused()->property("index").toInt();
        QVERIFY(row % 2 == 0 ? indexes.constLast() > 5 : indexes.constLast() == row + 1);
        if (row < rows - 1)
            press(Qt::Key_Down);
    }
    for (int row = rows - 1; row >= 0; --row) {
        QCOMPARE(film(), films.at(row));
        QCOMPARE(focused()->property("index").toInt(), indexes.at(row));
        press(Qt::Key_Up);
    }
    QCOMPARE(zoneName(), u"MenuZone"_s);
    press(Qt::Key_Down);
    QCOMPARE(film(), films.constFirst());
    // And when the section is made again.
    press(Qt::Key_Down, 2);
    openSection(2);
    openSection(0);
    QCOMPARE(film(), films.at(2));
}

void tst_home::rowsEnd()
{
    const QQuickItem *first = focused();
    press(Qt::Key_Left);
    QCOMPARE(focused(), first);
    press(Qt::Key_Right, 30);
    QCOMPARE(focused()->property("index").toInt(), 11);
    press(Qt::Key_Down, 20);
    const QQuickItem *last = focused();
    QCOMPARE(last->property("index").toInt(), 0);
    press(Qt::Key_Down);
    QCOMPARE(focused(), last);
}

void tst_home::menuOpensSections_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<QString>("zoneName");
    QTest::newRow("home") << 0 << u"RowsZone"_s;
    QTest::newRow("films") << 1 << u"TabsZone"_s;
    QTest::newRow("grid") << 2 << u"GridZone"_s;
    QTest::newRow("settings") << 3 << u"SettingsZone"_s;
}

void tst_home::menuOpensSections()
{
    QFETCH(const int, section);
    QFETCH(const QString, zoneName);
    openSection(section);
    QCOMPARE(this->zoneName(), zoneName);
    press(Qt::Key_Up);
    QCOMPARE(this->zoneName(), u"MenuZone"_s);
    QVERIFY(focused()->property("checked").toBool());
    press(Qt::Key_Down);
    QCOMPARE(this->zoneName(), zoneName);
}

void tst_home::menuForgetsWhatWasNotOpened()
{
    press(Qt::Key_Up);
    const QQuickItem *home = focused();
    press(Qt::Key_Right, 2);
    QVERIFY(focused() != home);
    press(Qt::Key_Down);
    QCOMPARE(zoneName(), u"RowsZone"_s);
    press(Qt::Key_Up);
    QCOMPARE(focused(), home);
}

void tst_home::tabsSwitchShelves()
{
    openSection(1);
    const QQuickItem *popular = focused();
    QVERIFY(popular->property("checked").toBool());
    press(Qt::Key_Down);
    press(Qt::Key_Right, 2);
    const int remembered = film();
    press(Qt::Key_Up);
    QCOMPARE(focused(), popular);
    press(Qt::Key_Right);
    QVERIFY(!focused()->property("checked").toBool());
    ok();
    QVERIFY(focused()->property("checked").toBool());
    QVERIFY(!popular->property("checked").toBool());
    press(Qt::Key_Down);
    QCOMPARE(film(), 1);
    back();
    press(Qt::Key_Left);
    ok();
    press(Qt::Key_Down);
    QCOMPARE(film(), remembered);
}

void tst_home::gridReachesItsEnd()
{
    openSection(2);
    QCOMPARE(film(), 0);
    press(Qt::Key_Down, 250);
    QCOMPARE(film(), filmCount - 5);
    press(Qt::Key_Right, 9);
    QCOMPARE(film(), filmCount - 1);
    back();
    press(Qt::Key_Down);
    QCOMPARE(film(), filmCount - 1);
    press(Qt::Key_Left, 9);
    QCOMPARE(film(), filmCount - 5);
    ok();
    QCOMPARE(zoneName(), u"BusyZone"_s);
    back();
    QCOMPARE(film(), filmCount - 5);
    press(Qt::Key_Up, 199);
    QCOMPARE(film(), 0);
    press(Qt::Key_Up);
    QCOMPARE(zoneName(), u"MenuZone"_s);
}

void tst_home::filmIsChosenAndKept()
{
    press(Qt::Key_Down);
    press(Qt::Key_Right, 3);
    const int chosen = film();
    ok();
    QCOMPARE(zoneName(), u"BusyZone"_s);
    QCOMPARE(text(), u"Cancel"_s);
    pass(2000);
    QCOMPARE(zoneName(), u"DetailsZone"_s);
    QCOMPARE(text(), u"Continue"_s);
    press(Qt::Key_Right, 5);
    QCOMPARE(text(), u"To my list"_s);
    ok();
    QCOMPARE(text(), u"In my list"_s);
    back();
    QCOMPARE(film(), chosen);
    press(Qt::Key_Right);
    ok();
    pass(2000);
    press(Qt::Key_Right, 2);
    QCOMPARE(text(), u"To my list"_s);
    back();
    press(Qt::Key_Left);
    ok();
    pass(2000);
    press(Qt::Key_Right, 2);
    QCOMPARE(text(), u"In my list"_s);
    ok();
    QCOMPARE(text(), u"To my list"_s);
}

void tst_home::waitIsCalledOff()
{
    const int chosen = film();
    ok();
    QCOMPARE(zoneName(), u"BusyZone"_s);
    ok();
    QCOMPARE(film(), chosen);
    pass(2000);
    QCOMPARE(zoneName(), u"RowsZone"_s);
    // A wait begins anew.
    ok();
    QCOMPARE(zoneName(), u"BusyZone"_s);
    pass(2000);
    QCOMPARE(zoneName(), u"DetailsZone"_s);
}

void tst_home::storyIsRead_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("isTextLarge");
    const QStringList codes = Language::codes();
    for (const QString &code : codes) {
        QTest::addRow("%s", qPrintable(code)) << code << false;
        QTest::addRow("%s, large", qPrintable(code)) << code << true;
    }
}

void tst_home::storyIsRead()
{
    QFETCH(const QString, language);
    QFETCH(const bool, isTextLarge);
    m_engine->singletonInstance<Language *>("Kelui.Gallery", "Language")->setCode(language);
    theme("HomeTheme")->setProperty("isTextLarge", isTextLarge);
    ok();
    pass(2000);
    const QQuickItem *watch = focused();
    press(Qt::Key_Down);
    const QQuickItem *story = focused();
    QVERIFY(story != watch);
    QQuickItem *view = nullptr;
    QQuickItem *bar = nullptr;
    visit(*focused(), [&](QQuickItem &item) {
        if (item.inherits("KelLargeText"))
            view = &item;
        if (item.inherits("KelScrollBar"))
            bar = &item;
        return true;
    });
    QVERIFY(view && bar);
    const QString text = view->property("text").toString();
    // Its lines are wrapped one by one.
    for (qsizetype i = text.count(u'\n'); i >= 0; --i)
        settle();
    const int line = story->property("lineHeight").toInt();
    const int end = view->property("scrollMaximum").toInt();
    QVERIFY(end > 0);
    QCOMPARE(end % line, 0);
    QCOMPARE(int(view->height()) % line, 0);
    int offset = 0;
    for (int presses = 0; offset < end && presses < 100; ++presses) {
        press(Qt::Key_Down);
        QVERIFY(view->property("offset").toInt() > offset);
        offset = view->property("offset").toInt();
        QCOMPARE(offset % line, 0);
    }
    QCOMPARE(offset, end);
    QCOMPARE(bar->property("sliderPosition"), bar->property("maximum"));
    // What is of no use here changes nothing.
    for (const int key : {Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Return}) {
        press(key);
        QCOMPARE(focused(), story);
        QCOMPARE(view->property("offset").toInt(), end);
    }
    while (view->property("offset").toInt() > 0) {
        press(Qt::Key_Up);
        QCOMPARE(focused(), story);
    }
    press(Qt::Key_Up);
    QCOMPARE(focused(), watch);
    // The next time it is read from the beginning.
    press(Qt::Key_Down, 3);
    back();
    QCOMPARE(zoneName(), u"RowsZone"_s);
    ok();
    pass(2000);
    QCOMPARE(focused(), watch);
    QCOMPARE(view->property("offset").toInt(), 0);
    QCOMPARE(bar->property("sliderPosition").toInt(), 0);
}

void tst_home::filmsContinue()
{
    const auto progress = [this](int film) {
        double result = -1;
        QMetaObject::invokeMethod(theme("FilmCatalogue"), "progress", qReturnArg(result), film);
        return result;
    };
    const auto share = [this] {
        return zone()->property("position").toReal() / zone()->property("duration").toInt();
    };
    press(Qt::Key_Down);
    const int first = film();
    QVERIFY(progress(first) > 0);
    ok();
    pass(2000);
    ok();
    QCOMPARE(share(), progress(first));
    zone()->setProperty("position", zone()->property("duration").toReal() / 4);
    back();
    QCOMPARE(progress(first), 0.25);
    back();
    press(Qt::Key_Right);
    QVERIFY(film() != first);
    ok();
    pass(2000);
    ok();
    QCOMPARE(share(), progress(zone()->property("film").toInt()));
    // To its end, and then there is nothing left of it to see.
    const int second = zone()->property("film").toInt();
    zone()->setProperty("position", zone()->property("duration"));
    pass(500);
    back();
    QCOMPARE(progress(second), 0);
    QCOMPARE(text(), u"Watch"_s);
    back();
    press(Qt::Key_Left);
    ok();
    pass(2000);
    QCOMPARE(text(), u"Continue"_s);
    ok();
    QCOMPARE(share(), 0.25);
}

void tst_home::placesAreNumbered()
{
    constexpr int places = 10;
    press(Qt::Key_Down, 2);
    for (int place = 1; place <= places; ++place) {
        int number = -1;
        visit(*focused(), [&](QQuickItem &item) {
            if (item.inherits("KelTopNumber"))
                number = item.property("number").toInt();
            return true;
        });
        QCOMPARE(number, place);
        press(Qt::Key_Right);
    }
}

void tst_home::picturesAreSharp_data()
{
    QTest::addColumn<QSize>("size");
    for (const int height : {720, 1080, 2160})
        QTest::addRow("%d", height) << QSize(height * 16 / 9, height);
}

//! No picture is scaled: what is decoded has as many pixels as are shown of it.
void tst_home::picturesAreSharp()
{
    QFETCH(const QSize, size);
    m_window->resize(size);
    QTRY_COMPARE(theme("HomeTheme")->property("pixelRatio").toReal(), size.height() / 720.0);
    settle();
    const auto check = [this] {
        int pictures = 0;
        visit(*m_window->contentItem(), [&](QQuickItem &item) {
            const QString source = item.property("source").toString();
            if (!item.isVisible() || !item.inherits("QQuickImage") || !source.startsWith(u"image://"_s))
                return item.isVisible();
            const qreal shown = item.mapRectToScene(item.boundingRect()).height();
            if (qAbs(shown - item.implicitHeight()) > 0.01) {
                qInfo("%s is %g high, and shown %g high", qPrintable(source), item.implicitHeight(), shown);
                pictures = std::numeric_limits<int>::min();
            }
            ++pictures;
            return true;
        });
        return pictures;
    };
    QVERIFY(check() > 10);
    press(Qt::Key_Down, 2);
    QVERIFY(check() > 10);
    ok();
    pass(2000);
    QVERIFY(check() > 2);
    openSection(2);
    QVERIFY(check() > 15);
    openSection(3);
    QVERIFY(check() > 5);
}

void tst_home::restsWhereNothingMoves_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<bool>("isMoving");
    const int down = Qt::Key_Down;
    const int chosen = Qt::Key_Return;
    QTest::newRow("rows") << 0 << QList<int>{down, down} << false;
    QTest::newRow("tabs") << 1 << QList<int>{} << false;
    QTest::newRow("grid") << 2 << QList<int>{down, down, down} << false;
    QTest::newRow("settings") << 3 << QList<int>{} << false;
    QTest::newRow("wait") << 0 << QList<int>{chosen} << true;
    QTest::newRow("details") << 0 << QList<int>{chosen, 0} << false;
    QTest::newRow("story") << 0 << QList<int>{chosen, 0, down, down} << false;
    QTest::newRow("player") << 0 << QList<int>{chosen, 0, chosen} << true;
    QTest::newRow("pause") << 0 << QList<int>{chosen, 0, chosen, chosen} << false;
}

//! A frame is drawn for what changes, and for nothing else. Between the keys, 0 is the wait for a film.
void tst_home::restsWhereNothingMoves()
{
    QFETCH(const int, section);
    QFETCH(const QList<int>, keys);
    QFETCH(const bool, isMoving);
    openSection(section);
    for (const int key : keys) {
        if (key == 0)
            pass(2000);
        else
            press(key);
    }
    QSignalSpy frames(m_window, &QQuickWindow::afterRendering);
    const auto framesDrawn = [&](int times) {
        frames.clear();
        for (int i = 0; i < times; ++i) {
            pass(50);
            QTest::qWait(5);
        }
        return int(frames.count());
    };
    if (!isMoving)
        QTRY_COMPARE(framesDrawn(4), 0);
    QCOMPARE(framesDrawn(20) > 0, isMoving);
}

void tst_home::speedChanges_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("speed");
    QTest::addColumn<bool>("isPaused");
    const int left = Qt::Key_Left;
    const int right = Qt::Key_Right;
    QTest::newRow("plays") << QList<int>{} << 1 << false;
    QTest::newRow("right") << QList<int>{right} << 2 << false;
    QTest::newRow("right on") << QList<int>{right, right, right} << 8 << false;
    QTest::newRow("right to the end") << QList<int>(9, right) << 32 << false;
    QTest::newRow("left") << QList<int>{left} << -2 << false;
    QTest::newRow("left to the end") << QList<int>(9, left) << -32 << false;
    QTest::newRow("to and fro") << QList<int>{right, right, left, left, left, left} << -4 << false;
    QTest::newRow("keys of the tape") << QList<int>{Qt::Key_AudioForward, Qt::Key_AudioForward} << 4 << false;
    QTest::newRow("tape back") << QList<int>{Qt::Key_AudioRewind} << -2 << false;
    QTest::newRow("play") << QList<int>{right, right, Qt::Key_MediaPlay} << 1 << false;
    QTest::newRow("OK plays on") << QList<int>{right, right, Qt::Key_Return} << 1 << false;
    QTest::newRow("OK pauses") << QList<int>{Qt::Key_Return} << 1 << true;
    QTest::newRow("pauses") << QList<int>{right, Qt::Key_MediaPause} << 1 << true;
    QTest::newRow("plays again") << QList<int>{Qt::Key_Return, Qt::Key_MediaTogglePlayPause} << 1 << false;
    QTest::newRow("forward from a pause") << QList<int>{Qt::Key_Return, right} << 2 << false;
}

void tst_home::speedChanges()
{
    QFETCH(const QList<int>, keys);
    QFETCH(const int, speed);
    QFETCH(const bool, isPaused);
    ok();
    pass(2000);
    ok();
    QCOMPARE(zoneName(), u"PlayerZone"_s);
    zone()->setProperty("position", 3000);
    for (const int key : keys)
        press(key);
    QCOMPARE(zone()->property("speed").toInt(), speed);
    QCOMPARE(zone()->property("isPaused").toBool(), isPaused);
    // The arrows are shown with every speed but that of the film.
    int arrows = 0;
    visit(*zone(), [&](QQuickItem &item) {
        arrows += item.metaObject()->indexOfProperty("currentIcon") >= 0 && item.isVisible() ? 1 : 0;
        return true;
    });
    QCOMPARE(arrows, speed == 1 ? 0 : 1);
    zone()->setProperty("position", 1000);
    pass(500);
    QCOMPARE(zone()->property("position").toReal(), isPaused ? 1000 : 1000 + speed * 0.5);
    back();
    QCOMPARE(zoneName(), u"DetailsZone"_s);
    ok();
    QCOMPARE(zone()->property("speed").toInt(), 1);
    QVERIFY(!zone()->property("isPaused").toBool());
    QVERIFY(zone()->property("position").toReal() > 900);
    back();
    press(Qt::Key_Right);
    ok();
    QCOMPARE(zoneName(), u"PlayerZone"_s);
    QVERIFY(zone()->property("position").toReal() < 2);
}

void tst_home::filmEnds()
{
    ok();
    pass(2000);
    ok();
    const int duration = zone()->property("duration").toInt();
    press(Qt::Key_Right, 9);
    zone()->setProperty("position", duration - 3);
    pass(500);
    QCOMPARE(zone()->property("position").toInt(), duration);
    QVERIFY(zone()->property("isPaused").toBool());
    press(Qt::Key_Left, 9);
    zone()->setProperty("position", 3);
    pass(500);
    QCOMPARE(zone()->property("position").toInt(), 0);
    QCOMPARE(zone()->property("speed").toInt(), 1);
    QVERIFY(!zone()->property("isPaused").toBool());
}

void tst_home::settingsChangeTheScreen()
{
    const auto titleSize = [this] {
        int result = 0;
        visit(*focused(), [&](QQuickItem &item) {
            if (item.property("font").isValid())
                result = item.property("font").value<QFont>().pixelSize();
            return true;
        });
        return result;
    };
    const int size = titleSize();
    const qreal height = focused()->height();
    QVERIFY(theme("Theme")->property("isAnimated").toBool());
    openSection(3);
    ok();
    QVERIFY(!theme("Theme")->property("isAnimated").toBool());
    press(Qt::Key_Down);
    ok();
    QVERIFY(focused()->property("checked").toBool());
    openSection(0);
    QVERIFY(titleSize() > size);
    openSection(3);
    ok();
    press(Qt::Key_Down);
    ok();
    openSection(0);
    QCOMPARE(titleSize(), size);
    QVERIFY(focused()->height() < height);
    openSection(3);
    QVERIFY(!focused()->property("checked").toBool());
    ok();
    press(Qt::Key_Up, 2);
    ok();
    QVERIFY(theme("Theme")->property("isAnimated").toBool());
}

void tst_home::languageChanges()
{
    if (Language::codes().size() < 2)
        QSKIP("built without translations");
    openSection(3);
    press(Qt::Key_Down, 9);
    ok();
    QCOMPARE(m_engine->singletonInstance<Language *>("Kelui.Gallery", "Language")->code(), u"ru"_s);
    QVERIFY(focused()->property("checked").toBool());
    back();
    QCOMPARE(text(), u"Настройки"_s);
    press(Qt::Key_Left, 3);
    QCOMPARE(text(), u"Главная"_s);
    press(Qt::Key_Right, 3);
    ok();
    ok();
    QVERIFY(!focused()->property("checked").toBool());
    back();
    QCOMPARE(text(), u"Settings"_s);
}

void tst_home::backLeadsHome()
{
    openSection(1);
    press(Qt::Key_Down, 2);
    ok();
    pass(2000);
    ok();
    for (const char *name : {"DetailsZone", "RowsZone", "TabsZone", "MenuZone"}) {
        back();
        QCOMPARE(zoneName(), QLatin1String(name));
    }
    QVERIFY(page()->property("isAtTop").toBool());
    back();
    QVERIFY(isInGallery());
    ok();
    QCOMPARE(zoneName(), u"TabsZone"_s);
}

void tst_home::otherKeysOfRemotes()
{
    press(Qt::Key_Escape);
    QCOMPARE(zoneName(), u"MenuZone"_s);
    press(Qt::Key_Select);
    QCOMPARE(zoneName(), u"RowsZone"_s);
    press(Qt::Key_Backspace);
    QCOMPARE(zoneName(), u"MenuZone"_s);
    press(Qt::Key_Enter);
    QCOMPARE(zoneName(), u"RowsZone"_s);
    // The keys that the screen has no use for are for others.
    QKeyEvent event(QEvent::KeyPress, Qt::Key_VolumeUp, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &event);
    QVERIFY(!event.isAccepted());
}

void tst_home::walksAtRandom_data()
{
    QTest::addColumn<uint>("seed");
    bool isGiven = false;
    const uint given = qEnvironmentVariable("KELUI_SEED").toUInt(&isGiven);
    if (isGiven) {
        QTest::addRow("seed %u", given) << given;
        return;
    }
    for (uint seed = 1; seed <= 5; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

//! Presses keys as a child would that was left with the remote.
void tst_home::walksAtRandom()
{
    QFETCH(const uint, seed);
    constexpr int presses = 2000;
    // Each as often as it is in the list.
    const QList<int> keys{Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Right, Qt::Key_Right,
        Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up,
        Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return,
        Qt::Key_Return, Qt::Key_Return, Qt::Key_Back, Qt::Key_Back, Qt::Key_MediaPlay,
        Qt::Key_MediaTogglePlayPause, Qt::Key_AudioForward, Qt::Key_AudioRewind};
    QRandomGenerator random(seed);
    QStringList history;
    QStringList seen;
    for (int i = 0; i < presses; ++i) {
        const int key = keys.at(random.bounded(keys.size()));
        const bool isLeaving = key == Qt::Key_Back && page()->property("isAtTop").toBool();
        history +=
            u"%1 in %2"_s.arg(QLatin1String(QMetaEnum::fromType<Qt::Key>().valueToKey(key)), zoneName());
        if (!seen.contains(zoneName()))
            seen += zoneName();
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &event);
        // Some presses come while the screen still moves.
        if (random.bounded(4) == 0)
            pass(random.bounded(100));
        else
            settle();
        if (isLeaving) {
            QVERIFY(isInGallery());
            press(Qt::Key_Right);
        }
        QVERIFY(!isInGallery());
        if (random.bounded(100) == 0)
            m_window->grabWindow();
        // What is still on its way to the window may be outside for now.
        if (random.bounded(4) == 0)
            continue;
        settle();
        const QString wrong = whatIsWrong();
        QVERIFY2(wrong.isEmpty(),
            qPrintable(u"%1, after %2 presses from the seed %3, the last of which were: %4"_s.arg(wrong)
                    .arg(i + 1)
                    .arg(seed)
                    .arg(history.last(std::min<qsizetype>(20, history.size())).join(u", "_s))));
    }
    qInfo("seed %u: %d presses through %s", seed, presses, qPrintable(seen.join(u", "_s)));
}

QTEST_MAIN(tst_home)

#include "tst_home.moc"
