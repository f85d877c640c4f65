// SPDX-License-Identifier: MIT
#include <QtCore/QMetaEnum>
#include <QtCore/QMetaProperty>
#include <QtGui/QPainter>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItemGrabResult>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <cmath>
#include <limits>
#include <memory>

#include "keltext.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int unlimited = std::numeric_limits<int>::max();
constexpr double numberMaxValue = std::numeric_limits<double>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

QFont fontOf(int pixelSize)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(pixelSize);
    return font;
}

//! What the engine does before it assigns the properties of a declaration.
void beginComponent(KelText &text)
{
    static_cast<QQmlParserStatus &>(text).classBegin();
}

QSizeF implicitSizeOf(const KelText &text)
{
    return {text.implicitWidth(), text.implicitHeight()};
}

bool isRepaintRequested(KelText &text)
{
    return QQuickItemPrivate::get(&text)->dirtyAttributes & QQuickItemPrivate::Content;
}

void forgetRepaintRequest(KelText &text)
{
    QQuickItemPrivate::get(&text)->dirtyAttributes = 0;
}

/*!
    Makes the next layout visible in the implicit size, whatever causes it: a new font counts only from the
    next layout on.
*/
void awaitLayout(KelText &text)
{
    text.setFont(fontOf(text.font().pixelSize() + 7));
    forgetRepaintRequest(text);
}

QMetaProperty propertyOf(const char *name)
{
    const QMetaObject &meta = KelText::staticMetaObject;
    return meta.property(meta.indexOfProperty(name));
}

QVariant value(Qt::Alignment alignment)
{
    return QVariant::fromValue(alignment);
}

QVariant value(KelText::WrapMode mode)
{
    return QVariant::fromValue(mode);
}

} // namespace

//! The properties, without a window.
class tst_KelText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void defaults();
    void propertiesInOrder_data();
    void propertiesInOrder();
    void signalsInOrder();
    void wrapModes();
    void setters_data();
    void setters();
    void settersBeforeCompletion_data() { setters_data(); }
    void settersBeforeCompletion();

    void completionTakesTheSizeSilently_data();
    void completionTakesTheSizeSilently();
    void laterSizesDoNotReachTheText();
    void textWidthInPixels_data();
    void textWidthInPixels();
    void nearlyEqualTextWidths_data();
    void nearlyEqualTextWidths();
    void sizesInPixelsAtCompletion_data();
    void sizesInPixelsAtCompletion();

    void alignments_data();
    void alignments();
    void foreignFlagsAlwaysCountAsChange_data();
    void foreignFlagsAlwaysCountAsChange();
    void wrapModeDoesNotChangeLines_data();
    void wrapModeDoesNotChangeLines();
    void fontChangeKeepsImplicitSize_data();
    void fontChangeKeepsImplicitSize();
    void limitsWithoutMeaningAreNone_data();
    void limitsWithoutMeaningAreNone();
};

void tst_KelText::defaults()
{
    KelText text;
    QCOMPARE(text.text(), QString());
    QCOMPARE(text.font(), QFont());
    QCOMPARE(text.color(), QColor(Qt::black));
    QCOMPARE(text.hAlign(), Qt::AlignLeft);
    QCOMPARE(text.vAlign(), Qt::AlignTop);
    QCOMPARE(text.wrapMode(), KelText::WrapMode::NoWrap);
    QCOMPARE(text.maximumLineCount(), unlimited);
    QCOMPARE(text.textWidth(), 2147483647.0);
    QCOMPARE(implicitSizeOf(text), QSizeF(0, 0));

    // The settings of a painted item are left alone.
    QCOMPARE(text.renderTarget(), QQuickPaintedItem::Image);
    QCOMPARE(text.performanceHints(), QQuickPaintedItem::PerformanceHints());
    QCOMPARE(text.fillColor(), QColor(Qt::transparent));
    QVERIFY(!text.opaquePainting());
    QVERIFY(!text.antialiasing());
    QVERIFY(!text.mipmap());
    QVERIFY(!text.clip());
    QCOMPARE(text.flags(), QQuickItem::ItemHasContents);
}

