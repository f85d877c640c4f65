// SPDX-License-Identifier: MIT
#include "kelcore/textrenderer.h"

#include <QtCore/QCache>
#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtGui/QGlyphRun>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QRawFont>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace kelcore {

namespace {

//! The widest line and the highest block, in pixels; far beyond any screen, far below any memory.
constexpr int maximumExtent = 1 << 18;
//! Characters looked at, for text of which any number fits: without width, or spaces at the end of a line.
constexpr qsizetype maximumSize = 1 << 20;
//! Characters first shaped of a long paragraph: enough to fill the few lines of a usual label.
constexpr qsizetype firstChunk = 256;
//! Characters shaped at a time where a paragraph has many lines: the text engine looks at all of a long word
//! for each line of it.
constexpr qsizetype fullChunk = 4096;
//! Characters that must follow a line for its end to be certain, so that a word is not cut where shaping
//! stopped.
constexpr qsizetype lookahead = 64;

bool endsParagraph(QChar character)
{
    switch (character.unicode()) {
    case '\n':
    case '\v':
    case '\f':
    case '\r':
    case 0x85:
    case QChar::ParagraphSeparator:
        return true;
    default:
        return false;
    }
}

bool isVisible(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) { return !character.isSpace(); });
}

int saturated(qint64 value)
{
    return int(std::clamp<qint64>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

//! The height of what the painter shows, in its own coordinates.
int shownHeight(const QPainter &painter)
{
    if (painter.viewTransformEnabled())
        return painter.window().height();
    if (painter.hasClipping())
        return int(painter.clipBoundingRect().height());
    const QPaintDevice *device = painter.device();
    const QRectF area(0, 0, device->width(), device->height());
    return int(painter.deviceTransform().inverted().mapRect(area).height());
}

//! The thread that shaped a text. Its glyphs are good for this thread alone, and die with it.
class Shaper
{
public:
    bool isHere() const { return !m_thread.owner_before(here()) && !here().owner_before(m_thread); }

private:
    static const std::shared_ptr<char> &here()
    {
        thread_local const auto mark = std::make_shared<char>();
        return mark;
    }

    // Known from a later thread even where that has the same address.
    std::weak_ptr<char> m_thread = here();
};

//! "…", shaped in a font.
struct Ellipsis
{
    QList<QGlyphRun> runs;
    qreal width = 0;
    qreal ascent = 0;

    explicit Ellipsis(const QFont &font)
    {
        QTextLayout layout(u"…"_s, font);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(maximumExtent);
        layout.endLayout();
        runs = line.glyphRuns();
        width = line.naturalTextWidth();
        ascent = line.ascent();
    }
};

//! A paragraph, or the next lines of one, shaped as far as it has been needed.
struct Paragraph
{
    qsizetype begin = 0;
    //! Auto at the beginning of a paragraph.
    Qt::LayoutDirection direction = Qt::LayoutDirectionAuto;
    //! Where the shaped characters end in the whole text.
    qsizetype end = 0;
    //! Where the next paragraph begins; -1 if this is the last. Unknown while not whole.
    qsizetype next = -1;
    bool isWhole = false;
    //! What follows is more lines of the same paragraph.
    bool isSplit = false;
    //! The layout is never ended while its glyphs are good, as that would throw them away.
    enum class Glyphs { None, Shaped, Spoiled } glyphs = Glyphs::None;
    QTextLayout layout;

    Paragraph(const QString &text, const QFont &font, qsizetype from, Qt::LayoutDirection direction)
        : begin(from)
        , direction(direction)
    {
        layout.setFont(font);
        extend(text, firstChunk);
    }

    qsizetype size() const { return end - begin; }

    void extend(const QString &text, qsizetype wanted)
    {
        const qsizetype last = std::min(text.size(), maximumSize);
        const qsizetype stop = std::min(begin + wanted, last);
        end = std::find_if(text.begin() + begin, text.begin() + stop, endsParagraph) - text.begin();
        next = -1;
        isWhole = end < stop || stop == last;
        if (end < stop) {
            const bool isPair = text.at(end) == u'\r' && end + 1 < text.size() && text.at(end + 1) == u'\n';
            next = end + (isPair ? 2 : 1);
            if (next > last)
                next = -1;
        } else if (!isWhole && text.at(end - 1).isHighSurrogate()) {
            --end;
        }
        // The width of a tab would depend on where it stands.
        layout.setText(text.mid(begin, size()).replace(u'\t', u' '));
        glyphs = Glyphs::None;
    }

    //! Begins the lines anew, without shaping the text again where that can be.
    void clearLines()
    {
        if (glyphs == Glyphs::Shaped) {
            layout.clearLayout();
        } else {
            if (glyphs == Glyphs::Spoiled)
                layout.endLayout();
            layout.beginLayout();
        }
        // A line that ends in a soft hyphen changes its glyph for good.
        glyphs = layout.text().contains(QChar::SoftHyphen) ? Glyphs::Spoiled : Glyphs::Shaped;
    }

    bool isRightToLeft() const
    {
        if (direction == Qt::LayoutDirectionAuto)
            return layout.text().isRightToLeft();
        return direction == Qt::RightToLeft;
    }
};

//! A line within its paragraph; widths are those of its text, without the room for "…".
struct Line
{
    Paragraph *paragraph;
    int index;
    int y;
    int length = 0;
    qreal advance = 0;
    //! The advance, and what the last letter reaches beyond it.
    qreal extent = 0;
    //! It ends where it was full, not where its text says so.
    bool isFull = false;
    //! Spaces at the end of a text count where they fit, and take no room where they do not.
    bool endsInSpace = false;

    QTextLine textLine() const { return paragraph->layout.lineAt(index); }

    void measure()
    {
        const QTextLine line = textLine();
        length = line.textLength();
        advance = line.horizontalAdvance();
        extent = line.naturalTextWidth();
        const int end = line.textStart() + length;
        const QString text = paragraph->layout.text();
        isFull = end < text.size() && text.at(end - 1) != QChar::LineSeparator;
        endsInSpace = length > 0 && text.at(end - 1).isSpace();
    }
};

} // namespace

struct TextRenderer::Picture
{
    struct Run
    {
        QPointF position;
        QGlyphRun glyphs;
    };

    //! What is shown, to be shaped again by another thread.
    QString text;
    QFont font;
    Shaper shaper;
    std::vector<Run> runs;
    //! Lines under, through and over the text.
    std::vector<QRect> decorations;

    void add(QPointF position, const QList<QGlyphRun> &glyphs)
    {
        for (const QGlyphRun &run : glyphs) {
            runs.push_back({position, run});
            // Painters draw the decorations of glyphs in the wrong place unless their coordinates are the
            // device's.
            runs.back().glyphs.setUnderline(false);
            runs.back().glyphs.setStrikeOut(false);
            runs.back().glyphs.setOverline(false);
        }
    }

    void decorate(const QFont &font, const QRectF &line, qreal baseline)
    {
        if (runs.empty() || !(font.underline() || font.strikeOut() || font.overline()))
            return;
        const QRawFont raw = runs.back().glyphs.rawFont();
        const auto add = [&](bool isWanted, qreal offset) {
            if (isWanted)
                decorations.emplace_back(int(line.x()), qRound(baseline + offset), qCeil(line.width()),
                    qCeil(raw.lineThickness()));
        };
        add(font.underline(), raw.underlinePosition());
        add(font.strikeOut(), raw.ascent() / -3);
        add(font.overline(), -raw.ascent());
    }
};

//! What a label came to; its picture is made by the first that is drawn.
struct TextRenderer::Label
{
    QString text;
    QFont font;
    Fit fit;
    std::shared_ptr<const Picture> picture;
};

/*!
    What is kept of shaped text. A screen has few fonts and shows the same short labels again and again, as
   the keys of a keyboard do.
*/
struct TextRenderer::Kept
{
    //! What the lines of a label and their places depend on.
    struct Key
    {
        QString text;
        QFont font;
        int width;
        int maxLines;
        Qt::Alignment alignment;

        Key(const QString &text, const QFont &font, const Fit &fit)
            : text(text)
            , font(font)
            , width(fit.width)
            , maxLines(fit.maxLines)
            , alignment(fit.alignment)
        {
        }

        bool operator==(const Key &other) const = default;

        friend size_t qHash(const Key &key, size_t seed) noexcept
        {
            return qHashMulti(seed, key.text, key.font, key.width, key.maxLines, key.alignment.toInt());
        }
    };

    static constexpr qsizetype maximumFonts = 32;
    static constexpr qsizetype maximumLabels = 512;
    //! Characters.
    static constexpr qsizetype longestLabel = 32;

    QHash<QFont, Ellipsis> ellipses;
    QCache<Key, std::shared_ptr<Label>> labels{maximumLabels};
    //! Counts the changes of the application's fonts: what was shaped before one is not shaped as it would
    //! be.
    int fontChanges = 0;

    void clear()
    {
        ellipses.clear();
        labels.clear();
    }

    //! Null where nothing is kept: glyphs belong to a thread, and only that of the application keeps them.
    static Kept *instance()
    {
        static Kept kept;
        static QPointer<QCoreApplication> application;
        if (!qApp || qApp->thread() != QThread::currentThread())
            return nullptr;
        if (application != qApp) {
            application = qApp;
            qAddPostRoutine([] { kept.clear(); });
            if (qGuiApp)
                QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp, [] {
                    kept.clear();
                    ++kept.fontChanges;
                });
        }
        return &kept;
    }

    static Ellipsis ellipsisOf(const QFont &font)
    {
        Kept *kept = instance();
        if (!kept)
            return Ellipsis(font);
        auto found = kept->ellipses.find(font);
        if (found == kept->ellipses.end()) {
            if (kept->ellipses.size() >= maximumFonts)
                kept->ellipses.clear();
            found = kept->ellipses.insert(font, Ellipsis(font));
        }
        return *found;
    }

    static std::shared_ptr<Label> find(const Key &key)
    {
        Kept *kept = key.text.size() <= longestLabel ? instance() : nullptr;
        const std::shared_ptr<Label> *found = kept ? kept->labels.object(key) : nullptr;
        return found ? *found : nullptr;
    }

    //! Null where nothing is kept.
    static std::shared_ptr<Label> keep(const Key &key, const Fit &fit)
    {
        Kept *kept = key.text.size() <= longestLabel ? instance() : nullptr;
        if (!kept)
            return nullptr;
        auto label = std::make_shared<Label>(Label{key.text, key.font, fit, nullptr});
        kept->labels.insert(key, new std::shared_ptr<Label>(label));
        return label;
    }
};

