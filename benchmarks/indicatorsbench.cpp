// SPDX-License-Identifier: MIT
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

#include <algorithm>
#include <chrono>
#include <ctime>

#include "measure.h"
#include "scene.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray strip = "file://" KELUI_ICON_DIR "/play.svg";

const QByteArray controlsIndicator =
    "import QtQuick.Controls.Basic\nBusyIndicator { width: 100; height: 100; running: true }";

const QByteArray busy = "K.BusyIndicator { width: 100; height: 100; animationInterval: 40\n imageRight: '"
    + strip + "'; imageLeft: '" + strip + "' }";
//! A clipped picture that is moved by a timer.
const QByteArray leastBusy = R"(
Item {
    width: 100; height: 100
    Item {
        anchors.centerIn: parent; width: picture.height; height: picture.height; clip: true
        Image { id: picture; source: ")"
    + strip + R"("; cache: false; fillMode: Image.Pad }
    }
    Timer { property int frame: 0; interval: 40; running: true; repeat: true; onTriggered: { frame = (frame + 1) % 2; picture.x = -frame } }
}
)";

const QByteArray rewindIcon =
    "K.RewindIcon { width: 300; height: 200; speed: 8; textColor: 'white'; source: '" + strip + "' }";
//! Three pictures, a text, and a timer that lights them in turn.
const QByteArray leastRewind = R"(
Item {
    id: item
    property int lit: 0
    width: 300; height: 200
    Row {
        anchors.centerIn: parent; spacing: 9
        Repeater {
            model: 3
            Image { required property int index; source: ")"
    + strip + R"("; sourceSize: "57x57"; opacity: index === item.lit ? 1 : 0.5 }
        }
    }
    Text { anchors.horizontalCenter: parent.horizontalCenter; y: 150; color: "white"; text: "x8" }
    Timer { interval: 125; running: true; repeat: true; onTriggered: item.lit = (item.lit + 1) % 4 }
}
)";

const QByteArray spinner = "K.SpinnerIndicator {}";
//! The same arcs on a plain canvas, moved by one animation each.
const QByteArray leastSpinner = R"(
Canvas {
    id: canvas
    property int turn: 0
    property int end: 5
    width: 100; height: 100; antialiasing: true
    onTurnChanged: requestPaint()
    onPaint: {
        const context = getContext("2d");
        context.lineWidth = 10; context.lineCap = "round";
        context.clearRect(0, 0, width, height);
        context.strokeStyle = "#101828"; context.beginPath(); context.arc(50, 50, 45, 0, 2 * Math.PI, false); context.stroke();
        context.strokeStyle = "#ffffff"; context.beginPath();
        context.arc(50, 50, 45, (turn - 90) / 180 * Math.PI, (end + turn - 90) / 180 * Math.PI, false); context.stroke();
    }
    NumberAnimation on turn { from: 0; to: 360; duration: 1200; loops: Animation.Infinite }
    SequentialAnimation on end {
        loops: Animation.Infinite
        PauseAnimation { duration: 300 }
        NumberAnimation { from: 5; to: 285; duration: 600; easing.type: Easing.InOutQuad }
        PauseAnimation { duration: 300 }
        NumberAnimation { from: 285; to: 5; duration: 600; easing.type: Easing.InOutQuad }
    }
}
)";

double processorMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

//! An item in a window that draws by itself, as that of an application does.
class Shown
{
public:
    explicit Shown(const QByteArray &source)
        : m_item(m_scene.create(source))
    {
        m_window.resize(1280, 720);
        m_item->setParentItem(m_window.contentItem());
        m_window.show();
        run(std::chrono::milliseconds(300));
    }

    //! The number of frames drawn.
    int run(std::chrono::milliseconds time)
    {
        QEventLoop loop;
        int frames = 0;
        QObject::connect(&m_window, &QQuickWindow::frameSwapped, &loop, [&frames] { ++frames; });
        QTimer::singleShot(time, &loop, &QEventLoop::quit);
        loop.exec();
        return frames;
    }

private:
    Scene m_scene;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_item;
};

//! Milliseconds of processor time in a second of showing an item.
double secondOf(const QByteArray &source)
{
    Shown shown(source);
    const double before = processorMilliseconds();
    shown.run(std::chrono::seconds(1));
    return processorMilliseconds() - before;
}

void measureSecond(
    Table &table, const QString &what, double goal, const QByteArray &ours, const QByteArray &theirs)
{
    const QString name = u"%1, processor time of a second"_s.arg(what);
    if (!table.wants(name))
        return;
    constexpr int rounds = 5;
    std::vector<Row> rows;
    for (int i = 0; i < rounds; ++i) {
        Row row{name, u"ms"_s, secondOf(ours), secondOf(theirs), 0, goal};
        row.ratio = row.ours / row.theirs;
        rows.push_back(row);
    }
    const auto middle = rows.begin() + rounds / 2;
    std::nth_element(
        rows.begin(), middle, rows.end(), [](const Row &a, const Row &b) { return a.ratio < b.ratio; });
    table.add(*middle);
}

//! A screen where nothing moves: none of the frames in five seconds is wanted.
void measureRest(Table &table)
{
    const QString name = u"screen at rest, frames in 5 s"_s;
    if (!table.wants(name))
        return;
    Shown shown(R"(
Row {
    readonly property var colors: ({ disabled: "black", checked: "teal", focused: "gold", normal: "gray", selected: "white" })
    K.ScrolledListView { width: 200; height: 600; model: 50; delegate: Text { required property int index; text: index } }
    K.Button { fixedSize: Qt.size(200, 60); titleText: "Смотреть"; backgroundColors: parent.colors; titleColors: parent.colors
        subtitleColors: parent.colors; leftIconColors: parent.colors; rightIconColors: parent.colors }
    K.TabButton { text: "Tab"; minimumHeight: 60 }
    K.CheckBox { text: "Box"; indicatorColors: parent.colors; iconColors: parent.colors; titleColors: parent.colors }
    K.MainMenuButton { text: "Menu" }
    K.BusyIndicator { visible: false; animationInterval: 40 }
    K.RewindIcon { visible: false }
    K.Keyboard { type: K.KelGlobal.AlphanumericKeyboard }
    K.LineEdit { width: 200; height: 60; text: "text"; backgroundColors: parent.colors; textColors: parent.colors; placeholderTextColors: parent.colors }
}
)");
    Row row{name, u""_s, double(shown.run(std::chrono::seconds(5)))};
    row.ratio = row.ours;
    row.goal = 0.5;
    table.add(row);
}

} // namespace

void measureIndicators(Table &table)
{
    measureSecond(table, u"BusyIndicator against Controls' BusyIndicator"_s, 0, busy, controlsIndicator);
    measureSecond(table, u"BusyIndicator against a clipped picture"_s, 1.1, busy, leastBusy);
    measureSecond(table, u"RewindIcon against Controls' BusyIndicator"_s, 0, rewindIcon, controlsIndicator);
    measureSecond(table, u"RewindIcon against three pictures and a timer"_s, 1.1, rewindIcon, leastRewind);
    measureSecond(
        table, u"SpinnerIndicator against Controls' BusyIndicator"_s, 0, spinner, controlsIndicator);
    measureSecond(table, u"SpinnerIndicator against the arcs on a canvas"_s, 1.1, spinner, leastSpinner);
    measureRest(table);
}