void tst_KelText::propertiesInOrder_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QMetaType>("type");
    QTest::addColumn<QByteArray>("notifier");
    const auto add = [](const char *name, int index, QMetaType type, const char *notifier) {
        QTest::newRow(name) << index << type << QByteArray(notifier);
    };
    const auto alignment = QMetaType::fromType<Qt::Alignment>();
    add("text", 0, QMetaType::fromType<QString>(), "textChanged(QString)");
    add("font", 1, QMetaType::fromType<QFont>(), "fontChanged()");
    add("color", 2, QMetaType::fromType<QColor>(), "colorChanged()");
    add("horizontalAlignment", 3, alignment, "horizontalAlignmentChanged(Qt::Alignment)");
    add("verticalAlignment", 4, alignment, "verticalAlignmentChanged(Qt::Alignment)");
    add("wrapMode", 5, QMetaType::fromType<KelText::WrapMode>(), "wrapModeChanged()");
    add("maximumLineCount", 6, QMetaType::fromType<int>(), "maximumLineCountChanged()");
    add("textWidth", 7, QMetaType::fromType<double>(), "textWidthChanged(double)");
}

void tst_KelText::propertiesInOrder()
{
    QFETCH(const int, index);
    QFETCH(const QMetaType, type);
    QFETCH(const QByteArray, notifier);
    const QMetaObject &meta = KelText::staticMetaObject;
    QCOMPARE(meta.superClass(), &QQuickPaintedItem::staticMetaObject);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 8);
    const QMetaProperty property = meta.property(meta.propertyOffset() + index);
    QCOMPARE(property.name(), QTest::currentDataTag());
    QCOMPARE(property.metaType(), type);
    QVERIFY(property.isReadable());
    QVERIFY(property.isWritable());
    QVERIFY(!property.isResettable());
    QVERIFY(property.isFinal());
    QVERIFY(property.isDesignable() && property.isScriptable() && property.isStored());
    QCOMPARE(property.notifySignal().methodSignature(), notifier);
}

void tst_KelText::signalsInOrder()
{
    const QMetaObject &meta = KelText::staticMetaObject;
    QByteArrayList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Signal);
        signatures += meta.method(i).methodSignature();
    }
    QCOMPARE(signatures,
        QByteArrayList({"fontChanged()", "colorChanged()", "textChanged(QString)",
            "horizontalAlignmentChanged(Qt::Alignment)", "verticalAlignmentChanged(Qt::Alignment)",
            "wrapModeChanged()", "maximumLineCountChanged()", "textWidthChanged(double)"}));
}

void tst_KelText::wrapModes()
{
    const QMetaObject &meta = KelText::staticMetaObject;
    QCOMPARE(meta.enumeratorCount() - meta.enumeratorOffset(), 1);
    const auto modes = QMetaEnum::fromType<KelText::WrapMode>();
    QVERIFY(modes.isScoped());
    QVERIFY(!modes.isFlag());
    QByteArrayList entries;
    for (int i = 0; i < modes.keyCount(); ++i)
        entries += QByteArray(modes.key(i)) + ' ' + QByteArray::number(modes.value(i));
    QCOMPARE(entries,
        QByteArrayList(
            {"NoWrap 0", "WordWrap 1", "WrapAnywhere 3", "WrapAtWordBoundaryOrAnywhere 4", "Wrap 4"}));
}

