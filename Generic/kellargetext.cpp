// SPDX-License-Identifier: MIT
#include "kellargetext.h"
#include "kellargetext_p.h"

#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtGui/QFontInfo>
#include <QtGui/QGlyphRun>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QRawFont>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtQuick/QSGNode>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>

#include "kelframenode_p.h"
#include "kelglobal.h"
#include "kelpicture_p.h"

using namespace Qt::StringLiterals;

namespace {

using Limits = std::numeric_limits<int>;
constexpr double unlimited = std::numeric_limits<double>::infinity();

int toPixels(double value)
{
    // Written so that NaN fails the test.
    if (!(value >= Limits::min() && value <= Limits::max()))
        return Limits::max();
    return int(value);
}

int saturated(qint64 value)
{
    return int(std::clamp<qint64>(value, Limits::min(), Limits::max()));
}

//! Truncated toward zero; NaN is 0.
int saturated(double value)
{
    return std::isnan(value) ? 0 : int(std::clamp<double>(value, Limits::min(), Limits::max()));
}

int rounded(double height)
{
    return saturated(std::round(height));
}

//! The only line of a text.
QTextLine layOut(QTextLayout &layout)
{
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line;
}

//! How far the only line of a text reaches above its base line and below, and the room that it leaves.
std::array<double, 3> heightsOf(QTextLayout &layout)
{
    const QTextLine line = layOut(layout);
    return {line.ascent(), line.descent(), line.leading()};
}

/*!
    Whether a character always looks alike, up to kerning, and takes its font by itself. The scripts left out
    join their letters, mark them, write them from right to left, or seldom have glyphs in the font asked for.
*/
bool isSimple(QChar character)
{
    if (character == u'\t' || character == u'\r')
        return true;
    if (!character.isPrint() || character.isMark() || character == QChar::LineSeparator)
        return false;
    switch (character.script()) {
    case QChar::Script_Common:
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
        return true;
    default:
        return false;
    }
}

// What most lines consist of; without "<" and "&", with which markup begins.
constexpr QStringView signs = u" !\"#$%'()*+,-./0123456789:;=>?@[\\]^_`{|}~";
constexpr QStringView latinLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr QStringView cyrillicLetters = u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдежзийклмнопрстуфхцчшщъыьэюя";

//! Whether a text consists of these. Written so that compilers take many characters at a time.
bool isPlain(QStringView text)
{
    quint16 others = 0;
    for (const QChar character : text) {
        const quint16 code = character.unicode();
        const bool isAscii = quint16(code - u' ') <= u'~' - u' ';
        const bool isCyrillic = quint16(code - u'А') <= u'я' - u'А';
        others |= quint16(!(isAscii | isCyrillic) | (code == u'<') | (code == u'&'));
    }
    return others == 0;
}

bool isSpaced(const QFont &font)
{
    return !qIsNull(font.letterSpacing()) || !qIsNull(font.wordSpacing())
        || font.capitalization() != QFont::MixedCase;
}

} // namespace

void KelRunningSums::append(qint64 value)
{
    const size_t place = m_sums.size() + 1;
    // The sum at a place covers as many numbers as its lowest bit says; those before it are in other sums.
    const size_t covered = place & -place;
    for (size_t i = 1; i < covered; i *= 2)
        value += m_sums[place - i - 1];
    m_sums.push_back(value);
}

void KelRunningSums::add(qsizetype index, qint64 difference)
{
    for (size_t place = size_t(index) + 1; place <= m_sums.size(); place += place & -place)
        m_sums[place - 1] += difference;
}

qint64 KelRunningSums::sum(qsizetype count) const
{
    qint64 result = 0;
    for (auto place = size_t(count); place > 0; place &= place - 1)
        result += m_sums[place - 1];
    return result;
}

qsizetype KelRunningSums::countWithin(qint64 limit) const
{
    size_t count = 0;
    for (size_t step = std::bit_floor(m_sums.size()); step > 0; step /= 2) {
        if (count + step <= m_sums.size() && m_sums[count + step - 1] <= limit) {
            count += step;
            limit -= m_sums[count - 1];
        }
    }
    return qsizetype(count);
}

KelLineMetrics::KelLineMetrics(const QFont &font)
    : m_font(font)
{
    QTextLayout empty({}, font);
    m_emptyLine = heightsOf(empty);
    // With its room, as a static text measures it.
    QTextLine line = empty.lineAt(0);
    line.setLeadingIncluded(true);
    m_lineHeight = line.height();
    // An upper bound for what moves letters apart, on average.
    m_kerning = QFontInfo(font).pixelSize() / 16.0;
    for (const QChar letter : QStringView(u"xЖλ")) {
        if (isUsual(letter))
            m_neighbors += letter;
    }
}

