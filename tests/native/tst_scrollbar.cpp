// SPDX-License-Identifier: MIT
#include <QtGui/QPainter>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

#include <memory>
#include <random>

#include "kelscrollbar.h"
#include "kelscrollbar_p.h"
#include "painteditem.h"

using namespace Qt::StringLiterals;
using namespace PaintedItem;

namespace {

constexpr int largestInt = std::numeric_limits<int>::max();

//! Corners, as the layout speaks of them.
QRect corners(int left, int top, int right, int bottom)
{
    return {QPoint(left, top), QPoint(right, bottom)};
}

/*!
    The layout of the slider step by step, in doubles, which hold every number of it exactly but the
    products.
*/
QRect plainSliderArea(QSize size, Qt::Orientation orientation, int maximum, int sliderPosition)
{
    const QRect null(0, 0, 0, 0);
    const double length = orientation == Qt::Horizontal ? size.width() : size.height();
    if (length < 1)
        return null;
    if (maximum < 1)
        return null;
    const double ratio = length / maximum;
    const double sliderLength = std::max({length - maximum, std::trunc(length / 20), std::trunc(ratio)});
    const double p = std::trunc(sliderPosition * ratio);
    double start = std::trunc(p - (p / length) * sliderLength);
    double end = start + sliderLength - 1;
    if (length < end) {
        start = length - sliderLength + 1;
        end = length;
    }
    if (orientation == Qt::Vertical)
        return corners(0, int(start), size.width() - 1, int(end));
    return corners(int(start), 0, int(end), size.height() - 1);
}

KelScrollBar &configured(KelScrollBar &bar, QSizeF size, int maximum, int sliderPosition)
{
    bar.setSize(size);
    bar.setBackgroundColor(Qt::red);
    bar.setSliderColor(Qt::blue);
    bar.setMaximum(maximum);
    bar.setSliderPosition(sliderPosition);
    return bar;
}

//! A track and its slider on white, with square corners.
QImage drawn(QRect track, QRect slider)
{
    QImage picture = blank({320, 200});
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (slider.contains(x, y))
                picture.setPixel(x, y, 0xff0000ff);
            else if (track.contains(x, y))
                picture.setPixel(x, y, 0xffff0000);
        }
    }
    return picture;
}

} // namespace

class tst_ScrollBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qmlRegisterType<KelScrollBar>("Bars", 1, 0, "Bar"); }
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void defaults();
    void interface();
    void setters_data();
    void setters();
    void negativeMaximumIsIgnored();
    void positions_data();
    void positions();
    void positionOutOfRangeIsAChangeEachTime();
    void loweredMaximumKeepsThePosition();

    void sliderAreas_data();
    void sliderAreas();
    void sameAsTheStepsOneByOne_data();
    void sameAsTheStepsOneByOne();
    void sliderStaysOnAnyTrack_data();
    void sliderStaysOnAnyTrack();

    void paintsTrackAndSlider_data();
    void paintsTrackAndSlider();
    void followsItsPosition();
    void sizeAloneDoesNotMoveTheSlider();
    void completionLaysOut_data();
    void completionLaysOut();
    void unmovedSliderIsNotRepainted();
    void colorsBlend();
    void roundingRadiusWaitsForARepaint();
    void roundedCorners_data();
    void roundedCorners();
    void showsNothing_data() { addEmptySizes(); }
    void showsNothing();
    void hugeSizes_data();
    void hugeSizes();
};

void tst_ScrollBar::defaults()
{
    KelScrollBar bar;
    QCOMPARE(bar.maximum(), 0);
    QCOMPARE(bar.sliderPosition(), 0);
    QCOMPARE(bar.backgroundColor(), QColor::fromRgbF(0, 0, 0, 0.2F));
    QCOMPARE(bar.sliderColor(), QColor::fromRgbF(1, 1, 1, 0.5F));
    QCOMPARE(bar.orientation(), Qt::Vertical);
    QCOMPARE(bar.flags(), QQuickItem::ItemHasContents);
    QCOMPARE(bar.acceptedMouseButtons(), Qt::NoButton);
    QVERIFY(!bar.acceptHoverEvents() && !bar.acceptTouchEvents());
    QCOMPARE(implicitSizeOf(bar), QSizeF(0, 0));
}

