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
    /// Logs if it is.
    [[nodiscard]] bool isOwnProxy(const QAction *pAction, const QString &strId) const;
    /// The command's proxy, its child.
    QPointer<ProxyAction> addAction(
        QAction *pAction, const QString &strId, QWidget *pContext, bool bScriptable);
    void removeAction(QAction *pAction, ContextAction *pCommand);
    ActionContainer *addContainer(const QString &strId, ActionContainer *pContainer, QWidget *pShownIn);
    void setContext(QWidget *pContext);
    /// False if fewer than two enabled commands have these keys.
    bool triggerFirst(const QKeySequence &keys) const;
    void putOutOfLine(const QString &strId) { m_outOfLine.insert(m_outOfLine.end(), strId); }

    /// In ascending order of the ids, each watched: whoever listens to a command may unregister others.
    [[nodiscard]] QList<QPointer<ContextAction>> commands() const;

    /// The commands that take part in the settings.
    [[nodiscard]] QList<QPointer<ContextAction>> nonSeparators() const;

    /// Empty without a store, without a key, and for what is no key sequence.
    [[nodiscard]] QKeySequence storedShortcut(const QString &strId) const;

    using Actions = QMap<QString, ContextAction *>;
    Actions m_actions;
    QMap<QString, ActionContainer *> m_containers;
    QWidget *m_pCurrentContext = nullptr;
    QSettings *m_pSettings = nullptr;
    quint64 m_nChanges = 0; // of shortcuts, and new commands

private slots:
    void containerDestroyed();

private:
    [[nodiscard]] static bool leadsTo(const QAction *pAction, const ContextAction *pTarget);
    ContextAction *createCommand(const QString &strId, Actions::const_iterator before);
    void removeOverride(QAction *pAction, ContextAction *pCommand);
    void dropCommand(ContextAction *pCommand);
    void dropContainers();
    void putContextOutOfLine(QWidget *pContext);

    /// The main window that the commands came to last.
    QPointer<QWidget> m_pWindow;
    bool m_bHadWindow = false;

    /// The main window that the commands fell back to last; only compared.
    QWidget *m_pFallback = nullptr;

    /// Which commands have an action for a context, apart from that of the main window.
    QHash<QWidget *, std::set<QString>> m_idsOf;

    /// The commands whose live action need not be the one that the current context asks for.
    std::set<QString> m_outOfLine;
};
