// SPDX-License-Identifier: MIT
// What the welcome page may ask for, asked by a real client of the web channel.
#include <support/windowtest.h>

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <appearance/ilanguagemanager.h>
#include <icore.h>
#include <ui/imainmdiarea.h>
#include <ui/kphtmlexposingwelcome.h>

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
class ChannelClient
{
public:
    explicit ChannelClient(const QUrl &url) { socket.open(url); }

    /// Undefined when no answer comes. What is no answer, such as the telling of a signal, has no id.
    QJsonValue call(const QString &strObject, const QString &strMethod, const QJsonArray &arguments = {})
    {
        const QJsonObject message {
            {"type", 6}, {"id", ++m_nId}, {"object", strObject}, {"method", strMethod}, {"args", arguments}};
        if (socket.state() != QAbstractSocket::ConnectedState)
            waitFor(&QWebSocket::connected);
        QJsonObject answer;
        QObject context;
        QObject::connect(&socket, &QWebSocket::textMessageReceived, &context, [&](const QString &strText) {
            const QJsonObject received = QJsonDocument::fromJson(strText.toUtf8()).object();
            if (received.value("id").toInt() == m_nId)
                answer = received;
        });
        socket.sendTextMessage(QString::fromUtf8(QJsonDocument(message).toJson()));
        while (answer.isEmpty() && waitFor(&QWebSocket::textMessageReceived)) { }
        return answer.isEmpty() ? QJsonValue::Undefined : answer.value("data");
    }

    QWebSocket socket;

private:
    // In the event loop: looking now and then would take most of the time of this test.
    template <typename Signal>
    bool waitFor(Signal signal)
    {
        return QSignalSpy(&socket, signal).wait();
    }

    int m_nId = 0;
};

const QString s_unicode = "Über Wälder 海藻 Ламинария";

} // namespace

