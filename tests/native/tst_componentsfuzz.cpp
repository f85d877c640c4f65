// SPDX-License-Identifier: MIT
#include <QtCore/QMetaProperty>
#include <QtCore/private/qhooks_p.h>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include <memory>

#include "../../gallery/animationclock.h"
#include "../qml/remote.h"
#include "inventor.h"

using namespace Qt::StringLiterals;

namespace {

//! A component, and how one is declared.
struct Type
{
    const char *name;
    const char *properties;
};

constexpr Type types[] = {
    {"BusyIndicator", "imageLeft: _strip; imageRight: _strip; animationInterval: 40; header: 'One'"},
    {"Button",
        "fixedSize: Qt.size(120, 50); titleText: 'One'; leftIconSource: _picture; backgroundColors: _colors;"
        " titleColors: _colors; subtitleColors: _colors; leftIconColors: _colors; rightIconColors: _colors"},
    {"CheckBox",
        "text: 'One'; iconPath: _picture; indicatorColors: _colors; iconColors: _colors;"
        " titleColors: _colors"},
    {"ClippableImage", "image.source: _picture; width: 9"},
    {"Highlight", "view: list; animationEnabled: true; animationDuration: 200"},
    {"Icon", "source: _picture; iconColor: 'red'"},
    {"Key", "imagePath: _picture"},
    {"Keyboard", "type: 2; keyWidth: 12; keyHeight: 12; backspaceIconPath: _picture"},
    {"LayoutSpacer", ""},
    {"LineEdit",
        "width: 100; selected: true; keyboardLayout: 0; backgroundColors: _colors; textColors: _colors;"
        " placeholderTextColors: _colors; placeholderText: 'One'"},
    {"MainMenuButton", "text: 'One'; leftIconSource: _picture; rightIconSource: _picture"},
    {"MediaBlock", "model: _model; delegate: _delegate"},
    {"Rectangle", "width: 50; height: 50; forceRounding: true"},
    {"RewindIcon", "source: _picture; speed: 4"},
    {"RoundedImage", "source: _picture"},
    {"ScrolledGridView",
        "width: 150; height: 90; elementWidth: 40; elementHeight: 30; model: _model; delegate: _delegate"},
    {"ScrolledListView", "width: 150; height: 90; model: _model; delegate: _delegate"},
    {"SpinnerIndicator", ""},
    {"TabButton", "text: 'One'; minimumHeight: 40"},
};

constexpr char scene[] = R"(
import QtQuick
import Kelui.UI.Qml.Controls.Generic as Generic

Item {
    id: _scene

    readonly property string _picture: "%3/icon.png"
    readonly property string _strip: "%3/strip_left.png"
    readonly property var _colors: ({ normal: "red", focused: "gold", selected: "blue", checked: "teal",
                                      disabled: "gray", wide: "white" })
    readonly property Component _delegate: Rectangle { width: 40; height: 30; color: "gray" }
    readonly property Component _view: ListView { width: 100; height: 50; model: _model; delegate: _delegate }
    readonly property Component _target: Generic.%1 { %2 }
    readonly property QtObject model: ListModel { id: _model }
    property Item list
    property Item target

    Component.onCompleted: {
        change(0, 0, 30);
        list = _view.createObject(_scene);
        target = _target.createObject(_scene);
    }

    function change(kind, index, count) {
        const from = index % (_model.count + 1);
        const rest = _model.count - from;
        if (kind === 0)
            for (let i = 0; i < count; ++i) _model.insert(from, { name: "One" });
        else if (kind === 1 && rest > 0)
            _model.remove(from, 1 + count % rest);
        else if (kind === 2 && rest > 0)
            _model.move(from, 0, 1);
        else if (kind === 3)
            _model.clear();
        else if (kind === 4 && list)
            list.currentIndex = index - 2;
        else if (kind === 5) {
            list?.destroy();
            list = count > 25 ? _view.createObject(_scene) : null;
        }
    }
}
)";

