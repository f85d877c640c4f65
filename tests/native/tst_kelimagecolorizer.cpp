// SPDX-License-Identifier: MIT
#include <QtCore/QMetaEnum>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtGui/QColorSpace>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/private/qquickimage_p.h>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>

#include "kelimagecolorizer.h"
#include "kelimagecolorizer_p.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto SourceAlpha = KelImageColorizer::SourceAlpha;
constexpr auto DestinationAlpha = KelImageColorizer::DestinationAlpha;

constexpr QRgb white = 0xffffffff;
constexpr QRgb black = 0xff000000;
constexpr QRgb transparent = 0x00000000;
constexpr QRgb red = 0xffff0000;
constexpr QRgb halfRed = 0x80ff0000;
constexpr QRgb blue = 0xff0000ff;

//! The recolouring one pixel at a time, said as plainly as can be.
QImage plainlyRecolored(
    const QImage &picture, QRgb color, KelImageColorizer::ColoringMethod method, int &lastAlpha)
{
    QImage result = picture.convertToFormat(QImage::Format_ARGB32);
    const quint32 paint = qRgba(qRed(color), qGreen(color), qBlue(color), 0);
    for (int x = 0; x < result.width(); ++x) {
        for (int y = 0; y < result.height(); ++y) {
            const QRgb pixel = result.pixel(x, y);
            const bool isColored = qRed(pixel) != 0 || qGreen(pixel) != 0 || qBlue(pixel) != 0;
            if (method == SourceAlpha) {
                if (isColored)
                    result.setPixel(x, y, qRgba(qRed(color), qGreen(color), qBlue(color), qAlpha(pixel)));
                continue;
            }
            if (!isColored && qAlpha(color) == 0)
                continue;
            int alpha = qAlpha(pixel);
            if (lastAlpha >= 1 && lastAlpha <= 254)
                alpha = (alpha * 255) / lastAlpha;
            alpha = (alpha * qAlpha(color)) / 255;
            result.setPixel(x, y, (quint32(alpha) << 24) | paint);
        }
    }
    if (method == DestinationAlpha && qAlpha(color) != 0)
        lastAlpha = qAlpha(color);
    return result;
}

QImage recolored(const QImage &picture, QRgb color, KelImageColorizer::ColoringMethod method, int &lastAlpha)
{
    if (method == SourceAlpha)
        return KelColorizing::withSourceAlpha(picture, color);
    const QImage result = KelColorizing::withDestinationAlpha(picture, color, lastAlpha);
    if (qAlpha(color) != 0)
        lastAlpha = qAlpha(color);
    return result;
}

//! Where two pictures differ first, or an empty string. Unlike ==, it sees the colour of transparent pixels.
QString difference(const QImage &actual, const QImage &expected)
{
    if (actual.format() != expected.format() || actual.size() != expected.size())
        return u"format or size"_s;
    for (int y = 0; y < expected.height(); ++y) {
        const auto *actualLine = reinterpret_cast<const QRgb *>(actual.constScanLine(y));
        const auto *expectedLine = reinterpret_cast<const QRgb *>(expected.constScanLine(y));
        for (int x = 0; x < expected.width(); ++x) {
            if (actualLine[x] != expectedLine[x]) {
                return u"at %1, %2: %3 instead of %4"_s.arg(x)
                    .arg(y)
                    .arg(actualLine[x], 8, 16, '0'_L1)
                    .arg(expectedLine[x], 8, 16, '0'_L1);
            }
        }
    }
    return {};
}

QRgb anyColor(QRandomGenerator &random)
{
    return random.generate();
}

//! Every alpha from left to right, with black, nearly black, white and arbitrary colours from top to bottom.
QImage allAlphas(QRandomGenerator &random)
{
    constexpr QRgb colors[] = {0x000000, 0x000001, 0x000100, 0x010000, 0xffffff};
    QImage picture(256, 8, QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = y < 5 ? colors[y] : anyColor(random);
            picture.setPixel(x, y, qRgba(qRed(color), qGreen(color), qBlue(color), x));
        }
    }
    return picture;
}

QImage indexed(QRandomGenerator &random)
{
    QImage picture(256, 4, QImage::Format_Indexed8);
    QList<QRgb> colors;
    for (int index = 0; index < 256; ++index)
        colors.append(index % 5 == 0 ? QRgb(index) << 24 : anyColor(random));
    picture.setColorTable(colors);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, y == 0 ? x : random.bounded(256));
    }
    return picture;
}

