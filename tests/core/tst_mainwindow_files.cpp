// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <icore.h>
#include <irecentfilesmanager.h>
#include <mainwindow.h>
#include <ui/imainmdiarea.h>

#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QUndoGroup>

using ExtensionSystem::PluginManager;

class tst_MainWindowFiles : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_pWindow = std::make_unique<MainWindow>(nullptr);
        m_pFactory = std::make_unique<FakeFactory>();
        m_pWelcome = std::make_unique<QWidget>();
        m_pWindow->setWelcomeWidget(m_pWelcome.get());
        m_pWelcome->hide();
    }

    void cleanup()
    {
        for (const auto &pDocument : std::as_const(m_pFactory->documents))
            delete pDocument;
        for (const auto &pEditor : std::as_const(m_pFactory->editors))
            delete pEditor;
        m_pFactory.reset();
        m_pWindow.reset();
        m_pWelcome.reset();
        m_pProgram.reset();
    }

    void openingAttachesEverythingInOrder()
    {
        const QString strPath = m_pProgram->write("A.KELPA");
        QStringList log;
        record(&log);
        QVERIFY(m_pWindow->loadFile(strPath));
        QCOMPARE(log,
            QStringList({"opened, 0 documents, 0 editors", "activated, 1 documents, stack inactive",
                "opened, 1 documents, 1 editors, stack active"}));
        FakeDocument *pDoc = m_pFactory->documents.first();
        QCOMPARE(pDoc->getFileName(), strPath);
        QCOMPARE(DocumentManager::getUndoGroup()->stacks(), QList<QUndoStack *>({&pDoc->stack}));
        QCOMPARE(recent(), QStringList({strPath}));
        QVERIFY(backupTimer()->isActive());
        QVERIFY(m_pWelcome->isHidden());
    }

    void creatingAttachesEverythingInItsOwnOrder()
    {
        m_pFactory->strNewPath = m_pProgram->filePath("new.kelpa");
        QStringList log;
        record(&log);
        m_pWindow->fileNew();
        QCOMPARE(log,
            QStringList(
                {"activated, 1 documents, stack active", "opened, 1 documents, 1 editors, stack active"}));
        QCOMPARE(m_pFactory->documents.first()->calls, QStringList({"content 1 2 3 1", "save"}));
        QCOMPARE(recent(), QStringList({m_pFactory->strNewPath}));
        QVERIFY(backupTimer()->isActive());
        QVERIFY(!m_pFactory->pDialog);
    }

    void creatingThatComesToNothing_data()
    {
        const auto row = columns<int, QString, bool, QStringList, bool>(
            "result", "path", "content", "recent", "leftAlone");
        row("cancelled dialog", QDialog::Rejected, "/n.kelpa", true, {}, false);
        row("no path keeps document and dialog", QDialog::Accepted, "", true, {}, true);
        row("content that fails", QDialog::Accepted, "/n.kelpa", false, {"/n.kelpa"}, false);
    }

    void creatingThatComesToNothing()
    {
        QFETCH(bool, content);
        QFETCH(bool, leftAlone);
        QFETCH(int, result);
        QFETCH(QString, path);
        m_pFactory->strNewPath = path;
        m_pFactory->nDialogResult = result;
        m_pFactory->prepare = [=](FakeDocument *pDoc) { pDoc->bContentSucceeds = content; };
        m_pWindow->fileNew();
        QTEST(recent(), "recent");
        QVERIFY(EditorManager::getEditors().isEmpty() && DocumentManager::getDocuments().isEmpty());
        QCOMPARE(!m_pFactory->documents.first().isNull(), leftAlone);
        QCOMPARE(!m_pFactory->pDialog.isNull(), leftAlone);
        delete m_pFactory->pDialog;
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

    void fileThatCannotBeOpened()
    {
        m_pFactory->prepare = [](FakeDocument *pDoc) { pDoc->bOpenSucceeds = false; };
        FakeFactory second;
        QVERIFY(!m_pWindow->loadFile(m_pProgram->write("a.kelpa")));
        QVERIFY(m_pFactory->documents.first().isNull());
        QVERIFY(second.documents.isEmpty());
        QVERIFY(recent().isEmpty());
        QVERIFY(!m_pWelcome->isHidden());
    }

    void unknownTypeIsTold()
    {
        BoxAnswers boxes({QMessageBox::Ok});
        QVERIFY(!m_pWindow->loadFile(m_pProgram->write("a.txt")));
        QCOMPARE(boxes.texts(), QStringList({"Cannot open this file type."}));
        QCOMPARE(boxes.boxes.first().title, "Kelpa Studio");
        QCOMPARE(boxes.boxes.first().informative.remove(QChar(0x200B)), m_pProgram->filePath("a.txt"));
        QVERIFY(m_pFactory->documents.isEmpty());
    }

    void documentOfAnotherPlugInStaysWithItWithoutAFactory()
    {
        FakeDocument document;
        document.setFileName("/p/a.other");
        QVERIFY(!m_pWindow->loadOpenedDocument(&document, true));
        document.setFileName("/p/a.kelpa");
        QVERIFY(m_pWindow->loadOpenedDocument(&document, false));
        QVERIFY(recent().isEmpty());
    }

    void closingOneDocument_data()
    {
        const auto row = columns<bool>("later");
        row("with its editor at once", false);
        row("with its editor later", true);
    }

    void closingOneDocument()
    {
        QFETCH(bool, later);
        FakeDocument *pDoc = load("a.kelpa");
        pDoc->setIsTempDocument(true);
        QSignalSpy title(m_pWindow.get(), &MainWindow::updateWindowFilePath);
        emit pDoc->requestClosing(later);
        QVERIFY(m_pFactory->documents.first().isNull());
        QCOMPARE(m_pFactory->editors.first().isNull(), !later);
        QTRY_VERIFY(m_pFactory->editors.first().isNull());
        QCOMPARE(title.takeFirst().first().toString(), QString());
        QVERIFY(EditorManager::getEditors().isEmpty() && DocumentManager::getDocuments().isEmpty());
        QVERIFY(!m_pWelcome->isHidden());
    }

    void windowClosesFromTheLastEditorAndStopsAtARefusal()
    {
        load("a.kelpa");
        FakeDocument *pMiddle = load("b.kelpa");
        load("c.kelpa");
        pMiddle->closeAnswer = false;
        QFile working(m_pWindow->getDefaultTempPath() + "/scratch");
        QVERIFY(working.open(QIODevice::WriteOnly));
        QSignalSpy saving(ICore::getInstance(), &ICore::aboutToSaveSettings);

        EditorManager::activateEditor(EditorManager::getEditors().first());
        QVERIFY(!m_pWindow->close());
        QCOMPARE(EditorManager::activeEditor()->getDocument(), pMiddle);
        QCOMPARE(saving.count(), 1);
        QVERIFY(working.exists());

        pMiddle->closeAnswer = true;
        QVERIFY(m_pWindow->close());
        QCOMPARE(m_pFactory->deleted.size(), 3);
        QVERIFY(!working.exists());
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

    // The walk through the stage saves everything else.
    void savingWithoutADocumentDoesNothing()
    {
        m_pWindow->fileSave();
        m_pWindow->fileSaveAs();
        m_pWindow->fileClose();
        QVERIFY(recent().isEmpty());
    }

    void drops_data()
    {
        const auto row =
            columns<QStringList, bool, bool, bool, int>("files", "opens", "consumed", "accepted", "opened");
        row("only the first of two", {"a.KELPA", "b.kelpa"}, true, true, true, 1);
        row("one that cannot be opened", {"a.kelpa"}, false, true, false, 0);
        row("no project", {"a.png"}, true, true, false, 0);
        row("nothing", {}, true, false, false, 0);
    }

    void drops()
    {
        QFETCH(QStringList, files);
        QFETCH(bool, opens);
        m_pFactory->prepare = [=](FakeDocument *pDoc) { pDoc->bOpenSucceeds = opens; };
        QMimeData mime;
        QList<QUrl> urls;
        for (const QString &strFile : std::as_const(files))
            urls.append(QUrl::fromLocalFile(m_pProgram->write(qPrintable(strFile))));
        mime.setUrls(urls);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        drop.ignore();
        QObject *pFilter = m_pWindow.get();
        QTEST(pFilter->eventFilter(m_pWindow->getMdiArea(), &drop), "consumed");
        QTEST(drop.isAccepted(), "accepted");
        QTEST(int(EditorManager::getEditors().size()), "opened");
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
        PluginManager::instance()->setSettings(
            std::make_unique<QSettings>(m_pProgram->filePath("u.ini"), QSettings::IniFormat));
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

    void recentListKeepsTenAndItsOddities()
    {
        auto *pRecent = IRecentFilesManager::getInstance();
        for (int i = 0; i < 11; ++i)
            pRecent->addFile(QString::number(i));
        QCOMPARE(pRecent->getRecentFiles(), QStringList({"10", "9", "8", "7", "6", "5", "4", "3", "2", "1"}));
        pRecent->addFile("3");
        QCOMPARE(pRecent->getRecentFiles().mid(0, 2), QStringList({"3", "10"}));

        const QString strKey = "Kelpa/RecentProjects";
        PluginManager::settings()->setValue(strKey, QStringList({"a", "A", "a"}));
        pRecent->removeFile("a");
        QCOMPARE(pRecent->getRecentFiles(), QStringList({"A", "a"}));
        QCOMPARE(pRecent->getCount(), 2);
        PluginManager::settings()->setValue(strKey, QString("one"));
        QCOMPARE(pRecent->getRecentFiles(), QStringList({"one"}));
        PluginManager::settings()->setValue(strKey, QStringList(30, "x"));
        QCOMPARE(pRecent->getRecentFiles().size(), 10);
    }

private:
    FakeDocument *load(const char *pName)
    {
        m_pWindow->loadFile(m_pProgram->write(pName));
        return m_pFactory->documents.last();
    }

    static QStringList recent() { return IRecentFilesManager::getInstance()->getRecentFiles(); }

    static QTimer *backupTimer() { return DocumentManager::getInstance()->findChild<QTimer *>(); }

    static QString stackState()
    {
        return DocumentManager::getUndoGroup()->activeStack() ? "stack active" : "stack inactive";
    }

    // Notes what already stands when a document says that it is open and when an editor becomes active.
    void record(QStringList *pLog)
    {
        connect(EditorManager::getInstance(), &EditorManager::editorActivated, this, [=] {
            pLog->append(QString("activated, %1 documents, %2")
                             .arg(DocumentManager::getDocuments().size())
                             .arg(stackState()));
        });
        m_pFactory->prepare = [=, this](FakeDocument *pDoc) { record(pLog, pDoc); };
    }

    void record(QStringList *pLog, FakeDocument *pDoc)
    {
        connect(pDoc, &IDocument::aboutToOpen, this, [=] {
            QString strLine = QString("opened, %1 documents, %2 editors")
                                  .arg(DocumentManager::getDocuments().size())
                                  .arg(EditorManager::getEditors().size());
            if (!EditorManager::getEditors().isEmpty())
                strLine += ", " + stackState();
            pLog->append(strLine);
        });
    }

    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<MainWindow> m_pWindow;
    std::unique_ptr<FakeFactory> m_pFactory;
    std::unique_ptr<QWidget> m_pWelcome;
};

QTEST_MAIN(tst_MainWindowFiles)
#include "tst_mainwindow_files.moc"
