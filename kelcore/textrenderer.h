// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QMargins>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QFont>

#include <limits>
#include <memory>

#include "kelcore/kelcore_export.h"

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace kelcore {

/*!
    Lays out and draws a label: plain text in one font, broken into lines.

    Set what is to be shown, call relayout(), then ask for boundingSize() and draw(). Setters only store;
    size and picture are those of the last relayout(). Sizes are logical pixels.

    Lines
    - Text is plain: "<b>" is shown as typed.
    - Lines end where Unicode says they must: at "\n", "\r\n", "\r", VT, FF, NEL, U+2028 and U+2029. All but
      U+2028 also end a paragraph. Each paragraph has its own direction, that of its first letter.
    - Longer lines break between words by the Unicode rules; a word wider than the line breaks anywhere
      between characters. Spaces at a break take no room.
    - Lines are as high as their fonts ask for, rounded up to whole pixels.

    What is cut
    - Where text other than spaces remains after the last allowed line, that line is cut between characters
      to end in "…" within the text width, and the block is exactly as wide as the text width. In a
      right-to-left paragraph "…" stands at the left. Where not even "…" fits, the line is empty.
    - A label holds at most 262144 pixels in width without a text width, and as many in height; what lies
      beyond is cut in the same way. Nothing is shown beyond 1048576 characters. This bounds time and memory
      for text of any length: no more of it is looked at than can be shown.

    Size
    - The block is the smallest whole number of pixels that holds the lines, at most the text width.
      Laying it out again at exactly this width gives the same lines and the same size. Empty text has no
      lines: 0 × 0.
    - Tabs are as wide as spaces. Spaces at the end of the text count where they fit.

    Alignment
    - Horizontal, within the text width, without one within the widest line: centre wins over right, right
      over justify, justify over left. Qt::AlignJustify stretches all lines but the last of a paragraph.
      As everywhere in Qt, left and right are swapped in right-to-left paragraphs unless
      Qt::AlignAbsolute is set.
    - Vertical, within the available height, without one within the area that the painter shows: centre
      wins over bottom, bottom over top. A block higher than that starts at its top.

    Copies share what is drawn; a copy can be drawn in another thread while the original is changed. A thread
    shapes what it draws itself, as glyphs are of no use to another or after its end.
*/
class KELCORE_EXPORT TextRenderer
{
public:
    TextRenderer();
    TextRenderer(const TextRenderer &other);
    TextRenderer &operator=(const TextRenderer &other);
    ~TextRenderer();

    //! The string to show. NUL and lone surrogates are shown as the font shows them.
    QString text() const;
    void setText(const QString &text);

    QFont textFont() const;
    void setTextFont(const QFont &font);

    //! Horizontal (0x1F) and vertical (0x1E0) flags in one value, kept as given. Initially none.
    Qt::Alignment textAlignment() const;
    void setTextAlignment(Qt::Alignment alignment);

    //! The most lines; 0 or less means no limit, as does the initial 2147483647.
    int maxLineCount() const;
    void setMaxLineCount(int count);

    //! The width in which lines are broken; 0 or less means no limit, as does the initial 2147483647.
    int textWidth() const;
    void setTextWidth(int width);

    //! The height for vertical alignment; 0 or less (initially 0) means the area that the painter shows.
    void setAvailableHeight(int height);

    //! Lays the text out with the current settings. Nothing is shaped again unless text or font changed, or
    //! fonts were added to the application or removed.
    void relayout();

    //! Size of the laid-out lines, with the margins added; saturates at the limits of int.
    QSize boundingSize(const QMargins &margins) const;

    /*!
        Draws the laid-out lines at the painter's origin with its pen. Without an available height, the area
        is the painter's window where it has a view transform, else its clip, else its device.
    */
    void draw(QPainter &painter) const;

private:
    struct Kept;
    struct Label;
    struct Layout;
    struct Picture;

    //! What the last relayout was given, and what came of it.
    struct Fit
    {
        //! Never beyond what a label holds.
        int width = 0;
        int maxLines = 0;
        int availableHeight = 0;
        Qt::Alignment alignment;

        size_t lineCount = 0;
        int widestLine = 0;
        int height = 0;
        //! The block takes all of the width.
        bool isFilled = false;
        //! No line was broken or cut for want of room.
        bool isNatural = false;
        bool isLeftToRight = true;

        bool hasSameLines(const Fit &other) const;
        bool hasSamePlaces(const Fit &other) const;
        int top(const QPainter &painter) const;
    };

    void makePicture() const;

    static constexpr int unlimited = std::numeric_limits<int>::max();

    QString m_text;
    QFont m_font;
    Qt::Alignment m_alignment;
    int m_maxLineCount = unlimited;
    int m_textWidth = unlimited;
    int m_availableHeight = 0;
    bool m_isShaped = false;
    int m_fontChanges = 0;
    Fit m_fit;
    // The shaped text, to break lines again; absent in copies, before the first relayout and once it was
    // drawn.
    mutable std::unique_ptr<Layout> m_layout;
    // The same label elsewhere, which may have been drawn already; absent where nothing is kept.
    mutable std::shared_ptr<Label> m_label;
    // What draw() shows, made from the lines when first asked for.
    mutable std::shared_ptr<const Picture> m_picture;
};

} // namespace kelcore