QImage pictureIn(QImage::Format format, QRandomGenerator &random)
{
    return format == QImage::Format_Indexed8 ? indexed(random) : allAlphas(random).convertToFormat(format);
}

QImage row(std::initializer_list<QRgb> pixels)
{
    QImage picture(int(pixels.size()), 1, QImage::Format_ARGB32);
    std::copy(pixels.begin(), pixels.end(), reinterpret_cast<QRgb *>(picture.bits()));
    return picture;
}

//! The pixels of a row, not premultiplied.
QList<QRgb> pixels(const QImage &picture)
{
    const QImage plain = picture.convertToFormat(QImage::Format_ARGB32);
    QList<QRgb> result;
    for (int x = 0; x < plain.width(); ++x)
        result.append(plain.pixel(x, 0));
    return result;
}

QRgb firstPixel(const QQuickImageBase &image)
{
    return pixels(image.image()).value(0);
}

void addMethods()
{
    QTest::addColumn<KelImageColorizer::ColoringMethod>("method");
    QTest::newRow("SourceAlpha") << SourceAlpha;
    QTest::newRow("DestinationAlpha") << DestinationAlpha;
}

} // namespace

class tst_KelImageColorizer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void everyFormatWithEveryAlpha_data();
    void everyFormatWithEveryAlpha();
    void everyLastAlpha();
    void everyPremultipliedPixel();
    void ignoredAlphaByte();
    void alphaWrapsAtEightBits();
    void sequencesOfColors_data();
    void sequencesOfColors();
    void partsOfPictures_data();
    void partsOfPictures();
    void emptyPictures_data();
    void emptyPictures();
    void metadataIsKept_data();
    void metadataIsKept();

    void propertiesInOrder_data();
    void propertiesInOrder();
    void methodsArePlain();
    void defaults();
    void settersSignalChangesOnly();
    void signalsComeBeforeTheRecoloring_data();
    void signalsComeBeforeTheRecoloring();

    void invalidColorChangesNothing();
    void sourceAlphaKeepsAlphaAndBlack();
    void blackIsFinalInSourceAlpha();
    void destinationAlphaUndoesTheLastAlpha();
    void transparentColorLeavesBlackAndIsNotRemembered();
    void opaqueColorPaintsBlackInDestinationAlpha();
    void methodsWithoutANameKeepAlpha();
    void disablingDoesNotRestore();
    void freshPictureIsDividedByTheLastAlphaToo();
    void cachedPictureIsLeftAlone();
    void equalIconsShareTheirPixels();

    void otherItemsAreKeptAndLeftAlone_data();
    void otherItemsAreKeptAndLeftAlone();
    void sameSourceItemDoesNothing();
    void followsItsSourceItemOnly();
    void waitsForTheImage();
    void errorLeavesAlone();
    void newSourceIsRecolored();
    void survivesItsSourceItem();

private:
    template <typename T = QQuickImage>
    std::unique_ptr<T> create(const QByteArray &type, const QByteArray &properties = {});
    std::unique_ptr<QQuickImage> imageOf(
        std::initializer_list<QRgb> pixels, const QByteArray &properties = {});
    QUrl file(std::initializer_list<QRgb> pixels);

    QQmlEngine m_engine;
    QTemporaryDir m_folder;
    int m_fileCount = 0;
};

template <typename T>
std::unique_ptr<T> tst_KelImageColorizer::create(const QByteArray &type, const QByteArray &properties)
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick\n" + type + " {" + properties + "}", {});
    return std::unique_ptr<T>(qobject_cast<T *>(component.create()));
}

QUrl tst_KelImageColorizer::file(std::initializer_list<QRgb> pixels)
{
    const QString name = m_folder.filePath(u"%1.png"_s.arg(++m_fileCount));
    return row(pixels).save(name) ? QUrl::fromLocalFile(name) : QUrl();
}

std::unique_ptr<QQuickImage> tst_KelImageColorizer::imageOf(
    std::initializer_list<QRgb> pixels, const QByteArray &properties)
{
    auto image = create("Image", properties);
    image->setSource(file(pixels));
    return image;
}

void tst_KelImageColorizer::everyFormatWithEveryAlpha_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<KelImageColorizer::ColoringMethod>("method");
    for (int format = QImage::Format_Invalid + 1; format < QImage::NImageFormats; ++format) {
        QTest::addRow("format %d, SourceAlpha", format) << QImage::Format(format) << SourceAlpha;
        QTest::addRow("format %d, DestinationAlpha", format) << QImage::Format(format) << DestinationAlpha;
    }
}

