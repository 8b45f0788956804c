// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QAction>
#include <QMetaObject>
#include <QPointer>

#include <array>

/// The action that menus, tool bars and shortcuts hold for a command. It mirrors the action it points at and
/// hands its own triggering and toggling on to it; what it points at can change at any time and is not owned.
/// GUI thread only.
class CORE_EXPORT ProxyAction : public QAction
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProxyAction)

public:
    enum Attribute {
        /// Hidden, not only disabled, while it points at no living action.
        HideWhenNoAction = 1,
        /// Text, tool tip, status tip and what's-this follow every change.
        MirrorText = 2,
        /// Icon, icon text and whether menus show the icon follow every change.
        MirrorIcon = 4
    };
    Q_DECLARE_FLAGS(Attributes, Attribute)

    /// Disabled until it points at an action.
    explicit ProxyAction(QObject *pParent);

    /// Null without one and after it was destroyed.
    [[nodiscard]] QAction *action() const { return m_pAction; }

    /// The action it points at already changes nothing. Null leaves the texts and the icon as they are.
    void setAction(QAction *pAction);

    /// Copies what makes up the look of a command from an action, but not whether it is enabled, checked or
    /// visible.
    void initialize(QAction *pAction);

    void setAttribute(Attribute attribute);
    void removeAttribute(Attribute attribute);
    [[nodiscard]] bool hasAttribute(Attribute attribute) const { return m_attributes.testFlag(attribute); }

    void setShortcutVisibleInToolTip(bool bVisible);
    [[nodiscard]] bool shortcutVisibleInToolTip() const { return m_bShortcutVisibleInToolTip; }

    [[nodiscard]] static QString stringWithAppendedShortcut(const QString &strText, const QKeySequence &keys);

protected:
    /// It points at another action, or the one it points at was destroyed.
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

    /// Whether it was pointed at an action last, living or not.
    bool m_bPointed = false;
    bool m_bMirroring = false;
    quint32 m_nChanges = 0;
    std::array<QMetaObject::Connection, 3> m_connections;
    QMetaObject::Connection m_destroyedConnection;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ProxyAction::Attributes)
