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
#include <functional>
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

//! Shown by the picture of its own that any painted item keeps: what a label must look like.
class PictureLabel : public KelText
{
    Q_OBJECT

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override
    {
        // Past the label's own way of painting. NOLINTNEXTLINE(bugprone-parent-virtual-call)
        return QQuickPaintedItem::updatePaintNode(oldNode, data);
    }
};

//! A white window that shows a scene.
class Scene
{
public:
    Scene(QQmlEngine &engine, const QByteArray &qml)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport Labels\n" + qml, {});
        m_root.reset(qobject_cast<QQuickItem *>(component.create()));
        if (!m_root)
            qFatal("%s", qPrintable(component.errorString()));
        m_window.setColor(Qt::white);
        m_window.resize(sceneSize);
        m_root->setParentItem(m_window.contentItem());
        m_window.show();
    }

    QQuickWindow &window() { return m_window; }
    QQuickItem *root() { return m_root.get(); }
    KelText *label() { return m_root->findChild<KelText *>(); }

    //! Calls a function of the scene. Returns whether it has one of that name.
    bool call(const char *function)
    {
        QQuickItem *item = m_root->childItems().value(0);
        const QByteArray signature = QByteArray(function) + "()";
        return item && item->metaObject()->indexOfMethod(signature) >= 0
            && QMetaObject::invokeMethod(item, function);
    }

    //! What the window shows. Only what has changed since the last picture is painted.
    QImage picture()
    {
        if (!QTest::qWaitForWindowExposed(&m_window))
            return {};
        QImage picture = m_window.grabWindow().convertToFormat(QImage::Format_RGB32);
        picture.setDevicePixelRatio(m_window.effectiveDevicePixelRatio());
        return picture;
    }

    static constexpr QSize sceneSize{320, 200};

private:
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_root;
};

//! A scene in which LABEL stands for a label of this type with a place, a size and a text.
QByteArray withLabels(const QByteArray &type, QByteArray scene)
{
    scene.replace("LABEL", "TestLabel");
    return "Item { component TestLabel: " + type
        + " { x: 20; y: 16; width: 200; height: 60; text: 'Title: слово';"
          " font { family: 'DejaVu Sans'; pixelSize: 20 } } "
        + scene + " }";
}

bool isBlank(const QImage &picture)
{
    QImage white(picture.size(), picture.format());
    white.fill(Qt::white);
    white.setDevicePixelRatio(picture.devicePixelRatio());
    return !picture.isNull() && picture == white;
}

//! Says how pictures differ, or nothing where no channel differs by more than the tolerance.
QString difference(const QImage &actual, const QImage &expected, int tolerance = 0)
{
    if (actual.isNull() || actual.size() != expected.size())
        return u"size"_s;
    int count = 0;
    int largest = 0;
    QRect area;
    QImage marked(expected.size(), QImage::Format_RGB32);
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const QRgb left = actual.pixel(x, y);
            const QRgb right = expected.pixel(x, y);
            const int distance = std::max({std::abs(qRed(left) - qRed(right)),
                std::abs(qGreen(left) - qGreen(right)), std::abs(qBlue(left) - qBlue(right))});
            const int gray = 160 + qGray(right) / 3;
            marked.setPixel(x, y, distance > tolerance ? qRgb(220, 0, 0) : qRgb(gray, gray, gray));
            if (distance <= tolerance)
                continue;
            ++count;
            largest = std::max(largest, distance);
            area |= QRect(x, y, 1, 1);
        }
    }
    if (count == 0)
        return {};
    QString name = QLatin1StringView(QTest::currentTestFunction()) + u'-'
        + QString::fromUtf8(QTest::currentDataTag() ? QTest::currentDataTag() : "");
    name.replace(QRegularExpression(u"[^\\w-]+"_s), u"_"_s);
    const QString path = QStringLiteral(QT_TESTCASE_BUILDDIR) + u"/keltext-"_s + name + u'-';
    actual.save(path + u"actual.png"_s);
    expected.save(path + u"expected.png"_s);
    marked.save(path + u"difference.png"_s);
    return u"%1 pixels differ by up to %2 within %3, %4 + %5 x %6; see %7difference.png"_s.arg(count)
        .arg(largest)
        .arg(area.x())
        .arg(area.y())
        .arg(area.width())
        .arg(area.height())
        .arg(path);
}

} // namespace

class tst_KelText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
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

    void pictures_data();
    void pictures();
    void picturesOfACertainKind_data();
    void picturesOfACertainKind();
    void paintDrawsWhatIsShown_data();
    void paintDrawsWhatIsShown();
    void invalidColorPaintsBlack();
    void transformations_data();
    void transformations();
    void layersLikeThoseOfQtQuickText_data();
    void layersLikeThoseOfQtQuickText();
    void sameAsQtQuickText_data();
    void sameAsQtQuickText();
    void linesLikeQtQuickText_data();
    void linesLikeQtQuickText();
    void decorationsMoveWithTheLabel_data();
    void decorationsMoveWithTheLabel();
    void drawsNothing_data();
    void drawsNothing();
    void hugeItemsShowTheirText_data();
    void hugeItemsShowTheirText();
    void heightGivenAfterCompletionAligns_data();
    void heightGivenAfterCompletionAligns();
    void heightOfCompletionStays();
    void grabsToImage_data();
    void grabsToImage();
    void movesBetweenWindows();
    void outlivesItsWindow();
    void diesBetweenFrames();

