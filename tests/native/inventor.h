// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QUrl>
#include <QtCore/QVariant>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QImage>

#include <algorithm>
#include <array>
#include <limits>
#include <random>

//! Whether this is what Qt says of a value that it cannot convert.
inline bool isConversionComplaint(const QString &message)
{
    constexpr std::array complaints{QLatin1StringView("Could not find any constructor for value type "),
        QLatin1StringView("QFont::fromString: Invalid description"),
        QLatin1StringView("QMetaEnum::keysToValue: ")};
    return std::any_of(complaints.begin(), complaints.end(),
        [&](QLatin1StringView complaint) { return message.startsWith(complaint); });
}

//! Makes values up. The same seed makes up the same values.
class Inventor
{
public:
    explicit Inventor(uint seed)
        : m_random(seed)
    {
    }

    int upTo(int limit) { return std::uniform_int_distribution<int>(0, limit)(m_random); }
    bool chance(int percent) { return upTo(99) < percent; }
    template <typename T>
    T oneOf(std::initializer_list<T> values)
    {
        return *(values.begin() + upTo(int(values.size()) - 1));
    }

    int number()
    {
        using Limits = std::numeric_limits<int>;
        if (chance(50))
            return upTo(300) - 20;
        if (chance(50))
            return int(m_random());
        return oneOf({Limits::min(), Limits::min() + 1, -32769, -1, 0, 1, 32767, 32768, 65536, 1 << 30,
            Limits::max() - 1, Limits::max()});
    }

    double real()
    {
        using Limits = std::numeric_limits<double>;
        if (chance(50))
            return upTo(3000) / 10.0 - 20;
        return oneOf({Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(),
            Limits::lowest(), Limits::min(), Limits::denorm_min(), -0.0, 0.0, 0.49, 0.5, 1.0, 1e5, 1e10,
            1e300, 2147483647.0, 2147483648.0, -2147483648.0, -2147483649.0, 4294967296.0, -1e-300});
    }

    QString string()
    {
        using namespace Qt::StringLiterals;
        switch (upTo(7)) {
        case 0:
            return {};
        case 1:
            return QString::number(number());
        case 2:
            return QString(QChar(u'a' + upTo(25))).repeated(upTo(3000));
        case 3:
            return QString(QChar(0xd800 + upTo(0x7ff))) + u"x"_s + QChar(0);
        case 4:
            return u"Слово и 字 и ערוץ 👩‍👩‍👧 \u2028 конец\n\tLast <b>line</b>"_s;
        case 5:
            return oneOf(
                {u"red"_s, u"#80123456"_s, u"#12"_s, u"transparent"_s, u"nan"_s, u"true"_s, u"0x10"_s});
        case 6:
            return u"один two "_s.repeated(upTo(200));
        default:
            return u"Title"_s;
        }
    }

    QColor color()
    {
        switch (upTo(4)) {
        case 0:
            return {};
        case 1:
            return QColor::fromHsv(upTo(359), upTo(255), upTo(255), upTo(255));
        case 2:
            return QColor::fromRgbF(2.5F, -1.0F, 0.5F);
        case 3:
            return QColor::fromCmyk(upTo(255), upTo(255), upTo(255), upTo(255));
        default:
            return QColor::fromRgba(m_random());
        }
    }

    QFont font()
    {
        using namespace Qt::StringLiterals;
        QFont font(oneOf({u"DejaVu Sans"_s, u"DejaVu Serif"_s, u"No such font"_s, QString()}));
        if (chance(70))
            font.setPixelSize(1 + upTo(chance(90) ? 80 : 2000));
        else if (chance(70))
            font.setPointSizeF(0.1 + upTo(100));
        font.setBold(chance(30));
        font.setItalic(chance(20));
        font.setUnderline(chance(20));
        font.setStretch(chance(10) ? 1 + upTo(3999) : 100);
        font.setLetterSpacing(QFont::AbsoluteSpacing, chance(10) ? upTo(2000) - 1000 : 0);
        font.setWordSpacing(chance(10) ? upTo(2000) - 1000 : 0);
        return font;
    }

    QBrush brush()
    {
        const QPointF from(upTo(100), upTo(100));
        const QPointF to(upTo(100), upTo(100));
        switch (upTo(5)) {
        case 0:
            return {};
        case 1:
            return {color(), Qt::BrushStyle(upTo(Qt::DiagCrossPattern))};
        case 2:
            return filled(QLinearGradient(from, to));
        case 3:
            return filled(QRadialGradient(from, upTo(100), to, upTo(100)));
        case 4:
            return filled(QConicalGradient(from, upTo(720)));
        default: {
            QImage tile(1 + upTo(20), 1 + upTo(20), QImage::Format_ARGB32_Premultiplied);
            tile.fill(color());
            return tile;
        }
        }
    }

    QObject *object() { return m_objects.at(upTo(int(m_objects.size()) - 1)); }
    void setObjects(const QObjectList &objects) { m_objects = objects; }

    //! Of any type at all.
    QVariant value()
    {
        switch (upTo(17)) {
        case 0:
            return {};
        case 1:
            return QVariant::fromValue(nullptr);
        case 2:
            return chance(50);
        case 3:
            return number();
        case 4:
            return real();
        case 5:
            return string();
        case 6:
            return color();
        case 7:
            return font();
        case 8:
            return brush();
        case 9:
            return QVariant::fromValue(object());
        case 10:
            return QVariantList{number(), string(), QVariant()};
        case 11:
            return QStringList{string(), string()};
        case 12:
            return QVariantMap{{string(), number()}};
        case 13:
            return QUrl(string());
        case 14:
            return QSizeF(real(), real());
        case 15:
            return QByteArray(upTo(20), char(upTo(255)));
        case 16:
            return QVariant::fromValue(Qt::Alignment::fromInt(number()));
        default:
            return qint64(number()) * number();
        }
    }

    //! Of this type where it is a common one.
    QVariant valueOf(QMetaType type)
    {
        using namespace Qt::StringLiterals;
        switch (type.id()) {
        case QMetaType::Bool:
            return chance(50);
        case QMetaType::Int:
            return number();
        case QMetaType::Double:
            return real();
        case QMetaType::QString:
            return string();
        case QMetaType::QColor:
            return color();
        case QMetaType::QFont:
            return font();
        case QMetaType::QBrush:
            return brush();
        case QMetaType::QUrl:
            return QUrl(u"http://a.example/"_s + string());
        default:
            if (type.flags() & QMetaType::IsEnumeration)
                return number();
            return type.flags() & QMetaType::PointerToQObject ? QVariant::fromValue(object()) : value();
        }
    }

private:
    QBrush filled(QGradient gradient)
    {
        gradient.setCoordinateMode(QGradient::CoordinateMode(upTo(3)));
        gradient.setSpread(QGradient::Spread(upTo(2)));
        for (int i = upTo(4); i > 0; --i)
            gradient.setColorAt(upTo(100) / 100.0, color());
        return gradient;
    }

    std::mt19937 m_random;
    QObjectList m_objects;
};
