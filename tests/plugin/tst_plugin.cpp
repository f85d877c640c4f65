// SPDX-License-Identifier: MIT
#include <QtCore/QDirIterator>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QPluginLoader>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtTest/QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString moduleUri = u"Kelui.UI.Qml.Controls.Generic"_s;
const QString importFolder = QStringLiteral(KELUI_QML_DIR);
const QString moduleFolder = importFolder + u"/Kelui/UI/Qml/Controls/Generic"_s;
const QString resourceFolder = u":/Kelui/UI/Qml/Controls/Generic"_s;
const QString plugin = QStringLiteral(KELUI_PLUGIN);

//! What the module's qmldir says first.
const QStringList header{
    u"module Kelui.UI.Qml.Controls.Generic"_s,
    u"linktarget qmlgenericcontrolsextensionplugin"_s,
    u"optional plugin qmlgenericcontrolsextensionplugin"_s,
    u"classname Kelui_UI_Qml_Controls_GenericPlugin"_s,
    u"typeinfo qmlgenericcontrolsextensionplugin.qmltypes"_s,
    u"depends QtQuick"_s,
    u"prefer :/Kelui/UI/Qml/Controls/Generic/"_s,
};

//! What it says next: every component, in order.
const QStringList components{
    u"singleton AnimationInterpolators 1.0 qml/AnimationInterpolators.qml"_s,
    u"BusyIndicator 1.0 qml/BusyIndicator.qml"_s,
    u"Button 1.0 qml/Button.qml"_s,
    u"CheckBox 1.0 qml/CheckBox.qml"_s,
    u"Highlight 1.0 qml/Highlight.qml"_s,
    u"Icon 1.0 qml/Icon.qml"_s,
    u"Key 1.0 qml/Key.qml"_s,
    u"Keyboard 1.0 qml/Keyboard.qml"_s,
    u"LayoutSpacer 1.0 qml/LayoutSpacer.qml"_s,
    u"LineEdit 1.0 qml/LineEdit.qml"_s,
    u"MainMenuButton 1.0 qml/MainMenuButton.qml"_s,
    u"MediaBlock 1.0 qml/MediaBlock.qml"_s,
    u"singleton PluginInfo 1.0 qml/PluginInfo.qml"_s,
    u"RewindIcon 1.0 qml/RewindIcon.qml"_s,
    u"ScrolledGridView 1.0 qml/ScrolledGridView.qml"_s,
    u"ScrolledListView 1.0 qml/ScrolledListView.qml"_s,
    u"SpinnerIndicator 1.0 qml/SpinnerIndicator.qml"_s,
    u"TabButton 1.0 qml/TabButton.qml"_s,
    u"ClippableImage 1.0 qml/without_opengl/ClippableImage.qml"_s,
    u"Rectangle 1.0 qml/without_opengl/Rectangle.qml"_s,
    u"RoundedImage 1.0 qml/without_opengl/RoundedImage.qml"_s,
};

//! What the module registers of C++, in order; every item's base is made known with the first item.
const QStringList nativeClasses{u"KelBrushArea"_s, u"QQuickItem, 254"_s, u"KelGlobal"_s, u"KelHelpers"_s,
    u"KelImageColorizer"_s, u"KelLargeText"_s, u"KelScrollBar"_s, u"KelText"_s, u"KelTopNumber"_s};

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

//! The files below a folder, relative to it.
QStringList filesBelow(const QString &folder, const QString &name)
{
    QStringList files;
    for (QDirIterator it(folder, {name}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        files.append(it.next().mid(folder.size() + 1));
    files.sort();
    return files;
}

class Application
{
public:
    Application() { m_engine.addImportPath(importFolder); }

    QQmlEngine &engine() { return m_engine; }

    std::unique_ptr<QObject> create(const QByteArray &qml)
    {
        QQmlComponent component(&m_engine);
        component.setData(qml, QUrl(u"test.qml"_s));
        return take(component);
    }

    std::unique_ptr<QObject> create(const QUrl &url)
    {
        QQmlComponent component(&m_engine, url);
        return take(component);
    }

    QString error() const { return m_error; }

private:
    std::unique_ptr<QObject> take(QQmlComponent &component)
    {
        m_error = component.errorString();
        return std::unique_ptr<QObject>(component.isReady() ? component.create() : nullptr);
    }

    QQmlEngine m_engine;
    QString m_error;
};

const QByteArray anything = "import Kelui.UI.Qml.Controls.Generic\nRectangle {}"_ba;

} // namespace

class tst_Plugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void metadata();
    void qmldirLines();
    void everyListedFileExists_data();
    void everyListedFileExists();
    void nothingElseIsShipped();
    void registrationsInOrder();

    void resourcesComeWithTheImport();
    void pluginInfo();
    void importOfAnotherMajorVersionIsRefused();
    void singletonsAreOnePerEngine_data();
    void singletonsAreOnePerEngine();
    void typesAreRegisteredOnce();
    void bothTextTypesStayReachable();
    void localFilesAreCompiledFromTheirSource();
};

