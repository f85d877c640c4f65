// SPDX-License-Identifier: MIT
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;

//! The table of components names all of them, and its links lead somewhere.
class tst_componentlist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAll();
    void linksLead();
};

namespace {

const QString docs = QStringLiteral(KELUI_SOURCE_DIR) + u"/docs"_s;

QString read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList captures(const QString &pattern, const QString &text)
{
    QStringList all;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    for (const QRegularExpressionMatch &match : expression.globalMatch(text))
        all += match.captured(1);
    return all;
}

} // namespace

void tst_componentlist::namesAll()
{
    const QDir module(QStringLiteral(KELUI_QML_DIR) + u"/Kelui/UI/Qml/Controls/Generic"_s);
    QStringList components =
        captures(uR"(^(?:singleton )?(\w+) 1\.0 qml/)"_s, read(module.filePath(u"qmldir"_s)))
        + captures(uR"(Generic/(\w+) 1\.0")"_s,
            read(module.filePath(u"qmlgenericcontrolsextensionplugin.qmltypes"_s)));
    QStringList listed = captures(uR"(^\| \[(\w+)\])"_s, read(docs + u"/components.md"_s));
    components.sort();
    listed.sort();
    QCOMPARE(components.size(), 29);
    QCOMPARE(listed, components);
}

void tst_componentlist::linksLead()
{
    const QStringList links = captures(uR"(\]\(([^)]+)\))"_s, read(docs + u"/components.md"_s));
    for (const QString &link : links)
        QVERIFY2(QFile::exists(docs + u'/' + link), qPrintable(link));
}

QTEST_GUILESS_MAIN(tst_componentlist)

#include "tst_componentlist.moc"