void tst_ScrollBar::interface()
{
    const QMetaObject &meta = KelScrollBar::staticMetaObject;
    const auto number = QMetaType::fromType<int>();
    const auto color = QMetaType::fromType<QColor>();
    compareProperties(meta,
        {{.name = "maximum",
             .type = number,
             .notifier = "maximumChanged()",
             .isFinal = false,
             .isRequired = false},
            {.name = "sliderPosition",
                .type = number,
                .notifier = "sliderPositionChanged()",
                .isFinal = false,
                .isRequired = false},
            {.name = "backgroundColor",
                .type = color,
                .notifier = "backgroundColorChanged()",
                .isFinal = false,
                .isRequired = false},
            {.name = "sliderColor",
                .type = color,
                .notifier = "sliderColorChanged()",
                .isFinal = false,
                .isRequired = false}});
    compareSignals(meta,
        {"maximumChanged()", "sliderPositionChanged()", "backgroundColorChanged()", "sliderColorChanged()"});
}

void tst_ScrollBar::setters_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("after");
    // Of a bar 100 high with a maximum of 10 at the position 5.
    QTest::addColumn<bool>("repaints");
    const auto add = [](const char *name, const char *tag, const QVariant &after, bool repaints) {
        QTest::addRow("%s, %s", name, tag) << QByteArray(name) << after << repaints;
    };
    add("maximum", "larger", 20, true);
    add("maximum", "lower", 3, true);
    add("maximum", "none", 0, true);
    add("maximum", "largest", largestInt, true);
    add("sliderPosition", "lower", 4, true);
    add("sliderPosition", "start", 0, true);
    add("sliderPosition", "end", 10, true);
    add("backgroundColor", "other", QColor(Qt::yellow), true);
    add("backgroundColor", "alpha", QColor(255, 0, 0, 254), true);
    add("backgroundColor", "invalid", QColor(), true);
    add("sliderColor", "other", QColor(Qt::yellow), true);
    add("sliderColor", "alpha", QColor(0, 0, 255, 254), true);
    add("sliderColor", "other spec", QColor(Qt::blue).toHsv(), true);
}

//! A signal is the last step: who hears it finds the new value and the repaint under way.
void tst_ScrollBar::setters()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QVariant, after);
    QFETCH(const bool, repaints);
    for (const bool isComplete : {true, false}) {
        KelScrollBar bar;
        if (!isComplete)
            beginComponent(bar);
        configured(bar, {10, 100}, 10, 5);
        forgetRepaintRequest(bar);
        const QImage before = painted(bar);
        const QMetaProperty property = propertyOf(bar, name);
        const Listener listener(bar, property);

        QVERIFY(property.write(&bar, property.read(&bar)));
        QVERIFY(listener.heard().isEmpty());
        QVERIFY(!isRepaintRequested(bar));
        QCOMPARE(painted(bar), before);

        QVERIFY(property.write(&bar, after));
        QCOMPARE(listener.arguments(), QList<QVariantList>{{}});
        QCOMPARE(listener.heard(),
            QList<State>({{.value = after, .isRepaintRequested = repaints, .implicitSize = {0, 0}}}));
        QVERIFY(painted(bar) != before || name == "sliderColor");
    }
}

void tst_ScrollBar::negativeMaximumIsIgnored()
{
    KelScrollBar bar;
    configured(bar, {10, 100}, 10, 5);
    forgetRepaintRequest(bar);
    const Listener listener(bar, propertyOf(bar, "maximum"));
    for (const int maximum : {-1, -5, -largestInt, -largestInt - 1})
        bar.setMaximum(maximum);
    QCOMPARE(bar.maximum(), 10);
    QVERIFY(listener.heard().isEmpty());
    QVERIFY(!isRepaintRequested(bar));
}

