// SPDX-License-Identifier: MIT
#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUuid>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

#include <csignal>
#include <unistd.h>

#include "../pictures.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize size(1280, 720);
constexpr int patience = 30'000;
const QStringList galleryArguments{u"--language"_s, u"en"_s};

//! The first that is not installed, or nothing.
QString missing(const QStringList &programs)
{
    for (const QString &program : programs) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            return program;
    }
    return {};
}

//! A program that runs until its time is over, or until this ends.
class Program : public QProcess
{
public:
    Program() { setProcessChannelMode(ForwardedErrorChannel); }
    ~Program() override
    {
        closeWriteChannel();
        if (state() != NotRunning) {
            terminate();
            if (!waitForFinished(patience))
                kill();
        }
    }
    void setVariable(const QString &name, const QString &value)
    {
        QProcessEnvironment environment = processEnvironment();
        if (environment.isEmpty())
            environment = QProcessEnvironment::systemEnvironment();
        environment.insert(name, value);
        setProcessEnvironment(environment);
    }
    QString line()
    {
        while (!canReadLine()) {
            if (!waitForReadyRead(patience))
                return {};
        }
        return QString::fromUtf8(readLine()).trimmed();
    }
};

//! Somebody in front of the gallery, who sees a picture and has keys.
class Viewer
{
public:
    Viewer() = default;
    Q_DISABLE_COPY_MOVE(Viewer)
    virtual ~Viewer() = default;
    virtual bool open() = 0;
    //! Names as X11 has them.
    virtual bool press(const QStringList &keys) = 0;
    virtual QImage picture() = 0;
    //! How much a channel of a pixel of it may be wrong.
    virtual int allowance() const { return tolerance; }
    //! Whether the gallery has ended as it should.
    virtual bool isClosed() = 0;
};

