// SPDX-License-Identifier: MIT
#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

#include <memory>

#include "keltopnumber.h"
#include "keltopnumber_p.h"
#include "painteditem.h"

using namespace Qt::StringLiterals;
using namespace PaintedItem;

namespace {

constexpr int largestInt = std::numeric_limits<int>::max();
constexpr int smallestInt = std::numeric_limits<int>::min();

QFont fontOf(int pixelSize)
{
    QFont font(u"DejaVu Sans"_s);
    font.setBold(true);
    font.setPixelSize(pixelSize);
    return font;
}

QFont pointFontOf(int pointSize)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPointSize(pointSize);
    return font;
}

KelTopNumber &configured(KelTopNumber &item, int number, int penWidth = 6, const QColor &color = Qt::blue)
{
    item.setFont(fontOf(100));
    item.setPenWidth(penWidth);
    item.setBorderColor(Qt::red);
    item.setColor(color);
    item.setNumber(number);
    return item;
}

QSize measured(const QString &text, const QFont &font)
{
    return QFontMetrics(font).size(Qt::TextSingleLine | Qt::TextDontClip, text);
}

QPainterPath outline(const KelTopNumber &item, QPointF origin)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addText(origin, item.font(), QString::number(item.number()));
    return path;
}

constexpr QSize paperSize(240, 140);

//! Where pixels are as a whole.
enum class Place { Inside, OnOutline, Outside, Between };

//! How much of each pixel a shape covers, found by drawing it in large.
class Coverage
{
public:
    explicit Coverage(const QPainterPath &path)
        : m_mask(paperSize * factor, QImage::Format_Grayscale8)
    {
        m_mask.fill(Qt::white);
        QPainter painter(&m_mask);
        painter.scale(factor, factor);
        painter.fillPath(path, Qt::black);
    }

    //! Whether all of the pixel, and a little around it, has the colour.
    bool isAll(QPoint pixel, QRgb color) const
    {
        const QRect area =
            QRect(pixel * factor, QSize(factor, factor)).adjusted(-1, -1, 1, 1) & m_mask.rect();
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (m_mask.pixel(x, y) != color)
                    return false;
            }
        }
        return true;
    }
    bool isFull(QPoint pixel) const { return isAll(pixel, 0xff000000); }
    bool isNone(QPoint pixel) const { return isAll(pixel, 0xffffffff); }

private:
    static constexpr int factor = 8;
    QImage m_mask;
};

//! Compares a picture of an item, on paper, with where the digits ought to be.
void comparePlaces(
    const QImage &picture, const KelTopNumber &item, QPointF origin, const QHash<Place, QColor> &expected)
{
    const QPainterPath path = outline(item, origin);
    const Coverage digits(path);
    const Coverage border(QPainterPathStroker(QPen(Qt::black, item.penWidth())).createStroke(path));
    const auto placeOf = [&](QPoint pixel) {
        if (digits.isFull(pixel))
            return Place::Inside;
        if (!digits.isNone(pixel))
            return Place::Between;
        if (border.isFull(pixel))
            return Place::OnOutline;
        return border.isNone(pixel) ? Place::Outside : Place::Between;
    };
    QHash<Place, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Place place = placeOf({x, y});
            ++counts[place];
            if (place == Place::Between)
                continue;
            const QColor found = picture.pixelColor(x, y);
            QVERIFY2(found == expected.value(place),
                qPrintable(u"%1, %2 is %3"_s.arg(x).arg(y).arg(found.name(QColor::HexArgb))));
        }
    }
    QVERIFY(counts.value(Place::Inside) > 100);
    QVERIFY(counts.value(Place::OnOutline) > 100);
    QVERIFY(counts.value(Place::Outside) > 100);
}

} // namespace

