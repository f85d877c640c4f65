// SPDX-License-Identifier: MIT
#include <QtCore/QMetaProperty>
#include <QtGui/QBrush>
#include <QtGui/QFont>
#include <QtGui/QPainter>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickPaintedItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include <array>
#include <limits>
#include <memory>
#include <random>

using namespace Qt::StringLiterals;

namespace {

//! A native type, and how one of its objects comes into a scene.
struct Type
{
    const char *name;
    const char *declaration;
};

constexpr Type types[] = {
    {"BrushArea", "Generic.BrushArea { parent: _scene; width: 100; height: 60 }"},
    {"Helpers", "Generic.Helpers"},
    {"ImageColorizer", "Generic.ImageColorizer { sourceItem: _icon }"},
    {"KelGlobal", "Generic.KelGlobal"},
    {"LargeText", "Generic.LargeText { parent: _scene; width: 100; height: 60; text: 'One\nTwo' }"},
    {"ScrollBar", "Generic.ScrollBar { parent: _scene; width: 12; height: 100; maximum: 10 }"},
    {"Text", "Generic.Text { parent: _scene; width: 100; text: 'One two' }"},
    {"TopNumber",
        "Generic.TopNumber { parent: _scene; number: 7; penWidth: 4; font.pixelSize: 60; color: 'red';"
        " borderColor: 'blue' }"},
};

//! Properties of every item that decide about what is painted, and how large. Not those that turn or scale
//! it: Qt's software renderer takes minutes for the clip of a large item that stands aslant.
constexpr const char *itemProperties[] = {"x", "y", "width", "height", "implicitWidth", "implicitHeight", "z",
    "opacity", "visible", "clip", "smooth", "enabled", "antialiasing", "fillColor"};

constexpr int writesPerType = 30000;
constexpr int writesPerObject = 1500;
constexpr int writesPerFrame = 250;

//! Makes values up. The same seed makes up the same values.
class Inventor
{
public:
    explicit Inventor(uint seed)
        : m_random(seed)
    {
    }

    int upTo(int limit) { return std::uniform_int_distribution<int>(0, limit)(m_random); }
    bool chance(int percent) { return upTo(99) < percent; }
    template <typename T>
    T oneOf(std::initializer_list<T> values)
    {
        return *(values.begin() + upTo(int(values.size()) - 1));
    }

    int number()
    {
        using Limits = std::numeric_limits<int>;
        if (chance(50))
            return upTo(300) - 20;
        if (chance(50))
            return int(m_random());
        return oneOf({Limits::min(), Limits::min() + 1, -32769, -1, 0, 1, 32767, 32768, 65536, 1 << 30,
            Limits::max() - 1, Limits::max()});
    }

    double real()
    {
        using Limits = std::numeric_limits<double>;
        if (chance(50))
            return upTo(3000) / 10.0 - 20;
        return oneOf({Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(),
            Limits::lowest(), Limits::min(), Limits::denorm_min(), -0.0, 0.0, 0.49, 0.5, 1.0, 1e5, 1e10,
            1e300, 2147483647.0, 2147483648.0, -2147483648.0, -2147483649.0, 4294967296.0, -1e-300});
    }

    QString string()
    {
        switch (upTo(7)) {
        case 0:
            return {};
        case 1:
            return QString::number(number());
        case 2:
            return QString(QChar(u'a' + upTo(25))).repeated(upTo(3000));
        case 3:
            return QString(QChar(0xd800 + upTo(0x7ff))) + u"x"_s + QChar(0);
        case 4:
            return u"Слово и 字 и ערוץ 👩‍👩‍👧 \u2028 конец\n\tLast <b>line</b>"_s;
        case 5:
            return oneOf(
                {u"red"_s, u"#80123456"_s, u"#12"_s, u"transparent"_s, u"nan"_s, u"true"_s, u"0x10"_s});
        case 6:
            return u"один two "_s.repeated(upTo(200));
        default:
            return u"Title"_s;
        }
    }

    QColor color()
    {
        switch (upTo(4)) {
        case 0:
            return {};
        case 1:
            return QColor::fromHsv(upTo(359), upTo(255), upTo(255), upTo(255));
        case 2:
            return QColor::fromRgbF(2.5F, -1.0F, 0.5F);
        case 3:
            return QColor::fromCmyk(upTo(255), upTo(255), upTo(255), upTo(255));
        default:
            return QColor::fromRgba(m_random());
        }
    }

    QFont font()
    {
        QFont font(oneOf({u"DejaVu Sans"_s, u"DejaVu Serif"_s, u"No such font"_s, QString()}));
        if (chance(70))
            font.setPixelSize(1 + upTo(chance(90) ? 80 : 2000));
        else if (chance(70))
            font.setPointSizeF(0.1 + upTo(100));
        font.setBold(chance(30));
        font.setItalic(chance(20));
        font.setUnderline(chance(20));
        font.setStretch(chance(10) ? 1 + upTo(3999) : 100);
        font.setLetterSpacing(QFont::AbsoluteSpacing, chance(10) ? upTo(2000) - 1000 : 0);
        font.setWordSpacing(chance(10) ? upTo(2000) - 1000 : 0);
        return font;
    }