void tst_ScrollBar::positions_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("stored");
    QTest::newRow("within") << 10 << 7 << 7;
    QTest::newRow("end") << 10 << 10 << 10;
    QTest::newRow("beyond") << 10 << 50 << 10;
    QTest::newRow("far beyond") << 10 << largestInt << 10;
    QTest::newRow("before") << 10 << -3 << 0;
    QTest::newRow("far before") << 10 << -largestInt - 1 << 0;
    QTest::newRow("no range") << 0 << 50 << 0;
    QTest::newRow("all of the range") << largestInt << largestInt << largestInt;
}

void tst_ScrollBar::positions()
{
    QFETCH(const int, maximum);
    QFETCH(const int, position);
    KelScrollBar bar;
    configured(bar, {10, 100}, maximum, position);
    QTEST(bar.sliderPosition(), "stored");
}

void tst_ScrollBar::positionOutOfRangeIsAChangeEachTime()
{
    KelScrollBar bar;
    configured(bar, {10, 100}, 10, 5);
    const Listener listener(bar, propertyOf(bar, "sliderPosition"));
    const auto positions = [&] {
        QVariantList values;
        for (const State &state : listener.heard())
            values += state.value;
        return values;
    };
    bar.setSliderPosition(50);
    QCOMPARE(positions(), QVariantList() << 10);
    forgetRepaintRequest(bar);
    bar.setSliderPosition(50);
    QCOMPARE(positions(), QVariantList({10, 10}));
    bar.setSliderPosition(10);
    QCOMPARE(positions(), QVariantList({10, 10}));
    QVERIFY(!isRepaintRequested(bar));
    bar.setSliderPosition(-3);
    bar.setSliderPosition(-3);
    QCOMPARE(positions(), QVariantList({10, 10, 0, 0}));
    bar.setSliderPosition(0);
    QCOMPARE(positions(), QVariantList({10, 10, 0, 0}));
    // It lays out anew, though the position is the same.
    bar.setHeight(50);
    forgetRepaintRequest(bar);
    bar.setSliderPosition(-3);
    QVERIFY(isRepaintRequested(bar));
}

void tst_ScrollBar::loweredMaximumKeepsThePosition()
{
    KelScrollBar bar;
    configured(bar, {10, 100}, 100, 50);
    const Listener listener(bar, propertyOf(bar, "sliderPosition"));
    bar.setMaximum(10);
    QCOMPARE(bar.sliderPosition(), 50);
    QVERIFY(listener.arguments().isEmpty());
    // Pulled back, and one pixel beyond the track.
    QCOMPARE(painted(bar), drawn({0, 0, 10, 100}, corners(0, 11, 9, 100)));
    bar.setMaximum(100);
    QCOMPARE(bar.sliderPosition(), 50);
}

void tst_ScrollBar::sliderAreas_data()
{
    QTest::addColumn<QSize>("track");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    const auto add = [](const char *tag, QSize track, int maximum, int position, int start, int end) {
        QTest::newRow(tag) << track << maximum << position << start << end;
    };
    const QSize bar(10, 100);
    add("track without the range, start", bar, 10, 0, 0, 89);
    add("track without the range, middle", bar, 10, 5, 5, 94);
    add("track without the range, end", bar, 10, 10, 10, 99);
    add("a twentieth, start", bar, 400, 0, 0, 4);
    add("a twentieth, end", bar, 400, 400, 95, 99);
    add("a twentieth of 200, end", {10, 200}, 1000, 1000, 190, 199);
    add("a twentieth of 200, before the end", {10, 200}, 1000, 999, 189, 198);
    add("one step", bar, 1, 0, 0, 99);
    add("one step, end", bar, 1, 1, 0, 99);
    add("as long as the range", bar, 100, 100, 95, 99);
    add("twentieth, truncated", {10, 59}, 1000, 0, 0, 1);
    add("a pixel", {10, 1}, 1, 1, 0, 0);
    add("beyond a lowered maximum, pulled back", bar, 10, 50, 11, 100);
    add("far beyond a lowered maximum, nothing left", bar, 1, largestInt, 0, 99);
    add("far beyond a lowered maximum", bar, 60, largestInt, 61, 100);
    add("largest maximum, start", bar, largestInt, 0, 0, 4);
    add("largest maximum, end", bar, largestInt, largestInt, 95, 99);
    add("largest track, start", {10, largestInt}, 1, 0, 0, largestInt - 1);
    add("largest track, end", {10, largestInt}, 1, 1, 0, largestInt - 1);
    add("largest track and maximum, start", {10, largestInt}, largestInt, 0, 0, 107374181);
    add("largest track and maximum, end", {10, largestInt}, largestInt, largestInt, 2040109465,
        largestInt - 1);
    add("largest track, far beyond", {10, largestInt}, 2, largestInt, 3, largestInt);
}

