// SPDX-License-Identifier: MIT
#include "language.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlExtensionPlugin>

using namespace Qt::StringLiterals;

#ifdef KELUI_IS_MODULE_STATIC
Q_IMPORT_QML_PLUGIN(Kelui_UI_Qml_Controls_GenericPlugin)
#endif

namespace {

// What the module asks to be translated is in none of the gallery's own files.
[[maybe_unused]] constexpr const char *moduleText = QT_TRANSLATE_NOOP("KeyItem", "SPACE_KEY");

QString fileName(const QString &code)
{
    return u":/i18n/gallery_%1.qm"_s.arg(code);
}

} // namespace

Language::Language(QQmlEngine *engine)
    : m_engine(engine)
{
    load(codes().constFirst());
}

Language *Language::create(QQmlEngine *engine, QJSEngine * /*scriptEngine*/)
{
    return new Language(engine);
}

QStringList Language::codes()
{
    QStringList result{u"en"_s};
    if (QFile::exists(fileName(u"ru"_s)))
        result += u"ru"_s;
    return result;
}

QString Language::systemCode()
{
    const QString code = QLocale::system().name().section(u'_', 0, 0);
    return codes().contains(code) ? code : codes().constFirst();
}

QString Language::code() const
{
    return m_code;
}

void Language::setCode(const QString &code)
{
    if (code == m_code || !codes().contains(code))
        return;
    load(code);
    m_engine->retranslate();
    Q_EMIT codeChanged();
}

void Language::load(const QString &code)
{
    QCoreApplication::removeTranslator(&m_translator);
    if (m_translator.load(fileName(code)))
        QCoreApplication::installTranslator(&m_translator);
    m_code = code;
}
