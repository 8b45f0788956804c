// SPDX-License-Identifier: MIT
#include "stagedocument.h"

#include "stageformat.h"
#include "stagelog.h"
#include "stagemodel.h"
#include "stagereader.h"
#include "stagewriter.h"

#include <document/documentmanager.h>
#include <document/editormanager.h>
#include <icore.h>
#include <iui.h>
#include <mainwindow.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QPointer>
#include <QPushButton>
#include <QUndoStack>

#include <algorithm>

Q_LOGGING_CATEGORY(lcStage, "kelpa.stage")

namespace {

const QString s_suffix = QStringLiteral(".kelpa");

bool inRange(int nValue, int nMax)
{
    return nValue >= 1 && nValue <= nMax;
}

// One watcher for all documents: each takes an inotify instance, of which Linux gives a user 128 by default.
std::shared_ptr<QFileSystemWatcher> sharedWatcher()
{
    static std::weak_ptr<QFileSystemWatcher> s_pShared;
    auto pWatcher = s_pShared.lock();
    if (!pWatcher)
        s_pShared = pWatcher = std::make_shared<QFileSystemWatcher>();
    return pWatcher;
}

// Appends the suffix and shortens the name before it if the file system would refuse the length.
QString withSuffix(QString strName, const QString &strSuffix)
{
    constexpr int nMaxBytes = 255;
    while (QFile::encodeName(strName + strSuffix).size() > nMaxBytes)
        strName.chop(strName.size() > 1 && strName.back().isLowSurrogate() ? 2 : 1);
    return strName + strSuffix;
}

} // namespace

// Model and stack are children, so they still exist when ~IDocument() emits destroyed().
StageDocument::StageDocument()
    : m_pModel(new StageModel(this))
    , m_pWatcher(sharedWatcher())
{
    connect(m_pWatcher.get(), &QFileSystemWatcher::fileChanged, this, &StageDocument::onFileChanged);
    auto *pStack = new QUndoStack(this);
    setUndoStack(pStack);
    connect(pStack, &QUndoStack::cleanChanged, this, [this] { emit modifyChanged(isModified()); });
    connect(pStack, &QUndoStack::indexChanged, this, [this] {
        ++m_nRevision;
        emit dataChanged(m_pModel);
    });
}

StageDocument::~StageDocument()
{
    if (!getFileName().isEmpty())
        m_pWatcher->removePath(getFileName());
}

void StageDocument::cleanTempDir()
{
    removeBackup();
}

bool StageDocument::createContent(int nFirst, int nSecond, int nThird, bool bFlag)
{
    if (!inRange(nFirst, StageFormat::nMaxStageSize) || !inRange(nSecond, StageFormat::nMaxStageSize)
        || !inRange(nThird, StageFormat::nMaxFrameRate)) {
        IUi::information(nullptr, IUi::getTitle(),
            tr("Could not create project %1.\nA stage of %2 by %3 pixels with %4 frames per second is not "
               "possible.")
                .arg(QDir::toNativeSeparators(getFileName()), QString::number(nFirst),
                    QString::number(nSecond), QString::number(nThird)));
        return false;
    }
    StageProject project;
    project.width = nFirst;
    project.height = nSecond;
    project.frameRate = nThird;
    project.responsive = bFlag;
    project.scenes.append(StageScene {tr("Scene 1"), {}, {}});
    getUndoStack()->resetClean(); // nothing of this project is on disk yet
    m_pModel->setProject(project);
    return true;
}

bool StageDocument::open()
{
    return read(tr("Could not open project %1."));
}

bool StageDocument::revert()
{
    if (!read(tr("Could not read project %1 again.")))
        return false;
    getUndoStack()->clear();
    removeBackup();
    return true;
}