void tst_Plugin::metadata()
{
    const QJsonObject data = QPluginLoader(plugin).metaData();
    QCOMPARE(data[u"IID"_s].toString(), u"org.qt-project.Qt.QQmlEngineExtensionInterface"_s);
    QCOMPARE(data[u"className"_s].toString(), u"Kelui_UI_Qml_Controls_GenericPlugin"_s);
    QCOMPARE(data[u"uri"_s].toArray(), QJsonArray{moduleUri});
}

void tst_Plugin::qmldirLines()
{
    const QString text = QString::fromUtf8(contents(moduleFolder + u"/qmldir"_s));
    const QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines, header + components);
}

void tst_Plugin::everyListedFileExists_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &line : components) {
        const QString file = line.section(u' ', -1);
        QTest::newRow(qPrintable(file)) << file;
    }
}

void tst_Plugin::everyListedFileExists()
{
    QFETCH(const QString, file);
    Application application;
    QVERIFY2(application.create(anything), qPrintable(application.error()));
    QVERIFY(QFile::exists(moduleFolder + u'/' + file));
    QVERIFY(QFile::exists(resourceFolder + u'/' + file));
    QCOMPARE(contents(resourceFolder + u'/' + file), contents(moduleFolder + u'/' + file));
}

void tst_Plugin::nothingElseIsShipped()
{
    Application application;
    QVERIFY2(application.create(anything), qPrintable(application.error()));
    QStringList listed;
    for (const QString &line : components)
        listed.append(line.section(u' ', -1));
    listed.sort();
    QCOMPARE(filesBelow(resourceFolder, u"*.qml"_s), listed);
    // A second one, in qml/ or below, would hide the first from the files beside it.
    QCOMPARE(filesBelow(resourceFolder, u"qmldir"_s), QStringList{u"qmldir"_s});
    QCOMPARE(filesBelow(moduleFolder, u"qmldir"_s), QStringList{u"qmldir"_s});
}

void tst_Plugin::registrationsInOrder()
{
    const QString text = QString::fromUtf8(contents(QStringLiteral(KELUI_REGISTRATIONS)));
    const QRegularExpression registration(
        uR"(qmlRegister(TypesAndRevisions|AnonymousType|Module)(?:<([^>]*)>)?\(("[^)]*)\))"_s);
    QStringList classes;
    QString afterwards;
    for (const QRegularExpressionMatch &match : registration.globalMatch(text)) {
        if (match.captured(1) == "TypesAndRevisions"_L1)
            QCOMPARE(match.captured(3), u"\"%1\", 1"_s.arg(moduleUri));
        if (match.captured(1) == "Module"_L1)
            afterwards = match.captured(3);
        else
            classes.append(match.captured(2));
    }
    QCOMPARE(afterwards, u"\"%1\", 1, 0"_s.arg(moduleUri));
    QCOMPARE(classes, nativeClasses);
}

void tst_Plugin::resourcesComeWithTheImport()
{
    Application application;
    QVERIFY2(application.create(anything), qPrintable(application.error()));
    QVERIFY(QFile::exists(u":/Kelui/UI/Qml/Controls/Generic/qmldir"_s));
    QCOMPARE(contents(resourceFolder + u"/qmldir"_s), contents(moduleFolder + u"/qmldir"_s));
}

