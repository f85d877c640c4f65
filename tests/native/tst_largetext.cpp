// SPDX-License-Identifier: MIT
#include <QtCore/QFile>
#include <QtCore/QMetaProperty>
#include <QtCore/QRandomGenerator>
#include <QtCore/QtEndian>
#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QStaticText>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <cmath>
#include <limits>
#include <memory>

#include "kellargetext.h"
#include "kellargetext_p.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int highest = std::numeric_limits<int>::max();
constexpr int lowest = std::numeric_limits<int>::min();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

QFont fontOf(int pixelSize)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(pixelSize);
    return font;
}

int toPixels(double value)
{
    return value >= lowest && value <= highest ? int(value) : highest;
}

int saturated(double value)
{
    return std::isnan(value) ? 0 : int(std::clamp<double>(value, lowest, highest));
}

/*!
    The same text by the plainest means: an object for each line, and every sum made anew from the first line
    on. Numbers are wide, so that none overflows; what is kept is an int as in the item.
*/
class PlainText
{
public:
    double width = 0;
    double height = 0;
    QString text;
    QColor color;
    QFont font;
    int offset = 0;
    double scrollStep = 0.3;
    int scrollMaximum = 0;
    QList<QStaticText> pieces;
    QString separator;
    bool allPrepared = false;
    bool viewportFilled = false;
    bool repaint = false;
    QStringList signalsSent;

    void setText(const QString &newText)
    {
        if (text == newText)
            return;
        offset = 0;
        scrollStep = 0.3;
        scrollMaximum = 0;
        allPrepared = false;
        viewportFilled = false;
        pieces.clear();
        text = newText;
        resetPieces();
        repaint = true;
        signalsSent += u"text"_s;
    }

    void setLineBreak(const QString &lineBreak)
    {
        if (separator == lineBreak)
            return;
        separator = lineBreak;
        if (!text.isEmpty())
            resetPieces();
    }

    void setFont(const QFont &newFont)
    {
        if (font == newFont)
            return;
        font = newFont;
        repaint = true;
        signalsSent += u"font"_s;
    }

    void setColor(const QColor &newColor)
    {
        if (color == newColor)
            return;
        color = newColor;
        signalsSent += u"color"_s;
    }

    void setOffset(int newOffset)
    {
        const double over = double(contentHeight()) - viewportHeight();
        const int limit = std::max(saturated(over + viewportHeight() * scrollStep), 0);
        newOffset = std::max(newOffset < limit ? newOffset : limit, 0);
        if (newOffset == offset)
            return;
        offset = newOffset;
        repaint = true;
        signalsSent += u"offset %1"_s.arg(offset);
    }

    void setScrollStep(double step)
    {
        if (qFuzzyCompare(scrollStep, step))
            return;
        scrollStep = step;
        signalsSent += u"step %1"_s.arg(step);
    }

    void setScrollMaximum(double maximum)
    {
        if (saturated(maximum) == scrollMaximum)
            return;
        scrollMaximum = saturated(maximum);
        signalsSent += u"maximum %1"_s.arg(scrollMaximum);
    }

    void scrollToDirection(int direction)
    {
        const int step = saturated(viewportHeight() * scrollStep);
        if (direction == 1)
            setOffset(saturated(double(offset) + step));
        if (direction == 2)
            setOffset(saturated(double(offset) - step));
    }

    void paint(QPainter *painter)
    {
        painter->setPen(color);
        painter->setFont(font);
        qint64 y = -qint64(offset);
        for (QStaticText &piece : pieces) {
            const int pieceHeight = qRound(piece.size().height());
            if (y >= viewportHeight())
                break;
            if (y + pieceHeight > 0)
                painter->drawStaticText(QPointF(0, double(y)), piece);
            y += pieceHeight;
        }
    }

    void startPreparingTextFrom(int index)
    {
        if (index < 0 || index >= pieces.size())
            return;
        QStaticText &piece = pieces[index];
        QTextOption option(Qt::AlignLeft);
        option.setWrapMode(QTextOption::WordWrap);
        piece.setTextOption(option);
        piece.setTextFormat(Qt::PlainText);
        piece.prepare(QTransform(), font);
        piece.setTextWidth(toPixels(width));
        repaint = true;
        if (index + 1 < pieces.size()) {
            m_queue.append(index + 1);
        } else {
            allPrepared = true;
            publish();
        }
        if (viewportFilled)
            return;
        qint64 sum = 0;
        for (int i = 0; i <= index; ++i) {
            sum += qRound(pieces[i].size().height());
            if (sum >= qint64(offset) + viewportHeight()) {
                viewportFilled = true;
                publish();
                return;
            }
        }
        if (allPrepared)
            publish();
    }

    //! What is queued at the beginning of a pass happens in it.
    void passOfTheEventLoop()
    {
        const QList<int> queue = std::exchange(m_queue, {});
        for (const int index : queue)
            startPreparingTextFrom(index);
    }

    int contentHeight() const
    {
        int sum = 0;
        for (const QStaticText &piece : pieces)
            sum = saturated(sum + piece.size().height());
        return sum;
    }

private:
    int viewportHeight() const { return toPixels(height); }
    void publish() { setScrollMaximum(double(contentHeight()) - viewportHeight()); }

    void resetPieces()
    {
        const QStringList parts = text.split(separator.isEmpty() ? u"\n"_s : separator);
        for (const QString &part : parts)
            pieces.append(QStaticText(part));
        startPreparingTextFrom(0);
    }

    QList<int> m_queue;
};

