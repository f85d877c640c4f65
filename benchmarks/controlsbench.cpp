// SPDX-License-Identifier: MIT
#include "measure.h"
#include "scene.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int count = 300;

//! What the controls of an application share: the same icon, colours and type for both sides.
const QByteArray common = R"(
    readonly property string icon: "file://)" KELUI_ICON_DIR R"(/play.svg"
    readonly property var colors: ({ disabled: "#161d28", checked: "#1b6b5f", focused: "#ffc247", normal: "#2a3648" })
    readonly property var inks: ({ disabled: "#8593a8", checked: "#ffffff", focused: "#14181f", normal: "#f3f6fb" })
)";

/*!
    A control of the module, the equal one made of Qt Quick Controls, and the goals: made, shown, heap. The
    equal one looks the same also with a text that is too long: it cuts it, breaks it or grows with it.
*/
struct Pair
{
    QString name;
    QByteArray ours;
    QByteArray theirs;
    double made;
    double shown;
    double heap;
};

const QByteArray ourButton = R"(
    K.Button {
        fixedSize: Qt.size(240, 64); spacing: 12
        titleText: "Смотреть"; subtitleText: "299 в месяц"
        titleFont.pixelSize: 22; subtitleFont.pixelSize: 18
        leftIconSource: scene.icon; rightIconSource: scene.icon
        leftIconSize: Qt.size(32, 32); rightIconSize: Qt.size(32, 32)
        backgroundColors: scene.colors; titleColors: scene.inks; subtitleColors: scene.inks
        leftIconColors: scene.inks; rightIconColors: scene.inks
    }
)";
const QByteArray theirButton = R"(
    Button {
        id: button

        property bool focused: false
        property string subtitle: "299 в месяц"
        readonly property color ink: !enabled ? "#8593a8" : checked ? "#ffffff" : focused ? "#14181f" : "#f3f6fb"

        implicitWidth: 240; implicitHeight: 64; padding: 0; spacing: 12
        text: "Смотреть"; font.pixelSize: 22
        background: Rectangle {
            color: !button.enabled ? "#161d28" : button.checked ? "#1b6b5f" : button.focused ? "#ffc247" : "#2a3648"
            Behavior on color { enabled: false; ColorAnimation { duration: 125 } }
        }
        contentItem: Item {
            Row {
                anchors.centerIn: parent; spacing: button.spacing
                IconImage { width: 32; height: 32; source: scene.icon; color: button.ink; anchors.verticalCenter: parent.verticalCenter }
                Column {
                    width: Math.min(button.width - 2 * (32 + button.spacing), Math.max(title.implicitWidth, subtitle.implicitWidth))
                    anchors.verticalCenter: parent.verticalCenter; spacing: 10
                    Text {
                        id: title
                        width: parent.width; text: button.text; font: button.font; color: button.ink; elide: Text.ElideRight
                        Behavior on color { enabled: false; ColorAnimation { duration: 125 } }
                    }
                    Text {
                        id: subtitle
                        width: parent.width; horizontalAlignment: Text.AlignRight
                        text: button.subtitle; font.pixelSize: 18; color: button.ink; elide: Text.ElideRight
                        Behavior on color { enabled: false; ColorAnimation { duration: 125 } }
                    }
                }
                IconImage { width: 32; height: 32; source: scene.icon; color: button.ink; anchors.verticalCenter: parent.verticalCenter }
            }
        }
    }
)";

const QByteArray ourMenuButton = R"(
    K.MainMenuButton {
        text: "Фильмы"; textFont.pixelSize: 20; leftIconSource: scene.icon
    }
)";
const QByteArray theirMenuButton = R"(
    Button {
        id: button

        property bool focused: false
        readonly property color ink: focused ? "#99000000" : checked ? "#cc000000" : "black"

        implicitHeight: 57; leftPadding: 16; rightPadding: 16; spacing: 8; checkable: true
        text: "Фильмы"; font.pixelSize: 20
        background: Rectangle {
            radius: 15
            color: button.focused ? "#99ffffff" : button.checked ? "#ccffffff" : "white"
            Behavior on color { enabled: false; ColorAnimation { duration: 125 } }
        }
        contentItem: RowLayout {
            spacing: button.spacing
            IconImage { source: scene.icon; color: button.ink }
            Text {
                text: button.text; font: button.font; color: button.ink
                Behavior on color { enabled: false; ColorAnimation { duration: 125 } }
            }
            Image { visible: source != "" }
        }
    }
)";

