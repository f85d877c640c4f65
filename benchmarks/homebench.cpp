// SPDX-License-Identifier: MIT
#include <QtCore/QRandomGenerator>

#include <array>

#include "../gallery/animationclock.h"
#include "measure.h"
#include "scene.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray ourHome = R"(
    import Kelui.Gallery
    HomePage { width: 1280; height: 720; Component.onCompleted: focusFirst() }
)";
const QByteArray theirHome = R"(
    import Kelui.Bench
    ControlsHome {}
)";

//! From nothing to the first frame; the program and its libraries are there already.
void showFirstFrame(const QByteArray &source)
{
    Scene scene;
    const auto screen = scene.create(source);
    scene.renderFrame();
}

void measureStart(Table &table)
{
    const QString name = u"home screen, engine to first frame, against Qt Quick Controls"_s;
    if (!table.wants(name))
        return;
    table.add(timed(name, 1, [] { showFirstFrame(ourHome); }, [] { showFirstFrame(theirHome); }, 20));
}

//! Keys at random, ten a second by the clock of the scene, as a child at the remote presses them.
class Walk
{
public:
    Walk()
        : m_home(m_scene.create(ourHome))
    {
        m_scene.renderFrame();
    }

    void walk(int seconds)
    {
        constexpr std::array keys{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Right,
            Qt::Key_Return, Qt::Key_Back};
        constexpr int perSecond = 10;
        constexpr int pause = 1000 / perSecond;
        for (int i = 0; i < seconds * perSecond; ++i) {
            bool isHandled = false;
            QMetaObject::invokeMethod(m_home.get(), "handleKey", qReturnArg(isHandled),
                int(keys.at(size_t(m_random.bounded(int(keys.size()))))), QString());
            m_clock.step(pause);
            QCoreApplication::sendPostedEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            m_scene.renderFrame();
        }
    }

private:
    AnimationClock m_clock;
    Scene m_scene;
    std::unique_ptr<QQuickItem> m_home;
    QRandomGenerator m_random{6};
};

void measureMemory(Table &table)
{
    const QString name = u"home screen, heap after 10 minutes of keys against 1 minute"_s;
    if (!table.wants(name))
        return;
    constexpr int minute = 60;
    constexpr double kilobyte = 1024;
    const double before = heapInUse();
    Walk walk;
    walk.walk(minute);
    Row row{name, u"kB"_s};
    row.theirs = (heapInUse() - before) / kilobyte;
    walk.walk(9 * minute);
    row.ours = (heapInUse() - before) / kilobyte;
    row.ratio = row.ours / row.theirs;
    row.goal = 1.05;
    table.add(row);
}

} // namespace

void measureHome(Table &table)
{
    measureStart(table);
    measureMemory(table);
}
