// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <displayscale.h>
#include <icore.h>
#include <iui.h>

#include <thread>

struct Counted : ISingleton<Counted>
{
    Counted() { s_count.ref(); }
    static inline QAtomicInt s_count;
};

class tst_IUi : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        WindowTest::init();
        IUi::clearIconCache();
    }

    void scaleArithmetic()
    {
        // DPI, percent, thirteen pixels and sixteen in whole steps
        for (const auto &[nDPI, nPercent, nThirteen, nSixteen] :
            std::initializer_list<std::array<int, 4>> {{72, 75, 9, 16}, {120, 125, 16, 16},
                {143, 148, 19, 16}, {144, 150, 19, 32}, {210, 218, 28, 32}, {336, 350, 45, 64}}) {
            QCOMPARE(DisplayScale::percent(nDPI), nPercent);
            QCOMPARE(DisplayScale::proportional(nDPI, 13), nThirteen);
            QCOMPARE(DisplayScale::wholeFactor(nDPI, 16), nSixteen);
        }
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

    void imageFollowsModeAndScale()
    {
        const QStringList sizes = {
            "", "_12", "_16", "_24", "_32", "_48", "_64"}; // by mode, any other has none
        for (const int nDPI : {96, 143, 144, 192}) {
            m_pWindow->setScreen(screenOf(nDPI));
            for (int nMode = -1; nMode <= 7; ++nMode) {
                const QString strScale = nDPI >= 144 ? "_2x.png" : ".png";
                const QString strName = QString("pic%1").arg(nMode) + sizes.value(nMode);
                writeImage(strName + strScale, 11);
                writeImage(strName + "_d" + strScale, 7);
                const QIcon icon =
                    IUi::getIcon(QString("pic%1").arg(nMode), nMode, m_pProgram->folder.path());
                QCOMPARE(icon.availableSizes(QIcon::Normal, QIcon::Off), QList<QSize>({QSize(11, 11)}));
                QCOMPARE(icon.availableSizes(QIcon::Disabled, QIcon::Off), QList<QSize>({QSize(7, 7)}));
                for (const char *pEnd : {"", "_d"})
                    QVERIFY(QFile::remove(m_pProgram->folder.filePath(strName + pEnd + strScale)));
            }
        }
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
        std::array<std::thread, 16> threads;
        for (std::thread &thread : threads)
            thread = std::thread([] { static_cast<void>(Counted::getInstance()); });
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(Counted::s_count.loadRelaxed(), 1);
        delete Counted::getInstance();
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
        Qt::TextFormat informativeFormat = Qt::AutoText;
        QTimer::singleShot(0, this, [&] {
            auto *pBox = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            nWidth = pBox->width();
            strShown = pBox->text().remove(QChar(0x200B));
            informativeFormat = pBox->findChild<QLabel *>("qt_msgbox_informativelabel")->textFormat();
            for (const QAbstractButton *pButton : pBox->buttons())
                nWidestClipped = qMax(nWidestClipped, pButton->sizeHint().width() - pButton->width());
            pBox->done(-1);
        });
        IUi::information(
            nullptr, "Kelpa Studio", strPath, QMessageBox::Ok, QMessageBox::Ok, "<i>informative</i>");
        QCOMPARE(strShown, strPath);
        QCOMPARE(informativeFormat, Qt::PlainText);
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
