// SPDX-License-Identifier: MIT
#include <QtQml/QQmlEngine>
#include <QtQuickTest/quicktest.h>

#include "../../gallery/animationclock.h"
#include "remote.h"

class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral(KELUI_QML_DIR));
        qmlRegisterType<Remote>("TestTools", 1, 0, "Remote");
        qmlRegisterType<AnimationClock>("TestTools", 1, 0, "AnimationClock");
    }
};

QUICK_TEST_MAIN_WITH_SETUP(qml, Setup)

#include "main.moc"