/*!
    Whether the font itself has all that a plain text consists of, also where signs take the font of the
   script before them: then any plain text is as high as an empty line.
*/
bool KelLineMetrics::hasPlainText() const
{
    constexpr int largestSize = 500;
    if (isSpaced(m_font) || QFontInfo(m_font).pixelSize() > largestSize)
        return false;
    QString text;
    for (const QStringView letters : {QStringView(), latinLetters, cyrillicLetters})
        text += letters.toString() + signs.toString();
    QTextLayout layout(text, m_font);
    if (heightsOf(layout) != m_emptyLine)
        return false;
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return std::all_of(runs.begin(), runs.end(), [&runs](const QGlyphRun &run) {
        return run.rawFont() == runs.constFirst().rawFont() && !run.glyphIndexes().contains(0);
    });
}

bool KelLineMetrics::isPlainLine(QStringView text)
{
    // Far from the widths at which Qt's fixed-point numbers end.
    constexpr qsizetype longest = 1000;
    if (!m_hasPlainText)
        m_hasPlainText = hasPlainText();
    return *m_hasPlainText && text.size() <= longest && isPlain(text);
}

bool KelLineMetrics::fits(QStringView text, double width)
{
    // Far below the widths at which Qt's fixed-point numbers end.
    constexpr double longest = 1e6;
    return advance(text) + double(text.size()) * m_kerning
        <= (width < 0 ? longest : std::min(width, longest));
}

//! The sum of the advances; unlimited where it does not tell enough.
double KelLineMetrics::advance(QStringView text)
{
    // The symbols behind are seldom in a font of letters.
    constexpr size_t known = 0x2200;
    constexpr float unknown = -1;
    m_advances.resize(known, unknown);
    // A few at a time, for no line to take long.
    int unmeasured = 4;
    double sum = 0;
    for (const QChar character : text) {
        if (character.unicode() >= known)
            return unlimited;
        float &advance = m_advances[character.unicode()];
        if (advance == unknown) {
            if (unmeasured-- == 0)
                return unlimited;
            advance = measured(character);
        }
        sum += advance;
    }
    return sum;
}

//! The advance of a character that leaves a line as high as an empty one; unlimited for others.
float KelLineMetrics::measured(QChar character) const
{
    const auto isAlike = [character](QChar letter) { return letter.script() == character.script(); };
    const bool isSign = character.script() == QChar::Script_Common;
    if (!isSimple(character) || isSpaced(m_font)
        || (!isSign && std::none_of(m_neighbors.begin(), m_neighbors.end(), isAlike)))
        return float(unlimited);
    QString text = character;
    // Signs take the font of the script before them.
    for (const QChar neighbor : isSign ? m_neighbors : QString())
        text.append(neighbor).append(character);
    QTextLayout layout(text, m_font);
    return heightsOf(layout) == m_emptyLine ? float(layout.lineAt(0).cursorToX(1)) : float(unlimited);
}

bool KelLineMetrics::isUsual(const QString &text) const
{
    QTextLayout layout(text, m_font);
    return heightsOf(layout) == m_emptyLine;
}

KelLargeTextPrivate::KelLargeTextPrivate(KelLargeText *item)
    : q(item)
    , m_unpreparedMetrics({})
    , m_preparedMetrics({})
{
}

KelLargeTextPrivate *KelLargeTextPrivate::get(KelLargeText *item)
{
    return item->d;
}

//! The same font may be another one, where fonts have come to the application or gone.
void KelLargeTextPrivate::measureAnew()
{
    m_unpreparedMetrics = KelLineMetrics({});
    m_preparedMetrics = KelLineMetrics({});
}

void KelLargeTextPrivate::invalidate()
{
    offset = 0;
    scrollStep = 0.3;
    scrollMaximum = 0;
    allPrepared = false;
    viewportFilled = false;
    pieces.clear();
    staticTexts.clear();
    m_rounded.clear();
    m_truncated = 0;
    text.clear();
}

//! Deliberately appends: what a changed line break makes of the text comes after what is there.
void KelLargeTextPrivate::resetStaticTexts()
{
    if (m_unpreparedMetrics.font() != QFont())
        m_unpreparedMetrics = KelLineMetrics(QFont());
    const QString separator = lineBreak();
    // A character is found faster than a text of one.
    const auto next = [&](qsizetype from) {
        return separator.size() == 1 ? text.indexOf(separator.front(), from) : text.indexOf(separator, from);
    };
    qsizetype start = 0;
    for (qsizetype end = next(0); end >= 0; end = next(start)) {
        append(start, end);
        start = end + separator.size();
    }
    append(start, text.size());
    q->startPreparingTextFrom(0);
}

