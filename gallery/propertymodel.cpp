// SPDX-License-Identifier: MIT
#include "propertymodel.h"

#include <QtCore/QEasingCurve>
#include <QtCore/QMetaEnum>
#include <QtCore/QMetaProperty>
#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>
#include <QtGui/QFont>
#include <QtQml/QJSValue>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto moduleName = "Kelui.UI.Qml.Controls.Generic";

struct Range
{
    const char *pattern;
    double step;
    double least;
    double most;
};

// The first that a name contains, in any case, decides. What would make a view or a layout senseless is left
// out.
constexpr std::array ranges{
    Range{.pattern = "opacity|^position$", .step = 0.1, .least = 0, .most = 1},
    Range{.pattern = "pixelSize", .step = 2, .least = 8, .most = 96},
    Range{.pattern = "duration|interval", .step = 40, .least = 0, .most = 2000},
    Range{.pattern = "speed", .step = 1, .least = -16, .most = 16},
    Range{.pattern = "span", .step = 1, .least = 1, .most = 8},
    Range{.pattern = "iconCount|currentIcon", .step = 1, .least = 0, .most = 3},
    Range{.pattern = "count|index|frame$", .step = 1, .least = 0, .most = 10},
    Range{.pattern = "deg$", .step = 10, .least = 0, .most = 360},
    Range{.pattern = "border|line|cursor|frameWidth", .step = 1, .least = 0, .most = 40},
    Range{.pattern = "^key|element", .step = 8, .least = 24, .most = 240},
    Range{.pattern = "fixedWidth|fixedHeight$", .step = 10, .least = -1, .most = 600},
    Range{.pattern = "width|height", .step = 10, .least = 0, .most = 600},
    Range{.pattern = "spacing|padding|margin|radius", .step = 4, .least = 0, .most = 200},
    Range{.pattern = "", .step = 1, .least = -1000, .most = 1000},
};

struct Samples
{
    const char *pattern;
    QStringList values;
};

// By type and name of the property; the first that matches.
const QList<Samples> &samples()
{
    static const QList<Samples> all{
        {"Image\\.",
            {u"pictures/poster-whale.svg"_s, u"pictures/poster-rocket.svg"_s, u"pictures/dunes.svg"_s}},
        {"\\.image(Left|Right)$", {u"pictures/busy-first.svg"_s, u"pictures/busy-second.svg"_s}},
        {"(source|Path)$", {u"icons/play.svg"_s, u"icons/heart.svg"_s, u"icons/television.svg"_s, QString()}},
        {"\\.inputMask$", {QString(), u"XXXX-XXXX;_"_s}},
        {"",
            {u"Live now"_s, u"Кино и сериалы"_s, u"A text so long that it has to look for room"_s,
                u"שידור חי"_s, QString()}},
    };
    return all;
}

// Which enumeration a plain integer stands for; of KelGlobal, where no other type is named.
struct Enumeration
{
    const char *property;
    const char *name;
    const char *type = "KelGlobal";
};
constexpr std::array enumerations{
    Enumeration{.property = "Icon.coloringMethod", .name = "ColoringMethod", .type = "KelImageColorizer*"},
    Enumeration{.property = "Key.layout", .name = "KeyboardLayoutType"},
    Enumeration{.property = "Key.type", .name = "KeyType"},
    Enumeration{.property = "Keyboard.layout", .name = "KeyboardLayoutType"},
    Enumeration{.property = "Keyboard.type", .name = "KeyboardType"},
    Enumeration{.property = "LineEdit.keyboardLayout", .name = "KeyboardLayoutType"},
};

// Inherited, yet of interest wherever a control has them.
const QStringList &inherited()
{
    static const QStringList all{u"text"_s, u"checked"_s, u"checkable"_s, u"enabled"_s, u"color"_s,
        u"border.color"_s, u"border.width"_s, u"image.source"_s, u"image.width"_s, u"image.height"_s,
        u"source"_s, u"fillMode"_s, u"mirror"_s, u"orientation"_s, u"currentIndex"_s, u"font.pixelSize"_s,
        u"spacing"_s, u"padding"_s, u"width"_s, u"height"_s, u"opacity"_s};
    return all;
}