void tst_KelText::setters_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::addColumn<bool>("hasArgument");
    QTest::addColumn<bool>("laysOut");
    const auto add = [](const char *name, const char *tag, const QVariant &before, const QVariant &after,
                         bool hasArgument, bool laysOut) {
        QTest::addRow("%s, %s", name, tag) << QByteArray(name) << before << after << hasArgument << laysOut;
    };
    add("text", "other", u"Title"_s, u"Another title"_s, true, true);
    add("text", "case", u"Title"_s, u"title"_s, true, true);
    add("text", "none", u"Title"_s, u""_s, true, true);
    add("text", "first", u""_s, u"Title"_s, true, true);
    add("font", "size", fontOf(20), fontOf(21), false, false);
    add("color", "other", QColor(Qt::red), QColor(Qt::blue), false, false);
    add("color", "alpha", QColor(255, 0, 0), QColor(255, 0, 0, 254), false, false);
    add("color", "invalid", QColor(Qt::black), QColor(), false, false);
    add("color", "other spec", QColor(255, 0, 0), QColor(255, 0, 0).toHsv(), false, false);
    add("horizontalAlignment", "right", value(Qt::AlignLeft), value(Qt::AlignRight), true, true);
    add("horizontalAlignment", "none", value(Qt::AlignLeft), value(Qt::Alignment()), true, true);
    add("horizontalAlignment", "absolute", value(Qt::AlignLeft), value(Qt::AlignLeft | Qt::AlignAbsolute),
        true, true);
    add("verticalAlignment", "bottom", value(Qt::AlignTop), value(Qt::AlignBottom), true, true);
    add("verticalAlignment", "none", value(Qt::AlignTop), value(Qt::Alignment()), true, true);
    add("verticalAlignment", "baseline", value(Qt::AlignVCenter), value(Qt::AlignBaseline), true, true);
    add("wrapMode", "words", value(KelText::WrapMode::NoWrap), value(KelText::WrapMode::WordWrap), false,
        true);
    add("wrapMode", "without a name", value(KelText::WrapMode::Wrap), value(KelText::WrapMode(2)), false,
        true);
    add("maximumLineCount", "one", 2, 1, false, true);
    add("maximumLineCount", "none", 1, 0, false, true);
    add("maximumLineCount", "negative", 1, -1, false, true);
    add("textWidth", "narrower", 100.0, 99.0, true, true);
    add("textWidth", "none", 100.0, 0.0, true, true);
    add("textWidth", "first", 0.0, 100.0, true, true);
    add("textWidth", "negative", 100.0, -1.0, true, true);
}

//! A signal is the last step: who hears it finds the new value, the new size and the repaint under way.
void tst_KelText::setters()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QVariant, before);
    QFETCH(const QVariant, after);
    QFETCH(const bool, hasArgument);
    QFETCH(const bool, laysOut);
    const QMetaProperty property = propertyOf(name);
    KelText text;
    text.setText(u"Title"_s);
    text.setFont(fontOf(20));
    property.write(&text, before);
    awaitLayout(text);
    if (name == "font")
        property.write(&text, before);
    forgetRepaintRequest(text);
    const QSizeF size = implicitSizeOf(text);

    QSignalSpy spy(&text, property.notifySignal());
    int heard = 0;
    QVariant valueAtSignal;
    QSizeF sizeAtSignal;
    bool isRepaintRequestedAtSignal = false;
    const auto look = [&] {
        ++heard;
        valueAtSignal = property.read(&text);
        sizeAtSignal = implicitSizeOf(text);
        isRepaintRequestedAtSignal = isRepaintRequested(text);
    };
    connect(&text, &KelText::textChanged, this, look);
    connect(&text, &KelText::fontChanged, this, look);
    connect(&text, &KelText::colorChanged, this, look);
    connect(&text, &KelText::horizontalAlignmentChanged, this, look);
    connect(&text, &KelText::verticalAlignmentChanged, this, look);
    connect(&text, &KelText::wrapModeChanged, this, look);
    connect(&text, &KelText::maximumLineCountChanged, this, look);
    connect(&text, &KelText::textWidthChanged, this, look);

    QVERIFY(property.write(&text, before));
    QCOMPARE(heard, 0);
    QVERIFY(!isRepaintRequested(text));
    QCOMPARE(implicitSizeOf(text), size);

    QVERIFY(property.write(&text, after));
    QCOMPARE(heard, 1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), hasArgument ? QVariantList{after} : QVariantList());
    QVERIFY(isRepaintRequestedAtSignal);
    QCOMPARE(sizeAtSignal, implicitSizeOf(text));
    QCOMPARE(sizeAtSignal != size, laysOut);
    // Flags beyond the property's own do not show in it.
    if (property.metaType() == QMetaType::fromType<Qt::Alignment>())
        QVERIFY(!(valueAtSignal.value<Qt::Alignment>() & ~after.value<Qt::Alignment>()));
    else
        QCOMPARE(valueAtSignal, after);
}

void tst_KelText::settersBeforeCompletion()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QVariant, before);
    QFETCH(const QVariant, after);
    QFETCH(const bool, hasArgument);
    const QMetaProperty property = propertyOf(name);
    KelText text;
    beginComponent(text);
    text.setText(u"Title"_s);
    property.write(&text, before);
    forgetRepaintRequest(text);
    QSignalSpy spy(&text, property.notifySignal());
    QVERIFY(property.write(&text, before));
    QCOMPARE(spy.count(), 0);
    QVERIFY(!isRepaintRequested(text));
    QVERIFY(property.write(&text, after));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), hasArgument ? QVariantList{after} : QVariantList());
    QVERIFY(isRepaintRequested(text));
    QCOMPARE(implicitSizeOf(text), QSizeF(0, 0));

    text.componentComplete();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(implicitSizeOf(text).isEmpty(), text.text().isEmpty());
    if (name != "textWidth")
        QVERIFY(property.read(&text) == after || name.endsWith("Alignment"));
}

