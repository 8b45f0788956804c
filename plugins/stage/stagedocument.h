// SPDX-License-Identifier: MIT
#pragma once

#include <document/idocument.h>

#include <memory>

class QFileSystemWatcher;
class StageModel;

/// A project in the format "kelpa". It owns its model and its undo stack. GUI thread only.
class StageDocument : public IDocument
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageDocument)

public:
    StageDocument();
    ~StageDocument() override;

    [[nodiscard]] StageModel *getModel() const { return m_pModel; }

    /// Whether a listed document other than `pExcept` has this file as its own, also if the file has been
    /// deleted since. Two such documents would overwrite each other's file. `pExcept` may be null.
    [[nodiscard]] static bool isOpenElsewhere(const QString &strFileName, const IDocument *pExcept);

    void cleanTempDir() override;

    /// Width and height in pixels, frames per second, and whether the stage follows the width of its page.
    /// Values out of range give a message and false. The project counts as modified until it is saved.
    bool createContent(int nFirst, int nSecond, int nThird, bool bFlag) override;

    bool open() override;
    bool close() override;

    /// Writes a copy to this file; the document keeps its own file. statusChanged() tells the result. If it
    /// fails, the reason is also logged and the file is unchanged. save() and saveAs() then show a box that
    /// offers to save elsewhere, unless close() calls save(): it shows the reason itself.
    bool save(const QString &strFileName) override;
    bool save() override;

    /// Asks for a file, which becomes the document's own. Also false if the user cancels.
    bool saveAs() override;

    /// Reads the file again, clears the history and removes the backup. If it fails, nothing changes.
    bool revert() override;

    void submitCommand(QUndoCommand *pCommand) override;

    /// Writes a backup if the project has changed since the last save and the last backup: "<file>.backup",
    /// for a temporary document in the main window's temporary folder. If this document did not write the
    /// file that has this name, the backup gets a number. The first of several failures in a row is shown in
    /// the notification bar.
    bool saveBackup() override;

private:
    bool read(const QString &strAction);
    bool saveAsOwn(const QString &strFileName);
    void tellFailure(const QString &strFile);
    void saveElsewhere();
    void watchFile();
    void onFileChanged(const QString &strPath);
    void removeBackup();
    void warnOfBackup(const QString &strText);
    [[nodiscard]] QString freeBackupName() const;

    StageModel *const m_pModel;
    int m_nRevision = 0;
    int m_nBackupRevision = 0;
    QString m_strBackup; ///< path of the backup that this document wrote; empty if none
    QString m_strBackupWarning; ///< text that the notification bar shows
    std::shared_ptr<QFileSystemWatcher> m_pWatcher;
};
