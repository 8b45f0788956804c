// SPDX-License-Identifier: MIT
#include "projectcontroller.h"

#include "actionmanager/actioncontainer.h"
#include "actionmanager/actionmanager.h"
#include "actionmanager/contextaction.h"
#include "document/documentmanager.h"
#include "document/editormanager.h"
#include "document/idocument.h"
#include "document/idocumentfactory.h"
#include "document/ieditor.h"
#include "icore.h"
#include "irecentfilesmanager.h"
#include "iui.h"
#include "mainwindow.h"
#include "ui/icreatedocumentdlg.h"
#include "ui/imainmdiarea.h"

#include <extensionsystem/pluginmanager.h>

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMenu>
#include <QPointer>
#include <QUndoGroup>
#include <QUndoStack>

using ExtensionSystem::PluginManager;

namespace {

Q_LOGGING_CATEGORY(lcFiles, "kelpa.core")

const QString s_recentMenu = QStringLiteral("File.Recent_Projects");

IDocumentFactory *factoryFor(const QString &strFileName)
{
    const QString strSuffix = QFileInfo(strFileName).suffix().toLower();
    const auto factories = PluginManager::objects<IDocumentFactory>();
    for (IDocumentFactory *pFactory : factories) {
        if (pFactory->getSupportedSuffixes().contains(strSuffix))
            return pFactory;
    }
    return nullptr;
}

IEditor *editorShowing(const QString &strPath)
{
    const QString strCanonical = QFileInfo(strPath).canonicalFilePath();
    for (IEditor *pEditor : EditorManager::getEditors()) {
        if (pEditor->getDocument() && pEditor->getDocument()->isAt(strCanonical))
            return pEditor;
    }
    return nullptr;
}

bool tellUnopenable(const QString &strPath)
{
    IUi::information(nullptr, IUi::getTitle(), MainWindow::tr("Cannot open this file type."), QMessageBox::Ok,
        QMessageBox::Ok, QDir::toNativeSeparators(strPath));
    return false;
}

// The head of both sequences that attach a document. Plug-ins see the steps through the signals they cause,
// here and after it, where the orders of the two differ: both stay as they are. A plug-in may fail to make an
// editor. What it made already is the caller's to delete.
IEditor *addToManagers(IDocument *pDoc, IDocumentFactory *pFactory)
{
    IEditor *pEditor = pFactory->createEditor();
    if (!pEditor) {
        tellUnopenable(pDoc->getFileName());
        return nullptr;
    }
    pEditor->setDocument(pDoc);
    DocumentManager::addDocument(pDoc); // and its undo stack to the group
    EditorManager::addEditor(pEditor);
    return pEditor;
}

void followStackAndRequests(IDocument *pDoc)
{
    DocumentManager::getUndoGroup()->setActiveStack(pDoc->getUndoStack());
    QObject::connect(
        pDoc, &IDocument::requestClosing, ICore::getMainWindow(), &MainWindow::onDocumentRequestClosing);
}

void startBackup(IDocument *pDoc)
{
    if (DocumentManager::isAutobackupEnabled())
        DocumentManager::startWaitingBackup(pDoc);
}

void enableSave(bool bEnabled)
{
    ICore::getMainWindow()->enableCommand("File.Save", bEnabled);
}

void updateWelcomeWidget()
{
    ICore::getMainWindow()->setVisibleWelcomeWidget(EditorManager::getEditors().isEmpty());
}

QString commandId(int nNumber)
{
    return QStringLiteral("File.Recent_Projects.Project_%1").arg(nNumber);
}

void showEntry(QAction *pAction, const QString &strText, const QString &strPath)
{
    pAction->setText(strText);
    pAction->setData(strPath);
    pAction->setVisible(true);
}

void attachNew(IDocumentFactory *pFactory, std::unique_ptr<IDocument> pDoc)
{
    IEditor *pEditor = addToManagers(pDoc.get(), pFactory);
    if (!pEditor)
        return;
    const QPointer<IDocument> pNew = pDoc.release(); // its closing deletes it
    enableSave(true);
    followStackAndRequests(pNew);
    EditorManager::activateEditor(pEditor);
    if (pNew)
        emit pNew->aboutToOpen();
    // The history alone would tell that there is nothing to save.
    if (pNew && !pNew->save() && pNew)
        enableSave(true);
    if (pNew)
        startBackup(pNew);
}

// Closing one may delete others, so they are watched. Each is shown, and named in the title, before it asks:
// two projects may have the same name.
bool closeEach(const QList<QPointer<IDocument>> &documents)
{
    for (const QPointer<IDocument> &pDoc : documents) {
        if (IEditor *pEditor = pDoc ? EditorManager::getEditorOfDocument(pDoc) : nullptr) {
            EditorManager::activateEditor(pEditor);
            MainWindow *pWindow = ICore::getMainWindow(); // the one before left no title
            pWindow->updateActivatedMdiSubFilePath(pWindow->getMdiArea()->activeSubWindow());
        }
        if (!pDoc)
            continue;
        if (!pDoc->close())
            return false;
        if (pDoc)
            emit pDoc->requestClosing(false);
    }
    return true;
}

} // namespace

