// SPDX-License-Identifier: MIT
#include <QtCore/QRandomGenerator>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <array>
#include <memory>

#include "../../gallery/animationclock.h"
#include "../qml/remote.h"

using namespace Qt::StringLiterals;

namespace {

enum Type { NumericKeyboard, AlphabeticKeyboard, AlphanumericKeyboard };
enum Layout { RussianLayout, EnglishLayout, SymbolsLayout, NumericLayout };

// Wired as an application does it.
constexpr char sceneQml[] = R"(
import QtQuick
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

// Keys are forwarded in windows only.
Window {
    readonly property alias keyboard: _keyboard
    readonly property alias field: _field

    KELUIQCG.Keyboard {
        id: _keyboard

        onKeyTextActivated: text => _field.addText(text)
        onKeyBackspaceActivated: _field.delCurrentSymbol()
        onKeyLeftActivated: _field.moveCursorToLeft()
        onKeyRightActivated: _field.moveCursorToRight()
    }

    KELUIQCG.LineEdit {
        id: _field

        width: 300
        keyboardLayout: _keyboard.layout
        keyboardCapslockEnabled: _keyboard.capslockEnabled
        backgroundColors: ({ normal: "black", selected: "gray" })
        textColors: ({ normal: "white", selected: "white", wide: "black" })
        placeholderTextColors: textColors
    }
}
)";

//! What a field and a keyboard are to do, told without either of them.
class Model
{
public:
    QString text;
    int cursor = 0;
    //! The letter that the cursor shows, and the time left until it does no more.
    QString letter;
    int timeLeft = 0;
    bool isSelected = false;
    bool isFocused = false;
    int type = NumericKeyboard;
    int layout = NumericLayout;
    bool isCapslockEnabled = false;
    int hint = -1;
    int hintCount = 0;
    QStringList keys;

    //! The keys of every layout, without digits and with them.
    std::array<std::array<QStringList, 2>, 4> layouts;

    bool takesKeys() const { return isSelected || isFocused; }

    void insert(const QString &string)
    {
        text.insert(cursor, string);
        cursor += int(string.size());
    }

    void addText(const QString &string)
    {
        if (isSelected)
            insert(string);
    }

    void moveTo(int position)
    {
        if (position >= 0 && position <= text.size())
            cursor = position;
    }

    void removeBefore()
    {
        if (cursor > 0)
            text.remove(--cursor, 1);
    }

    void setText(const QString &string)
    {
        if (string != text)
            cursor = int(string.size());
        text = string;
    }

    void pressDigit(const QString &string)
    {
        if (!isSelected)
            return;
        if (layout == NumericLayout || layout == SymbolsLayout) {
            insert(string);
            return;
        }
        if (timeLeft > 0)
            text.remove(cursor, 1);
        text.insert(cursor, string);
        letter = string;
        timeLeft = 1000;
    }

    void pressKey(int key, const QString &string)
    {
        if (!takesKeys())
            return;
        switch (key) {
        case Qt::Key_Left:
            moveTo(cursor - 1);
            break;
        case Qt::Key_Right:
            moveTo(cursor + 1);
            break;
        case Qt::Key_Home:
            cursor = 0;
            break;
        case Qt::Key_End:
            cursor = int(text.size());
            break;
        case Qt::Key_Backspace:
            removeBefore();
            break;
        case Qt::Key_Delete:
            text.remove(cursor, 1);
            break;
        default:
            insert(string);
        }
    }

    void passTime(int milliseconds)
    {
        if (timeLeft > 0 && timeLeft <= milliseconds) {
            letter.clear();
            moveTo(cursor + 1);
        }
        timeLeft = qMax(0, timeLeft - milliseconds);
    }

    void setType(int newType)
    {
        if (newType == type)
            return;
        type = newType;
        const std::array first{NumericLayout, RussianLayout, EnglishLayout};
        layout = first[type];
        showKeys();
    }

    void setLayout(int newLayout)
    {
        layout = newLayout;
        showKeys();
    }

    void activate(int index)
    {
        if (index < 0 || index >= keys.size())
            return;
        const QString &key = keys[index];
        if (key.size() == 1) {
            addText(isCapslockEnabled ? key.toUpper() : key);
        } else if (key == u"space") {
            addText(u" "_s);
        } else if (key.startsWith(u"domain_")) {
            addText(u"."_s + key.mid(7));
        } else if (key == u"backspace") {
            if (isSelected)
                removeBefore();
        } else if (key == u"left") {
            if (isSelected)
                moveTo(cursor - 1);
        } else if (key == u"right") {
            if (isSelected)
                moveTo(cursor + 1);
        } else if (key == u"capslock") {
            isCapslockEnabled = !isCapslockEnabled;
        } else {
            const QStringList changes{u"layout_rus"_s, u"layout_eng"_s, u"layout_symbols"_s};
            const int previous = layout;
            setLayout(int(changes.indexOf(key)));
            const qsizetype back = previous == NumericLayout ? -1 : keys.indexOf(changes[previous]);
            if (back >= 0) {
                hint = int(back);
                ++hintCount;
            }
        }
    }

