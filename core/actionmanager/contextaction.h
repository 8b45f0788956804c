// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>

class ActionManager;
class ActionManagerPrivate;
class ProxyAction;
class QAction;
class QWidget;

/// One command of the program: one id, one menu entry, one shortcut, and for each context widget the action
/// that is triggered there. ActionManager makes it when an action is first registered for the id and deletes
/// it when the last one is unregistered. Registered actions are not owned. GUI thread only.
class CORE_EXPORT ContextAction : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ContextAction)

public:
    enum ActionAttribute { NoAttribute = 0, DynamicText = 1, DynamicIcon = 2, FixedShortcut = 4 };

    ~ContextAction() override;

    [[nodiscard]] QString getId() const { return m_strId; }

    /// The proxy that menus show, the same one in every context. The command owns it.
    [[nodiscard]] QAction *getAction() const;

    /// The shortcut in force, which is that of the proxy.
    [[nodiscard]] QKeySequence getKeySequence() const;
    void setKeySequence(const QKeySequence &keys);

    /// A new default is put in force if the command has no shortcut; a stored one was read before and stays.
    [[nodiscard]] QKeySequence getDefaultKeySequence() const { return m_defaultKeySequence; }
    void setDefaultKeySequence(const QKeySequence &keys);

    [[nodiscard]] QString getDescription() const { return m_strDescription; }
    void setDescription(const QString &strDescription) { m_strDescription = strDescription; }

    /// Whether no action is registered. One that was destroyed counts until ActionManager removes it.
    [[nodiscard]] bool isEmpty() const { return m_overrides.isEmpty(); }
    [[nodiscard]] bool isSeparator() const;

    /// Shows or hides every registered action that still lives; the proxy follows the one it points at.
    void setVisible(bool bVisible);

    /// Points the proxy at the action for this widget (its parents do not count), or else at the action for
    /// the main window, or else at none.
    void setCurrentContext(QWidget *pContext);

    /// These always return true, whatever is set, so that a plug-in which asks before it uses a command is
    /// not turned away. Whether the user can use the command is told by the proxy and activeStateChanged().
    [[nodiscard]] bool hasAttribute(ActionAttribute) const { return true; }
    void setAttribute(ActionAttribute) { }
    void removeAttribute(ActionAttribute) { }
    [[nodiscard]] bool isActive() const { return true; }
    [[nodiscard]] bool isScriptable() const { return true; }
    [[nodiscard]] bool isScriptable(const QString &) const { return true; }

    /// Always empty; ProxyAction::stringWithAppendedShortcut() returns the text with the shortcut.
    [[nodiscard]] QString stringWithAppendedShortcut(const QString &) const { return {}; }

signals:
    /// The proxy became usable or ceased to be: it is usable while enabled, visible and not a separator.
    void activeStateChanged();

    /// Never emitted; plug-ins may connect to it. New shortcuts are told by QAction::changed() of the proxy.
    void keySequenceChanged();

private slots:
    void updateActiveState();

private:
    friend class ActionManager;
    friend class ActionManagerPrivate;

    class Proxy;
    struct Override
    {
        QWidget *pContext;
        QPointer<QAction> pAction;
        bool bScriptable;
    };

    ContextAction(const QString &strId, ActionManagerPrivate *pManager);
    [[nodiscard]] bool hadKeysBefore(const ContextAction &other) const;
    [[nodiscard]] const Override *overrideOf(const QWidget *pContext) const;
    void addOverrideAction(QAction *pAction, QWidget *pContext, bool bScriptable);
    void removeOverrideAction(QAction *pAction);
    void setActive(bool bActive);

    const QString m_strId;
    QWidget *m_pCurrentContext = nullptr;
    qint32 m_nAttributes = 0;
    QKeySequence m_defaultKeySequence;
    QString m_strDescription;
    QPointer<ProxyAction> m_pProxy;
    /// One entry for each context widget. Most commands have one, so searching the list is fast.
    QList<Override> m_overrides;
    bool m_bActive = false;
    /// When the command was made, and when its keys last changed, as ActionManagerPrivate::m_nChanges counts.
    quint64 m_nOrder;
    QKeySequence m_lastKeys;
    quint64 m_nKeysSince = 0;
    ActionManagerPrivate *m_pManager;
};
