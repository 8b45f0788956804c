// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QAction>
#include <QMetaObject>
#include <QPointer>

#include <array>

/// The action that menus, tool bars and shortcuts hold for a command. It takes over the state of the action
/// it points at, and passes its own triggering and toggling on to it. That action is not owned and can be
/// replaced at any time. GUI thread only.
class CORE_EXPORT ProxyAction : public QAction
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProxyAction)

public:
    enum Attribute {
        /// Without an action the proxy is hidden as well as disabled.
        HideWhenNoAction = 1,
        /// Text, tool tip, status tip and what's-this are copied at every change of the action.
        MirrorText = 2,
        /// Icon, icon text and whether menus show the icon are copied at every change of the action.
        MirrorIcon = 4
    };
    Q_DECLARE_FLAGS(Attributes, Attribute)

    /// Disabled until it points at an action.
    explicit ProxyAction(QObject *pParent);

    /// Null if it points at none, or at one that was destroyed; the state then stays until setAction().
    [[nodiscard]] QAction *action() const { return m_pAction; }

    /// The same action again changes nothing. Null, even after one that died, disables it and keeps its look.
    void setAction(QAction *pAction);

    /// Copies the look of a command from an action, but not whether it is enabled, checked or visible, and
    /// does not point at it. Null is ignored.
    void initialize(QAction *pAction);

    void setAttribute(Attribute attribute);
    void removeAttribute(Attribute attribute);
    [[nodiscard]] bool hasAttribute(Attribute attribute) const { return m_attributes.testFlag(attribute); }

    void setShortcutVisibleInToolTip(bool bVisible);
    [[nodiscard]] bool shortcutVisibleInToolTip() const { return m_bShortcutVisibleInToolTip; }

    [[nodiscard]] static QString stringWithAppendedShortcut(const QString &strText, const QKeySequence &keys);

protected:
    /// Called when it points at another action, and when the action that it points at was destroyed.
    virtual void liveActionChanged() { }

private slots:
    void actionChanged();
    void updateState();
    void updateToolTipWithKeySequence();

private:
    void showNoAction();
    void update(QAction *pSource, bool bInitialize);
    void connectAction();
    void disconnectAction();

    QPointer<QAction> m_pAction;
    Attributes m_attributes;
    bool m_bShortcutVisibleInToolTip = false;
    QString m_strToolTip;
    bool m_bUpdatingToolTip = false;

    /// Whether setAction() was last called with an action, even if that was destroyed since.
    bool m_bPointed = false;
    bool m_bMirroring = false;
    quint32 m_nChanges = 0;
    std::array<QMetaObject::Connection, 3> m_connections;
    QMetaObject::Connection m_destroyedConnection;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ProxyAction::Attributes)