//! The gallery in a virtual X server, whose screen is a file.
class X11Viewer : public Viewer
{
public:
    bool open() override
    {
        m_server.start(u"Xvfb"_s,
            {u"-displayfd"_s, u"1"_s, u"-nocursor"_s, u"-nolisten"_s, u"tcp"_s, u"-screen"_s, u"0"_s,
                u"%1x%2x24"_s.arg(size.width()).arg(size.height()), u"-fbdir"_s, m_folder.path()});
        const QString display = u':' + m_server.line();
        for (Program *program : {&m_gallery, &m_hand})
            program->setVariable(u"DISPLAY"_s, display);
        m_gallery.setVariable(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        m_gallery.start(QStringLiteral(KELUI_GALLERY), galleryArguments);
        return m_gallery.waitForStarted();
    }
    bool press(const QStringList &keys) override
    {
        m_hand.start(u"xdotool"_s, QStringList{u"key"_s} + keys);
        return m_hand.waitForFinished() && m_hand.exitCode() == 0;
    }
    QImage picture() override
    {
        // An X window dump: numbers of four bytes, then a table of colours of twelve bytes each.
        enum { HeaderSize = 0, Width = 4, Height = 5, BytesPerLine = 12, ColorCount = 19 };
        constexpr qsizetype colorSize = 12;
        QFile file(m_folder.filePath(u"Xvfb_screen0"_s));
        if (!file.open(QFile::ReadOnly))
            return {};
        const QByteArray dump = file.readAll();
        const auto number = [&](qsizetype index) {
            return qFromBigEndian<quint32>(dump.constData() + 4 * index);
        };
        if (dump.size() < qsizetype(4) * (ColorCount + 1))
            return {};
        const qsizetype start = number(HeaderSize) + colorSize * number(ColorCount);
        if (dump.size() < start + qsizetype(number(BytesPerLine)) * number(Height))
            return {};
        return QImage(reinterpret_cast<const uchar *>(dump.constData()) + start, int(number(Width)),
            int(number(Height)), number(BytesPerLine), QImage::Format_RGB32)
            .copy();
    }
    bool isClosed() override { return m_gallery.waitForFinished(patience) && m_gallery.exitCode() == 0; }

private:
    QTemporaryDir m_folder;
    Program m_server;
    Program m_gallery;
    Program m_hand;
};

//! `./run gallery --web`, in a session of its own and with a mark that all of its processes inherit.
class WebGallery : public Program
{
public:
    WebGallery()
    {
        // Where the script would find another build than this, what it starts is started.
        const bool isScripted = qEnvironmentVariableIsSet("KELUI_ROOT")
            && QDir(QStringLiteral(KELUI_BUILD)) == QDir(QStringLiteral(KELUI_SOURCE "/build/release"));
        setVariable(m_markName, m_mark);
        setVariable(u"TMPDIR"_s, m_folder.path());
        setUnixProcessParameters(UnixProcessFlag::CreateNewSession);
        if (isScripted)
            setProgram(QStringLiteral(KELUI_SOURCE "/run"));
        else
            setProgram(QStringLiteral(KELUI_SOURCE "/gallery/web/serve"));
        m_isScripted = isScripted;
    }
    //! Returns the address.
    QString show(const QString &port = {})
    {
        QStringList arguments;
        if (m_isScripted)
            arguments << u"gallery"_s << u"--web"_s << (port.isEmpty() ? QStringList() : QStringList(port))
                      << u"--"_s;
        else
            arguments << port << QStringLiteral(KELUI_GALLERY);
        setArguments(arguments + galleryArguments);
        start();
        static const QRegularExpression address(u"http://127\\.0\\.0\\.1:\\d+/"_s);
        const QString result = address.match(line()).captured();
        // As long as the gallery itself has not begun, bash stands for it, which complains when it is ended.
        static const QRegularExpression gallery(u"\\S*/kelui-gallery .*"_s);
        const auto isShown = [this] { return processes().indexOf(gallery) >= 0; };
        return result.isEmpty() || QTest::qWaitFor(isShown, patience) ? result : QString();
    }
    //! The processes that it has started and that are still there.
    QStringList processes() const
    {
        const QByteArray sought = '\0' + (m_markName + u'=' + m_mark).toUtf8() + '\0';
        QStringList result;
        const QStringList names = QDir(u"/proc"_s).entryList(QDir::Dirs);
        for (const QString &name : names) {
            QFile file(u"/proc/%1/environ"_s.arg(name));
            if (file.open(QFile::ReadOnly) && ('\0' + file.readAll()).contains(sought)) {
                QFile command(u"/proc/%1/cmdline"_s.arg(name));
                if (command.open(QFile::ReadOnly))
                    result += QString::fromUtf8(command.readAll().replace('\0', ' '));
            }
        }
        return result;
    }
    bool isFolderEmpty() const { return QDir(m_folder.path()).isEmpty(); }

private:
    const QString m_markName = u"KELUI_E2E"_s;
    const QString m_mark = QUuid::createUuid().toString();
    QTemporaryDir m_folder;
    bool m_isScripted = false;
};

//! The gallery in a browser.
class WebViewer : public Viewer
{
public:
    bool open() override
    {
        const QString address = m_gallery.show();
        m_browser.setVariable(u"NODE_PATH"_s, QStringLiteral(KELUI_OUTPUT "/node_modules"));
        m_browser.start(u"node"_s,
            {QStringLiteral(KELUI_SOURCE "/tests/e2e/browser.js"),
                QStandardPaths::findExecutable(u"chromium"_s), QString::number(size.width()),
                QString::number(size.height())});
        return !address.isEmpty() && tell(u"open"_s, address);
    }
    bool press(const QStringList &keys) override
    {
        return std::all_of(
            keys.cbegin(), keys.cend(), [this](const QString &key) { return tell(u"press"_s, key); });
    }
    QImage picture() override
    {
        const QString path = m_folder.filePath(u"picture.png"_s);
        return tell(u"picture"_s, path) ? QImage(path) : QImage();
    }
    // It comes as JPEG, in the best quality that there is.
    int allowance() const override { return 10; }
    bool isClosed() override
    {
        const auto isTold = [this] { return tell(u"text"_s) && m_answer == u"The gallery is closed."; };
        const auto isGone = [this] { return m_gallery.processes().isEmpty(); };
        return m_gallery.waitForFinished(patience) && m_gallery.exitCode() == 0
            && QTest::qWaitFor(isTold, patience) && QTest::qWaitFor(isGone, patience);
    }

private:
    bool tell(const QString &verb, const QString &argument = {})
    {
        m_browser.write((verb + u' ' + argument + u'\n').toUtf8());
        const QString line = m_browser.line();
        const QJsonObject reply = QJsonDocument::fromJson(line.toUtf8()).object();
        m_answer = reply[u"answer"_s].toString();
        const bool isDone = reply[u"problems"_s].isArray() && reply[u"problems"_s].toArray().isEmpty();
        if (!isDone)
            qWarning("the browser: %s", qPrintable(line));
        return isDone;
    }

