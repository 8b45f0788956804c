// SPDX-License-Identifier: MIT
// What the welcome page may ask for, asked by a real client of the web channel.
#include <support/coretest.h>

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <appearance/ilanguagemanager.h>
#include <icore.h>
#include <irecentfilesmanager.h>
#include <mainwindow.h>
#include <ui/imainmdiarea.h>
#include <ui/kphtmlexposingwelcome.h>

#include <QAction>
#include <QDesktopServices>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>
#include <QWebChannel>
#include <QWebSocket>
#include <QWebSocketServer>

namespace {

/// Keeps the URLs that would have gone to the desktop, also those without a scheme.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop()
    {
        for (const QString &strScheme : m_schemes)
            QDesktopServices::setUrlHandler(strScheme, this, "open");
    }
    ~Desktop() override
    {
        for (const QString &strScheme : m_schemes)
            QDesktopServices::unsetUrlHandler(strScheme);
    }
    Q_INVOKABLE void open(const QUrl &url) { opened.append(url.toString()); }

    QStringList opened;

private:
    const QStringList m_schemes {"", "http", "https", "file", "ftp", "javascript", "mailto"};
};

/// A client that speaks the protocol of the channel.
class ChannelClient : public QObject
{
    Q_OBJECT

public:
    explicit ChannelClient(const QUrl &url)
    {
        connect(&socket, &QWebSocket::textMessageReceived, this, [this](const QString &strText) {
            const QJsonObject message = QJsonDocument::fromJson(strText.toUtf8()).object();
            if (message.contains("id"))
                m_answers.insert(message.value("id").toInt(), message.value("data"));
            else if (message.value("object") == QLatin1String("kpwelcome"))
                ++nSignals;
        });
        socket.open(url);
    }

    [[nodiscard]] QJsonObject objects() { return ask({{"type", 3}}).toObject(); }

    /// Undefined when no answer comes.
    QJsonValue call(const char *pMethod, const QJsonArray &arguments = {})
    {
        return ask(callOf(pMethod, arguments));
    }

    void sendCall(const char *pMethod, const QJsonArray &arguments) { send(callOf(pMethod, arguments)); }

    /// From now on the signal of the bridge is counted; it has the index of the first one after QObject's.
    void listen()
    {
        call("getRecentFileList");
        const int nSignal = QObject::staticMetaObject.methodCount();
        send({{"type", 7}, {"object", "kpwelcome"}, {"signal", nSignal}});
        call("getRecentFileList");
    }

    QWebSocket socket;
    int nSignals = 0;

private:
    static QJsonObject callOf(const char *pMethod, const QJsonArray &arguments)
    {
        return {
            {"type", 6}, {"object", "kpwelcome"}, {"method", QLatin1String(pMethod)}, {"args", arguments}};
    }

    void send(QJsonObject message)
    {
        message.insert("id", ++m_nId);
        socket.sendTextMessage(QString::fromUtf8(QJsonDocument(message).toJson()));
    }

    QJsonValue ask(const QJsonObject &message)
    {
        if (!QTest::qWaitFor([this] { return socket.state() == QAbstractSocket::ConnectedState; }))
            return {};
        send(message);
        const int nId = m_nId;
        if (!QTest::qWaitFor([&] { return m_answers.contains(nId); }))
            return QJsonValue::Undefined;
        return m_answers.take(nId);
    }

    QHash<int, QJsonValue> m_answers;
    int m_nId = 0;
};

const QString s_unicode = QStringLiteral("Über Wälder 海藻 Ламинария");

} // namespace

