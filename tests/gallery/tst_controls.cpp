// SPDX-License-Identifier: MIT
#include <QtCore/QFile>
#include <QtQml/QQmlComponent>
#include <QtQuick/QQuickItem>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include "../../gallery/animationclock.h"
#include "example.h"
#include "galleryengine.h"
#include "language.h"
#include "propertymodel.h"

using namespace Qt::StringLiterals;

namespace {

enum View { Try, States, Code };

//! The components as the module lists them, for none to be forgotten.
QStringList componentNames()
{
    QFile file(QStringLiteral(KELUI_QML_DIR "/Kelui/UI/Qml/Controls/Generic/qmldir"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression line(
        u"^(?:singleton )?([A-Z]\\w*) 1\\.0 "_s, QRegularExpression::MultilineOption);
    QStringList names;
    for (const QRegularExpressionMatch &match : line.globalMatch(QString::fromUtf8(file.readAll())))
        names += match.captured(1);
    return names;
}

} // namespace

//! The pages of the components, by keys, and the model behind their properties.
class tst_controls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyComponentHasAPage_data();
    void everyComponentHasAPage();
    void everyPropertyChanges_data();
    void everyPropertyChanges();
    void keysStep();
    void resetRestores();
    void tabsOpenViews();
    void indexOpensPages();
    void searchOpensPages();
    void codeScrolls();
    void rows_data();
    void rows();
    void change_data();
    void change();
    void tellsOfChanges();
    void marksWords_data();
    void marksWords();

private:
    void open(const QString &name, View view = Try);
    void press(Qt::Key key, int times = 1);
    static QModelIndex row(const PropertyModel &model, const QString &name);
    bool changes(const QModelIndex &row);
    QQuickItem *page() const { return m_window->property("currentPage").value<QQuickItem *>(); }
    QQuickItem *focused() const { return page()->property("focusedStop").value<QQuickItem *>(); }
    PropertyModel *model() const { return page()->property("properties").value<PropertyModel *>(); }
    std::unique_ptr<QObject> create(const QByteArray &code);

    std::unique_ptr<AnimationClock> m_clock;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
};

void tst_controls::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_clock = std::make_unique<AnimationClock>();
    m_engine = loadGallery({{u"isAnimated"_s, false}, {u"language"_s, u"en"_s}});
    m_window = windowOf(*m_engine);
    QVERIFY(m_window);
}

void tst_controls::cleanup()
{
    endGallery(m_engine);
    m_clock.reset();
}

void tst_controls::open(const QString &name, View view)
{
    int index = -1;
    QMetaObject::invokeMethod(m_window, "pageIndex", qReturnArg(index), name);
    QVERIFY2(index >= 0, qPrintable(name));
    QMetaObject::invokeMethod(m_window, "openView", index, int(view));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    QVERIFY(page());
}

void tst_controls::press(Qt::Key key, int times)
{
    for (int i = 0; i < times; ++i)
        QTest::keyClick(m_window, key);
}

void tst_controls::everyComponentHasAPage_data()
{
    QTest::addColumn<QString>("name");
    QStringList names = componentNames();
    QVERIFY(names.size() > 20);
    names += {u"BrushArea"_s, u"Helpers"_s, u"ImageColorizer"_s, u"KelGlobal"_s, u"LargeText"_s,
        u"ScrollBar"_s, u"Text"_s, u"TopNumber"_s};
    for (const QString &name : std::as_const(names))
        QTest::newRow(qPrintable(name)) << name;
}