/*!
    The text shaped and broken into lines. Shaping is what costs; it is done once for a text and font, of no
    more characters than are shown, and serves every width, line limit and alignment.
*/
struct TextRenderer::Layout
{
    Layout(const QString &text, const QFont &font)
        : text(text)
        , font(font)
    {
    }

    //! Places the lines in another width, which must leave them as they are.
    void place(const Fit &fit)
    {
        width = fit.width;
        alignment = fit.alignment;
    }

    //! Breaks the text into lines. Completes the fit by what came of it.
    void breakLines(Fit &fit)
    {
        place(fit);
        maxLines = fit.maxLines;
        breakText();
        fit.lineCount = lines.size();
        fit.widestLine = widestLine;
        fit.height = height;
        fit.isFilled = hasLimit() && isFilled;
        fit.isNatural = isNatural;
        fit.isLeftToRight = std::none_of(
            lines.cbegin(), lines.cend(), [](const Line &line) { return line.paragraph->isRightToLeft(); });
    }

    std::shared_ptr<const Picture> picture() const
    {
        auto result = std::make_shared<Picture>();
        result->text = text;
        result->font = font;
        for (const Line &line : lines) {
            const bool isCut = cut && &line == &lines.back();
            addLine(line, isCut ? &*cut : nullptr, *result);
        }
        return result;
    }

