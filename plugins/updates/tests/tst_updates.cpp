// SPDX-License-Identifier: MIT
#include "aboutdialog.h"
#include "feedback.h"
#include "updatecheck.h"
#include "updatesettings.h"
#include "updatespage.h"

#include <updater/updatetest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QUrlQuery>
#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <icore.h>
#include <mainwindow.h>
#include <updater/qsimpleupdater.h>

using ExtensionSystem::PluginManager;

namespace {

QByteArray feedFor(const char *pVersion)
{
    return QByteArray(feed(QLatin1String(pVersion), "http://k.example/x"))
        .replace("\"windows\"", "\"linux\"");
}

/// A program with a window, a feed that it is set to, and the checks.
struct Program
{
    Program()
    {
        QCoreApplication::setApplicationVersion("3.1.4");
        window.getNotificationBar()->hide();
        UpdateSettings::setUrl(UpdateSettings::Feed, url);
    }

    QTimer *timer(const char *pName) { return check.findChild<QTimer *>(QLatin1String(pName)); }
    KPNotificationBar *bar() { return window.getNotificationBar(); }
    QString told() { return bar()->isHidden() ? QString() : bar()->text(); }
    void startAgain() { check.start(); }

    TestProgram program;
    TestHome home;
    TestServer server;
    const QString url = server.url("/feed");
    MainWindow window {nullptr};
    UpdateCheck check {nullptr};
};

} // namespace

