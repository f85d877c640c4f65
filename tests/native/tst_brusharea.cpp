// SPDX-License-Identifier: MIT
#include <QtGui/QPainter>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

#include <memory>

#include "kelbrusharea.h"
#include "painteditem.h"

using namespace Qt::StringLiterals;
using namespace PaintedItem;

namespace {

//! The same each time: textures are equal where their pictures are one.
QBrush texture()
{
    static const QBrush brush = [] {
        QImage tile(7, 5, QImage::Format_RGB32);
        tile.fill(Qt::darkGreen);
        tile.setPixelColor(3, 2, Qt::yellow);
        return QBrush(tile);
    }();
    return brush;
}

QBrush objectGradient()
{
    QLinearGradient gradient(0, 0, 1, 1);
    gradient.setCoordinateMode(QGradient::ObjectMode);
    gradient.setColorAt(0, Qt::red);
    gradient.setColorAt(1, Qt::blue);
    return gradient;
}

QBrush radialGradient()
{
    QRadialGradient gradient(50, 25, 60);
    gradient.setColorAt(0, Qt::magenta);
    gradient.setColorAt(1, QColor(0, 0, 0, 60));
    return gradient;
}

//! The filled pixels of a red area on white.
QImage filled(QRect area)
{
    QImage picture = blank({320, 200});
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            picture.setPixel(x, y, 0xffff0000);
    }
    return picture;
}

} // namespace

class tst_BrushArea : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qmlRegisterType<KelBrushArea>("Areas", 1, 0, "Area"); }
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void defaults();
    void interface();
    void setter_data();
    void setter();
    void newItemPaintsNothing();
    void filledAreas_data();
    void filledAreas();
    void fills_data();
    void fills();
    void brushes_data();
    void brushes();
    void showsNothing_data() { addEmptySizes(); }
    void showsNothing();
    void ignoresNaN();
    void brushFromQml();
};

void tst_BrushArea::defaults()
{
    KelBrushArea area;
    QCOMPARE(area.brush(), QBrush(Qt::NoBrush));
    QCOMPARE(area.flags(), QQuickItem::ItemHasContents);
    QCOMPARE(implicitSizeOf(area), QSizeF(0, 0));
}

void tst_BrushArea::interface()
{
    const QMetaObject &meta = KelBrushArea::staticMetaObject;
    compareProperties(meta,
        {{.name = "brush",
            .type = QMetaType::fromType<QBrush>(),
            .notifier = "brushChanged()",
            .isFinal = false,
            .isRequired = false}});
    compareSignals(meta, {"brushChanged()"});
}

void tst_BrushArea::setter_data()
{
    QTest::addColumn<QBrush>("before");
    QTest::addColumn<QBrush>("after");
    const QBrush red(Qt::red);
    QTest::newRow("first") << QBrush() << red;
    QTest::newRow("none") << red << QBrush();
    QTest::newRow("color") << red << QBrush(Qt::blue);
    QTest::newRow("alpha") << red << QBrush(QColor(255, 0, 0, 254));
    QTest::newRow("style") << red << QBrush(Qt::red, Qt::Dense4Pattern);
    QTest::newRow("gradient") << objectGradient() << radialGradient();
    QTest::newRow("texture") << red << texture();
    QBrush turned = texture();
    turned.setTransform(QTransform().rotate(45));
    QTest::newRow("transform") << texture() << turned;
}

void tst_BrushArea::setter()
{
    QFETCH(const QBrush, before);
    QFETCH(const QBrush, after);
    for (const bool isComplete : {true, false}) {
        KelBrushArea area;
        if (!isComplete)
            beginComponent(area);
        area.setBrush(before);
        forgetRepaintRequest(area);
        const QMetaProperty property = propertyOf(area, "brush");
        const Listener listener(area, property);

        area.setBrush(before);
        QVERIFY(listener.heard().isEmpty());
        QVERIFY(!isRepaintRequested(area));

        area.setBrush(after);
        QCOMPARE(area.brush(), after);
        QCOMPARE(listener.heard().size(), 1);
        QCOMPARE(listener.heard().at(0).value.value<QBrush>(), after);
        QVERIFY(listener.heard().at(0).isRepaintRequested);
        QCOMPARE(implicitSizeOf(area), QSizeF(0, 0));
    }
}