    bool isBroken() const { return !lines.empty(); }

    const QString text;
    const QFont font;
    const Shaper shaper;

private:
    bool hasLimit() const { return width < maximumExtent; }
    bool isJustified() const { return hasLimit() && isJustify(alignment); }

    static bool isJustify(Qt::Alignment alignment)
    {
        return (alignment & Qt::AlignJustify) && !(alignment & (Qt::AlignHCenter | Qt::AlignRight));
    }

    void breakText()
    {
        lines.clear();
        cut.reset();
        height = 0;
        isFilled = false;
        isNatural = true;
        if (isSplit)
            paragraphs.clear();
        isSplit = false;
        qsizetype begin = text.isEmpty() ? -1 : 0;
        auto direction = Qt::LayoutDirectionAuto;
        for (size_t i = 0; begin >= 0; ++i) {
            if (i == paragraphs.size())
                paragraphs.push_back(std::make_unique<Paragraph>(text, font, begin, direction));
            Paragraph &paragraph = *paragraphs[i];
            const bool isLast = breakParagraph(paragraph);
            begin = isLast ? -1 : paragraph.next;
            direction = Qt::LayoutDirectionAuto;
            if (paragraph.isSplit)
                direction = paragraph.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
        }
        measure();
    }

    //! Adds the paragraph's lines. Returns whether the last allowed one is among them.
    bool breakParagraph(Paragraph &paragraph)
    {
        const size_t firstLine = lines.size();
        const int top = height;
        while (true) {
            setOption(paragraph, QTextOption::WrapAtWordBoundaryOrAnywhere);
            paragraph.clearLines();
            const Progress progress = addLines(paragraph);
            if (progress != Progress::NeedsMoreText)
                return progress == Progress::Full;
            if (paragraph.size() >= fullChunk && split(paragraph, firstLine))
                return false;
            lines.resize(firstLine);
            height = top;
            constexpr int growth = 4;
            paragraph.extend(text, paragraph.size() * growth);
        }
    }

