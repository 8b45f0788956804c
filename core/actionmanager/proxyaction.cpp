// SPDX-License-Identifier: MIT
#include "actionmanager/proxyaction.h"

#include <utility>

namespace {

// How often a state is copied again while listeners keep changing it.
constexpr int s_nMostRounds = 10;

} // namespace

ProxyAction::ProxyAction(QObject *pParent)
    : QAction(pParent)
{
    updateState();
    connect(this, &QAction::changed, this, [this] {
        ++m_nChanges;
        if (!m_bMirroring)
            updateToolTipWithKeySequence();
    });
}

// After an action died, null must still disable the proxy, although m_pAction is null already.
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
    const QPointer<ProxyAction> pGuard(this);
    const QPointer<QAction> pBefore(m_pAction);
    update(pAction, true);
    if (pGuard && m_pAction != pBefore)
        updateState();
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
    if (m_pAction)
        updateState();
}

// A listener may point this proxy at another action, which then has to be copied too. If listeners never stop
// doing so, this stops after some rounds.
void ProxyAction::updateState()
{
    const QPointer<ProxyAction> pGuard(this);
    const QAction *pCopied = nullptr;
    int nRounds = s_nMostRounds;
    do {
        pCopied = m_pAction;
        if (pCopied)
            update(m_pAction, false);
        else
            showNoAction();
    } while (pGuard && m_pAction && m_pAction != pCopied && --nRounds > 0);
}

void ProxyAction::showNoAction()
{
    const QPointer<ProxyAction> pGuard(this);
    if (m_attributes.testFlag(HideWhenNoAction))
        setVisible(false);
    if (pGuard && !m_pAction)
        setEnabled(false);
}

// Each step emits signals. A listener may delete the source or this proxy, or point it elsewhere, which
// copies by itself; then this stops. It may also change the source, which is then copied until nothing
// changes. In Qt 6.4.2 setIcon() always emits changed(), and setIconVisibleInMenu() does for the default.
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
    const auto isDone = [&] { return !pThis || !pFrom || (!bInitialize && m_pAction != pFrom); };
    const bool bOuter = std::exchange(m_bMirroring, true);
    quint32 nBefore = 0;
    int nRounds = s_nMostRounds;
    do {
        nBefore = m_nChanges;
        for (const auto &step : s_steps) {
            if (isDone())
                break;
            if (step.nWhen & nWhen) {
                disconnectAction();
                step.copy(*pThis, *pFrom);
            }
        }
    } while (!bInitialize && !isDone() && m_nChanges != nBefore && --nRounds > 0);
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

// The old connections go first, or an update within an update would leave two sets of them. The lambda hands
// on isChecked() and not the argument of toggled(), because an inner update may have copied another action
// before an outer one emits that signal.
void ProxyAction::connectAction()
{
    disconnectAction();
    if (!m_pAction)
        return;
    m_connections = {connect(m_pAction, &QAction::changed, this, &ProxyAction::actionChanged),
        connect(this, &QAction::triggered, m_pAction, &QAction::triggered),
        connect(this, &QAction::toggled, m_pAction, [this] {
            if (isCheckable())
                m_pAction->setChecked(isChecked());
        })};
}

void ProxyAction::disconnectAction()
{
    if (!m_connections[0])
        return;
    for (QMetaObject::Connection &connection : m_connections)
        disconnect(std::exchange(connection, {}));
}
