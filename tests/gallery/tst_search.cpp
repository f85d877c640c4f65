// SPDX-License-Identifier: MIT
#include <QtQuick/QQuickItem>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include "galleryengine.h"
#include "language.h"

using namespace Qt::StringLiterals;

namespace {

// KelGlobal's numbers, which are interface.
enum Layout { Russian = 0, English = 1, Symbols = 2, Numeric = 3 };
enum Type { SpaceKey = 1, BackspaceKey = 3, CapslockKey = 4, LeftKey = 6, RightKey = 7 };

//! The fields, by row and column.
struct Place
{
    int row;
    int column;
};
constexpr Place searchField{.row = 0, .column = 0};
constexpr Place nameField{.row = 0, .column = 1};
constexpr Place phoneField{.row = 0, .column = 2};
constexpr Place passwordField{.row = 1, .column = 0};
constexpr Place emailField{.row = 1, .column = 1};
constexpr Place codeField{.row = 1, .column = 2};

} // namespace

//! The page Search as a viewer uses it: every step is a press of a key of the remote.
class tst_search : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void typesText_data();
    void typesText();
    void masksThePhone();
    void editsInsideTheText();
    void spacesAndCapitals();
    void layoutKeysLeadBack();
    void eachFieldKeepsItsLayout();
    void digitsWaitWhileLettersAreShown();
    void digitsAreTypedAtOnce_data();
    void digitsAreTypedAtOnce();
    void digitsOpenPagesOnlyWithoutAField();
    void columnIsKeptOverTheSpaceKey();
    void rowsWrapAround_data();
    void rowsWrapAround();
    void firstAndLastRow();
    void backLeavesStepByStep();
    void errorsShowOnceAFieldIsLeft();
    void languageIsSwitched();

private:
    void press(Qt::Key key, int times = 1);
    void ok() { press(Qt::Key_Return); }
    void back() { press(Qt::Key_Back); }
    void edit(Place place);
    QQuickItem *page() const;
    QQuickItem *field() const;
    QString text() const { return field()->property("text").toString(); }
    bool isEditing() const { return field()->property("selected").toBool(); }
    QQuickItem *focused() const;
    QString label() const;
    QQuickItem *keyboard() const;
    QList<QQuickItem *> keys() const;
    QQuickItem *keyWithLabel(const QString &label) const;
    QQuickItem *keyOfType(int type) const;
    void walkTo(const QQuickItem *key);
    void type(const QString &labels);
    void activate(QQuickItem *key);

    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
    Language *m_language = nullptr;
};

void tst_search::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_engine = loadGallery({{u"isAnimated"_s, false}});
    m_window = windowOf(*m_engine);
    QVERIFY(m_window);
    m_language = m_engine->singletonInstance<Language *>("Kelui.Gallery", "Language");
    QVERIFY(m_language);
    int index = -1;
    QMetaObject::invokeMethod(m_window, "pageIndex", qReturnArg(index), u"Search"_s);
    QMetaObject::invokeMethod(m_window, "openPage", index);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    ok();
    QVERIFY(page()->property("focusedStop").value<QQuickItem *>());
}

void tst_search::cleanup()
{
    endGallery(m_engine);
}

void tst_search::press(Qt::Key key, int times)
{
    for (int i = 0; i < times; ++i)
        QTest::keyClick(m_window, key);
}

//! Goes to a field from the first one and to the first key of its keyboard.
void tst_search::edit(Place place)
{
    press(Qt::Key_Right, place.column);
    press(Qt::Key_Down, place.row);
    ok();
    QVERIFY(isEditing());
    QCOMPARE(focused(), keys().constFirst());
}

QQuickItem *tst_search::page() const
{
    return m_window->property("currentPage").value<QQuickItem *>();
}

QQuickItem *tst_search::field() const
{
    return page()->property("currentField").value<QQuickItem *>();
}

QQuickItem *tst_search::focused() const
{
    return page()->property("focusedKey").value<QQuickItem *>();
}

QString tst_search::label() const
{
    return focused() ? focused()->property("text").toString() : QString();
}

QQuickItem *tst_search::keyboard() const
{
    QList<QQuickItem *> items{page()};
    while (!items.isEmpty()) {
        QQuickItem *item = items.takeFirst();
        if (item->metaObject()->indexOfSignal("keyBackspaceActivated()") >= 0)
            return item;
        items += item->childItems();
    }
    return nullptr;
}

