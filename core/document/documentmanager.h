// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QList>
#include <QObject>

#include <map>
#include <utility>

class IDocument;
class QSettings;
class QTimer;
class QUndoGroup;

/// The open documents, in order of addition, with the undo group they share, a backup timer for each, and the
/// editing preferences that documents read. The main window makes and deletes it; without it there are no
/// documents and changes are ignored. Documents are not owned: one that is deleted leaves by itself. GUI
/// thread only.
class CORE_EXPORT DocumentManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DocumentManager)

public:
    /// Position on the stage in pixels, and whether the breakpoint is enabled.
    using Breakpoints = QList<std::pair<int, bool>>;

    DocumentManager();
    ~DocumentManager() override;

    [[nodiscard]] static DocumentManager *getInstance();

    /// The store of readSettings() and saveSettings(); not owned.
    static void setSettings(QSettings *pSettings);

    /// Null and listed documents are ignored. The backup timer is made but not started.
    static void addDocument(IDocument *pDocument);

    /// True for null, false for a document that is not listed.
    static bool removeDocument(IDocument *pDocument);
    [[nodiscard]] static const QList<IDocument *> &getDocuments();

    /// Null without a manager.
    [[nodiscard]] static QUndoGroup *getUndoGroup();

    /// A preference that the manager itself does not consult: ask before startWaitingBackup().
    [[nodiscard]] static bool isAutobackupEnabled();
    static void setAutoBackupEnabled(bool bEnabled);

    /// Seconds.
    [[nodiscard]] static int getAutobackupTimeout();
    static void setAutobackupTimeout(int nSeconds);

    [[nodiscard]] static bool isPasteSvgAsFreeform();
    static void setPasteSvgAsFreeform(bool bFreeform);

    [[nodiscard]] static Breakpoints getHBreakpoints();
    static void setHBreakpoints(const Breakpoints &breakpoints);
    [[nodiscard]] static Breakpoints getVBreakpoints();
    static void setVBreakpoints(const Breakpoints &breakpoints);

    /// The stored lists, or the built-in ones when nothing is stored or with `bReset`; the stored lists stay
    /// as they are.
    static void initBreakpoints(Breakpoints &horizontal, Breakpoints &vertical, bool bReset);

    /// Starts the full wait anew; then the document's saveBackup() runs after every interval until
    /// stopWaitingBackup() or removeDocument().
    static void startWaitingBackup(IDocument *pDocument);
    static void stopWaitingBackup(IDocument *pDocument);

    /// Called once: breakpoints are appended to the lists, not put in their place.
    static void readSettings();
    static void saveSettings();

private slots:
    void onScheduleBackup();

private:
    [[nodiscard]] int backupWaitMs() const;
    [[nodiscard]] QTimer *timerOf(const IDocument *pDocument) const;

    QList<IDocument *> m_documents;
    QUndoGroup *m_pUndoGroup;
    bool m_bAutoBackupEnabled = true;
    int m_nAutoBackupInterval = 300;
    bool m_bPasteSvgAsFreeform = true;
    QSettings *m_pSettings = nullptr;
    std::map<QTimer *, IDocument *> m_backupTimers;
    Breakpoints m_hBreakpoints;
    Breakpoints m_vBreakpoints;
};