private:
    QQmlEngine m_engine;
};

void tst_KelText::initTestCase()
{
    qmlRegisterType<KelText>("Labels", 1, 0, "Label");
    qmlRegisterType<PictureLabel>("Labels", 1, 0, "PictureLabel");
}

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
    add("wrapMode", "anywhere", value(KelText::WrapMode::Wrap), value(KelText::WrapMode::WrapAnywhere), false,
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

void tst_KelText::pictures_data()
{
    QTest::addColumn<QByteArray>("scene");
    const auto add = [](const char *tag, const QByteArray &scene) { QTest::newRow(tag) << scene; };
    // A label by itself, and one with a change.
    const auto addLabel = [&](const char *tag, const QByteArray &properties) {
        add(tag, "Item { LABEL {" + properties + "} }");
    };
    const auto addChange = [&](const char *tag, const QByteArray &change, const QByteArray &properties = {}) {
        add(tag, "Item { function change() {" + change + "} LABEL { id: label;" + properties + "} }");
    };
    const auto addBeside = [&](const char *tag, const QByteArray &others, const QByteArray &change = {}) {
        add(tag,
            "Item { function change() {" + change + "} Item { id: under; anchors.fill: parent }"
                + "LABEL { id: label }" + others + "}");
    };

    addLabel("plain", "");
    addLabel("red", "color: 'red'");
    addLabel("half blue", "color: '#800000ff'");
    addLabel("transparent", "color: 'transparent'");
    addLabel("opacity", "opacity: 0.4");
    addLabel("opacity of half blue", "opacity: 0.4; color: '#800000ff'");
    addLabel("several lines", "text: 'Several words in lines'; width: 90; height: 120");
    addLabel("cut to lines", "text: 'Several words in lines'; width: 90; maximumLineCount: 2");
    addLabel("right, bottom", "horizontalAlignment: Qt.AlignRight; verticalAlignment: Qt.AlignBottom");
    addLabel("centre", "horizontalAlignment: Qt.AlignCenter");
    addLabel("beyond the left and top", "x: -30; y: -8");
    addLabel("beyond the right and bottom", "x: 300; y: 190");
    addLabel("far to the right", "x: 2147483648");
    addLabel("far down", "y: 2147483648");
    addLabel("italics", "font.italic: true; text: 'fjord'; font.pixelSize: 40");

    // A label smaller than its text cuts it.
    addLabel("narrow and low", "width: 37; height: 13; Component.onCompleted: textWidth = 0");
    addLabel("one pixel", "width: 1; height: 30; Component.onCompleted: textWidth = 0");
    addLabel("part of a pixel", "width: 60.3; height: 12.7; Component.onCompleted: textWidth = 0");
    addLabel("bottom, too low", "height: 9; verticalAlignment: Qt.AlignBottom");

    add("in a moved item", "Item { x: 7; y: 11; Item { x: 30; y: 40; LABEL {} } }");
    add("in a translucent item", "Item { opacity: 0.5; Item { opacity: 0.5; LABEL {} } }");
    add("in an invisible item", "Item { visible: false; LABEL {} }");
    add("in a clip", "Item { Item { x: 15; y: 20; width: 60; height: 15; clip: true; LABEL {} } }");
    add("in two clips",
        "Item { x: 15; y: 20; width: 60; height: 15; clip: true;"
        " Item { x: 10; y: -5; width: 100; height: 15; clip: true; LABEL {} } }");
    add("clipping itself", "Item { LABEL { clip: true; width: 50; Component.onCompleted: textWidth = 0 } }");
    add("beyond a clip", "Item { width: 100; height: 100; clip: true; LABEL { x: 120 } }");
    add("above a clip", "Item { y: 80; width: 100; height: 100; clip: true; LABEL { y: -60 } }");
    add("in an empty clip", "Item { width: 0; height: 100; clip: true; LABEL {} }");
    add("scrolled out of a clip and back",
        "Item { width: 200; height: 60; clip: true; function change() { inner.y = 100; }"
        " function changeAgain() { inner.y = 15; } Item { id: inner; LABEL {} } }");
    add("in two clips apart",
        "Item { width: 100; height: 100; clip: true;"
        " Item { x: 110; width: 100; height: 100; clip: true; LABEL {} } }");

    // Changes repaint what they must, and nothing twice.
    addChange("text", "label.text = 'Other';");
    addChange("color", "label.color = 'red';");
    addChange("color to translucent", "label.color = '#40ff0000';");
    addChange("alignment", "label.horizontalAlignment = Qt.AlignRight;");
    addChange("vertical alignment", "label.verticalAlignment = Qt.AlignBottom;");
    addChange("text width", "label.textWidth = 60;");
    addChange("line count", "label.maximumLineCount = 1;", "text: 'Several words in lines'; width: 90");
    addChange("deliberately not the font", "label.font.pixelSize = 30;");
    addChange("font and text", "label.font.pixelSize = 30; label.text += '!';");
    addChange("moved", "label.x = 43; label.y = 2;");
    addChange("resized", "label.width = 30; label.height = 15;");
    addChange("enlarged", "label.width = 180; label.height = 80;", "width: 30; height: 15");
    addChange("without size", "label.width = 0;");
    addChange("without size and back", "label.width = 0;} function changeAgain() { label.width = 60;");
    addChange("opacity changes", "label.opacity = 0.3;");
    addChange("no opacity and back", "label.opacity = 0;} function changeAgain() { label.opacity = 1;");
    addChange("hidden", "label.visible = false;");
    addChange("hidden and shown", "label.visible = false;} function changeAgain() { label.visible = true;");
    addChange("changed while hidden",
        "label.visible = false; label.text = 'Other';} function changeAgain() {"
        " label.visible = true;");
    addChange("clip", "label.clip = true;", "width: 40");

    addBeside("part below changes",
        "Rectangle { id: part; parent: under; x: 30; y: 25; width: 40; height: 12 }",
        "part.color = 'yellow';");
    addBeside("parts below change",
        "Rectangle { id: part; parent: under; x: 30; y: 25; width: 40; height: 6 }"
        "Rectangle { id: other; parent: under; x: 60; y: 37; width: 40; height: 6 }",
        "part.color = 'yellow'; other.color = 'lime';");
    addBeside("part above changes",
        "Rectangle { id: part; x: 30; y: 25; width: 40; height: 12; color: '#8000ff00' }",
        "part.color = '#80ff0000';");
    addBeside("part above vanishes", "Rectangle { id: part; x: 30; y: 25; width: 40; height: 12 }",
        "part.visible = false;");
    addBeside("covered and changed", "Rectangle { id: part; x: 0; y: 0; width: 300; height: 100 }",
        "label.text = 'Other';} function changeAgain() { part.visible = false;");
    addBeside("half covered and changed", "Rectangle { id: part; x: 0; y: 0; width: 60; height: 100 }",
        "label.text = 'Other';} function changeAgain() { part.visible = false;");
    addBeside("part above moves", "Rectangle { id: part; x: 30; y: 25; width: 20; height: 9; color: 'gray' }",
        "part.x += 20;");
    addBeside("other label overlaps", "LABEL { id: other; x: 50; y: 30; color: 'red' }", "other.x += 10;");
    add("part below changes in a clip",
        "Item { width: 100; height: 34; clip: true; function change() { part.color = 'yellow'; }"
        " Rectangle { id: part; x: 30; y: 25; width: 40; height: 40 } LABEL {} }");
    add("part below changes, bottom",
        "Item { function change() { part.color = 'yellow'; }"
        " Rectangle { id: part; x: 30; y: 55; width: 40; height: 9 }"
        " LABEL { height: 0; verticalAlignment: Qt.AlignBottom; Component.onCompleted: height = 60 } }");

    // Whoever asks for a picture of a certain kind gets one.
    addLabel("fill color", "fillColor: 'yellow'");
    addLabel("contents scale", "contentsScale: 2");
    addLabel("contents size", "contentsSize: Qt.size(50, 20)");
    addLabel("texture size", "textureSize: Qt.size(100, 30)");
    addLabel("antialiasing", "antialiasing: true");
    addLabel("smooth", "smooth: false");
    addChange("fill color set", "label.fillColor = 'yellow';");
    addChange("fill color set and reset",
        "label.fillColor = 'yellow';} function changeAgain() { label.fillColor = 'transparent';");
    addChange("fill color reset, then text",
        "label.fillColor = 'transparent';} function changeAgain() { label.text = 'Other';",
        "fillColor: 'yellow'");
    addChange("contents scale set", "label.contentsScale = 2;");
    addChange("contents size set", "label.contentsSize = Qt.size(50, 20);");
    addChange("texture size set", "label.textureSize = Qt.size(100, 30); label.text = 'Other';");
    addChange("antialiasing set", "label.antialiasing = true;");
    addChange("picture without size and back",
        "label.fillColor = 'yellow'; label.width = 0;} function changeAgain() { label.width = 60;");
    addChange("picture hidden and shown",
        "label.visible = false; label.fillColor = 'yellow';} function changeAgain() { label.visible = true;");
}

/*!
    A label looks like the picture that a painted item keeps, at first and after changes; and after changes
    as if it had been so from the start.
*/
void tst_KelText::pictures()
{
    QFETCH(const QByteArray, scene);
    Scene shown(m_engine, withLabels("Label", scene));
    Scene expected(m_engine, withLabels("PictureLabel", scene));
    // Translucent text is rounded once more when it is first painted into a picture.
    constexpr int tolerance = 1;
    QCOMPARE(difference(shown.picture(), expected.picture(), tolerance), QString());
    if (!shown.call("change"))
        return;
    expected.call("change");
    QCOMPARE(difference(shown.picture(), expected.picture(), tolerance), QString());
    const bool isChangedAgain = shown.call("changeAgain");
    expected.call("changeAgain");
    const QImage picture = shown.picture();
    QCOMPARE(difference(picture, expected.picture(), tolerance), QString());

    Scene fresh(m_engine, withLabels("Label", scene));
    fresh.call("change");
    if (isChangedAgain)
        fresh.call("changeAgain");
    QCOMPARE(difference(picture, fresh.picture()), QString());
}

void tst_KelText::picturesOfACertainKind_data()
{
    QTest::addColumn<std::function<void(KelText &)>>("set");
    const auto add = [](const char *tag, const std::function<void(KelText &)> &set) {
        QTest::newRow(tag) << set;
    };
    add("nothing", [](KelText &) { });
    add("opaque painting", [](KelText &label) {
        label.setFillColor(Qt::yellow);
        label.setOpaquePainting(true);
    });
    add("mipmap", [](KelText &label) { label.setMipmap(true); });
    add("fast resizing",
        [](KelText &label) { label.setPerformanceHint(QQuickPaintedItem::FastFBOResizing); });
    add("framebuffer object",
        [](KelText &label) { label.setRenderTarget(QQuickPaintedItem::FramebufferObject); });
    add("fill color", [](KelText &label) { label.setFillColor(QColor(255, 0, 0, 128)); });
    add("antialiasing", [](KelText &label) { label.setAntialiasing(true); });
    add("contents scale", [](KelText &label) { label.setContentsScale(0.5); });
}

void tst_KelText::picturesOfACertainKind()
{
    QFETCH(const std::function<void(KelText &)>, set);
    for (const bool isAtRunTime : {false, true}) {
        Scene shown(m_engine, withLabels("Label", "Item { LABEL {} }"));
        Scene expected(m_engine, withLabels("PictureLabel", "Item { LABEL {} }"));
        if (isAtRunTime)
            QCOMPARE(difference(shown.picture(), expected.picture()), QString());
        set(*shown.label());
        set(*expected.label());
        shown.label()->update();
        expected.label()->update();
        QCOMPARE(difference(shown.picture(), expected.picture()), QString());
        shown.label()->setText(u"Other"_s);
        expected.label()->setText(u"Other"_s);
        QCOMPARE(difference(shown.picture(), expected.picture()), QString());
    }
}

void tst_KelText::paintDrawsWhatIsShown_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::newRow("plain") << ""_ba;
    QTest::newRow("colour") << "color: 'red'"_ba;
    QTest::newRow("translucent") << "color: '#80ff0000'"_ba;
    QTest::newRow("lines") << "text: 'Several words in lines'; width: 90; height: 120"_ba;
    QTest::newRow("cut to lines") << "text: 'Several words in lines'; width: 90; maximumLineCount: 2"_ba;
    QTest::newRow("bottom") << "verticalAlignment: Qt.AlignBottom"_ba;
    QTest::newRow("bottom, unknown height")
        << "height: 0; verticalAlignment: Qt.AlignBottom; Component.onCompleted: height = 60"_ba;
    QTest::newRow("centre, unknown height")
        << "height: 0; verticalAlignment: Qt.AlignVCenter; Component.onCompleted: height = 60"_ba;
    QTest::newRow("centre") << "horizontalAlignment: Qt.AlignCenter"_ba;
}

