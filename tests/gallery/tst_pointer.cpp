// SPDX-License-Identifier: MIT
#include <QtQuick/QQuickItem>
#include <QtTest/QTest>

#include "../../gallery/animationclock.h"
#include "galleryengine.h"

using namespace Qt::StringLiterals;

//! The gallery by a mouse, or a finger: what the keys of the remote reach, clicks reach too.
class tst_Pointer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void menuOpensPages();
    void previewOpensItsPage();
    void homeIsClicked();
    void filmsAreClicked();
    void fieldIsTyped();
    void controlIsTried();
    void cardIsClicked();
    void tileIsChosen();
    void languageIsChanged();

private:
    QQuickItem *item(const QString &type, const QString &text = {}) const;
    void click(QQuickItem *target, Qt::MouseButton button = Qt::LeftButton);
    void clickText(const QString &text) { click(item({}, text)); }
    void goBack() { click(page(), Qt::RightButton); }
    bool isInMenu() const { return m_window->property("isInMenu").toBool(); }
    QQuickItem *page() const { return m_window->property("currentPage").value<QQuickItem *>(); }
    QQuickItem *stop() const { return page()->property("focusedStop").value<QQuickItem *>(); }
    QString pageName() const;

    std::unique_ptr<AnimationClock> m_clock;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
};

namespace {

bool isOfType(const QQuickItem &item, const QString &type)
{
    return QLatin1StringView(item.metaObject()->className()).startsWith(type + u"_QML"_s);
}

//! The first that is shown, of a type, and with a text where one is given.
QQuickItem *find(QQuickItem *below, const QString &type, const QString &text)
{
    if (!below->isVisible())
        return nullptr;
    const bool hasText =
        below->property("titleText").toString() == text || below->property("text").toString() == text;
    if ((type.isEmpty() || isOfType(*below, type)) && (text.isEmpty() || hasText))
        return below;
    const QList<QQuickItem *> children = below->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = find(child, type, text))
            return found;
    }
    return nullptr;
}

} // namespace

void tst_Pointer::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_clock = std::make_unique<AnimationClock>();
    m_engine = loadGallery({{u"isAnimated"_s, false}, {u"language"_s, u"en"_s}});
    m_window = windowOf(*m_engine);
    QVERIFY(m_window);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    QMetaObject::invokeMethod(m_window, "openPage", 0);
    QVERIFY(page());
}

void tst_Pointer::cleanup()
{
    endGallery(m_engine);
    m_clock.reset();
}

QQuickItem *tst_Pointer::item(const QString &type, const QString &text) const
{
    QQuickItem *onPage = find(page(), type, text);
    return onPage ? onPage : find(m_window->contentItem(), type, text);
}

void tst_Pointer::click(QQuickItem *target, Qt::MouseButton button)
{
    QVERIFY(target);
    const QPointF center(target->width() / 2, target->height() / 2);
    QTest::mouseClick(m_window, button, {}, target->mapToScene(center).toPoint());
    m_clock->step(100);
    // Views make and place their items with a frame.
    m_window->grabWindow();
}

QString tst_Pointer::pageName() const
{
    return m_window->property("currentEntry").value<QObject *>()->property("name").toString();
}

void tst_Pointer::menuOpensPages()
{
    clickText(u"Search"_s);
    QCOMPARE(pageName(), u"Search"_s);
    QVERIFY(!isInMenu());
    goBack();
    QVERIFY(isInMenu());
    clickText(u"Controls"_s);
    QCOMPARE(pageName(), u"Controls"_s);
    QVERIFY(!isInMenu());
}

void tst_Pointer::previewOpensItsPage()
{
    QVERIFY(isInMenu());
    click(page());
    QVERIFY(!isInMenu());
    QVERIFY(stop());
}

void tst_Pointer::homeIsClicked()
{
    click(page());
    clickText(u"Settings"_s);
    QQuickItem *box = item({}, u"Large text"_s);
    QVERIFY(box);
    const bool isChecked = box->property("checked").toBool();
    click(box);
    QCOMPARE(box->property("checked").toBool(), !isChecked);
    QVERIFY(box->property("focused").toBool());
    clickText(u"Films"_s);
    clickText(u"Drama"_s);
    QVERIFY(item({}, u"Drama"_s)->property("checked").toBool());
    QVERIFY(item({}, u"Drama"_s)->property("focused").toBool());
}

void tst_Pointer::filmsAreClicked()
{
    click(page());
    clickText(u"All films"_s);
    QQuickItem *film = item(u"FilmTile"_s, {});
    click(film);
    QVERIFY(item({}, u"Cancel"_s));
    clickText(u"Cancel"_s);
    QVERIFY(!item({}, u"Cancel"_s));
    clickText(u"Home"_s);
    click(item(u"FilmTile"_s, {}));
    m_clock->step(3000);
    m_clock->step(3000);
    QTRY_VERIFY(item({}, u"Watch"_s) || item({}, u"Continue"_s));
    clickText(u"From the beginning"_s);
    QVERIFY(!item({}, u"From the beginning"_s));
    goBack();
    QVERIFY(item({}, u"From the beginning"_s));
    clickText(u"To my list"_s);
    QVERIFY(item({}, u"In my list"_s));
}

void tst_Pointer::fieldIsTyped()
{
    clickText(u"Search"_s);
    QQuickItem *field = item(u"FormField"_s);
    click(field);
    QCOMPARE(page()->property("keyTarget").value<QQuickItem *>(), field);
    for (const QString &letter : {u"к"_s, u"о"_s, u"т"_s})
        click(item(u"Key"_s, letter));
    QCOMPARE(field->property("text").toString(), u"кот"_s);
    QVERIFY(m_window->activeFocusItem() != field);
    goBack();
    QVERIFY(!page()->property("keyTarget").value<QQuickItem *>());
}

void tst_Pointer::controlIsTried()
{
    clickText(u"Controls"_s);
    clickText(u"TopNumber"_s);
    QCOMPARE(pageName(), u"TopNumber"_s);
    clickText(u"Code"_s);
    QVERIFY(page()->property("code").toString().contains(u"Kelui.TopNumber"_s));
    clickText(u"Try"_s);
    QVERIFY(page()->property("properties").isValid());
}

void tst_Pointer::cardIsClicked()
{
    clickText(u"Controls"_s);
    clickText(u"TopNumber"_s);
    clickText(u"States"_s);
    QQuickItem *card = item(u"Card"_s);
    QVERIFY(card);
    const bool isFilled = card->property("isFilled").toBool();
    click(card);
    QCOMPARE(card->property("isFilled").toBool(), !isFilled);
    QCOMPARE(stop(), card);
    QVERIFY(!isInMenu());
}

void tst_Pointer::tileIsChosen()
{
    clickText(u"Controls"_s);
    clickText(u"ScrolledGridView"_s);
    clickText(u"States"_s);
    m_window->grabWindow();
    QQuickItem *view = item(u"ScrolledGridView"_s);
    QVERIFY(view);
    QQuickItem *tile = nullptr;
    QMetaObject::invokeMethod(view, "itemAtIndex", qReturnArg(tile), 7);
    click(tile);
    QCOMPARE(view->property("currentIndex").toInt(), 7);
    QCOMPARE(page()->property("chosen").toInt(), 7);
}

void tst_Pointer::languageIsChanged()
{
    clickText(u"English"_s);
    QVERIFY(item({}, u"Русский"_s));
    clickText(u"Русский"_s);
    QVERIFY(item({}, u"English"_s));
}

QTEST_MAIN(tst_Pointer)
#include "tst_pointer.moc"