void tst_controls::everyComponentHasAPage()
{
    QFETCH(const QString, name);
    open(name);
    QCOMPARE(page()->property("name").toString(), name);
    QVERIFY(model());
    QVERIFY(model()->control());
    // All it has is a function.
    QCOMPARE(model()->rowCount() == 0, name == u"Helpers"_s);
    QVERIFY(!page()->property("summary").toString().isEmpty());

    open(name, States);
    QVERIFY(!page()->property("name").isValid());

    open(name, Code);
    QFile file(u"%1/examples/%2Example.qml"_s.arg(QStringLiteral(KELUI_GALLERY_DIR), name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString code = page()->property("code").toString();
    QVERIFY(!code.isEmpty());
    QCOMPARE(code, QString::fromUtf8(file.readAll()));
}

void tst_controls::everyPropertyChanges_data()
{
    everyComponentHasAPage_data();
}

//! Back and forth by the keys in the row that is in focus; whether its value was ever another.
bool tst_controls::changes(const QModelIndex &row)
{
    const QVariant before = row.data(PropertyModel::ValueRole);
    bool result = false;
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Left, Qt::Key_Right}) {
        press(key);
        result = result || row.data(PropertyModel::ValueRole) != before;
        m_window->grabWindow();
    }
    return result;
}

//! One after the other, for some have effect on others, and nothing complains.
void tst_controls::everyPropertyChanges()
{
    QFETCH(const QString, name);
    open(name);
    press(Qt::Key_Return);
    QVERIFY(focused());
    const int count = model()->rowCount();
    bool isAnyWritable = false;
    for (int row = 0; row < count; ++row) {
        QCOMPARE(focused()->property("currentIndex").toInt(), row);
        const bool isWritable = model()->index(row).data(PropertyModel::WritableRole).toBool();
        isAnyWritable = isAnyWritable || isWritable;
        bool hasChanged = changes(model()->index(row));
        if (isWritable && !hasChanged) {
            // An earlier row may have made it impossible: there is no cursor to move without a text.
            open(name);
            press(Qt::Key_Return);
            press(Qt::Key_Down, row);
            hasChanged = changes(model()->index(row));
        }
        QVERIFY2(hasChanged == isWritable,
            qPrintable(model()->index(row).data(PropertyModel::NameRole).toString()));
        press(Qt::Key_Down);
    }
    const QStringList constants{u"AnimationInterpolators"_s, u"Helpers"_s, u"KelGlobal"_s, u"PluginInfo"_s};
    QCOMPARE(isAnyWritable, !constants.contains(name));
    m_clock->step(2000);
}

QModelIndex tst_controls::row(const PropertyModel &model, const QString &name)
{
    return model.match(model.index(0), PropertyModel::NameRole, name, 1, Qt::MatchExactly).value(0);
}

void tst_controls::keysStep()
{
    open(u"Button"_s);
    press(Qt::Key_Return);
    const QModelIndex index = row(*model(), u"focused"_s);
    QVERIFY(index.isValid());
    press(Qt::Key_Down, index.row());
    const QObject *button = model()->control();
    QVERIFY(!button->property("focused").toBool());
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Return, Qt::Key_Select}) {
        const bool before = button->property("focused").toBool();
        press(key);
        QCOMPARE(button->property("focused").toBool(), !before);
        QCOMPARE(index.data(PropertyModel::ValueRole).toString(), before ? u"false" : u"true");
    }
}

void tst_controls::resetRestores()
{
    open(u"Rectangle"_s);
    press(Qt::Key_Return);
    const int number = row(*model(), u"roundingRadius"_s).row();
    QVERIFY(number > 0);
    press(Qt::Key_Down, number);
    press(Qt::Key_Right);
    const auto radius = [this] { return model()->control()->property("roundingRadius").toInt(); };
    QCOMPARE(radius(), 44);
    press(Qt::Key_Up, number + 1);
    QCOMPARE(focused()->property("titleText"), u"Reset"_s);
    press(Qt::Key_Return);
    QCOMPARE(radius(), 40);
    press(Qt::Key_Down);
    QCOMPARE(focused()->property("currentIndex").toInt(), 0);
}