    //! Leaves what follows the paragraph's certain lines to another one. Returns false where none is certain.
    bool split(Paragraph &paragraph, size_t firstLine)
    {
        const auto end = [](const Line &line) {
            const QTextLine textLine = line.textLine();
            return textLine.textStart() + textLine.textLength();
        };
        while (lines.size() > firstLine && end(lines.back()) + lookahead > paragraph.size()) {
            height = lines.back().y;
            lines.pop_back();
        }
        if (lines.size() == firstLine)
            return false;
        paragraph.next = paragraph.begin + end(lines.back());
        paragraph.isSplit = isSplit = true;
        return true;
    }

    enum class Progress { Done, Full, NeedsMoreText };

    Progress addLines(Paragraph &paragraph)
    {
        while (true) {
            QTextLine line = paragraph.layout.createLine();
            if (!line.isValid())
                return paragraph.isWhole ? Progress::Done : Progress::NeedsMoreText;
            line.setLineWidth(width);
            line.setPosition({0, qreal(height)});
            lines.push_back({&paragraph, line.lineNumber(), height});
            const int lineHeight = int(std::ceil(line.height()));
            height += lineHeight;
            if (lines.size() < size_t(maxLines) && height + lineHeight <= maximumExtent)
                continue;
            const int end = line.textStart() + line.textLength();
            isNatural = paragraph.begin + end == text.size() && !text.endsWith(QChar::LineSeparator);
            if (!paragraph.isWhole && end + lookahead > paragraph.size())
                return Progress::NeedsMoreText;
            if (isVisible(QStringView(text).mid(paragraph.begin + end)))
                cutLine(paragraph, line);
            return Progress::Full;
        }
    }