void tst_KelText::paintDrawsWhatIsShown()
{
    QFETCH(const QByteArray, properties);
    Scene scene(m_engine, withLabels("Label", "Item { LABEL {" + properties + "} }"));
    KelText &label = *scene.label();
    const QImage shown = scene.picture();
    QVERIFY(!isBlank(shown));
    QImage painted(shown.size(), shown.format());
    painted.setDevicePixelRatio(shown.devicePixelRatio());
    painted.fill(Qt::white);
    QPainter painter(&painted);
    painter.translate(label.position());
    painter.setClipRect(label.boundingRect());
    // Neither is taken from the painter.
    painter.setPen(QPen(Qt::green, 7));
    painter.setBrush(Qt::green);
    label.paint(&painter);
    painter.end();
    QCOMPARE(difference(painted, shown), QString());
}

void tst_KelText::invalidColorPaintsBlack()
{
    Scene scene(m_engine, withLabels("Label", "Item { LABEL {} }"));
    const QImage black = scene.picture();
    scene.label()->setColor(QColor());
    QCOMPARE(difference(scene.picture(), black), QString());
}

void tst_KelText::drawsNothing_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::newRow("no width") << 0.0 << 60.0;
    QTest::newRow("no height") << 200.0 << 0.0;
    QTest::newRow("nothing") << 0.0 << 0.0;
    QTest::newRow("negative width") << -100.0 << 60.0;
    QTest::newRow("negative height") << 200.0 << -60.0;
    QTest::newRow("negative") << -100.0 << -60.0;
    QTest::newRow("hardly any width") << 0.4 << 60.0;
    QTest::newRow("hardly any height") << 200.0 << 0.4;
    QTest::newRow("hardly any") << 1e-300 << 1e-300;
    QTest::newRow("negative, huge") << -1e300 << -1e300;
}

