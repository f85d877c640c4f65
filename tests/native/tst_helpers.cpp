// SPDX-License-Identifier: MIT
#include <QtQml/QJSValue>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtTest/QTest>

#include <limits>
#include <memory>

#include "kelhelpers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double numberMaxValue = std::numeric_limits<double>::max();

const QString picture = u"http://pictures.example/film.jpg"_s;

} // namespace

class tst_Helpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void interface();
    void sizesAndFlags_data();
    void sizesAndFlags();
    void addresses_data();
    void addresses();
    void invalidAddressesGiveAnEmptyOne_data();
    void invalidAddressesGiveAnEmptyOne();
    void argumentIsLeftAlone();
    void fromQml_data();
    void fromQml();
    void singletonOfAnEngine();
};

void tst_Helpers::interface()
{
    const QMetaObject &meta = KelHelpers::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QByteArrayList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        signatures += meta.method(i).methodSignature();
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Method);
        QVERIFY(meta.method(i).isConst());
        QCOMPARE(meta.method(i).returnMetaType(), QMetaType::fromType<QUrl>());
    }
    QCOMPARE(signatures,
        QByteArrayList({"imageUrl(QUrl,double,double,bool,bool)", "imageUrl(QUrl,double,double,bool)",
            "imageUrl(QUrl,double,double)"}));
    const std::unique_ptr<KelHelpers> first(KelHelpers::create(nullptr, nullptr));
    const std::unique_ptr<KelHelpers> second(KelHelpers::create(nullptr, nullptr));
    QVERIFY(first != second);
    QVERIFY(!first->parent());
}

void tst_Helpers::sizesAndFlags_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<bool>("keepRatio");
    QTest::addColumn<bool>("borderless");
    QTest::addColumn<QString>("query");
    QTest::newRow("sizes") << 320.7 << 180.2 << false << false << u"width=320&height=180"_s;
    QTest::newRow("all") << 320.7 << 180.2 << true << true
                         << u"width=320&height=180&keep_ratio=true&borderless=true"_s;
    QTest::newRow("width") << 320.0 << 0.0 << false << false << u"width=320"_s;
    QTest::newRow("height") << 0.0 << 180.0 << false << false << u"height=180"_s;
    QTest::newRow("keepRatio") << 0.0 << 0.0 << true << false << u"keep_ratio=true"_s;
    QTest::newRow("borderless") << 0.0 << 0.0 << false << true << u"borderless=true"_s;
    QTest::newRow("nothing") << 0.0 << 0.0 << false << false << QString();
    QTest::newRow("negative") << -5.0 << -0.5 << false << false << QString();
    QTest::newRow("negative zero") << -0.0 << 1.0 << false << false << u"height=1"_s;
    QTest::newRow("truncated") << 320.999999 << 1.5 << false << false << u"width=320&height=1"_s;
    QTest::newRow("less than a pixel") << 0.9 << 5e-324 << false << false << u"width=0&height=0"_s;
    QTest::newRow("large") << 100000.0 << 1234567.0 << false << false << u"width=100000&height=1234567"_s;
    QTest::newRow("largest int") << 2147483646.9 << 2147483647.0 << false << false
                                 << u"width=2147483646&height=2147483647"_s;
    QTest::newRow("beyond int") << 2147483648.0 << 1e300 << false << false
                                << u"width=2147483647&height=2147483647"_s;
    QTest::newRow("without limit") << numberMaxValue << infinity << false << false
                                   << u"width=2147483647&height=2147483647"_s;
    QTest::newRow("negative, without limit")
        << -numberMaxValue << -infinity << true << false << u"keep_ratio=true"_s;
    QTest::newRow("not a number") << notANumber << notANumber << false << true << u"borderless=true"_s;
}

