// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QStaticText>

#include <array>
#include <map>
#include <optional>
#include <vector>

class KelLargeText;
class QPainter;

//! Numbers in a row whose sums are found and changed in logarithmic time: a Fenwick tree.
class KelRunningSums
{
public:
    void clear() { m_sums.clear(); }
    void append(qint64 value);
    void add(qsizetype index, qint64 difference);
    //! The sum of the first numbers.
    qint64 sum(qsizetype count) const;
    //! How many of the first numbers, none of which is negative, make up no more than the limit.
    qsizetype countWithin(qint64 limit) const;

private:
    std::vector<qint64> m_sums;
};

/*!
    What tells, for one font, that a text is a single line of the usual height, without laying it out: each
    character is as high as an empty line, and the sum of their advances leaves room in the width.
*/
class KelLineMetrics
{
public:
    explicit KelLineMetrics(const QFont &font);

    QFont font() const { return m_font; }
    double lineHeight() const { return m_lineHeight; }
    //! Whether a text is known to stand on one line of the usual height. A negative width is no limit.
    bool fits(QStringView text, double width);
    //! The same without a limit, for the commonest of letters and signs: found out much faster.
    bool isPlainLine(QStringView text);

private:
    bool hasPlainText() const;
    double advance(QStringView text);
    float measured(QChar character) const;
    bool isUsual(const QString &text) const;

    QFont m_font;
    //! Ascent, descent and leading.
    std::array<double, 3> m_emptyLine{};
    double m_lineHeight = 0;
    double m_kerning = 0;
    //! Found out when first asked for.
    std::optional<bool> m_hasPlainText;
    //! Letters of different scripts, as high as an empty line.
    QString m_neighbors;
    std::vector<float> m_advances;
};

//! What a KelLargeText holds.
class KelLargeTextPrivate
{
public:
    //! A range of the text, and how it is laid out.
    struct Piece
    {
        qsizetype start = 0;
        qsizetype size = 0;
        double height = 0;
        int width = -1;
        bool isPrepared = false;
    };

    //! Where pieces were drawn. Drawing may change their heights, for the next repaint only.
    struct Places
    {
        qsizetype first = 0;
        qint64 top = 0;
        std::vector<int> heights;
    };

    explicit KelLargeTextPrivate(KelLargeText *item);
    static KelLargeTextPrivate *get(KelLargeText *item);

    void invalidate();
    void measureAnew();
    void resetStaticTexts();
    static void prepareText(QStaticText &piece, int width);
    int contentHeight() const;
    int viewportHeight() const;
    QString lineBreak() const;
    void setLineBreak(const QString &lineBreak);

    qsizetype count() const { return qsizetype(pieces.size()); }
    void prepare(qsizetype index);
    //! Whether the pieces up to this one reach the bottom of the item.
    bool fillsViewport(qsizetype index) const;
    void publishScrollMaximum() const;
    //! Fills empty places, and keeps to others.
    void draw(QPainter &painter, const QColor &color, Places &places);

    KelLargeText *const q;
    QString text;
    QColor color;
    QFont font;
    int offset = 0;
    double scrollStep = 0.3;
    int scrollMaximum = 0;
    std::vector<Piece> pieces;
    //! The pieces in view and those within some screens, as they were drawn.
    std::map<qsizetype, QStaticText> staticTexts;
    //! Empty stands for "\n".
    QString separator;
    bool allPrepared = false;
    bool viewportFilled = false;

private:
    QStringView textOf(const Piece &piece) const;
    double unpreparedHeight(QStringView line);
    double preparedHeight(QStringView line, int width);
    void append(qsizetype start, qsizetype end);
    void setHeight(qsizetype index, double height);
    QStaticText &staticText(qsizetype index);
    void forgetAllBut(qsizetype first, qsizetype end);

    //! Painting and filling round each height, the height of the whole truncates it.
    KelRunningSums m_rounded;
    qint64 m_truncated = 0;
    //! Pieces have the application's font until they are prepared, or painted before.
    KelLineMetrics m_unpreparedMetrics;
    KelLineMetrics m_preparedMetrics;
};