//! The keys shown, where the next frame will show them.
QList<QQuickItem *> tst_search::keys() const
{
    keyboard()->ensurePolished();
    QList<QQuickItem *> result;
    const QList<QQuickItem *> children = keyboard()->childItems();
    for (QQuickItem *child : children) {
        if (child->property("isInteractive").toBool())
            result += child;
    }
    return result;
}

QQuickItem *tst_search::keyWithLabel(const QString &label) const
{
    const QList<QQuickItem *> all = keys();
    const auto found = std::find_if(all.cbegin(), all.cend(),
        [&](const QQuickItem *key) { return key->property("text").toString() == label; });
    return found == all.cend() ? nullptr : *found;
}

QQuickItem *tst_search::keyOfType(int type) const
{
    const QList<QQuickItem *> all = keys();
    const auto found = std::find_if(all.cbegin(), all.cend(),
        [&](const QQuickItem *key) { return key->property("type").toInt() == type; });
    return found == all.cend() ? nullptr : *found;
}

//! By the arrows, as the eye would: first to the row, then along it.
void tst_search::walkTo(const QQuickItem *key)
{
    constexpr int patience = 20;
    QVERIFY(focused());
    for (int i = 0; i < patience && focused()->y() != key->y(); ++i)
        press(focused()->y() < key->y() ? Qt::Key_Down : Qt::Key_Up);
    for (int i = 0; i < patience && focused() != key; ++i)
        press(focused()->x() < key->x() ? Qt::Key_Right : Qt::Key_Left);
    QCOMPARE(focused(), key);
}

void tst_search::activate(QQuickItem *key)
{
    QVERIFY(key);
    walkTo(key);
    ok();
}

//! A character or, between brackets, the label of a key: "me@kelui[.ru]".
void tst_search::type(const QString &labels)
{
    static const QRegularExpression one(u"\\[([^\\]]+)\\]|(.)"_s);
    for (const QRegularExpressionMatch &match : one.globalMatch(labels)) {
        const QString label = match.hasCaptured(1) ? match.captured(1) : match.captured(2);
        QQuickItem *key = label == u" " ? keyOfType(SpaceKey) : keyWithLabel(label);
        QVERIFY2(key, qPrintable(label));
        activate(key);
    }
}

void tst_search::typesText_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("expected");
    const auto add = [](const char *name, Place place, const QString &keys, const QString &expected) {
        QTest::newRow(name) << place.row << place.column << keys << expected;
    };
    add("russian", searchField, u"война и мир"_s, u"война и мир"_s);
    add("digits", searchField, u"канал 24"_s, u"канал 24"_s);
    add("both languages", searchField, u"рок [Eng]live"_s, u"рок live"_s);
    add("symbols", searchField, u"[#+?]5%(\\)[Рус]да"_s, u"5%(\\)да"_s);
    add("letters only", nameField, u"анна-мария"_s, u"анна-мария"_s);
    add("symbols of letters", nameField, u"ян[1#+]№2[Eng]b"_s, u"ян№2b"_s);
    add("phone", phoneField, u"9123456789"_s, u"+7 (912) 345-67-89"_s);
    add("password", passwordField, u"se[#+?]$[Eng]cret7"_s, u"se$cret7"_s);
    add("address", emailField, u"me@kelui[.ru]"_s, u"me@kelui.ru"_s);
    add("other address", emailField, u"a-b@mail[.com]"_s, u"a-b@mail.com"_s);
}

void tst_search::typesText()
{
    QFETCH(const int, row);
    QFETCH(const int, column);
    QFETCH(const QString, keys);
    QFETCH(const QString, expected);
    edit({.row = row, .column = column});
    type(keys);
    QCOMPARE(text(), expected);
    back();
    QCOMPARE(text(), expected);
}

void tst_search::masksThePhone()
{
    edit(phoneField);
    QCOMPARE(field()->property("keyboardLayout").toInt(), int(Numeric));
    QCOMPARE(keys().size(), 11);
    type(u"91"_s);
    // The remote's own digits, between those of the keyboard.
    press(Qt::Key_2);
    press(Qt::Key_3);
    type(u"4"_s);
    QCOMPARE(text(), u"+7 (912) 34--"_s);
    activate(keyOfType(BackspaceKey));
    QCOMPARE(text(), u"+7 (912) 3--"_s);
}

void tst_search::editsInsideTheText()
{
    edit(searchField);
    type(u"кио"_s);
    activate(keyOfType(LeftKey));
    type(u"н"_s);
    QCOMPARE(text(), u"кино"_s);
    QCOMPARE(field()->property("cursorPosition").toInt(), 3);
    activate(keyOfType(RightKey));
    activate(keyOfType(BackspaceKey));
    QCOMPARE(text(), u"кин"_s);
}