    QTemporaryDir m_folder;
    WebGallery m_gallery;
    Program m_browser;
    QString m_answer;
};

//! "Down*3 Return", one by one.
QStringList keys(const QString &text)
{
    QStringList result;
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words)
        result += QStringList(std::max(1, word.section(u'*', 1).toInt()), word.section(u'*', 0, 0));
    return result;
}

//! The keys of the remote that type on the keyboard of the page Search; knows where its keys are.
class Typist
{
public:
    QStringList type(QStringView text)
    {
        QStringList result;
        for (const QChar letter : text) {
            const auto row = std::find_if(m_rows.cbegin(), m_rows.cend(),
                [&](const QString &candidate) { return candidate.contains(letter); });
            result += move(int(row->indexOf(letter)), int(row - m_rows.cbegin())) << u"Return"_s;
        }
        return result;
    }
    //! The key is the third of the last row, and so is the one that leads back.
    QStringList switchLayout()
    {
        const QStringList result = move(0, lastRow) + keys(u"Right*2 Return"_s);
        m_rows = english;
        m_column = 2;
        return result;
    }

private:
    QStringList move(int column, int row)
    {
        QStringList result;
        // The columns of the last row are those of the others at its beginning only.
        if (m_row == lastRow) {
            result = QStringList(m_column, u"Left"_s) << u"Up"_s;
            m_column = 0;
            --m_row;
        }
        result += QStringList(std::abs(column - m_column), column < m_column ? u"Left"_s : u"Right"_s);
        result += QStringList(std::abs(row - m_row), row < m_row ? u"Up"_s : u"Down"_s);
        m_column = column;
        m_row = row;
        return result;
    }

    static constexpr int lastRow = 4;
    const QStringList russian{u"1234567890.,"_s, u"йцукенгшщзхъ"_s, u"фывапролджэё"_s, u"ячсмитьбю-_?"_s};
    const QStringList english{u"1234567890@"_s, u"qwertyuiop?"_s, u"asdfghjkl-_"_s, u"zxcvbnm.,"_s};
    QStringList m_rows = russian;
    int m_column = 0;
    int m_row = 0;
};

} // namespace

//! The gallery as a person uses it: real keys from outside of it, and what is to be seen then.
class tst_e2e : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walk_data();
    void walk();
    void isStopped_data();
    void isStopped();
    void twoAtOnce();
    void portIsTaken();

private:
    void look(Viewer &viewer, const QString &name);
    void accept(Viewer &viewer, const QString &reference);

    QImage m_lastAccepted;
};

void tst_e2e::walk_data()
{
    QTest::addColumn<bool>("isWeb");
    QTest::newRow("x11") << false;
    QTest::newRow("web") << true;
}

