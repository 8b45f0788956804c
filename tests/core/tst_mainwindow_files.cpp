// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <icore.h>
#include <ui/imainmdiarea.h>

#include <QNetworkProxyFactory>
#include <QUndoGroup>
#include <QWebChannel>
#include <QWebSocketServer>

using ExtensionSystem::PluginManager;

// The walk through the stage opens, creates, saves and closes everything else.
class tst_MainWindowFiles : public DocumentTest
{
    Q_OBJECT

private slots:
    void init()
    {
        DocumentTest::init();
        m_pWelcome = std::make_unique<QWidget>();
        m_pWindow->setWelcomeWidget(m_pWelcome.get());
        m_pWelcome->hide();
    }
    void cleanup()
    {
        DocumentTest::cleanup();
        m_pWelcome.reset();
    }

    void eachWayInAttachesEverythingInItsOwnOrder_data()
    {
        const auto row = columns<bool, QStringList, QStringList>("isNew", "log", "calls");
        row("opened", false,
            {"opened, 0 documents, 0 editors, stack off", "activated, 1 documents, 1 editors, stack off",
                "opened, 1 documents, 1 editors, stack on"},
            {});
        row("new", true,
            {"activated, 1 documents, 1 editors, stack on", "opened, 1 documents, 1 editors, stack on"},
            {"content 1 2 3 1", "save"});
    }
    void eachWayInAttachesEverythingInItsOwnOrder()
    {
        QFETCH(bool, isNew);
        m_pFactory->strNewPath = m_pProgram->write("A.KELPA");
        QStringList log;
        const QObject scope;
        const auto note = [&](const char *pWhat) {
            log.append(QString("%1, %2 documents, %3 editors, stack %4")
                           .arg(pWhat)
                           .arg(DocumentManager::getDocuments().size())
                           .arg(EditorManager::getEditors().size())
                           .arg(DocumentManager::getUndoGroup()->activeStack() ? "on" : "off"));
        };
        connect(EditorManager::getInstance(), &EditorManager::editorActivated, &scope,
            [&] { note("activated"); });
        m_pFactory->prepare = [&](FakeDocument *pDoc) {
            connect(pDoc, &IDocument::aboutToOpen, &scope, [&] { note("opened"); });
        };
        isNew ? m_pWindow->fileNew() : void(m_pWindow->loadFile(m_pFactory->strNewPath));
        QTEST(log, "log");
        const FakeDocument *pDoc = m_pFactory->documents.first();
        QTEST(pDoc->calls, "calls");
        QCOMPARE(pDoc->getFileName(), m_pFactory->strNewPath);
        QCOMPARE(DocumentManager::getUndoGroup()->stacks(), {pDoc->getUndoStack()});
        QCOMPARE(recent(), QStringList(m_pFactory->strNewPath));
        QVERIFY(DocumentManager::getInstance()->findChild<QTimer *>()->isActive());
        QVERIFY(m_pWelcome->isHidden() && !m_pFactory->pDialog);
    }

    // The walk through the stage opens files that are open by their own path.
    void aLinkToAnOpenFileOnlyActivatesIt()
    {
        const QString strPath = m_pProgram->write("a.kelpa"), strLink = m_pProgram->filePath("link.kelpa");
        const auto openLinkTo = [&](const QString &strTarget) {
            QFile::remove(strLink);
            return QFile::link(strTarget, strLink) && m_pWindow->loadFile(strLink);
        };
        QVERIFY(m_pWindow->loadFile(strPath) && m_pWindow->loadFile(m_pProgram->write("b.kelpa")));
        QVERIFY(openLinkTo(strPath));
        QCOMPARE(EditorManager::activeEditor(), EditorManager::getEditors().first());
        QCOMPARE(recent().first(), m_pProgram->filePath("b.kelpa"));
        // The link leads elsewhere later: what was opened through it stays what it was.
        QVERIFY(openLinkTo(m_pProgram->write("c.kelpa")) && openLinkTo(strPath));
        QVERIFY(m_pWindow->loadFile(m_pProgram->filePath("c.kelpa")));
        QCOMPARE(EditorManager::getEditors().size(), 3);
        QCOMPARE(EditorManager::activeEditor(), EditorManager::getEditors().last());
    }