void tst_KelText::completionTakesTheSizeSilently_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("textWidth");
    QTest::newRow("no width") << 0.0 << 0.0;
    QTest::newRow("whole") << 60.0 << 60.0;
    QTest::newRow("truncated") << 60.9 << 60.0;
    QTest::newRow("below one") << 0.9 << 0.0;
    QTest::newRow("negative") << -5.5 << -5.0;
    QTest::newRow("huge") << 1e10 << 2147483647.0;
    QTest::newRow("without limit") << numberMaxValue << 2147483647.0;
}

void tst_KelText::completionTakesTheSizeSilently()
{
    QFETCH(const double, width);
    QFETCH(const double, textWidth);
    KelText text;
    beginComponent(text);
    text.setText(u"A text of several words"_s);
    text.setFont(fontOf(20));
    text.setTextWidth(77);
    QCOMPARE(text.textWidth(), 77.0);
    text.setWidth(width);
    QSignalSpy spy(&text, &KelText::textWidthChanged);
    text.componentComplete();
    QCOMPARE(spy.count(), 0);
    QCOMPARE(text.textWidth(), textWidth);

    KelText other;
    other.setFont(text.font());
    other.setText(text.text());
    other.setTextWidth(textWidth);
    QCOMPARE(implicitSizeOf(text), implicitSizeOf(other));
    QCOMPARE(text.implicitHeight() > 30, width == 60.0 || width == 60.9);
}

void tst_KelText::laterSizesDoNotReachTheText()
{
    KelText text;
    beginComponent(text);
    text.setText(u"A text of several words"_s);
    text.setWidth(60);
    text.componentComplete();
    const QSizeF size = implicitSizeOf(text);
    QSignalSpy spy(&text, &KelText::textWidthChanged);
    for (const double width : {500.0, 20.0, 0.0, -3.0}) {
        text.setSize({width, width});
        QCOMPARE(text.textWidth(), 60.0);
        QCOMPARE(implicitSizeOf(text), size);
        awaitLayout(text);
        text.setFont(QFont());
        text.setWrapMode(
            text.wrapMode() == KelText::WrapMode::Wrap ? KelText::WrapMode::NoWrap : KelText::WrapMode::Wrap);
        QCOMPARE(text.textWidth(), 60.0);
        QCOMPARE(implicitSizeOf(text), size);
    }
    text.resetWidth();
    QCOMPARE(text.width(), size.width());
    QCOMPARE(spy.count(), 0);
}

void tst_KelText::textWidthInPixels_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("pixels");
    QTest::newRow("truncated") << 100.9 << 100.0;
    QTest::newRow("nearly the next") << 100.99999999999999 << 100.0;
    QTest::newRow("negative, truncated toward zero") << -100.9 << -100.0;
    QTest::newRow("nearly zero") << 0.999 << 0.0;
    QTest::newRow("nearly zero, negative") << -0.999 << 0.0;
    QTest::newRow("smallest above zero") << 5e-324 << 0.0;
    QTest::newRow("largest int") << 2147483647.0 << 2147483647.0;
    QTest::newRow("beyond the largest int by a part") << 2147483647.25 << 2147483647.0;
    QTest::newRow("beyond the largest int") << 2147483648.0 << 2147483647.0;
    QTest::newRow("below the largest int") << 2147483646.75 << 2147483646.0;
    QTest::newRow("smallest int") << -2147483648.0 << -2147483648.0;
    QTest::newRow("above the smallest int") << -2147483647.5 << -2147483647.0;
    QTest::newRow("below the smallest int by a part") << -2147483648.5 << 2147483647.0;
    QTest::newRow("below the smallest int") << -2147483649.0 << 2147483647.0;
    QTest::newRow("numberMaxValue") << numberMaxValue << 2147483647.0;
    QTest::newRow("its negative") << -numberMaxValue << 2147483647.0;
    QTest::newRow("infinity") << infinity << 2147483647.0;
    QTest::newRow("negative infinity") << -infinity << 2147483647.0;
    QTest::newRow("NaN") << notANumber << 2147483647.0;
}