void KelLargeTextPrivate::append(qsizetype start, qsizetype end)
{
    Piece piece{start, end - start};
    piece.height = unpreparedHeight(textOf(piece));
    pieces.push_back(piece);
    m_rounded.append(rounded(piece.height));
    m_truncated += saturated(piece.height);
}

QStringView KelLargeTextPrivate::textOf(const Piece &piece) const
{
    return QStringView(text).sliced(piece.start, piece.size);
}

double KelLargeTextPrivate::unpreparedHeight(QStringView line)
{
    if (m_unpreparedMetrics.isPlainLine(line))
        return m_unpreparedMetrics.lineHeight();
    const bool hasMarkup = line.contains(u'<') || line.contains(u'&');
    if (m_unpreparedMetrics.fits(line, -1) && !(hasMarkup && Qt::mightBeRichText(line.toString())))
        return m_unpreparedMetrics.lineHeight();
    return QStaticText(line.toString()).size().height();
}

double KelLargeTextPrivate::preparedHeight(QStringView line, int width)
{
    if (m_preparedMetrics.font() != font)
        m_preparedMetrics = KelLineMetrics(font);
    if (m_preparedMetrics.fits(line, width))
        return m_preparedMetrics.lineHeight();
    QStaticText piece(line.toString());
    prepareText(piece, width);
    piece.prepare({}, font);
    return piece.size().height();
}

//! Without a font: the one that asks for its size or draws it gives it one, and then it is laid out once.
void KelLargeTextPrivate::prepareText(QStaticText &piece, int width)
{
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(QTextOption::WordWrap);
    piece.setTextOption(option);
    piece.setTextFormat(Qt::PlainText);
    piece.setTextWidth(width);
}

void KelLargeTextPrivate::prepare(qsizetype index)
{
    Piece &piece = pieces[size_t(index)];
    piece.width = toPixels(q->width());
    piece.isPrepared = true;
    staticTexts.erase(index);
    setHeight(index, preparedHeight(textOf(piece), piece.width));
}

void KelLargeTextPrivate::setHeight(qsizetype index, double height)
{
    double &current = pieces[size_t(index)].height;
    if (current == height)
        return;
    m_rounded.add(index, qint64(rounded(height)) - rounded(current));
    m_truncated += qint64(saturated(height)) - saturated(current);
    current = height;
}

bool KelLargeTextPrivate::fillsViewport(qsizetype index) const
{
    return m_rounded.sum(std::min(index + 1, count())) >= qint64(offset) + viewportHeight();
}

int KelLargeTextPrivate::contentHeight() const
{
    return saturated(m_truncated);
}

int KelLargeTextPrivate::viewportHeight() const
{
    return toPixels(q->height());
}

void KelLargeTextPrivate::publishScrollMaximum() const
{
    q->setScrollMaximum(saturated(qint64(contentHeight()) - viewportHeight()));
}

QString KelLargeTextPrivate::lineBreak() const
{
    return separator.isEmpty() ? u"\n"_s : separator;
}

void KelLargeTextPrivate::setLineBreak(const QString &lineBreak)
{
    if (separator == lineBreak)
        return;
    separator = lineBreak;
    if (!text.isEmpty())
        resetStaticTexts();
}

void KelLargeTextPrivate::draw(QPainter &painter, const QColor &color, Places &places)
{
    painter.setPen(color);
    painter.setFont(font);
    const int bottom = viewportHeight();
    if (places.heights.empty()) {
        places.first = m_rounded.countWithin(offset);
        places.top = m_rounded.sum(places.first) - offset;
    }
    const qsizetype first = places.first;
    qint64 y = places.top;
    qsizetype index = first;
    for (; index < count() && y < bottom; ++index) {
        const Piece &piece = pieces[size_t(index)];
        const auto place = size_t(index - first);
        if (place == places.heights.size())
            places.heights.push_back(rounded(piece.height));
        if (piece.size > 0) {
            QStaticText &drawn = staticText(index);
            painter.drawStaticText(QPointF(0, double(y)), drawn);
            // It has taken the painter's font.
            setHeight(index, drawn.size().height());
        }
        y += places.heights[place];
    }
    const qsizetype kept = 3 * (index - first);
    forgetAllBut(first - kept, index + kept);
}

QStaticText &KelLargeTextPrivate::staticText(qsizetype index)
{
    const auto [found, isNew] = staticTexts.try_emplace(index);
    if (isNew) {
        const Piece &piece = pieces[size_t(index)];
        found->second.setText(textOf(piece).toString());
        if (piece.isPrepared)
            prepareText(found->second, piece.width);
    }
    return found->second;
}