class tst_TopNumber : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qmlRegisterType<KelTopNumber>("Numbers", 1, 0, "Number"); }
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void defaults();
    void interface();
    void allPropertiesAreRequired_data();
    void allPropertiesAreRequired();
    void setters_data();
    void setters();
    void settersBeforeCompletion_data() { setters_data(); }
    void settersBeforeCompletion();

    void leftInsets_data();
    void leftInsets();
    void outerSizes_data();
    void outerSizes();
    void origins_data();
    void origins();
    void implicitSizes_data();
    void implicitSizes();

    void minusOneIsNotShownAtFirst();
    void paintsDigits_data();
    void paintsDigits();
    void sameAsTheStepsOneByOne_data();
    void sameAsTheStepsOneByOne();
    void windowShowsWhatIsPainted();
    void cutOutDigitsShowWhatIsBelow();
    void heightDoesNotMoveTheDigits();
    void showsNothing_data() { addEmptySizes(); }
    void showsNothing();
    void extremePenWidths_data();
    void extremePenWidths();
};

void tst_TopNumber::defaults()
{
    KelTopNumber item;
    QCOMPARE(item.borderColor(), QColor());
    QCOMPARE(item.color(), QColor());
    QCOMPARE(item.font(), QFont());
    QCOMPARE(item.number(), -1);
    QCOMPARE(item.penWidth(), -1);
    QCOMPARE(item.flags(), QQuickItem::ItemHasContents);
    QCOMPARE(implicitSizeOf(item), QSizeF(0, 0));
}

void tst_TopNumber::interface()
{
    const QMetaObject &meta = KelTopNumber::staticMetaObject;
    const auto property = [](const char *name, QMetaType type, const char *notifier) {
        return Property{
            .name = name, .type = type, .notifier = notifier, .isFinal = true, .isRequired = true};
    };
    const auto number = QMetaType::fromType<int>();
    const auto color = QMetaType::fromType<QColor>();
    compareProperties(meta,
        {property("borderColor", color, "borderColorChanged(QColor)"),
            property("color", color, "colorChanged(QColor)"),
            property("font", QMetaType::fromType<QFont>(), "fontChanged(QFont)"),
            property("number", number, "numberChanged(int)"),
            property("penWidth", number, "penWidthChanged(int)")});
    compareSignals(meta,
        {"borderColorChanged(QColor)", "colorChanged(QColor)", "fontChanged(QFont)", "numberChanged(int)",
            "penWidthChanged(int)"});
}

void tst_TopNumber::allPropertiesAreRequired_data()
{
    QTest::addColumn<QByteArray>("missing");
    for (const char *name : {"", "borderColor", "color", "font", "number", "penWidth"})
        QTest::newRow(*name ? name : "none") << QByteArray(name);
}

void tst_TopNumber::allPropertiesAreRequired()
{
    QFETCH(const QByteArray, missing);
    QByteArray qml = "import QtQuick\nimport Numbers\nNumber {";
    for (const auto &[name, line] : std::initializer_list<std::pair<QByteArray, QByteArray>>{
             {"borderColor", "borderColor: 'red'; "}, {"color", "color: 'blue'; "},
             {"font", "font.pixelSize: 80; "}, {"number", "number: 7; "}, {"penWidth", "penWidth: 4; "}}) {
        if (name != missing)
            qml += line;
    }
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(qml + "}", {});
    const std::unique_ptr<QObject> object(component.create());
    if (!missing.isEmpty()) {
        QVERIFY2(component.errorString().contains(QLatin1StringView(missing)),
            qPrintable(component.errorString()));
        return;
    }
    const auto *item = qobject_cast<KelTopNumber *>(object.get());
    QVERIFY2(item, qPrintable(component.errorString()));
    QCOMPARE(item->implicitWidth(), measured(u"7"_s, item->font()).width() + 8.0);
}

