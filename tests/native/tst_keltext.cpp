// SPDX-License-Identifier: MIT
#include <QtTest/QTest>

#include "keltext.h"

class tst_KelText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty()
    {
        KelText text;
        QCOMPARE(text.text(), QString());
    }
};

QTEST_MAIN(tst_KelText)

#include "tst_keltext.moc"
