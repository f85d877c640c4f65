// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTranslator>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

//! The language of the gallery's texts, and of those that the module leaves to the application.
class Language : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    //! One of the codes; others are ignored.
    Q_PROPERTY(QString code READ code WRITE setCode NOTIFY codeChanged FINAL)
    Q_PROPERTY(QStringList codes READ codes CONSTANT FINAL)

public:
    explicit Language(QQmlEngine *engine);
    static Language *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    //! English first, in which the sources are written; the others as far as they were built in.
    static QStringList codes();
    //! That of the system where there is a translation, else English.
    static QString systemCode();

    QString code() const;
    void setCode(const QString &code);

Q_SIGNALS:
    void codeChanged();

private:
    void load(const QString &code);

    QQmlEngine *m_engine;
    QTranslator m_translator;
    QString m_code;
};