//! The item, with a list of the signals that it sends.
class LargeText : public KelLargeText
{
    Q_OBJECT

public:
    LargeText()
    {
        connect(this, &KelLargeText::textChanged, this, [this](const QString &value) {
            QCOMPARE(value, text());
            signalsSent += u"text"_s;
        });
        connect(this, &KelLargeText::colorChanged, this, [this](const QColor &value) {
            QCOMPARE(value, color());
            signalsSent += u"color"_s;
        });
        connect(this, &KelLargeText::fontChanged, this, [this](const QFont &value) {
            QCOMPARE(value, font());
            signalsSent += u"font"_s;
        });
        connect(this, &KelLargeText::offsetChanged, this,
            [this](int value) { signalsSent += u"offset %1"_s.arg(value); });
        connect(this, &KelLargeText::scrollStepChanged, this,
            [this](double value) { signalsSent += u"step %1"_s.arg(value); });
        connect(this, &KelLargeText::scrollMaximumChanged, this,
            [this](int value) { signalsSent += u"maximum %1"_s.arg(value); });
    }

    //! With a size and a font whose lines are 24 pixels high.
    LargeText(double width, double height)
        : LargeText()
    {
        setSize({width, height});
        setFont(fontOf(20));
        takeSignals();
        takeRepaint();
    }

    QStringList takeSignals() { return std::exchange(signalsSent, {}); }

    bool takeRepaint()
    {
        auto *item = QQuickItemPrivate::get(this);
        const bool isRequested = item->dirtyAttributes & QQuickItemPrivate::Content;
        item->dirtyAttributes = 0;
        return isRequested;
    }

    KelLargeTextPrivate *hidden() { return KelLargeTextPrivate::get(this); }
    int contentHeight() { return hidden()->contentHeight(); }

    void passOfTheEventLoop() { QCoreApplication::sendPostedEvents(this, QEvent::MetaCall); }

    void prepareAll()
    {
        while (!hidden()->allPrepared)
            passOfTheEventLoop();
    }

    int preparedCount()
    {
        const auto &pieces = hidden()->pieces;
        return int(
            std::count_if(pieces.begin(), pieces.end(), [](const auto &piece) { return piece.isPrepared; }));
    }

    QStringList signalsSent;
};

//! Where and how a text is painted directly.
struct Canvas
{
    QSize size = {220, 160};
    double ratio = 1;
    // Callers that leave it out would be warned of without it.
    QTransform transform = {}; // NOLINT(readability-redundant-member-init)
    int dotsPerMeter = 0;
};

