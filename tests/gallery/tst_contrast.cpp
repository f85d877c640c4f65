// SPDX-License-Identifier: MIT
#include <QtCore/QMetaProperty>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtTest/QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// What WCAG 2 asks for at level AA, of text and of large text.
constexpr double enough = 4.5;
constexpr double enoughIfLarge = 3;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

//! The relative luminance of WCAG 2.
double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const std::pair luminances = std::minmax({luminance(one), luminance(other)});
    return (luminances.second + 0.05) / (luminances.first + 0.05);
}

QColor over(const QColor &color, const QColor &below)
{
    const double alpha = color.alphaF();
    const auto mix = [alpha](float upper, float lower) { return float(upper * alpha + lower * (1 - alpha)); };
    return QColor::fromRgbF(mix(color.redF(), below.redF()), mix(color.greenF(), below.greenF()),
        mix(color.blueF(), below.blueF()));
}

} // namespace

//! Whether what the themes of the gallery put together can be read.
class tst_contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void knownContrasts_data();
    void knownContrasts();
    void colors_data();
    void colors();
    void sizes_data();
    void sizes();

private:
    QObject *theme(const char *name) { return m_engine.singletonInstance<QObject *>("Kelui.Gallery", name); }
    QColor color(const QString &expression);

    QQmlEngine m_engine;
};

void tst_contrast::initTestCase()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_engine.addImportPath(QStringLiteral(KELUI_QML_DIR));
}

QColor tst_contrast::color(const QString &expression)
{
    QQmlComponent component(&m_engine);
    const QString code =
        u"import QtQuick; import Kelui.Gallery; QtObject { property color color: %1 }"_s.arg(expression);
    component.setData(code.toUtf8(), {});
    const std::unique_ptr<QObject> object(component.create());
    return object ? object->property("color").value<QColor>() : QColor();
}

void tst_contrast::knownContrasts_data()
{
    QTest::addColumn<QColor>("first");
    QTest::addColumn<QColor>("second");
    QTest::addColumn<double>("expected");
    QTest::newRow("black and white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("the same") << QColor(Qt::red) << QColor(Qt::red) << 1.0;
    QTest::newRow("gray on white") << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.54;
    QTest::newRow("blue on white") << QColor(Qt::blue) << QColor(Qt::white) << 8.59;
}

void tst_contrast::knownContrasts()
{
    QFETCH(const QColor, first);
    QFETCH(const QColor, second);
    QFETCH(const double, expected);
    QVERIFY(std::abs(contrast(first, second) - expected) < 0.01);
    QVERIFY(std::abs(contrast(second, first) - expected) < 0.01);
}

void tst_contrast::colors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("background");
    QTest::addColumn<double>("minimum");
    const auto add = [](const QString &text, const QString &background, double minimum = enough) {
        QTest::newRow(qPrintable(text + u" on "_s + background)) << text << background << minimum;
    };
    for (const auto *background : {"background", "panel", "surface", "raised"}) {
        add(u"Theme.text"_s, u"Theme."_s + QLatin1String(background));
        add(u"Theme.secondaryText"_s, u"Theme."_s + QLatin1String(background));
    }
    for (const auto *text : {"accent", "mint", "rose"})
        add(u"Theme."_s + QLatin1String(text), u"Theme.background"_s);
    add(u"Theme.disabledText"_s, u"Theme.panel"_s);
    add(u"Theme.accent"_s, u"Theme.raised"_s);
    add(u"Theme.ink"_s, u"Theme.accent"_s);
    add(u"Theme.ink"_s, u"Theme.text"_s);
    add(u"Theme.text"_s, u"Theme.positive"_s);

    const QList<std::pair<QString, QString>> maps{
        {u"Theme.buttonTitles"_s, u"Theme.buttonBackgrounds"_s},
        {u"Theme.buttonSubtitles"_s, u"Theme.buttonBackgrounds"_s},
        {u"Theme.menuTitles"_s, u"Theme.menuBackgrounds"_s},
        {u"HomeTheme.buttonTitles"_s, u"HomeTheme.buttonBackgrounds"_s},
    };
    for (const auto &[texts, backgrounds] : maps) {
        for (const auto *state : {"normal", "focused", "checked", "disabled"})
            add(texts + u'.' + QLatin1String(state), backgrounds + u'.' + QLatin1String(state));
    }
    for (const auto *state : {"normal", "selected"}) {
        add(u"Theme.fieldTexts."_s + QLatin1String(state),
            u"Theme.fieldBackgrounds."_s + QLatin1String(state));
        add(u"Theme.fieldPlaceholders."_s + QLatin1String(state),
            u"Theme.fieldBackgrounds."_s + QLatin1String(state));
    }
    // The check in its box, and the titles beside the boxes.
    add(u"HomeTheme.boxTitles.checked"_s, u"HomeTheme.boxes.checked"_s);
    add(u"HomeTheme.boxTitles.normal"_s, u"Theme.panel"_s);
    add(u"HomeTheme.boxTitles.focused"_s, u"Theme.raised"_s);
    add(u"HomeTheme.boxTitles.disabled"_s, u"Theme.panel"_s);
    // Above pictures.
    add(u"Theme.text"_s, u"HomeTheme.shade"_s);
    // As large as a text that may have less contrast.
    add(u"HomeTheme.emptyBox"_s, u"Theme.background"_s, enoughIfLarge);
    add(u"HomeTheme.emptyBox"_s, u"Theme.panel"_s, enoughIfLarge);
    add(u"HomeTheme.emptyBox"_s, u"Theme.raised"_s, enoughIfLarge);
    add(u"Theme.accent"_s, u"HomeTheme.shade"_s, enoughIfLarge);
}

//! What a translucent background lets through is the worst: white, or black.
void tst_contrast::colors()
{
    QFETCH(const QString, text);
    QFETCH(const QString, background);
    QFETCH(const double, minimum);
    const QColor front = color(text);
    const QColor back = color(background);
    QVERIFY(front.isValid());
    QVERIFY(back.isValid());
    for (const QColor below : {QColor(Qt::white), QColor(Qt::black)}) {
        const QColor ground = over(back, below);
        const double found = contrast(over(front, ground), ground);
        QVERIFY2(found >= minimum, qPrintable(QString::number(found)));
    }
}

void tst_contrast::sizes_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<int>("minimum");
    constexpr int text = 18;
    constexpr int caption = 16;
    for (const char *name : {"Theme", "HomeTheme"}) {
        const QObject *object = theme(name);
        for (int i = 0; i < object->metaObject()->propertyCount(); ++i) {
            const QMetaProperty property = object->metaObject()->property(i);
            if (property.metaType() != QMetaType::fromType<QFont>())
                continue;
            // Names of keys, and code that is to be compared rather than read from the sofa.
            const bool isSmall =
                qstrcmp(property.name(), "hint") == 0 || qstrcmp(property.name(), "code") == 0;
            QTest::addRow("%s.%s", name, property.name())
                << property.read(object).value<QFont>() << (isSmall ? caption : text);
        }
    }
}

//! In pixels of a design that is 720 high, read from the sofa.
void tst_contrast::sizes()
{
    QFETCH(const QFont, font);
    QFETCH(const int, minimum);
    QVERIFY2(font.pixelSize() >= minimum, qPrintable(QString::number(font.pixelSize())));
}

QTEST_MAIN(tst_contrast)

#include "tst_contrast.moc"