void tst_KelImageColorizer::everyFormatWithEveryAlpha()
{
    QFETCH(const QImage::Format, format);
    QFETCH(const KelImageColorizer::ColoringMethod, method);
    QRandomGenerator random(format);
    const QImage picture = pictureIn(format, random);
    QCOMPARE(picture.format(), format);
    for (int alpha = 0; alpha < 256; ++alpha) {
        const QRgb color = (anyColor(random) & 0xffffff) | QRgb(alpha) << 24;
        int lastAlpha = 255;
        int expectedLastAlpha = 255;
        QCOMPARE(difference(recolored(picture, color, method, lastAlpha),
                     plainlyRecolored(picture, color, method, expectedLastAlpha)),
            QString());
        QCOMPARE(lastAlpha, expectedLastAlpha);
    }
}

void tst_KelImageColorizer::everyLastAlpha()
{
    QImage picture(256, 2, QImage::Format_ARGB32);
    for (int alpha = 0; alpha < 256; ++alpha) {
        picture.setPixel(alpha, 0, QRgb(alpha) << 24);
        picture.setPixel(alpha, 1, QRgb(alpha) << 24 | 0x123456);
    }
    for (int lastAlpha = -1; lastAlpha <= 256; ++lastAlpha) {
        for (int alpha = 0; alpha < 256; alpha += 5) {
            const QRgb color = QRgb(alpha) << 24 | 0xfedcba;
            int expectedLastAlpha = lastAlpha;
            QCOMPARE(difference(KelColorizing::withDestinationAlpha(picture, color, lastAlpha),
                         plainlyRecolored(picture, color, DestinationAlpha, expectedLastAlpha)),
                QString());
        }
    }
}

void tst_KelImageColorizer::everyPremultipliedPixel()
{
    QImage picture(256, 256, QImage::Format_ARGB32_Premultiplied);
    for (int alpha = 0; alpha < 256; ++alpha) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(alpha));
        for (int blueness = 0; blueness < 256; ++blueness)
            line[blueness] = QRgb(alpha) << 24 | QRgb(qMin(blueness, alpha));
    }
    for (const QRgb color : {halfRed, red, QRgb(0x00ff0000)}) {
        for (const auto method : {SourceAlpha, DestinationAlpha}) {
            int lastAlpha = 200;
            int expectedLastAlpha = 200;
            QCOMPARE(difference(recolored(picture, color, method, lastAlpha),
                         plainlyRecolored(picture, color, method, expectedLastAlpha)),
                QString());
        }
    }
}

void tst_KelImageColorizer::ignoredAlphaByte()
{
    QImage picture = row({0x00ffffff, 0x80ffffff, 0x00000000, 0x80000000});
    QVERIFY(picture.reinterpretAsFormat(QImage::Format_RGB32));
    QCOMPARE(pixels(KelColorizing::withSourceAlpha(picture, red)), QList<QRgb>({red, red, black, black}));
    QCOMPARE(pixels(KelColorizing::withDestinationAlpha(picture, halfRed, 255)),
        QList<QRgb>({halfRed, halfRed, halfRed, halfRed}));
}

void tst_KelImageColorizer::alphaWrapsAtEightBits()
{
    // 255 × 255 / 128 = 508 = 0x1fc.
    QCOMPARE(KelColorizing::withDestinationAlpha(row({white}), blue, 128).pixel(0, 0), 0xfc0000ff);
}

