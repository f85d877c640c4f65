// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QMetaProperty>
#include <QtGui/QImage>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickRenderControl>
#include <QtQuick/QQuickWindow>

#include <memory>

//! A window that draws into an image with the software renderer, a frame at a time.
class Scene
{
public:
    explicit Scene(const QSize &size = {1280, 720});
    ~Scene();

    //! QML source, which sees Qt Quick and the module as K.
    std::unique_ptr<QQmlComponent> compile(const QByteArray &source);
    //! An item that the scene shows.
    std::unique_ptr<QQuickItem> create(QQmlComponent &component);
    std::unique_ptr<QQuickItem> create(const QByteArray &source) { return create(*compile(source)); }
    void renderFrame();
    //! Lets events happen for some time and draws whenever something has changed. Returns the number of
    //! frames.
    int run(std::chrono::milliseconds time);

    //! Whether QML source can import a module of this name.
    bool canImport(const QByteArray &module);
    //! Gives the window the input focus, and with it the item that has it in the scene.
    void activate();

private:
    QQmlEngine m_engine;
    QImage m_image;
    QQuickRenderControl m_control;
    QQuickWindow m_window;
};

//! A property of an object, found once and written often.
class Property
{
public:
    Property(QObject *object, const char *name);

    void write(const QVariant &value) const;
    QVariant read() const { return m_property.read(m_object); }
    void reset() const { m_property.reset(m_object); }

private:
    QObject *m_object;
    QMetaProperty m_property;
};