    void aFactoryThatMakesNothing_data()
    {
        const auto row = columns<QString, int, int>("missing", "boxes", "opened");
        row("no document", "document", 1, 0);
        row("no editor", "editor", 2, 0);
        row("no dialog", "dialog", 0, 1);
    }
    void aFactoryThatMakesNothing()
    {
        QFETCH(int, opened);
        QFETCH(QString, missing);
        m_pFactory->missing = missing;
        m_pFactory->strNewPath = m_pProgram->filePath("new.kelpa");
        const BoxAnswers boxes({QMessageBox::Ok});
        if (missing != "editor")
            expectWarning("The factory made no document or no dialog for a new project.");
        m_pWindow->fileNew();
        QCOMPARE(int(m_pWindow->loadFile(m_pProgram->write("a.kelpa"))), opened);
        QTEST(int(boxes.boxes.size()), "boxes");
        QCOMPARE(EditorManager::getEditors().size(), opened);
        QCOMPARE(DocumentManager::getDocuments().size(), opened);
        QCOMPARE(m_pFactory->documents.count(nullptr), m_pFactory->documents.size() - opened);
        QVERIFY(!m_pFactory->pDialog);
    }

    void documentOfAnotherPlugInStaysWithItWithoutAFactory()
    {
        FakeDocument document;
        document.setFileName("/p/a.other");
        QVERIFY(!m_pWindow->loadOpenedDocument(&document, true));
        QVERIFY(recent().isEmpty());
    }

    void closingTakesTheEditorAtOnceOrLater()
    {
        for (const bool bLater : {false, true}) {
            emit load("a.kelpa")->requestClosing(bLater);
            QVERIFY(m_pFactory->documents.last().isNull());
            QCOMPARE(m_pFactory->editors.last().isNull(), !bLater);
            QTRY_VERIFY(m_pFactory->editors.last().isNull());
        }
    }

    void windowClosesWithOddCompany()
    {
        IEditor lonely;
        EditorManager::addEditor(&lonely);
        FakeDocument bare;
        bare.setFileName("/p/bare.kelpa");
        DocumentManager::addDocument(&bare);
        FakeDocument *pFirst = load("a.kelpa");
        FakeDocument *pSecond = load("b.kelpa");
        // Closing one takes the other along.
        connect(pSecond, &IDocument::aboutToClose, this, [=] { emit pFirst->requestClosing(false); });
        QVERIFY(m_pWindow->close());
        QCOMPARE(m_pFactory->deleted.size(), 2);
        QCOMPARE(bare.calls, QStringList({"close", "aboutToClose"}));
    }

    // The walk through the stage drops projects, also two at once, broken ones and other files.
    void dropsOfNothingAndInOtherSpellings()
    {
        const FakeFactory second({"kelpa", "kelpapack"}); // asked for what the first does not know
        for (const char *pName : {"", "a.KELPA", "b.KelpaPack"}) {
            QMimeData mime;
            const bool bFile = *pName;
            if (bFile)
                mime.setUrls({QUrl::fromLocalFile(m_pProgram->write(pName))});
            QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
            drop.ignore();
            QObject *pFilter = m_pWindow.get();
            QCOMPARE(pFilter->eventFilter(m_pWindow->getMdiArea(), &drop), bFile);
            QCOMPARE(drop.isAccepted(), bFile);
        }
        QVERIFY(m_pFactory->documents.size() == 1 && second.documents.size() == 1);
    }

    void argumentsAreOpenedAfterTheFirstTurn()
    {
        PluginManager::setArguments({m_pProgram->write("a.kelpa"), m_pProgram->write("b.kelpa")});
        QSignalSpy extsInitialized(m_pWindow.get(), &MainWindow::extsInitialized);
        m_pWindow->extensionsInitialized();
        QVERIFY(m_pWindow->isVisible() && m_pWindow->isMaximized());
        QCOMPARE(extsInitialized.count(), 1);
        QVERIFY(m_pFactory->documents.isEmpty());
        QTRY_COMPARE(EditorManager::getEditors().size(), 2);
    }