void tst_Plugin::pluginInfo()
{
    Application application;
    const auto info = application.create("import QtQml\n"
                                         "import Kelui.UI.Qml.Controls.Generic\n"
                                         "import Kelui.UI.Qml.Controls.Generic as KELUIQCG\n"
                                         "QtObject {\n"
                                         "    property int majorVersion: PluginInfo.majorVersion\n"
                                         "    property int minorVersion: PluginInfo.minorVersion\n"
                                         "    property string pluginInfo: KELUIQCG.PluginInfo.pluginInfo\n"
                                         "}");
    QVERIFY2(info, qPrintable(application.error()));
    QCOMPARE(info->property("majorVersion"), 1);
    QCOMPARE(info->property("minorVersion"), 0);
    QCOMPARE(info->property("pluginInfo"), u"Generic QML Plugin"_s);
}

void tst_Plugin::importOfAnotherMajorVersionIsRefused()
{
    Application application;
    QVERIFY(!application.create("import Kelui.UI.Qml.Controls.Generic 2.0\nRectangle {}"));
    QVERIFY2(application.error().contains(moduleUri), qPrintable(application.error()));
    QVERIFY2(application.create("import Kelui.UI.Qml.Controls.Generic 1.0\nRectangle {}"),
        qPrintable(application.error()));
}

void tst_Plugin::singletonsAreOnePerEngine_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("native") << u"KelGlobal"_s;
    QTest::newRow("QML") << u"PluginInfo"_s;
}

void tst_Plugin::singletonsAreOnePerEngine()
{
    QFETCH(const QString, name);
    QPointer<QObject> singleton;
    QPointer<QObject> otherSingleton;
    Application application;
    {
        Application other;
        QVERIFY(application.create(anything));
        QVERIFY(other.create(anything));
        singleton = application.engine().singletonInstance<QObject *>(moduleUri, name);
        otherSingleton = other.engine().singletonInstance<QObject *>(moduleUri, name);
        QVERIFY(singleton);
        QVERIFY(otherSingleton);
        QVERIFY(singleton != otherSingleton);
        QCOMPARE(application.engine().singletonInstance<QObject *>(moduleUri, name), singleton);
        QVERIFY(!singleton->parent());
    }
    QVERIFY(!otherSingleton);
    QVERIFY(singleton);
}

void tst_Plugin::typesAreRegisteredOnce()
{
    Application first;
    QVERIFY(first.create(anything));
    const QList<const char *> names{"KelGlobal", "ImageColorizer", "Text"};
    QList<int> ids;
    for (const char *name : names)
        ids.append(qmlTypeId(qPrintable(moduleUri), 1, 0, name));
    QVERIFY(!ids.contains(-1));
    Application second;
    QVERIFY(second.create(anything));
    for (qsizetype index = 0; index < names.size(); ++index)
        QCOMPARE(qmlTypeId(qPrintable(moduleUri), 1, 0, names[index]), ids[index]);
}

void tst_Plugin::bothTextTypesStayReachable()
{
    Application application;
    const auto item = application.create("import QtQuick\n"
                                         "import Kelui.UI.Qml.Controls.Generic as KELUIQCG\n"
                                         "Item { Text {} KELUIQCG.Text {} }");
    QVERIFY2(item, qPrintable(application.error()));
    QCOMPARE(QByteArray(item->children().at(0)->metaObject()->className()), "QQuickText"_ba);
    QCOMPARE(QByteArray(item->children().at(1)->metaObject()->className()), "KelText"_ba);
}

void tst_Plugin::localFilesAreCompiledFromTheirSource()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"Button.qml"_s);
    const QByteArray original = contents(moduleFolder + u"/qml/Button.qml"_s);
    const QByteArray changed = QByteArray(original).replace("roundingRadius: 15", "roundingRadius: 16");
    QVERIFY(changed != original);
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(changed);
    file.close();

    Application application;
    QQmlComponent component(&application.engine(), QUrl::fromLocalFile(name));
    const QVariant colors(QVariantMap{{u"normal"_s, u"red"_s}});
    const std::unique_ptr<QObject> button(
        component.createWithInitialProperties({{u"backgroundColors"_s, colors}, {u"leftIconColors"_s, colors},
            {u"rightIconColors"_s, colors}, {u"titleColors"_s, colors}, {u"subtitleColors"_s, colors}}));
    QVERIFY2(button, qPrintable(component.errorString()));
    QCOMPARE(button->property("roundingRadius"), 16);
    QVERIFY(button->property("background").value<QObject *>()->inherits("QQuickRectangle"));
}

QTEST_MAIN(tst_Plugin)

#include "tst_plugin.moc"
