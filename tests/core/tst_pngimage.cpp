// SPDX-License-Identifier: MIT
// Images and icons out of PNG files are those that Qt's own readers give.
#include <iui.h>

#include <support/rows.h>

#include <QtEndian>
#include <QtTest>

namespace {

QByteArray number(quint32 nValue)
{
    const quint32 nBig = qToBigEndian(nValue);
    return QByteArray(reinterpret_cast<const char *>(&nBig), 4);
}

QByteArray chunk(const QByteArray &typeAndData)
{
    quint32 nSum = ~0U;
    for (const char c : typeAndData) {
        nSum ^= static_cast<uchar>(c);
        for (int i = 0; i < 8; ++i)
            nSum = nSum & 1 ? nSum >> 1 ^ 0xEDB88320 : nSum >> 1;
    }
    return number(typeAndData.size() - 4) + typeAndData + number(~nSum);
}

// `head` holds depth, kind of color, compression, filter and interlacing as hexadecimal digits. Each line of
// `lines` begins with its filter.
QByteArray png(
    int nWidth, int nHeight, const char *pHead, const QByteArray &lines, const QByteArray &more = {})
{
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR" + number(nWidth) + number(nHeight) + QByteArray::fromHex(pHead))
        + more + chunk("IDAT" + qCompress(lines).mid(4)) + chunk("IEND");
}

QByteArray png(int nSide, QRgb color)
{
    QImage image(nSide, nSide, QImage::Format_ARGB32);
    image.fill(color);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

} // namespace

class tst_PngImage : public QObject
{
    Q_OBJECT

private slots:
    void pixelsAreThoseOfQt_data()
    {
        const auto row = columns<QByteArray, bool>("bytes", "valid");
        const auto hex = [](const char *pBytes) { return QByteArray::fromHex(pBytes); };
        const QByteArray deep = png(2, 1, "1002000000", hex("00 4000 8000 c000 ffff 1000 0000"));
        row("sixteen bits for each colour", deep, true);
        row("half transparent", png(3, 0x80ff4020), true);
        row("a palette with a transparent colour",
            png(2, 2, "0803000000", hex("00 00 01 00 01 02"),
                chunk("PLTE" + hex("ff0000 00ff00 0000ff")) + chunk("tRNS" + hex("ff 40"))),
            true);
        row("interlaced", png(2, 2, "0800000001", hex("00 10 00 50 00 90 d0")), true);
        row("one bit for each pixel", png(9, 1, "0100000000", hex("00 a5 80")), true);
        row("cut off", deep.left(deep.size() - 20), false);
        row("changed on the way", QByteArray(deep).replace("IDAT", "IDAX"), false);
        row("of no size", png(0, 1, "0800000000", {}), false);
        row("larger than memory is given for", png(9000, 9000, "0100000000", QByteArray(9000 * 1126, 0)),
            false);
        row("no image at all", "<svg/>", false);
        row("empty", "", false);
    }
    void pixelsAreThoseOfQt()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, valid);
        const QImage image = IUi::getPixmap(write("image", bytes), 0, false, m_folder.path()).toImage();
        QCOMPARE(!image.isNull(), valid);
        const QImage expected = valid ? QImage::fromData(bytes) : QImage();
        QCOMPARE(
            image.convertToFormat(QImage::Format_ARGB32), expected.convertToFormat(QImage::Format_ARGB32));
    }

    // The suffix of its first file decides the engine of an icon: ours for ".png", Qt's for ".image".
    void iconsOfPlugInsAreThoseOfQt_data()
    {
        const auto row = columns<QString, int>("file", "side");
        row("another image", "two.png", 0);
        row("an image said to be of another size", "two.png", 24);
        row("an image of the size that is said", "two.png", 40);
        row("an image for twice the density", "two@2x.png", 0);
        row("an image for twice the density with its size", "two@2x.png", 20);
        row("an image of another format", "other.bmp", 0);
        row("an image that is not what its name says", "bitmap.png", 0);
        row("a damaged image", "damaged.png", 16);
        row("no file", "none.png", 0);
    }
    void iconsOfPlugInsAreThoseOfQt()
    {
        QFETCH(QString, file);
        QFETCH(int, side);
        write("one", png(20, 0xff00ff00));
        QFile::copy(path("one.png"), path("one.image"));
        write("two", png(40, 0xffff0000));
        write("two@2x", png(40, 0xff0000ff));
        write("damaged", png(16, 0xff0000ff).left(50));
        for (const char *pName : {"other.bmp", "bitmap.png"})
            QVERIFY(QImage(path("two.png")).scaled(30, 30).save(path(pName), "BMP"));
        QIcon icon(path("one.png"));
        QIcon expected(path("one.image"));
        for (QIcon *pIcon : {&icon, &expected})
            pIcon->addFile(path(file), side == 0 ? QSize() : QSize(side, side), QIcon::Normal, QIcon::Off);
        QCOMPARE(icon.availableSizes(), expected.availableSizes());
        for (const int nSide : {10, 20, 24, 40, 80}) {
            for (const qreal ratio : {1.0, 2.0}) {
                const QPixmap found = icon.pixmap(QSize(nSide, nSide), ratio);
                const QPixmap wanted = expected.pixmap(QSize(nSide, nSide), ratio);
                QCOMPARE(found.devicePixelRatio(), wanted.devicePixelRatio());
                QCOMPARE(found.toImage(), wanted.toImage());
            }
        }
    }

private:
    [[nodiscard]] QString path(const QString &strFile) const { return m_folder.filePath(strFile); }

    // Returns the name without the suffix; the image before it is forgotten.
    QString write(const QString &strName, const QByteArray &bytes) const
    {
        IUi::clearIconCache();
        QFile file(path(strName + ".png"));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? strName : QString();
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(tst_PngImage)
#include "tst_pngimage.moc"