void tst_KelImageColorizer::sequencesOfColors_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 40; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_KelImageColorizer::sequencesOfColors()
{
    QFETCH(const quint32, seed);
    QRandomGenerator random(seed);
    constexpr QImage::Format formats[] = {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
        QImage::Format_RGB32, QImage::Format_RGBA8888, QImage::Format_RGBA8888_Premultiplied,
        QImage::Format_Grayscale8, QImage::Format_Indexed8, QImage::Format_RGB16, QImage::Format_RGBA64};
    QImage picture = pictureIn(formats[random.bounded(int(std::size(formats)))], random);
    QImage expected = picture;
    // Image items keep their pictures premultiplied, between two colours.
    const bool isShown = random.bounded(2) == 0;
    int lastAlpha = 255;
    int expectedLastAlpha = 255;
    for (int step = 0; step < 20; ++step) {
        // Loaded again: fresh pixels, but the last alpha stays.
        if (random.bounded(5) == 0)
            expected = picture = pictureIn(picture.format(), random);
        const auto method = random.bounded(3) == 0 ? SourceAlpha : DestinationAlpha;
        constexpr QRgb interesting[] = {black, transparent, white, 0x01000000, 0xfe010000};
        const QRgb color = random.bounded(3) == 0 ? interesting[random.bounded(5)] : anyColor(random);
        picture = recolored(picture, color, method, lastAlpha);
        expected = plainlyRecolored(expected, color, method, expectedLastAlpha);
        QCOMPARE(difference(picture, expected), QString());
        QCOMPARE(lastAlpha, expectedLastAlpha);
        if (isShown) {
            picture.convertTo(QImage::Format_ARGB32_Premultiplied);
            expected.convertTo(QImage::Format_ARGB32_Premultiplied);
        }
    }
}

void tst_KelImageColorizer::partsOfPictures_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("width");
    QTest::newRow("ARGB32") << QImage::Format_ARGB32 << 3 << 7;
    QTest::newRow("ARGB32_Premultiplied") << QImage::Format_ARGB32_Premultiplied << 1 << 5;
    QTest::newRow("RGB32") << QImage::Format_RGB32 << 5 << 1;
    QTest::newRow("RGB16") << QImage::Format_RGB16 << 1 << 3;
    QTest::newRow("Grayscale8, odd") << QImage::Format_Grayscale8 << 1 << 5;
    QTest::newRow("RGB888, odd") << QImage::Format_RGB888 << 1 << 3;
}

void tst_KelImageColorizer::partsOfPictures()
{
    QFETCH(const QImage::Format, format);
    QFETCH(const int, left);
    QFETCH(const int, width);
    QRandomGenerator random(42);
    QImage whole(13, 9, QImage::Format_ARGB32);
    for (int y = 0; y < whole.height(); ++y) {
        for (int x = 0; x < whole.width(); ++x)
            whole.setPixel(x, y, random.bounded(4) == 0 ? black : anyColor(random));
    }
    whole.convertTo(format);
    const int pixelSize = whole.depth() / 8;
    // Rows of 13 pixels without the padding that a picture of its own has.
    QByteArray data;
    for (int y = 0; y < whole.height(); ++y)
        data.append(
            reinterpret_cast<const char *>(whole.constScanLine(y)), qsizetype(whole.width()) * pixelSize);
    const QImage part(reinterpret_cast<const uchar *>(data.constData()) + qsizetype(left) * pixelSize, width,
        9, qsizetype(whole.width()) * pixelSize, format);
    const QImage before = part.copy();
    for (const auto method : {SourceAlpha, DestinationAlpha}) {
        int lastAlpha = 77;
        int expectedLastAlpha = 77;
        QCOMPARE(difference(recolored(part, halfRed, method, lastAlpha),
                     plainlyRecolored(whole.copy(left, 0, width, 9), halfRed, method, expectedLastAlpha)),
            QString());
    }
    QCOMPARE(part, before);
}

void tst_KelImageColorizer::emptyPictures_data()
{
    addMethods();
}

void tst_KelImageColorizer::emptyPictures()
{
    QFETCH(const KelImageColorizer::ColoringMethod, method);
    int lastAlpha = 255;
    QVERIFY(recolored(QImage(), red, method, lastAlpha).isNull());
    QVERIFY(recolored(QImage(0, 0, QImage::Format_ARGB32), red, method, lastAlpha).isNull());
    QVERIFY(recolored(QImage(0, 5, QImage::Format_RGB32), red, method, lastAlpha).isNull());
}

void tst_KelImageColorizer::metadataIsKept_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("ARGB32") << QImage::Format_ARGB32;
    QTest::newRow("ARGB32_Premultiplied") << QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("RGB32") << QImage::Format_RGB32;
    QTest::newRow("RGBA8888") << QImage::Format_RGBA8888;
    QTest::newRow("Indexed8") << QImage::Format_Indexed8;
}