void tst_KelText::drawsNothing()
{
    QFETCH(const double, width);
    QFETCH(const double, height);
    Scene scene(m_engine, withLabels("Label", "Item { LABEL {} }"));
    KelText &label = *scene.label();
    const QImage before = scene.picture();
    QVERIFY(!isBlank(before));
    label.setSize({width, height});
    QVERIFY(isBlank(scene.picture()));
    label.setText(u"Other"_s);
    QVERIFY(isBlank(scene.picture()));
    label.setText(u"Title: слово"_s);
    label.setSize({200, 60});
    QCOMPARE(difference(scene.picture(), before), QString());
    // Qt Quick ignores a size that is not a number.
    label.setSize({notANumber, notANumber});
    label.setWidth(notANumber);
    scene.picture();
}

void tst_KelText::hugeItemsShowTheirText_data()
{
    QTest::addColumn<double>("extent");
    for (const double extent : {1e4, 1e6, 2147483647.0, 1e10, 1e300, infinity})
        QTest::addRow("%g", extent) << extent;
}

void tst_KelText::hugeItemsShowTheirText()
{
    QFETCH(const double, extent);
    Scene scene(m_engine, withLabels("Label", "Item { LABEL {} }"));
    const QImage before = scene.picture();
    scene.label()->setSize({extent, extent});
    QCOMPARE(difference(scene.picture(), before), QString());
    scene.label()->setText(u"Other"_s);
    scene.picture();
    scene.label()->setText(u"Title: слово"_s);
    QCOMPARE(difference(scene.picture(), before), QString());
}