IDocument *ProjectController::getActiveDocument()
{
    const IEditor *pEditor = EditorManager::activeEditor();
    return pEditor ? pEditor->getDocument() : nullptr;
}

bool ProjectController::load(const QString &strFileName)
{
    const QString strPath = QDir::fromNativeSeparators(strFileName);
    if (IEditor *pEditor = editorShowing(strPath)) {
        EditorManager::activateEditor(pEditor);
        return true;
    }
    IDocumentFactory *pFactory = factoryFor(strPath);
    const QPointer<IDocument> pDoc = pFactory ? pFactory->createDocument() : nullptr;
    if (!pDoc)
        return tellUnopenable(strPath);
    pDoc->setFileName(strPath);
    const bool bOpened = pDoc->open() && pDoc && loadOpened(pDoc, true);
    if (!bOpened) {
        delete pDoc;
        updateWelcomeWidget();
    }
    return bOpened;
}

// A slot of a plug-in may close the document at once, here and in attachNew().
bool ProjectController::loadOpened(IDocument *pDoc, bool bAddToRecentFile)
{
    IDocumentFactory *pFactory = factoryFor(pDoc->getFileName());
    if (!pFactory)
        return false;
    if (bAddToRecentFile)
        addRecent(pDoc->getFileName());
    IEditor *pEditor = addToManagers(pDoc, pFactory);
    if (!pEditor)
        return false;
    const QPointer<IDocument> pOpened = pDoc;
    EditorManager::activateEditor(pEditor);
    if (pOpened) {
        followStackAndRequests(pDoc);
        emit pDoc->aboutToOpen();
    }
    if (pOpened) {
        startBackup(pDoc);
        // Waited for by the start under a virtual display.
        qCDebug(lcFiles, "Project shown: %s", qUtf8Printable(pDoc->getFileName()));
    }
    updateWelcomeWidget();
    return true;
}

void ProjectController::create(IDocumentFactory *pFactory)
{
    if (!pFactory)
        return;
    std::unique_ptr<ICreateDocumentDlg> pDialog; // goes after the document
    std::unique_ptr<IDocument> pDoc(pFactory->createDocument());
    pDialog.reset(pFactory->createNewDocumentDialog());
    if (!pDoc || !pDialog)
        qCWarning(lcFiles, "The factory made no document or no dialog for a new project.");
    else if (pDialog->exec() == QDialog::Accepted)
        createDocument(pFactory, std::move(pDoc), std::move(pDialog));
}

// When the dialog was accepted and names no file, document and dialog are not deleted: the factory's plug-in
// may have kept both, and they are its own from then on.
void ProjectController::createDocument(
    IDocumentFactory *pFactory, std::unique_ptr<IDocument> pDoc, std::unique_ptr<ICreateDocumentDlg> pDialog)
{
    const int nFirst = pDialog->getFirstValue();
    const int nSecond = pDialog->getSecondValue();
    const int nThird = pDialog->getThirdValue();
    const QString strPath = pDialog->getFilePath();
    if (strPath.isEmpty()) {
        static_cast<void>(pDoc.release());
        static_cast<void>(pDialog.release());
        return;
    }
    addRecent(strPath);
    pDoc->setFileName(strPath);
    if (pDoc->createContent(nFirst, nSecond, nThird, pDialog->getFlag()))
        attachNew(pFactory, std::move(pDoc));
    pDoc.reset();
    updateWelcomeWidget();
}

// Dialogs run inside the calls below, and whatever happens meanwhile may take the document away, or put
// another in front.
void ProjectController::save(IDocument *pDocument)
{
    const QPointer<IDocument> pDoc = pDocument;
    if (pDoc && pDoc->isTempDocument())
        saveAs(pDoc);
    else if (pDoc && pDoc->save() && pDoc == getActiveDocument())
        enableSave(false);
}