const QByteArray ourTabButton = R"(
    K.TabButton {
        text: "Фильмы"; font.pixelSize: 20; minimumWidth: 120; minimumHeight: 48
    }
)";
const QByteArray theirTabButton = R"(
    TabButton {
        id: button

        property bool focused: false

        implicitWidth: Math.max(120, implicitContentWidth); implicitHeight: 48; padding: 0
        text: "Фильмы"; font.pixelSize: 20
        background: Rectangle {
            color: button.checked ? "#000000" : button.focused ? "#000001" : "#000002"
            Behavior on color { enabled: false; ColorAnimation { duration: 125 } }
        }
        contentItem: Text {
            text: button.text; font: button.font; horizontalAlignment: Text.AlignHCenter; verticalAlignment: Text.AlignVCenter
            color: button.checked ? "#ffffff" : button.focused ? "#fffffe" : "#fffffd"
            Behavior on color { enabled: false; ColorAnimation { duration: 125 } }
        }
    }
)";

const QByteArray ourCheckBox = R"(
    K.CheckBox {
        text: "Субтитры"; titleFont.pixelSize: 20; iconPath: scene.icon
        indicatorColors: scene.colors; iconColors: scene.inks; titleColors: scene.inks
    }
)";
const QByteArray leastUse = QByteArray(ourCheckBox).replace("K.CheckBox", "Least");
const QByteArray theirTitle = R"(
    text: box.text; font: box.font; verticalAlignment: Text.AlignVCenter; wrapMode: Text.Wrap
    color: !box.enabled ? "#8593a8" : box.checked ? "#ffffff" : box.focused ? "#14181f" : "#f3f6fb"
)";

QByteArray theirCheckBox(const QByteArray &contentItem)
{
    return R"(
        CheckBox {
            id: box

            property bool focused: false

            spacing: 24; padding: 0
            text: "Субтитры"; font.pixelSize: 20
            indicator: Rectangle {
                implicitWidth: 60; implicitHeight: 60
                y: (box.height - height) / 2
                color: !box.enabled ? "#161d28" : box.checked ? "#1b6b5f" : box.focused ? "#ffc247" : "#2a3648"
                Image { anchors.fill: parent; fillMode: Image.Pad; source: scene.icon; visible: box.checked }
            }
            contentItem: )"
        + contentItem + "}";
}

/*!
    The parts and the interface of our check box, and of its bindings those alone that show its title and its
    colours: nothing follows the size of the box or the spacing.
*/
const QByteArray leastCheckBox = R"(
    component Least: T.CheckBox {
        id: box

        property bool focused
        readonly property alias frameSourceItem: box.indicator
        property alias forceRounding: indicatorBox.forceRounding
        property alias roundingRadius: indicatorBox.roundingRadius
        property size indicatorSize
        property var indicatorColors
        property alias iconPath: icon.source
        property var iconColors
        property alias titleFont: title.font
        property var titleColors

        function stateColor(colors: var): color {
            return !enabled ? colors["disabled"] : checked ? colors["checked"] : focused ? colors["focused"] : colors["normal"];
        }

        implicitWidth: implicitContentWidth; implicitHeight: 60; spacing: 24
        indicator: K.Rectangle {
            id: indicatorBox
            implicitWidth: 60; implicitHeight: 60; color: box.stateColor(box.indicatorColors)
            Image {
                id: icon
                anchors.fill: parent; fillMode: Image.Pad; visible: box.checked; opacity: box.stateColor(box.iconColors).a
            }
        }
        contentItem: RowLayout {
            K.Text {
                id: title
                Layout.leftMargin: 84; Layout.fillWidth: true
                color: box.stateColor(box.titleColors); text: box.text; textWidth: width
            }
        }
    }
)";