void tst_Helpers::sizesAndFlags()
{
    QFETCH(const double, width);
    QFETCH(const double, height);
    QFETCH(const bool, keepRatio);
    QFETCH(const bool, borderless);
    QFETCH(const QString, query);
    const QUrl url = KelHelpers().imageUrl(picture, width, height, keepRatio, borderless);
    QCOMPARE(url.toString(), query.isEmpty() ? picture : picture + u'?' + query);
    QCOMPARE(url.hasQuery(), !query.isEmpty());
}

void tst_Helpers::addresses_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("encoded");
    const auto add = [](const char *tag, const QString &address, const QString &encoded) {
        QTest::newRow(tag) << address << encoded;
    };
    add("http", u"http://a.example/p.jpg"_s, u"http://a.example/p.jpg?width=100"_s);
    add("https, port, user", u"https://me@a.example:8443/p"_s, u"https://me@a.example:8443/p?width=100"_s);
    add("no path", u"http://a.example"_s, u"http://a.example?width=100"_s);
    add("root", u"http://a.example/"_s, u"http://a.example/?width=100"_s);
    add("local file", u"file:///srv/p.png"_s, u"file:///srv/p.png?width=100"_s);
    add("resource", u"qrc:/p.png"_s, u"qrc:/p.png?width=100"_s);
    add("provider", u"image://films/7"_s, u"image://films/7?width=100"_s);
    add("data", u"data:image/png;base64,AAAA"_s, u"data:image/png;base64,AAAA?width=100"_s);
    add("relative", u"pictures/p.png"_s, u"pictures/p.png?width=100"_s);
    add("relative, up", u"../p.png"_s, u"../p.png?width=100"_s);
    add("absolute path", u"/srv/p.png"_s, u"/srv/p.png?width=100"_s);
    add("fragment", u"http://a.example/p#top"_s, u"http://a.example/p?width=100#top"_s);
    add("fragment only", u"#top"_s, u"?width=100#top"_s);
    add("query", u"http://a.example/p?x=1"_s, u"http://a.example/p?width=100"_s);
    add("own query", u"http://a.example/p?width=5&keep_ratio=true"_s, u"http://a.example/p?width=100"_s);
    add("empty query", u"http://a.example/p?"_s, u"http://a.example/p?width=100"_s);
    add("query, fragment", u"http://a.example/p?x=1&y=%26#f?g"_s, u"http://a.example/p?width=100#f?g"_s);
    add("query only", u"?x=1"_s, u"?width=100"_s);
    add("spaces", u"http://a.example/two words.png"_s, u"http://a.example/two%20words.png?width=100"_s);
    add("encoded", u"http://a.example/a%2Fb%3Fc%23d%25"_s, u"http://a.example/a%2Fb%3Fc%23d%25?width=100"_s);
    add("Cyrillic", u"http://a.example/кино.png"_s,
        u"http://a.example/%D0%BA%D0%B8%D0%BD%D0%BE.png?width=100"_s);
    add("Cyrillic host", u"http://кино.рф/p"_s, u"http://xn--h1adke.xn--p1ai/p?width=100"_s);
    add("IPv6", u"http://[::1]:80/p"_s, u"http://[::1]:80/p?width=100"_s);
}

void tst_Helpers::addresses()
{
    QFETCH(const QString, address);
    QFETCH(QString, encoded);
    const QUrl url(address);
    QVERIFY(url.isValid());
    const KelHelpers helpers;
    QCOMPARE(helpers.imageUrl(url, 100, 0).toEncoded(), encoded.toUtf8());

    // All but the query stays, also where there is nothing to add.
    const QUrl bare = helpers.imageUrl(url, 0, 0);
    QCOMPARE(bare.adjusted(QUrl::RemoveQuery), url.adjusted(QUrl::RemoveQuery));
    QVERIFY(!bare.hasQuery());
    QCOMPARE(bare.toEncoded(), encoded.remove(u"?width=100"_s).toUtf8());
    // Twice is once.
    QCOMPARE(
        helpers.imageUrl(helpers.imageUrl(url, 7, 7, true, true), 100, 0), helpers.imageUrl(url, 100, 0));
}