template <typename Text>
QImage painted(Text &text, const Canvas &canvas = {})
{
    QImage image(canvas.size, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(canvas.ratio);
    if (canvas.dotsPerMeter > 0) {
        image.setDotsPerMeterX(canvas.dotsPerMeter);
        image.setDotsPerMeterY(canvas.dotsPerMeter);
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setTransform(canvas.transform);
    text.paint(&painter);
    return image;
}

//! What random lines are made of: first letters alone, then what is laid out in other ways.
QStringList words()
{
    return {u"word"_s, u"AV"_s, u"Слово"_s, u"длинноеслово"_s, u"λόγος"_s, u"漢字"_s, u"かな"_s, u"、"_s,
        u"😀"_s, u"👩‍🚀"_s, u"עברית"_s, u"عربي"_s, u"\u2028"_s, u"\u2029"_s, u"<b>bold</b>"_s,
        u"&lt;"_s, u"<br>"_s, u"a < b & c"_s, u"\t"_s, u"\r"_s, u"e\u0301"_s, u"\u0301"_s, u"\u00ad"_s,
        u"\u00a0"_s, u"№—…«»€"_s, u"½ﬁ∞→☃"_s, u"\u200b"_s, u"\ufeff"_s, u"  "_s, u"."_s, u"-"_s};
}

//! The gallery's font under another name, with room between its lines.
QByteArray leadingFontData()
{
    QFile file(QStringLiteral(KELUI_FONT));
    if (!file.open(QFile::ReadOnly))
        return {};
    QByteArray data = file.readAll();
    data.replace("\0I\0n\0t\0e\0r"_ba, "\0O\0u\0t\0e\0r"_ba);
    constexpr qsizetype offsetInEntry = 8;
    constexpr qsizetype lineGap = 72;
    const auto table = qFromBigEndian<quint32>(data.constData() + data.indexOf("OS/2") + offsetInEntry);
    qToBigEndian<qint16>(700, data.data() + table + lineGap);
    return data;
}

QFont leadingFont()
{
    static const int id = QFontDatabase::addApplicationFontFromData(leadingFontData());
    QFont font(QFontDatabase::applicationFontFamilies(id));
    font.setPixelSize(15);
    return font;
}

QList<QFont> allFonts()
{
    QFont pointFont(u"DejaVu Serif"_s);
    pointFont.setPointSizeF(10.5);
    QFont spacedFont = fontOf(15);
    spacedFont.setLetterSpacing(QFont::AbsoluteSpacing, 3);
    QFont capitalFont = fontOf(14);
    capitalFont.setCapitalization(QFont::AllUppercase);
    return {fontOf(20), fontOf(13), fontOf(31), pointFont, spacedFont, capitalFont, leadingFont(), QFont()};
}

bool isBlank(const QImage &picture)
{
    QImage white(picture.size(), picture.format());
    white.fill(Qt::white);
    return !picture.isNull() && picture == white;
}

//! So many short lines.
QString lines(int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(u"Line %1"_s.arg(i));
    return list.join(u'\n');
}

QMetaProperty propertyOf(const char *name)
{
    const QMetaObject &meta = KelLargeText::staticMetaObject;
    return meta.property(meta.indexOfProperty(name));
}

//! Random operations on the item and on its plain counterpart, and the comparison of both.
class Walk
{
public:
    explicit Walk(quint32 seed)
        : m_random(seed)
    {
    }

    void step();
    //! What differs, or nothing.
    QString difference();
    QString lastOperation() const { return m_operation; }

private:
    int number(int below) { return m_random.bounded(below); }
    template <typename Value>
    Value oneOf(const QList<Value> &values)
    {
        return values[number(int(values.size()))];
    }
    int anyInt();
    QString anyLine();
    QString anyText();
    void paintBoth();
    void prepareBoth(int index);

    QRandomGenerator m_random;
    LargeText m_item;
    PlainText m_plain;
    QString m_operation;
    QImage m_picture;
    QImage m_plainPicture;
};

int Walk::anyInt()
{
    return oneOf<int>({lowest, lowest + 1, -1000, -1, 0, 1, 17, 100, 300, 1000, 5000, highest - 1, highest,
        number(2000), number(300)});
}

QString Walk::anyLine()
{
    // Most texts are of letters alone.
    static const QStringList all = words();
    const int choice = number(4) == 0 ? int(all.size()) : 5;
    QString line;
    for (int count = number(oneOf<int>({1, 4, 12, 12, 60})); count > 0; --count)
        line += all[number(choice)] + (number(5) == 0 ? u""_s : u" "_s);
    return line;
}

QString Walk::anyText()
{
    QStringList list;
    for (int count = number(oneOf<int>({2, 6, 25, 60})); count > 0; --count)
        list.append(number(6) == 0 ? QString() : anyLine());
    return list.join(u'\n');
}

void Walk::paintBoth()
{
    Canvas canvas;
    if (number(3) == 0) {
        canvas.ratio = oneOf<double>({1, 1, 2, 1.5});
        canvas.transform = oneOf<QTransform>({{}, QTransform::fromTranslate(10.5, -7),
            QTransform::fromScale(1.5, 0.75), QTransform().rotate(20)});
        canvas.dotsPerMeter = oneOf<int>({0, 2000, 6000});
    }
    m_picture = painted(m_item, canvas);
    m_plainPicture = painted(m_plain, canvas);
}

void Walk::prepareBoth(int index)
{
    QMetaObject::invokeMethod(&m_item, "startPreparingTextFrom", index);
    m_plain.startPreparingTextFrom(index);
}

void Walk::step()
{
    const QList<QFont> fonts = allFonts();
    switch (number(20)) {
    case 0: {
        const QString text = number(8) == 0 ? m_item.text() : anyText();
        m_operation = u"text of %1"_s.arg(text.size());
        m_item.setText(text);
        m_plain.setText(text);
        break;
    }
    case 1:
    case 2: {
        const auto width = oneOf<double>({0, -5, 0.9, 40.7, 150, 200, 333.3, 1e12, -1e12, notANumber});
        m_operation = u"width %1"_s.arg(width);
        m_item.setWidth(width);
        m_plain.width = m_item.width();
        m_item.takeRepaint();
        break;
    }
    case 3: {
        const auto height =
            oneOf<double>({0, -3, 50.9, 100, 100, 160, 300, 1e12, -1e12, infinity, notANumber});
        m_operation = u"height %1"_s.arg(height);
        m_item.setHeight(height);
        m_plain.height = m_item.height();
        m_item.takeRepaint();
        break;
    }
    case 4: {
        const QFont font = oneOf(fonts);
        m_operation = u"font "_s + font.toString();
        m_item.setFont(font);
        m_plain.setFont(font);
        break;
    }
    case 5:
    case 6: {
        const int offset = anyInt();
        m_operation = u"offset %1"_s.arg(offset);
        m_item.setOffset(offset);
        m_plain.setOffset(offset);
        break;
    }
    case 7: {
        const auto scrollStep =
            oneOf<double>({0.3, 0.3 + 1e-16, 0, 0.5, 1, -0.5, 1e12, -1e12, infinity, notANumber});
        m_operation = u"step %1"_s.arg(scrollStep);
        m_item.setScrollStep(scrollStep);
        m_plain.setScrollStep(scrollStep);
        break;
    }
    case 8: {
        const auto maximum = oneOf<double>({0, 12.9, -12.9, 1e12, -1e12, notANumber, double(anyInt())});
        m_operation = u"maximum %1"_s.arg(maximum);
        m_item.setProperty("scrollMaximum", maximum);
        m_plain.setScrollMaximum(maximum);
        break;
    }
    case 9:
    case 10:
    case 11: {
        const int direction = oneOf<int>({1, 1, 1, 2, 2, 0, 3, 4, 8, anyInt()});
        m_operation = u"scroll %1"_s.arg(direction);
        m_item.scrollToDirection(direction);
        m_plain.scrollToDirection(direction);
        break;
    }
    case 12: {
        const auto lineBreak = oneOf<QString>({u""_s, u"\n"_s, u"о"_s, u" word"_s});
        m_operation = u"line break "_s + lineBreak;
        // Each change doubles what there is.
        if (m_plain.pieces.size() < 300) {
            m_item.hidden()->setLineBreak(lineBreak);
            m_plain.setLineBreak(lineBreak);
        }
        break;
    }
    case 13: {
        const int index = number(3) == 0 ? anyInt() : number(30);
        m_operation = u"prepare from %1"_s.arg(index);
        prepareBoth(index);
        break;
    }
    case 14: {
        const QFont font = number(4) == 0 ? oneOf(fonts) : QGuiApplication::font();
        m_operation = u"application's font "_s + font.toString();
        QGuiApplication::setFont(font);
        break;
    }
    case 15: {
        const auto color = oneOf<QColor>({Qt::red, QColor(0, 0, 255, 100), QColor(), Qt::black});
        m_operation = u"color "_s + color.name(QColor::HexArgb);
        m_item.setColor(color);
        m_plain.setColor(color);
        break;
    }
    case 16:
        m_operation = u"paint"_s;
        paintBoth();
        break;
    default: {
        const int passes = oneOf<int>({1, 1, 2, 5, 100});
        m_operation = u"%1 passes"_s.arg(passes);
        for (int i = 0; i < passes; ++i) {
            m_item.passOfTheEventLoop();
            m_plain.passOfTheEventLoop();
        }
    }
    }
}

QString Walk::difference()
{
    const auto compared = [](const char *what, const auto &ours, const auto &plain) {
        QString our;
        QString their;
        QDebug(&our) << ours;
        QDebug(&their) << plain;
        return our == their ? QString()
                            : u"%1: %2 instead of %3; "_s.arg(QLatin1StringView(what), our, their);
    };
    QString result = compared("signals", m_item.takeSignals(), std::exchange(m_plain.signalsSent, {}))
        + compared("text", m_item.text(), m_plain.text) + compared("offset", m_item.offset(), m_plain.offset)
        + compared("step", m_item.scrollStep(), m_plain.scrollStep)
        + compared("maximum", m_item.scrollMaximum(), m_plain.scrollMaximum)
        + compared("content height", m_item.contentHeight(), m_plain.contentHeight())
        + compared("all prepared", m_item.hidden()->allPrepared, m_plain.allPrepared)
        + compared("filled", m_item.hidden()->viewportFilled, m_plain.viewportFilled)
        + compared("repaint", m_item.takeRepaint(), std::exchange(m_plain.repaint, false));
    for (qsizetype i = 0; i < std::min(m_plain.pieces.size(), m_item.hidden()->count()); ++i) {
        const double ours = m_item.hidden()->pieces[size_t(i)].height;
        if (ours != m_plain.pieces[i].size().height()) {
            result += compared("height of", ours, m_plain.pieces[i].size().height())
                + u"%1 of width %2: "_s.arg(i).arg(m_plain.pieces[i].textWidth());
            QDebug(&result) << m_plain.pieces[i].text().toUtf8();
        }
    }
    if (m_picture != m_plainPicture) {
        m_picture.save(QStringLiteral(QT_TESTCASE_BUILDDIR) + u"/largetext-actual.png"_s);
        m_plainPicture.save(QStringLiteral(QT_TESTCASE_BUILDDIR) + u"/largetext-expected.png"_s);
        result += u"pictures"_s;
    }
    return result;
}

//! A long text in a window, part of it under another item that repaints by itself.
struct Covered
{
    QQuickWindow window;
    LargeText item;
    LargeText above;

    explicit Covered(int coveredHeight)
        : item(200, 100)
        , above(30, coveredHeight)
    {
        window.setColor(Qt::white);
        window.resize(200, 100);
        item.setParentItem(window.contentItem());
        item.setText(lines(50));
        above.setParentItem(window.contentItem());
        above.setText(u" "_s);
        window.show();
    }
};

} // namespace

class tst_LargeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void defaults();
    void propertiesInOrder_data();
    void propertiesInOrder();
    void methodsInOrder();
    void preparingIsNotOfferedToQml();

    void setters_data();
    void setters();
    void scrollMaximumInPixels_data();
    void scrollMaximumInPixels();

    void textWithoutLineBreakIsPreparedAtOnce();
    void onePieceIsPreparedInAPass();
    void emptyLinesAreAsHighAsOthers();
    void linesAreAsHighAsTheyAreDrawn();
    void textChangeResetsSilently();
    void widthIsTakenWhenAPieceIsPrepared();
    void maximumIsKnownOnceTheItemIsFilled();
    void earlierTextGoesOnPreparing();
    void changedLineBreakAppends();
    void textSetByAHandlerOfAnother();

    void limits_data();
    void limits();
    void directions_data();
    void directions();
    void lowerMaximumKeepsTheOffset();

    void fontChangePreparesNothingAgain();
    void fontsThatComeAreMeasured();
    void linesArePlainOnceTheyArePrepared();
    void paintsFromTheOffsetOn_data();
    void paintsFromTheOffsetOn();
    void keepsWhatIsNearTheView();
    void windowShowsWhatIsPainted_data();
    void windowShowsWhatIsPainted();
    void colorWaitsWhereAnotherItemRepaints();
    void heightsWaitWhereAnotherItemRepaints();
    void sizesThatShowNothing_data();
    void sizesThatShowNothing();

    void sameAsThePlainAlgorithm_data();
    void sameAsThePlainAlgorithm();
};

