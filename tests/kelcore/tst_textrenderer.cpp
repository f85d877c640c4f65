// SPDX-License-Identifier: MIT
#include <QtTest/QTest>

#include "kelcore/textrenderer.h"

using kelcore::TextRenderer;

class tst_TextRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyTextHasNoSize()
    {
        TextRenderer renderer;
        renderer.relayout();
        QCOMPARE(renderer.boundingSize({}), QSize(0, 0));
    }
};

QTEST_MAIN(tst_TextRenderer)

#include "tst_textrenderer.moc"
