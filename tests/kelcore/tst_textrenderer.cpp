// SPDX-License-Identifier: MIT
#include <QtCore/QRandomGenerator>
#include <QtCore/QThread>
#include <QtGui/QFontDatabase>
#include <QtGui/QFontMetricsF>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtTest/QTest>

#include <limits>
#include <memory>

#include "kelcore/textrenderer.h"

using kelcore::TextRenderer;
using namespace Qt::StringLiterals;

namespace {

constexpr int unlimited = std::numeric_limits<int>::max();

QFont testFont(int pixelSize = 20)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(pixelSize);
    return font;
}

int lineHeight(const QFont &font = testFont())
{
    return qCeil(QFontMetricsF(font).height());
}

struct Label
{
    QString text;
    int width = unlimited;
    int maxLines = unlimited;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop;
    int height = 0;
    QFont font = testFont();
};

TextRenderer laidOut(const Label &label)
{
    TextRenderer renderer;
    renderer.setText(label.text);
    renderer.setTextFont(label.font);
    renderer.setTextAlignment(label.alignment);
    renderer.setMaxLineCount(label.maxLines);
    renderer.setTextWidth(label.width);
    renderer.setAvailableHeight(label.height);
    renderer.relayout();
    return renderer;
}

QSize sizeOf(const Label &label)
{
    return laidOut(label).boundingSize({});
}

int linesOf(const Label &label)
{
    return sizeOf(label).height() / lineHeight(label.font);
}

QImage pictureOf(const TextRenderer &renderer, const QSize &size, qreal scale = 1)
{
    QImage image(size * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    renderer.draw(painter);
    return image;
}

QImage pictureOf(const Label &label, const QSize &size)
{
    return pictureOf(laidOut(label), size);
}

//! The smallest rectangle that holds all that is drawn.
QRect inkOf(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

QRect inkOf(const Label &label, const QSize &size)
{
    return inkOf(pictureOf(label, size));
}

QString repeated(QStringView part, qsizetype characters)
{
    return part.toString().repeated(characters / part.size() + 1).left(characters);
}

//! Heights and widths of the lines that the whole text has, shaped in one go.
QSize referenceSize(const QString &paragraph, const QFont &font, int width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(paragraph, font);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal widest = 0;
    int height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        widest = qMax(widest, line.naturalTextWidth());
        height += qCeil(line.height());
    }
    layout.endLayout();
    return {qMin(width, qCeil(widest)), height};
}

QString randomText(QRandomGenerator &random, int maximumSize)
{
    static const QStringList pieces{u"a"_s, u"fi"_s, u"W"_s, u"j"_s, u"слово"_s, u"длинноеслово"_s, u" "_s,
        u"  "_s, u"-"_s, u"word"_s, u", "_s, u"e\u0301"_s, u"שלום"_s, u"مرحبا"_s, u"漢字"_s, u"🙂"_s,
        u"👩‍👩‍👧"_s, u"сло\u00adво"_s, u"\u00ad"_s, u"\u00a0"_s, u"\t"_s, u"\u200b"_s,
        u"\u200f"_s, u"123"_s, u"<b>"_s, u"\n"_s, u"\r\n"_s, u"\u2028"_s, u"…"_s, QString(QChar(0)),
        QString(QChar(0xd83d)), QString(QChar(0xde00))};
    QString text;
    const int size = random.bounded(1, maximumSize);
    for (int i = 0; i < size; ++i)
        text += pieces.at(random.bounded(pieces.size()));
    return text;
}

QByteArray describe(const Label &label)
{
    const QSize size = sizeOf(label);
    return QByteArray::number(size.width()) + " x " + QByteArray::number(size.height()) + ", text "
        + label.text.toUtf8().toHex() + " width " + QByteArray::number(label.width) + " lines "
        + QByteArray::number(label.maxLines) + " pixel size " + QByteArray::number(label.font.pixelSize())
        + (label.font.italic() ? " italic" : "") + (label.font.bold() ? " bold" : "");
}

} // namespace

