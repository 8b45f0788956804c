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

    /// Whether an open document other than `pExcept` has this file, or had it until it went: both would write
    /// it.
    [[nodiscard]] static bool isOpenElsewhere(const QString &strFileName, const IDocument *pExcept);

    void cleanTempDir() override;

    /// Width and height in pixels, frames per second, whether the stage follows the width of its page. The
    /// project counts as modified until it is written.
    bool createContent(int nFirst, int nSecond, int nThird, bool bFlag) override;

    bool open() override;
    bool close() override;

    /// Writes the project to that file, without making it the document's own. On failure the reason goes to
    /// the log and out through statusChanged(), and the file is as it was. The two below also show it in a
    /// box that offers to save elsewhere, but for save() while the document closes.
    bool save(const QString &strFileName) override;
    bool save() override;

    /// Asks for a file, which becomes the document's own. False also when cancelled.
    bool saveAs() override;

    /// Reads the file again; the history is gone then.
    bool revert() override;

    void submitCommand(QUndoCommand *pCommand) override;

    /// Writes "<file>.backup", or a file in the main window's temporary folder for a temporary document,
    /// when something changed since the last save and the last backup. A file of that name which this
    /// document did not write stays, and the backup gets a number at its end. The first of several failures
    /// is told in the notification bar.
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
    QString m_strBackup; ///< the backup this document wrote; empty without one
    QString m_strBackupWarning; // that the bar shows
    std::shared_ptr<QFileSystemWatcher> m_pWatcher;
};