void tst_ScrollBar::sliderAreas()
{
    QFETCH(const QSize, track);
    QFETCH(const int, maximum);
    QFETCH(const int, position);
    QFETCH(const int, start);
    QFETCH(const int, end);
    QCOMPARE(KelScrollBarPrivate::sliderArea(track, Qt::Vertical, maximum, position),
        corners(0, start, track.width() - 1, end));
    QCOMPARE(KelScrollBarPrivate::sliderArea(track.transposed(), Qt::Horizontal, maximum, position),
        corners(start, 0, end, track.width() - 1));
}

void tst_ScrollBar::sameAsTheStepsOneByOne_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("longest");
    QTest::addColumn<int>("largest");
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        const char *name = orientation == Qt::Horizontal ? "horizontal" : "vertical";
        QTest::addRow("%s, short", name) << orientation << 40 << 60;
        QTest::addRow("%s, usual", name) << orientation << 2000 << 3000;
        QTest::addRow("%s, long text", name) << orientation << 1000 << 1000000;
        QTest::addRow("%s, few steps", name) << orientation << 4000 << 20;
        QTest::addRow("%s, any", name) << orientation << largestInt << largestInt;
    }
}

void tst_ScrollBar::sameAsTheStepsOneByOne()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const int, longest);
    QFETCH(const int, largest);
    std::mt19937 random(longest);
    const auto upTo = [&](int limit) { return std::uniform_int_distribution<int>(0, limit)(random); };
    int pulledBack = 0;
    int invisible = 0;
    for (int i = 0; i < 20000; ++i) {
        const QSize track(upTo(longest), upTo(longest));
        const int maximum = upTo(largest);
        // Every fourth beyond the maximum, as after it was lowered.
        const int position = upTo(i % 4 == 0 ? largest : maximum);
        const QRect area = KelScrollBarPrivate::sliderArea(track, orientation, maximum, position);
        const QRect plain = plainSliderArea(track, orientation, maximum, position);
        QVERIFY2(area == plain,
            qPrintable(u"%1 x %2, maximum %3, position %4: %5 instead of %6"_s.arg(track.width())
                    .arg(track.height())
                    .arg(maximum)
                    .arg(position)
                    .arg(QDebug::toString(area), QDebug::toString(plain))));
        const int length = orientation == Qt::Horizontal ? track.width() : track.height();
        pulledBack += (orientation == Qt::Horizontal ? area.right() : area.bottom()) == length;
        invisible += !area.isValid();
    }
    // The rare cases were among them.
    QVERIFY(pulledBack > 0);
    QVERIFY(invisible > 0 || longest == largestInt);
}

void tst_ScrollBar::sliderStaysOnAnyTrack_data()
{
    QTest::addColumn<QSize>("track");
    for (const int width : {-largestInt, -1, 0, 1, 100, largestInt}) {
        for (const int height : {-largestInt, -1, 0, 1, 19, 20, 100, largestInt})
            QTest::addRow("%d x %d", width, height) << QSize(width, height);
    }
}