void tst_BrushArea::newItemPaintsNothing()
{
    KelBrushArea area;
    area.setSize({100, 50});
    QCOMPARE(painted(area), blank({320, 200}));
    Scene scene(area);
    QCOMPARE(scene.picture(), blank({320, 200}));
    area.setBrush(Qt::red);
    QCOMPARE(scene.picture(), filled({0, 0, 100, 50}));
    area.setBrush({});
    QCOMPARE(scene.picture(), blank({320, 200}));
}

void tst_BrushArea::filledAreas_data()
{
    constexpr int longest = 1 << 24;
    QTest::addColumn<QRectF>("geometry");
    QTest::addColumn<QRect>("area");
    QTest::newRow("whole") << QRectF(0, 0, 100, 50) << QRect(0, 0, 100, 50);
    QTest::newRow("truncated size") << QRectF(0, 0, 100.9, 50.9) << QRect(0, 0, 100, 50);
    QTest::newRow("truncated position") << QRectF(30.9, 10.9, 100, 50) << QRect(30, 10, 100, 50);
    QTest::newRow("truncated toward zero") << QRectF(-30.9, -0.9, 100, 50) << QRect(-30, 0, 100, 50);
    QTest::newRow("negative size") << QRectF(0, 0, -5.5, -0.5) << QRect(0, 0, -5, 0);
    QTest::newRow("beyond screens") << QRectF(-1e10, 2147483647, 2147483648.0, 1e300)
                                    << QRect(-longest, longest, longest, longest);
    QTest::newRow("smallest int") << QRectF(-2147483648.0, -2147483648.0, -2147483648.0, 1)
                                  << QRect(-longest, -longest, -longest, 1);
    QTest::newRow("infinite") << QRectF(-infinity, infinity, infinity, -infinity)
                              << QRect(-longest, longest, longest, -longest);
    QTest::newRow("not a number") << QRectF(notANumber, notANumber, notANumber, notANumber)
                                  << QRect(-longest, -longest, -longest, -longest);
}

void tst_BrushArea::filledAreas()
{
    QFETCH(const QRectF, geometry);
    QTEST(KelBrushArea::filledArea(geometry), "area");
}

void tst_BrushArea::fills_data()
{
    QTest::addColumn<QRectF>("geometry");
    // What paint() fills, cut at the corner of a picture; and what a window shows, cut at the item too.
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QRect>("shown");
    QTest::newRow("at the corner") << QRectF(0, 0, 100, 50) << QRect(0, 0, 100, 50) << QRect(0, 0, 100, 50);
    QTest::newRow("parts of pixels") << QRectF(0, 0, 100.9, 50.9) << QRect(0, 0, 100, 50)
                                     << QRect(0, 0, 100, 50);
    QTest::newRow("elsewhere") << QRectF(30, 10, 100, 50) << QRect(30, 10, 100, 50) << QRect(60, 20, 70, 40);
    QTest::newRow("beyond itself") << QRectF(110, 10, 100, 50) << QRect(110, 10, 100, 50) << QRect();
    QTest::newRow("before the corner")
        << QRectF(-30, -10, 100, 50) << QRect(0, 0, 70, 40) << QRect(0, 0, 40, 30);
    QTest::newRow("far away") << QRectF(2147483647, 0, 100, 50) << QRect() << QRect();
    QTest::newRow("far before") << QRectF(0, -2147483648.0, 100, 50) << QRect() << QRect();
    QTest::newRow("infinitely far") << QRectF(infinity, -infinity, 100, 50) << QRect() << QRect();
}