void tst_TopNumber::setters_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("after");
    QTest::addColumn<bool>("resizes");
    const auto add = [](const char *name, const char *tag, const QVariant &after, bool resizes) {
        QTest::addRow("%s, %s", name, tag) << QByteArray(name) << after << resizes;
    };
    add("borderColor", "other", QColor(Qt::green), false);
    add("borderColor", "alpha", QColor(255, 0, 0, 254), false);
    add("borderColor", "invalid", QColor(), false);
    add("color", "other", QColor(Qt::green), false);
    add("color", "alpha", QColor(0, 0, 255, 0), false);
    add("color", "invalid", QColor(), false);
    add("color", "other spec", QColor(Qt::blue).toHsv(), false);
    add("font", "smaller", fontOf(40), true);
    add("font", "points", pointFontOf(50), true);
    add("number", "longer", 12345, true);
    add("number", "negative", -7, true);
    add("number", "smallest", smallestInt, true);
    add("penWidth", "thicker", 20, true);
    add("penWidth", "none", 0, true);
    add("penWidth", "negative", -8, true);
    add("penWidth", "largest", largestInt, true);
    add("penWidth", "smallest", smallestInt, true);
}

//! A signal comes first: who hears it finds the new value, the old size, and no repaint under way.
void tst_TopNumber::setters()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QVariant, after);
    QFETCH(const bool, resizes);
    KelTopNumber item;
    configured(item, 7);
    forgetRepaintRequest(item);
    const QSizeF size = implicitSizeOf(item);
    const QMetaProperty property = propertyOf(item, name);
    const Listener listener(item, property);

    QVERIFY(property.write(&item, property.read(&item)));
    QVERIFY(listener.heard().isEmpty());
    QVERIFY(!isRepaintRequested(item));
    QCOMPARE(implicitSizeOf(item), size);

    QVERIFY(property.write(&item, after));
    QCOMPARE(listener.arguments(), QList<QVariantList>{{after}});
    QCOMPARE(listener.heard(),
        QList<State>({{.value = after, .isRepaintRequested = false, .implicitSize = size}}));
    QVERIFY(isRepaintRequested(item));
    QCOMPARE(implicitSizeOf(item) != size, resizes);
}

void tst_TopNumber::settersBeforeCompletion()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QVariant, after);
    KelTopNumber item;
    beginComponent(item);
    configured(item, 7);
    forgetRepaintRequest(item);
    const QMetaProperty property = propertyOf(item, name);
    const Listener listener(item, property);
    QVERIFY(property.write(&item, property.read(&item)));
    QVERIFY(listener.heard().isEmpty());
    QVERIFY(property.write(&item, after));
    QCOMPARE(listener.arguments(), QList<QVariantList>{{after}});
    QCOMPARE(listener.heard().size(), 1);
    QVERIFY(!isRepaintRequested(item));
    QCOMPARE(implicitSizeOf(item), QSizeF(0, 0));

    item.componentComplete();
    QCOMPARE(listener.heard().size(), 1);
    QVERIFY(isRepaintRequested(item));
    KelTopNumber other;
    configured(other, 7);
    property.write(&other, after);
    QCOMPARE(implicitSizeOf(item), implicitSizeOf(other));
}

void tst_TopNumber::leftInsets_data()
{
    QTest::addColumn<int>("penWidth");
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("inset");
    QTest::newRow("even") << 4 << 80 << 4;
    QTest::newRow("in points") << 3 << -1 << 1;
    QTest::newRow("odd pen") << 5 << 80 << 4;
    QTest::newRow("truncated") << 0 << 79 << 1;
    QTest::newRow("small font") << 0 << 39 << 0;
    QTest::newRow("negative pen, toward zero") << -1 << 80 << 2;
    QTest::newRow("negative pen") << -3 << 80 << 1;
    QTest::newRow("largest") << largestInt << largestInt << 1127428914;
    QTest::newRow("smallest") << smallestInt << -1 << -1073741824;
}

void tst_TopNumber::leftInsets()
{
    QFETCH(const int, penWidth);
    QFETCH(const int, pixelSize);
    QTEST(KelTopNumberPrivate::leftInset(penWidth, pixelSize), "inset");
}