void tst_KelText::heightGivenAfterCompletionAligns_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("top");
    // A line of this font is 24 pixels high.
    QTest::newRow("top") << Qt::Alignment(Qt::AlignTop) << 100 << 0;
    QTest::newRow("centre") << Qt::Alignment(Qt::AlignVCenter) << 100 << 38;
    QTest::newRow("bottom") << Qt::Alignment(Qt::AlignBottom) << 100 << 76;
    QTest::newRow("centre, odd") << Qt::Alignment(Qt::AlignVCenter) << 99 << 37;
    QTest::newRow("bottom, odd") << Qt::Alignment(Qt::AlignBottom) << 99 << 75;
    QTest::newRow("bottom, just fits") << Qt::Alignment(Qt::AlignBottom) << 24 << 0;
    QTest::newRow("bottom, too low") << Qt::Alignment(Qt::AlignBottom) << 20 << 0;
    QTest::newRow("both") << Qt::Alignment(Qt::AlignBottom | Qt::AlignVCenter) << 100 << 38;
}

void tst_KelText::heightGivenAfterCompletionAligns()
{
    QFETCH(const Qt::Alignment, alignment);
    QFETCH(const int, height);
    QFETCH(const int, top);
    constexpr auto *qml = "Item { function change() { part.color = 'yellow'; } function changeAgain() {"
                          " part.color = 'transparent'; }"
                          " LABEL { height: 0 } Rectangle { id: part; x: 30; y: 30; width: 20; height: 9;"
                          " color: 'transparent' } }";
    Scene scene(m_engine, withLabels("Label", qml));
    Scene reference(m_engine, withLabels("Label", qml));
    for (Scene *each : {&scene, &reference}) {
        QCOMPARE(each->label()->implicitHeight(), 24.0);
        each->label()->setHeight(height);
    }
    scene.label()->setVAlign(alignment);
    reference.label()->setY(reference.label()->y() + top);
    if (top > 0)
        reference.label()->setHeight(height - top);
    const QImage expected = reference.picture();
    QCOMPARE(difference(scene.picture(), expected), QString());
    // The same after a part of the window has been painted alone, and after the height has changed again.
    QVERIFY(scene.call("change"));
    scene.picture();
    QVERIFY(scene.call("changeAgain"));
    QCOMPARE(difference(scene.picture(), expected), QString());
    scene.label()->setHeight(60);
    scene.picture();
    scene.label()->setHeight(height);
    QCOMPARE(difference(scene.picture(), expected), QString());
}

void tst_KelText::heightOfCompletionStays()
{
    Scene scene(
        m_engine, withLabels("Label", "Item { LABEL { height: 100; verticalAlignment: Qt.AlignBottom } }"));
    const QImage before = scene.picture();
    QVERIFY(!isBlank(before));
    scene.label()->setHeight(170);
    QCOMPARE(difference(scene.picture(), before), QString());
    scene.label()->setVAlign(Qt::AlignTop);
    scene.label()->setVAlign(Qt::AlignBottom);
    QCOMPARE(difference(scene.picture(), before), QString());
}

void tst_KelText::grabsToImage_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QSize>("size");
    QTest::newRow("own size") << ""_ba << QSize();
    QTest::newRow("the same size") << ""_ba << QSize(200, 60);
    QTest::newRow("twice the size") << ""_ba << QSize(400, 120);
    QTest::newRow("half the size") << ""_ba << QSize(100, 30);
    QTest::newRow("wider") << ""_ba << QSize(400, 60);
    QTest::newRow("bottom") << "verticalAlignment: Qt.AlignBottom"_ba << QSize(400, 120);
    QTest::newRow("bottom, unknown height")
        << "height: 0; verticalAlignment: Qt.AlignBottom; Component.onCompleted: height = 60"_ba
        << QSize(400, 120);
    QTest::newRow("centre, unknown height")
        << "height: 0; verticalAlignment: Qt.AlignVCenter; Component.onCompleted: height = 60"_ba << QSize();
}