//! The properties of Qt's own types that the components build upon. Not those that turn or scale an item:
//! Qt's software renderer is slow to clip it, and reads beyond the picture of a round corner. Nor flow, rows
//! and columns of a grid, where Qt takes any number for a true one, and runs out of time or of its memory.
constexpr char inherited[] =
    "^(x|y|z|width|height|implicitWidth|implicitHeight|opacity|visible|enabled|clip|state|font|text"
    "|.*[pP]adding|.*Inset|.*[sS]pacing|.*Margin|checked|checkable|down|display|mirror|layoutDirection|source"
    "|sourceSize|fillMode|horizontalAlignment|verticalAlignment|model|currentIndex|orientation|contentX|"
    "contentY"
    "|highlight.*|preferredHighlight.*|snapMode|keyNavigationWraps|radius|color)$";

//! What is rightly said of the values that are tried.
constexpr const char *allowed[] = {
    "QML (Rounded)?Image: (Cannot open|Error decoding): ", "^Broken filename passed to function$",
    // A map of state colours that is none, or lacks a colour.
    ("/(Button|CheckBox|LineEdit)[.]qml:[0-9]+: TypeError: (Value is|Cannot read property '[a-z]+' of)"
     " (null|undefined)( and could not be converted to an object)?$"),
    "/(Button|LineEdit)[.]qml:[0-9:]+: Unable to assign .* to (QColor|QVariantList)$",
    "/RewindIcon[.]qml:[0-9:]+ QML ListModel: set: index [0-9]+ out of range$",
    "Animation: Cannot set a duration of < 0$", "^QEasingCurve: Invalid ",
    "^QFont::setPointSizeF: Point size <= 0 ", "^QPen::setWidthF: Setting a pen width that is out of range$",
    "/Keyboard[.]qml:[0-9:]+ QML Key: Layout: invalid column span: ",
    "^Model size of [-0-9]+ is (less|bigger) than "};

constexpr int lives = 10;
constexpr int stepsPerLife = 600;
// Many more than a keyboard with all its keys has.
constexpr int mostChildren = 2000;
// For what Qt makes once, whenever that is, and the pictures in its cache.
constexpr int objectsToSpare = 300;

int objectCount = 0;
QtMessageHandler testHandler = nullptr;

void dropAllowed(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    static const QRegularExpression expression(
        QString::fromLatin1(QByteArrayList(std::begin(allowed), std::end(allowed)).join('|')));
    // A pattern matches no broken character.
    if (!isConversionComplaint(message) && !expression.match(QString::fromUtf8(message.toUtf8())).hasMatch())
        testHandler(type, context, message);
}

} // namespace

//! Does anything at all to the components, in a window that draws now and then.
class tst_ComponentsFuzz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anythingDoneToAComponent_data();
    void anythingDoneToAComponent();

private:
    void create(const QString &scene);
    QString step(Inventor &inventor);
    QString write(Inventor &inventor);
    QString call(Inventor &inventor);
    void draw(bool isInSight);
    QVariant valueOf(QMetaType type, Inventor &inventor);
    void removeDeleted() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    std::unique_ptr<AnimationClock> m_clock;
    std::unique_ptr<QQmlEngine> m_engine;
    QJSValue m_assign;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QQuickItem> m_scene;
    QQuickItem *m_target = nullptr;
    QList<QMetaProperty> m_properties;
    QList<QMetaMethod> m_methods;
};

void tst_ComponentsFuzz::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    testHandler = qInstallMessageHandler(&dropAllowed);
    m_clock = std::make_unique<AnimationClock>();
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->addImportPath(QStringLiteral(KELUI_QML_DIR));
    m_assign = m_engine->evaluate(
        u"((object, name, value) => { try { object[name] = value } catch (error) { } })"_s);
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(160, 100);
    m_window->show();
}

void tst_ComponentsFuzz::cleanup()
{
    m_assign = {};
    m_scene.reset();
    m_window.reset();
    m_engine.reset();
    m_clock.reset();
    qInstallMessageHandler(testHandler);
}