void tst_TopNumber::outerSizes_data()
{
    QTest::addColumn<QSize>("text");
    QTest::addColumn<int>("inset");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("usual") << QSize(51, 94) << 4 << QSizeF(59, 94);
    QTest::newRow("negative") << QSize(51, 94) << -100 << QSizeF(-149, 94);
    QTest::newRow("largest") << QSize(largestInt, largestInt) << 1127428914
                             << QSizeF(4402341475.0, 2147483647.0);
    QTest::newRow("smallest") << QSize(0, 0) << -1073741824 << QSizeF(-2147483648.0, 0);
}

void tst_TopNumber::outerSizes()
{
    QFETCH(const QSize, text);
    QFETCH(const int, inset);
    QTEST(KelTopNumberPrivate::outerSize(text, inset), "size");
}

void tst_TopNumber::origins_data()
{
    QTest::addColumn<double>("implicitHeight");
    QTest::addColumn<int>("penWidth");
    QTest::addColumn<double>("y");
    QTest::newRow("even") << 94.0 << 4 << 88.0;
    QTest::newRow("odd") << 94.0 << 5 << 87.0;
    QTest::newRow("none") << 94.0 << 0 << 94.0;
    QTest::newRow("one") << 94.0 << 1 << 93.0;
    QTest::newRow("negative, toward zero") << 94.0 << -1 << 95.0;
    QTest::newRow("negative") << 94.0 << -3 << 98.0;
    QTest::newRow("part of a pixel") << 94.5 << 5 << 87.5;
    QTest::newRow("largest") << 94.0 << largestInt << -3221225376.0;
    QTest::newRow("smallest") << 94.0 << smallestInt << 3221225566.0;
}

void tst_TopNumber::origins()
{
    QFETCH(const double, implicitHeight);
    QFETCH(const int, penWidth);
    QFETCH(const double, y);
    QCOMPARE(KelTopNumberPrivate::origin(17, implicitHeight, penWidth), QPointF(17, y));
}

void tst_TopNumber::implicitSizes_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("penWidth");
    QTest::addColumn<double>("room");
    QTest::newRow("pixels") << fontOf(80) << 10 << 4 << 8.0;
    QTest::newRow("points") << pointFontOf(40) << 10 << 3 << 2.0;
    QTest::newRow("odd") << fontOf(80) << 3 << 5 << 8.0;
    QTest::newRow("no outline") << fontOf(20) << 3 << 0 << 0.0;
    QTest::newRow("negative number") << fontOf(80) << -3 << 4 << 8.0;
    QTest::newRow("largest number") << fontOf(80) << largestInt << 4 << 8.0;
    QTest::newRow("negative pen") << fontOf(80) << 3 << -1 << 4.0;
    QTest::newRow("largest pen") << fontOf(20) << 3 << largestInt << 2147483646.0;
    QTest::newRow("smallest pen") << fontOf(20) << 3 << smallestInt << -2147483648.0;
}

void tst_TopNumber::implicitSizes()
{
    QFETCH(const QFont, font);
    QFETCH(const int, number);
    QFETCH(const int, penWidth);
    QFETCH(const double, room);
    KelTopNumber item;
    item.setFont(font);
    item.setPenWidth(penWidth);
    item.setNumber(number);
    const QSize text = measured(QString::number(number), font);
    QVERIFY(!text.isEmpty());
    QCOMPARE(implicitSizeOf(item), QSizeF(text.width() + room, text.height()));
    if (number < 0)
        QVERIFY(text.width() > measured(QString::number(-number), font).width());
}