//! A grabbed label is what paint() draws, in the scale asked for.
void tst_KelText::grabsToImage()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QSize, size);
    Scene scene(m_engine, withLabels("Label", "Item { LABEL {" + properties + "} }"));
    KelText &label = *scene.label();
    const QImage shown = scene.picture();
    const auto result = label.grabToImage(size);
    QVERIFY(result);
    QSignalSpy spy(result.get(), &QQuickItemGrabResult::ready);
    QVERIFY(spy.wait());
    const QImage grabbed = result->image();
    const QSize expectedSize = (size.isValid() ? size : QSize(200, 60)) * shown.devicePixelRatio();
    QCOMPARE(grabbed.size(), expectedSize);

    QImage expected(expectedSize, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(expectedSize.width() / 200.0, expectedSize.height() / 60.0);
    painter.setClipRect(label.boundingRect());
    label.paint(&painter);
    painter.end();
    QCOMPARE(difference(grabbed, expected), QString());
    // What is shown stays as it is.
    QCOMPARE(difference(scene.picture(), shown), QString());
}

void tst_KelText::movesBetweenWindows()
{
    for (const QByteArray &type : {"Label"_ba, "PictureLabel"_ba}) {
        for (const QByteArray &properties : {""_ba, "fillColor: 'yellow'"_ba}) {
            Scene first(m_engine, withLabels(type, "Item { LABEL {" + properties + "} }"));
            Scene second(m_engine, withLabels(type, "Item {}"));
            KelText &label = *first.label();
            QQuickItem *parent = label.parentItem();
            const QImage shown = first.picture();
            QVERIFY(!isBlank(shown));
            QVERIFY(isBlank(second.picture()));
            for (int times = 0; times < 2; ++times) {
                label.setParentItem(second.root());
                QVERIFY(isBlank(first.picture()));
                QCOMPARE(difference(second.picture(), shown), QString());
                label.setParentItem(parent);
                QVERIFY(isBlank(second.picture()));
                QCOMPARE(difference(first.picture(), shown), QString());
            }
            // Changed while it is in no window.
            label.setParentItem(nullptr);
            QVERIFY(isBlank(first.picture()));
            label.setColor(Qt::red);
            label.setParentItem(second.root());
            const QImage red = second.picture();
            QVERIFY(!isBlank(red));
            QVERIFY(!difference(red, shown).isEmpty());
            label.setParentItem(parent);
        }
    }
}

void tst_KelText::outlivesItsWindow()
{
    KelText label;
    label.setText(u"Title"_s);
    label.setSize({100, 50});
    QImage shown;
    for (int times = 0; times < 3; ++times) {
        Scene scene(m_engine, "Item {}");
        label.setParentItem(scene.root());
        const QImage picture = scene.picture();
        QVERIFY(!isBlank(picture));
        if (!shown.isNull())
            QCOMPARE(difference(picture, shown), QString());
        shown = picture;
        label.setParentItem(nullptr);
    }
}

void tst_KelText::diesBetweenFrames()
{
    for (const bool isChanged : {false, true}) {
        Scene scene(m_engine, withLabels("Label", "Item { LABEL {} }"));
        QVERIFY(!isBlank(scene.picture()));
        if (isChanged)
            scene.label()->setText(u"Other"_s);
        delete scene.label();
        QVERIFY(isBlank(scene.picture()));
    }
    Scene never(m_engine, withLabels("Label", "Item { LABEL {} }"));
    delete never.label();
    QVERIFY(isBlank(never.picture()));
}

void tst_KelText::transformations_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QByteArray>("label");
    const auto add = [](const char *tag, const QByteArray &properties, const QByteArray &label = {}) {
        QTest::newRow(tag) << properties << label;
    };
    // Smaller than its text.
    const QByteArray cut = "width: 70; height: 14; Component.onCompleted: textWidth = 0";
    add("twice", "scale: 2");
    add("half", "scale: 0.5");
    add("one and a half", "scale: 1.5");
    add("quarter turn", "rotation: 90");
    add("half turn", "rotation: 180");
    add("askew", "rotation: 33");
    add("askew and twice", "rotation: -20; scale: 2");
    add("mirrored", "transform: Scale { xScale: -1; origin.x: 80 }");
    add("flat, cut", "transform: Scale { yScale: 0.3 }", cut);
    add("half turn, cut", "rotation: 180", cut);
    add("askew, cut", "rotation: 33", cut);
    add("flat", "transform: Scale { yScale: 0.3 }");
    add("nothing", "scale: 0");
    add("part of a pixel to the right", "x: 40.4");
    add("half a pixel down", "y: 30.5");
}

//! Where a painted item's picture would be stretched, the text is painted in its final size.
void tst_KelText::transformations()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QByteArray, label);
    Scene scene(m_engine,
        withLabels("Label",
            "Item { function change() { part.color = 'white'; } Rectangle { id: part; x: 80; y: 40; width: "
            "50;"
            " height: 30; color: 'lime' } Item { width: 240; height: 90;"
                + properties + "\nLABEL {" + label + "} } }"));
    scene.picture();
    // Only a part of the text is painted now.
    QVERIFY(scene.call("change"));
    const QImage shown = scene.picture();
    KelText &text = *scene.label();
    QImage expected(shown.size(), shown.format());
    expected.setDevicePixelRatio(shown.devicePixelRatio());
    expected.fill(Qt::white);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    bool isVisible = true;
    painter.setTransform(text.itemTransform(scene.window().contentItem(), &isVisible));
    if (isVisible && text.parentItem()->scale() > 0) {
        painter.setClipRect(text.boundingRect());
        text.paint(&painter);
    }
    painter.end();
    // A rounding more or less, where the transformation is multiplied in another order.
    QCOMPARE(difference(shown, expected, 1), QString());
}

