// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <icore.h>

#include <QUndoGroup>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using ExtensionSystem::PluginManager;

namespace {

// A project, what the user answers about it, and whether the save that follows succeeds.
struct Case
{
    bool bModified;
    bool bTemporary;
    QMessageBox::StandardButton answer;
    bool bSaves;
};

constexpr Case s_cases[] = {{false, false, QMessageBox::NoButton, true},
    {true, false, QMessageBox::Yes, true}, {true, false, QMessageBox::Yes, false},
    {true, false, QMessageBox::No, true}, {true, false, QMessageBox::Cancel, true},
    {false, true, QMessageBox::Yes, true}, {false, true, QMessageBox::Yes, false},
    {false, true, QMessageBox::No, true}, {true, true, QMessageBox::Cancel, true}};

// When a slot deletes a document.
enum Moment { Opened, Activated, AboutToClose, ClosingRequested, AboutToDeactivate, Deactivated };

// What closing the window with three projects asks and calls, in this order, and what it leaves.
struct Outcome
{
    bool bClosed = true;
    QStringList boxes;
    QList<QMessageBox::StandardButton> answers;
    QStringList calls;
    QStringList deleted;
    QStringList recent;
};

QString pathOf(int nProject)
{
    return QStringLiteral("/p/%1.final.kelpa").arg(nProject);
}

QString keptPathOf(int nProject)
{
    return QStringLiteral("/p/kept%1.kelpa").arg(nProject);
}

Outcome expected(const std::array<Case, 3> &projects)
{
    Outcome outcome;
    outcome.recent = {pathOf(2), pathOf(1), pathOf(0)};
    for (int i = 2; i >= 0 && outcome.bClosed; --i) {
        const Case &project = projects.at(std::size_t(i));
        const bool bYes = project.answer == QMessageBox::Yes;
        const bool bKept = project.bTemporary && bYes && project.bSaves;
        const auto box = [&](const char *pText, QMessageBox::StandardButton answer) {
            outcome.boxes.append(QString(pText).arg(i));
            outcome.answers.append(answer);
        };
        outcome.calls.append("close");
        if (project.answer != QMessageBox::NoButton)
            box("Save changes made to %1.final?", project.answer);
        if (bYes)
            outcome.calls.append(project.bTemporary ? "saveAs" : "save");
        if (bYes && !project.bSaves && !project.bTemporary)
            box("Could not save project %1.final.", QMessageBox::Ok);
        outcome.bClosed = project.answer != QMessageBox::Cancel && project.bSaves;
        if (!outcome.bClosed)
            break;
        outcome.calls.append("aboutToClose");
        if (project.bTemporary)
            outcome.recent.removeOne(pathOf(i));
        if (bKept)
            outcome.recent.prepend(keptPathOf(i));
        else if (project.bTemporary)
            outcome.calls.append("cleanTempDir");
        outcome.deleted.append(bKept ? keptPathOf(i) : pathOf(i));
    }
    return outcome;
}

} // namespace

class tst_MainWindowClosing : public DocumentTest
{
    Q_OBJECT

private slots:
    void everyCombinationOfThreeProjects()
    {
        for (int i = 0; i < 9 * 9 * 9 && !QTest::currentTestFailed(); ++i) {
            closeWith({s_cases[i / 81], s_cases[i / 9 % 9], s_cases[i % 9]});
            if (QTest::currentTestFailed())
                qInfo("with the cases %d, %d and %d", i / 81, i / 9 % 9, i % 9);
            const auto documents = DocumentManager::getDocuments();
            for (IDocument *pDoc : documents)
                emit pDoc->requestClosing(false);
            m_pFactory->documents.clear();
            m_pFactory->editors.clear();
            m_pFactory->deleted.clear();
            PluginManager::settings()->clear();
        }
    }

