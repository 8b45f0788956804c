// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QObject>
#include <QPointer>
#include <QString>

class QUndoCommand;
class QUndoStack;

/// Base of every document that the program opens. A factory makes it; once attached, the main window deletes
/// it after close() and requestClosing(). GUI thread only.
///
///     NotesDocument::NotesDocument() { setUndoStack(&m_stack); }
///     bool NotesDocument::save()
///     {
///         setSaveError(FileWriter::write(getFileName(), m_text));
///         if (getSaveError().isEmpty())
///             m_stack.setClean();
///         return getSaveError().isEmpty();
///     }
class CORE_EXPORT IDocument : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IDocument)

public:
    IDocument();

    /// Emits destroyed() first, while the document is still whole; QObject emits it once more.
    ~IDocument() override;

    /// True with changes that are not saved, and always for a temporary document.
    [[nodiscard]] virtual bool isModified() const;

    /// Called before a temporary document is deleted: remove its working files.
    virtual void cleanTempDir() { }

    /// Fills a new document with what the new-project dialog gave: its three integers and its flag, passed
    /// through as they are. The file name is already set. False: nothing is opened.
    virtual bool createContent(int nFirst, int nSecond, int nThird, bool bFlag) = 0;

    /// True for a document that has no file of its own yet.
    [[nodiscard]] virtual bool isTempDocument() const { return m_bTempDocument; }

    /// Reads the file getFileName(). On failure the document has told the user why and returns false.
    virtual bool open();

    /// Asks about unsaved changes and saves them if wanted. True: the document may go (aboutToClose() was
    /// emitted); false: it stays open, unchanged.
    virtual bool close();

    virtual bool save(const QString &) { return true; }
    virtual bool save() { return true; }
    virtual bool saveAs() { return true; }
    virtual bool revert() { return true; }

    /// A document pushes the command on its undo stack and takes it over. The base does nothing.
    virtual void submitCommand(QUndoCommand *) { }

    /// A document writes a backup copy if one is due, at any time it is called. False: none was taken, as
    /// always by the base.
    virtual bool saveBackup() { return false; }

    [[nodiscard]] QString getFileName() const { return m_strFileName; }

    /// Also notes where the file is now, for isAt(): a document calls it again when it saves.
    void setFileName(const QString &strFileName);

    /// The path without links. Of a file that does not exist, only its folder is looked for.
    [[nodiscard]] static QString resolvedPath(const QString &strFileName);

    /// Whether the suffix, in any case, is that of a project or of a packed one.
    [[nodiscard]] static bool isProjectFile(const QString &strFileName);

    /// Whether this path without links, as QFileInfo::canonicalFilePath() or resolvedPath() gives it, was
    /// that of the document's file when its name was set. Never for an empty one. The disk is not asked.
    [[nodiscard]] bool isAt(const QString &strResolvedPath) const;

    /// Supplied by the concrete document, which owns it; may be null.
    [[nodiscard]] QUndoStack *getUndoStack() const;

    void setIsTempDocument(bool bTemp) { m_bTempDocument = bTemp; }
    void setOpenAsBackup(bool bBackup) { m_bOpenAsBackup = bBackup; }
    [[nodiscard]] bool isOpenAsBackup() const { return m_bOpenAsBackup; }

signals:
    void aboutToClose();
    void aboutToOpen();
    void dataChanged(QObject *pObject);
    void modifyChanged(bool bModified);

    /// The document wants to go: the receiver takes it out of every registry and deletes it within the
    /// signal, and its editor too (later if `bDeleteLater`). Emit it last and touch nothing after it.
    void requestClosing(bool bDeleteLater);
    void statusChanged(const QString &strStatus);
    void titleChanged();
    void undoStackChanged();

protected:
    void setUndoStack(QUndoStack *pUndoStack);

    /// Why save() failed; close() shows it in its box, so that save() need not tell while it is called there.
    void setSaveError(const QString &strReason) { m_strSaveError = strReason; }
    [[nodiscard]] QString getSaveError() const { return m_strSaveError; }
    [[nodiscard]] bool isSavedByClose() const { return m_bSavedByClose; }

private:
    bool saveBeforeClose();
    bool saveTempBeforeClose();

    QString m_strFileName;
    QPointer<QUndoStack> m_pUndoStack;
    bool m_bTempDocument = false;
    bool m_bOpenAsBackup = false;
    QString m_strResolvedPath;
    QString m_strSaveError;
    bool m_bSavedByClose = false;
};
