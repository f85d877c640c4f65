// SPDX-License-Identifier: MIT
#include "example.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

QString Example::name() const
{
    return m_name;
}

void Example::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    Q_EMIT nameChanged();
}

QString Example::fileName() const
{
    return u"examples/%1Example.qml"_s.arg(m_name);
}

QUrl Example::url() const
{
    return {u"qrc:/qt/qml/Kelui/Gallery/"_s + fileName()};
}

QString Example::code() const
{
    QFile file(u":/qt/qml/Kelui/Gallery/"_s + fileName());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString Example::markup() const
{
    // In this order: a comment, a text, a number, a type or a module, a property.
    static const QRegularExpression word(
        uR"((//[^\n]*)|("[^"\n]*")|\b(\d[\d.]*)\b|\b([A-Z]\w*)\b|\b([a-z][\w.]*)(?=:))"_s);
    static const QStringList colors{u"#8593a8"_s, u"#7fe3c4"_s, u"#ff9aa8"_s, u"#ffc247"_s, u"#9ecbff"_s};
    const QString text = code();
    QString result;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : word.globalMatch(text)) {
        result += text.mid(end, match.capturedStart() - end).toHtmlEscaped();
        result += u"<font color=\"%1\">%2</font>"_s.arg(
            colors.at(match.lastCapturedIndex() - 1), match.captured().toHtmlEscaped());
        end = match.capturedEnd();
    }
    result += text.mid(end).toHtmlEscaped();
    return u"<p style=\"white-space: pre-wrap\">%1</p>"_s.arg(result);
}
