// SPDX-License-Identifier: MIT
#include "kelglobal.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

//! One key per character.
QStringList characterKeys(QStringView characters)
{
    QStringList keys;
    keys.reserve(characters.size());
    for (const QChar character : characters)
        keys.append(QString(character));
    return keys;
}

} // namespace

KelGlobal::KelGlobal(QObject *parent)
    : QObject(parent)
{
}

KelGlobal *KelGlobal::create(QQmlEngine * /*engine*/, QJSEngine * /*scriptEngine*/)
{
    return new KelGlobal;
}

double KelGlobal::numberMaxValue() const
{
    return std::numeric_limits<double>::max();
}

QStringList KelGlobal::numericLayout() const
{
    return characterKeys(u"1234567890") << u"backspace"_s;
}

QStringList KelGlobal::russianLayout() const
{
    return characterKeys(u"йцукенгшщзхъ"
                         u"фывапролджэё"
                         u"ячсмитьбю-_?")
        << u"capslock"_s << u"layout_symbols"_s << u"layout_eng"_s << u"space"_s << u"left"_s << u"right"_s
        << u"backspace"_s;
}

QStringList KelGlobal::russianAndNumericLayout() const
{
    return characterKeys(u"1234567890.,") << russianLayout();
}

QStringList KelGlobal::englishLayout() const
{
    return characterKeys(u"qwertyuiop?"
                         u"asdfghjkl-_"
                         u"zxcvbnm.,")
        << u"domain_com"_s << u"domain_ru"_s << u"capslock"_s << u"layout_symbols"_s << u"layout_rus"_s
        << u"space"_s << u"left"_s << u"right"_s << u"backspace"_s;
}

QStringList KelGlobal::englishAndNumericLayout() const
{
    return characterKeys(u"1234567890@") << englishLayout();
}

QStringList KelGlobal::symbolsLayout() const
{
    return characterKeys(u"1234567890"
                         u".,?!+-*/=@"
                         u":;—_%$&№^#")
        << u"layout_rus"_s << u"layout_eng"_s << u"space"_s << u"left"_s << u"right"_s << u"backspace"_s;
}

QStringList KelGlobal::symbolsAndNumericLayout() const
{
    return characterKeys(u"1234567890@"
                         u".,?!+-*/=\\'"
                         u":;—_%$&№^#|"
                         u"~`(){}<>[]\"")
        << u"layout_rus"_s << u"layout_eng"_s << u"space"_s << u"left"_s << u"right"_s << u"backspace"_s;
}