    void showKeys()
    {
        if (layout == NumericLayout || type != NumericKeyboard)
            keys = layouts[layout][type == AlphanumericKeyboard];
    }

    QString state() const
    {
        return u"text \"%1\", cursor %2, letter \"%3\", type %4, layout %5, capslock %6, hint %7, told %8 times"_s
            .arg(text)
            .arg(cursor)
            .arg(letter)
            .arg(type)
            .arg(layout)
            .arg(isCapslockEnabled)
            .arg(hint)
            .arg(hintCount);
    }
};

//! The real ones.
class Scene
{
public:
    explicit Scene(QQmlEngine &engine)
    {
        QQmlComponent component(&engine);
        component.setData(sceneQml, {});
        m_root.reset(component.create());
        if (!m_root)
            qFatal("%s", qPrintable(component.errorString()));
        m_field = m_root->property("field").value<QObject *>();
        m_keyboard = m_root->property("keyboard").value<QObject *>();
        m_hints =
            std::make_unique<QSignalSpy>(m_keyboard, SIGNAL(preferablyFocusedLayoutChangeKeyIndexChanged()));
    }

    QObject *field() { return m_field; }
    QObject *keyboard() { return m_keyboard; }

    QString state() const
    {
        Model seen;
        seen.text = m_field->property("text").toString();
        seen.cursor = m_field->property("cursorPosition").toInt();
        seen.letter =
            m_field->property("contentItem").value<QObject *>()->property("cursorLetter").toString();
        seen.type = m_keyboard->property("type").toInt();
        seen.layout = m_keyboard->property("layout").toInt();
        seen.isCapslockEnabled = m_keyboard->property("capslockEnabled").toBool();
        seen.hint = m_keyboard->property("preferablyFocusedLayoutChangeKeyIndex").toInt();
        seen.hintCount = int(m_hints->count());
        return seen.state();
    }

private:
    std::unique_ptr<QObject> m_root;
    QObject *m_field = nullptr;
    QObject *m_keyboard = nullptr;
    std::unique_ptr<QSignalSpy> m_hints;
};

//! Does one thing after another to a scene and to its model.
class Monkey
{
public:
    Monkey(Scene &scene, quint32 seed)
        : m_scene(scene)
        , m_random(seed)
    {
        const std::array<std::array<const char *, 2>, 4> names{
            {{"russianLayout", "russianAndNumericLayout"}, {"englishLayout", "englishAndNumericLayout"},
                {"symbolsLayout", "symbolsAndNumericLayout"}, {"numericLayout", "numericLayout"}}};
        for (size_t layout = 0; layout < names.size(); ++layout) {
            for (size_t withDigits = 0; withDigits < 2; ++withDigits)
                m_model.layouts[layout][withDigits] =
                    m_scene.keyboard()->property(names[layout][withDigits]).toStringList();
        }
        m_model.showKeys();
    }

    const Model &model() const { return m_model; }
    //! Whether the last digit was taken by the field, or left, as it should be.
    bool isTakenAright() const { return m_isTakenAright; }

    //! Returns what was done.
    QString step()
    {
        const int dice = below(1000);
        if (dice < 300)
            return activateKey();
        if (dice < 550)
            return pressDigit();
        if (dice < 700)
            return pressKey();
        if (dice < 880)
            return passTime();
        if (dice < 910)
            return setFlag("selected", m_model.isSelected, below(5) > 0);
        if (dice < 930)
            return setFlag("focused", m_model.isFocused, below(2) > 0);
        if (dice < 960)
            return setText();
        if (dice < 985)
            return setCursor();
        if (dice < 997)
            return setType();
        return setLayout();
    }

private:
    int below(int bound) { return m_random.bounded(bound); }

    template <typename List>
    auto oneOf(const List &list)
    {
        return list[below(int(std::size(list)))];
    }

    QChar letter() { return oneOf(QStringView(u"абвгдеёabcdef0123456789 .№")); }