void tst_LargeText::initTestCase()
{
    qmlRegisterType<KelLargeText>("Labels", 1, 0, "LargeText");
}

void tst_LargeText::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    QGuiApplication::setFont(fontOf(12));
}

void tst_LargeText::defaults()
{
    LargeText item;
    QCOMPARE(item.text(), QString());
    QVERIFY(!item.color().isValid());
    QCOMPARE(item.font(), QFont());
    QCOMPARE(item.offset(), 0);
    QCOMPARE(item.scrollStep(), 0.3);
    QCOMPARE(item.scrollMaximum(), 0);
    QCOMPARE(item.contentHeight(), 0);
    QVERIFY(isBlank(painted(item)));
    item.setText({});
    QCOMPARE(item.takeSignals(), QStringList());
}

void tst_LargeText::propertiesInOrder_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QMetaType>("type");
    QTest::addColumn<QByteArray>("notifier");
    const auto add = [](const char *name, int index, QMetaType type, const char *notifier) {
        QTest::newRow(name) << index << type << QByteArray(notifier);
    };
    add("text", 0, QMetaType::fromType<QString>(), "textChanged(QString)");
    add("color", 1, QMetaType::fromType<QColor>(), "colorChanged(QColor)");
    add("font", 2, QMetaType::fromType<QFont>(), "fontChanged(QFont)");
    add("offset", 3, QMetaType::fromType<int>(), "offsetChanged(int)");
    add("scrollStep", 4, QMetaType::fromType<double>(), "scrollStepChanged(double)");
    add("scrollMaximum", 5, QMetaType::fromType<double>(), "scrollMaximumChanged(int)");
}

void tst_LargeText::propertiesInOrder()
{
    QFETCH(const int, index);
    QFETCH(const QMetaType, type);
    QFETCH(const QByteArray, notifier);
    const QMetaObject &meta = KelLargeText::staticMetaObject;
    const QMetaProperty property = meta.property(meta.propertyOffset() + index);
    QCOMPARE(property.name(), QTest::currentDataTag());
    QCOMPARE(property.metaType(), type);
    QCOMPARE(property.notifySignal().methodSignature(), notifier);
    QVERIFY(property.isWritable());
    QVERIFY(property.isFinal());
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 6);
}

