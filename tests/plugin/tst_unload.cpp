// SPDX-License-Identifier: MIT
#include <QtCore/QFile>
#include <QtCore/QPluginLoader>
#include <QtCore/QPointer>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtTest/QTest>

#include <memory>

#ifdef Q_OS_UNIX
#include <dlfcn.h>
#endif

using namespace Qt::StringLiterals;

namespace {

bool isInMemory()
{
#ifdef Q_OS_UNIX
    void *library = dlopen(KELUI_PLUGIN, RTLD_LAZY | RTLD_NOLOAD);
    if (library)
        dlclose(library);
    return library != nullptr;
#else
    return false;
#endif
}

} // namespace

//! A program of its own, because a plugin that an engine was the first to load stays in memory for ever.
class tst_Unload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unloadsAfterUse();
};

void tst_Unload::unloadsAfterUse()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    const QString qmldir = u":/Kelui/UI/Qml/Controls/Generic/qmldir"_s;
    const QString button = u":/Kelui/UI/Qml/Controls/Generic/qml/Button.qml"_s;
    QVERIFY(!QFile::exists(qmldir));

    QPluginLoader loader(QStringLiteral(KELUI_PLUGIN));
    loader.setLoadHints({});
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    const QPointer<QObject> instance = loader.instance();
    QVERIFY(instance);
    QVERIFY(!instance->parent());
    QCOMPARE(loader.instance(), instance.data());
    for (int use = 0; use < 2; ++use) {
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral(KELUI_QML_DIR));
        QQmlComponent component(&engine);
        component.setData("import Kelui.UI.Qml.Controls.Generic\n"
                          "Icon { property double limit: KelGlobal.numberMaxValue }",
            {});
        const std::unique_ptr<QObject> icon(component.create());
        QVERIFY2(icon, qPrintable(component.errorString()));
    }
    QVERIFY(QFile::exists(qmldir));
    QVERIFY(QFile::exists(button));

    // Has every type forgotten, so that nothing points into the code that goes.
    qmlClearTypeRegistrations();
    QVERIFY2(loader.unload(), qPrintable(loader.errorString()));
    QVERIFY(!instance);
    // Where a system keeps the code all the same (a symbol shared with another library is enough), its
    // resources stay with it.
    QCOMPARE(QFile::exists(qmldir), isInMemory());
    QCOMPARE(QFile::exists(button), isInMemory());
}

QTEST_MAIN(tst_Unload)

#include "tst_unload.moc"