void tst_TopNumber::minusOneIsNotShownAtFirst()
{
    KelTopNumber item;
    configured(item, -1);
    const Listener listener(item, propertyOf(item, "number"));
    item.setNumber(-1);
    QVERIFY(listener.heard().isEmpty());
    QCOMPARE(implicitSizeOf(item), QSizeF(measured(QString(), item.font())) + QSizeF(2 * (3 + 2), 0));
    QCOMPARE(painted(item), blank({320, 200}));
    item.setNumber(1);
    const double width = item.implicitWidth();
    item.setNumber(-1);
    QVERIFY(item.implicitWidth() > width);
    QVERIFY(inkOf(painted(item)).width() > 20);
}

void tst_TopNumber::paintsDigits_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("penWidth");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("inside");
    const QColor blue(Qt::blue);
    const QColor half(0, 0, 255, 128);
    const QColor nothing(0, 0, 0, 0);
    QTest::newRow("opaque") << 8 << 6 << blue << blue;
    QTest::newRow("alpha") << 8 << 6 << half << half;
    QTest::newRow("transparent") << 8 << 6 << QColor(255, 255, 255, 0) << nothing;
    QTest::newRow("invalid") << 8 << 6 << QColor() << nothing;
    QTest::newRow("odd outline") << 4 << 5 << blue << blue;
    QTest::newRow("two digits") << 10 << 8 << QColor() << nothing;
    QTest::newRow("negative") << -3 << 4 << blue << blue;
}

void tst_TopNumber::paintsDigits()
{
    QFETCH(const int, number);
    QFETCH(const int, penWidth);
    QFETCH(const QColor, color);
    QFETCH(const QColor, inside);
    KelTopNumber item;
    configured(item, number, penWidth, color);
    const QColor paper(200, 220, 180);
    QImage picture(paperSize, QImage::Format_ARGB32);
    picture.fill(paper);
    QPainter painter(&picture);
    item.paint(&painter);
    painter.end();
    // A font of 100 pixels adds 2 to half of the outline.
    const QPointF origin(penWidth / 2 + 2, item.implicitHeight() - penWidth - penWidth / 2);
    comparePlaces(picture, item, origin,
        {{Place::Inside, inside}, {Place::OnOutline, Qt::red}, {Place::Outside, paper}});
}

void tst_TopNumber::sameAsTheStepsOneByOne_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("penWidth");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QFont>("font");
    QFont italic(u"DejaVu Serif"_s);
    italic.setItalic(true);
    italic.setPixelSize(60);
    for (const QFont &font : {fontOf(100), pointFontOf(30), italic}) {
        for (const int penWidth : {0, 1, 5, 12, 40}) {
            for (const QColor &color : {QColor(), QColor(Qt::blue), QColor(0, 255, 0, 90)}) {
                QTest::addRow("%s %d, pen %d, %s", qPrintable(font.family()), font.pixelSize(), penWidth,
                    qPrintable(color.name(QColor::HexArgb)))
                    << 105 << penWidth << color << font;
            }
        }
    }
}