void tst_ComponentsFuzz::create(const QString &scene)
{
    QQmlComponent component(m_engine.get());
    component.setData(scene.toUtf8(), QUrl(QStringLiteral("file://" KELUI_PICTURES "/scene.qml")));
    m_scene.reset(qobject_cast<QQuickItem *>(component.create()));
    QVERIFY2(m_scene, qPrintable(component.errorString()));
    m_scene->setParentItem(m_window->contentItem());
    m_target = m_scene->property("target").value<QQuickItem *>();
    QVERIFY(m_target);
    static const QRegularExpression expression(QLatin1StringView{inherited});
    const QMetaObject *meta = m_target->metaObject();
    const QMetaObject *native = meta;
    while (QLatin1StringView(native->className()).contains("_QML"_L1))
        native = native->superClass();
    m_properties.clear();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QLatin1StringView name(property.name());
        const bool isOurs = i >= native->propertyCount();
        if (property.isWritable() && (isOurs || expression.match(name).hasMatch()))
            m_properties += property;
    }
    m_methods.clear();
    for (int i = native->methodCount(); i < meta->methodCount(); ++i)
        m_methods += meta->method(i);
}

QVariant tst_ComponentsFuzz::valueOf(QMetaType type, Inventor &inventor)
{
    const QString picture = QStringLiteral("file://" KELUI_PICTURES "/icon.png");
    switch (type.id()) {
    case QMetaType::QUrl:
        return inventor.oneOf({QUrl(), QUrl(picture), QUrl(u"file:///none.png"_s)});
    case QMetaType::QString:
        return inventor.chance(30) ? picture : inventor.string();
    case QMetaType::QSize:
        // Of a picture, which Qt may really make this large.
        return QSize(inventor.upTo(120) - 20, inventor.upTo(120) - 20);
    case QMetaType::QSizeF:
        return QSizeF(inventor.real(), inventor.real());
    case QMetaType::QVariant:
        break;
    default:
        if (type == QMetaType::fromType<QList<double>>())
            return QVariantList(inventor.upTo(13), inventor.real());
        if (type.flags() & QMetaType::PointerToQObject)
            return inventor.chance(50) ? m_scene->property("list") : QVariant::fromValue(inventor.object());
        return inventor.valueOf(type);
    }
    if (inventor.chance(20))
        return m_scene->property("model");
    if (inventor.chance(50))
        return inventor.value();
    QVariantMap colors;
    for (const QString &state :
        {u"normal"_s, u"focused"_s, u"selected"_s, u"checked"_s, u"disabled"_s, u"wide"_s}) {
        if (inventor.chance(80))
            colors[state] = inventor.chance(80) ? inventor.color() : inventor.value();
    }
    return colors;
}

//! As scripts do, which ends a binding.
QString tst_ComponentsFuzz::write(Inventor &inventor)
{
    const QMetaProperty property = m_properties.at(inventor.upTo(int(m_properties.size()) - 1));
    const QString name = QString::fromLatin1(property.name());
    QVariant value = inventor.chance(80) ? valueOf(property.metaType(), inventor) : inventor.value();
    // Qt makes pictures as large as these, and items for all of a large view; views never get beyond an
    // infinite gap.
    const bool isCanvas = m_target->inherits("QQuickCanvasItem");
    if (name.endsWith("adius"_L1) || name.endsWith("pacing"_L1)
        || (isCanvas && (name == u"width" || name == u"height")))
        value = qBound(-20.0, inventor.real(), 100.0);
    else if (name == u"model" && value.canConvert<qlonglong>())
        value = inventor.upTo(40) - 2;
    m_assign.call({m_engine->toScriptValue(m_target), name, m_engine->toScriptValue(value)});
    property.read(m_target);
    QString text;
    QDebug(&text) << "write" << name << value;
    return text;
}

//! Signals too: to emit one calls its handlers.
QString tst_ComponentsFuzz::call(Inventor &inventor)
{
    if (m_methods.isEmpty())
        return {};
    const QMetaMethod method = m_methods.at(inventor.upTo(int(m_methods.size()) - 1));
    QJSValueList arguments;
    QString text;
    QDebug(&text) << "call" << method.name();
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QVariant value =
            inventor.chance(70) ? valueOf(method.parameterMetaType(i), inventor) : inventor.value();
        arguments += m_engine->toScriptValue(value);
        QDebug(&text) << value;
    }
    const QJSValue target = m_engine->toScriptValue(m_target);
    target.property(QString::fromLatin1(method.name())).callWithInstance(target, arguments);
    return text;
}