    //! Makes room for "…" at the end of the line. Too narrow a line keeps a letter, which is not shown then.
    void cutLine(Paragraph &paragraph, QTextLine &line)
    {
        cut.emplace(Kept::ellipsisOf(font));
        setOption(paragraph, QTextOption::WrapAnywhere);
        line.setLineWidth(std::max<qreal>(0, width - cut->width));
    }

    static void setOption(
        Paragraph &paragraph, QTextOption::WrapMode wrapMode, Qt::Alignment alignment = Qt::AlignLeft)
    {
        QTextOption option(alignment);
        option.setWrapMode(wrapMode);
        option.setTextDirection(paragraph.direction);
        paragraph.layout.setTextOption(option);
    }

    void measure()
    {
        qreal widest = 0;
        for (Line &line : lines) {
            line.measure();
            isNatural = isNatural && !line.isFull && !line.endsInSpace;
            isFilled = isFilled || (line.isFull && isJustified());
            widest = std::max(widest, line.extent);
        }
        if (cut) {
            isNatural = false;
            isFilled = true;
            if (!isTextShown(lines.back(), *cut))
                lines.back().advance = lines.back().extent = 0;
            widest = std::max(widest, lines.back().extent + cut->width);
        }
        widestLine = int(std::min<qreal>(std::ceil(widest), maximumExtent));
        if (!isFilled || !hasLimit())
            widen();
    }

    /*!
        Widens the block to the least width that brings the same lines again: for letters that lean over what
        follows them, the text engine asks for more room than it reports.
    */
    void widen()
    {
        constexpr int farthestLean = 64;
        const int natural = std::min(widestLine, width);
        for (int wider = natural; wider <= std::min(natural + farthestLean, width); ++wider) {
            if (breaksAlike(wider)) {
                widestLine = std::max(widestLine, wider);
                return;
            }
        }
        breaksAlike(width);
    }

    //! Breaks the text anew. Returns whether this gives the known lines; if not, they must be broken again.
    bool breaksAlike(int newWidth) const
    {
        for (auto line = lines.cbegin(); line != lines.cend();) {
            Paragraph *paragraph = line->paragraph;
            bool isAlike = true;
            setOption(*paragraph, QTextOption::WrapAtWordBoundaryOrAnywhere);
            paragraph->clearLines();
            for (; isAlike && line != lines.cend() && line->paragraph == paragraph; ++line) {
                QTextLine textLine = paragraph->layout.createLine();
                if (cut && &*line == &lines.back())
                    setOption(*paragraph, QTextOption::WrapAnywhere);
                textLine.setLineWidth(newWidth - (cut && &*line == &lines.back() ? cut->width : 0));
                textLine.setPosition({0, qreal(line->y)});
                isAlike = textLine.textLength() == line->length
                    && textLine.horizontalAdvance() == line->advance
                    && textLine.naturalTextWidth() == line->extent;
            }
            if (!isAlike)
                return false;
        }
        return true;
    }

    bool isTextShown(const Line &line, const Ellipsis &ellipsis) const
    {
        return line.extent + ellipsis.width <= width;
    }

    void addLine(const Line &line, const Ellipsis *ellipsis, Picture &picture) const
    {
        const bool isStretched = isJustified() && line.isFull;
        const bool isRightToLeft = line.paragraph->isRightToLeft();
        const qreal room = ellipsis ? ellipsis->width : 0;
        const qreal start = isStretched ? 0 : lineStart(line, room, isRightToLeft);
        const QTextLine textLine = line.textLine();
        if (line.advance > 0) {
            const auto lineAlignment = isStretched ? Qt::AlignJustify : Qt::AlignLeft;
            setOption(*line.paragraph, QTextOption::ManualWrap, lineAlignment);
            picture.add({start + (isRightToLeft ? room : 0), 0}, textLine.glyphRuns());
            // Stretching changes the glyphs for good.
            if (isStretched)
                line.paragraph->glyphs = Paragraph::Glyphs::Spoiled;
        }
        const bool isCut = ellipsis && room <= width;
        const qreal shown = isStretched ? width : line.advance + (isCut ? room : 0);
        picture.decorate(font, {start, 0, shown, 0}, textLine.y() + textLine.ascent());
        if (!isCut)
            return;
        const qreal end = isStretched ? width - room : start + line.advance;
        picture.add({isRightToLeft ? start : end, textLine.y() + textLine.ascent() - ellipsis->ascent},
            ellipsis->runs);
    }

