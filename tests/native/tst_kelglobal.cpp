// SPDX-License-Identifier: MIT
#include <QtCore/QMetaEnum>
#include <QtTest/QTest>

#include <bit>
#include <memory>

#include "kelglobal.h"

using namespace Qt::StringLiterals;

class tst_KelGlobal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void propertiesAreConstantAndInOrder_data();
    void propertiesAreConstantAndInOrder();
    void declaresNothingElse();
    void enumerationsArePlainAndInOrder_data();
    void enumerationsArePlainAndInOrder();
    void numberMaxValueIsTheLargestFiniteDouble();
    void readsAlikeEachTime();
    void isNamedByItsClass();
    void createGivesNewInstancesWithoutParent();
};

namespace {

const QMetaObject &meta = KelGlobal::staticMetaObject;

} // namespace

void tst_KelGlobal::propertiesAreConstantAndInOrder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QMetaType>("type");
    QTest::newRow("0") << "numberMaxValue"_ba << QMetaType::fromType<double>();
    QTest::newRow("1") << "numericLayout"_ba << QMetaType::fromType<QStringList>();
    QTest::newRow("2") << "russianLayout"_ba << QMetaType::fromType<QStringList>();
    QTest::newRow("3") << "russianAndNumericLayout"_ba << QMetaType::fromType<QStringList>();
    QTest::newRow("4") << "englishLayout"_ba << QMetaType::fromType<QStringList>();
    QTest::newRow("5") << "englishAndNumericLayout"_ba << QMetaType::fromType<QStringList>();
    QTest::newRow("6") << "symbolsLayout"_ba << QMetaType::fromType<QStringList>();
    QTest::newRow("7") << "symbolsAndNumericLayout"_ba << QMetaType::fromType<QStringList>();
}

void tst_KelGlobal::propertiesAreConstantAndInOrder()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QMetaType, type);
    const QMetaProperty property =
        meta.property(meta.propertyOffset() + QByteArray(QTest::currentDataTag()).toInt());
    QCOMPARE(QByteArray(property.name()), name);
    QCOMPARE(property.metaType(), type);
    QVERIFY(property.isReadable());
    QVERIFY(property.isConstant());
    QVERIFY(property.isFinal());
    QVERIFY(!property.isWritable());
    QVERIFY(!property.isResettable());
    QVERIFY(!property.hasNotifySignal());
}

void tst_KelGlobal::declaresNothingElse()
{
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 8);
    QCOMPARE(meta.enumeratorCount() - meta.enumeratorOffset(), 9);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 0);
}

void tst_KelGlobal::enumerationsArePlainAndInOrder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("firstKey");
    QTest::addColumn<QByteArray>("lastKey");
    QTest::addColumn<int>("keys");
    QTest::newRow("0") << "FocusingRuleFlag"_ba << "NoRule"_ba << "ReservedMaximum"_ba << 19;
    QTest::newRow("1") << "InteractiveElementFlag"_ba << "NoElementFlags"_ba << "ElementIsLayoutItem"_ba
                       << 27;
    QTest::newRow("2") << "InteractiveElementSelectionType"_ba << "ElementSelectionNormal"_ba
                       << "ElementSelectionMark"_ba << 3;
    QTest::newRow("3") << "KeyboardType"_ba << "NumericKeyboard"_ba << "AlphanumericKeyboard"_ba << 3;
    QTest::newRow("4") << "KeyboardLayoutType"_ba << "RussianLayout"_ba << "NumericLayout"_ba << 4;
    QTest::newRow("5") << "KeyType"_ba << "TextKey"_ba << "RightKey"_ba << 8;
    QTest::newRow("6") << "MediaBlockType"_ba << "MediaBlockUnknown"_ba << "MediaBlockWidgets"_ba << 34;
    QTest::newRow("7") << "ScrollDirection"_ba << "ScrollNotNeeded"_ba << "ScrollRight"_ba << 5;
    QTest::newRow("8") << "KeyPressEventType"_ba << "Pressed"_ba << "Released"_ba << 2;
}

void tst_KelGlobal::enumerationsArePlainAndInOrder()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, firstKey);
    QFETCH(const QByteArray, lastKey);
    QFETCH(const int, keys);
    const QMetaEnum enumeration =
        meta.enumerator(meta.enumeratorOffset() + QByteArray(QTest::currentDataTag()).toInt());
    QCOMPARE(QByteArray(enumeration.name()), name);
    // Flag types would turn a combination of values into something other than an integer in QML.
    QVERIFY(!enumeration.isFlag());
    QVERIFY(!enumeration.isScoped());
    QCOMPARE(enumeration.keyCount(), keys);
    QCOMPARE(QByteArray(enumeration.key(0)), firstKey);
    QCOMPARE(QByteArray(enumeration.key(keys - 1)), lastKey);
}

void tst_KelGlobal::numberMaxValueIsTheLargestFiniteDouble()
{
    QCOMPARE(std::bit_cast<quint64>(KelGlobal().numberMaxValue()), 0x7FEF'FFFF'FFFF'FFFFull);
}

void tst_KelGlobal::readsAlikeEachTime()
{
    const KelGlobal first;
    const KelGlobal second;
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
        const QMetaProperty property = meta.property(index);
        QCOMPARE(property.read(&first), property.read(&first));
        QCOMPARE(property.read(&second), property.read(&first));
    }
}

void tst_KelGlobal::isNamedByItsClass()
{
    QCOMPARE(QByteArray(meta.classInfo(meta.indexOfClassInfo("QML.Element")).value()), "auto"_ba);
    QCOMPARE(QByteArray(meta.classInfo(meta.indexOfClassInfo("QML.Singleton")).value()), "true"_ba);
}

void tst_KelGlobal::createGivesNewInstancesWithoutParent()
{
    const std::unique_ptr<KelGlobal> first(KelGlobal::create(nullptr, nullptr));
    const std::unique_ptr<KelGlobal> second(KelGlobal::create(nullptr, nullptr));
    QVERIFY(first);
    QVERIFY(second);
    QVERIFY(first != second);
    QVERIFY(!first->parent());
    QVERIFY(!second->parent());
    QObject owner;
    QCOMPARE((new KelGlobal(&owner))->parent(), &owner);
}

QTEST_GUILESS_MAIN(tst_KelGlobal)

#include "tst_kelglobal.moc"
