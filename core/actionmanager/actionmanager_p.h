// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QKeySequence>
#include <QMap>
#include <QObject>
#include <QPointer>

#include <set>

class ActionContainer;
class ContextAction;
class ProxyAction;
class QAction;
class QSettings;
class QWidget;

/// The state of ActionManager.
class ActionManagerPrivate : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ActionManagerPrivate)

public:
    ActionManagerPrivate();
    ~ActionManagerPrivate() override;

    void enterWindow(QWidget *pWindow);
    /// Whether the action is the proxy of this command or leads to it through others; if so, logs a warning.
    [[nodiscard]] bool isOwnProxy(const QAction *pAction, const QString &strId) const;
    /// Returns the command's proxy, whose parent is the command; null if a listener removed the command.
    QPointer<ProxyAction> addAction(
        QAction *pAction, const QString &strId, QWidget *pContext, bool bScriptable);
    void removeAction(QAction *pAction, ContextAction *pCommand);
    ActionContainer *addContainer(const QString &strId, ActionContainer *pContainer, QWidget *pShownIn);
    void setContext(QWidget *pContext);
    /// Triggers the one that has had these keys longest; false if fewer than two enabled commands have them.
    bool triggerFirst(const QKeySequence &keys) const;
    void putOutOfLine(const QString &strId) { m_outOfLine.insert(m_outOfLine.end(), strId); }

    /// In ascending order of the ids, each watched, because a listener to a command may unregister others.
    [[nodiscard]] QList<QPointer<ContextAction>> commands() const;

    /// The commands whose shortcuts are stored in the settings.
    [[nodiscard]] QList<QPointer<ContextAction>> nonSeparators() const;

    /// Empty without a store, without an entry, and for an entry that is no key sequence.
    [[nodiscard]] QKeySequence storedShortcut(const QString &strId) const;

    using Actions = QMap<QString, ContextAction *>;
    Actions m_actions;
    QMap<QString, ActionContainer *> m_containers;
    QWidget *m_pCurrentContext = nullptr;
    QSettings *m_pSettings = nullptr;
    quint64 m_nChanges = 0; // counts changes of shortcuts and new commands

private slots:
    void containerDestroyed();

private:
    [[nodiscard]] static bool leadsTo(const QAction *pAction, const ContextAction *pTarget);
    ContextAction *createCommand(const QString &strId, Actions::const_iterator before);
    void removeOverride(QAction *pAction, ContextAction *pCommand);
    void dropCommand(ContextAction *pCommand);
    void dropContainers();
    void putContextOutOfLine(QWidget *pContext);

    /// The main window to which the commands were moved last.
    QPointer<QWidget> m_pWindow;
    bool m_bHadWindow = false;

    /// The main window that was the fallback at the last setContext(); compared, but never dereferenced.
    QWidget *m_pFallback = nullptr;

    /// The ids of the commands that have an action for a context other than the main window.
    QHash<QWidget *, std::set<QString>> m_idsOf;

    /// The commands whose live action may differ from the one that the current context asks for.
    std::set<QString> m_outOfLine;
};