void tst_TopNumber::sameAsTheStepsOneByOne()
{
    QFETCH(const int, number);
    QFETCH(const int, penWidth);
    QFETCH(const QColor, color);
    QFETCH(const QFont, font);
    KelTopNumber item;
    configured(item, number, penWidth, color);
    item.setFont(font);
    QImage picture = blank({320, 200}, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    item.paint(&painter);
    painter.end();

    QImage expected = blank({320, 200}, QImage::Format_ARGB32_Premultiplied);
    QPainter plain(&expected);
    plain.setRenderHint(QPainter::Antialiasing, true);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const int x = penWidth / 2 + font.pixelSize() / 40;
    const double y = measured(u"105"_s, font).height() - penWidth - penWidth / 2;
    path.addText(double(x), y, font, u"105"_s);
    QPen pen;
    pen.setColor(Qt::red);
    pen.setWidth(penWidth);
    QCOMPARE(pen.style(), Qt::SolidLine);
    QCOMPARE(pen.capStyle(), Qt::SquareCap);
    QCOMPARE(pen.joinStyle(), Qt::BevelJoin);
    plain.strokePath(path, pen);
    plain.setCompositionMode(QPainter::CompositionMode_Source);
    plain.fillPath(path, color.isValid() ? QBrush(color, Qt::SolidPattern) : QBrush(Qt::transparent));
    plain.end();
    QCOMPARE(picture, expected);
}

void tst_TopNumber::windowShowsWhatIsPainted()
{
    KelTopNumber item;
    configured(item, 12);
    Scene scene(item);
    QImage expected(item.implicitWidth(), item.implicitHeight(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    item.paint(&painter);
    painter.end();
    QImage onWhite = blank({320, 200});
    QPainter(&onWhite).drawImage(0, 0, expected);
    QCOMPARE(scene.picture(), onWhite);
    QCOMPARE(item.size(), QSizeF(expected.size()));

    item.setNumber(8);
    item.setColor(Qt::green);
    const QImage picture = scene.picture();
    QVERIFY(picture != onWhite);
    QVERIFY(!inkOf(picture).isEmpty());
    QVERIFY(inkOf(picture).right() < item.implicitWidth());
}

//! The item has a picture of its own: what it cuts out is its own outline, not the window.
void tst_TopNumber::cutOutDigitsShowWhatIsBelow()
{
    KelTopNumber item;
    configured(item, 8, 6, QColor());
    Scene scene(item);
    scene.window().setColor(Qt::yellow);
    const QImage picture = scene.picture().copy(QRect(QPoint(), paperSize));
    const QPointF origin(5, item.implicitHeight() - 9);
    comparePlaces(picture, item, origin,
        {{Place::Inside, Qt::yellow}, {Place::OnOutline, Qt::red}, {Place::Outside, Qt::yellow}});
}

void tst_TopNumber::heightDoesNotMoveTheDigits()
{
    KelTopNumber item;
    configured(item, 12);
    Scene scene(item);
    const QImage before = scene.picture();
    item.setSize({300, 190});
    QCOMPARE(scene.picture(), before);
    QCOMPARE(painted(item).copy(0, 0, 320, 200), before);
}

void tst_TopNumber::showsNothing()
{
    QFETCH(const QSizeF, size);
    KelTopNumber item;
    configured(item, 12);
    Scene scene(item);
    const QImage before = scene.picture();
    QVERIFY(!inkOf(before).isEmpty());
    item.setSize(size);
    QCOMPARE(scene.picture(), blank({320, 200}));
    item.setNumber(13);
    item.setColor(Qt::green);
    QCOMPARE(scene.picture(), blank({320, 200}));
    item.setNumber(12);
    item.setColor(Qt::blue);
    item.setSize({200, 150});
    QCOMPARE(scene.picture(), before);
    item.setWidth(notANumber);
    item.setHeight(notANumber);
    QCOMPARE(scene.picture(), before);
}

void tst_TopNumber::extremePenWidths_data()
{
    QTest::addColumn<int>("penWidth");
    for (const int width :
        {smallestInt, smallestInt + 1, -40000, -100, -1, 32767, 32768, 40000, largestInt - 1, largestInt})
        QTest::addRow("%d", width) << width;
}

//! No complaint of Qt's, and back to normal afterwards.
void tst_TopNumber::extremePenWidths()
{
    QFETCH(const int, penWidth);
    KelTopNumber item;
    configured(item, 12);
    Scene scene(item);
    const QImage before = scene.picture();
    item.setPenWidth(penWidth);
    painted(item);
    const QImage picture = scene.picture();
    if (qAbs(double(penWidth)) > 100'000)
        QCOMPARE(picture, blank({320, 200}));
    item.setSize({200, 150});
    scene.picture();
    item.resetWidth();
    item.resetHeight();
    item.setPenWidth(6);
    QCOMPARE(scene.picture(), before);
}

QTEST_MAIN(tst_TopNumber)

#include "tst_topnumber.moc"
