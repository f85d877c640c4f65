// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QMetaProperty>
#include <QtQml/QQmlParserStatus>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

//! What tests of painted items share.
namespace PaintedItem {

//! What the engine does before it assigns the properties of a declaration.
inline void beginComponent(QQuickItem &item)
{
    static_cast<QQmlParserStatus &>(item).classBegin();
}

inline void completeComponent(QQuickItem &item)
{
    static_cast<QQmlParserStatus &>(item).componentComplete();
}

inline bool isRepaintRequested(QQuickItem &item)
{
    return QQuickItemPrivate::get(&item)->dirtyAttributes & QQuickItemPrivate::Content;
}

inline void forgetRepaintRequest(QQuickItem &item)
{
    QQuickItemPrivate::get(&item)->dirtyAttributes = 0;
}

inline QSizeF implicitSizeOf(const QQuickItem &item)
{
    return {item.implicitWidth(), item.implicitHeight()};
}

inline QMetaProperty propertyOf(const QObject &object, const char *name)
{
    const QMetaObject *meta = object.metaObject();
    return meta->property(meta->indexOfProperty(name));
}

//! How an item stands at a signal.
struct State
{
    QVariant value;
    bool isRepaintRequested;
    QSizeF implicitSize;

    bool operator==(const State &) const = default;
};

inline State stateOf(QQuickItem &item, const QMetaProperty &property)
{
    return {.value = property.read(&item),
        .isRepaintRequested = isRepaintRequested(item),
        .implicitSize = implicitSizeOf(item)};
}

//! Hears every signal of an item that is its class's own.
class Listener : public QObject
{
    Q_OBJECT

public:
    Listener(QQuickItem &item, const QMetaProperty &property)
        : m_item(item)
        , m_property(property)
        , m_spy(&item, property.notifySignal())
    {
        const QMetaObject *meta = item.metaObject();
        const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("hear()"));
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                connect(&item, meta->method(i), this, slot);
        }
    }

    const QList<State> &heard() const { return m_heard; }
    //! Those of the property's own signal.
    QList<QVariantList> arguments() const { return {m_spy.begin(), m_spy.end()}; }

private Q_SLOTS:
    void hear() { m_heard += stateOf(m_item, m_property); }

private:
    QQuickItem &m_item;
    QMetaProperty m_property;
    QSignalSpy m_spy;
    QList<State> m_heard;
};

//! A property, as the meta-object should tell of it.
struct Property
{
    const char *name;
    QMetaType type;
    QByteArray notifier;
    bool isFinal;
    bool isRequired;
};

inline void compareProperties(const QMetaObject &meta, const QList<Property> &expected)
{
    QCOMPARE(meta.superClass(), &QQuickPaintedItem::staticMetaObject);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        const QMetaProperty property = meta.property(meta.propertyOffset() + i);
        QCOMPARE(property.name(), expected.at(i).name);
        QCOMPARE(property.metaType(), expected.at(i).type);
        QCOMPARE(property.notifySignal().methodSignature(), expected.at(i).notifier);
        QCOMPARE(property.isFinal(), expected.at(i).isFinal);
        QCOMPARE(property.isRequired(), expected.at(i).isRequired);
        QVERIFY(property.isReadable());
        QVERIFY(property.isWritable());
        QVERIFY(!property.isResettable());
    }
}

//! The class's own signals, in order; it has no other methods.
inline void compareSignals(const QMetaObject &meta, const QByteArrayList &expected)
{
    QByteArrayList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Signal);
        signatures += meta.method(i).methodSignature();
    }
    QCOMPARE(signatures, expected);
}

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

//! Sizes at which an item shows nothing, and takes no memory for a picture.
inline void addEmptySizes()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("none") << QSizeF(0, 0);
    QTest::newRow("no width") << QSizeF(0, 50);
    QTest::newRow("no height") << QSizeF(50, 0);
    QTest::newRow("hardly any") << QSizeF(0.4, 0.4);
    QTest::newRow("hardly any width") << QSizeF(1e-300, 50);
    QTest::newRow("negative") << QSizeF(-50, -50);
    QTest::newRow("negative width") << QSizeF(-50, 50);
    QTest::newRow("negative, huge") << QSizeF(-1e300, -infinity);
    QTest::newRow("wide") << QSizeF(1e5, 50);
    QTest::newRow("high") << QSizeF(50, 1e5);
    QTest::newRow("large") << QSizeF(30000, 30000);
    QTest::newRow("largest int") << QSizeF(2147483647, 2147483647);
    QTest::newRow("beyond int") << QSizeF(1e10, 1e10);
    QTest::newRow("huge") << QSizeF(1e300, 1e300);
    QTest::newRow("infinite") << QSizeF(infinity, infinity);
    QTest::newRow("infinite width") << QSizeF(infinity, 50);
}

//! A white window around one item.
class Scene
{
public:
    explicit Scene(QQuickItem &item)
        : m_item(item)
    {
        m_window.setColor(Qt::white);
        m_window.resize(320, 200);
        item.setParentItem(m_window.contentItem());
        m_window.show();
    }
    ~Scene() { m_item.setParentItem(nullptr); }
    Q_DISABLE_COPY_MOVE(Scene)

    QQuickWindow &window() { return m_window; }

    //! What the window shows. Only what has changed since the last picture is painted.
    QImage picture()
    {
        if (!QTest::qWaitForWindowExposed(&m_window))
            return {};
        return m_window.grabWindow().convertToFormat(QImage::Format_RGB32);
    }

private:
    QQuickItem &m_item;
    QQuickWindow m_window;
};

inline QImage blank(QSize size, QImage::Format format = QImage::Format_RGB32)
{
    QImage picture(size, format);
    picture.fill(Qt::white);
    return picture;
}

//! What paint() alone draws on white.
inline QImage painted(QQuickPaintedItem &item, QSize size = {320, 200})
{
    QImage picture = blank(size);
    QPainter painter(&picture);
    item.paint(&painter);
    return picture;
}

//! The pixels that are not white.
inline QRect inkOf(const QImage &picture)
{
    QRect area;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != 0xffffffff)
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

} // namespace PaintedItem