void tst_controls::tabsOpenViews()
{
    open(u"Icon"_s);
    const auto view = [this] { return m_window->property("currentView").toInt(); };
    const auto isInTabs = [this] { return m_window->property("isInTabs").toBool(); };
    press(Qt::Key_Right);
    press(Qt::Key_Up, 2);
    QVERIFY(isInTabs());
    QVERIFY(!focused());
    press(Qt::Key_Right);
    QCOMPARE(view(), int(States));
    press(Qt::Key_Right, 2);
    QCOMPARE(view(), int(Code));
    press(Qt::Key_Down);
    QVERIFY(!isInTabs());
    QVERIFY(focused());
    press(Qt::Key_Up);
    QVERIFY(isInTabs());
    press(Qt::Key_Left, 2);
    QCOMPARE(view(), int(Try));
    press(Qt::Key_Left);
    QVERIFY(!isInTabs());
    QVERIFY(m_window->property("isInMenu").toBool());
    // A page without views has no tabs to go to.
    open(u"Search"_s);
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    QVERIFY(!isInTabs());
    QVERIFY(focused());
}

void tst_controls::indexOpensPages()
{
    open(u"Controls"_s);
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    m_window->grabWindow();
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    const QString name = focused()->property("titleText").toString();
    QVERIFY(!name.isEmpty());
    press(Qt::Key_Return);
    QCOMPARE(page()->property("name").toString(), name);
    QVERIFY(focused());
}

void tst_controls::searchOpensPages()
{
    open(u"Search"_s);
    press(Qt::Key_Return);
    auto *field = page()->property("currentField").value<QObject *>();
    QVERIFY(field);
    field->setProperty("text", u"sPinn"_s);
    m_window->grabWindow();
    press(Qt::Key_Right);
    QCOMPARE(focused()->property("titleText").toString(), u"SpinnerIndicator"_s);
    press(Qt::Key_Return);
    QCOMPARE(page()->property("name").toString(), u"SpinnerIndicator"_s);

    // What is found by no name leaves the form as it is.
    open(u"Search"_s);
    press(Qt::Key_Return);
    page()->property("currentField").value<QObject *>()->setProperty("text", u"xyz"_s);
    m_window->grabWindow();
    press(Qt::Key_Right);
    QVERIFY(!focused()->property("titleText").isValid());
}

void tst_controls::codeScrolls()
{
    open(u"Button"_s, Code);
    press(Qt::Key_Return);
    QQuickItem *text = focused();
    QVERIFY(text->property("contentHeight").toReal() > text->height());
    press(Qt::Key_Down);
    QVERIFY(text->property("contentY").toReal() > 0);
    press(Qt::Key_Down, 20);
    QCOMPARE(text->property("contentY").toReal(), text->property("contentHeight").toReal() - text->height());
    press(Qt::Key_Up, 21);
    QVERIFY(m_window->property("isInTabs").toBool());
}

std::unique_ptr<QObject> tst_controls::create(const QByteArray &code)
{
    QQmlComponent component(m_engine.get());
    component.setData("import QtQuick\nimport Kelui.UI.Qml.Controls.Generic as Kelui\n" + code, QUrl());
    return std::unique_ptr<QObject>(component.create());
}