    QBrush brush()
    {
        const QPointF from(upTo(100), upTo(100));
        const QPointF to(upTo(100), upTo(100));
        switch (upTo(5)) {
        case 0:
            return {};
        case 1:
            return {color(), Qt::BrushStyle(upTo(Qt::DiagCrossPattern))};
        case 2:
            return filled(QLinearGradient(from, to));
        case 3:
            return filled(QRadialGradient(from, upTo(100), to, upTo(100)));
        case 4:
            return filled(QConicalGradient(from, upTo(720)));
        default: {
            QImage tile(1 + upTo(20), 1 + upTo(20), QImage::Format_ARGB32_Premultiplied);
            tile.fill(color());
            return tile;
        }
        }
    }

    QObject *object() { return m_objects.at(upTo(int(m_objects.size()) - 1)); }
    void setObjects(const QObjectList &objects) { m_objects = objects; }

    //! Of any type at all.
    QVariant value()
    {
        switch (upTo(17)) {
        case 0:
            return {};
        case 1:
            return QVariant::fromValue(nullptr);
        case 2:
            return chance(50);
        case 3:
            return number();
        case 4:
            return real();
        case 5:
            return string();
        case 6:
            return color();
        case 7:
            return font();
        case 8:
            return brush();
        case 9:
            return QVariant::fromValue(object());
        case 10:
            return QVariantList{number(), string(), QVariant()};
        case 11:
            return QStringList{string(), string()};
        case 12:
            return QVariantMap{{string(), number()}};
        case 13:
            return QUrl(string());
        case 14:
            return QSizeF(real(), real());
        case 15:
            return QByteArray(upTo(20), char(upTo(255)));
        case 16:
            return QVariant::fromValue(Qt::Alignment::fromInt(number()));
        default:
            return qint64(number()) * number();
        }
    }

    //! Of this type where it is a common one.
    QVariant valueOf(QMetaType type)
    {
        switch (type.id()) {
        case QMetaType::Bool:
            return chance(50);
        case QMetaType::Int:
            return number();
        case QMetaType::Double:
            return real();
        case QMetaType::QString:
            return string();
        case QMetaType::QColor:
            return color();
        case QMetaType::QFont:
            return font();
        case QMetaType::QBrush:
            return brush();
        case QMetaType::QUrl:
            return QUrl(u"http://a.example/"_s + string());
        default:
            if (type.flags() & QMetaType::IsEnumeration)
                return number();
            return type.flags() & QMetaType::PointerToQObject ? QVariant::fromValue(object()) : value();
        }
    }

private:
    QBrush filled(QGradient gradient)
    {
        gradient.setCoordinateMode(QGradient::CoordinateMode(upTo(3)));
        gradient.setSpread(QGradient::Spread(upTo(2)));
        for (int i = upTo(4); i > 0; --i)
            gradient.setColorAt(upTo(100) / 100.0, color());
        return gradient;
    }

    std::mt19937 m_random;
    QObjectList m_objects;
};

QtMessageHandler testHandler = nullptr;

//! Drops what Qt says of values that it cannot convert; thousands are tried.
void dropComplaints(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    constexpr std::array complaints{"Could not find any constructor for value type "_L1,
        "QFont::fromString: Invalid description"_L1, "QMetaEnum::keysToValue: "_L1};
    if (std::none_of(complaints.begin(), complaints.end(),
            [&](QLatin1StringView complaint) { return message.startsWith(complaint); }))
        testHandler(type, context, message);
}

} // namespace

//! Writes values of all kinds into every property of the native types, in a window that draws now and then.
class tst_Fuzz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anyValueInAnyProperty_data();
    void anyValueInAnyProperty();

private:
    void create(const QByteArray &declaration, Inventor &inventor);
    void write(const QMetaProperty &property, Inventor &inventor);
    void call(const QMetaMethod &method, Inventor &inventor);
    void draw(bool isInSight);

    std::unique_ptr<QQmlEngine> m_engine;
    QJSValue m_assign;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QQuickItem> m_scene;
    QObject *m_target = nullptr;
};

void tst_Fuzz::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    testHandler = qInstallMessageHandler(&dropComplaints);
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->addImportPath(QStringLiteral(KELUI_QML_DIR));
    m_assign =
        m_engine->evaluate(u"(function(object, name, value) {"
                           "    'use strict';"
                           "    try { object[name] = value; return true } catch (error) { return false }"
                           "})"_s);
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(160, 100);
    m_window->show();
}

void tst_Fuzz::cleanup()
{
    m_assign = {};
    m_scene.reset();
    m_window.reset();
    m_engine.reset();
    qInstallMessageHandler(testHandler);
}

