// SPDX-License-Identifier: MIT
#include <QtQml/QQmlEngine>
#include <QtQuickTest/quicktest.h>

class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine *engine) { engine->addImportPath(QStringLiteral(KELUI_QML_DIR)); }
};

QUICK_TEST_MAIN_WITH_SETUP(qml, Setup)

#include "main.moc"
