// SPDX-License-Identifier: MIT
#include <iui.h>

#include <QImage>
#include <QImageReader>
#include <support/rows.h>

#include <QtTest>

#include <algorithm>

namespace {

const QString s_core = ":/core/images/";
const QString s_designer = ":/designer/images/";

// What is to be seen of an image: how much ink, and how far its strongest colour is from grey.
struct Look
{
    qint64 nInk = 0;
    int nColour = 0;
};

Look lookOf(const QImage &image)
{
    Look look;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            const auto [nLow, nHigh] = std::minmax({colour.red(), colour.green(), colour.blue()});
            look.nInk += colour.alpha();
            if (colour.alpha() > 0)
                look.nColour = qMax(look.nColour, nHigh - nLow);
        }
    }
    return look;
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
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("name");
        for (const char *pName : {"new", "open", "save", "preferences", "language", "icon", "info", "warning",
                 "minimize", "maximize", "restore", "close", "update"})
            QTest::addRow("core image %s", pName) << s_core << QString::fromLatin1(pName);
        for (const char *pName :
            {"new", "open", "save", "preferences", "information", "question", "warning", "critical"})
            QTest::addRow("designer image %s", pName) << s_designer << QString::fromLatin1(pName);
    }

    void everyVariantHasItsSize()
    {
        QFETCH(QString, folder);
        QFETCH(QString, name);
        for (const int nSize : {0, 12, 16, 24, 32, 48, 64}) {
            for (const int nFactor : {1, 2}) {
                const QString strStem = nSize == 0 ? name : QString("%1_%2").arg(name).arg(nSize);
                const QString strScale = nFactor == 2 ? "_2x.png" : ".png";
                const QImage normal(folder + strStem + strScale);
                const QImage disabled(folder + strStem + "_d" + strScale);
                const int nPixels = (nSize == 0 ? 32 : nSize) * nFactor;
                QCOMPARE(normal.size(), QSize(nPixels, nPixels));
                QCOMPARE(disabled.size(), QSize(nPixels, nPixels));
                compareLooks(lookOf(normal), lookOf(disabled));
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }

    void iconFilesHoldEverySize_data()
    {
        const auto row = columns<QString>("name");
        row("the program's icon", "app_icon");
        row("a project's icon", "project_icon");
    }

    void iconFilesHoldEverySize()
    {
        QFETCH(QString, name);
        QImageReader reader(QString(":/app/images/%1.ico").arg(name));
        QList<int> sizes;
        for (int i = 0; i < reader.imageCount(); ++i) {
            QVERIFY(reader.jumpToImage(i));
            const QImage image = reader.read();
            QVERIFY(lookOf(image).nInk > 0);
            QCOMPARE(image.width(), image.height());
            sizes.append(image.width());
        }
        std::sort(sizes.begin(), sizes.end());
        QCOMPARE(sizes, QList<int>({16, 24, 32, 48, 64, 128, 256}));
    }

private:
    static void compareLooks(const Look &normal, const Look &disabled)
    {
        QVERIFY2(normal.nInk > 0, "blank image");
        QVERIFY2(disabled.nInk > 0, "blank disabled image");
        QVERIFY2(disabled.nInk < normal.nInk / 2, "the disabled image is not dimmed");
        QCOMPARE(disabled.nColour, 0);
    }
};

QTEST_MAIN(tst_Icons)
#include "tst_icons.moc"