    void theWindowIsSetUpAsDesigned()
    {
        const IMainMdiArea *pArea = m_pWindow->getMdiArea();
        QCOMPARE(m_pWindow->windowFlags() & ~Qt::WindowFullscreenButtonHint,
            Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
        QVERIFY(m_pWindow->acceptDrops() && !m_pWindow->statusBar()->isSizeGripEnabled());
        QCOMPARE(m_pWindow->contentsMargins(), QMargins(1, 1, 1, 1));
        QVERIFY(pArea->viewMode() == QMdiArea::TabbedView && pArea->documentMode());
        QVERIFY(pArea->horizontalScrollBarPolicy() == Qt::ScrollBarAsNeeded && !pArea->windowIcon().isNull());
        QVERIFY(pArea->verticalScrollBarPolicy() == Qt::ScrollBarAsNeeded);
        QVERIFY(pArea->focusPolicy() == Qt::ClickFocus && m_pWindow->centralWidget() == pArea);
        const auto *pTabs = pArea->findChild<QTabBar *>();
        QVERIFY(!pTabs->expanding() && pTabs->tabsClosable() && pTabs->font().bold() && !pTabs->drawBase());
        const QWebSocketServer *pServer = m_pWindow->getServer();
        QVERIFY(pServer->isListening() && pServer->serverAddress() == QHostAddress::LocalHost);
        QCOMPARE(pServer->serverName(), "KPServer");
        QVERIFY(QNetworkProxyFactory::usesSystemConfiguration());
        auto *pLeft = new QDockWidget, *pRight = new QDockWidget, *pOther = new QDockWidget;
        m_pWindow->addDockWidget(Qt::RightDockWidgetArea, pRight);
        m_pWindow->addDockWidget(Qt::LeftDockWidgetArea, pLeft);
        m_pWindow->addDockWidget(Qt::RightDockWidgetArea, pOther);
        QCOMPARE(m_pWindow->getListDockWidgetsByArea(Qt::RightDockWidgetArea),
            QList<QDockWidget *>({pRight, pOther}));
    }

    void laterRunsKnowThemByTheDesignersSettings()
    {
        QVERIFY(MainWindow::IsFirstRun());
        PluginManager::settings()->setValue("designer/state", 1);
        QVERIFY(!MainWindow::IsFirstRun());
        PluginManager::instance()->setSettings(nullptr);
        QVERIFY(MainWindow::IsFirstRun());
    }

    void welcomeWidgetIsToldEachTimeItIsToBeShown()
    {
        QSignalSpy reset(m_pWindow->getMdiArea(), &IMainMdiArea::resetRecentFiles);
        m_pWindow->setVisibleWelcomeWidget(true);
        m_pWindow->setVisibleWelcomeWidget(true);
        m_pWindow->setVisibleWelcomeWidget(false);
        QCOMPARE(reset.count(), 2);
        QVERIFY(m_pWelcome->isHidden());
        m_pWelcome.reset();
        m_pWindow->setVisibleWelcomeWidget(true);
        QCOMPARE(reset.count(), 3);
    }

    void theOdditiesOfAStoredListAreKept()
    {
        auto *pRecent = IRecentFilesManager::getInstance();
        const auto store = [](const QVariant &list) {
            PluginManager::settings()->setValue("Kelpa/RecentProjects", list);
        };
        store(QStringList({"a", "A", "a"}));
        pRecent->removeFile("a");
        QVERIFY(recent() == QStringList({"A", "a"}) && pRecent->getCount() == 2);
        store("one");
        QCOMPARE(recent(), QStringList("one"));
        store(QStringList(30, "x"));
        QVERIFY(recent().size() == 10 && pRecent->getCount() == 10);
    }

    // What the children of the window find in their destructors, and what listens there.
    void theWindowGoesInItsOrder()
    {
        QStringList log;
        const QPointer<QWebSocketServer> pServer = m_pWindow->getServer();
        const auto note = [&](const char *pWhat, QObject *pObject) {
            connect(pObject, &QObject::destroyed, this, [&log, pServer, pWhat] {
                log.append(pWhat);
                log += DocumentManager::getInstance() ? QStringList("documents") : QStringList();
                log += EditorManager::getInstance() ? QStringList("editors") : QStringList();
                log += ICore::getInstance() || ICore::getMainWidget() ? QStringList("core") : QStringList();
                log += pServer && pServer->isListening() ? QStringList("server") : QStringList();
            });
        };
        note("-documents", DocumentManager::getInstance());
        note("-editors", EditorManager::getInstance());
        note("-core", ICore::getInstance());
        note("-channel", m_pWindow->getChannel());
        note("-server", pServer);
        note("-area", m_pWindow->getMdiArea());
        // One that closes its project as the last thing it does.
        auto *pChild = new QWidget(m_pWindow->getMdiArea());
        FakeDocument *pDocument = load("a.kelpa");
        connect(pChild, &QObject::destroyed, this, [=] { emit pDocument->requestClosing(false); });
        m_pWindow.reset();
        QCOMPARE(log.join(' '),
            "-documents editors core server -editors core server -core server -channel -server -area");
        QVERIFY(m_pFactory->documents.last().isNull());
    }

private:
    std::unique_ptr<QWidget> m_pWelcome;
};

QTEST_MAIN(tst_MainWindowFiles)
#include "tst_mainwindow_files.moc"