//! The class in which a type of the module declares its properties, null where an object is not of that type.
const QMetaObject *declaringClass(const QObject &object, const QString &typeName)
{
    // Also the beginning of the name of an object's own type, where that adds properties.
    const QByteArray written = typeName.toLatin1() + "_QMLTYPE_";
    const QMetaObject *found = nullptr;
    for (const QMetaObject *type = object.metaObject(); type; type = type->superClass()) {
        if (QByteArrayView(type->className()).startsWith(written))
            found = type;
        // Qt has types of the same names.
        const int element = type->indexOfClassInfo("QML.Element");
        if (element >= type->classInfoOffset() && QByteArrayView(type->className()).startsWith("Kel")
            && typeName == QLatin1String(type->classInfo(element).value()))
            found = type;
    }
    return found;
}

QObject *findControl(QObject *object, const QString &typeName)
{
    if (!object || declaringClass(*object, typeName))
        return object;
    QObjectList below = object->children();
    if (const auto *item = qobject_cast<QQuickItem *>(object)) {
        const QList<QQuickItem *> items = item->childItems();
        for (QQuickItem *child : items)
            below += child;
    }
    for (QObject *child : std::as_const(below)) {
        if (QObject *found = findControl(child, typeName))
            return found;
    }
    return nullptr;
}

bool isMatch(const char *pattern, const QString &text)
{
    const QRegularExpression expression(
        QString::fromLatin1(pattern), QRegularExpression::CaseInsensitiveOption);
    return expression.match(text).hasMatch();
}

const Range &rangeOf(const QString &name)
{
    return *std::find_if(
        ranges.begin(), ranges.end(), [&](const Range &range) { return isMatch(range.pattern, name); });
}

//! What is in a map or a list, as C++ knows it. QQmlProperty takes lists of values for lists of objects, and
//! crashes.
QVariant parts(const QQmlProperty &property)
{
    const QVariant value = property.property().read(property.object());
    return value.metaType() == QMetaType::fromType<QJSValue>() ? value.value<QJSValue>().toVariant() : value;
}

QColor toColor(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QString>() ? QColor::fromString(value.toString())
                                                              : value.value<QColor>();
}

//! Only alignments have two keys at a time, and more than one name for some of them.
QString toKeys(QMetaEnum keys, int value)
{
    const int horizontal = value & Qt::AlignHorizontal_Mask;
    if (!keys.isFlag() || horizontal == 0 || horizontal == value)
        return QString::fromLatin1(keys.valueToKey(value));
    return QString::fromLatin1(keys.valueToKey(horizontal)) + u'|'
        + QString::fromLatin1(keys.valueToKey(value & Qt::AlignVertical_Mask));
}

QString join(const QVariantList &values)
{
    QStringList texts;
    for (const QVariant &value : values)
        texts += value.toString();
    return texts.join(u' ');
}

} // namespace

QString PropertyModel::typeName() const
{
    return m_typeName;
}

void PropertyModel::setTypeName(const QString &name)
{
    if (name == m_typeName)
        return;
    m_typeName = name;
    Q_EMIT typeNameChanged();
    rebuild();
}

QObject *PropertyModel::sample() const
{
    return m_sample;
}

void PropertyModel::setSample(QObject *sample)
{
    if (sample == m_sample)
        return;
    m_sample = sample;
    Q_EMIT sampleChanged();
    rebuild();
}

QObject *PropertyModel::control() const
{
    return m_control;
}

QList<QColor> PropertyModel::palette() const
{
    return m_palette;
}

void PropertyModel::setPalette(const QList<QColor> &palette)
{
    if (palette == m_palette)
        return;
    m_palette = palette;
    Q_EMIT paletteChanged();
}

int PropertyModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QHash<int, QByteArray> PropertyModel::roleNames() const
{
    return {{NameRole, "name"}, {KindRole, "kind"}, {ValueRole, "value"}, {ColorRole, "swatch"},
        {WritableRole, "isWritable"}};
}

QVariant PropertyModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case NameRole:
        return row.name;
    case KindRole:
        return row.kind;
    case ValueRole:
        return toText(row);
    case ColorRole:
        return row.kind == Color ? toColor(value(row)) : QColor(Qt::transparent);
    case WritableRole:
        return isWritable(row);
    default:
        return {};
    }
}

void PropertyModel::change(int row, int steps)
{
    if (row < 0 || row >= m_rows.size() || !m_control || !isWritable(m_rows.at(row)))
        return;
    write(m_rows.at(row), stepped(m_rows.at(row), steps));
}

void PropertyModel::rebuild()
{
    beginResetModel();
    m_rows.clear();
    m_control = findControl(m_sample, m_typeName);
    // The engine alone has the singletons.
    if (QQmlEngine *engine = m_sample && !m_control ? qmlEngine(m_sample) : nullptr)
        m_control = engine->singletonInstance<QObject *>(moduleName, m_typeName);
    if (m_control) {
        const QMetaObject *type = m_control->metaObject();
        if (const QMetaObject *declaring = declaringClass(*m_control, m_typeName))
            type = declaring;
        for (int i = type->propertyOffset(); i < type->propertyCount(); ++i)
            addProperty(QString::fromLatin1(type->property(i).name()));
        const auto isShown = [this](const QString &path) {
            return std::any_of(
                m_rows.cbegin(), m_rows.cend(), [&](const Row &row) { return row.name.startsWith(path); });
        };
        const bool hasFont = std::any_of(
            m_rows.cbegin(), m_rows.cend(), [](const Row &row) { return row.name.endsWith(u".pixelSize"); });
        for (const QString &path : inherited()) {
            const bool isNeeded = !isShown(path) && !(hasFont && path == u"font.pixelSize");
            if (isNeeded && QQmlProperty(m_control, path, qmlContext(m_control)).isWritable())
                addProperty(path);
        }
    }
    endResetModel();
    Q_EMIT controlChanged();
}

void PropertyModel::addProperty(const QString &path)
{
    const QQmlProperty property(m_control, path, qmlContext(m_control));
    const QMetaType type = property.propertyMetaType();
    if (const QList<Option> options = choices(property); !options.isEmpty()) {
        addRow(path, Choice, property, options);
    } else if (type == QMetaType::fromType<bool>()) {
        addRow(path, Bool, property);
    } else if (type == QMetaType::fromType<int>()) {
        addRow(path, Integer, property);
    } else if (type == QMetaType::fromType<double>()) {
        addRow(path, Real, property);
    } else if (type == QMetaType::fromType<QColor>()) {
        addRow(path, Color, property);
    } else if (type == QMetaType::fromType<QString>() || type == QMetaType::fromType<QUrl>()) {
        addRow(path, String, property, texts(property));
    } else if (type == QMetaType::fromType<QSizeF>()) {
        addProperty(path + u".width"_s);
        addProperty(path + u".height"_s);
    } else if (type == QMetaType::fromType<QFont>()) {
        addProperty(path + u".pixelSize"_s);
    } else if (type == QMetaType::fromType<QVariant>() || type == QMetaType::fromType<QList<QColor>>()) {
        addColors(property);
    } else if (!property.property().isWritable()
        && (type == QMetaType::fromType<QStringList>() || type == QMetaType::fromType<QList<double>>())) {
        addRow(path, List, property);
    }
}

