// SPDX-License-Identifier: MIT
#include "scene.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtQuick/QQuickRenderTarget>

#include <utility>

Scene::Scene(const QSize &size)
    : m_image(size, QImage::Format_ARGB32_Premultiplied)
    , m_window(&m_control)
{
    m_engine.addImportPath(QStringLiteral(KELUI_QML_DIR));
    m_window.setGeometry(QRect({}, size));
    m_window.contentItem()->setSize(size);
    m_window.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&m_image));
}

Scene::~Scene() = default;

std::unique_ptr<QQmlComponent> Scene::compile(const QByteArray &source)
{
    auto component = std::make_unique<QQmlComponent>(&m_engine);
    component->setData("import QtQuick\nimport Kelui.UI.Qml.Controls.Generic as K\n" + source, QUrl());
    return component;
}

std::unique_ptr<QQuickItem> Scene::create(QQmlComponent &component)
{
    std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem *>(component.create()));
    if (!item)
        qFatal("%s", qPrintable(component.errorString()));
    item->setParentItem(m_window.contentItem());
    return item;
}

void Scene::renderFrame()
{
    m_control.polishItems();
    m_control.sync();
    m_control.render();
}

int Scene::run(std::chrono::milliseconds time)
{
    bool hasChanged = false;
    const auto note = [&hasChanged] { hasChanged = true; };
    const auto asked = QObject::connect(&m_control, &QQuickRenderControl::renderRequested, note);
    const auto changed = QObject::connect(&m_control, &QQuickRenderControl::sceneChanged, note);
    int frames = 0;
    const QDeadlineTimer deadline(time);
    while (!deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, deadline);
        if (std::exchange(hasChanged, false)) {
            renderFrame();
            ++frames;
        }
    }
    QObject::disconnect(asked);
    QObject::disconnect(changed);
    return frames;
}

bool Scene::canImport(const QByteArray &module)
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQml\nimport " + module + "\nQtObject {}", QUrl());
    return component.isReady();
}

void Scene::activate()
{
    m_window.show();
    m_window.requestActivate();
}

Property::Property(QObject *object, const char *name)
    : m_object(object)
    , m_property(object->metaObject()->property(object->metaObject()->indexOfProperty(name)))
{
    if (!m_property.isValid())
        qFatal("no property %s", name);
}

void Property::write(const QVariant &value) const
{
    if (!m_property.write(m_object, value))
        qFatal("cannot write %s", m_property.name());
}