void tst_KelText::layersLikeThoseOfQtQuickText_data()
{
    QTest::addColumn<QByteArray>("properties");
    const auto add = [](const char *tag, const QByteArray &properties) {
        QTest::newRow(tag) << "layer.enabled: true;" + properties;
    };
    add("plain", "");
    add("translucent", "opacity: 0.5");
    add("twice the size", "layer.textureSize: Qt.size(400, 120)");
    add("half the size", "layer.textureSize: Qt.size(100, 30)");
    add("other proportions", "layer.textureSize: Qt.size(200, 30)");
    add("part", "layer.sourceRect: Qt.rect(20, 10, 200, 60)");
    add("mirrored", "layer.textureMirroring: ShaderEffectSource.MirrorHorizontally");
    add("the right way up", "layer.textureMirroring: ShaderEffectSource.NoMirroring");
    add("askew", "rotation: 20");
}

/*!
    The software renderer paints a layer upside down and turns its picture over, which shows in text. The high
    bars of this one keep in what Qt Quick cuts of its own: it takes letters in a layer to be no larger than
    elsewhere.
*/
void tst_KelText::layersLikeThoseOfQtQuickText()
{
    QFETCH(const QByteArray, properties);
    const auto scene = [&](const QByteArray &type) {
        return "Item { component TestLabel: " + type
            + " Item { function change() { layered.layer.enabled = false; } x: 40; y: 50;"
              " Item { id: layered; width: 200; height: 60; "
            + properties
            + "\nTestLabel { objectName: 'text'; width: 200; height: 60; color: 'navy'; text: ' |Title, "
              "слово| ';"
              " font { family: 'DejaVu Sans'; pixelSize: 20 } } } } }";
    };
    Scene shown(m_engine, scene("Label {}"));
    Scene expected(m_engine, scene("Text { renderType: Text.NativeRendering }"));
    const QImage first = shown.picture();
    QCOMPARE(difference(first, expected.picture()), QString());
    // Qt 6.8 loses layers on screens with more pixels per unit.
    QVERIFY(!isBlank(first) || first.devicePixelRatio() != 1);
    for (const QByteArray &text : {"|Other|"_ba, " |Title, слово| "_ba}) {
        shown.root()->findChild<QQuickItem *>(u"text"_s)->setProperty("text", QString::fromUtf8(text));
        expected.root()->findChild<QQuickItem *>(u"text"_s)->setProperty("text", QString::fromUtf8(text));
        QCOMPARE(difference(shown.picture(), expected.picture()), QString());
    }
    QVERIFY(shown.call("change"));
    QVERIFY(expected.call("change"));
    if (!properties.contains("rotation"))
        QCOMPARE(difference(shown.picture(), expected.picture()), QString());
}

void tst_KelText::sameAsQtQuickText_data()
{
    QTest::addColumn<QByteArray>("font");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::Alignment>("alignment");
    const std::pair<const char *, QString> texts[] = {
        {"Latin", u"jWord,fi"_s},
        {"Cyrillic", u"Съешь ё"_s},
        {"Hebrew", u"שלום אב"_s},
        {"Arabic", u"مرحبا با"_s},
        {"mixed", u"Aשב1 ё"_s},
    };
    const std::pair<const char *, const char *> fonts[] = {
        {"8", "font.pixelSize: 8"},
        {"11", "font.pixelSize: 11"},
        {"20", "font.pixelSize: 20"},
        {"33", "font.pixelSize: 33"},
        {"64", "font.pixelSize: 64"},
        {"14.5 pt", "font.pointSize: 14.5"},
        {"bold", "font.pixelSize: 20; font.bold: true"},
        {"italic", "font.pixelSize: 20; font.italic: true"},
        {"underlined", "font.pixelSize: 20; font.underline: true"},
        {"struck out", "font.pixelSize: 24; font.strikeout: true"},
        {"overlined", "font.pixelSize: 28; font.overline: true"},
        {"spaced", "font.pixelSize: 20; font.letterSpacing: 3; font.wordSpacing: 5"},
        {"small capitals", "font.pixelSize: 20; font.capitalization: Font.SmallCaps"},
        {"unhinted", "font.pixelSize: 20; font.hintingPreference: Font.PreferNoHinting"},
    };
    const std::pair<const char *, Qt::Alignment> alignments[] = {
        {"left", Qt::AlignLeft | Qt::AlignAbsolute},
        {"right", Qt::AlignRight | Qt::AlignAbsolute},
        {"centre", Qt::AlignCenter},
        {"bottom", Qt::AlignBottom | Qt::AlignLeft | Qt::AlignAbsolute},
    };
    for (const auto &[fontTag, font] : fonts) {
        for (const auto &[textTag, text] : texts) {
            for (const auto &[alignmentTag, alignment] : alignments)
                QTest::addRow("%s, %s, %s", fontTag, textTag, alignmentTag)
                    << QByteArray(font) << text << alignment;
        }
    }
}