void tst_KelText::textWidthInPixels()
{
    QFETCH(const double, value);
    QFETCH(const double, pixels);
    KelText text;
    text.setText(u"Title"_s);
    text.setTextWidth(3000);
    const QSizeF size = implicitSizeOf(text);
    QSignalSpy spy(&text, &KelText::textWidthChanged);
    text.setTextWidth(value);
    QCOMPARE(text.textWidth(), pixels);
    // Compared with the pixels held, the same value is a change each time unless it is a whole number.
    text.setTextWidth(value);
    QCOMPARE(text.textWidth(), pixels);
    QCOMPARE(spy.count(), value == pixels || qFuzzyCompare(value, pixels) ? 1 : 2);
    for (const QVariantList &arguments : std::as_const(spy)) {
        const double received = arguments.at(0).toDouble();
        QVERIFY(received == value || (std::isnan(received) && std::isnan(value)));
    }
    if (pixels < 1 || pixels > 100)
        QCOMPARE(implicitSizeOf(text), size);
}

void tst_KelText::nearlyEqualTextWidths_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<bool>("isChange");
    QTest::newRow("100, equal to 13 digits") << 100.0 << 100.00000000001 << false;
    QTest::newRow("100, equal to 11 digits") << 100.0 << 100.000000001 << true;
    QTest::newRow("100, less") << 100.0 << 99.99999999999 << false;
    QTest::newRow("100, less to 11 digits") << 100.0 << 99.999999999 << true;
    QTest::newRow("0, 0") << 0.0 << 0.0 << false;
    QTest::newRow("0, negative 0") << 0.0 << -0.0 << false;
    QTest::newRow("0, nearly nothing") << 0.0 << 1e-300 << true;
    QTest::newRow("0, 1") << 0.0 << 1.0 << true;
    QTest::newRow("1, 0") << 1.0 << 0.0 << true;
    QTest::newRow("1, nearly nothing") << 1.0 << 1e-300 << true;
    QTest::newRow("opposite") << 100.0 << -100.0 << true;
    QTest::newRow("negative") << -100.0 << -100.00000000001 << false;
    QTest::newRow("largest, beyond by a thousandth") << 2147483647.0 << 2147483647.001 << false;
    QTest::newRow("largest, beyond by a hundredth") << 2147483647.0 << 2147483647.01 << true;
}

void tst_KelText::nearlyEqualTextWidths()
{
    QFETCH(const double, from);
    QFETCH(const double, to);
    QFETCH(const bool, isChange);
    KelText text;
    text.setText(u"Title"_s);
    text.setFont(fontOf(20));
    text.setTextWidth(from);
    awaitLayout(text);
    const QSizeF size = implicitSizeOf(text);
    QSignalSpy spy(&text, &KelText::textWidthChanged);
    text.setTextWidth(to);
    QCOMPARE(spy.count(), isChange ? 1 : 0);
    QCOMPARE(isRepaintRequested(text), isChange);
    QCOMPARE(implicitSizeOf(text) != size, isChange);
    QCOMPARE(text.textWidth(), isChange ? std::clamp(std::trunc(to), -2147483648.0, 2147483647.0) : from);
}

void tst_KelText::sizesInPixelsAtCompletion_data()
{
    QTest::addColumn<double>("extent");
    for (const double extent :
        {-1e300, -2147483648.5, -1.0, 0.0, 0.4, 1.0, 2147483647.0, 1e10, numberMaxValue})
        QTest::addRow("%g", extent) << extent;
}

//! Sizes without sense are borne, and the text is laid out without a limit.
void tst_KelText::sizesInPixelsAtCompletion()
{
    QFETCH(const double, extent);
    for (const auto alignment : {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom}) {
        KelText text;
        beginComponent(text);
        text.setText(u"Title"_s);
        text.setFont(fontOf(20));
        text.setHAlign(Qt::AlignRight);
        text.setVAlign(alignment);
        text.setSize({extent, extent});
        text.componentComplete();
        QVERIFY(text.implicitWidth() >= (extent == 1 ? 1 : 40) && text.implicitWidth() < 100);
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        text.paint(&painter);
    }
}