    void aDocumentMayGoAtAnyMoment_data()
    {
        const auto row = columns<Moment, bool>("moment", "isNew");
        row("opened, when it says so", Opened, false);
        row("opened, when its editor becomes active", Activated, false);
        row("new, when it says so", Opened, true);
        row("new, when its editor becomes active", Activated, true);
        row("when it is about to close", AboutToClose, false);
        row("when its closing is requested", ClosingRequested, false);
        row("when its editor is about to be deactivated", AboutToDeactivate, false);
        row("when its editor was deactivated", Deactivated, false);
    }
    void aDocumentMayGoAtAnyMoment()
    {
        QFETCH(Moment, moment);
        QFETCH(bool, isNew);
        QPointer<IDocument> pDoomed;
        const QObject scope;
        const auto dieOn = [&](Moment at, auto *pSender, auto signal) {
            if (at == moment)
                connect(pSender, signal, &scope, [&] { delete pDoomed; });
        };
        m_pFactory->strNewPath = m_pProgram->write("a.kelpa");
        m_pFactory->prepare = [&](FakeDocument *pDoc) {
            pDoomed = pDoc;
            dieOn(Opened, pDoc, &IDocument::aboutToOpen);
            dieOn(AboutToClose, pDoc, &IDocument::aboutToClose);
            dieOn(ClosingRequested, pDoc, &IDocument::requestClosing);
        };
        m_pFactory->onEditor = [&](IEditor *pEditor) {
            dieOn(AboutToDeactivate, pEditor, &IEditor::aboutToDeactivate);
        };
        dieOn(Activated, EditorManager::getInstance(), &EditorManager::editorActivated);
        dieOn(Deactivated, EditorManager::getInstance(), &EditorManager::editorDeactivated);
        isNew ? m_pWindow->fileNew() : void(m_pWindow->loadFile(m_pFactory->strNewPath));
        m_pFactory->prepare = nullptr;
        QCOMPARE(pDoomed.isNull(), moment <= Activated);
        QCOMPARE(DocumentManager::getDocuments().isEmpty(), pDoomed.isNull());
        QCOMPARE(!DocumentManager::getUndoGroup()->activeStack(), pDoomed.isNull());
        m_pWindow->show();
        QVERIFY(m_pWindow->close());
        QVERIFY(!pDoomed && DocumentManager::getDocuments().isEmpty());
        for (const IEditor *pEditor : EditorManager::getEditors())
            QVERIFY(!pEditor->getDocument());
        QVERIFY(m_pWindow->loadFile(m_pProgram->write("b.kelpa")));
    }

