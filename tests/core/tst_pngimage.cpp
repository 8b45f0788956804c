// SPDX-License-Identifier: MIT
// Images and icons out of PNG files are those that Qt's own readers give.
#include <iui.h>

#include <support/rows.h>

#include <QtTest>

static QByteArray png(const QImage &image)
{
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

static QImage filled(int nSide, QRgb color, QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(nSide, nSide, QImage::Format_ARGB32);
    image.fill(color);
    image.setPixel(0, 0, 0xff305070);
    return image.convertToFormat(format);
}

class tst_PngImage : public QObject
{
    Q_OBJECT

private slots:
    void pixelsAreThoseOfQt_data()
    {
        const auto row = columns<QByteArray, bool>("bytes", "valid");
        const QByteArray deep = png(filled(3, 0xffa0c0e0, QImage::Format_RGBA64));
        row("sixteen bits for each color", deep, true);
        row("half transparent", png(filled(3, 0x80ff4020)), true);
        row("a palette with a transparent color", png(filled(2, 0, QImage::Format_Indexed8)), true);
        row("gray", png(filled(5, 0xff909090, QImage::Format_Grayscale8)), true);
        row("interlaced", // two by two, gray
            QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000000200000002080000000120da62"
                                "6e0000000f4944415478da631060086098700100039701c1e5f5bf5500000000"
                                "49454e44ae426082"),
            true);
        row("one bit for each pixel", png(filled(9, 0, QImage::Format_Mono)), true);
        row("cut off", deep.left(deep.size() - 20), false);
        row("changed on the way", QByteArray(deep).replace("IDAT", "IDAX"), false);
        row("larger than memory is given for", png(QImage(9000, 9000, QImage::Format_Mono)), false);
        row("no image at all", "<svg/>", false);
        row("empty", "", false);
    }
    void pixelsAreThoseOfQt()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, valid);
        // Builds for Windows have no PNG reader but Qt's, which says so.
        if (QSysInfo::kernelType() == "winnt" && QByteArray(QTest::currentDataTag()).startsWith("larger"))
            expectWarning("exceeds the current allocation limit");
        const QImage image = IUi::getPixmap(write("image", bytes), 0, false, m_folder.path()).toImage();
        QCOMPARE(!image.isNull(), valid);
        const QImage expected = valid ? QImage::fromData(bytes) : QImage();
        QCOMPARE(
            image.convertToFormat(QImage::Format_ARGB32), expected.convertToFormat(QImage::Format_ARGB32));
    }

    // The first file decides whose engine an icon gets: one without a suffix that tells, Qt's.
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
        write("one", png(filled(20, 0xff00ff00)));
        QFile::copy(path("one.png"), path("one.image"));
        write("two", png(filled(40, 0xffff0000)));
        write("two@2x", png(filled(40, 0xff0000ff)));
        write("damaged", png(filled(16, 0xff0000ff)).left(50));
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
