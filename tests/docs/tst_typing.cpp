// SPDX-License-Identifier: MIT
#include <QtQml/QQmlApplicationEngine>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;

//! The example of the page on text entry.
class tst_typing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysOfTheRemoteType();
};

void tst_typing::keysOfTheRemoteType()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(KELUI_QML_DIR));
    engine.load(QStringLiteral(KELUI_SOURCE_DIR) + u"/docs/examples/typing.qml"_s);
    QCOMPARE(engine.rootObjects().size(), 1);
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    QVERIFY(window);
    QVERIFY(QTest::qWaitForWindowActive(window));
    QVERIFY(!window->grabWindow().isNull()); // The keys have their places.
    const auto *field = window->findChild<QObject *>(u"field"_s);
    const auto *keyboard = window->findChild<QObject *>(u"keyboard"_s);
    QVERIFY(field && keyboard);

    const auto press = [window](const QList<Qt::Key> &keys) {
        for (const Qt::Key key : keys) {
            QTest::keyClick(window, key);
            window->grabWindow();
        }
    };
    press({Qt::Key_Return, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return, Qt::Key_Left, Qt::Key_Left});
    QCOMPARE(field->property("text").toString(), u"1w"_s);
    press({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return});
    QCOMPARE(keyboard->property("layout").toInt(), 0);
    // The focus is on the key that leads back; above its row is the Russian one.
    press({Qt::Key_Up, Qt::Key_Return, Qt::Key_7});
    QCOMPARE(field->property("text").toString(), u"1wс7"_s);
    QCOMPARE(field->property("cursorPosition").toInt(), 3);
    press({Qt::Key_Down, Qt::Key_Return});
    QCOMPARE(keyboard->property("layout").toInt(), 1);
}

QTEST_MAIN(tst_typing)

#include "tst_typing.moc"