void tst_KelImageColorizer::metadataIsKept()
{
    QFETCH(const QImage::Format, format);
    QRandomGenerator random(7);
    QImage picture = pictureIn(format, random);
    picture.setDevicePixelRatio(2.5);
    picture.setDotsPerMeterX(1234);
    picture.setDotsPerMeterY(4321);
    picture.setOffset({3, -4});
    picture.setColorSpace(QColorSpace::DisplayP3);
    picture.setText(u"Title"_s, u"Arrow"_s);
    picture.setText(u"Author"_s, u"Nobody"_s);
    for (const auto method : {SourceAlpha, DestinationAlpha}) {
        int lastAlpha = 255;
        const QImage result = recolored(picture, halfRed, method, lastAlpha);
        QCOMPARE(result.format(), QImage::Format_ARGB32);
        QCOMPARE(result.devicePixelRatio(), 2.5);
        QCOMPARE(result.dotsPerMeterX(), 1234);
        QCOMPARE(result.dotsPerMeterY(), 4321);
        QCOMPARE(result.offset(), QPoint(3, -4));
        QCOMPARE(result.colorSpace(), QColorSpace(QColorSpace::DisplayP3));
        QCOMPARE(result.textKeys(), picture.textKeys());
        QCOMPARE(result.text(u"Title"_s), u"Arrow"_s);
        QCOMPARE(result.text(u"Author"_s), u"Nobody"_s);
    }
}

void tst_KelImageColorizer::propertiesInOrder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("0") << "enabled"_ba << "enabledChanged()"_ba << "bool"_ba;
    QTest::newRow("1") << "sourceItem"_ba << "sourceItemChanged()"_ba << "QQuickItem*"_ba;
    QTest::newRow("2") << "color"_ba << "colorChanged()"_ba << "QColor"_ba;
    QTest::newRow("3") << "coloringMethod"_ba << "coloringMethodChanged()"_ba
                       << "KelImageColorizer::ColoringMethod"_ba;
}

void tst_KelImageColorizer::propertiesInOrder()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, signal);
    QFETCH(const QByteArray, type);
    const QMetaObject &meta = KelImageColorizer::staticMetaObject;
    const QMetaProperty property =
        meta.property(meta.propertyOffset() + QByteArray(QTest::currentDataTag()).toInt());
    QCOMPARE(QByteArray(property.name()), name);
    QCOMPARE(QByteArray(property.metaType().name()), type);
    QCOMPARE(property.notifySignal().methodSignature(), signal);
    QVERIFY(property.isReadable());
    QVERIFY(property.isWritable());
    QVERIFY(!property.isResettable());
    QVERIFY(!property.isConstant());
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 4);
    // The signals only: recolouring is not to be called from QML.
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 4);
}

void tst_KelImageColorizer::methodsArePlain()
{
    const QMetaEnum methods = QMetaEnum::fromType<KelImageColorizer::ColoringMethod>();
    QVERIFY(!methods.isFlag());
    QVERIFY(!methods.isScoped());
    QCOMPARE(methods.keyCount(), 2);
    QCOMPARE(methods.keyToValue("SourceAlpha"), 0);
    QCOMPARE(methods.keyToValue("DestinationAlpha"), 1);
}

void tst_KelImageColorizer::defaults()
{
    const KelImageColorizer colorizer;
    QCOMPARE(colorizer.enabled(), true);
    QCOMPARE(colorizer.sourceItem(), nullptr);
    QVERIFY(!colorizer.color().isValid());
    QCOMPARE(colorizer.coloringMethod(), SourceAlpha);
    QCOMPARE(KelImageColorizer::staticMetaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(colorizer.parent(), nullptr);
    QObject owner;
    QCOMPARE((new KelImageColorizer(&owner))->parent(), &owner);
}

void tst_KelImageColorizer::settersSignalChangesOnly()
{
    const auto image = imageOf({white});
    KelImageColorizer colorizer;
    const QVariantMap values{{u"enabled"_s, false},
        {u"sourceItem"_s, QVariant::fromValue<QQuickItem *>(image.get())}, {u"color"_s, QColor(Qt::red)},
        {u"coloringMethod"_s, QVariant::fromValue(DestinationAlpha)}};
    const QMetaObject &meta = KelImageColorizer::staticMetaObject;
    for (auto [name, value] : values.asKeyValueRange()) {
        const QMetaProperty property = meta.property(meta.indexOfProperty(name.toLatin1()));
        QSignalSpy spy(&colorizer, property.notifySignal());
        QVERIFY(property.write(&colorizer, property.read(&colorizer)));
        QCOMPARE(spy.count(), 0);
        QVERIFY(property.write(&colorizer, value));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(property.read(&colorizer), value);
        QVERIFY(property.write(&colorizer, value));
        QCOMPARE(spy.count(), 1);
    }
}

void tst_KelImageColorizer::signalsComeBeforeTheRecoloring_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("enabled") << "enabled"_ba << QVariant(true);
    QTest::newRow("sourceItem") << "sourceItem"_ba << QVariant();
    QTest::newRow("color") << "color"_ba << QVariant(QColor(Qt::blue));
    QTest::newRow("coloringMethod") << "coloringMethod"_ba << QVariant::fromValue(DestinationAlpha);
}