    void forcedEndAsksNobodyTwiceAndKeepsTheWorkingFolder()
    {
        QVERIFY(m_pWindow->loadFile(m_pProgram->write("a.kelpa")));
        QStringList calls;
        m_pFactory->documents.first()->closeAnswer = false;
        m_pFactory->documents.first()->pCalls = &calls;
        QFile working(m_pWindow->getDefaultTempPath() + "/scratch");
        QVERIFY(working.open(QIODevice::WriteOnly));
        m_pWindow->show();
        QTimer::singleShot(0, m_pWindow.get(), &MainWindow::forceQuit);
        QTimer::singleShot(5000, this, [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(m_pWindow->isVisible());
        QCOMPARE(calls, QStringList({"close"}));
        QVERIFY(m_pFactory->documents.first().isNull());
        QVERIFY(EditorManager::getEditors().isEmpty());
        QVERIFY(working.exists());
    }

    // Each of two other processes adds five projects again and again: in the end none of the ten is lost.
    void programsThatWriteAtOnceLoseNoRecentProject()
    {
        QProcess first, second;
        for (QProcess *pProcess : {&first, &second}) {
            pProcess->setProcessChannelMode(QProcess::ForwardedErrorChannel);
            pProcess->start(QCoreApplication::applicationFilePath(),
                {"--add-recent", PluginManager::settings()->fileName(),
                    pProcess == &first ? "first" : "second"});
        }
        QVERIFY(first.waitForFinished() && second.waitForFinished());
        PluginManager::settings()->sync();
        QStringList files = recent();
        files.sort();
        QStringList all;
        for (const char *pName : {"first", "second"}) {
            for (int i = 0; i < 5; ++i)
                all.append(QString("/%1/%2").arg(pName).arg(i));
        }
        QCOMPARE(files, all);
    }

    void theWorkingFolderIsMadeAnewAndLinksInItAreNotFollowed()
    {
        const QDir folder(m_pWindow->getDefaultTempPath());
        QCOMPARE(folder.dirName(), "ORVEN-Kelpa");
        QVERIFY(folder.mkpath("deep/.hidden"));
        const QString strKept = m_pProgram->write("kept");
        QVERIFY(QFile::link(m_pProgram->folder.path(), folder.filePath("deep/link")));
        m_pWindow->removeDefaultTempDir();
        QVERIFY(!folder.exists() && QFile::exists(strKept));
        QVERIFY(m_pWindow->getDefaultTempPath() == folder.path() && folder.exists());
    }

#ifdef Q_OS_UNIX
    // Root may delete everything, so the folder is removed as somebody else who may not touch one in it.
    void aStubbornFileStopsTheRemovalOfTheWorkingFolder()
    {
        const QByteArray temp = qgetenv("TMPDIR");
        qputenv("TMPDIR", m_pProgram->folder.path().toLocal8Bit());
        const QDir folder(m_pWindow->getDefaultTempPath());
        QVERIFY(folder.mkpath("a_free") && folder.mkpath("b_locked"));
        for (const char *pName : {"b_locked/file", "file"})
            QVERIFY(QFile(folder.filePath(pName)).open(QIODevice::WriteOnly));
        for (const QString &strOpen : {m_pProgram->folder.path(), folder.path()})
            QFile::setPermissions(strOpen, QFile::Permissions(0x7777));
        QFile::setPermissions(folder.filePath("b_locked"), QFile::Permissions(0x5555));
        const bool bRoot = geteuid() == 0 && seteuid(65534) == 0;
        m_pWindow->removeDefaultTempDir();
        QVERIFY(!bRoot || seteuid(0) == 0);
        QCOMPARE(
            folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList({"b_locked", "file"}));
        QVERIFY(QFile::exists(folder.filePath("b_locked/file")));
        QFile::setPermissions(folder.filePath("b_locked"), QFile::Permissions(0x7777));
        temp.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temp);
    }
#endif

private:
    void closeWith(const std::array<Case, 3> &projects)
    {
        const Outcome outcome = expected(projects);
        QStringList calls;
        for (int i = 0; i < 3; ++i) {
            m_pWindow->loadFile(pathOf(i));
            FakeDocument *pDoc = m_pFactory->documents.last();
            const Case &project = projects.at(std::size_t(i));
            pDoc->bSaveSucceeds = project.bSaves;
            pDoc->strSaveAsName = keptPathOf(i);
            pDoc->setIsTempDocument(project.bTemporary);
            if (project.bModified)
                pDoc->modify();
            pDoc->pCalls = &calls;
        }
        m_pWindow->show();
        EditorManager::activateEditor(EditorManager::getEditors().first());
        QFile working(m_pWindow->getDefaultTempPath() + "/scratch");
        QVERIFY(working.open(QIODevice::WriteOnly));
        const QSignalSpy saving(ICore::getInstance(), &ICore::aboutToSaveSettings);
        const BoxAnswers boxes(outcome.answers);
        QCOMPARE(m_pWindow->close(), outcome.bClosed);
        for (const auto &pDoc : std::as_const(m_pFactory->documents)) {
            if (pDoc)
                pDoc->pCalls = nullptr;
        }
        QCOMPARE(m_pWindow->isVisible(), !outcome.bClosed);
        QCOMPARE(working.exists(), !outcome.bClosed);
        QCOMPARE(saving.count(), 1);
        QCOMPARE(m_pFactory->deleted, outcome.deleted);
        QCOMPARE(boxes.texts(), outcome.boxes);
        for (const auto &box : boxes.boxes) {
            const bool bAsks = box.text.startsWith("Save");
            QVERIFY(box.title == "Kelpa Studio" && box.pParent == m_pWindow.get());
            QCOMPARE(box.buttons,
                bAsks ? QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel : QMessageBox::Ok);
            QCOMPARE(box.defaultButton, bAsks ? QMessageBox::Yes : QMessageBox::Ok);
        }
        QCOMPARE(calls, outcome.calls);
        QCOMPARE(recent(), outcome.recent);
        const auto nLeft = 3 - outcome.deleted.size();
        QCOMPARE(EditorManager::getEditors().size(), nLeft);
        QCOMPARE(EditorManager::activeEditor(), EditorManager::getEditors().value(nLeft - 1));
        QCOMPARE(DocumentManager::getDocuments().size(), nLeft);
    }
};

// A program of its own that adds five recent projects to the store.
static int addRecent(const QString &strStore, const QString &strName)
{
    TestProgram program;
    program.manager.setSettings(std::make_unique<QSettings>(strStore, QSettings::IniFormat));
    const MainWindow window(nullptr);
    // Long enough for the two to meet, however late one of them starts.
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 5 || time.elapsed() < 1500; ++i)
        IRecentFilesManager::getInstance()->addFile(QString("/%1/%2").arg(strName).arg(i % 5));
    return 0;
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--add-recent")
        return addRecent(arguments.value(2), arguments.value(3));
    tst_MainWindowClosing test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mainwindow_closing.moc"