void tst_BrushArea::fills()
{
    QFETCH(const QRectF, geometry);
    QFETCH(const QRect, area);
    QFETCH(const QRect, shown);
    KelBrushArea item;
    item.setPosition(geometry.topLeft());
    item.setSize(geometry.size());
    item.setBrush(Qt::red);
    QCOMPARE(painted(item), filled(area));
    Scene scene(item);
    QCOMPARE(scene.picture(), filled(shown));
}

void tst_BrushArea::brushes_data()
{
    QTest::addColumn<QBrush>("brush");
    QTest::newRow("half transparent") << QBrush(QColor(255, 0, 0, 128));
    QTest::newRow("pattern") << QBrush(Qt::blue, Qt::DiagCrossPattern);
    QTest::newRow("texture") << texture();
    QTest::newRow("gradient") << radialGradient();
    QTest::newRow("gradient of the area") << objectGradient();
}

void tst_BrushArea::brushes()
{
    QFETCH(const QBrush, brush);
    KelBrushArea area;
    area.setSize({100, 50});
    area.setBrush(brush);
    QImage expected = blank({320, 200});
    QPainter(&expected).fillRect(QRect(0, 0, 100, 50), brush);
    QVERIFY(inkOf(expected) == QRect(0, 0, 100, 50) || brush.style() == Qt::DiagCrossPattern);
    QCOMPARE(painted(area), expected);
    if (brush.isOpaque()) {
        Scene scene(area);
        QCOMPARE(scene.picture(), expected);
    }
}

void tst_BrushArea::showsNothing()
{
    QFETCH(const QSizeF, size);
    KelBrushArea area;
    area.setBrush(Qt::red);
    area.setSize({100, 50});
    Scene scene(area);
    QCOMPARE(scene.picture(), filled({0, 0, 100, 50}));
    area.setSize(size);
    QCOMPARE(scene.picture(), blank({320, 200}));
    area.setBrush(Qt::blue);
    QCOMPARE(scene.picture(), blank({320, 200}));
    area.setBrush(Qt::red);
    area.setSize({100, 50});
    QCOMPARE(scene.picture(), filled({0, 0, 100, 50}));
    if (size.isEmpty()) {
        area.setSize(size);
        // Where the mirror image of a negative size would be seen.
        area.setPosition({60, 60});
        QCOMPARE(painted(area), blank({320, 200}));
    }
}

//! Qt Quick ignores a width that is not a number; painting alone can meet one.
void tst_BrushArea::ignoresNaN()
{
    KelBrushArea area;
    area.setBrush(Qt::red);
    area.setSize({100, 50});
    Scene scene(area);
    area.setWidth(notANumber);
    area.setX(notANumber);
    QCOMPARE(scene.picture(), filled({0, 0, 100, 50}));
    area.setPosition({notANumber, notANumber});
    area.setSize({notANumber, notANumber});
    painted(area);
    scene.picture();
}

void tst_BrushArea::brushFromQml()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(
        "import QtQuick\n"
        "import Areas\n"
        "Item {\n"
        "    property var fill\n"
        "    property int changes: 0\n"
        "    Area { width: 100; height: 50; brush: parent.fill; onBrushChanged: ++parent.changes }\n"
        "}",
        {});
    const std::unique_ptr<QObject> root(
        component.createWithInitialProperties({{u"fill"_s, QVariant::fromValue(texture())}}));
    QVERIFY2(root, qPrintable(component.errorString()));
    const auto *area = root->findChild<KelBrushArea *>();
    QVERIFY(area);
    QCOMPARE(area->brush(), texture());
    QCOMPARE(root->property("changes"), 1);
    root->setProperty("fill", QVariant::fromValue(objectGradient()));
    QCOMPARE(area->brush(), objectGradient());
    QCOMPARE(root->property("changes"), 2);
}

QTEST_MAIN(tst_BrushArea)

#include "tst_brusharea.moc"