void tst_KelImageColorizer::signalsComeBeforeTheRecoloring()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QVariant, value);
    const auto image = imageOf({0xff808080});
    KelImageColorizer colorizer;
    colorizer.setColor(Qt::red);
    colorizer.setEnabled(name != "enabled");
    if (name != "sourceItem")
        colorizer.setSourceItem(image.get());
    const qint64 picture = image->image().cacheKey();
    const QMetaObject &meta = KelImageColorizer::staticMetaObject;
    const QMetaProperty property = meta.property(meta.indexOfProperty(name));
    const QVariant newValue = value.isValid() ? value : QVariant::fromValue<QQuickItem *>(image.get());

    QSignalSpy spy(&colorizer, property.notifySignal());
    QVariant valueAtSignal;
    qint64 pictureAtSignal = 0;
    const auto look = [&] {
        valueAtSignal = property.read(&colorizer);
        pictureAtSignal = image->image().cacheKey();
    };
    connect(&colorizer, &KelImageColorizer::enabledChanged, this, look);
    connect(&colorizer, &KelImageColorizer::sourceItemChanged, this, look);
    connect(&colorizer, &KelImageColorizer::colorChanged, this, look);
    connect(&colorizer, &KelImageColorizer::coloringMethodChanged, this, look);
    QVERIFY(property.write(&colorizer, newValue));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(valueAtSignal, newValue);
    QCOMPARE(pictureAtSignal, picture);
    QCOMPARE_NE(image->image().cacheKey(), picture);
}

void tst_KelImageColorizer::invalidColorChangesNothing()
{
    const auto image = imageOf({white, 0x80808080});
    const QImage before = image->image();
    KelImageColorizer colorizer;
    colorizer.setSourceItem(image.get());
    colorizer.setColoringMethod(DestinationAlpha);
    colorizer.tryColorizeImage();
    QCOMPARE(image->image().cacheKey(), before.cacheKey());
    colorizer.setColor(Qt::red);
    QCOMPARE(firstPixel(*image), red);
    colorizer.setColor(QColor());
    QCOMPARE(firstPixel(*image), red);
}

void tst_KelImageColorizer::sourceAlphaKeepsAlphaAndBlack()
{
    const auto image = imageOf({0x80ffffff, white, black, transparent});
    KelImageColorizer colorizer;
    colorizer.setSourceItem(image.get());
    // The alpha of the colour does not count.
    colorizer.setColor(QColor(255, 0, 0, 7));
    QCOMPARE(pixels(image->image()), QList<QRgb>({halfRed, red, black, transparent}));
}

void tst_KelImageColorizer::blackIsFinalInSourceAlpha()
{
    const auto image = imageOf({white});
    KelImageColorizer colorizer;
    colorizer.setSourceItem(image.get());
    colorizer.setColor(Qt::black);
    QCOMPARE(firstPixel(*image), black);
    colorizer.setColor(Qt::red);
    QCOMPARE(firstPixel(*image), black);
}

void tst_KelImageColorizer::destinationAlphaUndoesTheLastAlpha()
{
    const auto image = imageOf({white});
    KelImageColorizer colorizer;
    colorizer.setColoringMethod(DestinationAlpha);
    colorizer.setSourceItem(image.get());
    colorizer.setColor(QColor(255, 0, 0, 128));
    QCOMPARE(firstPixel(*image), halfRed);
    colorizer.setColor(Qt::blue);
    QCOMPARE(firstPixel(*image), blue);
}

void tst_KelImageColorizer::transparentColorLeavesBlackAndIsNotRemembered()
{
    const auto image = imageOf({white, black});
    KelImageColorizer colorizer;
    colorizer.setColoringMethod(DestinationAlpha);
    colorizer.setSourceItem(image.get());
    colorizer.setColor(Qt::transparent);
    QCOMPARE(pixels(image->image()), QList<QRgb>({transparent, black}));

    // 128 is the last alpha that counts: black, never scaled by it, is divided by it and wraps around.
    colorizer.setColor(QColor(255, 0, 0, 128));
    colorizer.setColor(Qt::transparent);
    const auto other = imageOf({black});
    colorizer.setSourceItem(other.get());
    colorizer.setColor(Qt::blue);
    QCOMPARE(firstPixel(*other), 0xfc0000ff);
}