void tst_controls::rows_data()
{
    using Kind = PropertyModel::Kind;
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<QString>("row");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isWritable");
    const auto add = [](const QString &type, const QByteArray &properties, const QString &row, int kind,
                         const QString &value, bool isWritable = true) {
        QTest::addRow("%s.%s", qPrintable(type), qPrintable(row))
            << type << "Kelui." + type.toLatin1() + " {" + properties + '}' << row << kind << value
            << isWritable;
    };
    const int none = -1;
    // Controls complain of missing maps.
    const QByteArray fieldMaps = "textColors: ({ normal: 'red' }); backgroundColors: textColors;"
                                 "placeholderTextColors: textColors;";
    const QByteArray buttonMaps = "titleColors: ({ normal: 'red', focused: '#80ff0000' });"
                                  "subtitleColors: titleColors; backgroundColors: titleColors;"
                                  "leftIconColors: titleColors; rightIconColors: titleColors;";
    add(u"Button"_s, buttonMaps, u"focused"_s, Kind::Bool, u"false"_s);
    add(u"Button"_s, buttonMaps, u"roundingRadius"_s, Kind::Real, u"15"_s);
    add(u"Button"_s, buttonMaps, u"textBlockSpacing"_s, Kind::Integer, u"10"_s);
    add(u"Button"_s, buttonMaps + "titleText: 'a b'", u"titleText"_s, Kind::String, u"\"a b\""_s);
    add(u"Button"_s, buttonMaps, u"titleAlignment"_s, Kind::Choice, u"AlignLeft|AlignTop"_s);
    add(u"Button"_s, buttonMaps, u"textColorsAnimationEasingType"_s, Kind::Choice, u"Linear"_s);
    add(u"Button"_s, buttonMaps + "fixedSize: Qt.size(7, 8)", u"fixedSize.height"_s, Kind::Real, u"8"_s);
    add(u"Button"_s, buttonMaps + "titleFont.pixelSize: 31", u"titleFont.pixelSize"_s, Kind::Integer,
        u"31"_s);
    add(u"Button"_s, buttonMaps, u"checked"_s, Kind::Bool, u"false"_s);
    add(u"Button"_s, buttonMaps, u"titleColors.focused"_s, Kind::Color, u"#80ff0000"_s);
    add(u"Button"_s, buttonMaps, u"titleColors"_s, none, {});
    add(u"Button"_s, buttonMaps, u"subtitle"_s, Kind::String, u"\"\""_s, false);
    add(u"Button"_s, buttonMaps, u"font.pixelSize"_s, none, {});
    add(u"MediaBlock"_s, "model: 0; mediaBlockItem: ({ a: 'red', b: 'no color' })", u"mediaBlockItem.b"_s,
        none, {});
    add(u"MainMenuButton"_s, "textColors: ['#ff0000', '#8000ff00']", u"textColors[1]"_s, Kind::Color,
        u"#8000ff00"_s);
    add(u"Icon"_s, "", u"coloringMethod"_s, Kind::Choice, u"DestinationAlpha"_s);
    add(u"Icon"_s, "source: 'qrc:/qt/qml/Kelui/Gallery/assets/icons/play.svg'", u"source"_s, Kind::String,
        u"play.svg"_s);
    add(u"Key"_s, "text: 'a'; type: 4", u"type"_s, Kind::Choice, u"CapslockKey"_s);
    add(u"Key"_s, "text: 'a'", u"isInteractive"_s, Kind::Bool, u"true"_s, false);
    add(u"Key"_s, "text: 'a'", u"font.pixelSize"_s, Kind::Integer, QString());
    add(u"Keyboard"_s, "", u"layout"_s, Kind::Choice, u"NumericLayout"_s);
    add(u"Keyboard"_s, "", u"numericLayout"_s, none, {});
    add(u"LineEdit"_s, fieldMaps + "echoMode: 2", u"echoMode"_s, Kind::Choice, u"Password"_s);
    add(u"Text"_s, "", u"wrapMode"_s, Kind::Choice, u"NoWrap"_s);
    add(u"Text"_s, "", u"horizontalAlignment"_s, Kind::Choice, u"AlignLeft"_s);
    add(u"Rectangle"_s, "border.width: 3", u"border.width"_s, Kind::Real, u"3"_s);
    add(u"ClippableImage"_s, "image.width: 9", u"image.width"_s, Kind::Real, u"9"_s);
    const auto addBelow = [](const QString &type, const QByteArray &code, const QString &row, int kind,
                              const QString &value, bool isWritable) {
        QTest::addRow("%s.%s", qPrintable(type), qPrintable(row))
            << type << code << row << kind << value << isWritable;
    };
    addBelow(
        u"ImageColorizer"_s, "Image { Kelui.ImageColorizer {} }", u"enabled"_s, Kind::Bool, u"true"_s, true);
    addBelow(u"PluginInfo"_s, "Item {}", u"majorVersion"_s, Kind::Integer, u"1"_s, false);
    addBelow(
        u"AnimationInterpolators"_s, "Item {}", u"linearInterpolator"_s, Kind::List, u"0 0 0 0 1 1"_s, false);
    addBelow(
        u"KelGlobal"_s, "Item {}", u"numericLayout"_s, Kind::List, u"1 2 3 4 5 6 7 8 9 0 backspace"_s, false);
    // Qt's own type of the same name.
    addBelow(u"Text"_s, "Item { Text { text: 'Qt' } Kelui.Text { text: 'Kelui' } }", u"text"_s, Kind::String,
        u"\"Kelui\""_s, true);
}