void tst_LargeText::methodsInOrder()
{
    const QMetaObject &meta = KelLargeText::staticMetaObject;
    QByteArrayList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures.append(meta.method(i).methodSignature());
    QCOMPARE(signatures,
        QByteArrayList({"textChanged(QString)", "colorChanged(QColor)", "offsetChanged(int)",
            "scrollStepChanged(double)", "fontChanged(QFont)", "scrollMaximumChanged(int)",
            "scrollToDirection(int)", "startPreparingTextFrom(int)"}));
    QCOMPARE(meta.method(meta.indexOfMethod("scrollToDirection(int)")).access(), QMetaMethod::Public);
    QCOMPARE(meta.method(meta.indexOfMethod("startPreparingTextFrom(int)")).access(), QMetaMethod::Private);
}

void tst_LargeText::preparingIsNotOfferedToQml()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(R"(
        import Labels
        LargeText {
            readonly property bool scrolls: scrollToDirection !== undefined
            readonly property bool prepares: "startPreparingTextFrom" in this
        }
    )",
        {});
    const std::unique_ptr<QObject> item(component.create());
    QVERIFY2(item, qPrintable(component.errorString()));
    QCOMPARE(item->property("scrolls"), true);
    QCOMPARE(item->property("prepares"), false);
}

void tst_LargeText::setters_data()
{
    QTest::addColumn<QVariant>("equal");
    QTest::addColumn<QVariant>("changed");
    QTest::addColumn<QStringList>("signalsSent");
    QTest::addColumn<bool>("repaint");
    const auto add = [](const char *name, const QVariant &equal, const QVariant &changed,
                         const QStringList &signalsSent,
                         bool repaint) { QTest::newRow(name) << equal << changed << signalsSent << repaint; };
    // 20 lines of 24 pixels in 100.
    add("text", lines(20), u"x"_s, {u"maximum -76"_s, u"text"_s}, true);
    add("color", QColor(), QColor(Qt::red), {u"color"_s}, false);
    add("font", fontOf(20), fontOf(21), {u"font"_s}, true);
    add("offset", 0, 7, {u"offset 7"_s}, true);
    add("scrollStep", 0.3 + 1e-14, 0.5, {u"step 0.5"_s}, false);
    add("scrollMaximum", 380.9, 12.9, {u"maximum 12"_s}, false);
}

void tst_LargeText::setters()
{
    QFETCH(const QVariant, equal);
    QFETCH(const QVariant, changed);
    QFETCH(const QStringList, signalsSent);
    QFETCH(const bool, repaint);
    LargeText item(200, 100);
    item.setText(lines(20));
    item.prepareAll();
    const QMetaProperty property = propertyOf(QTest::currentDataTag());

    item.takeSignals();
    item.takeRepaint();
    QVERIFY(property.write(&item, equal));
    QCOMPARE(item.takeSignals(), QStringList());
    QVERIFY(!item.takeRepaint());

    QVERIFY(property.write(&item, changed));
    QCOMPARE(item.takeSignals(), signalsSent);
    QCOMPARE(item.takeRepaint(), repaint);
    if (property.name() != "scrollMaximum"_ba)
        QCOMPARE(property.read(&item), changed);
}

void tst_LargeText::scrollMaximumInPixels_data()
{
    QTest::addColumn<double>("written");
    QTest::addColumn<int>("read");
    QTest::newRow("truncated") << 12.9 << 12;
    QTest::newRow("negative") << -12.9 << -12;
    QTest::newRow("highest") << double(highest) << highest;
    QTest::newRow("lowest") << double(lowest) << lowest;
    QTest::newRow("above") << 1e12 << highest;
    QTest::newRow("below") << -1e12 << lowest;
    QTest::newRow("infinite") << infinity << highest;
    QTest::newRow("not a number") << notANumber << 0;
}

void tst_LargeText::scrollMaximumInPixels()
{
    QFETCH(const double, written);
    QFETCH(const int, read);
    LargeText item;
    item.setScrollMaximum(1);
    QVERIFY(item.setProperty("scrollMaximum", written));
    QCOMPARE(item.scrollMaximum(), read);
    QCOMPARE(item.property("scrollMaximum"), QVariant(double(read)));
}

void tst_LargeText::textWithoutLineBreakIsPreparedAtOnce()
{
    LargeText item(100, 30);
    item.setText(u"some words that stand on more than one line"_s);
    QVERIFY(item.hidden()->allPrepared);
    QCOMPARE_GT(item.contentHeight(), 2 * 24);
    QCOMPARE(item.takeSignals(), QStringList({u"maximum %1"_s.arg(item.contentHeight() - 30), u"text"_s}));
    item.passOfTheEventLoop();
    QCOMPARE(item.takeSignals(), QStringList());
}

void tst_LargeText::onePieceIsPreparedInAPass()
{
    LargeText item(200, 1000);
    item.setText(lines(4));
    QVERIFY(item.takeRepaint());
    for (int prepared = 1; prepared < 4; ++prepared) {
        QCOMPARE(item.preparedCount(), prepared);
        QVERIFY(!item.hidden()->allPrepared);
        QVERIFY(!item.takeRepaint());
        item.passOfTheEventLoop();
        QVERIFY(item.takeRepaint());
    }
    QCOMPARE(item.preparedCount(), 4);
    QVERIFY(item.hidden()->allPrepared);
    item.passOfTheEventLoop();
    QVERIFY(!item.takeRepaint());
}

void tst_LargeText::emptyLinesAreAsHighAsOthers()
{
    LargeText item(200, 100);
    item.setText(u"a\n\n\nb\n"_s);
    item.prepareAll();
    QCOMPARE(item.contentHeight(), 5 * 24);
}

