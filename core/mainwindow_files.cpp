// SPDX-License-Identifier: MIT
// The project commands of the main window: how a project comes in and how it goes.
#include "mainwindow.h"

#include "document/documentmanager.h"
#include "document/editormanager.h"
#include "document/idocument.h"
#include "document/idocumentfactory.h"
#include "document/ieditor.h"
#include "irecentfilesmanager.h"
#include "iui.h"
#include "ui/icreatedocumentdlg.h"

#include <extensionsystem/pluginmanager.h>

#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMimeData>
#include <QPointer>
#include <QUndoGroup>
#include <QUndoStack>
#include <QUrl>

using ExtensionSystem::PluginManager;

namespace {

Q_LOGGING_CATEGORY(lcFiles, "kelpa.core")

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
    IUi::information(nullptr, QStringLiteral("Kelpa Studio"), MainWindow::tr("Cannot open this file type."),
        QMessageBox::Ok, QMessageBox::Ok, QDir::toNativeSeparators(strPath));
    return false;
}

// A plug-in may fail to make an editor. What it made already is the caller's to delete.
IEditor *addToManagers(IDocument *pDoc, IDocumentFactory *pFactory)
{
    IEditor *pEditor = pFactory->createEditor();
    if (!pEditor) {
        tellUnopenable(pDoc->getFileName());
        return nullptr;
    }
    pEditor->setDocument(pDoc);
    DocumentManager::addDocument(pDoc);
    EditorManager::addEditor(pEditor);
    if (pDoc->getUndoStack())
        DocumentManager::getUndoGroup()->addStack(pDoc->getUndoStack());
    return pEditor;
}

IDocument *activeDocument()
{
    const IEditor *pEditor = EditorManager::activeEditor();
    return pEditor ? pEditor->getDocument() : nullptr;
}

bool isProjectFile(const QString &strPath)
{
    const QString strSuffix = QFileInfo(strPath).suffix().toLower();
    return strSuffix == QLatin1String("kelpa") || strSuffix == QLatin1String("kelpapack");
}

void startBackup(IDocument *pDoc)
{
    if (DocumentManager::isAutobackupEnabled())
        DocumentManager::startWaitingBackup(pDoc);
}

} // namespace

IDocumentFactory *MainWindow::selectDocumentFactory()
{
    return PluginManager::object<IDocumentFactory>();
}

void MainWindow::openFilesPassedAsArguments()
{
    const QStringList arguments = PluginManager::arguments();
    for (const QString &strArgument : arguments)
        loadFile(strArgument);
}

bool MainWindow::loadFile(const QString &strFileName)
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
    const bool bOpened = pDoc->open() && pDoc && loadOpenedDocument(pDoc, true);
    if (!bOpened) {
        delete pDoc;
        updateWelcomeWidget();
    }
    return bOpened;
}

// Plug-ins see the steps through the signals they cause, here and in attachNew(): both orders stay. A slot of
// theirs may close the document at once.
bool MainWindow::loadOpenedDocument(IDocument *pDoc, bool bAddToRecentFile)
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
        DocumentManager::getUndoGroup()->setActiveStack(pDoc->getUndoStack());
        connect(pDoc, &IDocument::requestClosing, this, &MainWindow::onDocumentRequestClosing);
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

void MainWindow::fileNew()
{
    IDocumentFactory *pFactory = selectDocumentFactory();
    if (!pFactory)
        return;
    IDocument *pDoc = pFactory->createDocument();
    ICreateDocumentDlg *pDialog = pFactory->createNewDocumentDialog();
    if (!pDoc || !pDialog)
        qCWarning(lcFiles, "The factory made no document or no dialog for a new project.");
    if (!pDoc || !pDialog || pDialog->exec() != QDialog::Accepted)
        delete pDoc;
    else if (!createDocument(pFactory, pDoc, pDialog))
        return;
    delete pDialog;
}

// False: the dialog named no file. Document and dialog then stay with the factory's plug-in, which may have
// kept them; plug-ins rely on both living on.
bool MainWindow::createDocument(IDocumentFactory *pFactory, IDocument *pDoc, ICreateDocumentDlg *pDialog)
{
    const int nFirst = pDialog->getFirstValue();
    const int nSecond = pDialog->getSecondValue();
    const int nThird = pDialog->getThirdValue();
    const QString strPath = pDialog->getFilePath();
    if (strPath.isEmpty())
        return false;
    addRecent(strPath);
    pDoc->setFileName(strPath);
    if (pDoc->createContent(nFirst, nSecond, nThird, pDialog->getFlag()))
        attachNew(pFactory, pDoc);
    else
        delete pDoc;
    updateWelcomeWidget();
    return true;
}

