// SPDX-License-Identifier: MIT
#include <iui.h>

#include <support/rows.h>

#include <QImage>
#include <QImageReader>
#include <QtTest>

namespace {

qint64 inkOf(const QImage &image)
{
    qint64 nInk = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            nInk += qAlpha(image.pixel(x, y));
    }
    return nInk;
}

} // namespace

class tst_Icons : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The images are resources of the core: naming one of its classes keeps the library linked.
        QVERIFY(IUi::getInstance());
    }

    void everyVariantHasItsSize_data()
    {
        const auto row = columns<QString>("image");
        for (const char *pName : {"new", "open", "save", "preferences", "language", "icon", "info", "warning",
                 "minimize", "maximize", "restore", "close", "update"})
            row(pName, QString(":/core/images/") + pName);
        for (const char *pName :
            {"new", "open", "save", "preferences", "information", "question", "warning", "critical"})
            row(pName, QString(":/designer/images/") + pName);
    }
    void everyVariantHasItsSize()
    {
        QFETCH(QString, image);
        for (const int nSize : {0, 12, 16, 24, 32, 48, 64}) {
            for (const int nFactor : {1, 2}) {
                const QString strStem = nSize == 0 ? image : QString("%1_%2").arg(image).arg(nSize);
                const QString strScale = nFactor == 2 ? "_2x.png" : ".png";
                const QImage normal(strStem + strScale);
                const QImage disabled(strStem + "_d" + strScale);
                const int nPixels = (nSize == 0 ? 32 : nSize) * nFactor;
                QCOMPARE(normal.size(), QSize(nPixels, nPixels));
                QCOMPARE(disabled.size(), QSize(nPixels, nPixels));
                QVERIFY2(inkOf(disabled) > 0, "blank image");
                QVERIFY2(inkOf(disabled) < inkOf(normal) / 2, "the disabled image is not dimmed");
                QVERIFY2(disabled.allGray(), "the disabled image has colors");
            }
        }
    }

    void iconFilesHoldEverySize()
    {
        for (const char *pName : {"app_icon", "project_icon"}) {
            QImageReader reader(QString(":/app/images/%1.ico").arg(pName));
            QList<int> sizes;
            for (int i = 0; i < reader.imageCount(); ++i) {
                QVERIFY(reader.jumpToImage(i));
                const QImage image = reader.read();
                QVERIFY(inkOf(image) > 0);
                sizes.append(image.width());
            }
            std::sort(sizes.begin(), sizes.end());
            QCOMPARE(sizes, QList<int>({16, 24, 32, 48, 64, 128, 256}));
        }
    }
};

QTEST_MAIN(tst_Icons)
#include "tst_icons.moc"
