// SPDX-License-Identifier: MIT
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtGui/QPainter>
#include <QtGui/QStaticText>
#include <QtQuick/QQuickPaintedItem>

#include <algorithm>
#include <cmath>
#include <limits>

#include "kelframenode_p.h"
#include "measure.h"
#include "scene.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kilobyte = 1024;
constexpr qsizetype megabyte = 1024 * kilobyte;
constexpr int pixelSize = 28;
constexpr QSize viewSize{1280, 720};
constexpr int step = viewSize.height() * 3 / 10;
constexpr int walkSteps = 20;

const QByteArray ourText = "K.LargeText { width: 1280; height: 720; font.pixelSize: 28 }";
const QByteArray theirText = R"(
    Text {
        width: 1280; height: 720; font.pixelSize: 28; wrapMode: Text.WordWrap; textFormat: Text.PlainText
        clip: true
    }
)";
const QByteArray listView = R"(
    ListView {
        width: 1280; height: 720
        delegate: Text {
            required property string modelData

            width: ListView.view.width; font.pixelSize: 28; wrapMode: Text.WordWrap; textFormat: Text.PlainText
            text: modelData
        }
    }
)";

//! A book of so many characters, with lines of 5 to 75 characters and a longer one now and then.
QString book(qsizetype bytes)
{
    static const QString words =
        u"Хорошее кино каждый день, a good film for every evening. "_s.repeated(4).trimmed();
    QString text;
    text.reserve(bytes);
    for (qsizetype line = 0; text.size() < bytes; ++line) {
        text += QStringView(words).left(line % 20 == 0 ? words.size() : 5 + line * 37 % 71);
        text += u'\n';
    }
    return text.left(bytes);
}

QString sizeOf(qsizetype bytes)
{
    return bytes < megabyte ? u"%1 kB"_s.arg(bytes / kilobyte) : u"%1 MB"_s.arg(bytes / megabyte);
}

//! A pass of the event loop prepares a line. What others have posted counts little: it comes with every
//! hundredth.
void pass(QQuickItem *item, qsizetype index)
{
    if (index % 100 == 0)
        QCoreApplication::sendPostedEvents();
    else
        QCoreApplication::sendPostedEvents(item, QEvent::MetaCall);
}

//! What a reader of a text shows, and a step there and back as one that waits for its key would see it.
class Reader
{
public:
    Reader(const QByteArray &source, const char *content, const char *position)
        : m_item(m_scene.create(source))
        , m_content(m_item.get(), content)
        , m_position(m_item.get(), position)
    {
    }

    void show(const QVariant &content)
    {
        m_content.write(content);
        m_scene.renderFrame();
    }

    void prepare(qsizetype lineCount)
    {
        for (qsizetype i = 0; i < lineCount; ++i)
            pass(m_item.get(), i);
        m_scene.renderFrame();
    }

    void moveTo(double position)
    {
        m_from = position;
        m_position.write(position);
        m_scene.renderFrame();
    }

    void stepThereAndBack()
    {
        m_position.write(m_from + step);
        m_scene.renderFrame();
        m_position.write(m_from);
        m_scene.renderFrame();
    }

    //! Down by some steps, and back to where it began, which another could do as well.
    void walk()
    {
        for (int i = 1; i <= walkSteps; ++i) {
            m_position.write(m_from + i * step);
            m_scene.renderFrame();
        }
        m_position.write(m_from);
        m_scene.renderFrame();
    }

    QQuickItem *item() { return m_item.get(); }
    Scene &scene() { return m_scene; }

private:
    Scene m_scene;
    std::unique_ptr<QQuickItem> m_item;
    Property m_content;
    Property m_position;
    double m_from = 0;
};

//! The item with a text that is prepared.
class OurReader : public Reader
{
public:
    explicit OurReader(qsizetype bytes)
        : Reader(ourText, "text", "offset")
    {
        const QString text = book(bytes);
        show(text);
        prepare(text.count(u'\n') + 1);
        m_end = Property(item(), "scrollMaximum").read().toDouble();
    }