// If it fails, the user is told and the project in memory stays as it is.
bool StageDocument::read(const QString &strAction)
{
    const StageReader::Result result = StageReader::readFile(getFileName());
    if (!result.project) {
        const QString strFile = QDir::toNativeSeparators(getFileName());
        qCWarning(lcStage, "%s: %s", qUtf8Printable(strFile), qUtf8Printable(result.error));
        IUi::information(nullptr, IUi::getTitle(), strAction.arg(strFile) + QLatin1Char('\n') + result.error);
        return false;
    }
    m_pModel->setProject(*result.project);
    watchFile();
    return true;
}

bool StageDocument::close()
{
    // A receiver of aboutToClose() may delete this document.
    const QPointer<StageDocument> pThis = this;
    if (!IDocument::close())
        return false;
    if (pThis)
        removeBackup();
    return true;
}

bool StageDocument::save(const QString &strFileName)
{
    const QString strReason = StageWriter::writeFile(m_pModel->project(), strFileName);
    const QString strFile = QDir::toNativeSeparators(strFileName);
    setSaveError(strReason);
    if (!strReason.isEmpty()) {
        qCWarning(lcStage, "%s: not saved: %s", qUtf8Printable(strFile), qUtf8Printable(strReason));
        emit statusChanged(tr("Could not save %1: %2").arg(strFile, strReason));
        return false;
    }
    emit statusChanged(tr("Saved %1").arg(strFile));
    return true;
}

bool StageDocument::save()
{
    return saveAsOwn(getFileName());
}