void tst_KelImageColorizer::opaqueColorPaintsBlackInDestinationAlpha()
{
    const auto image = imageOf({black, 0x40000000});
    KelImageColorizer colorizer;
    colorizer.setColoringMethod(DestinationAlpha);
    colorizer.setSourceItem(image.get());
    colorizer.setColor(Qt::red);
    QCOMPARE(pixels(image->image()), QList<QRgb>({red, 0x40ff0000}));
}

void tst_KelImageColorizer::methodsWithoutANameKeepAlpha()
{
    const auto image = imageOf({0x80ffffff, black});
    KelImageColorizer colorizer;
    colorizer.setProperty("coloringMethod", 7);
    colorizer.setSourceItem(image.get());
    colorizer.setColor(QColor(255, 0, 0, 128));
    QCOMPARE(pixels(image->image()), QList<QRgb>({halfRed, black}));
}

void tst_KelImageColorizer::disablingDoesNotRestore()
{
    const auto image = imageOf({white});
    const QUrl source = image->source();
    KelImageColorizer colorizer;
    colorizer.setSourceItem(image.get());
    colorizer.setColor(Qt::red);
    colorizer.setEnabled(false);
    QCOMPARE(firstPixel(*image), red);
    colorizer.setColor(Qt::blue);
    QCOMPARE(firstPixel(*image), red);

    image->setSource({});
    image->setSource(source);
    QCOMPARE(image->status(), QQuickImage::Ready);
    QCOMPARE(firstPixel(*image), white);
    colorizer.setEnabled(true);
    QCOMPARE(firstPixel(*image), blue);
}

void tst_KelImageColorizer::freshPictureIsDividedByTheLastAlphaToo()
{
    const auto image = imageOf({white});
    const QUrl source = image->source();
    KelImageColorizer colorizer;
    colorizer.setColoringMethod(DestinationAlpha);
    colorizer.setSourceItem(image.get());
    colorizer.setColor(QColor(255, 0, 0, 128));
    QCOMPARE(firstPixel(*image), halfRed);
    image->setSource({});
    image->setSource(source);
    // 255 × 255 / 128 = 508, × 128 / 255 = 254.
    QCOMPARE(qAlpha(firstPixel(*image)), 254);
    QCOMPARE(image->source(), source);
}

void tst_KelImageColorizer::cachedPictureIsLeftAlone()
{
    const auto image = imageOf({white});
    const auto other = create("Image");
    other->setSource(image->source());
    KelImageColorizer colorizer;
    colorizer.setSourceItem(image.get());
    colorizer.setColor(Qt::red);
    QCOMPARE(firstPixel(*other), white);
    const auto later = create("Image");
    later->setSource(image->source());
    QCOMPARE(firstPixel(*later), white);
}

void tst_KelImageColorizer::equalIconsShareTheirPixels()
{
    const auto image = imageOf({white});
    const auto other = create("Image");
    other->setSource(image->source());
    KelImageColorizer colorizer;
    colorizer.setSourceItem(image.get());
    colorizer.setColor(Qt::red);
    KelImageColorizer otherColorizer;
    otherColorizer.setSourceItem(other.get());
    otherColorizer.setColor(Qt::red);
    QCOMPARE(other->image().constBits(), image->image().constBits());
    otherColorizer.setColor(Qt::blue);
    QCOMPARE(firstPixel(*image), QColor(Qt::red).rgba());
    QCOMPARE(firstPixel(*other), QColor(Qt::blue).rgba());
    // The same colour by another method, or after another alpha, is another picture.
    colorizer.setColoringMethod(DestinationAlpha);
    colorizer.setColor(QColor(0, 0, 255, 128));
    otherColorizer.setColor(QColor(0, 0, 255, 128));
    QCOMPARE(qAlpha(firstPixel(*image)), 128);
    QCOMPARE(qAlpha(firstPixel(*other)), 255);
}

void tst_KelImageColorizer::otherItemsAreKeptAndLeftAlone_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("Item") << "Item"_ba;
    QTest::newRow("Rectangle") << "Rectangle"_ba;
    QTest::newRow("BorderImage") << "BorderImage"_ba;
}

