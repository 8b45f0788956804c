// SPDX-License-Identifier: MIT
#include "actionmanager/contextaction.h"

#include "actionmanager/actionmanager_p.h"
#include "actionmanager/proxyaction.h"
#include "icore.h"

#include <extensionsystem/pluginmanager.h>

#include <QShortcutEvent>

#include <algorithm>

/// Overrides virtual functions, because a signal would slow down registering thousands of commands.
class ContextAction::Proxy : public ProxyAction
{
public:
    explicit Proxy(ContextAction *pCommand)
        : ProxyAction(pCommand)
        , m_pCommand(pCommand)
    {
    }

protected:
    void liveActionChanged() override { m_pCommand->m_pManager->putOutOfLine(m_pCommand->m_strId); }

    bool event(QEvent *pEvent) override
    {
        const auto *pPress =
            pEvent->type() == QEvent::Shortcut ? static_cast<QShortcutEvent *>(pEvent) : nullptr;
        if (pPress && pPress->isAmbiguous() && m_pCommand->m_pManager->triggerFirst(pPress->key()))
            return true;
        return ProxyAction::event(pEvent);
    }

private:
    ContextAction *m_pCommand;
};

ContextAction::ContextAction(const QString &strId, ActionManagerPrivate *pManager)
    : m_strId(strId)
    , m_pProxy(new Proxy(this))
    , m_nOrder(++pManager->m_nChanges)
    , m_pManager(pManager)
{
    m_pProxy->setShortcutVisibleInToolTip(true);
    // This is the first connection, so that the command is already known when a slot throws.
    connect(m_pProxy, &QAction::triggered, this,
        [this] { ExtensionSystem::PluginManager::setActivity(m_strId); });
    connect(m_pProxy, &QAction::changed, this, &ContextAction::updateActiveState);
}

// Deletes the proxy while this is still a whole command, because listeners hear of the proxy's destruction.
ContextAction::~ContextAction()
{
    delete m_pProxy;
}

QAction *ContextAction::getAction() const
{
    return m_pProxy;
}

QKeySequence ContextAction::getKeySequence() const
{
    return m_pProxy ? m_pProxy->shortcut() : QKeySequence();
}

void ContextAction::setKeySequence(const QKeySequence &keys)
{
    if (m_pProxy)
        m_pProxy->setShortcut(keys);
}

void ContextAction::setDefaultKeySequence(const QKeySequence &keys)
{
    m_defaultKeySequence = keys;
    if (getKeySequence().isEmpty())
        setKeySequence(keys);
}

bool ContextAction::isSeparator() const
{
    return m_pProxy && m_pProxy->isSeparator();
}

// Works on a copy, because a listener to an action may register or unregister others.
void ContextAction::setVisible(bool bVisible)
{
    const auto overrides = m_overrides;
    for (const Override &entry : overrides) {
        if (entry.pAction)
            entry.pAction->setVisible(bVisible);
    }
}

const ContextAction::Override *ContextAction::overrideOf(const QWidget *pContext) const
{
    const auto it = std::find_if(m_overrides.begin(), m_overrides.end(),
        [=](const Override &entry) { return entry.pContext == pContext; });
    return it == m_overrides.end() ? nullptr : &*it;
}

// Listeners hear of each change of the proxy, and one may delete the command and with it the proxy.
void ContextAction::setCurrentContext(QWidget *pContext)
{
    m_pCurrentContext = overrideOf(pContext) ? pContext : ICore::getMainWidget();
    const QPointer<ProxyAction> pProxy = m_pProxy;
    if (!pProxy)
        return;
    const Override *pEntry = overrideOf(m_pCurrentContext);
    pProxy->setAction(pEntry ? pEntry->pAction.data() : nullptr);
    if (pProxy)
        updateActiveState();
}

void ContextAction::addOverrideAction(QAction *pAction, QWidget *pContext, bool bScriptable)
{
    const QPointer<ContextAction> pThis = this; // a listener may drop the command
    const bool bFirst = m_overrides.isEmpty();
    if (!overrideOf(pContext))
        m_overrides.append({pContext, pAction, bScriptable});
    if (bFirst && m_pProxy)
        m_pProxy->initialize(pAction);
    if (pThis && m_pProxy)
        setCurrentContext(pContext);
}

// Also removes entries whose action was destroyed.
void ContextAction::removeOverrideAction(QAction *pAction)
{
    m_overrides.removeIf([=](const Override &entry) { return !entry.pAction || entry.pAction == pAction; });
    setCurrentContext(m_pCurrentContext);
}

void ContextAction::setActive(bool bActive)
{
    if (m_bActive == bActive)
        return;
    m_bActive = bActive;
    emit activeStateChanged();
}

// A command has had its default since it was made, even if its keys were changed in between.
bool ContextAction::hadKeysBefore(const ContextAction &other) const
{
    const auto since = [](const ContextAction &command) {
        return command.m_lastKeys == command.m_defaultKeySequence ? command.m_nOrder : command.m_nKeysSince;
    };
    return since(*this) < since(other);
}

// Looks at the proxy's shortcut, because others may set it there without calling setKeySequence().
void ContextAction::updateActiveState()
{
    if (!m_pProxy)
        return;
    if (const QKeySequence keys = m_pProxy->shortcut(); keys != m_lastKeys) {
        m_lastKeys = keys;
        m_nKeysSince = ++m_pManager->m_nChanges;
    }
    setActive(m_pProxy->isEnabled() && m_pProxy->isVisible() && !m_pProxy->isSeparator());
}