    QString activateKey()
    {
        // Beyond either end as well. Keys that make others are slow, and rare enough by themselves.
        int index = below(int(m_model.keys.size()) + 2) - 1;
        if (below(3) == 0)
            index = int(m_model.keys.indexOf(
                oneOf(std::array{u"backspace"_s, u"left"_s, u"right"_s, u"capslock"_s})));
        const QString name = m_model.keys.value(index, u"none"_s);
        QMetaObject::invokeMethod(m_scene.keyboard(), "processKeyActivated", index);
        m_model.activate(index);
        return u"activate key %1, %2"_s.arg(index).arg(name);
    }

    QString pressDigit()
    {
        const QString text = letter();
        const int key = Qt::Key_0 + below(10);
        const bool isTaken = Remote::press(m_scene.field(), key, text, Qt::NoModifier, below(4) == 0);
        m_isTakenAright = isTaken == m_model.takesKeys();
        m_model.pressDigit(text);
        return u"press digit %1 with \"%2\", taken: %3"_s.arg(key - Qt::Key_0).arg(text).arg(isTaken);
    }

    QString pressKey()
    {
        const int key = oneOf(std::array{Qt::Key_Left, Qt::Key_Right, Qt::Key_Backspace, Qt::Key_Delete,
            Qt::Key_Home, Qt::Key_End, Qt::Key_A, Qt::Key_A, Qt::Key_A});
        const QString text = key == Qt::Key_A ? QString(letter()) : QString();
        Remote::press(m_scene.field(), key, text);
        m_model.pressKey(key, text);
        return u"press key %1 with \"%2\""_s.arg(key, 0, 16).arg(text);
    }

    QString passTime()
    {
        // Often to the very end of what is pending, or just before.
        int milliseconds = oneOf(std::array{1, 2, 100, 499, 500, 999, 1000, 1001, 3000, 0, 0});
        if (milliseconds == 0)
            milliseconds = qMax(1, m_model.timeLeft - below(2));
        m_clock.step(milliseconds);
        m_model.passTime(milliseconds);
        return u"pass %1 ms"_s.arg(milliseconds);
    }

    QString setFlag(const char *name, bool &flag, bool value)
    {
        m_scene.field()->setProperty(name, value);
        flag = value;
        return u"set %1 to %2"_s.arg(QLatin1StringView(name)).arg(value);
    }

    QString setText()
    {
        const QString text = oneOf(std::array{QString(), m_model.text, u"я"_s, u"some text"_s});
        m_scene.field()->setProperty("text", text);
        m_model.setText(text);
        return u"set text to \"%1\""_s.arg(text);
    }

    QString setCursor()
    {
        const int position = below(int(m_model.text.size()) + 3) - 1;
        m_scene.field()->setProperty("cursorPosition", position);
        m_model.moveTo(position);
        return u"set cursor to %1"_s.arg(position);
    }

    QString setType()
    {
        const int type = oneOf(std::array{NumericKeyboard, AlphabeticKeyboard, AlphabeticKeyboard,
            AlphanumericKeyboard, AlphanumericKeyboard});
        m_scene.keyboard()->setProperty("type", type);
        m_model.setType(type);
        return u"set type to %1"_s.arg(type);
    }

    QString setLayout()
    {
        const int layout = below(4);
        m_scene.keyboard()->setProperty("layout", layout);
        m_model.setLayout(layout);
        return u"set layout to %1"_s.arg(layout);
    }

    AnimationClock m_clock;
    Scene &m_scene;
    Model m_model;
    QRandomGenerator m_random;
    bool m_isTakenAright = true;
};

} // namespace

class TestTextEntry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void randomPresses_data()
    {
        QTest::addColumn<uint>("seed");
        const uint seed = qEnvironmentVariableIntValue("KELUI_SEED");
        if (seed > 0)
            QTest::addRow("seed %u", seed) << seed;
        for (uint row = 1; seed == 0 && row <= 5; ++row)
            QTest::addRow("seed %u", row) << row;
    }

    //! Another seed than those of the rows: KELUI_SEED in the environment.
    void randomPresses()
    {
        QFETCH(const uint, seed);
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral(KELUI_QML_DIR));
        Scene scene(engine);
        Monkey monkey(scene, seed);
        QStringList steps;
        for (int count = 1; count <= 4000; ++count) {
            steps.append(u"%1: %2"_s.arg(count).arg(monkey.step()));
            // What the keyboard shows no more.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const QString message = u"seed %1\n%2\nis:        %3\nshould be: %4"_s.arg(seed).arg(
                steps.sliced(qMax(0, steps.size() - 20)).join(u'\n'), scene.state(), monkey.model().state());
            QVERIFY2(scene.state() == monkey.model().state() && monkey.isTakenAright(), qPrintable(message));
        }
    }
};

QTEST_MAIN(TestTextEntry)

#include "tst_textentry.moc"