void tst_controls::rows()
{
    QFETCH(const QString, type);
    QFETCH(const QByteArray, code);
    QFETCH(const QString, row);
    QFETCH(const int, kind);
    QFETCH(const QString, value);
    QFETCH(const bool, isWritable);
    const std::unique_ptr<QObject> sample = create(code);
    QVERIFY(sample);
    PropertyModel model;
    model.setTypeName(type);
    model.setSample(sample.get());
    const QModelIndex index = tst_controls::row(model, row);
    QCOMPARE(index.isValid(), kind >= 0);
    if (kind < 0)
        return;
    QCOMPARE(index.data(PropertyModel::KindRole).toInt(), kind);
    if (!value.isNull())
        QCOMPARE(index.data(PropertyModel::ValueRole).toString(), value);
    QCOMPARE(index.data(PropertyModel::WritableRole).toBool(), isWritable);
}

void tst_controls::change_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QList<int>>("steps");
    QTest::addColumn<QStringList>("values");
    const auto add = [](const char *name, const QByteArray &properties, const QString &row,
                         const QList<int> &steps, const QStringList &values) {
        QTest::newRow(name) << properties << row << steps << values;
    };
    add("bool", "Rectangle {}", u"forceRounding"_s, {1, 1, -1}, {u"true"_s, u"false"_s, u"true"_s});
    add("real", "Rectangle { roundingRadius: 9 }", u"roundingRadius"_s, {1, -1, -1, -1, -1},
        {u"13"_s, u"9"_s, u"5"_s, u"1"_s, u"0"_s});
    add("tenths", "Rectangle { opacity: 0.8 }", u"opacity"_s, {1, 1, 1, -1, -1, -1},
        {u"0.9"_s, u"1"_s, u"1"_s, u"0.9"_s, u"0.8"_s, u"0.7"_s});
    add("integer", "SpinnerIndicator { lineWidth: 39 }", u"lineWidth"_s, {1, 1, -2},
        {u"40"_s, u"40"_s, u"38"_s});
    add("out of range", "Text {}", u"maximumLineCount"_s, {1, -1}, {u"10"_s, u"9"_s});
    add("choice", "Icon {}", u"coloringMethod"_s, {1, 1, -1},
        {u"SourceAlpha"_s, u"DestinationAlpha"_s, u"SourceAlpha"_s});
    add("keys of Qt", "Text {}", u"verticalAlignment"_s, {1, 1, 1, -1},
        {u"AlignVCenter"_s, u"AlignBottom"_s, u"AlignTop"_s, u"AlignBottom"_s});
    add("text", "Text { text: 'own' }", u"text"_s, {1, -1, -1}, {u"\"Live now\""_s, u"\"own\""_s, u"\"\""_s});
    add("file", "Icon { source: 'qrc:/qt/qml/Kelui/Gallery/assets/icons/star.svg' }", u"source"_s, {1, 1, -2},
        {u"play.svg"_s, u"heart.svg"_s, u"star.svg"_s});
    add("color", "Rectangle { color: '#00ff00' }", u"color"_s, {1, 1, -1},
        {u"#0000ff"_s, u"#ff0000"_s, u"#0000ff"_s});
    add("other color forward", "Rectangle { color: 'white' }", u"color"_s, {1}, {u"#ff0000"_s});
    add("other color back", "Rectangle { color: 'white' }", u"color"_s, {-1}, {u"#0000ff"_s});
    add("map", "MediaBlock { model: 0; mediaBlockItem: ({ a: 'white', b: '#ff0000' }) }",
        u"mediaBlockItem.b"_s, {1, 1}, {u"#00ff00"_s, u"#0000ff"_s});
    add("list", "MainMenuButton { textColors: ['#ff0000', '#00ff00'] }", u"textColors[1]"_s, {1, -1},
        {u"#0000ff"_s, u"#00ff00"_s});
    add("read-only", "Key { text: 'a' }", u"isInteractive"_s, {1, -1}, {u"true"_s, u"true"_s});
}

