// SPDX-License-Identifier: MIT
#include "../gallery/animationclock.h"
#include "measure.h"
#include "scene.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray tile = R"(
    Rectangle {
        id: tile

        required property int index

        width: 200; height: 48; color: "#1c2533"
        states: [
            State { name: "normal" },
            State { name: "focused"; PropertyChanges { tile.color: "#ffc247" } }
        ]

        K.Text { x: 12; y: 8; color: "white"; font.pixelSize: 20; text: "Канал " + tile.index }
    }
)";

//! The plain view says itself which delegate has the focus.
QByteArray plainTile()
{
    return QByteArray(tile).replace(
        "id: tile\n", "id: tile\nstate: VIEW.isCurrentItem ? 'focused' : 'normal'\n");
}

// A move takes no time, but it is made by an animation: it ends with the next tick of the clock.
const QByteArray list = R"({
    width: 240; height: 600; spacing: 8; model: 10000; topMargin: 20; bottomMargin: 20; highlightMoveDuration: 0
)";
const QByteArray plainListSettings = R"(
    highlightMoveVelocity: -1; highlightResizeDuration: 0; highlightResizeVelocity: -1
    highlightRangeMode: ListView.ApplyRange; preferredHighlightBegin: 20; preferredHighlightEnd: 580
)";
const QByteArray grid = R"({
    width: 1060; height: 600; model: 10000; highlightMoveDuration: 0
)";

void measureStep(
    Table &table, const QString &what, const QByteArray &ours, const QByteArray &theirs, int step)
{
    const QString name = u"%1 of 10000, one key step to the finished frame"_s.arg(what);
    if (!table.wants(name))
        return;
    AnimationClock clock;
    Scene ourScene;
    Scene theirScene;
    const auto our = ourScene.create(ours);
    const auto their = theirScene.create(theirs);
    const Property ourIndex(our.get(), "currentIndex");
    const Property theirIndex(their.get(), "currentIndex");
    constexpr int steps = 200;
    const auto moveTo = [&clock](Scene &scene, const Property &index, int position) {
        index.write(position);
        clock.step(1);
        // The delegates that the view has let go of.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        scene.renderFrame();
    };
    moveTo(ourScene, ourIndex, steps);
    moveTo(theirScene, theirIndex, steps);
    if (const double y = our->property("contentY").toDouble(); y <= 0 || y != their->property("contentY"))
        qFatal("the views of \"%s\" do not scroll alike", qPrintable(what));
    // Down the view and back to its beginning, where the other one begins as well.
    const auto walk = [&moveTo, step](Scene &scene, const Property &index) {
        for (int i = 1; i <= steps; ++i)
            moveTo(scene, index, i * step);
        moveTo(scene, index, 0);
    };
    Row row = timed(name, 1.05, [&] { walk(ourScene, ourIndex); }, [&] { walk(theirScene, theirIndex); }, 40);
    row.ours /= steps;
    row.theirs /= steps;
    table.add(row);
}

} // namespace

void measureViews(Table &table)
{
    const auto plain = [](const char *view) { return plainTile().replace("VIEW", view); };
    measureStep(table, u"list"_s, "K.ScrolledListView " + list + "delegate: " + tile + "}",
        "ListView " + list + plainListSettings + "delegate: " + plain("ListView") + "}", 1);
    measureStep(table, u"grid"_s,
        "K.ScrolledGridView " + grid
            + "elementWidth: 200; elementHeight: 48; horizontalSpacing: 12; verticalSpacing: 8\ndelegate: "
            + tile + "}",
        "GridView " + grid + "cellWidth: 212; cellHeight: 56\ndelegate: " + plain("GridView") + "}", 5);
}