    qreal lineStart(const Line &line, qreal room, bool isRightToLeft) const
    {
        const int area = hasLimit() ? width : widestLine;
        const qreal slack = area - line.advance - room;
        if (alignment & Qt::AlignHCenter)
            return std::floor(slack / 2);
        const bool isSwapped = isRightToLeft && !(alignment & Qt::AlignAbsolute);
        const bool isRight = bool(alignment & Qt::AlignRight) != isSwapped;
        // What the last letter reaches beyond its advance stays inside.
        return isRight ? std::floor(std::min(slack, area - line.extent - room)) : 0;
    }

    int width = 0;
    int maxLines = 0;
    Qt::Alignment alignment;
    std::vector<std::unique_ptr<Paragraph>> paragraphs;
    std::vector<Line> lines;
    //! Set where the last line is cut.
    std::optional<Ellipsis> cut;
    //! Rounded up.
    int widestLine = 0;
    int height = 0;
    //! Some paragraph is in several parts, which holds for this width only.
    bool isSplit = false;
    //! A line takes all of the width.
    bool isFilled = false;
    //! No line was broken or cut for want of room.
    bool isNatural = false;
};

TextRenderer::TextRenderer() = default;

TextRenderer::TextRenderer(const TextRenderer &other)
{
    *this = other;
}

TextRenderer &TextRenderer::operator=(const TextRenderer &other)
{
    if (this == &other)
        return *this;
    other.makePicture();
    m_fit = other.m_fit;
    m_text = other.m_text;
    m_font = other.m_font;
    m_alignment = other.m_alignment;
    m_maxLineCount = other.m_maxLineCount;
    m_textWidth = other.m_textWidth;
    m_availableHeight = other.m_availableHeight;
    m_isShaped = false;
    m_layout.reset();
    m_label.reset();
    m_picture = other.m_picture;
    return *this;
}

TextRenderer::~TextRenderer() = default;

QString TextRenderer::text() const
{
    return m_text;
}

void TextRenderer::setText(const QString &text)
{
    m_isShaped = m_isShaped && text == m_text;
    m_text = text;
}

QFont TextRenderer::textFont() const
{
    return m_font;
}

void TextRenderer::setTextFont(const QFont &font)
{
    m_isShaped = m_isShaped && font == m_font;
    m_font = font;
}

Qt::Alignment TextRenderer::textAlignment() const
{
    return m_alignment;
}

void TextRenderer::setTextAlignment(Qt::Alignment alignment)
{
    m_alignment = alignment;
}

int TextRenderer::maxLineCount() const
{
    return m_maxLineCount;
}

void TextRenderer::setMaxLineCount(int count)
{
    m_maxLineCount = count;
}

int TextRenderer::textWidth() const
{
    return m_textWidth;
}

void TextRenderer::setTextWidth(int width)
{
    m_textWidth = width;
}

void TextRenderer::setAvailableHeight(int height)
{
    m_availableHeight = height;
}