void PropertyModel::addColors(const QQmlProperty &property)
{
    const QVariant value = parts(property);
    if (value.metaType() == QMetaType::fromType<QVariantMap>()) {
        const QVariantMap map = value.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it) {
            if (toColor(it.value()).isValid())
                addRow(property.name() + u'.' + it.key(), Color, property, {}, it.key());
        }
    } else if (value.metaType() == QMetaType::fromType<QList<QColor>>()) {
        const auto count = value.value<QList<QColor>>().size();
        for (qsizetype i = 0; i < count; ++i)
            addRow(u"%1[%2]"_s.arg(property.name()).arg(i), Color, property, {}, QString::number(i));
    }
}

void PropertyModel::addRow(const QString &name, Kind kind, const QQmlProperty &property,
    const QList<Option> &options, const QString &key)
{
    static const int slot = staticMetaObject.indexOfSlot("updateSender()");
    m_rows.append({name, kind, property, options, key});
    const int signal = property.property().notifySignalIndex();
    if (signal >= 0)
        QMetaObject::connect(property.object(), signal, this, slot, Qt::UniqueConnection);
}

void PropertyModel::updateSender()
{
    for (int i = 0; i < m_rows.size(); ++i) {
        const QQmlProperty &property = m_rows.at(i).property;
        if (property.object() == sender() && property.property().notifySignalIndex() == senderSignalIndex())
            Q_EMIT dataChanged(index(i), index(i), {ValueRole, ColorRole});
    }
}

//! What it holds now, so that steps lead back to it, and some samples.
QList<PropertyModel::Option> PropertyModel::texts(const QQmlProperty &property) const
{
    const QString now = property.read().toString();
    const QString name = m_typeName + u'.' + property.name();
    const auto found = std::find_if(samples().cbegin(), samples().cend(),
        [&](const Samples &candidates) { return isMatch(candidates.pattern, name); });
    QList<Option> result{{{}, now}};
    for (const QString &text : found->values) {
        const QString value = text.endsWith(u".svg") ? u"qrc:/qt/qml/Kelui/Gallery/assets/"_s + text : text;
        if (value != now)
            result.append({{}, value});
    }
    return result;
}

QList<PropertyModel::Option> PropertyModel::choices(const QQmlProperty &property) const
{
    const QString name = m_typeName + u'.' + property.name();
    const auto listed = std::find_if(enumerations.begin(), enumerations.end(),
        [&](const Enumeration &enumeration) { return name == QLatin1String(enumeration.property); });
    QMetaEnum keys;
    QList<int> values;
    if (listed != enumerations.end()) {
        const QMetaObject *owner = QMetaType::fromName(listed->type).metaObject();
        if (!owner) {
            const auto *singleton = qmlEngine(m_sample)->singletonInstance<QObject *>(
                moduleName, QString::fromLatin1(listed->type));
            owner = singleton ? singleton->metaObject() : nullptr;
        }
        if (owner)
            keys = owner->enumerator(owner->indexOfEnumerator(listed->name));
    } else if (name.endsWith(u"EasingType")) {
        keys = QMetaEnum::fromType<QEasingCurve::Type>();
        values = {QEasingCurve::Linear, QEasingCurve::InOutQuad, QEasingCurve::OutCubic,
            QEasingCurve::OutBack, QEasingCurve::OutBounce, QEasingCurve::BezierSpline};
    } else if (name.endsWith(u"horizontalAlignment")) {
        keys = QMetaEnum::fromType<Qt::Alignment>();
        values = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    } else if (name.endsWith(u"verticalAlignment")) {
        keys = QMetaEnum::fromType<Qt::Alignment>();
        values = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
    } else if (name.endsWith(u"titleAlignment", Qt::CaseInsensitive)) {
        keys = QMetaEnum::fromType<Qt::Alignment>();
        values = {Qt::AlignLeft | Qt::AlignTop, Qt::AlignHCenter | Qt::AlignTop,
            Qt::AlignRight | Qt::AlignTop, Qt::AlignLeft | Qt::AlignBottom,
            Qt::AlignHCenter | Qt::AlignBottom, Qt::AlignRight | Qt::AlignBottom};
    } else if (name.endsWith(u".echoMode")) {
        return {{u"Normal"_s, 0}, {u"NoEcho"_s, 1}, {u"Password"_s, 2}, {u"PasswordEchoOnEdit"_s, 3}};
    } else if (property.property().isEnumType()) {
        keys = property.property().enumerator();
    }
    if (values.isEmpty()) {
        for (int i = 0; i < keys.keyCount(); ++i) {
            if (!values.contains(keys.value(i)))
                values += keys.value(i);
        }
    }
    QList<Option> result;
    for (const int value : std::as_const(values))
        result.append({toKeys(keys, value), value});
    return result;
}

