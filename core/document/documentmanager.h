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
    static void setSettings(QSettings *pSettings) { set(&DocumentManager::m_pSettings, pSettings); }

    /// Null and listed documents are ignored. The backup timer is made but not started.
    static void addDocument(IDocument *pDocument);

    /// True for null, false for a document that is not listed.
    static bool removeDocument(IDocument *pDocument);
    [[nodiscard]] static const QList<IDocument *> &getDocuments();

    /// Null without a manager.
    [[nodiscard]] static QUndoGroup *getUndoGroup() { return get(&DocumentManager::m_pUndoGroup); }

    /// A preference that the manager itself does not consult: ask before startWaitingBackup().
    [[nodiscard]] static bool isAutobackupEnabled() { return get(&DocumentManager::m_bAutoBackupEnabled); }
    static void setAutoBackupEnabled(bool bEnabled) { set(&DocumentManager::m_bAutoBackupEnabled, bEnabled); }

    /// Seconds.
    [[nodiscard]] static int getAutobackupTimeout() { return get(&DocumentManager::m_nAutoBackupInterval); }
    static void setAutobackupTimeout(int nSeconds) { set(&DocumentManager::m_nAutoBackupInterval, nSeconds); }

    [[nodiscard]] static bool isPasteSvgAsFreeform() { return get(&DocumentManager::m_bPasteSvgAsFreeform); }
    static void setPasteSvgAsFreeform(bool bFreeform)
    {
        set(&DocumentManager::m_bPasteSvgAsFreeform, bFreeform);
    }

    [[nodiscard]] static Breakpoints getHBreakpoints() { return get(&DocumentManager::m_hBreakpoints); }
    static void setHBreakpoints(const Breakpoints &breakpoints)
    {
        set(&DocumentManager::m_hBreakpoints, breakpoints);
    }
    [[nodiscard]] static Breakpoints getVBreakpoints() { return get(&DocumentManager::m_vBreakpoints); }
    static void setVBreakpoints(const Breakpoints &breakpoints)
    {
        set(&DocumentManager::m_vBreakpoints, breakpoints);
    }

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
    // Without a manager a preference is false, 0 or empty, and is not kept.
    template <typename Value>
    [[nodiscard]] static Value get(Value DocumentManager::*pField)
    {
        return getInstance() ? getInstance()->*pField : Value();
    }

    template <typename Value>
    static void set(Value DocumentManager::*pField, const Value &value)
    {
        if (getInstance())
            getInstance()->*pField = value;
    }

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
