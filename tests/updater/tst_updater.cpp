// SPDX-License-Identifier: MIT
// The whole road of an update, against a real server.
#include "testserver.h"
#include "updatetest.h"

#include <mainwindow.h>
#include <updater/qsimpleupdater.h>
#include <updater/updater.h>

#include <QNetworkReply>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTextBrowser>

namespace {

QLabel *label(const Downloader &downloader, const char *pName)
{
    return downloader.findChild<QLabel *>(QLatin1String(pName));
}

QPushButton *button(const Downloader &downloader, const char *pName)
{
    return downloader.findChild<QPushButton *>(QLatin1String(pName));
}

/// The window of the updater under test: there is one that shows.
Downloader *visibleDownloader()
{
    for (QWidget *pWidget : QApplication::topLevelWidgets()) {
        auto *pDownloader = qobject_cast<Downloader *>(pWidget);
        if (pDownloader && pDownloader->isVisible())
            return pDownloader;
    }
    return nullptr;
}

// Progress is told ten times a second, so what comes at once is not told.
void writeLater(QTcpSocket *pSocket)
{
    QTimer::singleShot(200, pSocket, [pSocket] { pSocket->write(QByteArray(500, 'a')); });
}

} // namespace

class tst_Updater : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QGuiApplication::setQuitOnLastWindowClosed(false); }

    void wholeRoadEndsWithTheInstallerOpenedAndTheProgramLeft()
    {
        TestHome home;
        TestServer server;
        const QByteArray installer(300000, 'k');
        const QString strPath = "/a/Setup.exe?as=b/c";
        server.body("/feed", feed("9.1", server.url(strPath) + "#d/e"));
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
        QTimer::singleShot(20000, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0); // left by the program itself

        QCOMPARE(offers.headings, {"<b>&lt;Kelpa&gt; 9.1 has been released!</b>"});
        QCOMPARE(finished.size(), 1);
        const QString strFile = home.path() + "/Downloads/Setup.exe";
        QCOMPARE(downloaded.value(0), (QVariantList {server.url("/feed"), strFile}));
        QCOMPARE(boxes.boxes.size(), 1);
        QCOMPARE(boxes.boxes.first().title, "Kelpa Studio");
        QCOMPARE(boxes.boxes.first().buttons, QMessageBox::Ok | QMessageBox::Cancel);
        QCOMPARE(boxes.boxes.first().defaultButton, QMessageBox::Cancel);
        QVERIFY(boxes.boxes.first().informative.contains(strFile));
        QCOMPARE(home.opened, {"file://" + strFile});
        QCOMPARE(home.downloads(), {"Setup.exe"});
        QCOMPARE(home.trash(), {"Setup.exe"});
        QVERIFY(home.content("Setup.exe") == installer);
        const QByteArray agent = (QCoreApplication::applicationName() + QLatin1Char('/')
            + QCoreApplication::applicationVersion() + " (Updater)")
                                     .toUtf8();
        QCOMPARE(server.userAgents, (QList<QByteArray> {agent, agent}));
    }

    void whatFollowsAnAcceptedOffer_data()
    {
        const auto row =
            columns<QString, QString, bool, QStringList>("openUrl", "download", "hasDownloader", "opened");
        const QStringList none;
        row("a page instead of a download", "https://k.example/get", "https://k.example/x", true,
            QStringList {"https://k.example/get"});
        row("no downloader", "", "https://k.example/x", false, QStringList {"https://k.example/x"});
        row("a page that is a file", "file:///etc/passwd", "", true, none);
        row("a page that is a script", "javascript:alert(1)", "", true, none);
        row("an installer that is a file", "", "file:///bin/sh", false, none);
        row("an installer without a scheme", "", "//k.example/x", false, none);
    }

    void whatFollowsAnAcceptedOffer()
    {
        QFETCH(const QString, openUrl);
        QFETCH(const QString, download);
        QFETCH(const bool, hasDownloader);
        QFETCH(const QStringList, opened);
        TestHome home;
        TestServer server;
        server.body("/", feed("9", download, {{"open-url", openUrl}}));
        if (opened.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Not opened, since"));
        Updater updater;
        updater.setUrl(server.url("/"));
        updater.setDownloaderEnabled(hasDownloader);
        const OfferAnswers offers("m_pBtnUpdate");
        const QSignalSpy finished(&updater, &Updater::checkingFinished);
        updater.checkForUpdates(true);
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(offers.headings.size(), 1);
        QCOMPARE(home.opened, opened);
        QVERIFY(!visibleDownloader());
    }

    void otherAnswersToTheOfferFetchNothing()
    {
        TestServer server;
        server.body("/", feed("9.1", server.url("/x")));
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        const QString strUrl = server.url("/");
        QSignalSpy putOff(pFacade, &QSimpleUpdater::offerPutOff);
        const QSignalSpy ended(pFacade, &QSimpleUpdater::checkEnded);
        for (const char *pButton : {"m_pBtnClose", "m_pBtnSkip", "m_pBtnLater"}) {
            const OfferAnswers offers(QString::fromLatin1(pButton));
            const qsizetype nBefore = ended.size();
            pFacade->checkForUpdates(strUrl, true);
            QTRY_COMPARE(ended.size(), nBefore + 1);
            QCOMPARE(offers.headings.size(), 1);
        }
        QCOMPARE(putOff.size(), 2);
        QCOMPARE(putOff.at(0), (QVariantList {strUrl, "9.1", true}));
        QCOMPARE(putOff.at(1), (QVariantList {strUrl, "9.1", false}));
        QCOMPARE(server.paths, QStringList(3, "/"));
    }

    void whatIsShownWhen_data()
    {
        QTest::addColumn<bool>("available");
        QTest::addColumn<bool>("onUpdate");
        QTest::addColumn<bool>("onFinish");
        QTest::addColumn<bool>("silent");
        for (int i = 0; i < 16; ++i)
            QTest::addRow("%s, notices on update %s, on finish %s, %s", i & 8 ? "update" : "no update",
                i & 4 ? "on" : "off", i & 2 ? "on" : "off", i & 1 ? "silent" : "not silent")
                << bool(i & 8) << bool(i & 4) << bool(i & 2) << bool(i & 1);
    }

    void whatIsShownWhen()
    {
        QFETCH(const bool, available);
        QFETCH(const bool, onUpdate);
        QFETCH(const bool, onFinish);
        QFETCH(const bool, silent);
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

    void headingOfABoxIsNotCut()
    {
        TestServer server;
        server.body("/", feed("1", QString()));
        Updater updater;
        updater.setUrl(server.url("/"));
        updater.setModuleVersion("1");
        updater.setNotifyOnFinish(true);
        int nWanted = -1;
        int nWidth = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &updater, [&] {
            QWidget *pBox = QApplication::activeModalWidget();
            if (!pBox || !pBox->isVisible())
                return;
            const auto *pHeading = pBox->findChild<QLabel *>("qt_msgbox_label");
            nWidth = pHeading->width();
            nWanted = pHeading->sizeHint().width();
            pBox->close();
        });
        timer.start(1);
        updater.checkForUpdates(false);
        QTRY_VERIFY(nWanted > 0);
        QVERIFY2(nWidth >= nWanted, qPrintable(QStringLiteral("%1 of %2").arg(nWidth).arg(nWanted)));
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
        QVERIFY(pFacade->usesCustomAppcast(strUrl));
        const QSignalSpy appcast(pFacade, &QSimpleUpdater::appcastDownloaded);
        const QSignalSpy ended(pFacade, &QSimpleUpdater::checkEnded);
        pFacade->checkForUpdates(strUrl, false);
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(appcast.size(), 1);
        QCOMPARE(appcast.at(0).at(0).toString(), strUrl);
        QVERIFY(appcast.at(0).at(1).toByteArray() == data);
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

    void installerIsOfferedUntilItIsOpened()
    {
        TestHome home;
        TestServer server;
        server.body("/x", "installer");
        Downloader downloader;
        downloader.setFileName("x");
        const BoxAnswers boxes({QMessageBox::Cancel, QMessageBox::NoButton, QMessageBox::Ok, QMessageBox::Ok,
            QMessageBox::Ok, QMessageBox::Ok});
        downloader.startDownload(QUrl(server.url("/x")));
        QVERIFY(!button(downloader, "openButton")->isEnabled());
        QTRY_VERIFY(button(downloader, "openButton")->isEnabled());
        QCOMPARE(label(downloader, "downloadLabel")->text(), "Download complete!");
        QCOMPARE(label(downloader, "timeLabel")->text(), "Click Open to apply the update.");
        QCOMPARE(button(downloader, "stopButton")->text(), "Close");
        button(downloader, "openButton")->click(); // and closes the box
        QVERIFY(home.opened.isEmpty());
        button(downloader, "openButton")->click();
        QCOMPARE(home.opened.size(), 1);
        home.forgetHandlers();
        button(downloader, "openButton")->click();
        QCOMPARE(home.opened.size(), 1);
        QVERIFY(boxes.texts().last().startsWith("There is no program to open "));
        QVERIFY(QFile::remove(Downloader::downloadFolder() + QLatin1Char('x')));
        button(downloader, "openButton")->click();
        QTRY_COMPARE(boxes.boxes.size(), 7);
        QCOMPARE(boxes.texts().last(), "Cannot find downloaded update!");
        button(downloader, "stopButton")->click(); // without a question
        QVERIFY(!downloader.isVisible());
        QCOMPARE(boxes.boxes.size(), 7);
    }

    void progressIsTold()
    {
        TestHome home;
        TestServer server;
        QPointer<QTcpSocket> pSocket;
        server.on("/known", [&](QTcpSocket *p) {
            pSocket = p;
            p->write("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n" + QByteArray(1000, 'a'));
            writeLater(p);
        });
        server.on("/unknown", [&](QTcpSocket *p) {
            pSocket = p;
            p->write("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(1000, 'a'));
            writeLater(p);
        });
        Downloader downloader;
        downloader.setFileName("x");
        downloader.setUseCustomInstallProcedures(true);
        const QSignalSpy downloaded(&downloader, &Downloader::downloadFinished);
        downloader.startDownload(QUrl(server.url("/known")));
        const QLabel *pSizes = label(downloader, "downloadLabel");
        QTRY_COMPARE(pSizes->text(), "Downloading Updates (1 KB of 4 KB)");
        const auto *pBar = downloader.findChild<QProgressBar *>();
        QCOMPARE(pBar->value(), 30);
        QCOMPARE(home.downloads(), {"x.part"});
        pSocket->write(QByteArray(3500, 'a'));
        QTRY_COMPARE(downloaded.size(), 1);
        QCOMPARE(home.downloads(), {"x"});

        downloader.startDownload(QUrl(server.url("/unknown")));
        QTRY_COMPARE(pBar->maximum(), 0);
        QCOMPARE(pSizes->text(), "Downloading Updates...");
        QCOMPARE(label(downloader, "timeLabel")->text(), "Time Remaining: Unknown");
        QCOMPARE(home.downloads(), (QStringList {"x", "x.part"}));
        pSocket->disconnectFromHost();
        QTRY_COMPARE(downloaded.size(), 2);
        QCOMPARE(home.content("x").size(), 1500);
    }

    void cancellingAsksOnceAndLeavesOnlyThePart()
    {
        TestHome home;
        TestServer server;
        QPointer<QTcpSocket> pSocket;
        server.on("/x", [&](QTcpSocket *p) {
            pSocket = p;
            p->write("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n" + QByteArray(1500, 'a'));
        });
        Downloader downloader;
        downloader.setFileName("x");
        downloader.setUseCustomInstallProcedures(true);
        downloader.show();
        button(downloader, "stopButton")->click(); // before anything was started
        QVERIFY(!downloader.isVisible());
        home.write("x", "old");

        const BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes});
        downloader.startDownload(QUrl(server.url("/x")));
        QTRY_COMPARE(home.content("x.part").size(), 1500);
        button(downloader, "stopButton")->click();
        QVERIFY(downloader.isVisible());
        downloader.close(); // asks like the button
        QVERIFY(!downloader.isVisible());
        QCOMPARE(boxes.texts(), QStringList(2, "Are you sure you want to cancel the download?"));
        QTRY_VERIFY(!pSocket); // the connection ends
        QCOMPARE(home.downloads(), (QStringList {"x", "x.part"}));
        QCOMPARE(home.content("x"), QByteArray("old"));
        QCOMPARE(boxes.boxes.size(), 2);
    }

    void programEndsWithItsMainWindowAlsoDuringADownload()
    {
        TestProgram program;
        TestHome home;
        TestServer server;
        server.on("/x", [](QTcpSocket *) {});
        MainWindow window(nullptr);
        window.show();
        Downloader downloader;
        const BoxAnswers boxes({QMessageBox::No});
        downloader.startDownload(QUrl(server.url("/x")));
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

    void offerIsHarmlessUntilItIsReadAndFitsTheScreen()
    {
        TestServer server;
        const QString strVersion = "9" + QStringLiteral(".0").repeated(9000);
        server.body("/", feed(strVersion, QString(), {{"changelog", "http://127.0.0.1:1/"}}));
        Updater updater;
        updater.setUrl(server.url("/"));
        QStringList found;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &updater, [&] {
            auto *pDialog = qobject_cast<KPReleaseNoteDlg *>(QApplication::activeModalWidget());
            auto *pText = pDialog ? pDialog->findChild<QTextBrowser *>() : nullptr;
            if (!pText || !pText->toPlainText().contains("Failed to load"))
                return;
            const QSize over = pDialog->frameSize() - pDialog->screen()->availableSize();
            const QWidget *pFocus = pDialog->focusWidget();
            found = {pFocus ? pFocus->objectName() : QString(), over.isValid() ? "too large" : "fits",
                pDialog->findChild<QPushButton *>("m_pBtnUpdate")->isEnabled() ? "enabled" : "disabled"};
            pDialog->reject();
        });
        timer.start(1);
        updater.checkForUpdates(true);
        QTRY_COMPARE(found, (QStringList {"m_pBtnClose", "fits", "disabled"}));
    }

    void downloadThatEndsDuringTheQuestionIsNotCancelled()
    {
        TestHome home;
        TestServer server;
        QPointer<QTcpSocket> pSocket;
        server.on("/x", [&](QTcpSocket *p) {
            pSocket = p;
            p->write("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\na");
        });
        Downloader downloader;
        downloader.setFileName("x");
        downloader.setUseCustomInstallProcedures(true);
        const QSignalSpy downloaded(&downloader, &Downloader::downloadFinished);
        downloader.startDownload(QUrl(server.url("/x")));
        QTRY_COMPARE(home.content("x.part").size(), 1);
        QTimer::singleShot(0, &downloader, [&] {
            pSocket->write("b");
            QTRY_COMPARE(downloaded.size(), 1);
            qobject_cast<QMessageBox *>(QApplication::activeModalWidget())->button(QMessageBox::Yes)->click();
        });
        button(downloader, "stopButton")->click();
        QCOMPARE(downloaded.size(), 1);
        QCOMPARE(home.downloads(), {"x"});
    }

    void twoFeedsDoNotMeet()
    {
        TestServer server;
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        const QString strFirst = server.url("/1");
        const QString strSecond = server.url("/2");
        server.body("/1", feed("9.1", QString()));
        server.body("/2", "broken");
        for (const QString &strUrl : {strFirst, strSecond}) {
            pFacade->setNotifyOnUpdate(strUrl, false);
            pFacade->setModuleVersion(strUrl, "1");
        }
        pFacade->setUserAgentString(strSecond, QString());
        const QSignalSpy ended(pFacade, &QSimpleUpdater::checkEnded);
        pFacade->checkForUpdates(strFirst, true);
        pFacade->checkForUpdates(strSecond, true);
        QTRY_COMPARE(ended.size(), 2);
        QVERIFY(pFacade->getUpdateAvailable(strFirst));
        QVERIFY(!pFacade->getUpdateAvailable(strSecond));
        QCOMPARE(pFacade->getLastError(strFirst), QString());
        QVERIFY(pFacade->getLastError(strSecond).contains("is not a valid feed"));
        QCOMPARE(pFacade->getLatestVersion(strFirst), "9.1");
        QCOMPARE(pFacade->getLatestVersion(strSecond), QString());
        const QByteArray agent = pFacade->getUserAgentString(strFirst).toUtf8();
        QVERIFY(server.userAgents.contains(agent) && server.userAgents.count(agent) == 1);
        QCOMPARE(pFacade->getPlatformKey(strFirst), "windows");
    }

    void abortEndsACheckWithAReason()
    {
        TestServer server;
        server.on("/", [](QTcpSocket *) {});
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        const QString strUrl = server.url("/");
        const QSignalSpy ended(pFacade, &QSimpleUpdater::checkEnded);
        pFacade->checkForUpdates(strUrl, true);
        QTRY_COMPARE(server.paths.size(), 1);
        pFacade->abort(strUrl);
        QCOMPARE(ended.size(), 1);
        QVERIFY(pFacade->getLastError(strUrl).startsWith("Cannot reach "));
        pFacade->abort(strUrl); // nothing is under way
        QCOMPARE(ended.size(), 1);
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

    void updaterMayBeDeletedWhenItsDownloadEnds_data()
    {
        const auto row = columns<QByteArray>("head");
        row("with its length announced", QByteArray("Content-Length: 9\r\n"));
        row("without", QByteArray());
    }

    void updaterMayBeDeletedWhenItsDownloadEnds()
    {
        QFETCH(const QByteArray, head);
        TestHome home;
        TestServer server;
        server.body("/", feed("9", server.url("/x")));
        QPointer<QNetworkReply> pReply;
        server.on("/x", [&](QTcpSocket *pSocket) {
            pReply = visibleDownloader()->findChild<QNetworkReply *>();
            TestServer::send(pSocket, "HTTP/1.1 200 OK\r\n" + head + "\r\ninstaller");
        });
        const QPointer<Updater> pUpdater = new Updater;
        pUpdater->setUrl(server.url("/"));
        bool bReplyGone = false; // and not in a signal of its own
        connect(pUpdater, &Updater::downloadFinished, this, [&] {
            bReplyGone = !pReply;
            delete pUpdater;
        });
        const OfferAnswers offers("m_pBtnUpdate");
        pUpdater->checkForUpdates(true);
        QTRY_VERIFY(!pUpdater);
        QVERIFY(bReplyGone);
        QCOMPARE(home.content("x"), QByteArray("installer"));
    }
};

QTEST_MAIN(tst_Updater)
#include "tst_updater.moc"