void KelLargeTextPrivate::forgetAllBut(qsizetype first, qsizetype end)
{
    staticTexts.erase(staticTexts.begin(), staticTexts.lower_bound(first));
    staticTexts.erase(staticTexts.lower_bound(end), staticTexts.end());
}

KelLargeText::KelLargeText(QQuickItem *parent)
    : QQuickPaintedItem(parent)
    , d(new KelLargeTextPrivate(this))
{
    if (qGuiApp)
        connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, this, [this] { d->measureAnew(); });
}

KelLargeText::~KelLargeText()
{
    delete d;
}

QString KelLargeText::text() const
{
    return d->text;
}

void KelLargeText::setText(const QString &text)
{
    if (d->text == text)
        return;
    // Deliberately without signals for what this resets.
    d->invalidate();
    d->text = text;
    d->resetStaticTexts();
    update();
    Q_EMIT textChanged(d->text);
}

QColor KelLargeText::color() const
{
    return d->color;
}

void KelLargeText::setColor(const QColor &color)
{
    if (d->color == color)
        return;
    // Deliberately no repaint: the colour is seen at the next one from another cause.
    d->color = color;
    Q_EMIT colorChanged(color);
}

QFont KelLargeText::font() const
{
    return d->font;
}

void KelLargeText::setFont(const QFont &font)
{
    if (d->font == font)
        return;
    // Deliberately nothing is prepared again.
    d->font = font;
    update();
    Q_EMIT fontChanged(font);
}

int KelLargeText::offset() const
{
    return d->offset;
}

void KelLargeText::setOffset(int offset)
{
    const double height = d->viewportHeight();
    const int limit = saturated(d->contentHeight() - height + height * d->scrollStep);
    const int newOffset = std::clamp(offset, 0, std::max(limit, 0));
    if (d->offset == newOffset)
        return;
    d->offset = newOffset;
    update();
    Q_EMIT offsetChanged(newOffset);
}

double KelLargeText::scrollStep() const
{
    return d->scrollStep;
}

void KelLargeText::setScrollStep(double step)
{
    if (qFuzzyCompare(d->scrollStep, step))
        return;
    // Deliberately the offset keeps to the limit of the step before.
    d->scrollStep = step;
    Q_EMIT scrollStepChanged(step);
}

int KelLargeText::scrollMaximum() const
{
    return d->scrollMaximum;
}

void KelLargeText::setScrollMaximum(int maximum)
{
    if (d->scrollMaximum == maximum)
        return;
    d->scrollMaximum = maximum;
    Q_EMIT scrollMaximumChanged(maximum);
}

void KelLargeText::setScrollMaximum(double maximum)
{
    setScrollMaximum(saturated(maximum));
}

void KelLargeText::scrollToDirection(int direction)
{
    const qint64 step = saturated(d->viewportHeight() * d->scrollStep);
    if (direction == KelGlobal::ScrollDown)
        setOffset(saturated(d->offset + step));
    else if (direction == KelGlobal::ScrollUp)
        setOffset(saturated(d->offset - step));
}

void KelLargeText::paint(QPainter *painter)
{
    KelLargeTextPrivate::Places places;
    d->draw(*painter, d->color, places);
}

QSGNode *KelLargeText::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data)
{
    QSGNode *node = oldNode;
    // Painters draw the lines under, through and over a static text in the wrong place unless its coordinates
    // are the device's.
    const bool isDecorated = d->font.underline() || d->font.strikeOut() || d->font.overline();
    // Without the limit for pictures an item as high as its text would paint all of it.
    if (KelPicture::canKeep(*this)) {
        // The frame is painted later than this, and in parts where something else repaints: all alike.
        const auto paint = [item = QPointer(this), color = d->color, places = KelLargeTextPrivate::Places()](
                               QPainter &painter) mutable {
            if (item)
                item->d->draw(painter, color, places);
        };
        // A thread that renders would read the item while its own thread changes it.
        const bool isPaintedHere = thread() == QThread::currentThread() && !isDecorated;
        if (KelFrameNode::update(node, *this, isPaintedHere ? KelFrameNode::Paint(paint) : nullptr))
            return node;
        return QQuickPaintedItem::updatePaintNode(node, data);
    }
    delete node;
    releaseResources();
    return nullptr;
}

void KelLargeText::startPreparingTextFrom(int index)
{
    if (index < 0 || index >= d->count())
        return;
    d->prepare(index);
    update();
    if (index + 1 < d->count()) {
        QMetaObject::invokeMethod(this, "startPreparingTextFrom", Qt::QueuedConnection, index + 1);
    } else {
        d->allPrepared = true;
        d->publishScrollMaximum();
    }
    if (d->viewportFilled)
        return;
    d->viewportFilled = d->fillsViewport(index);
    if (d->viewportFilled || d->allPrepared)
        d->publishScrollMaximum();
}
