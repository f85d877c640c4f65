// SPDX-License-Identifier: MIT
#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTextStream>
#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlApplicationEngine>
#include <QtQml/QQmlError>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRendererInterface>

#include <cstring>

#ifdef KELUI_HAS_GAMEPAD
#include "gamepad.h"
#endif
#include "language.h"
#include "shots.h"

namespace {

int fail(const QString &message)
{
    QTextStream(stderr) << "kelui-gallery: " << message << '\n';
    return 1;
}

//! The platform must be known before there is an application to read the options.
bool isAskedForShots(int argc, char **argv)
{
    return std::any_of(argv, argv + argc, [](const char *argument) {
        return std::strcmp(argument, "--shots") == 0 || std::strncmp(argument, "--shots=", 8) == 0;
    });
}

QSize toSize(const QString &text)
{
    const QStringList sides = text.split(QLatin1Char('x'));
    return sides.size() == 2 ? QSize(sides.at(0).toInt(), sides.at(1).toInt()) : QSize();
}

bool useBundledFont()
{
    const QDir folder(QStringLiteral(":/qt/qml/Kelui/Gallery/assets/fonts"));
    QStringList families;
    const QStringList files = folder.entryList(QDir::Files);
    for (const QString &file : files)
        families +=
            QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(folder.filePath(file)));
    if (families.isEmpty())
        return false;
    // The bundled one has no Hebrew and no Arabic.
    families.removeDuplicates();
    QFont font(families + QStringList{QStringLiteral("DejaVu Sans")});
    font.setPixelSize(20);
    QGuiApplication::setFont(font);
    return true;
}

QString whatIsMissing(const QStringList &importPaths, const QList<QQmlError> &errors)
{
    const auto module = QStringLiteral("Kelui/UI/Qml/Controls/Generic/qmldir");
    const bool isModuleFound = std::any_of(importPaths.cbegin(), importPaths.cend(),
        [&](const QString &path) { return QFileInfo::exists(QDir(path).filePath(module)); });
    QString message = QStringLiteral("cannot show its pages\n");
    for (const QQmlError &error : errors)
        message += QStringLiteral("  %1\n").arg(error.toString());
    if (isModuleFound)
        return message;
    message += QStringLiteral("The QML module Kelui.UI.Qml.Controls.Generic is missing. Looked for %1 in:\n")
                   .arg(module);
    for (const QString &path : importPaths)
        message += QStringLiteral("  %1\n").arg(path);
    return message + QStringLiteral("Build it, or name the folder that holds it with --import.");
}

} // namespace

int main(int argc, char **argv)
{
    const bool isTakingShots = isAskedForShots(argc, argv);
    if (isTakingShots)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("kelui-gallery"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Kelui"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows the controls of Kelui. Keys: arrows, OK (Return), "
                                                    "Back (Escape or Backspace), digits for pages, F1 to F4 "
                                                    "for the colours of a remote."));
    parser.addHelpOption();
    const QCommandLineOption shotsOption(QStringLiteral("shots"),
        QStringLiteral("Write pictures of the pages into DIR and quit; needs no display."),
        QStringLiteral("DIR"));
    const QCommandLineOption sizeOption(QStringLiteral("size"),
        QStringLiteral("Size of the window or of the pictures."), QStringLiteral("WxH"),
        QStringLiteral("1280x720"));
    const QCommandLineOption pageOption(QStringLiteral("page"),
        QStringLiteral(
            "Open a page, such as that of a control, by its name or number; take pictures of it only."),
        QStringLiteral("NAME"), QStringLiteral("1"));
    const QCommandLineOption importOption(QStringLiteral("import"),
        QStringLiteral("Look for the module in DIR instead of the folder that it was built into."),
        QStringLiteral("DIR"));
    const QCommandLineOption languageOption(QStringLiteral("language"),
        QStringLiteral("Speak 'en' or 'ru' instead of the system's language; pictures are in English."),
        QStringLiteral("CODE"), isTakingShots ? QStringLiteral("en") : Language::systemCode());
    parser.addOptions({shotsOption, sizeOption, pageOption, importOption, languageOption});
    parser.process(application);

    const QSize size = toSize(parser.value(sizeOption));
    if (size.isEmpty())
        return fail(QStringLiteral("'%1' is not a size such as 1920x1080").arg(parser.value(sizeOption)));
    const QString language = parser.value(languageOption);
    if (!Language::codes().contains(language))
        return fail(QStringLiteral("does not speak '%1', but: %2")
                .arg(language, Language::codes().join(QStringLiteral(", "))));
    if (!useBundledFont())
        return fail(QStringLiteral("cannot load its fonts"));

    QQmlApplicationEngine engine;
    if (parser.isSet(importOption)) {
        engine.addImportPath(QDir(parser.value(importOption)).absolutePath());
    } else {
        engine.addImportPath(QStringLiteral(KELUI_QML_DIR));
        // The build moved elsewhere as a whole.
        const QDir programs(QGuiApplication::applicationDirPath());
        engine.addImportPath(QDir::cleanPath(programs.filePath(QStringLiteral(KELUI_RELATIVE_QML_DIR))));
    }
    QList<QQmlError> errors;
    engine.setOutputWarningsToStandardError(false);
    const auto collecting = QObject::connect(&engine, &QQmlEngine::warnings, &engine,
        [&errors](const QList<QQmlError> &warnings) { errors += warnings; });
    engine.setInitialProperties(
        {{QStringLiteral("isAnimated"), !isTakingShots}, {QStringLiteral("language"), language},
            {QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}});
    engine.loadFromModule("Kelui.Gallery", "Main");
    auto *window = engine.rootObjects().isEmpty()
        ? nullptr
        : qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    if (!window)
        return fail(whatIsMissing(engine.importPathList(), errors));
    QObject::disconnect(collecting);
    engine.setOutputWarningsToStandardError(true);

    int page = -1;
    QMetaObject::invokeMethod(window, "pageIndex", qReturnArg(page), parser.value(pageOption));
    if (page < 0) {
        QStringList names;
        QMetaObject::invokeMethod(window, "pageNames", qReturnArg(names));
        return fail(QStringLiteral("has no page '%1'; there are: %2")
                .arg(parser.value(pageOption), names.join(QStringLiteral(", "))));
    }
    if (isTakingShots)
        return takeShots(*window, QDir(parser.value(shotsOption)),
                   parser.isSet(pageOption) ? std::optional(page) : std::nullopt)
            ? 0
            : 1;

    QMetaObject::invokeMethod(window, "openPage", page);
    window->show();
    // Without a window manager, nobody else gives it the keys.
    window->requestActivate();
#ifdef KELUI_HAS_GAMEPAD
    const Gamepad gamepad;
#endif
    return QGuiApplication::exec();
}