class tst_IMainMdiArea : public DocumentTest
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
        DocumentTest::init();
        m_pFactory = std::make_unique<FakeFactory>(QStringList {"kelpa", "kelpapack"});
        m_pDesktop = std::make_unique<Desktop>();
        m_pBridge = m_pWindow->findChild<KPHTMLExposingWelcome *>();
        m_pResources = std::make_unique<QTemporaryDir>(ICore::resourcePath() + "/resXXXXXX");
        m_pClient = std::make_unique<ChannelClient>(m_pWindow->getServer()->serverUrl());
    }

    void cleanup()
    {
        m_pClient.reset();
        m_pResources.reset();
        m_pDesktop.reset();
        DocumentTest::cleanup();
    }

    void pageReachesNothingButTheBridge()
    {
        QCOMPARE(m_pWindow->getChannel()->registeredObjects().keys(), QStringList("kpwelcome"));
        QStringList methods;
        const QMetaObject *pMeta = m_pBridge->metaObject();
        for (int i = pMeta->methodOffset(); i < pMeta->methodCount(); ++i)
            methods.append(QString::fromLatin1(pMeta->method(i).name()));
        QCOMPARE(methods,
            QStringList({"resetRecentFiles", "showInExplorer", "removeFile", "getRecentFileList",
                "callbackTunnelAsync", "callbackAsyncfromJS", "openURL", "openFile", "getResourceUrls"}));
    }

    // "@" stands for a folder beside the program, which the files lie in, "~" for its relative name; what is
    // opened here and not by the desktop follows "=".
    void requests_data()
    {
        const auto row = columns<QString, QString, QString, QString>("method", "argument", "box", "opened");
        const QString s = s_unicode;
        row("file: a document", "openFile", "@/help.pdf", "", "@/help.pdf");
        row("file: letters of several scripts", "openFile", "@/" + s, "", "@/" + s);
        row("file: a bare path is no URL", "openFile", "@/50%41 #1?.txt", "", "@/50%41 #1?.txt");
        row("file: in a folder named like a project", "openFile", "@/x.kelpa/a", "", "@/x.kelpa/a");
        const auto missing = [&](const char *pName, const QString &strFile) {
            const QString strPath = ICore::resourcePath() + '/' + strFile;
            row(pName, "openFile", strFile, "Could not find the requested file.\n" + strPath, "");
        };
        missing("file: missing project", "missing.kelpa");
        missing("file: URL of a file that exists", "file:///etc/passwd");
        missing("file: link", "https://kelpa.example/a.kelpa");
        missing("file: script", "javascript:alert(1)");
        missing("file: command", "; touch /tmp/x; .kelpa");
        missing("file: mark-up is shown as it is", "<img src='https://evil.example/x'>");
        for (const QString &strLink : {QString("http://kelpa.example/"),
                 QString("https://me@kelpa.example:8443/a/b?c=d&e=%20#f"), "https://kelpa.example/" + s})
            row(qPrintable("link opened: " + strLink), "openURL", strLink, "", QUrl(strLink).toString());
        for (const char *pLink : {"HTTP://kelpa.example/", "httpS://kelpa.example/", "ftp://kelpa.example/",
                 "file:///etc/passwd", "javascript:alert('https://kelpa.example')", " https://kelpa.example/",
                 "https:/kelpa.example/", "/bin/sh", "<a href='https://kelpa.example'>x</a>", ""})
            row(qPrintable(QString("link only shown: \"%1\"").arg(pLink)), "openURL", pLink,
                QString("URL: ") + pLink, "");
        row("folder of a project", "showInExplorer", "@/x.kelpa/a", "", "file:///@/x.kelpa");
        row("folder of no project", "showInExplorer", "", "", "");
        row("file without a name", "openFile", "", "", ICore::resourcePath());
        row("project: absolute path", "openFile", "@/a.kelpa", "", "=@/a.kelpa");
        row("project: relative to the program, in capitals", "openFile", "~/A.KELPA", "", "=@/A.KELPA");
        row("project: packed", "openFile", "~/a.KelpaPack", "", "=@/a.KelpaPack");
        row("project: letters of several scripts", "openFile", "@/" + s + ".kelpa", "", "=@/" + s + ".kelpa");
        row("project: no URL", "openFile", "~/50%41 #1?.kelpa", "", "=@/50%41 #1?.kelpa");
    }
    void requests()
    {
        QFETCH(QString, method);
        QFETCH(QString, argument);
        QFETCH(QString, box);
        QFETCH(QString, opened);
        const QString strFolder = m_pResources->path();
        QVERIFY(QDir(strFolder).mkpath("x.kelpa"));
        for (const QString &strName : {QString("help.pdf"), s_unicode, QString("50%41 #1?.txt"),
                 QString("x.kelpa/a"), QString("a.kelpa"), QString("A.KELPA"), QString("a.KelpaPack"),
                 s_unicode + ".kelpa", QString("50%41 #1?.kelpa")})
            write(strName);
        argument.replace("@/", strFolder + '/');
        argument.replace("~/", QDir(ICore::resourcePath()).relativeFilePath(strFolder) + '/');
        opened.replace("@/", strFolder + '/');
        const QStringList here = opened.startsWith('=') ? QStringList(opened.mid(1)) : QStringList();
        const bool bOutside = here.isEmpty() && !opened.isEmpty();
        BoxAnswers boxes({QMessageBox::Ok});
        QVERIFY(!m_pClient->call("kpwelcome", method, {argument}).isUndefined());
        QCOMPARE(boxes.texts(), box.isEmpty() ? QStringList() : QStringList(box));
        QCOMPARE(m_pDesktop->opened, bOutside ? QStringList(QUrl(opened).toString()) : QStringList());
        QCOMPARE(recent(), here);
        QCOMPARE(m_pFactory->documents.size(), here.size());
    }

    void folderThatTheDesktopDoesNotOpenIsTold()
    {
        m_pDesktop.reset();
        const QString strPath = write(s_unicode + ".kelpa");
        BoxAnswers boxes({QMessageBox::Ok});
        expectWarning("This plugin does not support QPlatformServices::openDocument()");
        m_pBridge->showInExplorer(strPath);
        QCOMPARE(boxes.texts(), QStringList("Could not open file " + strPath + '.'));
    }

    void projectThatIsGoneLeavesTheListOnYesOnly()
    {
        const QString strGone = "/gone/%1 " + s_unicode + ".kelpa";
        IRecentFilesManager::getInstance()->addFile(strGone);
        const QSignalSpy resets(m_pBridge, &KPHTMLExposingWelcome::resetRecentFiles);
        for (const auto answer : {QMessageBox::No, QMessageBox::NoButton, QMessageBox::Yes}) {
            QCOMPARE(recent(), QStringList(strGone));
            QVERIFY(resets.isEmpty());
            BoxAnswers boxes({answer});
            m_pClient->call("kpwelcome", "showInExplorer", {strGone});
            QCOMPARE(boxes.texts(),
                QStringList("The project [" + strGone
                    + "] no longer exists.\nDo you want to remove this entry from history?"));
        }
        QVERIFY(recent().isEmpty() && m_pDesktop->opened.isEmpty());
        QCOMPARE(resets.size(), 1);
    }

    void removingReachesListMenuAndPage()
    {
        for (int i = 12; i > 0; --i)
            IRecentFilesManager::getInstance()->addFile(QString("/p/%1 ").arg(i) + s_unicode);
        const QSignalSpy resets(m_pBridge, &KPHTMLExposingWelcome::resetRecentFiles);
        m_pClient->call("kpwelcome", "removeFile", {"/P/1 " + s_unicode});
        QCOMPARE(m_pClient->call("kpwelcome", "getRecentFileList").toArray().size(), 10);
        m_pClient->call("kpwelcome", "removeFile", {"/p/1 " + s_unicode});
        m_pClient->call("kpwelcome", "removeFile", {""});
        const QJsonArray left = m_pClient->call("kpwelcome", "getRecentFileList").toArray();
        QCOMPARE(left.size(), 9);
        QCOMPARE(left.first().toString(), "/p/2 " + s_unicode);
        QCOMPARE(resets.size(), 3);
        const auto *pFirst = ActionManager::getAction("File.Recent_Projects.Project_1")->getAction();
        QCOMPARE(pFirst->text(), "1. /p/2 " + s_unicode);
    }

    void commandIsTriggeredWhateverItsState()
    {
        QAction action("Checkable");
        action.setCheckable(true);
        ActionManager::registerAction(&action, "Test.Checkable", m_pWindow.get(), false);
        QSignalSpy triggered(&action, &QAction::triggered);
        m_pClient->call("kpwelcome", "callbackTunnelAsync", {"Test.Checkable"});
        action.setEnabled(false);
        m_pClient->call("kpwelcome", "callbackTunnelAsync", {"Test.Checkable"});
        QCOMPARE(triggered, QList<QVariantList>({{true}, {true}}));
        QVERIFY(!action.isChecked());
        for (const char *pId : {"", "test.checkable", "Test.Checkable ", "MenuBar.File", "quit()"})
            m_pClient->call("kpwelcome", "callbackTunnelAsync", {pId});
        QCOMPARE(triggered.size(), 2);
        ActionManager::unregisterAction(&action, "Test.Checkable");
    }

    void queries()
    {
        const std::pair<const char *, const char *> answers[] = {{"WelcomeScreen.getLocale", "de_DE"},
            {"WelcomeScreen.getBuildNumber", "3.1.4"}, {"welcomescreen.getbuildnumber", ""}, {"", ""}};
        for (const auto &[pQuery, pAnswer] : answers) {
            QCOMPARE(m_pClient->call("kpwelcome", "callbackAsyncfromJS", {pQuery, "anything"}), pAnswer);
        }
        const QJsonObject urls = m_pClient->call("kpwelcome", "getResourceUrls").toObject();
        QCOMPARE(urls.keys(), QStringList({"community", "demo", "facebook", "homepage", "youtube"}));
        for (const QJsonValue url : urls)
            QVERIFY(url.toString().startsWith("https://"));
    }

    void argumentsOfAnotherKindDoNoHarm()
    {
        IRecentFilesManager::getInstance()->addFile("/p/a.kelpa");
        BoxAnswers boxes(QList<QMessageBox::StandardButton>(50, QMessageBox::No));
        const QJsonArray kinds[] = {{}, {QJsonValue()}, {QJsonObject {{"toString", "x"}}},
            {QJsonArray {"a", "b"}}, {"a", "b", "c", "d"}};
        for (const QJsonArray &arguments : kinds) {
            for (const char *pMethod :
                {"showInExplorer", "removeFile", "callbackTunnelAsync", "openURL", "openFile"}) {
                if (arguments != QJsonArray {QJsonValue()})
                    QTest::ignoreMessage(
                        QtWarningMsg, QRegularExpression("^(No candidates|Could not convert)"));
                m_pClient->call("kpwelcome", pMethod, arguments);
            }
        }
        QCOMPARE(m_pClient->call("kpwelcome", "getRecentFileList"), QJsonArray {"/p/a.kelpa"});
        for (const QString &strOpened : std::as_const(m_pDesktop->opened))
            QCOMPARE(QDir::cleanPath(strOpened), ICore::resourcePath());
    }

    // The slot that the client called has not returned yet when the client leaves.
    void clientLeavesWhileItsBoxIsOpen()
    {
        QWebSocket &client = m_pClient->socket;
        QTRY_COMPARE(client.state(), QAbstractSocket::ConnectedState);
        QTimer timer;
        bool bClosed = false;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto *pBox = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (pBox && client.state() != QAbstractSocket::UnconnectedState)
                client.abort();
            else if (pBox && !hasConnectedClient())
                bClosed = pBox->close();
        });
        timer.start(1);
        client.sendTextMessage(R"({"type":6,"id":1,"object":"kpwelcome","method":"openURL","args":["x"]})");
        QTRY_VERIFY(bClosed);
        client.open(m_pWindow->getServer()->serverUrl());
        QCOMPARE(m_pClient->call("kpwelcome", "getRecentFileList"), QJsonArray());
    }

    void bridgeLeavesTheChannelWithItsArea()
    {
        auto pArea = std::make_unique<IMainMdiArea>(nullptr);
        const QObject *pBridge = m_pWindow->getChannel()->registeredObjects().value("kpwelcome");
        QCOMPARE(pBridge->parent(), pArea.get());
        pArea.reset();
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

    std::unique_ptr<Desktop> m_pDesktop;
    KPHTMLExposingWelcome *m_pBridge = nullptr;
    std::unique_ptr<QTemporaryDir> m_pResources;
    std::unique_ptr<ChannelClient> m_pClient;
};

QTEST_MAIN(tst_IMainMdiArea)
#include "tst_imainmdiarea.moc"
