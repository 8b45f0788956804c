// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <displayscale.h>
#include <icore.h>
#include <iui.h>
#include <mainwindow.h>

#include <QLabel>
#include <QScreen>

#include <thread>

class tst_IUi : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_pWindow = std::make_unique<MainWindow>(nullptr);
        IUi::clearIconCache();
    }

    void cleanup()
    {
        m_pWindow.reset();
        m_pProgram.reset();
    }

    void scaleArithmetic_data()
    {
        QTest::addColumn<int>("dpi");
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("thirteen");
        QTest::addColumn<int>("whole16");
        QTest::newRow("below one") << 72 << 75 << 9 << 16;
        QTest::newRow("one") << 96 << 100 << 13 << 16;
        QTest::newRow("a quarter more is still one whole") << 120 << 125 << 16 << 16;
        QTest::newRow("a hair below one and a half") << 143 << 148 << 19 << 16;
        QTest::newRow("one and a half is two wholes") << 144 << 150 << 19 << 32;
        QTest::newRow("two") << 192 << 200 << 26 << 32;
        QTest::newRow("a little over two") << 210 << 218 << 28 << 32;
        QTest::newRow("three and a half is four wholes") << 336 << 350 << 45 << 64;
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
        m_pWindow->setScreen(screen("144"));
        QWidget other;
        other.setScreen(screen("192"));
        QCOMPARE(DisplayScale::logicalDpi(&other), 192);
        QCOMPARE(DisplayScale::logicalDpi(), 144);
        m_pWindow.reset();
        QCOMPARE(DisplayScale::logicalDpi(), int(QGuiApplication::primaryScreen()->logicalDotsPerInchX()));
        QVERIFY(DisplayScale::logicalDpi() < 144);
    }

    void imageFollowsModeAndScale_data()
    {
        QTest::addColumn<QString>("screenName");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("normal");
        QTest::addColumn<QString>("disabled");
        const auto row = [](const char *pName, const char *pScreen, int nMode, const char *pSize,
                             const char *pScale) {
            QTest::newRow(pName) << QString(pScreen) << nMode << QString("pic%1%2.png").arg(pSize, pScale)
                                 << QString("pic%1_d%2.png").arg(pSize, pScale);
        };
        row("menu size at 100 percent", "96", 2, "_16", "");
        row("menu size at 125 percent", "120", 2, "_16", "");
        row("menu size at 148 percent", "143", 2, "_16", "");
        row("menu size at 150 percent", "144", 2, "_16", "_2x");
        row("smallest", "96", 1, "_12", "");
        row("24 pixels", "96", 3, "_24", "");
        row("32 pixels", "96", 4, "_32", "");
        row("48 pixels", "192", 5, "_48", "_2x");
        row("64 pixels", "192", 6, "_64", "_2x");
        row("mode 0 has no size", "96", 0, "", "");
        row("mode 7 has no size", "144", 7, "", "_2x");
        row("negative mode has no size", "96", -1, "", "");
    }

    void imageFollowsModeAndScale()
    {
        QFETCH(QString, screenName);
        QFETCH(int, mode);
        QFETCH(QString, normal);
        QFETCH(QString, disabled);
        m_pWindow->setScreen(screen(screenName));
        writeImage(normal, 11);
        writeImage(disabled, 7);
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
        std::vector<std::thread> threads;
        QAtomicPointer<Counted> pFirst;
        QAtomicInt nOthers;
        for (int i = 0; i < 16; ++i) {
            threads.emplace_back([&] {
                Counted *pOwn = Counted::getInstance();
                if (!pFirst.testAndSetOrdered(nullptr, pOwn) && pFirst.loadAcquire() != pOwn)
                    nOthers.ref();
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(Counted::count().loadRelaxed(), 1);
        QCOMPARE(nOthers.loadRelaxed(), 0);
        delete pFirst.loadRelaxed();
    }

    void boxReturnsTheButton_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("clicked");
        QTest::addColumn<QMessageBox::StandardButton>("result");
        QTest::newRow("yes") << QMessageBox::Yes << QMessageBox::Yes;
        QTest::newRow("no") << QMessageBox::No << QMessageBox::No;
        QTest::newRow("closed without a button") << QMessageBox::NoButton << QMessageBox::Cancel;
    }

    void boxReturnsTheButton()
    {
        QFETCH(QMessageBox::StandardButton, clicked);
        BoxAnswers boxes({clicked});
        const auto result = IUi::question(
            nullptr, "Kelpa Studio", "Really?", QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
        QTEST(result, "result");
        QCOMPARE(boxes.boxes.first().title, "Kelpa Studio");
        QCOMPARE(boxes.boxes.first().text, "Really?");
        QCOMPARE(boxes.boxes.first().buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(boxes.boxes.first().defaultButton, QMessageBox::No);
        QCOMPARE(boxes.boxes.first().pParent, m_pWindow.get());
    }

    void boxIconFollowsTheParentsScreen_data()
    {
        QTest::addColumn<QString>("screenName");
        QTest::addColumn<int>("side");
        QTest::newRow("96") << "96" << 32;
        QTest::newRow("120") << "120" << 40;
        QTest::newRow("143") << "143" << 47;
        QTest::newRow("192") << "192" << 64;
    }

    void boxIconFollowsTheParentsScreen()
    {
        QFETCH(QString, screenName);
        QFETCH(int, side);
        QWidget parent;
        parent.move(screen(screenName)->geometry().center());
        parent.show();
        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok});
        IUi::information(&parent, "Kelpa Studio", "text");
        IUi::question(&parent, "Kelpa Studio", "text", QMessageBox::Ok, QMessageBox::Ok);
        IUi::warning(&parent, "Kelpa Studio", "text");
        QCOMPARE(boxes.boxes.size(), 3);
        for (const BoxAnswers::Box &box : std::as_const(boxes.boxes))
            QCOMPARE(box.iconSize, QSize(side, side));
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
    static QScreen *screen(const QString &strName)
    {
        const auto screens = QGuiApplication::screens();
        const auto it = std::find_if(screens.begin(), screens.end(), [&](const QScreen *pScreen) {
            return qRound(pScreen->logicalDotsPerInchX()) == strName.toInt();
        });
        return it == screens.end() ? nullptr : *it;
    }

    void writeImage(const QString &strName, int nSide) const
    {
        QImage image(nSide, nSide, QImage::Format_ARGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(m_pProgram->folder.filePath(strName)));
    }

    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<MainWindow> m_pWindow;
};

QTEST_MAIN(tst_IUi)
#include "tst_iui.moc"