void MainWindow::attachNew(IDocumentFactory *pFactory, IDocument *pDoc)
{
    IEditor *pEditor = addToManagers(pDoc, pFactory);
    if (!pEditor) {
        delete pDoc;
        return;
    }
    enableCommand("File.Save", true);
    DocumentManager::getUndoGroup()->setActiveStack(pDoc->getUndoStack());
    connect(pDoc, &IDocument::requestClosing, this, &MainWindow::onDocumentRequestClosing);
    const QPointer<IDocument> pNew = pDoc;
    EditorManager::activateEditor(pEditor);
    if (pNew)
        emit pDoc->aboutToOpen();
    // The history alone would tell that there is nothing to save.
    if (pNew && !pDoc->save() && pNew)
        enableCommand("File.Save", true);
    if (pNew)
        startBackup(pDoc);
}

void MainWindow::fileOpen()
{
    IDocumentFactory *pFactory = selectDocumentFactory();
    const QString strPath = pFactory ? pFactory->getOpenFileName() : QString();
    if (!strPath.isEmpty())
        loadFile(strPath);
}

// Dialogs run inside the calls below, and whatever happens meanwhile may take the document away, or put
// another in front.
void MainWindow::fileSave()
{
    const QPointer<IDocument> pDoc = activeDocument();
    if (!pDoc)
        return;
    if (pDoc->isTempDocument())
        fileSaveAs();
    else if (pDoc->save() && pDoc == activeDocument())
        enableCommand("File.Save", false);
}

void MainWindow::fileSaveAs()
{
    const QPointer<IDocument> pDoc = activeDocument();
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
    if ((bSaved || bWasTemp) && pDoc == activeDocument())
        enableCommand("File.Save", !bSaved);
}

void MainWindow::fileClose()
{
    const QPointer<IDocument> pDoc = activeDocument();
    if (pDoc && pDoc->close() && pDoc)
        emit pDoc->requestClosing(true);
}

void MainWindow::fileExit()
{
    close();
}

// Listeners of the registries may delete either of the two themselves.
void MainWindow::onDocumentRequestClosing(bool bDeleteLater)
{
    const QPointer<IDocument> pDoc = qobject_cast<IDocument *>(sender());
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
    emit updateWindowFilePath(QString());
    if (!EditorManager::activeEditor())
        emit updateModified(false);
    updateRecentFileActions(); // a temporary project that was not kept, or got a name, changed the list
    updateWelcomeWidget();
    updateSaveAsMenu();
}

void MainWindow::addRecent(const QString &strPath)
{
    // A relative path, as a plug-in may pass it, would mean another file for a program started elsewhere.
    const bool bRelative = !strPath.isEmpty() && QDir::isRelativePath(strPath);
    IRecentFilesManager::getInstance()->addFile(bRelative ? QFileInfo(strPath).absoluteFilePath() : strPath);
    updateRecentFileActions();
}

void MainWindow::updateWelcomeWidget()
{
    setVisibleWelcomeWidget(EditorManager::getEditors().isEmpty());
}

// Watches the area of documents and the welcome widget for projects dropped on them.
bool MainWindow::eventFilter(QObject *pWatched, QEvent *pEvent)
{
    switch (pEvent->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        static_cast<QDragMoveEvent *>(pEvent)->acceptProposedAction();
        return true;
    case QEvent::DragLeave:
        pEvent->accept();
        return false;
    case QEvent::Drop:
        return handleDrop(static_cast<QDropEvent *>(pEvent));
    default:
        return KPStyledFrame<QMainWindow>::eventFilter(pWatched, pEvent);
    }
}

// Only the first URL counts. A drop with any is consumed.
bool MainWindow::handleDrop(QDropEvent *pEvent)
{
    const QList<QUrl> urls = pEvent->mimeData()->urls();
    if (urls.isEmpty())
        return false;
    const QString strPath = urls.first().toLocalFile();
    if (isProjectFile(strPath) && loadFile(strPath))
        pEvent->acceptProposedAction();
    return true;
}
