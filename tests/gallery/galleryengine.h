// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/QQmlApplicationEngine>
#include <QtQml/QQmlIncubator>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

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

//! Views make their items a few at a time; an engine that ends meanwhile warns.
inline void endGallery(std::unique_ptr<QQmlApplicationEngine> &engine)
{
    const auto isReady = [&engine] {
        const QQmlIncubationController *controller = engine ? engine->incubationController() : nullptr;
        return !controller || controller->incubatingObjectCount() == 0;
    };
    QVERIFY(QTest::qWaitFor(isReady));
    engine.reset();
}
