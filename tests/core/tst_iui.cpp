// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <displayscale.h>
#include <icore.h>
#include <iui.h>

#include <thread>

class tst_IUi : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        WindowTest::init();
        IUi::clearIconCache();
    }

    void scaleArithmetic_data()
    {
        const auto row = columns<int, int, int, int>("dpi", "percent", "thirteen", "whole16");
        row("below one", 72, 75, 9, 16);
        row("a quarter more is still one whole", 120, 125, 16, 16);
        row("a hair below one and a half", 143, 148, 19, 16);
        row("one and a half is two wholes", 144, 150, 19, 32);
        row("a little over two", 210, 218, 28, 32);
        row("three and a half is four wholes", 336, 350, 45, 64);
    }
    void scaleArithmetic()
    {
        QFETCH(int, dpi);
        QTEST(DisplayScale::percent(dpi), "percent");
        QTEST(DisplayScale::proportional(dpi, 13), "thirteen");
        QTEST(DisplayScale::wholeFactor(dpi, 16), "whole16");
    }

    void dpiComesFromTheWidgetThenTheMainWindowThenThePrimaryScreen()
    {
        m_pWindow->setScreen(screenOf(144));
        QWidget other;
        other.setScreen(screenOf(192));
        QCOMPARE(DisplayScale::logicalDpi(&other), 192);
        QCOMPARE(DisplayScale::logicalDpi(), 144);
        m_pWindow.reset();
        QCOMPARE(DisplayScale::logicalDpi(), int(QGuiApplication::primaryScreen()->logicalDotsPerInchX()));
        QVERIFY(DisplayScale::logicalDpi() < 144);
    }

    void imageFollowsModeAndScale_data()
    {
        const auto row = columns<int, int, QString, QString>("dpi", "mode", "size", "scale");
        row("smallest", 96, 1, "_12", "");
        row("menu size at 148 percent", 143, 2, "_16", "");
        row("menu size at 150 percent", 144, 2, "_16", "_2x");
        row("32 pixels", 96, 4, "_32", "");
        row("48 pixels", 192, 5, "_48", "_2x");
        row("64 pixels", 192, 6, "_64", "_2x");
        row("mode 0 has no size", 96, 0, "", "");
        row("mode 7 has no size", 144, 7, "", "_2x");
        row("negative mode has no size", 96, -1, "", "");
    }
    void imageFollowsModeAndScale()
    {
        QFETCH(int, dpi);
        QFETCH(int, mode);
        QFETCH(QString, size);
        QFETCH(QString, scale);
        m_pWindow->setScreen(screenOf(dpi));
        writeImage("pic" + size + scale + ".png", 11);
        writeImage("pic" + size + "_d" + scale + ".png", 7);
        const QIcon icon = IUi::getIcon("pic", mode, m_pProgram->folder.path());
        QCOMPARE(icon.availableSizes(QIcon::Normal, QIcon::Off), QList<QSize>({QSize(11, 11)}));
        QCOMPARE(icon.availableSizes(QIcon::Disabled, QIcon::Off), QList<QSize>({QSize(7, 7)}));
    }

    void imageIsLoadedOnceUntilTheCacheIsCleared()
    {
        const QString strFolder = m_pProgram->folder.path();
        QVERIFY(IUi::getIcon("pic", 2, strFolder).isNull());
        writeImage("pic_16.png", 5);
        QVERIFY(!IUi::getInstance()->getIcon("pic", 2, strFolder).isNull());
        QVERIFY(QFile::remove(m_pProgram->filePath("pic_16.png")));
        const QIcon cached = IUi::getIcon("pic", 2, strFolder);
        QVERIFY(!cached.isNull());
        QVERIFY(cached.availableSizes(QIcon::Disabled, QIcon::Off).isEmpty());
        IUi::clearIconCache();
        QVERIFY(IUi::getIcon("pic", 2, strFolder).isNull());
    }

    void singletonIsMadeOnceByManyThreads()
    {
        struct Counted : ISingleton<Counted>
        {
            Counted() { count().ref(); }
            static QAtomicInt &count()
            {
                static QAtomicInt s_count;
                return s_count;
            }
        };
        std::array<Counted *, 16> found {};
        std::vector<std::thread> threads;
        for (Counted *&pFound : found)
            threads.emplace_back([&pFound] { pFound = Counted::getInstance(); });
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(Counted::count().loadRelaxed(), 1);
        QCOMPARE(std::count(found.begin(), found.end(), found[0]), 16);
        delete found[0];
    }

    void aBoxThatDiesWithItsParentSaysCancel()
    {
        QPointer<QWidget> pParent = new QWidget;
        QTimer::singleShot(0, this, [pParent] { delete pParent; });
        QCOMPARE(IUi::warning(pParent, "Kelpa Studio", "text"), QMessageBox::Cancel);
        QVERIFY(!pParent);
    }

    void boxIconFollowsTheParentsScreen()
    {
        for (const int nDPI : {96, 120, 143, 192}) {
            QWidget parent;
            parent.move(screenOf(nDPI)->geometry().center());
            parent.show();
            BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok});
            IUi::information(&parent, "Kelpa Studio", "text");
            IUi::question(&parent, "Kelpa Studio", "text", QMessageBox::Ok, QMessageBox::Ok);
            IUi::warning(&parent, "Kelpa Studio", "text");
            const int nSide = 32 * (nDPI * 100 / 96) / 100;
            for (const BoxAnswers::Box &box : std::as_const(boxes.boxes))
                QCOMPARE(box.iconSize, QSize(nSide, nSide));
        }
    }

    void boxWithAVeryLongPathFitsTheScreenAndKeepsEveryCharacter()
    {
        const QString strPath = "/" + QString("verylongfoldername/").repeated(200) + "end.kelpa";
        QString strShown;
        int nWidth = 0;
        int nWidestClipped = 0;
        QTimer::singleShot(0, this, [&] {
            auto *pBox = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            nWidth = pBox->width();
            strShown = pBox->text().remove(QChar(0x200B));
            for (const QAbstractButton *pButton : pBox->buttons())
                nWidestClipped = qMax(nWidestClipped, pButton->sizeHint().width() - pButton->width());
            pBox->done(-1);
        });
        IUi::information(nullptr, "Kelpa Studio", strPath);
        QCOMPARE(strShown, strPath);
        QVERIFY2(nWidth > 100 && nWidth <= 1280, qPrintable(QString::number(nWidth)));
        QVERIFY(nWidestClipped <= 0);
    }

private:
    void writeImage(const QString &strName, int nSide) const
    {
        QImage image(nSide, nSide, QImage::Format_ARGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(m_pProgram->folder.filePath(strName)));
    }
};

QTEST_MAIN(tst_IUi)
#include "tst_iui.moc"
