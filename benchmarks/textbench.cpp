// SPDX-License-Identifier: MIT
#include <QtGui/QFont>

#include <cmath>
#include <limits>

#include "measure.h"
#include "scene.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray ourLabel = "K.Text { width: 500; font.pixelSize: 28 }";
const QByteArray theirLabel =
    "Text { width: 500; font.pixelSize: 28; elide: Text.ElideRight; textFormat: Text.PlainText }";

QString longText(qsizetype size)
{
    const QString words = u"Хорошее кино каждый день, a good film for every evening. "_s;
    return words.repeated(size / words.size() + 1).left(size);
}

//! Two texts in turn, so that each write is a change.
class Alternating
{
public:
    Alternating(const QString &first, const QString &second)
        : m_first(first)
        , m_second(second)
    {
    }

    QVariant next()
    {
        m_turn = !m_turn;
        return m_turn ? m_second : m_first;
    }

private:
    QVariant m_first;
    QVariant m_second;
    bool m_turn = false;
};

Alternating titles()
{
    return {u"Хорошее кино каждый вечер"_s, u"A good film every day"_s};
}

void measureTitle(Table &table)
{
    const QString name = u"text, title set, to the finished frame"_s;
    if (!table.wants(name))
        return;
    Scene ourScene;
    Scene theirScene;
    const auto our = ourScene.create(ourLabel);
    const auto their = theirScene.create(theirLabel);
    our->setHeight(40);
    their->setHeight(40);
    const Property ourText(our.get(), "text");
    const Property theirText(their.get(), "text");
    Alternating ourTitles = titles();
    Alternating theirTitles = titles();
    table.add(timed(
        name, 0.95,
        [&] {
            ourText.write(ourTitles.next());
            ourScene.renderFrame();
        },
        [&] {
            theirText.write(theirTitles.next());
            theirScene.renderFrame();
        }));
}

//! What a button does with its title: find its natural width, then give it what room there is.
void measureClamping(Table &table, double room, const QString &what)
{
    const QString name = u"text, measured and clamped, %1"_s.arg(what);
    if (!table.wants(name))
        return;
    Scene scene;
    const auto our = scene.create(ourLabel);
    const auto their = scene.create(theirLabel);
    const Property ourText(our.get(), "text");
    const Property ourWidth(our.get(), "textWidth");
    const Property theirText(their.get(), "text");
    const Property theirWidth(their.get(), "width");
    Property(our.get(), "maximumLineCount").write(1);
    Alternating ourTitles = titles();
    Alternating theirTitles = titles();
    table.add(timed(
        name, 0.8,
        [&] {
            ourText.write(ourTitles.next());
            ourWidth.write(std::numeric_limits<double>::max());
            ourWidth.write(std::min(room, our->implicitWidth()));
        },
        [&] {
            theirText.write(theirTitles.next());
            theirWidth.reset();
            theirWidth.write(std::min(room, their->implicitWidth()));
        }));
}

void measureLong(Table &table, int lines)
{
    const QString name = u"text, 1 MB on %1 lines"_s.arg(lines);
    if (!table.wants(name))
        return;
    constexpr qsizetype megabyte = 1 << 20;
    Scene scene;
    const auto our = scene.create(ourLabel);
    const auto their = scene.create(theirLabel);
    Property(our.get(), "maximumLineCount").write(lines);
    Property(their.get(), "maximumLineCount").write(lines);
    Property(their.get(), "wrapMode").write(1);
    const Property ourText(our.get(), "text");
    const Property theirText(their.get(), "text");
    Alternating ourTexts(longText(megabyte), longText(megabyte - 1));
    Alternating theirTexts(longText(megabyte), longText(megabyte - 1));
    Alternating shortTexts(longText(10240), longText(10239));
    constexpr int fewRounds = 9;
    table.add(timed(
        name + u", against Text"_s, 0.001, [&] { ourText.write(ourTexts.next()); },
        [&] { theirText.write(theirTexts.next()); }, fewRounds));
    Row growth = timed(
        name + u", growth exponent from 10 kB"_s, 0.05, [&] { ourText.write(ourTexts.next()); },
        [&] { ourText.write(shortTexts.next()); });
    growth.ratio = std::log(growth.ratio) / std::log(double(megabyte) / 10240);
    table.add(growth);
}

double heapOfLabels(Scene &scene, const QByteArray &label)
{
    constexpr int count = 300;
    constexpr double kilobyte = 1024;
    const QByteArray source = "Item { width: 1280; height: 720; Repeater { model: "
        + QByteArray::number(count) + "; delegate: " + label + " } }";
    scene.create(source); // Fills the caches that outlive the labels.
    scene.renderFrame();
    const double before = heapInUse();
    const auto labels = scene.create(source);
    scene.renderFrame();
    return (heapInUse() - before) / kilobyte;
}

void measureHeap(Table &table)
{
    const QString name = u"text, heap of 300 labels after a frame"_s;
    if (!table.wants(name))
        return;
    const QByteArray place =
        "required property int index; x: index % 10 * 128; y: Math.floor(index / 10) * 24; ";
    const QByteArray text = "font.pixelSize: 16; text: 'Канал номер ' + index";
    Scene scene;
    Row row{name, u"kB"_s};
    row.ours = heapOfLabels(scene, "K.Text { " + place + text + " }");
    row.theirs = heapOfLabels(scene, "Text { " + place + text + " }");
    row.ratio = row.ours / row.theirs;
    row.goal = 0.8;
    table.add(row);
}

} // namespace

void measureText(Table &table)
{
    measureTitle(table);
    measureClamping(table, 1000, u"it fits"_s);
    measureClamping(table, 200, u"it is cut"_s);
    measureLong(table, 1);
    measureLong(table, 2);
    measureHeap(table);
}