void tst_LargeText::linesAreAsHighAsTheyAreDrawn()
{
    QCOMPARE_GT(QFontMetricsF(leadingFont()).leading(), 1);
    QGuiApplication::setFont(leadingFont());
    LargeText item(200, 100);
    item.setFont(leadingFont());
    item.setText(lines(50));
    const int unprepared = item.contentHeight();
    item.prepareAll();
    const int prepared = item.contentHeight();
    painted(item);
    QCOMPARE(item.contentHeight(), prepared);
    QCOMPARE(unprepared, prepared);
}

void tst_LargeText::textChangeResetsSilently()
{
    LargeText item(200, 100);
    item.setText(lines(20));
    item.prepareAll();
    item.setScrollStep(0.5);
    item.setOffset(50);
    item.takeSignals();
    item.setText(lines(20));
    QCOMPARE(item.takeSignals(), QStringList());
    QCOMPARE(item.offset(), 50);

    item.setText(lines(19));
    QCOMPARE(item.takeSignals(), QStringList({u"text"_s}));
    QCOMPARE(item.offset(), 0);
    QCOMPARE(item.scrollStep(), 0.3);
    QCOMPARE(item.scrollMaximum(), 0);
}

void tst_LargeText::widthIsTakenWhenAPieceIsPrepared()
{
    LargeText item(0, 1000);
    item.setText(u"one two\none two\none two"_s);
    item.setWidth(200);
    item.passOfTheEventLoop();
    item.setWidth(0);
    item.passOfTheEventLoop();
    const auto &pieces = item.hidden()->pieces;
    QCOMPARE(pieces[0].height, 2 * 24);
    QCOMPARE(pieces[1].height, 24);
    QCOMPARE(pieces[2].height, 2 * 24);
    item.setWidth(200);
    QCOMPARE(item.contentHeight(), 5 * 24);
}

void tst_LargeText::maximumIsKnownOnceTheItemIsFilled()
{
    LargeText item(200, 3 * 24);
    item.setText(lines(5));
    item.passOfTheEventLoop();
    QCOMPARE(item.takeSignals(), QStringList({u"text"_s}));
    item.passOfTheEventLoop();
    // The two lines that are not prepared yet have the application's font, 14 pixels high.
    const int unprepared = int(QStaticText(u"x"_s).size().height());
    QCOMPARE_NE(unprepared, 24);
    QCOMPARE(item.takeSignals(), QStringList({u"maximum %1"_s.arg(2 * unprepared)}));
    item.passOfTheEventLoop();
    QCOMPARE(item.takeSignals(), QStringList());
    item.passOfTheEventLoop();
    QCOMPARE(item.takeSignals(), QStringList({u"maximum 48"_s}));
}

void tst_LargeText::earlierTextGoesOnPreparing()
{
    LargeText item(200, 1000);
    item.setText(lines(10));
    for (int i = 0; i < 3; ++i)
        item.passOfTheEventLoop();
    item.setText(lines(9));
    item.passOfTheEventLoop();
    // The first two by the new text, the fifth by the earlier one.
    QCOMPARE(item.preparedCount(), 3);
    QVERIFY(item.hidden()->pieces[4].isPrepared);
    item.setText(u"short"_s);
    item.passOfTheEventLoop();
    QCOMPARE(item.preparedCount(), 1);
}

void tst_LargeText::changedLineBreakAppends()
{
    LargeText item(400, 100);
    KelLargeTextPrivate *hidden = item.hidden();
    hidden->setLineBreak(u";"_s);
    QCOMPARE(hidden->count(), 0);
    item.setText(u"one;two\nthree"_s);
    item.prepareAll();
    QCOMPARE(hidden->count(), 2);
    QCOMPARE(hidden->lineBreak(), u";"_s);
    hidden->setLineBreak(u";"_s);
    QCOMPARE(hidden->count(), 2);
    hidden->setLineBreak({});
    QCOMPARE(hidden->lineBreak(), u"\n"_s);
    QCOMPARE(hidden->count(), 4);
}

void tst_LargeText::textSetByAHandlerOfAnother()
{
    LargeText item(200, 1000);
    connect(&item, &KelLargeText::scrollMaximumChanged, &item, [&item] { item.setText(u"second"_s); });
    item.setText(u"first\u2028 one"_s);
    QCOMPARE(item.text(), u"second"_s);
    QCOMPARE(item.hidden()->count(), 1);
    QCOMPARE(item.contentHeight(), 24);
}

void tst_LargeText::limits_data()
{
    QTest::addColumn<int>("lineCount");
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("scrollStep");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("highestOffset");
    QTest::newRow("long text") << 50 << 100.0 << 0.3 << 1100 << 1130;
    QTest::newRow("no step beyond") << 50 << 100.0 << 0.0 << 1100 << 1100;
    QTest::newRow("step back") << 50 << 100.0 << -0.5 << 1100 << 1050;
    QTest::newRow("height truncated") << 50 << 100.9 << 0.3 << 1100 << 1130;
    QTest::newRow("short text") << 2 << 100.0 << 0.3 << -52 << 0;
    QTest::newRow("shorter by less than a step") << 4 << 100.0 << 0.3 << -4 << 26;
    QTest::newRow("no height") << 50 << 0.0 << 0.3 << 1200 << 1200;
    QTest::newRow("negative height") << 50 << -10.0 << 0.3 << 1210 << 1207;
    QTest::newRow("huge height") << 50 << 1e12 << 0.3 << 1200 - highest << 0;
    QTest::newRow("huge step") << 50 << 100.0 << 1e12 << 1100 << highest;
    QTest::newRow("huge step back") << 50 << 100.0 << -1e12 << 1100 << 0;
    QTest::newRow("huge height and step") << 50 << 1e12 << 1e300 << 1200 - highest << highest;
    QTest::newRow("step is not a number") << 50 << 100.0 << notANumber << 1100 << 0;
}