void tst_e2e::walk()
{
    QFETCH(const bool, isWeb);
    if (const QString reason = whyNotComparable(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QString absent = missing(isWeb ? QStringList{u"Xvnc"_s, u"websockify"_s, u"node"_s, u"chromium"_s}
                                         : QStringList{u"Xvfb"_s, u"xdotool"_s});
    if (!absent.isEmpty())
        QSKIP(qPrintable(absent + u" is not installed"_s));
    if (isWeb && !QFile::exists(QStringLiteral(KELUI_OUTPUT "/node_modules/playwright-core/package.json")))
        QSKIP("what drives the browser was not fetched");

    std::unique_ptr<Viewer> viewer;
    if (isWeb)
        viewer = std::make_unique<WebViewer>();
    else
        viewer = std::make_unique<X11Viewer>();
    QVERIFY(viewer->open());

    Typist typist;
    const struct
    {
        const char *name;
        QStringList keys;
    } stops[] = {
        {"start", {}},
        {"search", keys(u"Down*2"_s)},
        {"editing", keys(u"Return*2"_s)},
        {"russian", typist.type(u"кино")},
        {"english", typist.switchLayout()},
        {"both", typist.type(u"live24")},
        {"translated", keys(u"F4"_s)},
        {"back", keys(u"Escape*2"_s)},
        {"start", keys(u"F4 Up*2"_s)},
    };
    for (const auto &stop : stops) {
        QVERIFY(stop.keys.isEmpty() || viewer->press(stop.keys));
        look(*viewer, QLatin1String(stop.name));
        if (QTest::currentTestFailed())
            return;
    }
    QVERIFY(viewer->press({u"Escape"_s}));
    QVERIFY(viewer->isClosed());
}

//! Waits until there is to be seen what the reference shows.
void tst_e2e::look(Viewer &viewer, const QString &name)
{
    const QString reference = QStringLiteral(KELUI_REFERENCES "/%1.png").arg(name);
    if (qEnvironmentVariableIntValue("KELUI_ACCEPT") == 1)
        accept(viewer, reference);
    const QImage expected(reference);
    QVERIFY2(!expected.isNull(), qPrintable(reference + u" is missing; ./run test --accept makes it"_s));
    QImage actual;
    QImage marked;
    int count = 0;
    const auto isSeen = [&] {
        actual = viewer.picture();
        marked = difference(actual, expected, count, viewer.allowance());
        return count == 0;
    };
    if (QTest::qWaitFor(isSeen, patience))
        return;
    const QString prefix =
        QStringLiteral(KELUI_OUTPUT "/%1-%2").arg(name, QLatin1String(QTest::currentDataTag()));
    QVERIFY(actual.save(prefix + u"-actual.png"_s) && marked.save(prefix + u"-difference.png"_s));
    QFAIL(qPrintable(u"%1 pixels differ from %2; see\n  %3-actual.png\n  %3-difference.png"_s.arg(count).arg(
        reference, prefix)));
}

//! Takes as the reference what has stood still for longer than any animation pauses, but not than a cursor
//! blinks.
void tst_e2e::accept(Viewer &viewer, const QString &reference)
{
    constexpr int duration = 400;
    QImage last;
    QElapsedTimer still;
    const auto isStill = [&] {
        const QImage current = viewer.picture();
        if (current != last || !still.isValid())
            still.start();
        last = current;
        return last != m_lastAccepted && still.hasExpired(duration);
    };
    QVERIFY(QTest::qWaitFor(isStill, patience));
    m_lastAccepted = last;
    QVERIFY2(last.convertToFormat(QImage::Format_RGB888).save(reference), qPrintable(reference));
}

void tst_e2e::isStopped_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<bool>("isForAll");
    // As a terminal sends it.
    QTest::newRow("Ctrl-C") << SIGINT << true;
    QTest::newRow("interrupt") << SIGINT << false;
    QTest::newRow("terminate") << SIGTERM << false;
    QTest::newRow("hang up") << SIGHUP << false;
}

void tst_e2e::isStopped()
{
    QFETCH(const int, signal);
    QFETCH(const bool, isForAll);
    if (const QString absent = missing({u"Xvnc"_s, u"websockify"_s}); !absent.isEmpty())
        QSKIP(qPrintable(absent + u" is not installed"_s));
    WebGallery gallery;
    QVERIFY(!gallery.show().isEmpty());
    // The script, the X server, the proxy and the gallery.
    QVERIFY(gallery.processes().size() >= 4);
    const auto process = pid_t(gallery.processId());
    QCOMPARE(kill(isForAll ? -process : process, signal), 0);
    QVERIFY(gallery.waitForFinished(patience));
    QCOMPARE(gallery.exitCode(), 128 + signal);
    QTRY_COMPARE(gallery.processes(), QStringList());
    QVERIFY(gallery.isFolderEmpty());
}

void tst_e2e::twoAtOnce()
{
    if (const QString absent = missing({u"Xvnc"_s, u"websockify"_s}); !absent.isEmpty())
        QSKIP(qPrintable(absent + u" is not installed"_s));
    WebGallery one;
    WebGallery other;
    const QString address = one.show();
    QVERIFY(!address.isEmpty());
    const QString otherAddress = other.show();
    QVERIFY(!otherAddress.isEmpty());
    QVERIFY(address != otherAddress);
    QCOMPARE(one.state(), QProcess::Running);
}

void tst_e2e::portIsTaken()
{
    if (const QString absent = missing({u"Xvnc"_s, u"websockify"_s}); !absent.isEmpty())
        QSKIP(qPrintable(absent + u" is not installed"_s));
    WebGallery one;
    WebGallery other;
    const QString address = one.show();
    QVERIFY(!address.isEmpty());
    const QString port = address.section(u':', 2).chopped(1);
    other.setProcessChannelMode(QProcess::SeparateChannels);
    QCOMPARE(other.show(port), QString());
    QVERIFY(other.state() == QProcess::NotRunning || other.waitForFinished(patience));
    QCOMPARE(other.exitCode(), 1);
    const QString errors = QString::fromUtf8(other.readAllStandardError());
    QVERIFY2(errors.contains(u"run: cannot serve on port "_s + port), qPrintable(errors));
    QCOMPARE(other.processes(), QStringList());
}

QTEST_GUILESS_MAIN(tst_e2e)

#include "tst_e2e.moc"
