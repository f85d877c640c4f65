// SPDX-License-Identifier: MIT
#include "scene.h"

#include <QtQuick/QQuickRenderTarget>

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