void tst_search::spacesAndCapitals()
{
    edit(nameField);
    activate(keyOfType(CapslockKey));
    QVERIFY(field()->property("keyboardCapslockEnabled").toBool());
    QCOMPARE(focused(), keyOfType(CapslockKey));
    type(u"А"_s);
    activate(keyOfType(CapslockKey));
    QVERIFY(!field()->property("keyboardCapslockEnabled").toBool());
    type(u"н я"_s);
    QCOMPARE(text(), u"Ан я"_s);
}

void tst_search::layoutKeysLeadBack()
{
    edit(searchField);
    QCOMPARE(field()->property("keyboardLayout").toInt(), int(Russian));
    type(u"[Eng]"_s);
    QCOMPARE(field()->property("keyboardLayout").toInt(), int(English));
    QCOMPARE(label(), u"Рус"_s);
    ok();
    QCOMPARE(field()->property("keyboardLayout").toInt(), int(Russian));
    QCOMPARE(label(), u"Eng"_s);
    // To and fro between keys of one number, again and again.
    for (int i = 0; i < 2; ++i) {
        ok();
        QCOMPARE(label(), u"Рус"_s);
        ok();
        QCOMPARE(label(), u"Eng"_s);
    }
    type(u"[#+?]"_s);
    QCOMPARE(field()->property("keyboardLayout").toInt(), int(Symbols));
    QCOMPARE(label(), u"Рус"_s);
    type(u"[Eng]"_s);
    QCOMPARE(label(), u"#+?"_s);
    QVERIFY(keys().contains(focused()));
}

void tst_search::eachFieldKeepsItsLayout()
{
    edit(searchField);
    type(u"[Eng]"_s);
    back();
    press(Qt::Key_Right);
    QCOMPARE(field()->property("keyboardLayout").toInt(), int(Russian));
    QCOMPARE(keyboard()->property("layout").toInt(), int(Russian));
    QVERIFY(!keyWithLabel(u"1"_s));
    press(Qt::Key_Right);
    QCOMPARE(keyboard()->property("layout").toInt(), int(Numeric));
    press(Qt::Key_Left, 2);
    QCOMPARE(keyboard()->property("layout").toInt(), int(English));
    QVERIFY(keyWithLabel(u"@"_s));
}

void tst_search::digitsWaitWhileLettersAreShown()
{
    edit(searchField);
    type(u"тв"_s);
    press(Qt::Key_7);
    QCOMPARE(text(), u"тв7"_s);
    // Before the digit, until it is certain.
    QCOMPARE(field()->property("cursorPosition").toInt(), 2);
    press(Qt::Key_8);
    QCOMPARE(text(), u"тв8"_s);
    QTRY_COMPARE(field()->property("cursorPosition").toInt(), 3);
    press(Qt::Key_9);
    QCOMPARE(text(), u"тв89"_s);
}

void tst_search::digitsAreTypedAtOnce_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("expected");
    QTest::newRow("symbols") << 0 << u"[#+?]"_s << u"123"_s;
    QTest::newRow("symbols of letters") << 1 << u"[1#+]"_s << u"123"_s;
    QTest::newRow("numeric") << 2 << QString() << u"+7 (123) --"_s;
}

void tst_search::digitsAreTypedAtOnce()
{
    QFETCH(const int, column);
    QFETCH(const QString, keys);
    QFETCH(const QString, expected);
    edit({.row = 0, .column = column});
    type(keys);
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_2, Qt::Key_3})
        press(key);
    QCOMPARE(text(), expected);
}

void tst_search::digitsOpenPagesOnlyWithoutAField()
{
    const QVariant index = m_window->property("currentIndex");
    edit(searchField);
    press(Qt::Key_2);
    QCOMPARE(m_window->property("currentIndex"), index);
    QCOMPARE(text(), u"2"_s);
    back();
    press(Qt::Key_2);
    QCOMPARE(m_window->property("currentIndex"), QVariant(1));
}

void tst_search::columnIsKeptOverTheSpaceKey()
{
    edit(searchField);
    walkTo(keyWithLabel(u"8"_s));
    press(Qt::Key_Down, 4);
    QCOMPARE(focused(), keyOfType(SpaceKey));
    press(Qt::Key_Up);
    QCOMPARE(label(), u"б"_s);
    press(Qt::Key_Up, 3);
    QCOMPARE(label(), u"8"_s);
    press(Qt::Key_Down, 4);
    // A step to the side is a new column.
    press(Qt::Key_Right);
    QCOMPARE(focused(), keyOfType(LeftKey));
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    QVERIFY(label() != u"б");
}