    //! At a share of the text, where there is a step to go.
    void moveToShare(double share) { moveTo(std::floor((m_end - walkSteps * step) * share)); }

private:
    double m_end = 0;
};

class TheirReader : public Reader
{
public:
    explicit TheirReader(qsizetype bytes)
        : Reader(listView, "model", "contentY")
    {
        show(book(bytes).split(u'\n'));
    }
};

//! The work that cannot be avoided: the lines in view, all prepared, straight into the frame.
class VisibleLines : public QQuickPaintedItem
{
public:
    VisibleLines()
    {
        setSize(viewSize);
        QFont font;
        font.setPixelSize(pixelSize);
        const QStringList lines = book(100 * kilobyte).split(u'\n');
        double height = 0;
        for (qsizetype i = 0; height < viewSize.height() + step; ++i) {
            QStaticText line(lines[i]);
            line.setTextFormat(Qt::PlainText);
            line.setTextWidth(viewSize.width());
            line.prepare({}, font);
            height += line.size().height();
            m_lines.append(line);
        }
        m_font = font;
    }

    void moveTo(int offset)
    {
        m_offset = offset;
        update();
    }

    void paint(QPainter *painter) override
    {
        painter->setPen(Qt::black);
        painter->setFont(m_font);
        double y = -m_offset;
        for (const QStaticText &line : std::as_const(m_lines)) {
            const double height = line.size().height();
            if (y >= viewSize.height())
                break;
            if (y + height > 0)
                painter->drawStaticText(QPointF(0, y), line);
            y += height;
        }
    }

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *) override
    {
        KelFrameNode::update(oldNode, *this, [this](QPainter &painter) { paint(&painter); });
        return oldNode;
    }

private:
    QFont m_font;
    QList<QStaticText> m_lines;
    int m_offset = 0;
};

struct Place
{
    QString name;
    double share;
};

const QList<Place> places{{u"top"_s, 0}, {u"middle"_s, 0.5}, {u"end"_s, 1}};

void measureStep(Table &table)
{
    const auto name = [](const Place &place) {
        return u"large text, step at the %1, 1 MB against ListView"_s.arg(place.name);
    };
    const auto isWanted = [&](const Place &place) { return table.wants(name(place)); };
    if (std::none_of(places.begin(), places.end(), isWanted))
        return;
    OurReader our(megabyte);
    TheirReader their(megabyte);
    for (const Place &place : places) {
        if (!isWanted(place))
            continue;
        our.moveToShare(place.share);
        their.moveTo(our.item()->property("offset").toDouble());
        Row row = timed(name(place), 0.7, [&] { our.walk(); }, [&] { their.walk(); }, 20);
        row.ours /= walkSteps;
        row.theirs /= walkSteps;
        table.add(row);
    }
}

void measureGrowth(Table &table)
{
    const auto name = [](const Place &place) {
        return u"large text, step at the %1, growth exponent, 20 kB to 10 MB"_s.arg(place.name);
    };
    const auto isWanted = [&](const Place &place) { return table.wants(name(place)); };
    if (std::none_of(places.begin(), places.end(), isWanted))
        return;
    OurReader large(10 * megabyte);
    OurReader small(20 * kilobyte);
    for (const Place &place : places) {
        if (!isWanted(place))
            continue;
        large.moveToShare(place.share);
        small.moveToShare(place.share);
        Row row = timed(name(place), 0.05, [&] { large.walk(); }, [&] { small.walk(); }, 20);
        row.ours /= walkSteps;
        row.theirs /= walkSteps;
        row.ratio = std::log(row.ratio) / std::log(512.0);
        table.add(row);
    }
}

void measureFloor(Table &table)
{
    const QString name = u"large text, step, against painting its visible lines alone"_s;
    if (!table.wants(name))
        return;
    OurReader our(megabyte);
    Scene scene;
    const auto window = scene.create("Item { width: 1280; height: 720 }");
    VisibleLines lines;
    lines.setParentItem(window.get());
    table.add(timed(
        name, 1.2, [&] { our.stepThereAndBack(); },
        [&] {
            lines.moveTo(step);
            scene.renderFrame();
            lines.moveTo(0);
            scene.renderFrame();
        }));
}