void tst_LargeText::limits()
{
    QFETCH(const int, lineCount);
    QFETCH(const double, height);
    QFETCH(const double, scrollStep);
    QFETCH(const int, maximum);
    QFETCH(const int, highestOffset);
    LargeText item(200, height);
    item.setText(lines(lineCount));
    item.prepareAll();
    item.setScrollStep(scrollStep);
    QCOMPARE(item.scrollMaximum(), maximum);
    for (const int offset : {highest, highestOffset}) {
        item.setOffset(offset);
        QCOMPARE(item.offset(), highestOffset);
    }
    item.setOffset(std::max(highestOffset - 1, 0));
    QCOMPARE(item.offset(), std::max(highestOffset - 1, 0));
    for (const int offset : {0, -1, lowest}) {
        item.setOffset(highest);
        item.setOffset(offset);
        QCOMPARE(item.offset(), 0);
    }
}

void tst_LargeText::directions_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<double>("scrollStep");
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("to");
    QTest::newRow("down") << 20 << 0.3 << 1 << 50;
    QTest::newRow("down beyond the maximum") << 1100 << 0.3 << 1 << 1130;
    QTest::newRow("down at the end") << 1130 << 0.3 << 1 << 1130;
    QTest::newRow("up") << 50 << 0.3 << 2 << 20;
    QTest::newRow("up to the top") << 20 << 0.3 << 2 << 0;
    QTest::newRow("truncated") << 50 << 0.129 << 2 << 38;
    QTest::newRow("not needed") << 20 << 0.3 << 0 << 20;
    QTest::newRow("down and up") << 20 << 0.3 << 3 << 20;
    QTest::newRow("left") << 20 << 0.3 << 4 << 20;
    QTest::newRow("right") << 20 << 0.3 << 8 << 20;
    QTest::newRow("negative") << 20 << 0.3 << -1 << 20;
    QTest::newRow("huge step down") << 20 << 1e12 << 1 << highest;
    QTest::newRow("huge step up") << 20 << 1e12 << 2 << 0;
    QTest::newRow("step is not a number") << 0 << notANumber << 1 << 0;
}

void tst_LargeText::directions()
{
    QFETCH(const int, from);
    QFETCH(const double, scrollStep);
    QFETCH(const int, direction);
    QFETCH(const int, to);
    LargeText item(200, 100);
    item.setText(lines(50));
    item.prepareAll();
    item.setOffset(from);
    QCOMPARE(item.offset(), from);
    item.setScrollStep(scrollStep);
    item.takeSignals();
    item.scrollToDirection(direction);
    QCOMPARE(item.offset(), to);
    QCOMPARE(item.takeSignals().size(), from == to ? 0 : 1);
}

void tst_LargeText::lowerMaximumKeepsTheOffset()
{
    LargeText item(200, 100);
    item.setText(lines(50));
    item.prepareAll();
    item.setOffset(highest);
    item.setScrollMaximum(3);
    item.setScrollStep(0);
    item.setHeight(500);
    QCOMPARE(item.offset(), 1130);
    item.setOffset(1129);
    QCOMPARE(item.offset(), 700);
}

void tst_LargeText::fontChangePreparesNothingAgain()
{
    LargeText item(200, 100);
    item.setText(lines(50));
    item.prepareAll();
    const QImage before = painted(item);
    item.setFont(fontOf(30));
    QCOMPARE(item.contentHeight(), 50 * 24);
    item.passOfTheEventLoop();
    QCOMPARE(item.contentHeight(), 50 * 24);

    // Painted lines take the font, in the places that they had.
    QCOMPARE_NE(painted(item), before);
    const int high = int(item.hidden()->pieces[0].height);
    QCOMPARE_GT(high, 24);
    QCOMPARE(item.contentHeight(), 45 * 24 + 5 * high);
    QCOMPARE(item.hidden()->pieces[4].height, high);
    QCOMPARE(item.hidden()->pieces[5].height, 24);
}

//! A family that is not there yet is measured in another one, for the text that is there then.
void tst_LargeText::fontsThatComeAreMeasured()
{
    QFont font(u"Inter"_s);
    font.setPixelSize(40);
    const auto contentHeight = [&font](LargeText &item) {
        item.setFont(font);
        item.setText(lines(10));
        item.prepareAll();
        return item.contentHeight();
    };
    LargeText item(500, 100);
    const int before = contentHeight(item);
    QVERIFY(QFontDatabase::addApplicationFont(QStringLiteral(KELUI_FONT)) >= 0);
    LargeText other(500, 100);
    const int expected = contentHeight(other);
    QVERIFY2(expected != before, "Is the font installed?");
    item.setText({});
    QCOMPARE(contentHeight(item), expected);
}

void tst_LargeText::linesArePlainOnceTheyArePrepared()
{
    LargeText item(400, 24);
    item.setText(u"x\n<b>x</b>"_s);
    item.setScrollStep(1);
    item.setOffset(24);
    QCOMPARE(item.offset(), 24);
    item.setFont(fontOf(12));
    const QImage rich = painted(item);
    item.passOfTheEventLoop();
    const QImage plain = painted(item);
    QCOMPARE_NE(rich, plain);
    LargeText other(400, 24);
    other.setFont(fontOf(12));
    other.setText(u"<b>x</b>"_s);
    QCOMPARE(painted(other), plain);
}

void tst_LargeText::paintsFromTheOffsetOn_data()
{
    QTest::addColumn<int>("offset");
    for (const int offset : {0, 1, 23, 24, 25, 500, 1100, 1130})
        QTest::addRow("%d", offset) << offset;
}