void tst_Helpers::invalidAddressesGiveAnEmptyOne_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::newRow("empty") << QUrl();
    QTest::newRow("empty string") << QUrl(u""_s);
    QTest::newRow("port") << QUrl(u"http://a.example:99999/p"_s);
    QTest::newRow("bracket") << QUrl(u"http://[::1/p"_s);
    QTest::newRow("strict") << QUrl(u"http://a.example/two words"_s, QUrl::StrictMode);
    QTest::newRow("host") << QUrl(u"http://a b/p"_s);
}

void tst_Helpers::invalidAddressesGiveAnEmptyOne()
{
    QFETCH(const QUrl, url);
    QVERIFY(!url.isValid());
    const KelHelpers helpers;
    QCOMPARE(helpers.imageUrl(url, 0, 0), QUrl());
    QCOMPARE(helpers.imageUrl(url, 320, 180, true, true), QUrl());
    QVERIFY(helpers.imageUrl(url, 320, 180, true, true).isEmpty());
}

void tst_Helpers::argumentIsLeftAlone()
{
    const QUrl url(u"http://a.example/p?x=1#f"_s);
    KelHelpers().imageUrl(url, 100, 100, true, true);
    QCOMPARE(url.toString(), u"http://a.example/p?x=1#f"_s);
}

void tst_Helpers::fromQml_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QUrl>("url");
    const auto add = [](const QString &arguments, const QString &url) {
        QTest::newRow(qPrintable(arguments)) << arguments << QUrl(url);
    };
    add(u"'http://a.example/p', 320.9, 180"_s, u"http://a.example/p?width=320&height=180"_s);
    add(u"'http://a.example/p', 320, 180, true"_s,
        u"http://a.example/p?width=320&height=180&keep_ratio=true"_s);
    add(u"'http://a.example/p', 320, 180, false, true"_s,
        u"http://a.example/p?width=320&height=180&borderless=true"_s);
    add(u"'http://a.example/p', 320, 180, true, true"_s,
        u"http://a.example/p?width=320&height=180&keep_ratio=true&borderless=true"_s);
    add(u"new URL('http://a.example/p?x=1'), 10, 0"_s, u"http://a.example/p?width=10"_s);
    add(u"address, 10, 0"_s, u"http://a.example/q?width=10#f"_s);
    add(u"address, undefined, NaN"_s, u"http://a.example/q#f"_s);
    add(u"address, '12', null, 1, ''"_s, u"http://a.example/q?width=12&keep_ratio=true#f"_s);
    add(u"address, Infinity, -Infinity"_s, u"http://a.example/q?width=2147483647#f"_s);
    add(u"'p.png', 10, 0"_s, u"p.png?width=10"_s);
    add(u"'', 10, 10, true, true"_s, QString());
}

void tst_Helpers::fromQml()
{
    QFETCH(const QString, arguments);
    qmlRegisterSingletonType<KelHelpers>("Helping", 1, 0, "Helpers", &KelHelpers::create);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml\n"
                      "import Helping\n"
                      "QtObject {\n"
                      "    property url address: 'http://a.example/q?x=1#f'\n"
                      "    property url result: Helpers.imageUrl("
            + arguments.toUtf8() + ")\n}",
        {});
    const std::unique_ptr<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    QTEST(object->property("result").toUrl(), "url");
}

void tst_Helpers::singletonOfAnEngine()
{
    const int type = qmlRegisterSingletonType<KelHelpers>("Helping", 1, 0, "Helpers", &KelHelpers::create);
    QPointer<KelHelpers> helpers;
    {
        QQmlEngine engine;
        QQmlEngine other;
        helpers = engine.singletonInstance<KelHelpers *>(type);
        QVERIFY(helpers);
        QCOMPARE(engine.singletonInstance<KelHelpers *>(type), helpers);
        QVERIFY(other.singletonInstance<KelHelpers *>(type) != helpers);
    }
    QVERIFY(!helpers);
}

QTEST_MAIN(tst_Helpers)

#include "tst_helpers.moc"