void tst_ScrollBar::sliderStaysOnAnyTrack()
{
    QFETCH(const QSize, track);
    for (const int maximum : {0, 1, 2, 99, 100, largestInt - 1, largestInt}) {
        for (const int position : {0, 1, 2, 99, 100, largestInt - 1, largestInt}) {
            const QRect area = KelScrollBarPrivate::sliderArea(track, Qt::Vertical, maximum, position);
            QCOMPARE(KelScrollBarPrivate::sliderArea(track.transposed(), Qt::Horizontal, maximum, position),
                corners(area.top(), area.left(), area.bottom(), area.right()));
            QVERIFY(area.isValid() || track.width() < 1 || track.height() < 20 || maximum < 1);
            if (area.isValid())
                QVERIFY(area.top() >= 0 && area.bottom() <= track.height());
            else if (maximum < 1 || track.height() < 1)
                QCOMPARE(area, corners(0, 0, -1, -1));
        }
    }
}

void tst_ScrollBar::paintsTrackAndSlider_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("position");
    QTest::addColumn<QRect>("track");
    QTest::addColumn<QRect>("slider");
    const QRect track(0, 0, 10, 100);
    QTest::newRow("start") << QSizeF(10, 100) << 10 << 0 << track << corners(0, 0, 9, 89);
    QTest::newRow("end") << QSizeF(10, 100) << 10 << 10 << track << corners(0, 10, 9, 99);
    QTest::newRow("short slider") << QSizeF(10, 100) << 400 << 400 << track << corners(0, 95, 9, 99);
    QTest::newRow("rounded up") << QSizeF(9.5, 99.5) << 10 << 10 << track << corners(0, 10, 9, 99);
    QTest::newRow("rounded down") << QSizeF(10.4, 100.4) << 10 << 10 << track << corners(0, 10, 9, 99);
    QTest::newRow("nothing to scroll") << QSizeF(10, 100) << 0 << 0 << QRect() << QRect();
    QTest::newRow("too short for a slider") << QSizeF(10, 19) << 100 << 50 << QRect() << QRect();
    QTest::newRow("too short, but few steps")
        << QSizeF(10, 19) << 19 << 0 << QRect(0, 0, 10, 19) << QRect(0, 0, 10, 1);
    QTest::newRow("no width") << QSizeF(0, 100) << 10 << 0 << QRect() << QRect();
    QTest::newRow("no height") << QSizeF(10, 0) << 10 << 0 << QRect() << QRect();
}

void tst_ScrollBar::paintsTrackAndSlider()
{
    QFETCH(const QSizeF, size);
    QFETCH(const int, maximum);
    QFETCH(const int, position);
    QFETCH(const QRect, track);
    QFETCH(const QRect, slider);
    KelScrollBar bar;
    configured(bar, size, maximum, position);
    QCOMPARE(painted(bar), drawn(track, slider));
    Scene scene(bar);
    QCOMPARE(scene.picture(), drawn(track, slider));
}

void tst_ScrollBar::followsItsPosition()
{
    KelScrollBar bar;
    configured(bar, {10, 100}, 10, 0);
    Scene scene(bar);
    for (int position = 0; position <= 10; ++position) {
        bar.setSliderPosition(position);
        QCOMPARE(scene.picture(), drawn({0, 0, 10, 100}, {0, position, 10, 90}));
    }
}

