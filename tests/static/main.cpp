// SPDX-License-Identifier: MIT
#include <QtCore/QFile>
#include <QtCore/QLibraryInfo>
#include <QtGui/QColor>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlExtensionPlugin>

#include <cstdio>
#include <cstdlib>
#include <memory>

Q_IMPORT_QML_PLUGIN(Kelui_UI_Qml_Controls_GenericPlugin)

using namespace Qt::StringLiterals;

namespace {

bool hasWarned = false;

void handleMessage(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &message)
{
    hasWarned = true;
    fprintf(stderr, "%s\n", qPrintable(message));
}

bool check(bool holds, const char *what)
{
    if (!holds)
        fprintf(stderr, "failed: %s\n", what);
    return holds;
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(handleMessage);
    QGuiApplication application(argc, argv);
    QQmlEngine engine;
    // The module's own resources, and nothing beside the program.
    engine.setImportPathList({u":/"_s, QLibraryInfo::path(QLibraryInfo::QmlImportsPath)});

    QQmlComponent component(&engine, QUrl(u"qrc:/main.qml"_s));
    if (!check(component.isReady(), qPrintable(component.errorString())))
        return EXIT_FAILURE;
    const std::unique_ptr<QObject> scene(component.create());
    const auto *button = scene ? scene->property("button").value<QObject *>() : nullptr;
    const bool holds = check(button, "a button") && check(button->property("width") == 200, "its width")
        && check(button->property("text") == u"Generic QML Plugin"_s, "its text")
        && check(button->property("background").value<QObject *>()->property("color").value<QColor>()
                == QColor(0x333333),
            "its colour")
        && check(QFile::exists(u":/Kelui/UI/Qml/Controls/Generic/qmldir"_s), "the module's resources")
        && check(!hasWarned, "no warning");
    if (holds)
        puts("OK");
    return holds ? EXIT_SUCCESS : EXIT_FAILURE;
}