void ProjectController::saveAs(IDocument *pDocument)
{
    const QPointer<IDocument> pDoc = pDocument;
    if (!pDoc)
        return;
    const QString strOldName = pDoc->getFileName();
    const bool bWasTemp = pDoc->isTempDocument();
    const bool bSaved = pDoc->saveAs();
    if (!pDoc)
        return;
    if (bSaved && bWasTemp)
        IRecentFilesManager::getInstance()->removeFile(strOldName);
    if (bSaved)
        addRecent(pDoc->getFileName());
    if ((bSaved || bWasTemp) && pDoc == getActiveDocument())
        enableSave(!bSaved);
}

void ProjectController::close(IDocument *pDocument)
{
    const QPointer<IDocument> pDoc = pDocument;
    if (pDoc && pDoc->close() && pDoc)
        emit pDoc->requestClosing(true);
}

bool ProjectController::closeAll()
{
    QList<QPointer<IDocument>> shown;
    for (const IEditor *pEditor : EditorManager::getEditors())
        shown.prepend(pEditor->getDocument());
    if (!closeEach(shown))
        return false;
    // Looked at after the first walk: a project that came in meanwhile is asked too.
    const auto &documents = DocumentManager::getDocuments();
    return closeEach({documents.cbegin(), documents.cend()});
}

// Listeners of the registries may delete either of the two themselves.
void ProjectController::remove(IDocument *pDocument, bool bDeleteLater)
{
    const QPointer<IDocument> pDoc = pDocument;
    if (!pDoc)
        return;
    const QPointer<IEditor> pEditor = EditorManager::getEditorOfDocument(pDoc);
    EditorManager::removeEditor(pEditor);
    DocumentManager::removeDocument(pDoc);
    if (pEditor && bDeleteLater)
        pEditor->deleteLater();
    else
        delete pEditor;
    if (pDoc && pDoc->isTempDocument())
        pDoc->cleanTempDir();
    delete pDoc;
    MainWindow *pWindow = ICore::getMainWindow();
    if (!pWindow) // its own destructor took a child along that let the document go
        return;
    pWindow->setWindowFilePath(QString());
    if (!EditorManager::activeEditor())
        pWindow->setWindowModified(false);
    updateRecentMenu(); // a temporary project that was not kept, or got a name, changed the list
    updateWelcomeWidget();
    pWindow->updateSaveAsMenu();
}

void ProjectController::addRecent(const QString &strPath)
{
    // A relative path, as a plug-in may pass it, would mean another file for a program started elsewhere.
    const bool bRelative = !strPath.isEmpty() && QDir::isRelativePath(strPath);
    IRecentFilesManager::getInstance()->addFile(bRelative ? QFileInfo(strPath).absoluteFilePath() : strPath);
    updateRecentMenu();
}

void ProjectController::createRecentCommands()
{
    MainWindow *pWindow = ICore::getMainWindow();
    ActionContainer *pMenu = ActionManager::getActionContainer(s_recentMenu);
    for (int i = 1; i <= IRecentFilesManager::getInstance()->getMaxCount(); ++i) {
        auto *pAction = new QAction(pWindow);
        pAction->setVisible(false);
        QObject::connect(pAction, SIGNAL(triggered()), pWindow, SLOT(recentFileOpen()));
        m_recentActions.append(pAction);
        pMenu->insertAction(ActionManager::registerAction(pAction, commandId(i), pWindow, false));
    }
    updateRecentMenu();
}

// Nothing here looks at the disk: a path may lie on a drive that does not answer.
void ProjectController::updateRecentMenu()
{
    const QStringList files = IRecentFilesManager::getInstance()->getRecentFiles();
    const int nCount = IRecentFilesManager::getInstance()->getCount();
    ActionManager::getActionContainer(s_recentMenu)->getMenu()->setEnabled(nCount != 0);
    for (int i = 0; i < nCount; ++i) {
        const QString strText = QStringLiteral("%1. %2").arg(QString::number(i + 1), files.at(i));
        showEntry(m_recentActions.at(i), strText, files.at(i));
        if (const ContextAction *pCommand = ActionManager::getAction(commandId(i + 1)))
            showEntry(pCommand->getAction(), strText, files.at(i));
    }
    for (int i = nCount; i < static_cast<int>(m_recentActions.size()); ++i)
        m_recentActions.at(i)->setVisible(false);
}

void ProjectController::openRecent(const QString &strPath)
{
    MainWindow *pWindow = ICore::getMainWindow();
    if (QFileInfo::exists(strPath)) {
        load(strPath);
        return;
    }
    const auto answer = IUi::question(pWindow, IUi::getTitle(),
        MainWindow::tr("The project [%1] no longer exists.\nDo you want to remove this entry from history?")
            .arg(strPath),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    if (answer == QMessageBox::Yes)
        pWindow->getMdiArea()->removeFile(strPath);
}
