// SPDX-License-Identifier: MIT
#include "kelhelpers.h"

#include <QtCore/QUrlQuery>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

void addSize(QUrlQuery &query, const QString &key, double size)
{
    constexpr int largest = std::numeric_limits<int>::max();
    if (size > 0)
        query.addQueryItem(key, QString::number(size < largest ? int(size) : largest));
}

void addFlag(QUrlQuery &query, const QString &key, bool isSet)
{
    if (isSet)
        query.addQueryItem(key, u"true"_s);
}

} // namespace

KelHelpers::KelHelpers(QObject *parent)
    : QObject(parent)
{
}

KelHelpers *KelHelpers::create(QQmlEngine * /*engine*/, QJSEngine * /*scriptEngine*/)
{
    return new KelHelpers;
}

QUrl KelHelpers::imageUrl(const QUrl &url, double width, double height, bool keepRatio, bool borderless) const
{
    if (!url.isValid())
        return {};
    QUrlQuery query;
    addSize(query, u"width"_s, width);
    addSize(query, u"height"_s, height);
    addFlag(query, u"keep_ratio"_s, keepRatio);
    addFlag(query, u"borderless"_s, borderless);
    QUrl result = url;
    result.setQuery(query);
    return result;
}