class tst_TextRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void startsEmptyWithoutLimits()
    {
        TextRenderer renderer;
        QVERIFY(renderer.text().isEmpty());
        QCOMPARE(renderer.textAlignment(), Qt::Alignment());
        QCOMPARE(renderer.maxLineCount(), unlimited);
        QCOMPARE(renderer.textWidth(), unlimited);
        QCOMPARE(renderer.boundingSize({}), QSize(0, 0));
        renderer.relayout();
        QCOMPARE(renderer.boundingSize({}), QSize(0, 0));
        QVERIFY(inkOf(pictureOf(renderer, {50, 50})).isNull());
    }

    void settersStoreUntilRelayout()
    {
        TextRenderer renderer = laidOut({u"Title"_s});
        const QSize size = renderer.boundingSize({});
        const QImage picture = pictureOf(renderer, size);
        TextRenderer changed = laidOut({u"Title"_s});
        changed.setText(u"Another, longer title"_s);
        changed.setTextFont(testFont(40));
        changed.setTextAlignment(Qt::AlignRight | Qt::AlignBottom);
        changed.setMaxLineCount(1);
        changed.setTextWidth(10);
        changed.setAvailableHeight(300);
        QCOMPARE(changed.boundingSize({}), size);
        QCOMPARE(pictureOf(changed, size), picture);
        changed.relayout();
        QVERIFY(changed.boundingSize({}) != size);
    }

    void alignmentIsKeptUnchanged()
    {
        TextRenderer renderer;
        const auto all = Qt::Alignment(Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask);
        renderer.setTextAlignment(all);
        QCOMPARE(renderer.textAlignment(), all);
    }

    //! A label shown before is not laid out again, and must be the same as if it were.
    void shownAgainLabelsAreTheSame()
    {
        QList<Label> labels;
        QFont bold = testFont();
        bold.setBold(true);
        for (const QString &text : {u"й"_s, u"Title"_s, u"A title"_s, u"חיפוש"_s}) {
            for (const QFont &font : {testFont(), testFont(21), bold}) {
                for (const auto alignment : {Qt::AlignLeft | Qt::AlignTop, Qt::AlignLeft | Qt::AlignBottom,
                         Qt::AlignHCenter | Qt::AlignVCenter, Qt::AlignRight | Qt::AlignTop}) {
                    for (const int width : {unlimited, 30, 80}) {
                        for (const int height : {0, 50}) {
                            labels.append({text, width, unlimited, alignment, height, font});
                            labels.append({text, width, 1, alignment, height, font});
                        }
                    }
                }
            }
        }
        const auto shown = [&labels] {
            QList<std::pair<QSize, QImage>> result;
            for (const Label &label : std::as_const(labels))
                result.append({sizeOf(label), pictureOf(label, {100, 60})});
            return result;
        };
        QList<std::pair<QSize, QImage>> anew;
        const std::unique_ptr<QThread> thread(QThread::create([&] { anew = shown(); }));
        thread->start();
        QVERIFY(thread->wait());
        for (const auto &again : {shown(), shown()}) {
            for (qsizetype i = 0; i < labels.size(); ++i) {
                QVERIFY2(again.at(i) == anew.at(i),
                    qPrintable(QDebug::toString(labels.at(i).text) + QString::number(i)));
            }
        }
    }

    //! Of equal labels laid out before a frame only the first is shaped.
    void labelLaidOutTwiceBeforeItIsDrawn()
    {
        const Label label{u"Laid out twice"_s, 200, 1, Qt::AlignRight | Qt::AlignTop};
        const auto pictureOfLabel = [](const TextRenderer &renderer) {
            return pictureOf(renderer, {200, 40});
        };
        QImage anew;
        const std::unique_ptr<QThread> thread(
            QThread::create([&] { anew = pictureOfLabel(laidOut(label)); }));
        thread->start();
        QVERIFY(thread->wait());
        const TextRenderer first = laidOut(label);
        TextRenderer second = laidOut(label);
        TextRenderer third = laidOut(label);
        second.setText(u"Not laid out"_s);
        second.setTextFont(testFont(40));
        third.setTextWidth(100);
        third.relayout();
        QCOMPARE(pictureOfLabel(second), anew);
        QCOMPARE(pictureOfLabel(first), anew);
        QVERIFY(pictureOfLabel(third) != anew);
        third.setTextWidth(200);
        third.relayout();
        QCOMPARE(pictureOfLabel(third), anew);
    }

    //! Threads that render come and go with their windows, and take their glyphs with them.
    void drawnByThreadsThatEnd()
    {
        for (const QString &text : {u"Short"_s, u"A label that is too long to be kept for others"_s}) {
            const auto pictureOfLabel = [](const TextRenderer &renderer) {
                return pictureOf(renderer, {100, 40});
            };
            const Label label{text, 100, 1, Qt::AlignRight | Qt::AlignTop, 0, testFont(17)};
            const QImage expected = pictureOfLabel(laidOut(label));
            TextRenderer renderer = laidOut(label);
            // Not laid out, hence not drawn.
            renderer.setText(u"Another"_s);
            for (const bool isHere : {false, false, true, false}) {
                QImage shown;
                const auto draw = [&] { shown = pictureOfLabel(renderer); };
                const std::unique_ptr<QThread> thread(QThread::create(draw));
                if (isHere)
                    draw();
                else
                    thread->start();
                QVERIFY(isHere || thread->wait());
                QCOMPARE(shown, expected);
            }
            const TextRenderer copy = renderer;
            QCOMPARE(pictureOfLabel(copy), expected);
        }
    }

    //! A family that is not there yet is shown in another one; a change of the width must not keep that.
    void fontsThatComeAreShaped()
    {
        QFont font(u"Inter"_s);
        font.setPixelSize(32);
        const Label shortLabel{u"Title"_s, 1000, 1, Qt::AlignLeft | Qt::AlignTop, 0, font};
        Label longLabel = shortLabel;
        longLabel.text = u"A label that is too long to be kept for others"_s;
        TextRenderer renderers[] = {laidOut(shortLabel), laidOut(longLabel)};
        QSize before[] = {renderers[0].boundingSize({}), renderers[1].boundingSize({})};
        QVERIFY(QFontDatabase::addApplicationFont(QStringLiteral(KELUI_FONT)) >= 0);
        const QSize expected[] = {sizeOf(shortLabel), sizeOf(longLabel)};
        for (int i = 0; i < 2; ++i) {
            QVERIFY2(expected[i] != before[i], "Is the font installed?");
            renderers[i].setTextWidth(900);
            renderers[i].relayout();
            QCOMPARE(renderers[i].boundingSize({}), expected[i]);
        }
    }

    void marginsAreAddedAndSaturate()
    {
        const TextRenderer renderer = laidOut({u"Title"_s});
        const QSize size = renderer.boundingSize({});
        QCOMPARE(renderer.boundingSize({1, 2, 3, 4}), size + QSize(4, 6));
        QCOMPARE(renderer.boundingSize({unlimited, unlimited, unlimited, 0}), QSize(unlimited, unlimited));
    }

    void sizeIsTheNaturalOneRoundedUp()
    {
        const QString text = u"Хорошее кино, good films"_s;
        QCOMPARE(sizeOf({text}), referenceSize(text, testFont(), 1 << 18));
    }

    void markupIsShownAsTyped()
    {
        QVERIFY(sizeOf({u"<b>x</b>"_s}).width() > 3 * sizeOf({u"x"_s}).width());
        QCOMPARE(linesOf({u"a<br>b"_s}), 1);
        QCOMPARE(sizeOf({u"&amp;"_s}).width(), referenceSize(u"&amp;"_s, testFont(), 1000).width());
    }

    void lineBreaks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("lines");
        QTest::newRow("LF") << u"a\nb"_s << 2;
        QTest::newRow("CR LF") << u"a\r\nb"_s << 2;
        QTest::newRow("CR") << u"a\rb"_s << 2;
        QTest::newRow("LF CR") << u"a\n\rb"_s << 3;
        QTest::newRow("line separator") << u"a\u2028b"_s << 2;
        QTest::newRow("paragraph separator") << u"a\u2029b"_s << 2;
        QTest::newRow("vertical tab") << u"a\vb"_s << 2;
        QTest::newRow("form feed") << u"a\fb"_s << 2;
        QTest::newRow("next line") << u"a\u0085b"_s << 2;
        QTest::newRow("empty lines") << u"\n\na\n\nb"_s << 5;
        QTest::newRow("at the end") << u"a\n"_s << 2;
        QTest::newRow("only") << u"\n"_s << 2;
        QTest::newRow("separators at both ends") << u"\u2028a\u2028"_s << 3;
    }
    void lineBreaks()
    {
        QFETCH(QString, text);
        QFETCH(int, lines);
        QCOMPARE(linesOf({text}), lines);
        QCOMPARE(linesOf({text, 500}), lines);
        QCOMPARE(linesOf({text, 500, lines - 1}), lines - 1);
    }

    void noWidthIsNoLimit_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("0") << 0;
        QTest::newRow("-1") << -1;
        QTest::newRow("lowest") << std::numeric_limits<int>::min();
        QTest::newRow("highest") << unlimited;
    }
    void noWidthIsNoLimit()
    {
        QFETCH(int, width);
        const QString text = u"Показать весь текст в одной строке, whatever its length"_s;
        QCOMPARE(sizeOf({text, width}), referenceSize(text, testFont(), 1 << 18));
        QCOMPARE(sizeOf({text, width, 1}), referenceSize(text, testFont(), 1 << 18));
    }

    void noLineLimit_data()
    {
        QTest::addColumn<int>("maxLines");
        QTest::newRow("0") << 0;
        QTest::newRow("-1") << -1;
        QTest::newRow("lowest") << std::numeric_limits<int>::min();
        QTest::newRow("highest") << unlimited;
    }
    void noLineLimit()
    {
        QFETCH(int, maxLines);
        QCOMPARE(linesOf({u"a\nb\nc\nd"_s, 100, maxLines}), 4);
    }

    void breaksBetweenWords()
    {
        const int width = sizeOf({u"Хорошее кино"_s}).width();
        const Label label{u"Хорошее кино каждый день"_s, width};
        QCOMPARE(linesOf(label), 2);
        const QSize size = sizeOf(label);
        QImage expected(size, QImage::Format_RGB32);
        expected.fill(Qt::white);
        QPainter painter(&expected);
        painter.setPen(Qt::black);
        laidOut({u"Хорошее кино"_s}).draw(painter);
        painter.translate(0, lineHeight());
        laidOut({u"каждый день"_s}).draw(painter);
        painter.end();
        QCOMPARE(pictureOf(label, size), expected);
    }

    void longWordBreaksAnywhere()
    {
        const QString word(40, u'ж');
        const int letter = sizeOf({u"ж"_s}).width();
        const Label label{u"a "_s + word, letter * 10};
        QVERIFY(linesOf(label) > 4);
        QVERIFY(sizeOf(label).width() <= letter * 10);
        // The word starts a line of its own before it is broken.
        QCOMPARE(
            pictureOf(label, {letter * 10, lineHeight()}), pictureOf({u"a"_s}, {letter * 10, lineHeight()}));
    }

    void letterWiderThanTheLineKeepsTheWidth()
    {
        const Label label{u"WiiW"_s, 3};
        QCOMPARE(linesOf(label), 4);
        QCOMPARE(sizeOf(label).width(), 3);
    }

    void cutLineEndsInEllipsis_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("maxLines");
        QTest::newRow("one line") << u"Хорошее кино каждый день для вас"_s << 1;
        QTest::newRow("one word") << u"Превысокомногорассмотрительствующий"_s << 1;
        QTest::newRow("two lines") << u"Хорошее кино каждый день для вас и ещё чуть-чуть"_s << 2;
        QTest::newRow("space at the cut") << u"Wide     open        spaces of text that go on"_s << 1;
    }
    void cutLineEndsInEllipsis()
    {
        QFETCH(QString, text);
        QFETCH(int, maxLines);
        for (int width = 60; width < 200; ++width) {
            const Label label{text, width, maxLines};
            QCOMPARE(sizeOf(label), QSize(width, maxLines * lineHeight()));
            const QRect lastLine(0, (maxLines - 1) * lineHeight(), width, lineHeight());
            const QImage shown = pictureOf(label, sizeOf(label)).copy(lastLine);
            QVERIFY(inkOf(shown).right() < width);
            bool isFound = false;
            for (qsizetype from = 0; from < text.size() && !isFound; ++from) {
                if (maxLines == 1 && from > 0)
                    break;
                for (qsizetype to = text.size(); to > from && !isFound; --to) {
                    const QString candidate = text.sliced(from, to - from).trimmed() + u'…';
                    isFound = pictureOf({candidate}, lastLine.size()) == shown;
                }
            }
            QVERIFY2(
                isFound, qPrintable(u"no beginning of the text with … looks so at width %1"_s.arg(width)));
        }
    }

    void cutLineIsAsFullAsItCanBe()
    {
        const QString text(60, u'н');
        const qreal letter = QFontMetricsF(testFont()).horizontalAdvance(u'н');
        const qreal ellipsis = QFontMetricsF(testFont()).horizontalAdvance(u'…');
        const int width = 300;
        const int letters = int((width - ellipsis) / letter);
        QCOMPARE(
            pictureOf({text, width, 1}, {width, 30}), pictureOf({text.left(letters) + u'…'}, {width, 30}));
    }

    void textThatEndsWithTheLastLineIsNotCut()
    {
        const int width = sizeOf({u"Точно"_s}).width();
        QCOMPARE(pictureOf({u"Точно"_s, width, 1}, {100, 30}), pictureOf({u"Точно"_s}, {100, 30}));
        QCOMPARE(pictureOf({u"Точно  "_s, width, 1}, {100, 30}), pictureOf({u"Точно"_s}, {100, 30}));
        QCOMPARE(pictureOf({u"Точно\n \n"_s, width, 1}, {100, 30}), pictureOf({u"Точно"_s}, {100, 30}));
    }

    void remainingParagraphsCutTheLastLine()
    {
        QCOMPARE(pictureOf({u"One\nTwo"_s, 200, 1}, {200, 30}), pictureOf({u"One…"_s}, {200, 30}));
        QCOMPARE(sizeOf({u"One\nTwo"_s, 200, 1}), QSize(200, lineHeight()));
        QCOMPARE(pictureOf({u"One\u2028Two"_s, 200, 1}, {200, 30}), pictureOf({u"One…"_s}, {200, 30}));
        // Without a width the block is what the cut line needs.
        QCOMPARE(sizeOf({u"One\nTwo"_s, 0, 1}), sizeOf({u"One…"_s}));
    }

    void narrowerThanEllipsisShowsNothing()
    {
        const int ellipsis = sizeOf({u"…"_s}).width();
        const Label narrow{u"Title"_s, ellipsis - 3, 1};
        QCOMPARE(sizeOf(narrow), QSize(ellipsis - 3, lineHeight()));
        QVERIFY(inkOf(narrow, {100, 30}).isNull());
        const Label barely{u"Title"_s, ellipsis, 1};
        QCOMPARE(pictureOf(barely, {100, 30}), pictureOf({u"…"_s}, {100, 30}));
    }

    void layingOutAtTheReportedWidthChangesNothing()
    {
        const auto seed = QRandomGenerator::global()->generate();
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        for (int i = 0; i < 3000; ++i) {
            Label label{randomText(random, 24), random.bounded(-5, 300), random.bounded(0, 5),
                Qt::AlignLeft | Qt::AlignAbsolute};
            label.font = testFont(random.bounded(9, 31));
            label.font.setItalic(random.bounded(2));
            label.font.setBold(random.bounded(2));
            TextRenderer renderer = laidOut(label);
            const QSize size = renderer.boundingSize({});
            if (label.width > 0)
                QVERIFY2(size.width() <= label.width, describe(label));
            // A width of 0 would mean no limit.
            if (size.width() == 0)
                continue;
            const QImage picture = pictureOf(renderer, size);
            renderer.setTextWidth(size.width());
            renderer.relayout();
            QVERIFY2(renderer.boundingSize({}) == size, describe(label));
            QVERIFY2(pictureOf(renderer, size) == picture, describe(label));
            Label again = label;
            again.width = size.width();
            QVERIFY2(sizeOf(again) == size, describe(label));
        }
    }

    void layingOutAgainEqualsLayingOutAnew()
    {
        const auto seed = QRandomGenerator::global()->generate();
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        const QList<Qt::Alignment> alignments{
            Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignJustify};
        for (int i = 0; i < 300; ++i) {
            Label label{randomText(random, 40)};
            TextRenderer renderer = laidOut(label);
            for (int step = 0; step < 6; ++step) {
                label.width = random.bounded(-5, 500);
                label.maxLines = random.bounded(0, 5);
                label.alignment = alignments.at(random.bounded(alignments.size())) | Qt::AlignTop;
                renderer.setTextWidth(label.width);
                renderer.setMaxLineCount(label.maxLines);
                renderer.setTextAlignment(label.alignment);
                renderer.relayout();
                QVERIFY2(renderer.boundingSize({}) == sizeOf(label), describe(label));
                const QSize area(600, 200);
                QVERIFY2(pictureOf(renderer, area) == pictureOf(label, area), describe(label));
            }
        }
    }

    void shapingAPartGivesTheSameLines()
    {
        const auto seed = QRandomGenerator::global()->generate();
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        for (int i = 0; i < 200; ++i) {
            QString text = randomText(random, 600);
            text.remove(u'\n').remove(u'\r').remove(u'\t');
            if (text.isEmpty())
                continue;
            const int width = random.bounded(40, 700);
            const QSize reference = referenceSize(text, testFont(), width);
            const QSize size = sizeOf({text, width});
            // Wider by what the engine needs to give these lines again.
            QVERIFY2(size.height() == reference.height() && size.width() >= reference.width()
                    && size.width() <= qMin(width, reference.width() + 64),
                describe({text, width}) + " expected " + QByteArray::number(reference.width()) + ' '
                    + QByteArray::number(reference.height()));
            // All lines before the cut one are those of the whole text.
            const int lines = random.bounded(1, 8);
            const QSize head = sizeOf({text, width, lines});
            QCOMPARE(pictureOf({text, width, lines + 1}, head), pictureOf({text, width}, head));
        }
    }

    void longTextCutEarlyIsThatOfItsBeginning()
    {
        for (const QString &part : {u"слово "_s, u"слово"_s, u"字"_s, u"مرحبا "_s, u"🙂"_s}) {
            const QString text = repeated(part, 100000);
            for (const int lines : {1, 2, 7}) {
                QCOMPARE(pictureOf({text, 700, lines}, {700, 200}),
                    pictureOf({text.left(5000), 700, lines}, {700, 200}));
            }
        }
    }

    void horizontalAlignment_data()
    {
        QTest::addColumn<int>("alignment");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("place");
        const QString rtl = u"שלום"_s;
        QTest::newRow("none") << 0 << u"нн"_s << 0.0;
        QTest::newRow("left") << int(Qt::AlignLeft) << u"нн"_s << 0.0;
        QTest::newRow("right") << int(Qt::AlignRight) << u"нн"_s << 1.0;
        QTest::newRow("centre") << int(Qt::AlignHCenter) << u"нн"_s << 0.5;
        QTest::newRow("justify") << int(Qt::AlignJustify) << u"нн"_s << 0.0;
        QTest::newRow("left and centre") << int(Qt::AlignLeft | Qt::AlignHCenter) << u"нн"_s << 0.5;
        QTest::newRow("left and right") << int(Qt::AlignLeft | Qt::AlignRight) << u"нн"_s << 1.0;
        QTest::newRow("all") << 0x1f << u"нн"_s << 0.5;
        QTest::newRow("left, right-to-left") << int(Qt::AlignLeft) << rtl << 1.0;
        QTest::newRow("right, right-to-left") << int(Qt::AlignRight) << rtl << 0.0;
        QTest::newRow("centre, right-to-left") << int(Qt::AlignHCenter) << rtl << 0.5;
        QTest::newRow("justify, right-to-left") << int(Qt::AlignJustify) << rtl << 1.0;
        QTest::newRow("absolute left, right-to-left") << int(Qt::AlignLeft | Qt::AlignAbsolute) << rtl << 0.0;
        QTest::newRow("absolute right, right-to-left")
            << int(Qt::AlignRight | Qt::AlignAbsolute) << rtl << 1.0;
    }
    void horizontalAlignment()
    {
        QFETCH(int, alignment);
        QFETCH(QString, text);
        QFETCH(double, place);
        const QRect natural = inkOf({text}, {400, 30});
        const int room = 400 - sizeOf({text}).width();
        Label label{text, 400, unlimited, Qt::Alignment(alignment)};
        const QRect ink = inkOf(label, {400, 30});
        QCOMPARE(ink.width(), natural.width());
        QVERIFY(qAbs(ink.left() - natural.left() - room * place) <= 1);
        // Without a width a line stands within the widest one, not within two thousand million pixels.
        label.width = unlimited;
        QCOMPARE(inkOf(label, {400, 30}), natural);
        label.text = text + u"\n"_s + QString(20, text.at(0));
        const int widest = sizeOf(label).width();
        const QRect first = inkOf(label, {widest, lineHeight()});
        QVERIFY(qAbs(first.left() - natural.left() - (widest - sizeOf({text}).width()) * place) <= 1);
    }

    void eachParagraphHasItsDirection()
    {
        const Label label{u"нн\nשלום"_s, 400};
        const QImage picture = pictureOf(label, {400, 2 * lineHeight()});
        QVERIFY(inkOf(picture.copy(0, 0, 400, lineHeight())).right() < 100);
        QVERIFY(inkOf(picture.copy(0, lineHeight(), 400, lineHeight())).left() > 300);
    }

    void rightToLeftIsCutAtTheLeft()
    {
        const QString text = u"שלום עולם שלום עולם שלום עולם"_s;
        const QImage picture = pictureOf({text, 150, 1}, {150, 30});
        const QImage ellipsis = pictureOf({u"…"_s}, {sizeOf({u"…"_s}).width(), 30});
        const QRect dots = inkOf(ellipsis);
        // The dots stand at the foot of the line, left of all letters.
        const QRect ink = inkOf(picture);
        QVERIFY(ink.right() > 140);
        const QImage foot = picture.copy(ink.left(), dots.top(), dots.width(), dots.height());
        QCOMPARE(foot, ellipsis.copy(dots));
        QVERIFY(inkOf(picture.copy(ink.left(), 0, dots.width(), dots.top() - 1)).isNull());
    }

    void justifyStretchesAllButTheLastLine()
    {
        const Label label{u"Хорошее кино каждый день и на любой вкус"_s, 220, unlimited, Qt::AlignJustify};
        const QSize size = sizeOf(label);
        QCOMPARE(size.width(), 220);
        const int lines = size.height() / lineHeight();
        QVERIFY(lines > 1);
        const QImage picture = pictureOf(label, size);
        for (int i = 0; i < lines; ++i) {
            const QRect ink = inkOf(picture.copy(0, i * lineHeight(), 220, lineHeight()));
            if (i + 1 < lines)
                QVERIFY(ink.left() <= 2 && ink.right() >= 216);
        }
        Label left = label;
        left.alignment = Qt::AlignLeft;
        const QRect last(0, (lines - 1) * lineHeight(), 220, lineHeight());
        QCOMPARE(picture.copy(last), pictureOf(left, size).copy(last));
        // Stretching leaves nothing behind.
        TextRenderer renderer = laidOut(label);
        pictureOf(renderer, size);
        renderer.setTextAlignment(Qt::AlignLeft);
        renderer.relayout();
        QCOMPARE(pictureOf(renderer, size), pictureOf(left, size));
    }

    void justifiedLineIsCutWithinTheWidth()
    {
        for (const QString &part : {u"слово и дело "_s, u"שלום עולם "_s}) {
            for (int width = 100; width < 200; width += 7) {
                const QImage picture =
                    pictureOf({repeated(part, 200), width, 2, Qt::AlignJustify}, {400, 60});
                QVERIFY(inkOf(picture).right() <= width);
            }
        }
    }

    void verticalAlignment_data()
    {
        QTest::addColumn<int>("alignment");
        QTest::addColumn<double>("place");
        QTest::newRow("none") << 0 << 0.0;
        QTest::newRow("top") << int(Qt::AlignTop) << 0.0;
        QTest::newRow("bottom") << int(Qt::AlignBottom) << 1.0;
        QTest::newRow("centre") << int(Qt::AlignVCenter) << 0.5;
        QTest::newRow("top and centre") << int(Qt::AlignTop | Qt::AlignVCenter) << 0.5;
        QTest::newRow("top and bottom") << int(Qt::AlignTop | Qt::AlignBottom) << 1.0;
        QTest::newRow("all") << 0x1e0 << 0.5;
    }
    void verticalAlignment()
    {
        QFETCH(int, alignment);
        QFETCH(double, place);
        const QRect natural = inkOf({u"н"_s}, {50, 50});
        Label label{u"н"_s, unlimited, unlimited, Qt::Alignment(alignment), 101};
        const auto shift = [&](int height) { return int((height - lineHeight()) * place); };
        QCOMPARE(inkOf(label, {50, 300}).top(), natural.top() + shift(101));
        // Never above the area, however low it is.
        label.height = 3;
        QCOMPARE(inkOf(label, {50, 300}), natural);
        // Unknown heights: what the painter shows.
        for (const int unknown : {0, -1, std::numeric_limits<int>::min(), unlimited}) {
            label.height = unknown;
            QCOMPARE(inkOf(label, {50, 201}).top(), natural.top() + shift(201));
        }
    }

    void unknownHeightIsThatOfTheShownArea()
    {
        const TextRenderer renderer = laidOut({u"н"_s, unlimited, unlimited, Qt::AlignBottom});
        const int foot = inkOf(pictureOf(renderer, {50, 100})).bottom();
        QCOMPARE(inkOf(pictureOf(renderer, {50, 100}, 2)).bottom() / 2, foot);

        QImage image(50, 200, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setPen(Qt::black);
        painter.setClipRect(0, 0, 50, 100);
        renderer.draw(painter);
        QCOMPARE(inkOf(image).bottom(), foot);

        image.fill(Qt::white);
        painter.setClipping(false);
        painter.setViewport(0, 0, 50, 100);
        painter.setWindow(0, 0, 50, 100);
        renderer.draw(painter);
        QCOMPARE(inkOf(image).bottom(), foot);
    }

    void drawsWithThePainterPen()
    {
        const TextRenderer renderer = laidOut({u"███"_s});
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setPen(Qt::red);
        renderer.draw(painter);
        QVERIFY(image.pixelColor(15, 15).red() == 255 && image.pixelColor(15, 15).blue() < 32);
        painter.setPen(Qt::blue);
        renderer.draw(painter);
        QVERIFY(image.pixelColor(15, 15).blue() > 224 && image.pixelColor(15, 15).red() < 32);
    }

    void copiesDrawTheSameAndStandAlone()
    {
        TextRenderer original = laidOut({u"Хорошее кино каждый день"_s, 150, 1});
        const QSize size = original.boundingSize({});
        const QImage picture = pictureOf(original, size);
        TextRenderer copy = original;
        original.setText(u"Другое"_s);
        original.relayout();
        QCOMPARE(copy.boundingSize({}), size);
        QCOMPARE(pictureOf(copy, size), picture);
        copy.relayout();
        QCOMPARE(copy.boundingSize({}), size);
        QCOMPARE(pictureOf(copy, size), picture);
        const TextRenderer &same = copy;
        copy = same;
        QCOMPARE(pictureOf(copy, size), picture);
    }

    void sameTextAgainAfterAnother()
    {
        TextRenderer renderer = laidOut({u"Один"_s});
        renderer.setText(u"Другой текст"_s);
        renderer.setText(u"Один"_s);
        renderer.relayout();
        QCOMPARE(renderer.boundingSize({}), sizeOf({u"Один"_s}));
        renderer.setTextFont(testFont(40));
        renderer.relayout();
        Label large{u"Один"_s};
        large.font = testFont(40);
        QCOMPARE(renderer.boundingSize({}), sizeOf(large));
    }

    void enormousTextStaysBounded_data()
    {
        QTest::addColumn<QString>("part");
        QTest::newRow("words") << u"слово "_s;
        QTest::newRow("one word") << u"слово"_s;
        QTest::newRow("lines") << u"слово\n"_s;
        QTest::newRow("empty lines") << u"\n"_s;
        QTest::newRow("line separators") << u"\u2028"_s;
        QTest::newRow("spaces") << u" "_s;
        QTest::newRow("NUL") << QString(QChar(0));
        QTest::newRow("lone surrogates") << QString(QChar(0xdc00));
        QTest::newRow("combining marks") << u"\u0301"_s;
        QTest::newRow("zero-width joiners") << u"\u200d"_s;
    }
    void enormousTextStaysBounded()
    {
        QFETCH(QString, part);
        const QString text = repeated(part, 10 << 20);
        const int limit = 1 << 18;
        for (const int width : {0, 1, 1280}) {
            for (const int lines : {0, 1, 3}) {
                const QSize size = sizeOf({text, width, lines});
                QVERIFY(size.width() <= limit);
                QVERIFY(size.height() <= limit);
            }
        }
    }

    void oddCharactersAreShown()
    {
        QVERIFY(sizeOf({u"a\0b"_s}).width() >= sizeOf({u"ab"_s}).width());
        QVERIFY(!sizeOf({QString(QChar(0xd800))}).isEmpty());
        QVERIFY(!sizeOf({u"x"_s + QChar(0xdc00) + u"y"_s, 5, 1}).isEmpty());
    }

    void oddFonts()
    {
        QFont font = testFont(10000);
        Label label{u"Hello"_s, unlimited, 1, Qt::AlignCenter};
        label.font = font;
        QVERIFY(sizeOf(label).height() > 5000);
        pictureOf(label, {300, 300});
        label.width = 100;
        QCOMPARE(sizeOf(label).width(), 100);
        pictureOf(label, {300, 300});
        font.setPixelSize(1);
        label.font = font;
        QVERIFY(sizeOf(label).height() >= 1);
        pictureOf(label, {300, 300});
    }
};

QTEST_MAIN(tst_TextRenderer)

#include "tst_textrenderer.moc"