void tst_KelImageColorizer::otherItemsAreKeptAndLeftAlone()
{
    QFETCH(const QByteArray, type);
    const auto item = create<QQuickItem>(type);
    auto *image = qobject_cast<QQuickImageBase *>(item.get());
    if (image)
        image->setSource(file({white}));
    KelImageColorizer colorizer;
    QSignalSpy spy(&colorizer, &KelImageColorizer::sourceItemChanged);
    colorizer.setColor(Qt::red);
    colorizer.setSourceItem(item.get());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(colorizer.sourceItem(), item.get());
    if (image)
        QCOMPARE(firstPixel(*image), white);
    colorizer.setSourceItem(nullptr);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(colorizer.sourceItem(), nullptr);
}

void tst_KelImageColorizer::sameSourceItemDoesNothing()
{
    const auto image = imageOf({white});
    KelImageColorizer colorizer;
    colorizer.setColor(Qt::red);
    colorizer.setSourceItem(image.get());
    const qint64 picture = image->image().cacheKey();
    QSignalSpy spy(&colorizer, &KelImageColorizer::sourceItemChanged);
    colorizer.setSourceItem(image.get());
    QCOMPARE(spy.count(), 0);
    QCOMPARE(image->image().cacheKey(), picture);
}

void tst_KelImageColorizer::followsItsSourceItemOnly()
{
    const auto first = imageOf({white});
    const auto second = imageOf({white});
    const QUrl source = first->source();
    KelImageColorizer colorizer;
    colorizer.setColor(Qt::red);
    colorizer.setSourceItem(first.get());
    colorizer.setSourceItem(second.get());
    QCOMPARE(firstPixel(*second), red);

    const qint64 picture = second->image().cacheKey();
    first->setSource({});
    first->setSource(source);
    QCOMPARE(firstPixel(*first), white);
    QCOMPARE(second->image().cacheKey(), picture);

    second->setSource({});
    second->setSource(source);
    QCOMPARE(firstPixel(*second), red);

    colorizer.setSourceItem(nullptr);
    second->setSource({});
    second->setSource(source);
    QCOMPARE(firstPixel(*second), white);
}

void tst_KelImageColorizer::waitsForTheImage()
{
    const auto image = imageOf({white}, "asynchronous: true");
    KelImageColorizer colorizer;
    colorizer.setColor(Qt::red);
    colorizer.setSourceItem(image.get());
    QTRY_COMPARE(image->status(), QQuickImage::Ready);
    QCOMPARE(firstPixel(*image), red);
}

void tst_KelImageColorizer::errorLeavesAlone()
{
    const auto image = imageOf({white});
    const QUrl source = image->source();
    KelImageColorizer colorizer;
    colorizer.setColor(Qt::red);
    colorizer.setSourceItem(image.get());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot open: .*missing.png"_s));
    image->setSource(QUrl::fromLocalFile(m_folder.filePath(u"missing.png"_s)));
    QCOMPARE(image->status(), QQuickImage::Error);
    QVERIFY(image->image().isNull());
    colorizer.setColor(Qt::blue);
    QVERIFY(image->image().isNull());
    image->setSource(source);
    QCOMPARE(firstPixel(*image), blue);
}

void tst_KelImageColorizer::newSourceIsRecolored()
{
    const auto image = imageOf({white});
    KelImageColorizer colorizer;
    colorizer.setColor(Qt::red);
    colorizer.setSourceItem(image.get());
    image->setSource(file({0xff00ff00}));
    QCOMPARE(image->status(), QQuickImage::Ready);
    QCOMPARE(firstPixel(*image), red);
}

void tst_KelImageColorizer::survivesItsSourceItem()
{
    auto image = imageOf({white});
    KelImageColorizer colorizer;
    colorizer.setSourceItem(image.get());
    colorizer.setColor(Qt::red);
    image.reset();
    QCOMPARE(colorizer.sourceItem(), nullptr);
    colorizer.setColor(Qt::blue);
    colorizer.setColoringMethod(DestinationAlpha);
    colorizer.setEnabled(false);
    colorizer.setEnabled(true);
    const auto next = imageOf({white});
    QSignalSpy spy(&colorizer, &KelImageColorizer::sourceItemChanged);
    colorizer.setSourceItem(next.get());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(firstPixel(*next), blue);
}

QTEST_MAIN(tst_KelImageColorizer)

#include "tst_kelimagecolorizer.moc"
