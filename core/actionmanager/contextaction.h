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
/// that it then triggers. ActionManager makes it when an action is first registered for the id and deletes it
/// with the last one. Registered actions are not owned. GUI thread only.
class CORE_EXPORT ContextAction : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ContextAction)

public:
    enum ActionAttribute { NoAttribute = 0, DynamicText = 1, DynamicIcon = 2, FixedShortcut = 4 };

    ~ContextAction() override;

    [[nodiscard]] QString getId() const { return m_strId; }

    /// The proxy that menus show, in every context the same; owned here.
    [[nodiscard]] QAction *getAction() const;

    /// The shortcut in force; it lives on the proxy alone.
    [[nodiscard]] QKeySequence getKeySequence() const;
    void setKeySequence(const QKeySequence &keys);

    /// A new default also comes into force if the command has no shortcut yet: the user's, read before, wins.
    [[nodiscard]] QKeySequence getDefaultKeySequence() const { return m_defaultKeySequence; }
    void setDefaultKeySequence(const QKeySequence &keys);

    [[nodiscard]] QString getDescription() const { return m_strDescription; }
    void setDescription(const QString &strDescription) { m_strDescription = strDescription; }

    /// No action is registered.
    [[nodiscard]] bool isEmpty() const { return m_overrides.isEmpty(); }
    [[nodiscard]] bool isSeparator() const;

    /// For every registered action that lives; the proxy follows the one it points at.
    void setVisible(bool bVisible);

    /// Points the proxy at the action of this widget, without a look at its parents, or else at the main
    /// window's, or else at none.
    void setCurrentContext(QWidget *pContext);

    /// Plug-ins ask these and rely on the answers as they are: attributes and scriptability are taken but
    /// never consulted, and every command calls itself active. Listen to activeStateChanged() instead.
    [[nodiscard]] bool hasAttribute(ActionAttribute) const { return true; }
    void setAttribute(ActionAttribute) { }
    void removeAttribute(ActionAttribute) { }
    [[nodiscard]] bool isActive() const { return true; }
    [[nodiscard]] bool isScriptable() const { return true; }
    [[nodiscard]] bool isScriptable(const QString &) const { return true; }

    /// Always empty, which plug-ins rely on; ProxyAction has the one that works.
    [[nodiscard]] QString stringWithAppendedShortcut(const QString &) const { return {}; }

signals:
    /// The proxy came to be, or ceased to be, enabled, visible and no separator.
    void activeStateChanged();

    /// For listeners of plug-ins; nothing here emits it.
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
    /// One for each context widget. There are few, and most commands have one.
    QList<Override> m_overrides;
    bool m_bActive = false;
    /// The order in which commands came, and in which those with shortcuts that users chose got them.
    quint64 m_nOrder;
    QKeySequence m_lastKeys;
    quint64 m_nKeysSince = 0;
    ActionManagerPrivate *m_pManager;
};
