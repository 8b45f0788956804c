// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <ui/imainmdiarea.h>

#include <QUndoGroup>

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

    void openFileIsOnlyActivatedUnderAnyPathToIt()
    {
        const QString strPath = m_pProgram->write("a.kelpa");
        const QString strLink = m_pProgram->filePath("link.kelpa");
        QVERIFY(QFile::link(strPath, strLink));
        QVERIFY(m_pWindow->loadFile(strPath));
        QVERIFY(m_pWindow->loadFile(m_pProgram->write("b.kelpa")));
        QVERIFY(m_pWindow->loadFile(strLink));
        QCOMPARE(EditorManager::getEditors().size(), 2);
        QCOMPARE(EditorManager::activeEditor(), EditorManager::getEditors().first());
        QCOMPARE(recent().first(), m_pProgram->filePath("b.kelpa"));

        // The link leads to another file now: the open project is still the one that was opened.
        QVERIFY(QFile::remove(strLink) && QFile::link(m_pProgram->write("c.kelpa"), strLink));
        QVERIFY(m_pWindow->loadFile(strLink));
        QVERIFY(QFile::remove(strLink) && QFile::link(strPath, strLink));
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
            FakeDocument *pDoc = load("a.kelpa");
            const QSignalSpy title(m_pWindow.get(), &MainWindow::updateWindowFilePath);
            emit pDoc->requestClosing(bLater);
            QVERIFY(m_pFactory->documents.last().isNull());
            QCOMPARE(m_pFactory->editors.last().isNull(), !bLater);
            QTRY_VERIFY(m_pFactory->editors.last().isNull());
            QCOMPARE(title.first().first().toString(), QString());
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
        QCOMPARE(bare.calls, QStringList({"close"}));
    }

    void drops_data()
    {
        const auto row = columns<QStringList, bool, bool, bool>("files", "opens", "consumed", "accepted");
        row("only the first of two", {"a.KELPA", "b.kelpa"}, true, true, true);
        row("one that cannot be opened", {"a.kelpa"}, false, true, false);
        row("no project", {"a.png"}, true, true, false);
        row("nothing", {}, true, false, false);
    }
    void drops()
    {
        QFETCH(QStringList, files);
        QFETCH(bool, opens);
        QFETCH(bool, accepted);
        m_pFactory->prepare = [=](FakeDocument *pDoc) { pDoc->bOpenSucceeds = opens; };
        const FakeFactory second; // never asked
        QMimeData mime;
        QList<QUrl> urls;
        for (const QString &strFile : std::as_const(files))
            urls.append(QUrl::fromLocalFile(m_pProgram->write(qPrintable(strFile))));
        mime.setUrls(urls);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        drop.ignore();
        QObject *pFilter = m_pWindow.get();
        QTEST(pFilter->eventFilter(m_pWindow->getMdiArea(), &drop), "consumed");
        QCOMPARE(drop.isAccepted(), accepted);
        QCOMPARE(EditorManager::getEditors().size(), int(accepted));
        QCOMPARE(m_pFactory->documents.count(nullptr), int(!opens));
        QVERIFY(second.documents.isEmpty());
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

    void laterRunsKnowThemByTheDesignersSettings()
    {
        QVERIFY(MainWindow::IsFirstRun());
        PluginManager::settings()->setValue("designer/state", 1);
        QVERIFY(!MainWindow::IsFirstRun());
        PluginManager::instance()->setSettings(nullptr);
        QVERIFY(MainWindow::IsFirstRun());
    }

    void temporaryFolderIsMadeAnewAndLinksInItAreNotFollowed()
    {
        const QString strTemp = m_pWindow->getDefaultTempPath();
        QCOMPARE(QFileInfo(strTemp).fileName(), "ORVEN-Kelpa");
        QVERIFY(QDir(strTemp).mkpath("deep/.hidden"));
        const QString strKept = m_pProgram->write("kept");
        QVERIFY(QFile::link(m_pProgram->folder.path(), strTemp + "/deep/link"));
        m_pWindow->removeDefaultTempDir();
        QVERIFY(!QFileInfo::exists(strTemp));
        QVERIFY(QFileInfo::exists(strKept));
        QCOMPARE(m_pWindow->getDefaultTempPath(), strTemp);
        QVERIFY(QFileInfo(strTemp).isDir());
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
        const QString strKey = "Kelpa/RecentProjects";
        PluginManager::settings()->setValue(strKey, QStringList({"a", "A", "a"}));
        pRecent->removeFile("a");
        QCOMPARE(pRecent->getRecentFiles(), QStringList({"A", "a"}));
        QCOMPARE(pRecent->getCount(), 2);
        PluginManager::settings()->setValue(strKey, QString("one"));
        QCOMPARE(pRecent->getRecentFiles(), QStringList({"one"}));
        PluginManager::settings()->setValue(strKey, QStringList(30, "x"));
        QCOMPARE(pRecent->getRecentFiles().size(), 10);
        QCOMPARE(pRecent->getCount(), 10);
    }

private:
    std::unique_ptr<QWidget> m_pWelcome;
};

QTEST_MAIN(tst_MainWindowFiles)
#include "tst_mainwindow_files.moc"