void tst_KelText::alignments_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<Qt::Alignment>("value");
    QTest::addColumn<Qt::Alignment>("horizontal");
    QTest::addColumn<Qt::Alignment>("vertical");
    const auto add = [](const char *name, Qt::Alignment value, Qt::Alignment horizontal,
                         Qt::Alignment vertical) {
        QTest::addRow("%s, 0x%x", name, int(value)) << QByteArray(name) << value << horizontal << vertical;
    };
    const Qt::Alignment none;
    const char *horizontal = "horizontalAlignment";
    const char *vertical = "verticalAlignment";
    add(horizontal, Qt::AlignRight, Qt::AlignRight, Qt::AlignTop);
    add(horizontal, none, none, Qt::AlignTop);
    add(horizontal, Qt::AlignHCenter | Qt::AlignVCenter, Qt::AlignHCenter, Qt::AlignTop | Qt::AlignVCenter);
    add(horizontal, Qt::AlignVCenter, none, Qt::AlignTop | Qt::AlignVCenter);
    add(horizontal, Qt::Alignment(0x1f), Qt::Alignment(0x1f), Qt::AlignTop);
    add(horizontal, Qt::Alignment(0x1ff), Qt::Alignment(0x1f), Qt::Alignment(0x1e0));
    add(horizontal, Qt::Alignment(0x7ffffe00), none, Qt::AlignTop);
    add(vertical, Qt::AlignBottom, Qt::AlignLeft, Qt::AlignBottom);
    add(vertical, none, Qt::AlignLeft, none);
    add(vertical, Qt::AlignHCenter | Qt::AlignVCenter, Qt::AlignLeft | Qt::AlignHCenter, Qt::AlignVCenter);
    add(vertical, Qt::AlignRight, Qt::AlignLeft | Qt::AlignRight, none);
    add(vertical, Qt::Alignment(0x1e0), Qt::AlignLeft, Qt::Alignment(0x1e0));
    add(vertical, Qt::Alignment(0x1ff), Qt::Alignment(0x1f), Qt::Alignment(0x1e0));
    add(vertical, Qt::Alignment(0x7ffffe00), Qt::AlignLeft, none);
}

void tst_KelText::alignments()
{
    QFETCH(const QByteArray, name);
    QFETCH(const Qt::Alignment, value);
    QFETCH(const Qt::Alignment, horizontal);
    QFETCH(const Qt::Alignment, vertical);
    KelText text;
    text.setText(u"Title"_s);
    const QMetaProperty property = propertyOf(name);
    const QMetaProperty other =
        propertyOf(name == "horizontalAlignment" ? "verticalAlignment" : "horizontalAlignment");
    QSignalSpy spy(&text, property.notifySignal());
    QSignalSpy otherSpy(&text, other.notifySignal());
    QVERIFY(property.write(&text, QVariant::fromValue(value)));
    QCOMPARE(text.hAlign(), horizontal);
    QCOMPARE(text.vAlign(), vertical);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<Qt::Alignment>(), value);
    // The other property has changed without a word.
    QCOMPARE(otherSpy.count(), 0);
}

void tst_KelText::foreignFlagsAlwaysCountAsChange_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<Qt::Alignment>("value");
    const auto add = [](const char *name, Qt::Alignment value) {
        QTest::addRow("%s, 0x%x", name, int(value)) << QByteArray(name) << value;
    };
    add("horizontalAlignment", Qt::AlignHCenter | Qt::AlignVCenter);
    add("horizontalAlignment", Qt::AlignLeft | Qt::AlignTop);
    add("horizontalAlignment", Qt::AlignTop);
    add("horizontalAlignment", Qt::AlignLeft | Qt::Alignment(0x200));
    add("verticalAlignment", Qt::AlignHCenter | Qt::AlignVCenter);
    add("verticalAlignment", Qt::AlignLeft | Qt::AlignTop);
    add("verticalAlignment", Qt::AlignLeft);
    add("verticalAlignment", Qt::AlignTop | Qt::Alignment(0x200));
}

void tst_KelText::foreignFlagsAlwaysCountAsChange()
{
    QFETCH(const QByteArray, name);
    QFETCH(const Qt::Alignment, value);
    KelText text;
    text.setText(u"Title"_s);
    text.setFont(fontOf(20));
    const QMetaProperty property = propertyOf(name);
    QSignalSpy spy(&text, property.notifySignal());
    for (int times = 1; times <= 3; ++times) {
        awaitLayout(text);
        const QSizeF size = implicitSizeOf(text);
        QVERIFY(property.write(&text, QVariant::fromValue(value)));
        QCOMPARE(spy.count(), times);
        QCOMPARE(spy.last().at(0).value<Qt::Alignment>(), value);
        QVERIFY(isRepaintRequested(text));
        QCOMPARE_NE(implicitSizeOf(text), size);
    }
}