void tst_ComponentsFuzz::draw(bool isInSight)
{
    if (isInSight) {
        m_target->setPosition({5, 5});
        m_target->setSize({150, 90});
        m_target->setVisible(true);
        m_target->setOpacity(1);
        m_target->setScale(1);
    }
    QCOMPARE(m_window->grabWindow().size(), m_window->size());
    QCoreApplication::processEvents();
    removeDeleted();
}

//! Returns what was done.
QString tst_ComponentsFuzz::step(Inventor &inventor)
{
    const int dice = inventor.upTo(99);
    if (dice < 55)
        return write(inventor);
    if (dice < 65)
        return call(inventor);
    if (dice < 75) {
        const int key = inventor.oneOf<int>({Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
            Qt::Key_Return, Qt::Key_Space, Qt::Key_Back, Qt::Key_Backspace, Qt::Key_Home, Qt::Key_End,
            Qt::Key_0, Qt::Key_5, Qt::Key_5, Qt::Key_A});
        Remote::press(m_target, key, inventor.chance(70) ? u"5"_s : inventor.string(), Qt::NoModifier,
            inventor.chance(20));
        return u"press 0x%1"_s.arg(key, 0, 16);
    }
    if (dice < 85) {
        const int time = inventor.oneOf({0, 1, 16, 100, 300, 500, 1000, 3600000});
        m_clock->step(time);
        return u"pass %1 ms"_s.arg(time);
    }
    if (dice < 92) {
        const int kind = inventor.upTo(5);
        const int index = inventor.upTo(50);
        QMetaObject::invokeMethod(
            m_scene.get(), "change", QVariant(kind), QVariant(index), QVariant(inventor.upTo(50)));
        return u"change %1 at %2"_s.arg(kind).arg(index);
    }
    draw(inventor.chance(50));
    return u"draw"_s;
}

void tst_ComponentsFuzz::anythingDoneToAComponent_data()
{
    QTest::addColumn<QString>("scene");
    QTest::addColumn<uint>("seed");
    bool isGiven = false;
    const uint given = qEnvironmentVariable("KELUI_SEED").toUInt(&isGiven);
    const uint seed = isGiven ? given : 1;
    for (const Type &type : types)
        QTest::addRow("%s, seed %u", type.name, seed) << QString::fromLatin1(scene).arg(
            QLatin1StringView(type.name), QLatin1StringView(type.properties),
            QStringLiteral("file://" KELUI_PICTURES)) << seed;
}

void tst_ComponentsFuzz::anythingDoneToAComponent()
{
    QFETCH(const QString, scene);
    QFETCH(const uint, seed);
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    Inventor inventor(seed);
    int objects = 0;
    for (int life = 0; life < lives; ++life) {
        create(scene);
        inventor.setObjects({nullptr, m_scene.get(), m_target});
        QStringList steps;
        for (int i = 0; i < stepsPerLife && !QTest::currentTestFailed(); ++i)
            steps += step(inventor).left(300);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(steps.sliced(qMax(0, steps.size() - 20)).join(u'\n')));
        QCOMPARE_LT(m_target->findChildren<QObject *>().size(), mostChildren);
        delete m_target;
        m_scene.reset();
        m_engine->collectGarbage();
        removeDeleted();
        if (life == 0)
            objects = objectCount;
        QCOMPARE_LE(objectCount, objects + objectsToSpare);
    }
}

int main(int argc, char **argv)
{
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(+[](QObject *) { ++objectCount; });
    qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(+[](QObject *) { --objectCount; });
    // What Qt compiles while it runs returns from a write that threw with a value made of nothing.
    qputenv("QV4_JIT_CALL_THRESHOLD", "2147483647");
    const QGuiApplication application(argc, argv);
    tst_ComponentsFuzz test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_componentsfuzz.moc"