double elapsed(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1000;
}

//! The longest of all passes, and their sum. Of each the shortest of a few runs counts: the undisturbed one.
struct Passes
{
    double longest = 0;
    double sum = 0;
};

Passes timePasses(const QString &text)
{
    constexpr int runs = 3;
    // What earlier rows have left to be deleted would be looked at in each pass.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const qsizetype count = text.count(u'\n') + 1;
    std::vector<double> shortest(size_t(count), std::numeric_limits<double>::max());
    for (int run = 0; run < runs; ++run) {
        Reader reader(ourText, "text", "offset");
        for (double &time : shortest) {
            QElapsedTimer timer;
            timer.start();
            if (&time == &shortest.front())
                reader.show(text);
            else
                pass(reader.item(), &time - shortest.data());
            time = std::min(time, elapsed(timer));
        }
    }
    Passes passes;
    for (const double time : shortest) {
        passes.longest = std::max(passes.longest, time);
        passes.sum += time;
    }
    return passes;
}

//! The time in which a content is made and shown.
double shortestToShow(const QByteArray &source, const char *content, const char *position,
    const std::function<QVariant()> &make, int runs)
{
    double shortest = std::numeric_limits<double>::max();
    for (int run = 0; run < runs; ++run) {
        Reader reader(source, content, position);
        QElapsedTimer timer;
        timer.start();
        reader.show(make());
        shortest = std::min(shortest, elapsed(timer));
    }
    return shortest;
}

void addRatio(
    Table &table, const QString &name, double ours, double theirs, double goal, const QString &unit = u"us"_s)
{
    table.add({name, unit, ours, theirs, ours / theirs, goal});
}

void measurePasses(Table &table, qsizetype bytes)
{
    const QString stay = u"large text, longest pass, %1 against "_s.arg(sizeOf(bytes));
    const QString whole = u"large text, whole preparation, %1 against Text"_s.arg(sizeOf(bytes));
    const bool wantsList = table.wants(stay + u"ListView"_s);
    const bool wantsText = table.wants(stay + u"Text"_s);
    const bool wantsWhole = bytes == megabyte && table.wants(whole);
    if (!wantsList && !wantsText && !wantsWhole)
        return;
    const QString text = book(bytes);
    const Passes ours = timePasses(text);
    if (wantsList) {
        // The list wants its lines one by one.
        const double theirs =
            shortestToShow(listView, "model", "contentY", [&] { return text.split(u'\n'); }, 3);
        addRatio(table, stay + u"ListView"_s, ours.longest, theirs, 1);
    }
    if (wantsText || wantsWhole) {
        const double theirs =
            shortestToShow(theirText, "text", "y", [&] { return QVariant(text); }, bytes > megabyte ? 1 : 3);
        if (wantsText)
            addRatio(table, stay + u"Text"_s, ours.longest, theirs, 0.02);
        if (wantsWhole)
            addRatio(table, whole, ours.sum, theirs, 0.65);
    }
}

void measureHeap(Table &table)
{
    const QString name = u"large text, heap of 1 MB, prepared and shown"_s;
    if (!table.wants(name))
        return;
    const QString text = book(megabyte);
    const auto heap = [&](const QByteArray &source, const char *position) {
        Reader reader(source, "text", position);
        // Fills the caches that outlive a text.
        reader.show(book(10 * kilobyte));
        reader.prepare(1000);
        const double before = heapInUse();
        reader.show(text);
        reader.prepare(text.count(u'\n') + 1);
        return (heapInUse() - before) / double(kilobyte);
    };
    const double ours = heap(ourText, "offset");
    addRatio(table, name, ours, heap(theirText, "y"), 0.1, u"kB"_s);
}

} // namespace

void measureLargeText(Table &table)
{
    measureStep(table);
    measureGrowth(table);
    measureFloor(table);
    measurePasses(table, megabyte);
    measurePasses(table, 10 * megabyte);
    measureHeap(table);
}