void tst_ScrollBar::sizeAloneDoesNotMoveTheSlider()
{
    KelScrollBar bar;
    configured(bar, {10, 100}, 10, 10);
    Scene scene(bar);
    QCOMPARE(scene.picture(), drawn({0, 0, 10, 100}, corners(0, 10, 9, 99)));
    bar.setSize({30, 180});
    QCOMPARE(scene.picture(), drawn({0, 0, 30, 180}, corners(0, 10, 9, 99)));
    bar.setBackgroundColor(Qt::yellow);
    bar.setBackgroundColor(Qt::red);
    QCOMPARE(scene.picture(), drawn({0, 0, 30, 180}, corners(0, 10, 9, 99)));
    bar.setSliderPosition(9);
    QCOMPARE(scene.picture(), drawn({0, 0, 30, 180}, corners(0, 9, 29, 178)));
    bar.setHeight(100);
    bar.setMaximum(11);
    // 9 of 11 steps of 9.09 pixels: at 81 of a track of 100 with a slider of 89.
    QCOMPARE(scene.picture(), drawn({0, 0, 30, 100}, corners(0, 8, 29, 96)));
}

void tst_ScrollBar::completionLaysOut_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::newRow("size last")
        << "maximum: 10; sliderPosition: Math.min(10, maximum); width: 10; height: 100"_ba;
    QTest::newRow("size first")
        << "width: 10; height: 100; maximum: 10; sliderPosition: Math.min(10, maximum)"_ba;
    QTest::newRow("maximum last")
        << "width: 10; height: 100; sliderPosition: Math.min(10, maximum); maximum: 10"_ba;
    QTest::newRow("bound") << "property int end: 10; sliderPosition: Math.min(end, maximum); maximum: end;"
                              "width: end; height: end * 10"_ba;
}

//! Qt may apply the position first: a binding that reads the maximum is right in any order.
void tst_ScrollBar::completionLaysOut()
{
    QFETCH(const QByteArray, properties);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Bars\nBar { backgroundColor: 'red'; sliderColor: 'blue'; "
            + properties + " }",
        {});
    const std::unique_ptr<QObject> object(component.create());
    auto *bar = qobject_cast<KelScrollBar *>(object.get());
    QVERIFY2(bar, qPrintable(component.errorString()));
    QCOMPARE(bar->sliderPosition(), 10);
    QCOMPARE(painted(*bar), drawn({0, 0, 10, 100}, {0, 10, 10, 90}));
}

void tst_ScrollBar::unmovedSliderIsNotRepainted()
{
    KelScrollBar bar;
    configured(bar, {10, 100}, 100000, 0);
    forgetRepaintRequest(bar);
    const Listener listener(bar, propertyOf(bar, "sliderPosition"));
    bar.setSliderPosition(1);
    QCOMPARE(listener.heard().size(), 1);
    QVERIFY(!isRepaintRequested(bar));
    bar.setMaximum(100001);
    QCOMPARE(listener.heard().size(), 2);
    QVERIFY(!isRepaintRequested(bar));
    bar.setSliderPosition(50000);
    QVERIFY(isRepaintRequested(bar));
    forgetRepaintRequest(bar);
    // At completion too.
    completeComponent(bar);
    QVERIFY(!isRepaintRequested(bar));
    bar.setHeight(101);
    completeComponent(bar);
    QVERIFY(isRepaintRequested(bar));
}

void tst_ScrollBar::colorsBlend()
{
    KelScrollBar bar;
    bar.setSize({10, 100});
    bar.setMaximum(10);
    const QImage picture = painted(bar);
    QCOMPARE(picture.pixelColor(5, 95), QColor(204, 204, 204));
    // Half of the way from there to white; painters round as they like.
    QVERIFY(qAbs(picture.pixelColor(5, 5).red() - 229) <= 1);
    Scene scene(bar);
    QCOMPARE(scene.picture().pixelColor(5, 95), QColor(204, 204, 204));
}

void tst_ScrollBar::roundingRadiusWaitsForARepaint()
{
    KelScrollBar bar;
    configured(bar, {20, 100}, 10, 0);
    Scene scene(bar);
    const QImage square = scene.picture();
    bar.setRoundingRadius(8);
    QVERIFY(!isRepaintRequested(bar));
    QCOMPARE(scene.picture(), square);
    bar.setSliderColor(Qt::yellow);
    bar.setSliderColor(Qt::blue);
    const QImage round = scene.picture();
    QCOMPARE(round.pixelColor(0, 99), QColor(Qt::white));
    QCOMPARE(round.pixelColor(10, 95), QColor(Qt::red));
    QCOMPARE(round.pixelColor(10, 50), QColor(Qt::blue));
    bar.setRoundingRadius(0);
    bar.update();
    QCOMPARE(scene.picture(), square);
}

