// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/QQmlApplicationEngine>
#include <QtQuick/QQuickWindow>

#include <memory>

//! The gallery as it runs, with properties of its window given.
inline std::unique_ptr<QQmlApplicationEngine> loadGallery(const QVariantMap &properties = {})
{
    auto engine = std::make_unique<QQmlApplicationEngine>();
    engine->addImportPath(QStringLiteral(KELUI_QML_DIR));
    engine->setInitialProperties(properties);
    engine->loadFromModule("Kelui.Gallery", "Main");
    return engine;
}

//! Null where the gallery has not been loaded.
inline QQuickWindow *windowOf(const QQmlApplicationEngine &engine)
{
    return qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
}
