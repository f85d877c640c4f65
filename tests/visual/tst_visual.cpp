// SPDX-License-Identifier: MIT
#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtTest/QTest>

#include "../pictures.h"

namespace {

struct Outcome
{
    int exitCode = -1;
    QString output;
    QString errors;
};

Outcome runGallery(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QML_IMPORT_PATH"));
    environment.remove(QStringLiteral("QML2_IMPORT_PATH"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(KELUI_GALLERY), arguments);
    if (!process.waitForFinished(300'000) || process.exitStatus() != QProcess::NormalExit)
        return {.exitCode = -1, .output = {}, .errors = process.errorString()};
    return {.exitCode = process.exitCode(),
        .output = QString::fromUtf8(process.readAllStandardOutput()),
        .errors = QString::fromUtf8(process.readAllStandardError())};
}

QStringList names(const QDir &folder)
{
    QStringList result;
    const QStringList files = folder.entryList({QStringLiteral("*.png")}, QDir::Files);
    for (const QString &file : files)
        result += file.chopped(4);
    return result;
}

} // namespace

//! Compares the gallery's pictures of itself with those in references/, and tests how it fails.
class tst_Visual : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void takesPicturesWithoutComplaint();
    void takesPicturesOfOnePage();
    void matchesReference_data();
    void matchesReference();
    void tellsThatTheModuleIsMissing_data();
    void tellsThatTheModuleIsMissing();
    void refusesWhatItCannotDo_data();
    void refusesWhatItCannotDo();

private:
    void accept() const;

    QDir m_output{QStringLiteral(KELUI_OUTPUT)};
    QDir m_shots{QStringLiteral(KELUI_OUTPUT "/shots")};
    QDir m_references{QStringLiteral(KELUI_REFERENCES)};
    Outcome m_outcome;
};

void tst_Visual::initTestCase()
{
    m_shots.removeRecursively();
    const QStringList old = names(m_output);
    for (const QString &name : old)
        m_output.remove(name + QStringLiteral(".png"));
    m_outcome = runGallery(
        {QStringLiteral("--shots"), m_shots.path(), QStringLiteral("--size"), QStringLiteral("1280x720")});
    QVERIFY2(m_outcome.exitCode == 0, qPrintable(m_outcome.errors));
    if (qEnvironmentVariableIntValue("KELUI_ACCEPT") == 1 && whyNotComparable().isEmpty())
        accept();
}

void tst_Visual::accept() const
{
    const QStringList old = names(m_references);
    for (const QString &name : old)
        QFile::remove(m_references.filePath(name + QStringLiteral(".png")));
    const QStringList current = names(m_shots);
    for (const QString &name : current) {
        const QString file = name + QStringLiteral(".png");
        QVERIFY2(QFile::copy(m_shots.filePath(file), m_references.filePath(file)), qPrintable(file));
    }
}

void tst_Visual::takesPicturesWithoutComplaint()
{
    QCOMPARE(m_outcome.errors, QString());
    // Each path is told once: two states of one name would overwrite each other.
    QStringList told = m_outcome.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    told.sort();
    QStringList made;
    const QStringList current = names(m_shots);
    for (const QString &name : current)
        made += m_shots.filePath(name + QStringLiteral(".png"));
    made.sort();
    QVERIFY(!made.isEmpty());
    QCOMPARE(told, made);
}

void tst_Visual::takesPicturesOfOnePage()
{
    QDir folder(m_output.filePath(QStringLiteral("page")));
    folder.removeRecursively();
    const Outcome outcome = runGallery({QStringLiteral("--shots"), folder.path(), QStringLiteral("--page"),
        QStringLiteral("imagecolorizer")});
    QCOMPARE(outcome.exitCode, 0);
    QStringList made = names(folder);
    made.sort();
    const QStringList expected{QStringLiteral("ImageColorizer"), QStringLiteral("ImageColorizer-focused"),
        QStringLiteral("ImageColorizer-try")};
    QCOMPARE(made, expected);
}

void tst_Visual::matchesReference_data()
{
    const QString reason = whyNotComparable();
    if (!reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTest::addColumn<QString>("name");
    QStringList all = names(m_shots) + names(m_references);
    all.removeDuplicates();
    for (const QString &name : std::as_const(all))
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Visual::matchesReference()
{
    QFETCH(const QString, name);
    const QString file = name + QStringLiteral(".png");
    const QString shot = m_shots.filePath(file);
    const QString reference = m_references.filePath(file);
    QVERIFY2(QFile::exists(reference),
        qPrintable(
            QStringLiteral("%1 has no reference %2; ./run test --accept makes it").arg(shot, reference)));
    QVERIFY2(QFile::exists(shot),
        qPrintable(QStringLiteral("the gallery does not make the picture of %1").arg(reference)));
    const QImage actual(shot);
    const QImage expected(reference);
    QVERIFY(!actual.isNull());
    QVERIFY(!expected.isNull());

    int count = 0;
    const QImage marked = difference(actual, expected, count);
    if (count == 0)
        return;
    const QString prefix = m_output.filePath(name);
    const QString actualPath = prefix + QStringLiteral("-actual.png");
    const QString expectedPath = prefix + QStringLiteral("-expected.png");
    const QString differencePath = prefix + QStringLiteral("-difference.png");
    QVERIFY(actual.save(actualPath) && expected.save(expectedPath) && marked.save(differencePath));
    QFAIL(qPrintable(QStringLiteral("%1 pixels differ; see\n  %2\n  %3\n  %4")
            .arg(count)
            .arg(actualPath, expectedPath, differencePath)));
}

void tst_Visual::tellsThatTheModuleIsMissing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("pictures") << QStringList{
        QStringLiteral("--shots"), m_output.filePath(QStringLiteral("none"))};
    QTest::newRow("window") << QStringList();
}

void tst_Visual::tellsThatTheModuleIsMissing()
{
    QFETCH(QStringList, arguments);
    const QString empty = m_output.filePath(QStringLiteral("empty"));
    QVERIFY(QDir().mkpath(empty));
    const Outcome outcome = runGallery(arguments << QStringLiteral("--import") << empty);
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.output, QString());
    QVERIFY2(outcome.errors.contains(QStringLiteral("module Kelui.UI.Qml.Controls.Generic is missing")),
        qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains(empty), qPrintable(outcome.errors));
}

void tst_Visual::refusesWhatItCannotDo_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("page") << QStringList{QStringLiteral("--page"), QStringLiteral("Nowhere")}
                          << QStringLiteral("Nowhere");
    QTest::newRow("size") << QStringList{QStringLiteral("--size"), QStringLiteral("wide")}
                          << QStringLiteral("wide");
    QTest::newRow("language") << QStringList{QStringLiteral("--language"), QStringLiteral("tlh")}
                              << QStringLiteral("tlh");
    QTest::newRow("folder") << QStringList{QStringLiteral("--shots"), QStringLiteral("/proc/none")}
                            << QStringLiteral("/proc/none");
}

void tst_Visual::refusesWhatItCannotDo()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, named);
    const Outcome outcome = runGallery(arguments);
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.contains(named), qPrintable(outcome.errors));
}

QTEST_GUILESS_MAIN(tst_Visual)

#include "tst_visual.moc"