void tst_controls::change()
{
    QFETCH(const QByteArray, code);
    QFETCH(const QString, row);
    QFETCH(const QList<int>, steps);
    QFETCH(const QStringList, values);
    const std::unique_ptr<QObject> sample = create("Kelui." + code);
    QVERIFY(sample);
    PropertyModel model;
    model.setPalette({Qt::red, Qt::green, Qt::blue});
    model.setSample(sample.get());
    model.setTypeName(QString::fromLatin1(code.left(code.indexOf(' '))));
    const QModelIndex index = tst_controls::row(model, row);
    QVERIFY(index.isValid());
    QStringList actual;
    for (const int step : steps) {
        model.change(index.row(), step);
        actual += index.data(PropertyModel::ValueRole).toString();
    }
    QCOMPARE(actual, values);
}

void tst_controls::tellsOfChanges()
{
    const std::unique_ptr<QObject> sample =
        create("Kelui.Rectangle { id: r; property real half: r.roundingRadius / 2 }");
    QVERIFY(sample);
    PropertyModel model;
    model.setTypeName(u"Rectangle"_s);
    QSignalSpy resets(&model, &PropertyModel::modelReset);
    model.setSample(sample.get());
    QCOMPARE(resets.size(), 1);
    QSignalSpy changes(&model, &PropertyModel::dataChanged);
    sample->setProperty("roundingRadius", 20);
    QCOMPARE(changes.size(), 1);
    const auto index = changes.constFirst().constFirst().toModelIndex();
    QCOMPARE(index.data(PropertyModel::NameRole).toString(), u"roundingRadius"_s);
    QCOMPARE(index.data(PropertyModel::ValueRole).toString(), u"20"_s);
    model.setSample(nullptr);
    QCOMPARE(model.rowCount(), 0);
    sample->setProperty("roundingRadius", 30);
    QCOMPARE(changes.size(), 1);
    // What is out of range is left alone.
    model.setSample(sample.get());
    model.change(-1, 1);
    model.change(model.rowCount(), 1);
    QCOMPARE(changes.size(), 1);
}

void tst_controls::marksWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("marked");
    QTest::newRow("comment") << u"Icon"_s << u"<font color=\"#8593a8\">// SPDX"_s;
    QTest::newRow("text") << u"Icon"_s << u"<font color=\"#7fe3c4\">&quot;#ffc247&quot;</font>"_s;
    QTest::newRow("number") << u"Rectangle"_s << u"<font color=\"#ff9aa8\">280</font>"_s;
    QTest::newRow("type") << u"Icon"_s << u"<font color=\"#ffc247\">Icon</font> {"_s;
    QTest::newRow("property") << u"Icon"_s << u"<font color=\"#9ecbff\">iconColor</font>:"_s;
    QTest::newRow("escaped") << u"Keyboard"_s << u"text =&gt; console"_s;
}

void tst_controls::marksWords()
{
    QFETCH(const QString, name);
    QFETCH(const QString, marked);
    Example example;
    QVERIFY(example.code().isEmpty());
    example.setName(name);
    QVERIFY2(example.markup().contains(marked), qPrintable(example.markup()));
}

QTEST_MAIN(tst_controls)

#include "tst_controls.moc"
