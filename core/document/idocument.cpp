// SPDX-License-Identifier: MIT
#include "document/idocument.h"

#include "irecentfilesmanager.h"
#include "iui.h"

#include <QDir>
#include <QFileInfo>
#include <QUndoStack>

IDocument::IDocument() = default;

IDocument::~IDocument()
{
    // Editors and managers are keyed by this pointer: they let go while it is still a document.
    emit destroyed(this);
}

bool IDocument::isModified() const
{
    return (m_pUndoStack && !m_pUndoStack->isClean()) || isTempDocument();
}

bool IDocument::open()
{
    emit aboutToOpen();
    return true;
}

// Boxes and save dialogs run event loops in which the document may be closed for good: it is watched, and
// nothing of it is touched once it is gone.
bool IDocument::close()
{
    const QPointer<IDocument> pThis = this;
    if (isModified()) {
        const auto answer = IUi::question(nullptr, IUi::getTitle(),
            tr("Save changes made to %1?").arg(QFileInfo(m_strFileName).completeBaseName()),
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
        if (!pThis)
            return false;
        if (answer == QMessageBox::No) {
            if (isTempDocument())
                IRecentFilesManager::getInstance()->removeFile(m_strFileName);
        } else if (answer != QMessageBox::Yes || !saveBeforeClose()) {
            return false;
        }
    }
    emit aboutToClose();
    return true;
}

bool IDocument::saveBeforeClose()
{
    if (isTempDocument())
        return saveTempBeforeClose();
    const QPointer<IDocument> pThis = this;
    m_strSaveError.clear();
    m_bSavedByClose = true;
    const bool bSaved = save();
    if (!pThis)
        return false;
    m_bSavedByClose = false;
    if (bSaved)
        return true;
    IUi::information(nullptr, IUi::getTitle(),
        tr("Could not save project %1.").arg(QFileInfo(m_strFileName).completeBaseName()), QMessageBox::Ok,
        QMessageBox::Ok, m_strSaveError);
    return false;
}

bool IDocument::saveTempBeforeClose()
{
    const QPointer<IDocument> pThis = this;
    const QString strOldName = m_strFileName;
    if (!saveAs() || !pThis)
        return false;
    IRecentFilesManager::getInstance()->removeFile(strOldName);
    IRecentFilesManager::getInstance()->addFile(m_strFileName);
    return true;
}

void IDocument::setFileName(const QString &strFileName)
{
    m_strFileName = strFileName;
    m_strResolvedPath = resolvedPath(strFileName);
}

QString IDocument::resolvedPath(const QString &strFileName)
{
    const QFileInfo file(strFileName);
    if (strFileName.isEmpty() || file.exists())
        return file.canonicalFilePath();
    const QString strFolder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return strFolder.isEmpty() ? QDir::cleanPath(file.absoluteFilePath())
                               : QDir(strFolder).filePath(file.fileName());
}

bool IDocument::isProjectFile(const QString &strFileName)
{
    const QString strSuffix = QFileInfo(strFileName).suffix().toLower();
    return strSuffix == QLatin1String("kelpa") || strSuffix == QLatin1String("kelpapack");
}

bool IDocument::isAt(const QString &strResolvedPath) const
{
    return !strResolvedPath.isEmpty() && m_strResolvedPath == strResolvedPath;
}

QUndoStack *IDocument::getUndoStack() const
{
    return m_pUndoStack;
}

void IDocument::setUndoStack(QUndoStack *pUndoStack)
{
    m_pUndoStack = pUndoStack;
}
