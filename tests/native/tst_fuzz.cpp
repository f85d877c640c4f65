// SPDX-License-Identifier: MIT
#include <QtCore/QMetaProperty>
#include <QtGui/QPainter>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickPaintedItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include <array>
#include <memory>

#include "inventor.h"

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

QtMessageHandler testHandler = nullptr;

//! Thousands of values are tried.
void dropComplaints(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!isConversionComplaint(message))
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