void tst_LargeText::paintsFromTheOffsetOn()
{
    QFETCH(const int, offset);
    LargeText item(200, 100);
    item.setColor(Qt::blue);
    item.setText(lines(50));
    item.prepareAll();
    item.setOffset(offset);
    QImage expected(200, 100, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::white);
    QPainter painter(&expected);
    painter.setPen(Qt::blue);
    painter.setFont(fontOf(20));
    for (int i = 0; i < 50; ++i)
        painter.drawStaticText(0, i * 24 - offset, QStaticText(u"Line %1"_s.arg(i)));
    painter.end();
    QVERIFY(!isBlank(expected));
    QCOMPARE(painted(item, {.size = {200, 100}}), expected);
}

void tst_LargeText::keepsWhatIsNearTheView()
{
    LargeText item(200, 100);
    item.setText(lines(1000));
    item.prepareAll();
    QCOMPARE(item.hidden()->staticTexts.size(), size_t(0));
    for (int offset = 0; offset < 20000; offset += 90) {
        item.setOffset(offset);
        painted(item);
        QCOMPARE_GE(item.hidden()->staticTexts.size(), size_t(5));
        QCOMPARE_LE(item.hidden()->staticTexts.size(), size_t(7 * 6));
    }
}

void tst_LargeText::windowShowsWhatIsPainted_data()
{
    QTest::addColumn<QFont>("font");
    QFont underlined = fontOf(20);
    underlined.setUnderline(true);
    QFont struckOut = fontOf(20);
    struckOut.setStrikeOut(true);
    QFont overlined = fontOf(20);
    overlined.setOverline(true);
    QTest::addRow("plain") << fontOf(20);
    QTest::addRow("underlined") << underlined;
    QTest::addRow("struck out") << struckOut;
    QTest::addRow("overlined") << overlined;
}

void tst_LargeText::windowShowsWhatIsPainted()
{
    QFETCH(const QFont, font);
    QQuickWindow window;
    window.setColor(Qt::white);
    window.resize(220, 160);
    LargeText item(180, 100);
    item.setParentItem(window.contentItem());
    item.setPosition({20, 30});
    item.setText(lines(50));
    item.prepareAll();
    item.setOffset(37);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const auto expected = [&] {
        const QImage text = painted(item, {.size = {180, 100}});
        QImage picture(220, 160, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter(&picture).drawImage(20, 30, text);
        return picture;
    };
    const auto shown = [&] { return window.grabWindow().convertToFormat(QImage::Format_RGB32); };
    QCOMPARE(shown(), expected());
    item.scrollToDirection(1);
    QCOMPARE(shown(), expected());
    item.setFont(font);
    QCOMPARE(shown(), expected());
    item.setFont(fontOf(20));
    QCOMPARE(shown(), expected());
    const QImage black = shown();
    item.setColor(Qt::red);
    QCOMPARE(shown(), black);
    item.scrollToDirection(1);
    QCOMPARE(shown(), expected());
}

void tst_LargeText::colorWaitsWhereAnotherItemRepaints()
{
    Covered covered(50);
    auto &[window, item, above] = covered;
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QImage black = window.grabWindow();
    item.setColor(Qt::red);
    above.update();
    QCOMPARE(window.grabWindow(), black);
    item.update();
    QCOMPARE_NE(window.grabWindow(), black);
}

void tst_LargeText::heightsWaitWhereAnotherItemRepaints()
{
    Covered covered(100);
    auto &[window, item, above] = covered;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QImage small = window.grabWindow();
    item.setFont(fontOf(40));
    const QImage first = window.grabWindow();
    QCOMPARE_NE(first, small);
    above.update();
    QCOMPARE(window.grabWindow(), first);
    item.update();
    QCOMPARE_NE(window.grabWindow(), first);
}

void tst_LargeText::sizesThatShowNothing_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("none") << QSizeF(0, 0);
    QTest::newRow("negative") << QSizeF(-5, -5);
    QTest::newRow("not a number") << QSizeF(notANumber, notANumber);
    QTest::newRow("wide") << QSizeF(1e9, 10);
    QTest::newRow("high") << QSizeF(10, 1e9);
    QTest::newRow("large") << QSizeF(30000, 30000);
    QTest::newRow("less than a pixel") << QSizeF(100, 0.3);
    QTest::newRow("beyond int") << QSizeF(1e12, 1e12);
    QTest::newRow("infinite") << QSizeF(infinity, infinity);
}

void tst_LargeText::sizesThatShowNothing()
{
    QFETCH(const QSizeF, size);
    QQuickWindow window;
    window.setColor(Qt::white);
    window.resize(100, 100);
    LargeText item;
    item.setParentItem(window.contentItem());
    item.setFont(fontOf(20));
    item.setSize(size);
    item.setText(lines(20));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(isBlank(window.grabWindow().convertToFormat(QImage::Format_RGB32)));
    // It comes back with a size that can be shown.
    item.setSize({50, 50});
    item.update();
    QVERIFY(!isBlank(window.grabWindow().convertToFormat(QImage::Format_RGB32)));
    item.setSize(size);
    item.update();
    QVERIFY(isBlank(window.grabWindow().convertToFormat(QImage::Format_RGB32)));
}

void tst_LargeText::sameAsThePlainAlgorithm_data()
{
    QTest::addColumn<quint32>("seed");

    const int seed = qEnvironmentVariableIntValue("KELUI_SEED");
    for (int i = 0; i < 8; ++i)
        QTest::addRow("%d", seed + i) << quint32(seed + i);
}

void tst_LargeText::sameAsThePlainAlgorithm()
{
    QFETCH(const quint32, seed);
    Walk walk(seed);
    QStringList operations;
    for (int i = 0; i < 1000; ++i) {
        walk.step();
        operations.append(walk.lastOperation());
        const QString difference = walk.difference();
        if (!difference.isEmpty())
            QFAIL(qPrintable(
                operations.mid(std::max(0, i - 12)).join(u'\n') + u"\nafter %1: "_s.arg(i) + difference));
    }
}

QTEST_MAIN(tst_LargeText)

#include "tst_largetext.moc"