bool StageDocument::saveAs()
{
    QString strFileName = QFileDialog::getSaveFileName(ICore::getMainWindow(), tr("Save Project As"),
        getFileName(), tr("Kelpa projects (*%1)").arg(s_suffix));
    if (strFileName.isEmpty())
        return false;
    if (!strFileName.endsWith(s_suffix, Qt::CaseInsensitive)) {
        strFileName += s_suffix;
        // The dialog has asked about replacing a file only for the name without the suffix.
        if (QFileInfo::exists(strFileName)
            && IUi::question(nullptr, IUi::getTitle(),
                   tr("%1 exists. Replace it?").arg(QDir::toNativeSeparators(strFileName)),
                   QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
                != QMessageBox::Yes)
            return false;
    }
    if (isOpenElsewhere(strFileName, this)) {
        IUi::information(nullptr, IUi::getTitle(),
            tr("%1 is open. Close it first.").arg(QDir::toNativeSeparators(strFileName)));
        return false;
    }
    return saveAsOwn(strFileName);
}

bool StageDocument::isOpenElsewhere(const QString &strFileName, const IDocument *pExcept)
{
    const QString strPath = resolvedPath(strFileName);
    const auto &documents = DocumentManager::getDocuments();
    return std::any_of(documents.begin(), documents.end(),
        [&](const IDocument *pDoc) { return pDoc != pExcept && pDoc->isAt(strPath); });
}

bool StageDocument::saveAsOwn(const QString &strFileName)
{
    if (!save(strFileName)) {
        tellFailure(QDir::toNativeSeparators(strFileName));
        return false;
    }
    const bool bStackTells = !getUndoStack()->isClean();
    removeBackup();
    setIsTempDocument(false);
    setFileName(strFileName);
    watchFile();
    getUndoStack()->setClean();
    if (!bStackTells)
        emit modifyChanged(isModified());
    emit titleChanged();
    return true;
}

// If close() calls save(), it shows the reason itself. The document may be deleted while the box is open.
void StageDocument::tellFailure(const QString &strFile)
{
    if (isSavedByClose())
        return;
    const QPointer<StageDocument> pThis = this;
    const auto answer =
        IUi::run(nullptr, QStringLiteral("information_32"), IUi::getTitle(), [&](QMessageBox *pBox) {
            pBox->setTextFormat(Qt::PlainText);
            pBox->setText(tr("Could not save %1: %2").arg(strFile, getSaveError()));
            pBox->setStandardButtons(QMessageBox::Save | QMessageBox::Cancel);
            pBox->button(QMessageBox::Save)->setText(tr("Save &As..."));
        });
    if (answer == QMessageBox::Save && pThis)
        QMetaObject::invokeMethod(this, &StageDocument::saveElsewhere, Qt::QueuedConnection);
}

// The main window saves, since it also keeps the recent projects. Queued, so that save() has returned before.
void StageDocument::saveElsewhere()
{
    IEditor *pEditor = EditorManager::getEditorOfDocument(this);
    if (!pEditor)
        return;
    EditorManager::activateEditor(pEditor);
    if (EditorManager::activeEditor() == pEditor)
        ICore::getMainWindow()->fileSaveAs();
}

void StageDocument::watchFile()
{
    if (QFile::exists(getFileName()))
        m_pWatcher->addPath(getFileName());
}

// QFileSystemWatcher stops watching a file that is replaced, as saving does, so the file is added again. A
// project whose file was deleted counts as unsaved.
void StageDocument::onFileChanged(const QString &strPath)
{
    if (strPath != getFileName())
        return;
    watchFile();
    if (!QFile::exists(strPath))
        getUndoStack()->resetClean();
}

void StageDocument::submitCommand(QUndoCommand *pCommand)
{
    if (pCommand)
        getUndoStack()->push(pCommand);
}

bool StageDocument::saveBackup()
{
    if (!isModified() || (!m_strBackup.isEmpty() && m_nBackupRevision == m_nRevision))
        return false;
    const QString strFile = m_strBackup.isEmpty() ? freeBackupName() : m_strBackup;
    const QString strReason = StageWriter::writeFile(m_pModel->project(), strFile);
    if (!strReason.isEmpty()) {
        qCWarning(lcStage, "%s: no backup: %s", qUtf8Printable(strFile), qUtf8Printable(strReason));
        warnOfBackup(tr("No backup of %1: %2").arg(QDir::toNativeSeparators(getFileName()), strReason));
        return false;
    }
    warnOfBackup({});
    m_strBackup = strFile;
    m_nBackupRevision = m_nRevision;
    return true;
}

// Shows the first failure until a backup succeeds or is no longer needed; an empty text takes it away.
void StageDocument::warnOfBackup(const QString &strText)
{
    MainWindow *pMainWindow = ICore::getMainWindow();
    const KPNotificationBar *pBar = pMainWindow ? pMainWindow->getNotificationBar() : nullptr;
    const QString strBefore = std::exchange(m_strBackupWarning, strText);
    if (pBar && !strText.isEmpty() && strBefore.isEmpty())
        pMainWindow->showNotification(strText, KPNotificationBar::Warning, QString(), true);
    else if (pBar && strText.isEmpty() && !strBefore.isEmpty() && pBar->text() == strBefore)
        pMainWindow->hideNotification();
}

// Skips existing files, since one may be the backup of an earlier run and the only copy of the user's work.
QString StageDocument::freeBackupName() const
{
    const QFileInfo file(getFileName());
    const bool bTemp = isTempDocument() && ICore::getMainWindow();
    const QDir folder(bTemp ? ICore::getMainWindow()->getDefaultTempPath() : file.absolutePath());
    const QString strSuffix = QStringLiteral(".backup");
    QString strName = withSuffix(file.fileName(), strSuffix);
    for (int i = 2; folder.exists(strName); ++i)
        strName = withSuffix(file.fileName(), strSuffix + QStringLiteral("-%1").arg(i));
    return folder.absoluteFilePath(strName);
}

// Never removes a backup that this document did not write.
void StageDocument::removeBackup()
{
    if (!m_strBackup.isEmpty() && !QFile::remove(m_strBackup) && QFile::exists(m_strBackup))
        qCWarning(lcStage, "%s: the backup could not be removed", qUtf8Printable(m_strBackup));
    m_strBackup.clear();
    warnOfBackup({});
}
