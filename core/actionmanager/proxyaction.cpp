// SPDX-License-Identifier: MIT
#include "actionmanager/proxyaction.h"

#include <utility>

ProxyAction::ProxyAction(QObject *pParent)
    : QAction(pParent)
{
    updateState();
    connect(this, &QAction::changed, this, [this] {
        if (!m_bMirroring)
            updateToolTipWithKeySequence();
    });
}

// Null after an action that died is no repetition: the proxy still has to give up its state.
void ProxyAction::setAction(QAction *pAction)
{
    const bool bDied = m_bPointed && !m_pAction;
    if (pAction == m_pAction && !bDied)
        return;
    disconnectAction();
    disconnect(m_destroyedConnection);
    m_pAction = pAction;
    m_bPointed = pAction;
    if (pAction)
        m_destroyedConnection = connect(pAction, &QObject::destroyed, this, &ProxyAction::liveActionChanged);
    liveActionChanged();
    updateState();
}

void ProxyAction::initialize(QAction *pAction)
{
    update(pAction, true);
}

void ProxyAction::setAttribute(Attribute attribute)
{
    m_attributes.setFlag(attribute);
    updateState();
}

void ProxyAction::removeAttribute(Attribute attribute)
{
    m_attributes.setFlag(attribute, false);
    updateState();
}

void ProxyAction::setShortcutVisibleInToolTip(bool bVisible)
{
    m_bShortcutVisibleInToolTip = bVisible;
    updateToolTipWithKeySequence();
}

QString ProxyAction::stringWithAppendedShortcut(const QString &strText, const QKeySequence &keys)
{
    return strText + QLatin1Char('\t') + keys.toString(QKeySequence::NativeText);
}

void ProxyAction::actionChanged()
{
    update(m_pAction, false);
}

void ProxyAction::updateState()
{
    if (m_pAction) {
        update(m_pAction, false);
        return;
    }
    const QPointer<ProxyAction> pGuard(this);
    if (m_attributes.testFlag(HideWhenNoAction))
        setVisible(false);
    if (pGuard)
        setEnabled(false);
}

// Each step tells the world, and whoever listens may delete the source or this proxy. The setters of icons
// would tell it also without a change.
void ProxyAction::update(QAction *pSource, bool bInitialize)
{
    using To = ProxyAction &;
    using From = const QAction &;
    enum When { Initialize = 1, Icon = 2, Text = 4, Always = 8, Follow = 16 };
    static constexpr struct
    {
        int nWhen;
        void (*copy)(To, From);
    } s_steps[] = {
        {Initialize, [](To to, From from) { to.setSeparator(from.isSeparator()); }},
        {Initialize, [](To to, From from) { to.setMenuRole(from.menuRole()); }},
        {Icon,
            [](To to, From from) {
                if (to.icon().cacheKey() != from.icon().cacheKey())
                    to.setIcon(from.icon());
            }},
        {Icon, [](To to, From from) { to.setIconText(from.iconText()); }},
        {Icon,
            [](To to, From from) {
                if (to.isIconVisibleInMenu() != from.isIconVisibleInMenu())
                    to.setIconVisibleInMenu(from.isIconVisibleInMenu());
            }},
        {Text, [](To to, From from) { to.setText(from.text()); }},
        {Text,
            [](To to, From from) {
                to.m_strToolTip = from.toolTip();
                to.updateToolTipWithKeySequence();
            }},
        {Text, [](To to, From from) { to.setStatusTip(from.statusTip()); }},
        {Text, [](To to, From from) { to.setWhatsThis(from.whatsThis()); }},
        {Always, [](To to, From from) { to.setCheckable(from.isCheckable()); }},
        {Follow, [](To to, From from) { to.setChecked(from.isChecked()); }},
        {Follow, [](To to, From from) { to.setEnabled(from.isEnabled()); }},
        {Follow, [](To to, From from) { to.setVisible(from.isVisible()); }},
    };
    if (!pSource)
        return;
    const int nWhen = Always | (bInitialize ? Initialize | Icon | Text : Follow)
        | (m_attributes.testFlag(MirrorIcon) ? Icon : 0) | (m_attributes.testFlag(MirrorText) ? Text : 0);
    const QPointer<ProxyAction> pThis(this);
    const QPointer<QAction> pFrom(pSource);
    disconnectAction();
    const bool bOuter = std::exchange(m_bMirroring, true);
    for (const auto &step : s_steps) {
        if (pThis && pFrom && (step.nWhen & nWhen))
            step.copy(*pThis, *pFrom);
    }
    if (!pThis)
        return;
    m_bMirroring = bOuter;
    connectAction();
}

void ProxyAction::updateToolTipWithKeySequence()
{
    if (m_bUpdatingToolTip)
        return;
    m_bUpdatingToolTip = true;
    const QPointer<ProxyAction> pGuard(this);
    const bool bDecorated = m_bShortcutVisibleInToolTip && !shortcut().isEmpty();
    setToolTip(bDecorated ? stringWithAppendedShortcut(m_strToolTip, shortcut()) : m_strToolTip);
    if (pGuard)
        m_bUpdatingToolTip = false;
}

// Off first: an update within an update must not leave two sets behind. Only checkable actions toggle, and
// one that becomes checkable says so and is connected anew.
void ProxyAction::connectAction()
{
    disconnectAction();
    if (!m_pAction)
        return;
    m_connections = {connect(m_pAction, &QAction::changed, this, &ProxyAction::actionChanged),
        connect(this, &QAction::triggered, m_pAction, &QAction::triggered), {}};
    if (m_pAction->isCheckable())
        m_connections[2] = connect(this, &QAction::toggled, m_pAction, &QAction::setChecked);
}

void ProxyAction::disconnectAction()
{
    for (const QMetaObject::Connection &connection : m_connections)
        disconnect(connection);
}
