// SPDX-License-Identifier: MIT
#include "actionmanager/contextaction.h"

#include "actionmanager/proxyaction.h"
#include "icore.h"
#include "mainwindow.h"

ContextAction::ContextAction(const QString &strId)
    : m_strId(strId)
    , m_pProxy(new ProxyAction(this))
{
    m_pProxy->setShortcutVisibleInToolTip(true);
    connect(m_pProxy, &QAction::changed, this, &ContextAction::updateActiveState);
}

// The manager may have deleted the proxy already.
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

// A copy: who listens to an action may register or unregister others.
void ContextAction::setVisible(bool bVisible)
{
    const auto actions = m_overrides.values();
    for (const QPointer<QAction> &pAction : actions) {
        if (pAction)
            pAction->setVisible(bVisible);
    }
}

void ContextAction::setCurrentContext(QWidget *pContext)
{
    const bool bOwn = m_overrides.contains(pContext);
    m_pCurrentContext = bOwn ? pContext : ICore::getMainWindow();
    if (!m_pProxy)
        return;
    const QPointer<ContextAction> pGuard(this);
    m_pProxy->setAction(m_overrides.value(m_pCurrentContext));
    if (pGuard)
        updateActiveState();
}

bool ContextAction::hasAttribute(ActionAttribute attribute) const
{
    Q_UNUSED(attribute)
    return true;
}

void ContextAction::setAttribute(ActionAttribute attribute)
{
    Q_UNUSED(attribute)
}

void ContextAction::removeAttribute(ActionAttribute attribute)
{
    Q_UNUSED(attribute)
}

bool ContextAction::isScriptable(const QString &strContext) const
{
    Q_UNUSED(strContext)
    return true;
}

QString ContextAction::stringWithAppendedShortcut(const QString &strText) const
{
    Q_UNUSED(strText)
    return {};
}

void ContextAction::addOverrideAction(QAction *pAction, QWidget *pContext, bool bScriptable)
{
    const QPointer<ContextAction> pGuard(this);
    if (m_overrides.isEmpty() && m_pProxy)
        m_pProxy->initialize(pAction);
    if (!pGuard)
        return;
    if (!m_overrides.contains(pContext)) {
        m_overrides.insert(pContext, pAction);
        m_scriptable.insert(pAction, bScriptable);
    }
    setCurrentContext(pContext);
}

// Actions that are gone go with it.
void ContextAction::removeOverrideAction(QAction *pAction)
{
    using Iterator = decltype(m_overrides)::iterator;
    m_overrides.removeIf([=](Iterator it) { return !*it || *it == pAction; });
    setCurrentContext(m_pCurrentContext);
}

void ContextAction::setActive(bool bActive)
{
    if (m_bActive == bActive)
        return;
    m_bActive = bActive;
    emit activeStateChanged();
}

void ContextAction::updateActiveState()
{
    if (m_pProxy)
        setActive(m_pProxy->isEnabled() && m_pProxy->isVisible() && !m_pProxy->isSeparator());
}