void TextRenderer::relayout()
{
    const Kept *kept = Kept::instance();
    if (kept && m_fontChanges != kept->fontChanges) {
        m_fontChanges = kept->fontChanges;
        m_isShaped = false;
    }
    Fit fit = m_fit;
    fit.width = m_textWidth > 0 ? std::min(m_textWidth, maximumExtent) : maximumExtent;
    fit.maxLines = m_maxLineCount > 0 ? m_maxLineCount : unlimited;
    fit.alignment = m_alignment;
    fit.availableHeight = m_availableHeight;
    const bool isSame = m_isShaped && m_fit.hasSameLines(fit);
    if (!isSame || !m_fit.hasSamePlaces(fit)) {
        const Kept::Key key(m_text, m_font, fit);
        const bool isLaidOut = m_isShaped && m_layout;
        m_label = isLaidOut ? nullptr : Kept::find(key);
        if (!isLaidOut)
            m_layout = m_label ? nullptr : std::make_unique<Layout>(m_text, m_font);
        if (m_label)
            fit = m_label->fit;
        else if (isSame && m_layout->isBroken())
            m_layout->place(fit);
        else
            m_layout->breakLines(fit);
        fit.availableHeight = m_availableHeight;
        m_picture = nullptr;
        if (!m_label)
            m_label = Kept::keep(key, fit);
    }
    m_isShaped = true;
    m_fit = fit;
}

QSize TextRenderer::boundingSize(const QMargins &margins) const
{
    const int width = m_fit.isFilled ? m_fit.width : std::min(m_fit.widestLine, m_fit.width);
    return {saturated(qint64(width) + margins.left() + margins.right()),
        saturated(qint64(m_fit.height) + margins.top() + margins.bottom())};
}

void TextRenderer::draw(QPainter &painter) const
{
    makePicture();
    if (!m_picture)
        return;
    const int top = m_fit.top(painter);
    for (const Picture::Run &run : m_picture->runs)
        painter.drawGlyphRun(run.position + QPointF(0, top), run.glyphs);
    for (const QRect &line : m_picture->decorations)
        painter.fillRect(line.translated(0, top), painter.pen().color());
}

void TextRenderer::makePicture() const
{
    if (m_picture && m_picture->shaper.isHere())
        return;
    const auto shapeAgain = [this](const auto &shown) {
        Layout layout(shown.text, shown.font);
        Fit fit = m_fit;
        layout.breakLines(fit);
        return layout.picture();
    };
    if (m_label && m_label->picture && m_label->picture->shaper.isHere())
        m_picture = m_label->picture;
    else if (m_layout && m_layout->shaper.isHere())
        m_picture = m_layout->picture();
    else if (m_layout)
        m_picture = shapeAgain(*m_layout);
    else if (m_label)
        m_picture = shapeAgain(*m_label);
    else if (m_picture)
        m_picture = shapeAgain(*m_picture);
    if (m_label && Kept::instance())
        m_label->picture = m_picture;
    // What is shown seldom changes its lines afterwards; shaping it again then costs less than keeping it.
    m_layout.reset();
    m_label.reset();
}

bool TextRenderer::Fit::hasSameLines(const Fit &other) const
{
    return isNatural && lineCount <= size_t(other.maxLines) && widestLine <= other.width
        && !((alignment | other.alignment) & Qt::AlignJustify);
}

bool TextRenderer::Fit::hasSamePlaces(const Fit &other) const
{
    constexpr auto horizontal = Qt::AlignHorizontal_Mask;
    constexpr auto moving = Qt::AlignHCenter | Qt::AlignRight;
    if (isLeftToRight && !((alignment | other.alignment) & moving))
        return true;
    return width == other.width && (alignment & horizontal) == (other.alignment & horizontal);
}

int TextRenderer::Fit::top(const QPainter &painter) const
{
    if (!(alignment & (Qt::AlignVCenter | Qt::AlignBottom)))
        return 0;
    const bool isKnown = availableHeight > 0 && availableHeight < maximumExtent;
    const int room = std::max(0, (isKnown ? availableHeight : shownHeight(painter)) - height);
    return alignment & Qt::AlignVCenter ? room / 2 : room;
}

} // namespace kelcore
