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
    virtual void cleanTempDir();

    /// Fills a new document with what the new-project dialog gave: its three integers and its flag, passed
    /// through as they are. The file name is already set. False: nothing is opened.
    virtual bool createContent(int nFirst, int nSecond, int nThird, bool bFlag) = 0;

    /// True for a document that has no file of its own yet.
    [[nodiscard]] virtual bool isTempDocument() const;

    /// Reads the file getFileName(). On failure the document has told the user why and returns false.
    virtual bool open();

    /// Asks about unsaved changes and saves them if wanted. True: the document may go (aboutToClose() was
    /// emitted); false: it stays open, unchanged.
    virtual bool close();

    virtual bool save(const QString &strFileName);
    virtual bool save();
    virtual bool saveAs();
    virtual bool revert();

    /// Pushes a command on the document's undo stack; the document takes it over.
    virtual void submitCommand(QUndoCommand *pCommand);

    /// Writes a backup copy if one is due. False: none was taken.
    virtual bool saveBackup();

    [[nodiscard]] QString getFileName() const { return m_strFileName; }
    void setFileName(const QString &strFileName) { m_strFileName = strFileName; }

    /// Whether this path without links, as QFileInfo::canonicalFilePath() gives it, is that of the document's
    /// file. Never for an empty one: there is no such file.
    [[nodiscard]] bool isAt(const QString &strCanonicalPath) const;

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

private:
    bool saveBeforeClose();
    bool saveTempBeforeClose();

    QString m_strFileName;
    QPointer<QUndoStack> m_pUndoStack;
    bool m_bTempDocument = false;
    bool m_bOpenAsBackup = false;
};
