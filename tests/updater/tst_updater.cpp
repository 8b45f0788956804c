// SPDX-License-Identifier: MIT
// The whole road of an update, against a real server.
#include "updatetest.h"

#include <displayscale.h>
#include <mainwindow.h>
#include <support/clock.h>
#include <updater/qsimpleupdater.h>
#include <updater/updater.h>

#include <QNetworkReply>
#include <QProgressBar>

class tst_Updater : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        expectNoEngine();
    }

    void wholeRoadEndsWithTheInstallerOpenedAndTheProgramLeft()
    {
        TestHome home;
        TestServer server;
        const QByteArray installer(300000, 'k');
        const QString strPath = "/a/Setup.exe?as=b/c";
        server.body("/feed", feed("9.1" + QString(9000, QLatin1Char('0')), server.url(strPath) + "#d/e"));
        server.body(strPath, installer);
        home.write("Setup.exe", "old");
        Updater updater;
        updater.setUrl(server.url("/feed"));
        updater.setModuleName("<Kelpa>");
        updater.setModuleVersion("3.1");
        const QSignalSpy finished(&updater, &Updater::checkingFinished);
        const QSignalSpy downloaded(&updater, &Updater::downloadFinished);
        const OfferAnswers offers("m_pBtnUpdate");
        const BoxAnswers boxes({QMessageBox::Ok});
        updater.checkForUpdates(true);
        QTimer::singleShot(20000, &server, [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0); // left by the program itself

        QCOMPARE(offers.headings,
            {"<b>&lt;Kelpa&gt; 9.1" + QString(57, QLatin1Char('0')) + "... has been released!</b>"});
        QCOMPARE(finished.size(), 1);
        const QString strFile = home.path() + "/Downloads/Setup.exe";
        QCOMPARE(downloaded.value(0), (QVariantList {server.url("/feed"), strFile}));
        QCOMPARE(boxes.boxes.size(), 1);
        QCOMPARE(boxes.boxes.first().title, "Kelpa Studio");
        QCOMPARE(boxes.boxes.first().buttons, QMessageBox::Ok | QMessageBox::Cancel);
        QCOMPARE(boxes.boxes.first().defaultButton, QMessageBox::Cancel);
        QCOMPARE(boxes.boxes.first().informative, "Click OK to begin installing the update.");
        QCOMPARE(boxes.boxes.first().details, strFile);
        QCOMPARE(home.opened, {"file://" + strFile});
        QCOMPARE(home.downloads(), {"Setup.exe"});
        QCOMPARE(home.trash(), {"Setup.exe"});
        QVERIFY(home.content("Setup.exe") == installer);
        QCOMPARE(server.heads.size(), 2);
        const QString strAgent =
            QStringLiteral("\r\nUser-Agent: %1/%2 (Updater)\r\n")
                .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
        for (const QByteArray &head : server.heads)
            QVERIFY2(head.contains(strAgent.toLatin1()), head.constData());
        QVERIFY(server.heads.last().contains("\r\nAccept-Encoding: identity\r\n"));
    }

    void whatFollowsAnOffer_data()
    {
        const auto row = columns<QString, QString, QString, bool, QStringList>(
            "button", "openUrl", "download", "hasDownloader", "events");
        const QString strUpdate = "m_pBtnUpdate";
        const QString strInstaller = "https://k.example/x";
        const QString strPage = "https://k.example/get";
        row("a page instead of a download", strUpdate, strPage, strInstaller, true, {strPage});
        row("no downloader", strUpdate, "", strInstaller, false, {strInstaller});
        row("a page that is a file", strUpdate, "file:///etc/passwd", "", true, {"refused"});
        row("an installer without a scheme", strUpdate, "", "//k.example/x", false, {"refused"});
        row("it is closed", "m_pBtnClose", "", strInstaller, true, {});
        row("it is skipped", "m_pBtnSkip", strPage, "", true, {"9 for good"});
        row("it is put off", "m_pBtnLater", "", strInstaller, false, {"9 for now"});
    }

    void whatFollowsAnOffer()
    {
        QFETCH(const QString, button);
        QFETCH(const QString, openUrl);
        QFETCH(const QString, download);
        QFETCH(const bool, hasDownloader);
        QFETCH(const QStringList, events);
        TestHome home;
        TestServer server;
        server.body("/", feed("9", download, {{"open-url", openUrl}}));
        if (events.contains("refused"))
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Not opened, since"));
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        pFacade->setDownloaderEnabled(server.url("/"), hasDownloader);
        QStringList found;
        connect(pFacade, &QSimpleUpdater::offerPutOff, &server,
            [&](const QString &, const QString &strVersion, bool bForGood) {
                found.append(strVersion + (bForGood ? " for good" : " for now"));
            });
        const OfferAnswers offers(button);
        const QSignalSpy ended(pFacade, &QSimpleUpdater::checkEnded);
        pFacade->checkForUpdates(server.url("/"), true);
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(ended.at(0).at(0).toString(), server.url("/"));
        QCOMPARE(offers.headings.size(), 1);
        QCOMPARE(home.opened + found, events == QStringList("refused") ? QStringList() : events);
        for (const QWidget *pWindow : QApplication::topLevelWidgets())
            QVERIFY(!pWindow->isVisible());
    }

    void whatIsShownWhen_data()
    {
        QTest::addColumn<int>("flags");
        for (int i = 0; i < 16; ++i)
            QTest::addRow("update %d, notices on update %d, on finish %d, silent %d", i / 8, i / 4 % 2,
                i / 2 % 2, i % 2)
                << i;
    }

    void whatIsShownWhen()
    {
        QFETCH(const int, flags);
        const bool available = flags & 8;
        const bool onUpdate = flags & 4;
        const bool onFinish = flags & 2;
        const bool silent = flags & 1;
        TestServer server;
        server.body("/", feed(QString::fromLatin1(available ? "4.0-beta" : "3.0.2"), QString()));
        Updater updater;
        updater.setUrl(server.url("/"));
        updater.setModuleVersion("3.0.2");
        updater.setModuleName("<Kelpa>");
        updater.setNotifyOnUpdate(onUpdate);
        updater.setNotifyOnFinish(onFinish);
        const OfferAnswers offers("m_pBtnClose");
        const BoxAnswers boxes({QMessageBox::Close});
        const QSignalSpy finished(&updater, &Updater::checkingFinished);
        updater.checkForUpdates(silent);
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(updater.updateAvailable(), available);
        QCOMPARE(offers.headings.size(), available && (onUpdate || onFinish) ? 1 : 0);
        QCOMPARE(boxes.boxes.size(), !available && onFinish && !silent ? 1 : 0);
        if (!boxes.boxes.isEmpty())
            QCOMPARE(boxes.texts().first(),
                "<h3>Congratulations! You are running the latest version of &lt;Kelpa&gt;</h3>");
    }

    void customFeedIsHandedOverUnread()
    {
        TestServer server;
        const QByteArray data = QByteArray("no JSON at all ").repeated(100000);
        server.body("/", data);
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        const QString strUrl = server.url("/");
        pFacade->setUseCustomAppcast(strUrl, true);
        pFacade->setNotifyOnFinish(strUrl, true);
        const QSignalSpy appcast(pFacade, &QSimpleUpdater::appcastDownloaded);
        const QSignalSpy ended(pFacade, &QSimpleUpdater::checkEnded);
        pFacade->checkForUpdates(strUrl, false);
        QTRY_COMPARE(ended.size(), 1);
        QVERIFY(appcast.value(0) == (QVariantList {strUrl, data}));
        QCOMPARE(pFacade->getLastError(strUrl), QString());
    }

    void redirectsLeadOnInEachPhase()
    {
        TestHome home;
        const TestCertificate certificate;
        certificate.trust();
        TestServer server;
        TestServer secure(&certificate);
        server.redirect("/feed", "moved/feed?a=1");
        server.redirect("/moved/feed?a=1", secure.url("/feed"));
        secure.body("/feed", feed("9", server.url("/Setup.bin")));
        server.redirect("/Setup.bin", "/mirror/other");
        server.redirect("/mirror/other", secure.url("/x"));
        secure.body("/x", "installer");
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        const QString strUrl = server.url("/feed");
        pFacade->setUseCustomInstallProcedures(strUrl, true);
        QVERIFY(pFacade->usesCustomInstallProcedures(strUrl));
        const QSignalSpy finished(pFacade, &QSimpleUpdater::checkingFinished);
        const QSignalSpy ended(pFacade, &QSimpleUpdater::checkEnded);
        const QSignalSpy downloaded(pFacade, &QSimpleUpdater::downloadFinished);
        const OfferAnswers offers("m_pBtnUpdate");
        pFacade->checkForUpdates(strUrl, true);
        QTRY_COMPARE(downloaded.size(), 1);
        const QString strLast = secure.url("/feed");
        QCOMPARE(finished.at(0).at(0).toString(), strLast);
        QCOMPARE(ended.at(0).at(0).toString(), strUrl);
        QCOMPARE(downloaded.at(0).at(0).toString(), strLast);
        QCOMPARE(home.content("Setup.bin"), QByteArray("installer"));
        QCOMPARE(secure.paths, (QStringList {"/feed", "/x"}));
        QCOMPARE(pFacade->getLatestVersion(strUrl), "9"); // the first address still leads there
        QVERIFY(home.opened.isEmpty());
    }

    void desktopIsAskedForAProgram_data()
    {
        const auto row = columns<QByteArray, bool>("script", "isOpened");
        row("knows none", "exit 4", false);
        row("knows one for the type itself", "[ $3 = text/plain ] && echo a.desktop", true);
        row("does not work", "exit 3", true);
        row("does not answer", "sleep 9", true);
    }

    void desktopIsAskedForAProgram()
    {
        QFETCH(const QByteArray, script);
        QFETCH(const bool, isOpened);
        Download download;
        const TestHome &home = download.home;
        home.setHandlers(script);
        home.write("x", "installer");
        const BoxAnswers boxes({QMessageBox::Ok});
        QMetaObject::invokeMethod(&download.downloader, "openDownload");
        QVERIFY(home.opened.isEmpty() && boxes.boxes.isEmpty());
        if (script.startsWith("sleep")) {
            QTRY_COMPARE(download.downloader.findChild<QProcess *>()->state(), QProcess::Running);
            Clock::putForward(2);
            QVERIFY(home.opened.isEmpty());
            Clock::putForward(1);
        }
        QTRY_COMPARE(home.opened.size() + boxes.boxes.size(), 1);
        QCOMPARE(home.opened.size(), isOpened ? 1 : 0);
        QVERIFY(isOpened || boxes.texts().first().startsWith("There is no program to open "));
    }

    void boxesShowAllAndMayDieWithTheMainWindow_data()
    {
        const auto row = columns<QString>("call");
        for (const char *pCall : {"check", "installUpdate", "openDownload"})
            row(pCall, pCall);
    }

    void boxesShowAllAndMayDieWithTheMainWindow()
    {
        QFETCH(const QString, call);
        TestProgram program;
        TestHome home;
        const QPointer<MainWindow> pWindow = new MainWindow(nullptr);
        bool bCut = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            const QWidget *pBox = QApplication::activeModalWidget();
            if (!pBox || !pBox->isVisible())
                return;
            const auto *pHeading = pBox->findChild<QLabel *>("qt_msgbox_label");
            bCut = pHeading->width() < pHeading->sizeHint().width();
            delete pWindow;
        });
        timer.start(1);
        Updater updater;
        updater.setUrl("http://127.0.0.1:1/");
        updater.setNotifyOnFinish(true);
        Downloader downloader;
        if (call == "check")
            updater.checkForUpdates(false);
        else
            QMetaObject::invokeMethod(&downloader, call.toLatin1().constData());
        QTRY_VERIFY(!pWindow);
        QVERIFY(!bCut);
    }

    void downloadShowsEachStepAndOffersTheInstallerUntilItIsOpened_data()
    {
        const auto row = columns<QByteArray, QString>("head", "begun");
        row("of a known length", "Content-Length: 5000\r\n",
            "Downloading Updates (1 KB of 4 KB) | Time Remaining: About 1 minute | 30% of 100");
        row("of an unknown one", "", "Downloading Updates... | Time Remaining: Unknown |  of 0");
    }

    // Progress is told ten times a second, so what comes at once is not told.
    void downloadShowsEachStepAndOffersTheInstallerUntilItIsOpened()
    {
        QFETCH(const QByteArray, head);
        QFETCH(const QString, begun);
        Download download("HTTP/1.1 200 OK\r\n" + head + "\r\n" + QByteArray(1000, 'a'));
        Downloader &downloader = download.downloader;
        const BoxAnswers boxes(
            {QMessageBox::Cancel, QMessageBox::NoButton, QMessageBox::Ok, QMessageBox::Ok});
        download.start();
        QCOMPARE(download.look(), "Downloading Updates | Time Remaining: Unknown | 0% of 100 | Stop");
        const int nDPI = DisplayScale::logicalDpi(&downloader);
        QCOMPARE(
            download.child<QFrame>("progressFrame")->minimumWidth(), DisplayScale::proportional(nDPI, 400));
        QCOMPARE(download.child("updater_icon")->pixmap().height(), DisplayScale::proportional(nDPI, 32));
        QVERIFY(downloader.windowFlags().testFlag(Qt::Dialog) && !downloader.windowIcon().isNull());
        QCOMPARE(downloader.size(), downloader.sizeHint()); // and it cannot be resized
        QTRY_COMPARE(download.home.content("x.part").size(), 1000);
        Clock::putForward(20);
        download.pSocket->write(QByteArray(500, 'a'));
        QTRY_COMPARE(download.look(), begun + " | Stop");
        QCOMPARE(download.home.content("x.part").size(), 1500);
        download.pSocket->write(QByteArray(3500, 'a'));
        download.pSocket->disconnectFromHost();
        QTRY_VERIFY(download.openButton()->isEnabled());
        QCOMPARE(download.look(),
            "Download complete! | Click Open to apply the update. | 100% of 100 | Close Open");
        QCOMPARE(download.downloaded.size(), 1);
        QCOMPARE(download.home.downloads(), {"x"});
        QCOMPARE(download.home.content("x").size(), 5000);

        download.openButton()->click(); // and closes the box
        QVERIFY(download.home.opened.isEmpty());
        download.openButton()->click();
        QTRY_COMPARE(download.home.opened.size(), 1);
        QVERIFY(QFile::remove(Downloader::downloadFolder() + QLatin1Char('x')));
        download.openButton()->click();
        QCOMPARE(boxes.texts().last(), "Cannot find downloaded update!");
        download.stopButton()->click(); // without a question
        QCOMPARE(download.look(),
            "Download complete! | The installer will open separately... | 100% of 100 | Close Open hidden");
        QCOMPARE(boxes.boxes.size(), 5);
    }

    void startingAgainEndsTheFirstDownload()
    {
        Download download("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nold");
        download.downloader.setUseCustomInstallProcedures(true);
        download.start();
        QTRY_COMPARE(download.home.content("x.part"), QByteArray("old"));
        download.downloader.showMinimized();
        QVERIFY(download.downloader.bringToFront() && !download.downloader.isMinimized());
        const QPointer<QTcpSocket> pFirst = download.pSocket;
        download.server.body("/x", "new");
        download.start();
        QTRY_COMPARE(download.downloaded.size(), 1);
        QTRY_VERIFY(!pFirst);
        QCOMPARE(download.home.content("x"), QByteArray("new"));
    }

    void cancellingAsksOnceAndLeavesOnlyThePart()
    {
        Download download("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n" + QByteArray(1500, 'a'));
        download.downloader.show();
        download.stopButton()->click(); // before anything was started
        QVERIFY(!download.downloader.isVisible());
        download.home.write("x", "old");

        const BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes});
        download.start();
        QTRY_COMPARE(download.home.content("x.part").size(), 1500);
        download.stopButton()->click();
        QVERIFY(download.downloader.isVisible());
        QTest::keyClick(&download.downloader, Qt::Key_Escape); // asks like the button
        QVERIFY(!download.downloader.isVisible());
        QCOMPARE(boxes.texts(), QStringList(2, "Are you sure you want to cancel the download?"));
        QTRY_VERIFY(!download.pSocket); // the connection ends
        QCOMPARE(download.home.downloads(), (QStringList {"x", "x.part"}));
        QCOMPARE(download.home.content("x"), QByteArray("old"));
        QCOMPARE(boxes.boxes.size(), 2);
    }

    void programEndsWithItsMainWindowAlsoDuringADownload()
    {
        TestProgram program;
        Download download;
        Downloader &downloader = download.downloader;
        MainWindow window(nullptr);
        window.show();
        const BoxAnswers boxes({QMessageBox::No});
        download.start();
        const QWindow *pOwner = downloader.windowHandle()->transientParent();
        downloader.close();
        QVERIFY(downloader.isVisible());
        QTimer::singleShot(0, &window, &QWidget::close);
        QTimer::singleShot(5000, &window, [] { QCoreApplication::exit(1); });
        QGuiApplication::setQuitOnLastWindowClosed(true);
        const int nExitCode = QApplication::exec();
        QGuiApplication::setQuitOnLastWindowClosed(false);
        QCOMPARE(nExitCode, 0);
        QCOMPARE(boxes.boxes.size(), 1);
        QVERIFY(pOwner && pOwner == window.windowHandle()); // and so it is not behind it
    }

    void downloadThatEndsDuringTheQuestionIsNotCancelled()
    {
        Download download("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\na");
        download.downloader.setUseCustomInstallProcedures(true);
        download.start();
        QTRY_COMPARE(download.home.content("x.part").size(), 1);
        QTimer::singleShot(0, &download.downloader, [&] {
            download.pSocket->write("b");
            QTRY_COMPARE(download.downloaded.size(), 1);
            qobject_cast<QMessageBox *>(QApplication::activeModalWidget())->button(QMessageBox::Yes)->click();
        });
        download.stopButton()->click();
        QCOMPARE(download.downloaded.size(), 1);
        QCOMPARE(download.home.downloads(), {"x"});
    }

    // With two checks under way, so that something is left to end.
    void updaterMayBeDeletedWhenACheckEnds()
    {
        TestServer server;
        server.on("/", [](QTcpSocket *) {});
        const QPointer<Updater> pUpdater = new Updater;
        pUpdater->setUrl(server.url("/"));
        int nEnded = 0;
        connect(pUpdater, &Updater::checkingFinished, this, [&] {
            ++nEnded;
            delete pUpdater;
        });
        pUpdater->checkForUpdates(true);
        pUpdater->checkForUpdates(true);
        QTRY_COMPARE(server.paths.size(), 2);
        pUpdater->abort();
        QVERIFY(!pUpdater);
        QCOMPARE(nEnded, 1);
    }

    void downloaderMayBeDeletedWhenItEnds()
    {
        for (const QByteArray head : {"Content-Length: 9\r\n", ""}) {
            TestHome home;
            TestServer server;
            const QPointer<Downloader> pDownloader = new Downloader;
            QPointer<QNetworkReply> pReply;
            server.on("/x", [&](QTcpSocket *pSocket) {
                pReply = pDownloader->findChild<QNetworkReply *>();
                TestServer::send(pSocket, "HTTP/1.1 200 OK\r\n" + head + "\r\ninstaller");
            });
            connect(pDownloader, &Downloader::downloadFinished, this, [&] {
                QVERIFY(!pReply); // and so not in a signal of its own
                delete pDownloader;
            });
            pDownloader->setFileName("x");
            pDownloader->startDownload(QUrl(server.url("/x")));
            QTRY_VERIFY(!pDownloader);
            QCOMPARE(home.content("x"), QByteArray("installer"));
        }
    }
};

QTEST_MAIN(tst_Updater)
#include "tst_updater.moc"
