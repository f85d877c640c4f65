// SPDX-License-Identifier: MIT
#include <QtCore/QFile>
#include <QtGui/QImage>
#include <QtQml/QQmlApplicationEngine>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;

//! The example with which the documentation begins.
class tst_hello : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void arrowsMoveTheFocus();
    void readmeQuotesIt();
};

namespace {

QString read(const QString &name)
{
    QFile file(QStringLiteral(KELUI_SOURCE_DIR) + u'/' + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

void tst_hello::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
}

void tst_hello::arrowsMoveTheFocus()
{
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(KELUI_QML_DIR));
    engine.load(QStringLiteral(KELUI_SOURCE_DIR) + u"/docs/examples/hello.qml"_s);
    QCOMPARE(engine.rootObjects().size(), 1);
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    QVERIFY(window);
    QVERIFY(QTest::qWaitForWindowActive(window));

    // Which of the three buttons shows the colour of the focus.
    const auto focused = [window] {
        const QImage picture = window->grabWindow();
        QList<int> buttons;
        for (int button = 0; button < 3; ++button) {
            if (picture.pixelColor(30 + (button * 204), 30) == QColor(u"gold"_s))
                buttons += button;
        }
        return buttons;
    };
    QCOMPARE(focused(), QList<int>{0});
    QTest::keyClick(window, Qt::Key_Left);
    QCOMPARE(focused(), QList<int>{0});
    for (const int expected : {1, 2, 2}) {
        QTest::keyClick(window, Qt::Key_Right);
        QCOMPARE(focused(), QList<int>{expected});
    }
    QTest::keyClick(window, Qt::Key_Left);
    QCOMPARE(focused(), QList<int>{1});
}

void tst_hello::readmeQuotesIt()
{
    QString example = read(u"docs/examples/hello.qml"_s);
    example.remove(0, example.indexOf(u'\n') + 1); // the line of the licence
    QVERIFY(!example.isEmpty());
    QVERIFY(read(u"README.md"_s).contains(u"```qml\n"_s + example + u"```\n"_s));
}

QTEST_MAIN(tst_hello)

#include "tst_hello.moc"
