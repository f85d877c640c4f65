// SPDX-License-Identifier: MIT
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtTest/QTest>

#include <memory>

using namespace Qt::StringLiterals;

//! What is installed is complete, and does not need the build tree.
class tst_install : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void moduleRunsFromThere();
};

void tst_install::moduleRunsFromThere()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    const QTemporaryDir prefix;
    QVERIFY(prefix.isValid());
    QProcess installer;
    installer.start(QStringLiteral(KELUI_CMAKE),
        {u"--install"_s, QStringLiteral(KELUI_BUILD_DIR), u"--prefix"_s, prefix.path()});
    QVERIFY(installer.waitForFinished(60000));
    QVERIFY2(installer.exitCode() == 0, installer.readAllStandardError().constData());

    QQmlEngine engine;
    engine.addImportPath(prefix.filePath(u"qml"_s));
    QQmlComponent component(&engine);
    component.setData("import Kelui.UI.Qml.Controls.Generic\nText { text: 'Kelui' }", QUrl());
    const std::unique_ptr<QObject> text(component.create());
    QVERIFY2(text, qPrintable(component.errorString()));

    QFile maps(u"/proc/self/maps"_s);
    if (!maps.open(QIODevice::ReadOnly))
        QSKIP("The system does not tell which libraries are loaded");
    const QByteArray libraries = maps.readAll();
    const QByteArray installed = QFile::encodeName(prefix.path());
    QVERIFY(libraries.contains(installed + "/" KELUI_LIBRARY_DIR "/libkelcore.so"));
    QVERIFY(libraries.contains(
        installed + "/qml/Kelui/UI/Qml/Controls/Generic/libqmlgenericcontrolsextensionplugin.so"));
    QVERIFY(!libraries.contains(KELUI_BUILD_DIR "/kelcore/"));
}

QTEST_MAIN(tst_install)

#include "tst_install.moc"