void tst_ScrollBar::roundedCorners_data()
{
    QTest::addColumn<int>("radius");
    QTest::addColumn<QPen>("pen");
    // One that the painter brings outlines both shapes.
    const QPen thick(Qt::darkGreen, 3);
    for (const int radius : {1, 4, 10, 1000, largestInt}) {
        QTest::addRow("%d, outlined", radius) << radius << QPen();
        QTest::addRow("%d, thick", radius) << radius << thick;
        QTest::addRow("%d", radius) << radius << QPen(Qt::NoPen);
    }
    for (const int radius : {0, -1, -largestInt - 1})
        QTest::addRow("%d", radius) << radius << thick;
}

void tst_ScrollBar::roundedCorners()
{
    QFETCH(const int, radius);
    QFETCH(const QPen, pen);
    KelScrollBar bar;
    configured(bar, {20.5, 100}, 10, 10);
    bar.setRoundingRadius(radius);
    QImage picture = blank({320, 200});
    QPainter painter(&picture);
    painter.setPen(pen);
    bar.paint(&painter);
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), QBrush(radius < 1 ? Qt::red : Qt::blue));
    painter.end();

    QImage expected = blank({320, 200});
    QPainter other(&expected);
    const QRectF track(0, 0, 20.5, 100);
    const QRect slider(0, 10, 21, 90);
    if (radius < 1) {
        other.fillRect(track, Qt::red);
        other.fillRect(slider, Qt::blue);
    } else {
        other.setRenderHint(QPainter::Antialiasing);
        other.setPen(pen);
        other.setBrush(Qt::red);
        other.drawRoundedRect(track, radius, radius);
        other.setBrush(Qt::blue);
        other.drawRoundedRect(slider, radius, radius);
    }
    other.end();
    QCOMPARE(picture, expected);
}

void tst_ScrollBar::showsNothing()
{
    QFETCH(const QSizeF, size);
    KelScrollBar bar;
    configured(bar, {10, 100}, 10, 0);
    Scene scene(bar);
    const QImage before = scene.picture();
    QCOMPARE(before, drawn({0, 0, 10, 100}, {0, 0, 10, 90}));
    bar.setSize(size);
    QCOMPARE(scene.picture(), blank({320, 200}));
    bar.setSliderPosition(3);
    bar.setMaximum(7);
    bar.setSliderColor(Qt::black);
    QCOMPARE(scene.picture(), blank({320, 200}));
    bar.setSize({10, 100});
    configured(bar, {10, 100}, 10, 0);
    QCOMPARE(scene.picture(), before);
    bar.setWidth(notANumber);
    bar.setHeight(notANumber);
    QCOMPARE(scene.picture(), before);
}

void tst_ScrollBar::hugeSizes_data()
{
    QTest::addColumn<double>("length");
    for (const double length : {-infinity, -1e300, 1e5, 2147483647.0, 2147483648.0, 1e10, 1e300, infinity})
        QTest::addRow("%.10g", length) << length;
}

//! What cannot be shown can be painted: the beginning of a bar.
void tst_ScrollBar::hugeSizes()
{
    QFETCH(const double, length);
    KelScrollBar bar;
    configured(bar, {length, length}, 1, 0);
    const QImage picture = painted(bar);
    QImage expected = blank({320, 200});
    if (length > 0)
        expected.fill(Qt::blue);
    QCOMPARE(picture, expected);
    bar.setSize({notANumber, notANumber});
    bar.setMaximum(100);
    painted(bar);
}

QTEST_MAIN(tst_ScrollBar)

#include "tst_scrollbar.moc"