QByteArray sourceOf(const QByteArray &control)
{
    return "import QtQuick.Controls.Basic\nimport QtQuick.Controls.impl\nimport QtQuick.Layouts\n"
           "import QtQuick.Templates as T\nItem {\nid: scene; width: 1280; height: 720\n"
        + common + leastCheckBox + "Grid { columns: 10; Repeater { model: " + QByteArray::number(count)
        + "; delegate: " + control + " } } }";
}

//! A scene with one kind of control.
class Stock
{
public:
    explicit Stock(const QByteArray &control)
        : m_component(m_scene.compile(sourceOf(control)))
    {
        // Fills the caches that outlive the controls.
        show();
        clear();
    }

    void make() { m_controls = m_scene.create(*m_component); }

    void show()
    {
        make();
        m_scene.renderFrame();
    }

    //! What was shown is let go of by the next frame.
    void clear()
    {
        m_controls.reset();
        m_scene.renderFrame();
    }

    void makeAndDelete()
    {
        make();
        m_controls.reset();
    }

    double kilobytes()
    {
        constexpr double kilobyte = 1024;
        const double before = heapInUse();
        show();
        const double after = heapInUse();
        clear();
        return (after - before) / kilobyte;
    }

private:
    Scene m_scene;
    std::unique_ptr<QQmlComponent> m_component;
    std::unique_ptr<QQuickItem> m_controls;
};

QString rowName(const QString &control, const QString &what)
{
    return u"%1, %2, %3"_s.arg(control, QString::number(count), what);
}

void measureHeap(Table &table, const Pair &pair)
{
    Row row{rowName(pair.name, u"heap after a frame"_s), u"kB"_s};
    if (!table.wants(row.name))
        return;
    Stock ours(pair.ours);
    Stock theirs(pair.theirs);
    row.ours = ours.kilobytes();
    row.theirs = theirs.kilobytes();
    row.ratio = row.ours / row.theirs;
    row.goal = pair.heap;
    table.add(row);
}

void measurePair(Table &table, const Pair &pair)
{
    const QString made = rowName(pair.name, u"made and deleted"_s);
    const QString shown = rowName(pair.name, u"made and shown, to the first frame"_s);
    // First, as what is left of many rounds before would be taken for room that there was.
    measureHeap(table, pair);
    if (!table.wants(made) && !table.wants(shown))
        return;
    Stock ours(pair.ours);
    Stock theirs(pair.theirs);
    constexpr int fewRounds = 30;
    if (table.wants(made))
        table.add(timed(
            made, pair.made, [&] { ours.makeAndDelete(); }, [&] { theirs.makeAndDelete(); }, fewRounds));
    if (table.wants(shown)) {
        const auto clear = [&] {
            ours.clear();
            theirs.clear();
        };
        table.add(timed(shown, pair.shown, [&] { ours.show(); }, [&] { theirs.show(); }, fewRounds, clear));
    }
}

} // namespace

void measureControls(Table &table)
{
    measurePair(table, {u"Button"_s, ourButton, theirButton, 1.5, 1.3, 1.2});
    measurePair(table, {u"MainMenuButton"_s, ourMenuButton, theirMenuButton, 1.4, 1.2, 1.2});
    measurePair(table, {u"TabButton"_s, ourTabButton, theirTabButton, 0.9, 0.9, 0.95});
    const QByteArray text = "Text { leftPadding: box.indicator.width + box.spacing;" + theirTitle + "}";
    measurePair(table, {u"CheckBox"_s, ourCheckBox, theirCheckBox(text), 1.05, 1.1, 1.2});
    // Ours has its title in a row layout. What that costs by itself:
    const QByteArray row = "RowLayout { Text { Layout.fillWidth: true; "
                           "Layout.leftMargin: box.indicator.width + box.spacing;"
        + theirTitle + "} }";
    measurePair(table, {u"CheckBox, with a RowLayout each"_s, ourCheckBox, theirCheckBox(row), 1, 1, 1.1});
    // Its time would tell nothing: it is not compiled.
    measureHeap(table, {u"CheckBox against the least of its parts"_s, ourCheckBox, leastUse, 0, 0, 1.1});
}
