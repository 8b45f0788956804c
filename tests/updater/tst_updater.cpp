// SPDX-License-Identifier: MIT
// The whole road of an update, against a real server.
#include "testserver.h"
#include "updatetest.h"

#include <updater/qsimpleupdater.h>
#include <updater/updater.h>

#include <QJsonArray>
#include <QProgressBar>
#include <QSignalSpy>

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
        server.body(
            QStringLiteral("/feed"), feed(QStringLiteral("9.1"), server.url(QStringLiteral("/a/Setup.exe"))));
        server.body(QStringLiteral("/a/Setup.exe"), installer);
        Updater updater;
        updater.setUrl(server.url(QStringLiteral("/feed")));
        updater.setModuleName(QStringLiteral("<Kelpa>"));
        updater.setModuleVersion(QStringLiteral("3.1"));
        const QSignalSpy finished(&updater, &Updater::checkingFinished);
        const QSignalSpy downloaded(&updater, &Updater::downloadFinished);
        const OfferAnswers offers(QStringLiteral("m_pBtnUpdate"));
        const BoxAnswers boxes({QMessageBox::Ok});
        updater.checkForUpdates(true);
        QTimer::singleShot(20000, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0); // left by the program itself

        QCOMPARE(offers.headings, {QStringLiteral("<b>&lt;Kelpa&gt; 9.1 has been released!</b>")});
        QCOMPARE(finished.size(), 1);
        const QString strFile = home.path() + QStringLiteral("/Downloads/Setup.exe");
        QCOMPARE(downloaded.value(0), (QVariantList {server.url(QStringLiteral("/feed")), strFile}));
        QCOMPARE(boxes.boxes.size(), 1);
        QCOMPARE(boxes.boxes.first().title, QStringLiteral("Kelpa Studio"));
        QCOMPARE(boxes.boxes.first().buttons, QMessageBox::Ok | QMessageBox::Cancel);
        QCOMPARE(home.opened, {QStringLiteral("file://") + strFile});
        QCOMPARE(home.downloads(), {QStringLiteral("Setup.exe")});
        QVERIFY(home.content(QStringLiteral("Setup.exe")) == installer);
        const QByteArray agent = (QCoreApplication::applicationName() + QLatin1Char('/')
            + QCoreApplication::applicationVersion() + QStringLiteral(" (Updater)"))
                                     .toUtf8();
        QCOMPARE(server.userAgents, (QList<QByteArray> {agent, agent}));
    }

    void whatFollowsAnAcceptedOffer_data()
    {
        QTest::addColumn<QString>("openUrl");
        QTest::addColumn<QString>("download");
        QTest::addColumn<bool>("hasDownloader");
        QTest::addColumn<QStringList>("opened");
        const QStringList none;
        QTest::newRow("a page instead of a download")
            << "https://k.example/get"
            << "https://k.example/x" << true << QStringList {QStringLiteral("https://k.example/get")};
        QTest::newRow("no downloader")
            << ""
            << "https://k.example/x" << false << QStringList {QStringLiteral("https://k.example/x")};
        QTest::newRow("a page that is a file") << "file:///etc/passwd"
                                               << "" << true << none;
        QTest::newRow("a page that is a script") << "javascript:alert(1)"
                                                 << "" << true << none;
        QTest::newRow("an installer that is a file") << ""
                                                     << "file:///bin/sh" << false << none;
        QTest::newRow("an installer without a scheme") << ""
                                                       << "//k.example/x" << false << none;
    }

    void whatFollowsAnAcceptedOffer()
    {
        QFETCH(const QString, openUrl);
        QFETCH(const QString, download);
        QFETCH(const bool, hasDownloader);
        QFETCH(const QStringList, opened);
        TestHome home;
        TestServer server;
        server.body(QStringLiteral("/"),
            feed(QStringLiteral("9"), download, {{QStringLiteral("open-url"), openUrl}}));
        if (opened.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Not opened, since")));
        Updater updater;
        updater.setUrl(server.url(QStringLiteral("/")));
        updater.setDownloaderEnabled(hasDownloader);
        const OfferAnswers offers(QStringLiteral("m_pBtnUpdate"));
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
        server.body(QStringLiteral("/"), feed(QStringLiteral("9.1"), server.url(QStringLiteral("/x"))));
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        const QString strUrl = server.url(QStringLiteral("/"));
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
        QCOMPARE(putOff.at(0), (QVariantList {strUrl, QStringLiteral("9.1"), true}));
        QCOMPARE(putOff.at(1), (QVariantList {strUrl, QStringLiteral("9.1"), false}));
        QCOMPARE(server.paths, QStringList(3, QStringLiteral("/")));
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
        server.body(
            QStringLiteral("/"), feed(QString::fromLatin1(available ? "3.0.10" : "3.0.2"), QString()));
        Updater updater;
        updater.setUrl(server.url(QStringLiteral("/")));
        updater.setModuleVersion(QStringLiteral("3.0.2"));
        updater.setModuleName(QStringLiteral("<Kelpa>"));
        updater.setNotifyOnUpdate(onUpdate);
        updater.setNotifyOnFinish(onFinish);
        const OfferAnswers offers(QStringLiteral("m_pBtnClose"));
        const BoxAnswers boxes({QMessageBox::Close});
        const QSignalSpy finished(&updater, &Updater::checkingFinished);
        updater.checkForUpdates(silent);
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(updater.updateAvailable(), available);
        QCOMPARE(offers.headings.size(), available && (onUpdate || onFinish) ? 1 : 0);
        QCOMPARE(boxes.boxes.size(), !available && onFinish && !silent ? 1 : 0);
        if (!boxes.boxes.isEmpty())
            QCOMPARE(boxes.texts().first(),
                QStringLiteral(
                    "<h3>Congratulations! You are running the latest version of &lt;Kelpa&gt;</h3>"));
    }

    void onlyNumbersAreOffered_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<bool>("offered");
        const auto row = [](const char *pName, const char *pVersion, bool bOffered) {
            QTest::newRow(pName) << QString::fromUtf8(pVersion) << bOffered;
        };
        row("numbers", "3.1.4.1", true);
        row("a dot at the end", "3.1.4.", false);
        row("a letter at the end", "3.1.4.x", false);
        row("a number below zero", "3.1.4.-1", false);
        row("a sign", "+4", false);
        row("a space", "4 ", false);
        row("an end of line", "4\n", false);
        row("a dot at the beginning", ".9.1", false);
        row("digits of another script", "\u0664", false);
    }

    void onlyNumbersAreOffered()
    {
        QFETCH(const QString, version);
        QFETCH(const bool, offered);
        TestServer server;
        server.body(QStringLiteral("/"), feed(version, QString()));
        Updater updater;
        updater.setUrl(server.url(QStringLiteral("/")));
        updater.setModuleVersion(QStringLiteral("3.1.4"));
        const OfferAnswers offers(QStringLiteral("m_pBtnClose"));
        const QSignalSpy finished(&updater, &Updater::checkingFinished);
        updater.checkForUpdates(true);
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(updater.updateAvailable(), offered);
        QCOMPARE(offers.headings.size(), offered ? 1 : 0);
    }

    void headingOfABoxIsNotCut()
    {
        TestServer server;
        server.body(QStringLiteral("/"), feed(QStringLiteral("1"), QString()));
        Updater updater;
        updater.setUrl(server.url(QStringLiteral("/")));
        updater.setModuleVersion(QStringLiteral("1"));
        updater.setNotifyOnFinish(true);
        int nWanted = -1;
        int nWidth = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &updater, [&] {
            QWidget *pBox = QApplication::activeModalWidget();
            if (!pBox || !pBox->isVisible())
                return;
            const auto *pHeading = pBox->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
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
        server.body(QStringLiteral("/"), data);
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        const QString strUrl = server.url(QStringLiteral("/"));
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
        server.redirect(QStringLiteral("/feed"), QStringLiteral("moved/feed?a=1"));
        server.redirect(QStringLiteral("/moved/feed?a=1"), secure.url(QStringLiteral("/feed")));
        secure.body(
            QStringLiteral("/feed"), feed(QStringLiteral("9"), server.url(QStringLiteral("/Setup.bin"))));
        server.redirect(QStringLiteral("/Setup.bin"), QStringLiteral("/mirror/other"));
        server.redirect(QStringLiteral("/mirror/other"), secure.url(QStringLiteral("/x")));
        secure.body(QStringLiteral("/x"), "installer");
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        const QString strUrl = server.url(QStringLiteral("/feed"));
        pFacade->setUseCustomInstallProcedures(strUrl, true);
        QVERIFY(pFacade->usesCustomInstallProcedures(strUrl));
        const QSignalSpy finished(pFacade, &QSimpleUpdater::checkingFinished);
        const QSignalSpy ended(pFacade, &QSimpleUpdater::checkEnded);
        const QSignalSpy downloaded(pFacade, &QSimpleUpdater::downloadFinished);
        const OfferAnswers offers(QStringLiteral("m_pBtnUpdate"));
        pFacade->checkForUpdates(strUrl, true);
        QTRY_COMPARE(downloaded.size(), 1);
        const QString strLast = secure.url(QStringLiteral("/feed"));
        QCOMPARE(finished.at(0).at(0).toString(), strLast);
        QCOMPARE(ended.at(0).at(0).toString(), strUrl);
        QCOMPARE(downloaded.at(0).at(0).toString(), strLast);
        QCOMPARE(home.content(QStringLiteral("Setup.bin")), QByteArray("installer"));
        QCOMPARE(secure.paths, (QStringList {QStringLiteral("/feed"), QStringLiteral("/x")}));
        QCOMPARE(
            pFacade->getLatestVersion(strUrl), QStringLiteral("9")); // the first address still leads there
        QVERIFY(home.opened.isEmpty());
    }

    void installerIsOfferedUntilItIsOpened()
    {
        TestHome home;
        TestServer server;
        server.body(QStringLiteral("/x"), "installer");
        Downloader downloader;
        downloader.setFileName(QStringLiteral("x"));
        const BoxAnswers boxes(
            {QMessageBox::Cancel, QMessageBox::NoButton, QMessageBox::Ok, QMessageBox::Ok});
        downloader.startDownload(QUrl(server.url(QStringLiteral("/x"))));
        QVERIFY(!button(downloader, "openButton")->isEnabled());
        QTRY_VERIFY(button(downloader, "openButton")->isEnabled());
        QCOMPARE(label(downloader, "downloadLabel")->text(), QStringLiteral("Download complete!"));
        QCOMPARE(label(downloader, "timeLabel")->text(), QStringLiteral("Click Open to apply the update."));
        QCOMPARE(button(downloader, "stopButton")->text(), QStringLiteral("Close"));
        button(downloader, "openButton")->click(); // and closes the box
        QVERIFY(home.opened.isEmpty());
        button(downloader, "openButton")->click();
        QCOMPARE(home.opened.size(), 1);
        QVERIFY(QFile::remove(Downloader::downloadFolder() + QLatin1Char('x')));
        button(downloader, "openButton")->click();
        QTRY_COMPARE(boxes.boxes.size(), 5);
        QCOMPARE(boxes.texts().last(), QStringLiteral("Cannot find downloaded update!"));
        button(downloader, "stopButton")->click(); // without a question
        QVERIFY(!downloader.isVisible());
        QCOMPARE(boxes.boxes.size(), 5);
    }

    void progressIsTold()
    {
        TestHome home;
        TestServer server;
        QPointer<QTcpSocket> pSocket;
        server.on(QStringLiteral("/known"), [&](QTcpSocket *p) {
            pSocket = p;
            p->write("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n" + QByteArray(1000, 'a'));
            writeLater(p);
        });
        server.on(QStringLiteral("/unknown"), [&](QTcpSocket *p) {
            pSocket = p;
            p->write("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(1000, 'a'));
            writeLater(p);
        });
        Downloader downloader;
        downloader.setFileName(QStringLiteral("x"));
        downloader.setUseCustomInstallProcedures(true);
        const QSignalSpy downloaded(&downloader, &Downloader::downloadFinished);
        downloader.startDownload(QUrl(server.url(QStringLiteral("/known"))));
        const QLabel *pSizes = label(downloader, "downloadLabel");
        QTRY_COMPARE(pSizes->text(), QStringLiteral("Downloading Updates (1 KB of 4 KB)"));
        const auto *pBar = downloader.findChild<QProgressBar *>();
        QCOMPARE(pBar->value(), 30);
        QCOMPARE(home.downloads(), {QStringLiteral("x.part")});
        pSocket->write(QByteArray(3500, 'a'));
        QTRY_COMPARE(downloaded.size(), 1);
        QCOMPARE(home.downloads(), {QStringLiteral("x")});

        downloader.startDownload(QUrl(server.url(QStringLiteral("/unknown"))));
        QTRY_COMPARE(pBar->maximum(), 0);
        QCOMPARE(pSizes->text(), QStringLiteral("Downloading Updates..."));
        QCOMPARE(label(downloader, "timeLabel")->text(), QStringLiteral("Time Remaining: Unknown"));
        QCOMPARE(home.downloads(), {QStringLiteral("x.part")});
        pSocket->disconnectFromHost();
        QTRY_COMPARE(downloaded.size(), 2);
        QCOMPARE(home.content(QStringLiteral("x")).size(), 1500);
    }

    void cancellingAsksOnceAndLeavesOnlyThePart()
    {
        TestHome home;
        TestServer server;
        QPointer<QTcpSocket> pSocket;
        server.on(QStringLiteral("/x"), [&](QTcpSocket *p) {
            pSocket = p;
            p->write("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n" + QByteArray(1500, 'a'));
        });
        Downloader downloader;
        downloader.setFileName(QStringLiteral("x"));
        downloader.setUseCustomInstallProcedures(true);
        downloader.show();
        button(downloader, "stopButton")->click(); // before anything was started
        QVERIFY(!downloader.isVisible());

        const BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes});
        downloader.startDownload(QUrl(server.url(QStringLiteral("/x"))));
        QTRY_COMPARE(home.content(QStringLiteral("x.part")).size(), 1500);
        button(downloader, "stopButton")->click();
        QVERIFY(downloader.isVisible());
        downloader.close(); // asks like the button
        QVERIFY(!downloader.isVisible());
        QCOMPARE(
            boxes.texts(), QStringList(2, QStringLiteral("Are you sure you want to cancel the download?")));
        QTRY_VERIFY(!pSocket); // the connection ends
        QCOMPARE(home.downloads(), {QStringLiteral("x.part")});
        QCOMPARE(boxes.boxes.size(), 2);
    }

    void downloadThatEndsDuringTheQuestionIsNotCancelled()
    {
        TestHome home;
        TestServer server;
        QPointer<QTcpSocket> pSocket;
        server.on(QStringLiteral("/x"), [&](QTcpSocket *p) {
            pSocket = p;
            p->write("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\na");
        });
        Downloader downloader;
        downloader.setFileName(QStringLiteral("x"));
        downloader.setUseCustomInstallProcedures(true);
        const QSignalSpy downloaded(&downloader, &Downloader::downloadFinished);
        downloader.startDownload(QUrl(server.url(QStringLiteral("/x"))));
        QTRY_COMPARE(home.content(QStringLiteral("x.part")).size(), 1);
        QTimer::singleShot(0, &downloader, [&] {
            pSocket->write("b");
            QTRY_COMPARE(downloaded.size(), 1);
            qobject_cast<QMessageBox *>(QApplication::activeModalWidget())->button(QMessageBox::Yes)->click();
        });
        button(downloader, "stopButton")->click();
        QCOMPARE(downloaded.size(), 1);
        QCOMPARE(home.downloads(), {QStringLiteral("x")});
    }

    void twoFeedsDoNotMeet()
    {
        TestServer server;
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        const QString strFirst = server.url(QStringLiteral("/1"));
        const QString strSecond = server.url(QStringLiteral("/2"));
        server.body(QStringLiteral("/1"), feed(QStringLiteral("9.1"), QString()));
        server.body(QStringLiteral("/2"), "broken");
        for (const QString &strUrl : {strFirst, strSecond}) {
            pFacade->setNotifyOnUpdate(strUrl, false);
            pFacade->setModuleVersion(strUrl, QStringLiteral("1"));
        }
        pFacade->setUserAgentString(strSecond, QString());
        const QSignalSpy ended(pFacade, &QSimpleUpdater::checkEnded);
        pFacade->checkForUpdates(strFirst, true);
        pFacade->checkForUpdates(strSecond, true);
        QTRY_COMPARE(ended.size(), 2);
        QVERIFY(pFacade->getUpdateAvailable(strFirst));
        QVERIFY(!pFacade->getUpdateAvailable(strSecond));
        QCOMPARE(pFacade->getLastError(strFirst), QString());
        QVERIFY(pFacade->getLastError(strSecond).contains(QStringLiteral("is not a valid feed")));
        QCOMPARE(pFacade->getLatestVersion(strFirst), QStringLiteral("9.1"));
        QCOMPARE(pFacade->getLatestVersion(strSecond), QString());
        QVERIFY(!server.userAgents.contains(QByteArray("x")));
        QCOMPARE(pFacade->getPlatformKey(strFirst), QStringLiteral("windows"));
    }

    void abortEndsACheckWithAReason()
    {
        TestServer server;
        server.on(QStringLiteral("/"), [](QTcpSocket *) {});
        QSimpleUpdater *pFacade = QSimpleUpdater::getInstance();
        const QString strUrl = server.url(QStringLiteral("/"));
        const QSignalSpy ended(pFacade, &QSimpleUpdater::checkEnded);
        pFacade->checkForUpdates(strUrl, true);
        QTRY_COMPARE(server.paths.size(), 1);
        pFacade->abort(strUrl);
        QCOMPARE(ended.size(), 1);
        QVERIFY(pFacade->getLastError(strUrl).startsWith(QStringLiteral("Cannot reach ")));
        pFacade->abort(strUrl); // nothing is under way
        QCOMPARE(ended.size(), 1);
    }

    // With two checks under way, so that something is left to end.
    void updaterMayBeDeletedWhenACheckEnds()
    {
        TestServer server;
        server.on(QStringLiteral("/"), [](QTcpSocket *) {});
        const QPointer<Updater> pUpdater = new Updater;
        pUpdater->setUrl(server.url(QStringLiteral("/")));
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
};

QTEST_MAIN(tst_Updater)
#include "tst_updater.moc"