void tst_search::rowsWrapAround_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("row");
    for (int row = 0; row < 5; ++row) {
        QTest::addRow("russian %d", row) << QString() << row;
        QTest::addRow("english %d", row) << u"[Eng]"_s << row;
        QTest::addRow("symbols %d", row) << u"[#+?]"_s << row;
    }
}

void tst_search::rowsWrapAround()
{
    QFETCH(const QString, layout);
    QFETCH(const int, row);
    edit(searchField);
    type(layout);
    walkTo(keys().constFirst());
    press(Qt::Key_Down, row);
    QList<QQuickItem *> expected;
    const QList<QQuickItem *> all = keys();
    for (QQuickItem *key : all) {
        if (key->y() == focused()->y())
            expected += key;
    }
    QCOMPARE(focused(), expected.constFirst());
    press(Qt::Key_Left);
    QCOMPARE(focused(), expected.constLast());
    press(Qt::Key_Right);
    for (QQuickItem *key : std::as_const(expected)) {
        QCOMPARE(focused(), key);
        press(Qt::Key_Right);
    }
    QCOMPARE(focused(), expected.constFirst());
    QVERIFY(isEditing());
}

void tst_search::firstAndLastRow()
{
    edit(searchField);
    press(Qt::Key_Down, 9);
    QCOMPARE(focused(), keyOfType(CapslockKey));
    press(Qt::Key_Up, 4);
    QCOMPARE(label(), u"1"_s);
    press(Qt::Key_Up);
    QVERIFY(!isEditing());
    QVERIFY(field()->property("focused").toBool());
    // And down again, past the field below.
    press(Qt::Key_Down);
    QCOMPARE(field()->property("keyboardLayout").toInt(), int(English));
    QVERIFY(!isEditing());
    press(Qt::Key_Down);
    QVERIFY(isEditing());
    QCOMPARE(label(), u"1"_s);
}

void tst_search::backLeavesStepByStep()
{
    edit(nameField);
    press(Qt::Key_Right, 2);
    back();
    QVERIFY(!isEditing());
    QVERIFY(field()->property("focused").toBool());
    QVERIFY(!focused());
    ok();
    QCOMPARE(label(), u"у"_s);
    back();
    QVERIFY(!m_window->property("isInMenu").toBool());
    back();
    QVERIFY(m_window->property("isInMenu").toBool());
}

void tst_search::errorsShowOnceAFieldIsLeft()
{
    edit(codeField);
    type(u"kel"_s);
    QVERIFY(!field()->property("error").toBool());
    back();
    QVERIFY(field()->property("error").toBool());
    ok();
    type(u"ui123"_s);
    back();
    QVERIFY(!field()->property("error").toBool());
}

void tst_search::languageIsSwitched()
{
    if (Language::codes().size() < 2)
        QSKIP("built without translations");
    QSignalSpy spy(m_language, &Language::codeChanged);
    const auto space = [this] { return keyOfType(SpaceKey)->property("text").toString(); };
    QCOMPARE(space(), u"Space"_s);
    QCOMPARE(page()->property("caption").toString().section(u':', 0, 0), u"LineEdit and Keyboard"_s);
    back();
    press(Qt::Key_Up, m_window->property("currentIndex").toInt() + 1);
    ok();
    QCOMPARE(m_language->code(), u"ru"_s);
    press(Qt::Key_Up, 1);
    ok();
    QVERIFY(!m_window->property("isInMenu").toBool());
    back();
    int index = -1;
    QMetaObject::invokeMethod(m_window, "pageIndex", qReturnArg(index), u"Search"_s);
    QMetaObject::invokeMethod(m_window, "openPage", index);
    QCOMPARE(page()->property("caption").toString().section(u':', 0, 0), u"LineEdit и Keyboard"_s);
    QCOMPARE(space(), u"Пробел"_s);
    // And while the page is shown.
    m_language->setCode(u"en"_s);
    QCOMPARE(space(), u"Space"_s);
    m_language->setCode(u"none"_s);
    QCOMPARE(m_language->code(), u"en"_s);
    QCOMPARE(spy.size(), 2);
}

QTEST_MAIN(tst_search)

#include "tst_search.moc"