void tst_Fuzz::create(const QByteArray &declaration, Inventor &inventor)
{
    QQmlComponent component(m_engine.get());
    component.setData("import QtQuick\n"
                      "import Kelui.UI.Qml.Controls.Generic as Generic\n"
                      "Item {\n"
                      "    id: _scene\n"
                      "    property QtObject target: "
            + declaration
            + "\n"
              "    Image { id: _icon; source: 'data:image/svg+xml,<svg xmlns=\"http://www.w3.org/2000/svg\""
              " width=\"9\" height=\"9\"><path d=\"M1 1h5v5z\"/></svg>' }\n"
              "    Rectangle { width: 5; height: 5 }\n"
              "}",
        {});
    m_scene.reset(qobject_cast<QQuickItem *>(component.create()));
    QVERIFY2(m_scene, qPrintable(component.errorString()));
    m_scene->setParentItem(m_window->contentItem());
    m_target = m_scene->property("target").value<QObject *>();
    QVERIFY(m_target);
    QObjectList objects{nullptr, m_scene.get(), m_target};
    const QList<QQuickItem *> items = m_scene->childItems();
    for (QQuickItem *item : items)
        objects += item;
    inventor.setObjects(objects);
}

//! From C++ or from a script. A value is taken or refused; then nothing changes.
void tst_Fuzz::write(const QMetaProperty &property, Inventor &inventor)
{
    const QVariant value = inventor.chance(60) ? inventor.valueOf(property.metaType()) : inventor.value();
    const QVariant before = property.read(m_target);
    const bool isTaken = inventor.chance(50)
        ? property.write(m_target, value)
        : m_assign
              .call({m_engine->toScriptValue(m_target), QString::fromLatin1(property.name()),
                  m_engine->toScriptValue(value)})
              .toBool();
    const QVariant after = property.read(m_target);
    QCOMPARE(after.metaType(), property.metaType());
    QVERIFY(!isTaken || property.isWritable());
    if (!isTaken && property.metaType().id() != QMetaType::Double)
        QCOMPARE(after, before);
}

void tst_Fuzz::call(const QMetaMethod &method, Inventor &inventor)
{
    constexpr int most = 5;
    QVariantList values;
    std::array<QGenericArgument, most> arguments;
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QMetaType type = method.parameterMetaType(i);
        QVariant value = inventor.valueOf(type);
        if (!value.convert(type))
            value = QVariant(type);
        values += value;
    }
    for (int i = 0; i < values.size(); ++i)
        arguments.at(i) = QGenericArgument(values.at(i).metaType().name(), values.at(i).constData());
    QVERIFY(method.invoke(m_target, Qt::DirectConnection, arguments[0], arguments[1], arguments[2],
        arguments[3], arguments[4]));
}

void tst_Fuzz::draw(bool isInSight)
{
    auto *item = qobject_cast<QQuickItem *>(m_target);
    if (item && isInSight) {
        item->setPosition({5, 5});
        item->setSize({150, 90});
        item->setVisible(true);
        item->setOpacity(1);
    }
    QCOMPARE(m_window->grabWindow().size(), m_window->size());
    if (auto *painted = qobject_cast<QQuickPaintedItem *>(m_target)) {
        QImage picture(64, 64, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painted->paint(&painter);
    }
    QCoreApplication::processEvents();
}

void tst_Fuzz::anyValueInAnyProperty_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<uint>("seed");
    bool isGiven = false;
    const uint given = qEnvironmentVariable("KELUI_SEED").toUInt(&isGiven);
    const uint seed = isGiven ? given : 1;
    for (const Type &type : types)
        QTest::addRow("%s, seed %u", type.name, seed) << QByteArray(type.declaration) << seed;
}

void tst_Fuzz::anyValueInAnyProperty()
{
    QFETCH(const QByteArray, declaration);
    QFETCH(const uint, seed);
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    Inventor inventor(seed);
    create(declaration, inventor);

    const QMetaObject *meta = m_target->metaObject();
    QList<QMetaProperty> properties;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
        properties += meta->property(i);
    for (const char *name : itemProperties) {
        if (meta->indexOfProperty(name) >= 0)
            properties += meta->property(meta->indexOfProperty(name));
    }
    QList<QMetaMethod> methods;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() != QMetaMethod::Signal)
            methods += meta->method(i);
    }
    const int choices = int(properties.size() + methods.size());
    QVERIFY(choices > 0);

    for (int i = 1; i <= writesPerType; ++i) {
        const int choice = inventor.upTo(choices - 1);
        if (choice < properties.size())
            write(properties.at(choice), inventor);
        else
            call(methods.at(choice - properties.size()), inventor);
        if (i % writesPerFrame == 0)
            draw(inventor.chance(50));
        if (i % writesPerObject == 0)
            create(declaration, inventor);
        if (QTest::currentTestFailed())
            return;
    }
}

QTEST_MAIN(tst_Fuzz)

#include "tst_fuzz.moc"