class tst_IMainMdiArea : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const TestProgram program;
        ExtensionSystem::PluginManager::settings()->setValue("Kelpa/Language", "de_DE");
        ILanguageManager::getInstance().initialize();
        ILanguageManager::getInstance().setSettings(nullptr);
    }

    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_pWindow = std::make_unique<MainWindow>(nullptr);
        m_pFactory = std::make_unique<FakeFactory>(QStringList {"kelpa", "kelpapack"});
        m_pDesktop = std::make_unique<Desktop>();
        m_pClient = std::make_unique<ChannelClient>(m_pWindow->getServer()->serverUrl());
        m_pResources = std::make_unique<QTemporaryDir>(ICore::resourcePath() + "/resXXXXXX");
    }

    void cleanup()
    {
        m_pResources.reset();
        m_pClient.reset();
        m_pDesktop.reset();
        for (const auto &pDocument : std::as_const(m_pFactory->documents))
            delete pDocument;
        for (const auto &pEditor : std::as_const(m_pFactory->editors))
            delete pEditor;
        m_pFactory.reset();
        m_pWindow.reset();
        m_pProgram.reset();
    }

    void pageReachesNothingButTheBridge()
    {
        const QJsonObject objects = m_pClient->objects();
        QCOMPARE(objects.keys(), QStringList("kpwelcome"));
        QSet<QString> methods;
        for (const QJsonValue &method : objects.value("kpwelcome").toObject().value("methods").toArray())
            methods.insert(method.toArray().first().toString().section('(', 0, 0));
        QCOMPARE(methods,
            QSet<QString>({"deleteLater", "showInExplorer", "removeFile", "getRecentFileList",
                "callbackTunnelAsync", "callbackAsyncfromJS", "openURL", "openFile", "getResourceUrls"}));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Not deleting non-wrapped object"));
        m_pClient->call("deleteLater");
        QCOMPARE(m_pClient->call("getRecentFileList"), QJsonArray());
    }

    void projectsAreOpenedHere_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("relative");
        QTest::newRow("absolute path") << "a.kelpa" << false;
        QTest::newRow("relative to the program, suffix in capitals") << "A.KELPA" << true;
        QTest::newRow("packed") << "a.KelpaPack" << true;
        QTest::newRow("spaces and letters of several scripts") << s_unicode + ".kelpa" << false;
        QTest::newRow("what a URL would not keep") << "50%41 #1?.kelpa" << true;
    }

    void projectsAreOpenedHere()
    {
        QFETCH(const QString, name);
        QFETCH(const bool, relative);
        const QString strPath = write(name);
        m_pClient->call(
            "openFile", {relative ? QDir(ICore::resourcePath()).relativeFilePath(strPath) : strPath});
        QCOMPARE(m_pFactory->documents.size(), 1);
        QCOMPARE(m_pFactory->documents.first()->getFileName(), strPath);
        QCOMPARE(m_pClient->call("getRecentFileList"), QJsonArray {strPath});
        QCOMPARE(m_pDesktop->opened, QStringList());
    }

    void otherFilesAreTheDesktops_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("opened");
        QTest::newRow("a document") << "help.pdf"
                                    << "help.pdf";
        QTest::newRow("spaces and letters of several scripts") << s_unicode << s_unicode;
        QTest::newRow("a bare path is no URL") << "50%41 #1?.txt"
                                               << "50%41 #1?.txt";
        QTest::newRow("a folder named like a project inside") << "x.kelpa/readme"
                                                              << "x.kelpa/readme";
    }

    void otherFilesAreTheDesktops()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, opened);
        QVERIFY(QDir(m_pResources->path()).mkpath("x.kelpa"));
        const QString strPath = write(name);
        m_pClient->call("openFile", {strPath});
        QCOMPARE(m_pDesktop->opened, QStringList(QUrl(m_pResources->filePath(opened)).toString()));
        QVERIFY(m_pFactory->documents.isEmpty());
    }

    // Nothing keeps a relative name in the folder; docs/security.md says why it need not.
    void relativeNamesMayClimb()
    {
        write("a.txt");
        const QString strRelative =
            QDir(m_pResources->path()).dirName() + "/../" + QDir(m_pResources->path()).dirName() + "/a.txt";
        m_pClient->call("openFile", {strRelative});
        QCOMPARE(m_pDesktop->opened, QStringList(ICore::resourcePath() + '/' + strRelative));
    }

    void nameWithoutAFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing project") << "missing.kelpa";
        QTest::newRow("URL of a file that exists") << "file:///etc/passwd";
        QTest::newRow("link") << "https://kelpa.example/a.kelpa";
        QTest::newRow("script") << "javascript:alert(1)";
        QTest::newRow("command") << "; touch /tmp/x; .kelpa";
        QTest::newRow("mark-up is shown as it is") << "<img src='https://evil.example/x'>";
        QTest::newRow("letters of several scripts") << s_unicode;
    }

    void nameWithoutAFile()
    {
        QFETCH(const QString, name);
        BoxAnswers boxes({QMessageBox::Ok});
        m_pClient->call("openFile", {name});
        QCOMPARE(boxes.texts(),
            QStringList("Could not find the requested file.\n" + ICore::resourcePath() + '/' + name));
        QCOMPARE(boxes.boxes.first().title, "Kelpa Studio");
        QCOMPARE(boxes.boxes.first().buttons, QMessageBox::Ok);
        QCOMPARE(m_pDesktop->opened, QStringList());
    }

    void emptyNameIsTheFolderOfTheProgram()
    {
        m_pClient->call("openFile", {""});
        QCOMPARE(m_pDesktop->opened.size(), 1);
        QCOMPARE(QDir::cleanPath(m_pDesktop->opened.first()), ICore::resourcePath());
    }

    void linksOfTheWebAreOpened_data()
    {
        QTest::addColumn<QString>("link");
        QTest::newRow("http") << "http://kelpa.example/";
        QTest::newRow("https with everything") << "https://me@kelpa.example:8443/a/b?c=d&e=%20#f";
        QTest::newRow("spaces and letters of several scripts") << "https://kelpa.example/" + s_unicode;
    }

    void linksOfTheWebAreOpened()
    {
        QFETCH(const QString, link);
        m_pClient->call("openURL", {link});
        QCOMPARE(m_pDesktop->opened, QStringList(QUrl(link).toString()));
    }

    void otherLinksAreOnlyShown_data()
    {
        QTest::addColumn<QString>("link");
        QTest::newRow("scheme in capitals") << "HTTP://kelpa.example/";
        QTest::newRow("one capital") << "httpS://kelpa.example/";
        QTest::newRow("ftp") << "ftp://kelpa.example/";
        QTest::newRow("file") << "file:///etc/passwd";
        QTest::newRow("script") << "javascript:alert('https://kelpa.example')";
        QTest::newRow("leading space") << " https://kelpa.example/";
        QTest::newRow("one slash") << "https:/kelpa.example/";
        QTest::newRow("program") << "/bin/sh";
        QTest::newRow("mark-up is shown as it is") << "<a href='https://kelpa.example'>x</a>";
        QTest::newRow("nothing") << "";
    }

    void otherLinksAreOnlyShown()
    {
        QFETCH(const QString, link);
        BoxAnswers boxes({QMessageBox::Ok});
        m_pClient->call("openURL", {link});
        QCOMPARE(boxes.texts(), QStringList("URL: " + link));
        QCOMPARE(boxes.boxes.first().title, "Kelpa Studio");
        QCOMPARE(m_pDesktop->opened, QStringList());
    }

    void folderOfAProjectOpens_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("plain") << "projects";
        QTest::newRow("spaces and letters of several scripts") << s_unicode;
    }

    void folderOfAProjectOpens()
    {
        QFETCH(const QString, folder);
        QVERIFY(QDir(m_pResources->path()).mkpath(folder));
        m_pClient->call("showInExplorer", {write(folder + "/a.kelpa")});
        QCOMPARE(
            m_pDesktop->opened, QStringList(QUrl("file:///" + m_pResources->filePath(folder)).toString()));
    }

    void folderThatTheDesktopDoesNotOpenIsTold()
    {
        m_pDesktop.reset();
        const QString strPath = write(s_unicode + ".kelpa");
        BoxAnswers boxes({QMessageBox::Ok});
        m_pClient->call("showInExplorer", {strPath});
        QCOMPARE(boxes.texts(), QStringList("Could not open file " + strPath + '.'));
    }

    void projectThatIsGone_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<QStringList>("left");
        QTest::addColumn<int>("resets");
        const QStringList both {"/gone/%1 " + s_unicode + ".kelpa", "/p/b.kelpa"};
        QTest::newRow("is removed on Yes") << QMessageBox::Yes << QStringList("/p/b.kelpa") << 1;
        QTest::newRow("stays on No") << QMessageBox::No << both << 0;
        QTest::newRow("stays when the box is closed") << QMessageBox::NoButton << both << 0;
    }

    void projectThatIsGone()
    {
        QFETCH(const QMessageBox::StandardButton, answer);
        const QString strGone = "/gone/%1 " + s_unicode + ".kelpa";
        IRecentFilesManager::getInstance()->addFile("/p/b.kelpa");
        IRecentFilesManager::getInstance()->addFile(strGone);
        m_pClient->listen();
        BoxAnswers boxes({answer});
        m_pClient->call("showInExplorer", {strGone});
        QCOMPARE(boxes.texts(),
            QStringList("The project [" + strGone
                + "] no longer exists.\nDo you want to remove this entry from history?"));
        QCOMPARE(boxes.boxes.first().defaultButton, QMessageBox::Yes);
        QTEST(IRecentFilesManager::getInstance()->getRecentFiles(), "left");
        QTEST(m_pClient->nSignals, "resets");
        QCOMPARE(m_pDesktop->opened, QStringList());
    }

    void projectWithoutANameIsNowhere()
    {
        BoxAnswers boxes({});
        m_pClient->call("showInExplorer", {""});
        QCOMPARE(m_pDesktop->opened, QStringList());
        QCOMPARE(boxes.texts(), QStringList());
    }

    void removingReachesListMenuAndPage()
    {
        for (int i = 12; i > 0; --i)
            IRecentFilesManager::getInstance()->addFile(QStringLiteral("/p/%1 ").arg(i) + s_unicode);
        m_pClient->listen();
        m_pClient->call("removeFile", {"/P/1 " + s_unicode});
        QCOMPARE(m_pClient->call("getRecentFileList").toArray().size(), 10);
        m_pClient->call("removeFile", {"/p/1 " + s_unicode});
        m_pClient->call("removeFile", {""});
        const QJsonArray left = m_pClient->call("getRecentFileList").toArray();
        QCOMPARE(left.size(), 9);
        QCOMPARE(left.first().toString(), "/p/2 " + s_unicode);
        QCOMPARE(m_pClient->nSignals, 3);
        const auto *pFirst = ActionManager::getAction("File.Recent_Projects.Project_1")->getAction();
        QCOMPARE(pFirst->text(), "1. /p/2 " + s_unicode);
    }

    void commandIsTriggeredWhateverItsState()
    {
        QAction action("Checkable");
        action.setCheckable(true);
        ActionManager::registerAction(&action, "Test.Checkable", m_pWindow.get(), false);
        QSignalSpy triggered(&action, &QAction::triggered);
        m_pClient->call("callbackTunnelAsync", {"Test.Checkable"});
        action.setEnabled(false);
        m_pClient->call("callbackTunnelAsync", {"Test.Checkable"});
        QCOMPARE(triggered, QList<QVariantList>({{true}, {true}}));
        QVERIFY(!action.isChecked());
        for (const char *pId : {"", "test.checkable", "Test.Checkable ", "MenuBar.File", "quit()"})
            m_pClient->call("callbackTunnelAsync", {QString::fromLatin1(pId)});
        QCOMPARE(triggered.size(), 2);
        ActionManager::unregisterAction(&action, "Test.Checkable");
    }

    void pageMakesAProject()
    {
        m_pFactory->strNewPath = m_pProgram->filePath("new.kelpa");
        m_pClient->call("callbackTunnelAsync", {"File.New"});
        QCOMPARE(m_pFactory->documents.size(), 1);
        QCOMPARE(m_pFactory->documents.first()->getFileName(), m_pFactory->strNewPath);
    }

    void queries_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("answer");
        QTest::newRow("language") << "WelcomeScreen.getLocale"
                                  << "de_DE";
        QTest::newRow("build number") << "WelcomeScreen.getBuildNumber"
                                      << "3.1.4";
        QTest::newRow("in other letters") << "welcomescreen.getbuildnumber"
                                          << "";
        QTest::newRow("unknown") << "WelcomeScreen.getPassword"
                                 << "";
        QTest::newRow("nothing") << ""
                                 << "";
    }

    void queries()
    {
        QFETCH(const QString, query);
        for (const char *pIgnored : {"", "anything"})
            QTEST(m_pClient->call("callbackAsyncfromJS", {query, QString::fromLatin1(pIgnored)}).toString(),
                "answer");
    }

    void addressesOfTheProduct()
    {
        const QJsonObject urls = m_pClient->call("getResourceUrls").toObject();
        QCOMPARE(urls.keys(), QStringList({"community", "demo", "facebook", "homepage", "youtube"}));
        for (const QJsonValue &url : urls) {
            m_pClient->call("openURL", {url});
            QCOMPARE(m_pDesktop->opened.value(0), url.toString());
            m_pDesktop->opened.clear();
        }
    }

    void argumentsOfAnotherKindDoNoHarm_data()
    {
        QTest::addColumn<QJsonArray>("arguments");
        QTest::newRow("none") << QJsonArray();
        QTest::newRow("null") << QJsonArray {QJsonValue()};
        QTest::newRow("an object") << QJsonArray {QJsonObject {{"toString", "x"}}};
        QTest::newRow("a list") << QJsonArray {QJsonArray {"a", "b"}};
        QTest::newRow("too many") << QJsonArray {"a", "b", "c", "d"};
    }

    void argumentsOfAnotherKindDoNoHarm()
    {
        QFETCH(const QJsonArray, arguments);
        IRecentFilesManager::getInstance()->addFile("/p/a.kelpa");
        BoxAnswers boxes(QList<QMessageBox::StandardButton>(10, QMessageBox::No));
        for (const char *pMethod :
            {"showInExplorer", "removeFile", "callbackTunnelAsync", "openURL", "openFile"})
            m_pClient->call(pMethod, arguments);
        QCOMPARE(m_pClient->call("getRecentFileList"), QJsonArray {"/p/a.kelpa"});
        for (const QString &strOpened : std::as_const(m_pDesktop->opened))
            QCOMPARE(QDir::cleanPath(strOpened), ICore::resourcePath());
    }

    // The call is still being worked off when the client is gone.
    void clientLeavesWhileItsBoxIsOpen()
    {
        QVERIFY(!m_pClient->objects().isEmpty());
        QTimer timer;
        bool bClosed = false;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto *pBox = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (pBox && m_pClient->socket.state() != QAbstractSocket::UnconnectedState)
                m_pClient->socket.abort();
            else if (pBox && !hasConnectedClient())
                bClosed = pBox->close();
        });
        timer.start(1);
        m_pClient->sendCall("openURL", {"x"});
        QTRY_VERIFY(bClosed);
        m_pClient = std::make_unique<ChannelClient>(m_pWindow->getServer()->serverUrl());
        QCOMPARE(m_pClient->call("getRecentFileList"), QJsonArray());
    }

    void pageHearsEachTimeItIsToBeShown()
    {
        m_pClient->listen();
        m_pWindow->setVisibleWelcomeWidget(true);
        QWidget welcome(m_pWindow->getMdiArea());
        welcome.hide();
        m_pWindow->setWelcomeWidget(&welcome);
        m_pWindow->setVisibleWelcomeWidget(true);
        m_pWindow->setVisibleWelcomeWidget(true);
        QVERIFY(!welcome.isHidden());
        m_pWindow->setVisibleWelcomeWidget(false);
        QVERIFY(welcome.isHidden());
        QTRY_COMPARE(m_pClient->nSignals, 3);
    }

    void bridgeLeavesTheChannelWithItsArea()
    {
        auto pArea = std::make_unique<IMainMdiArea>(nullptr);
        const QPointer<QObject> pBridge = m_pWindow->getChannel()->registeredObjects().value("kpwelcome");
        QCOMPARE(pBridge->parent(), pArea.get());
        pArea.reset();
        QVERIFY(!pBridge);
        QVERIFY(!m_pWindow->getChannel()->registeredObjects().values().contains(pBridge));
    }

private:
    [[nodiscard]] bool hasConnectedClient() const
    {
        const auto sockets = m_pWindow->getServer()->findChildren<QTcpSocket *>();
        return std::any_of(sockets.cbegin(), sockets.cend(),
            [](const QTcpSocket *pSocket) { return pSocket->state() == QAbstractSocket::ConnectedState; });
    }

    QString write(const QString &strName) const
    {
        QFile file(m_pResources->filePath(strName));
        return file.open(QIODevice::WriteOnly) && file.write("x") ? file.fileName() : QString();
    }

    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<MainWindow> m_pWindow;
    std::unique_ptr<FakeFactory> m_pFactory;
    std::unique_ptr<Desktop> m_pDesktop;
    std::unique_ptr<ChannelClient> m_pClient;
    std::unique_ptr<QTemporaryDir> m_pResources;
};

QTEST_MAIN(tst_IMainMdiArea)
#include "tst_imainmdiarea.moc"