class tst_Updates : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        expectNoEngine();
    }

    void askedCheckAlwaysAnswers_data()
    {
        const auto row =
            columns<QByteArray, QString>("answer", "text"); // of a box; empty: the offer is the answer
        row("the newest", TestServer::ok(feedFor("3.1.4")),
            "You are running the latest version of Kelpa, 3.1.4.");
        row("an update", TestServer::ok(feedFor("3.1.10")), "");
        row("no feed", TestServer::ok("<html>"), "is not a valid feed");
        row("no entry for this system", TestServer::ok(feed("9", QString())), "is not a valid feed");
        row("an error", QByteArray("HTTP/1.1 500 Oops\r\n\r\n"), "Cannot reach");
        row("silence", QByteArray(), "no answer within 0.5 seconds");
    }

    void askedCheckAlwaysAnswers()
    {
        QFETCH(const QByteArray, answer);
        QFETCH(const QString, text);
        QCoreApplication::setApplicationName("Kelpa");
        Program program;
        program.server.on("/feed", [&](QTcpSocket *pSocket) {
            if (!answer.isEmpty())
                TestServer::send(pSocket, answer);
        });
        QCOMPARE(program.timer("deadline")->interval(), 33000);
        program.timer("deadline")->setInterval(500);
        std::optional<OfferAnswers> offers; // an offer that is open does not miss the deadline
        connect(program.timer("deadline"), &QTimer::timeout, &program.check,
            [&] { offers.emplace("m_pBtnClose"); });
        const BoxAnswers boxes({QMessageBox::Ok});
        program.check.checkNow();
        program.check.checkNow(); // one answer is enough
        QVERIFY(program.told().startsWith("Looking for"));
        QTRY_VERIFY(!boxes.boxes.isEmpty() || (offers && !offers->headings.isEmpty()));
        QTRY_COMPARE(program.told(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(boxes.boxes.size(), text.isEmpty() ? 0 : 1);
        if (!text.isEmpty())
            QVERIFY2(boxes.texts().first().contains(text), qPrintable(boxes.texts().first()));
        QCOMPARE(program.server.paths.size(), 1);
    }

    void checkDuringADownloadShowsTheDownload()
    {
        Program program;
        const QByteArray update = feedFor("9").replace("http://k.example/x", program.url.toUtf8() + "/x");
        program.server.body("/feed", update);
        program.server.on("/feed/x", [](QTcpSocket *) {});
        program.window.show();
        const OfferAnswers offers("m_pBtnUpdate");
        const BoxAnswers boxes({QMessageBox::Yes});
        const QSignalSpy ended(QSimpleUpdater::getInstance(), &QSimpleUpdater::checkEnded);
        program.check.checkNow();
        QTRY_COMPARE(program.server.paths.size(), 2);
        program.window.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &program.window);
        UpdateSettings::setUrl(
            UpdateSettings::Feed, "http://127.0.0.1:1/"); // another feed's download is one too
        program.check.checkNow();
        QTRY_VERIFY(qobject_cast<Downloader *>(QApplication::activeWindow()));
        QSimpleUpdater::getInstance()->checkForUpdates(program.url, true); // as another plug-in may
        QTRY_COMPARE(ended.size(), 2);
        QCOMPARE(offers.headings.size(), 1);
        QVERIFY(QApplication::activeWindow()->close());
    }

    void nothingIsContactedUntilAFeedIsSet()
    {
        Program program;
        UpdateSettings::setUrl(UpdateSettings::Feed, QString());
        QCOMPARE(UpdateSettings::url(UpdateSettings::Feed), "https://updates.kelpa.example/appcast.json");
        UpdateSettings::setAutomatic(true);
        const QSignalSpy ended(QSimpleUpdater::getInstance(), &QSimpleUpdater::checkEnded);
        program.startAgain();
        const BoxAnswers boxes({QMessageBox::Ok});
        program.check.checkNow();
        QCOMPARE(boxes.boxes.size(), 1);
        QCOMPARE(program.told(), QString());
        QSimpleUpdater::getInstance()->abort(
            UpdateSettings::url(UpdateSettings::Feed)); // would end a check under way
        QVERIFY(ended.isEmpty());

        PluginManager::globalSettings()->setValue("Updates/FeedUrl", program.url);
        QCOMPARE(
            UpdateSettings::url(UpdateSettings::Feed), program.url); // the machine's, while the user has none
    }

    void automaticCheckWaitsForAgreementAndADay()
    {
        Program program;
        program.server.body("/feed", feedFor("9.5"));
        const auto pressButton = [&] { program.bar()->findChild<QPushButton *>()->click(); };
        program.startAgain();
        QVERIFY(program.told().contains("once a day"));
        program.bar()->hide();
        program.startAgain(); // who closed the question is not asked again
        QCOMPARE(program.told(), QString());
        QVERIFY(!UpdateSettings::isAutomatic());

        PluginManager::settings()->clear();
        UpdateSettings::setUrl(UpdateSettings::Feed, program.url);
        program.startAgain();
        pressButton();
        QVERIFY(UpdateSettings::isAutomatic());
        QTRY_VERIFY(program.told().contains("9.5 has been released"));
        QCOMPARE(program.server.paths.size(), 1);
        program.startAgain();
        program.timer("due")->setInterval(1);
        QVERIFY(QSignalSpy(program.timer("due"), &QTimer::timeout).wait());
        QCOMPARE(program.server.paths.size(), 1); // once a day

        const OfferAnswers offers("m_pBtnSkip");
        pressButton(); // Show
        QTRY_COMPARE(offers.headings.size(), 1);
        QTRY_COMPARE(program.told(), QString());
        UpdateSettings::setChecked(QDateTime::currentDateTimeUtc().addDays(-1));
        const QSignalSpy ended(QSimpleUpdater::getInstance(), &QSimpleUpdater::checkEnded);
        program.startAgain();
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(program.told(), QString()); // that version was skipped
    }

    void backgroundFailureIsSilentUnlessTheUserAsksMeanwhile()
    {
        Program program;
        QPointer<QTcpSocket> pSocket;
        program.server.on("/feed", [&](QTcpSocket *p) { pSocket = p; });
        UpdateSettings::setAutomatic(true);
        const BoxAnswers boxes({QMessageBox::Ok});
        const QSignalSpy ended(QSimpleUpdater::getInstance(), &QSimpleUpdater::checkEnded);
        for (const bool bAsks : {false, true}) {
            UpdateSettings::setChecked(QDateTime::currentDateTimeUtc().addDays(1)); // the clock was set back
            program.startAgain();
            QTRY_VERIFY(pSocket);
            if (bAsks)
                program.check.checkNow();
            TestServer::send(pSocket, "HTTP/1.1 500 Oops\r\n\r\n");
            QTRY_COMPARE(ended.size(), bAsks ? 2 : 1);
            QTRY_VERIFY(!pSocket);
            QTRY_COMPARE(boxes.boxes.size(), bAsks ? 1 : 0);
            QCOMPARE(program.told(), QString());
        }
        QCOMPARE(program.server.paths.size(), 2);
    }

    void versionsAreAnnouncedWhenWanted()
    {
        TestProgram program;
        const QDateTime now = QDateTime::currentDateTimeUtc();
        UpdateSettings::remindAfter(now.addDays(3));
        UpdateSettings::skip("3.9");
        QVERIFY(!UpdateSettings::isWanted("4.0", now.addDays(2)));
        QVERIFY(UpdateSettings::isWanted("4.0", now.addDays(4)));
        QVERIFY(!UpdateSettings::isWanted("3.9", now.addDays(4)));
    }

    void addressesGetTheDetails_data()
    {
        const auto row = columns<QString, QString>("address", "start");
        row("a page", "https://k.example/report", "https://k.example/report?version=3.1%2B4");
        row("a page with a query", "https://k.example/?p=1", "https://k.example/?p=1&version=3.1%2B4");
        row("mail", "mailto:help@k.example", "mailto:help@k.example?body=version%3A%203.1%2B4%0D%0Aqt");
        row("a file", "file:///etc/passwd", "");
        row("no host", "https://", "");
    }

    void addressesGetTheDetails()
    {
        QFETCH(const QString, address);
        QFETCH(const QString, start);
        QCoreApplication::setApplicationVersion("3.1+4");
        const QString strUrl = Feedback::addressWithDetails(address).toString(QUrl::FullyEncoded);
        QCOMPARE(strUrl.left(start.size()), start);
        QCOMPARE(strUrl.isEmpty(), start.isEmpty());
        TestHome home;
        const BoxAnswers boxes({QMessageBox::Ok});
        Feedback::open(address);
        QCOMPARE(home.opened.size(), start.isEmpty() ? 0 : 1);
        QCOMPARE(boxes.boxes.size(), start.isEmpty() ? 1 : 0);
    }

    void pageWritesOnlyWhatWasChosen()
    {
        TestProgram program;
        const QString strMachine = "https://machine.example/feed";
        PluginManager::globalSettings()->setValue("Updates/FeedUrl", strMachine);
        UpdatesPage page;
        page.show();
        auto *pFeed = page.findChild<QLineEdit *>("m_pFeed");
        auto *pAutomatic = page.findChild<QCheckBox *>("m_pAutomatic");
        QVERIFY(!pAutomatic->isChecked() && !page.isChanged());
        page.saveChanges();
        QCOMPARE(PluginManager::settings()->allKeys(), QStringList());

        const QSignalSpy changed(&page, &IOptionPage::dataChanged);
        pFeed->selectAll();
        QTest::keyClicks(pFeed, "http://k.example/a,b");
        pAutomatic->click();
        QVERIFY(page.isChanged() && !changed.isEmpty());
        page.discardChanges();
        QVERIFY(!page.isChanged() && !pAutomatic->isChecked());
        pFeed->setText(" http://k.example/a,b ");
        pAutomatic->click();
        page.saveChanges();
        PluginManager::settings()->sync();
        QCOMPARE(UpdateSettings::url(UpdateSettings::Feed), "http://k.example/a,b");
        QVERIFY(UpdateSettings::isAutomatic() && UpdateSettings::wasAsked());
        UpdateSettings::setUrl(UpdateSettings::Feed, "https://updates.kelpa.example/appcast.json");
        QVERIFY(!UpdateSettings::hasFeed());
        UpdateSettings::setUrl(UpdateSettings::Feed, strMachine);
        QVERIFY(!PluginManager::settings()->contains("Updates/FeedUrl"));
    }

    void aboutTellsWhatFailed()
    {
        TestHome home;
        QVERIFY(
            QFile::copy(QStringLiteral(KELPA_PLUGIN_DIR "/libupdates.so"), home.path() + "/libupdates.so"));
        PluginManager manager;
        manager.setMessageSink([](PluginManager::Message, const QString &) {});
        const QStringList command {
            "kelpastudio", "--settings-path", home.path(), "--plugin-path", home.path(), "--new-instance"};
        expectWarning("phase resolve: needs core 1.0.0, which is missing");
        QCOMPARE(manager.start(command), std::optional<int>(1));
        const QString strAbout = AboutDialog(nullptr).text();
        QVERIFY2(strAbout.contains("updates\t1.0.0\tFailed\tneeds core 1.0.0"), qPrintable(strAbout));
    }

    // Runs last: the libraries stay loaded.
    void commandsAreServedInTheProgram()
    {
        QCoreApplication::setApplicationVersion("3.1+4");
        TestHome home;
        TestServer server;
        const QString strUrl = server.url("/real");
        server.body("/real", feedFor("1.0"));
        {
            QSettings settings(home.path() + "/KelpaStudio.ini", QSettings::IniFormat);
            settings.setValue("Updates/FeedUrl", strUrl);
            settings.setValue("Updates/ReportUrl", "https://k.example/r");
        }
        PluginManager manager;
        const QSignalSpy up(&manager, &PluginManager::initializationDone);
        const auto exitCode = manager.start({"kelpastudio", "--settings-path", home.path(), "--plugin-path",
            QStringLiteral(KELPA_PLUGIN_DIR), "--load", "updates", "--new-instance"});
        QVERIFY(!exitCode);
        QTRY_COMPARE(up.size(), 1);
        const std::unique_ptr<IOptionPage> pPage(PluginManager::object<IOptionPageFactory>()->createPage());
        QCOMPARE(pPage->windowTitle(), "Updates");
        QTRY_VERIFY(ICore::getMainWindow()->getNotificationBar()->text().contains("once a day"));

        const auto trigger = [](const char *pId) {
            ActionManager::getAction(QLatin1String(pId))->getAction()->trigger();
        };
        trigger("Help.ReportProblem");
        trigger("Help.ProvideSuggestion");
        QCOMPARE(home.opened.size(), 2);
        QVERIFY(home.opened.first().startsWith("https://k.example/r?version="));
        {
            const BoxAnswers boxes({QMessageBox::Ok});
            trigger("Help.CheckUpdates");
            QTRY_COMPARE(boxes.boxes.size(), 1);
            QVERIFY(boxes.texts().first().startsWith("You are running the latest version"));
        }
        QString strAbout;
        QTimer::singleShot(0, this, [&] {
            QWidget *pAbout = QApplication::activeModalWidget();
            auto *pButtons = pAbout->findChild<QDialogButtonBox *>();
            for (QAbstractButton *pButton : pButtons->buttons())
                pButton->click(); // Close and Copy
            strAbout = QGuiApplication::clipboard()->text();
        });
        trigger("Help.About");
        for (const char *pText : {"Version 3.1+4", "Qt 6", "core\t", "updates\t1.0.0\tRunning"})
            QVERIFY2(strAbout.contains(QLatin1String(pText)), qPrintable(strAbout));
        manager.shutdown();
    }
};

QTEST_MAIN(tst_Updates)
#include "tst_updates.moc"