void tst_KelText::wrapModeDoesNotChangeLines_data()
{
    QTest::addColumn<double>("textWidth");
    QTest::addColumn<int>("lines");
    QTest::newRow("one line") << 0.0 << 1;
    QTest::newRow("several lines") << 90.0 << 3;
}

void tst_KelText::wrapModeDoesNotChangeLines()
{
    QFETCH(const double, textWidth);
    QFETCH(const int, lines);
    KelText line;
    line.setFont(fontOf(20));
    line.setText(u"A"_s);
    KelText text;
    text.setFont(fontOf(20));
    text.setTextWidth(textWidth);
    text.setText(u"several words of a text"_s);
    const QSizeF size = implicitSizeOf(text);
    QCOMPARE(size.height(), lines * line.implicitHeight());
    QSignalSpy spy(&text, &KelText::wrapModeChanged);
    for (const auto mode : {KelText::WrapMode::WordWrap, KelText::WrapMode::WrapAnywhere,
             KelText::WrapMode::Wrap, KelText::WrapMode::NoWrap})
        text.setWrapMode(mode);
    QCOMPARE(implicitSizeOf(text), size);
    QCOMPARE(spy.count(), 4);
}

void tst_KelText::fontChangeKeepsImplicitSize_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("laysOut");
    QTest::newRow("text") << "text"_ba << QVariant(u"Title."_s) << true;
    QTest::newRow("color") << "color"_ba << QVariant(QColor(Qt::red)) << false;
    QTest::newRow("horizontalAlignment") << "horizontalAlignment"_ba << value(Qt::AlignRight) << true;
    QTest::newRow("verticalAlignment") << "verticalAlignment"_ba << value(Qt::AlignBottom) << true;
    QTest::newRow("wrapMode") << "wrapMode"_ba << value(KelText::WrapMode::Wrap) << true;
    QTest::newRow("maximumLineCount") << "maximumLineCount"_ba << QVariant(1) << true;
    QTest::newRow("textWidth") << "textWidth"_ba << QVariant(1000.0) << true;
}

void tst_KelText::fontChangeKeepsImplicitSize()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QVariant, value);
    QFETCH(const bool, laysOut);
    KelText text;
    text.setFont(fontOf(20));
    text.setText(u"Title"_s);
    const QSizeF size = implicitSizeOf(text);
    text.setFont(fontOf(40));
    QCOMPARE(text.font(), fontOf(40));
    QCOMPARE(implicitSizeOf(text), size);
    QVERIFY(propertyOf(name).write(&text, value));
    QCOMPARE(implicitSizeOf(text) != size, laysOut);
}

void tst_KelText::limitsWithoutMeaningAreNone_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<double>("textWidth");
    for (const int lines : {-unlimited - 1, -1, 0, 1, 2, 3, unlimited}) {
        for (const double textWidth : {-2147483648.0, -1.0, 0.0, 1.0, 300.0, 2147483646.0, 2147483647.0})
            QTest::addRow("%d lines, %.0f px", lines, textWidth) << lines << textWidth;
    }
}

void tst_KelText::limitsWithoutMeaningAreNone()
{
    QFETCH(const int, lines);
    QFETCH(const double, textWidth);
    KelText line;
    line.setFont(fontOf(20));
    line.setText(u"one"_s);
    KelText text;
    text.setFont(fontOf(20));
    text.setText(u"one\ntwo"_s);
    text.setMaximumLineCount(lines);
    text.setTextWidth(textWidth);
    QCOMPARE(text.maximumLineCount(), lines);
    QCOMPARE(text.textWidth(), textWidth);
    // A pixel is too little for any letter: each has a line of its own.
    const int wanted = textWidth == 1 ? 6 : 2;
    QCOMPARE(text.implicitHeight(), (lines > 0 ? std::min(lines, wanted) : wanted) * line.implicitHeight());
    QVERIFY(text.implicitWidth() <= (textWidth > 0 ? std::min(textWidth, 1000.0) : 1000));
}

QTEST_MAIN(tst_KelText)

#include "tst_keltext.moc"