/*!
    One line looks as Qt Quick shows it, but stands on whole pixels where that lets it stand between two, and
    what hangs over the item's edges is cut.
*/
void tst_KelText::sameAsQtQuickText()
{
    QFETCH(const QByteArray, font);
    QFETCH(const QString, text);
    QFETCH(const Qt::Alignment, alignment);
    const QSizeF area(310, 190);
    const auto scene = [&](const QByteArray &type, const QByteArray &own) {
        return "Item { Item { x: 5; y: 5; width: 310; height: 190; clip: true\n" + type
            + "{ width: 310; height: 190; color: 'navy'; text: '" + text.toUtf8()
            + "'\nfont.family: 'DejaVu Sans'\n" + font + "\n" + own + " } } }";
    };
    Scene shown(m_engine, scene("Label", "textWidth: 0"));
    shown.label()->setHAlign(alignment);
    Scene expected(m_engine,
        scene("Text",
            "renderType: Text.NativeRendering; horizontalAlignment: Text.AlignLeft; objectName: 'text'"));
    auto *item = expected.root()->findChild<QQuickItem *>(u"text"_s);
    const auto usedFont = item->property("font").value<QFont>();
    QCOMPARE(shown.label()->font(), usedFont);
    const QSizeF size(QFontMetricsF(usedFont).horizontalAdvance(text), item->implicitHeight());
    QVERIFY(size.width() < area.width());
    if (alignment & Qt::AlignRight)
        item->setX(shown.label()->width() - shown.label()->implicitWidth());
    else if (alignment & Qt::AlignHCenter)
        item->setX(std::floor((area.width() - size.width()) / 2));
    if (alignment & Qt::AlignVCenter)
        item->setY(std::floor((area.height() - size.height()) / 2));
    else if (alignment & Qt::AlignBottom)
        item->setY(area.height() - size.height());
    QCOMPARE(shown.label()->implicitHeight(), size.height());
    QCOMPARE(difference(shown.picture(), expected.picture()), QString());
}

void tst_KelText::linesLikeQtQuickText_data()
{
    QTest::addColumn<QByteArray>("font");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    const std::pair<const char *, QString> texts[] = {
        {"line ends", u"One,\\ntwo\\n\\nfour and more of it"_s},
        {"Latin", u"The quick brown fox jumps over AVATAR, lazy dogs; fi 0123"_s},
        {"Cyrillic", u"Съешь же ещё этих мягких французских булок, да выпей чаю"_s},
        {"long word", u"Достопримечательностями-достопримечательностями"_s},
        {"mixed", u"Abc שלום עולם 123 (مرحبا) слово ещё раз"_s},
    };
    const char *fonts[] = {"pixelSize: 8", "pixelSize: 13", "pixelSize: 20", "pixelSize: 20; bold: true",
        "pixelSize: 20; italic: true", "pixelSize: 33", "pixelSize: 64"};
    for (const char *font : fonts) {
        for (const auto &[tag, text] : texts) {
            for (const int width : {60, 147, 310})
                QTest::addRow("%s, %s, %d px", font, tag, width) << QByteArray(font) << text << width;
        }
    }
}

//! Lines break where Qt Quick breaks them, and lie as far apart.
void tst_KelText::linesLikeQtQuickText()
{
    QFETCH(const QByteArray, font);
    QFETCH(const QString, text);
    QFETCH(const int, width);
    const auto scene = [&](const QByteArray &type, const QByteArray &own) {
        return "Item { Item { x: 5; y: 5; width: " + QByteArray::number(width) + "; height: 190; clip: true\n"
            + type + "{ width: parent.width; height: 190; text: '" + text.toUtf8()
            + "'\nfont { family: 'DejaVu Sans'; " + font + "} " + own + " } } }";
    };
    Scene shown(m_engine, scene("Label", "Component.onCompleted: textWidth = width"));
    Scene expected(m_engine,
        scene("Text",
            "renderType: Text.NativeRendering; wrapMode: Text.Wrap; horizontalAlignment: Text.AlignLeft"));
    QCOMPARE(difference(shown.picture(), expected.picture()), QString());
}

void tst_KelText::decorationsMoveWithTheLabel_data()
{
    QTest::addColumn<QByteArray>("font");
    for (const char *font : {"underline", "strikeout", "overline"})
        QTest::newRow(font) << QByteArray(font);
}

void tst_KelText::decorationsMoveWithTheLabel()
{
    QFETCH(const QByteArray, font);
    Scene scene(m_engine, withLabels("Label", "Item { LABEL { x: 0; y: 0; font." + font + ": true } }"));
    const QImage shown = scene.picture();
    scene.label()->setPosition({5, 5});
    const QImage moved = scene.picture();
    const qreal ratio = shown.devicePixelRatio();
    const QRect area(0, 0, int(200 * ratio), int(60 * ratio));
    QCOMPARE(difference(moved.copy(area.translated(QPoint(5, 5) * ratio)), shown.copy(area)), QString());
}

QTEST_MAIN(tst_KelText)

#include "tst_keltext.moc"