QVariant PropertyModel::value(const Row &row)
{
    if (row.key.isEmpty() && row.kind != List)
        return row.property.read();
    QVariant all = parts(row.property);
    if (row.kind == List)
        return all;
    return all.metaType() == QMetaType::fromType<QVariantMap>()
        ? all.toMap().value(row.key)
        : QVariant(all.value<QList<QColor>>().value(row.key.toInt()));
}

bool PropertyModel::isWritable(const Row &row)
{
    return row.kind != List && row.property.property().isWritable();
}

void PropertyModel::write(const Row &row, const QVariant &value)
{
    if (row.key.isEmpty()) {
        row.property.write(value);
        return;
    }
    const QVariant all = parts(row.property);
    if (all.metaType() == QMetaType::fromType<QVariantMap>()) {
        QVariantMap map = all.toMap();
        map[row.key] = value;
        row.property.write(map);
    } else {
        auto list = all.value<QList<QColor>>();
        list[row.key.toInt()] = value.value<QColor>();
        row.property.property().write(row.property.object(), QVariant::fromValue(list));
    }
}

QString PropertyModel::toText(const Row &row)
{
    const QVariant now = value(row);
    switch (row.kind) {
    case Bool:
    case Integer:
        return now.toString();
    case Real:
        return QString::number(now.toDouble(), 'g', 6);
    case Choice:
        for (const Option &option : row.options) {
            if (option.value.toInt() == now.toInt())
                return option.name;
        }
        return QString::number(now.toInt());
    case Color: {
        const QColor color = toColor(now);
        return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
    }
    case String: {
        const QString text = now.toString();
        return text.startsWith(u"qrc:") ? text.section(u'/', -1) : u'"' + text + u'"';
    }
    case List:
        return join(now.toList());
    }
    return {};
}

QVariant PropertyModel::stepped(const Row &row, int steps) const
{
    QVariant now = value(row);
    // To the next of some; what is none of them comes before the first.
    const auto next = [steps](qsizetype current, qsizetype count) {
        const qsizetype from = current < 0 && steps < 0 ? 0 : current;
        return ((from + steps) % count + count) % count;
    };
    switch (row.kind) {
    case Bool:
        return !now.toBool();
    case Integer:
    case Real: {
        const Range &range = rangeOf(row.name);
        const double to = std::clamp(now.toDouble() + steps * range.step, range.least, range.most);
        return row.kind == Integer ? QVariant(static_cast<int>(to)) : QVariant(to);
    }
    case Choice:
    case String: {
        const auto isCurrent = [&](const Option &option) {
            return row.kind == Choice ? option.value.toInt() == now.toInt()
                                      : option.value.toString() == now.toString();
        };
        const auto found = std::find_if(row.options.cbegin(), row.options.cend(), isCurrent);
        const qsizetype current = found == row.options.cend() ? -1 : found - row.options.cbegin();
        return row.options.at(next(current, row.options.size())).value;
    }
    case Color:
        return m_palette.isEmpty()
            ? now
            : QVariant(m_palette.at(next(m_palette.indexOf(toColor(now)), m_palette.size())));
    case List:
        break;
    }
    return now;
}
