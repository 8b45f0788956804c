// SPDX-License-Identifier: MIT
// How commands are added, removed and switched with the context.
#include "actionmanager/actionmanager_p.h"

#include "actionmanager/actioncontainer.h"
#include "actionmanager/contextaction.h"
#include "actionmanager/proxyaction.h"
#include "actionmanager/shortcuts.h"
#include "icore.h"

#include <QLoggingCategory>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>

#include <algorithm>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(lcActions, "kelpa.core.actionmanager")

} // namespace

ActionManagerPrivate::ActionManagerPrivate() = default;

ActionManagerPrivate::~ActionManagerPrivate()
{
    dropContainers();
    qDeleteAll(std::exchange(m_actions, {}));
}

QList<QPointer<ContextAction>> ActionManagerPrivate::commands() const
{
    return {m_actions.cbegin(), m_actions.cend()};
}

QList<QPointer<ContextAction>> ActionManagerPrivate::nonSeparators() const
{
    auto found = commands();
    found.removeIf([](const QPointer<ContextAction> &pCommand) { return pCommand->isSeparator(); });
    return found;
}

// A new window may get the address of a destroyed one, whose dead actions would then count as its own.
void ActionManagerPrivate::enterWindow(QWidget *pWindow)
{
    if (!pWindow || m_pWindow == pWindow)
        return;
    if (m_bHadWindow && !m_pWindow) {
        dropContainers();
        m_pCurrentContext = nullptr;
    }
    m_pWindow = pWindow;
    m_bHadWindow = true;
    const auto all = commands();
    for (const QPointer<ContextAction> &pCommand : all) {
        if (pCommand)
            removeOverride(nullptr, pCommand);
        if (pCommand && pCommand->isEmpty())
            dropCommand(pCommand);
        else if (pCommand)
            pWindow->addAction(pCommand->getAction());
    }
    m_pFallback = nullptr;
}

// A new proxy gets its shortcut and window last: from then on each change searches Qt's table of shortcuts or
// sends the window an event. The stored shortcut is set before any default, so that the user's wins.
QPointer<ProxyAction> ActionManagerPrivate::addAction(
    QAction *pAction, const QString &strId, QWidget *pContext, bool bScriptable)
{
    QWidget *pWindow = ICore::getMainWidget();
    const auto it = m_actions.lowerBound(strId);
    const bool bNew = it == m_actions.end() || it.key() != strId;
    ContextAction *pCommand = bNew ? createCommand(strId, it) : *it;
    if (pContext != pWindow)
        m_idsOf[pContext].insert(strId);
    QPointer<ProxyAction> pProxy = pCommand->m_pProxy;
    pCommand->addOverrideAction(pAction, pContext, bScriptable);
    if (!bNew || !pProxy)
        return pProxy;
    const QKeySequence keys = storedShortcut(strId);
    if (!keys.isEmpty())
        pCommand->setKeySequence(keys);
    if (pWindow)
        pWindow->addAction(pProxy);
    return pProxy;
}

// A command that leads back to itself, directly or through others, would mirror and trigger itself forever.
bool ActionManagerPrivate::leadsTo(const QAction *pAction, const ContextAction *pTarget)
{
    const auto *pCommand = pAction ? qobject_cast<const ContextAction *>(pAction->parent()) : nullptr;
    if (!pCommand || pCommand->getAction() != pAction)
        return false;
    return pCommand == pTarget
        || std::any_of(pCommand->m_overrides.begin(), pCommand->m_overrides.end(),
            [=](const auto &entry) { return leadsTo(entry.pAction, pTarget); });
}

bool ActionManagerPrivate::isOwnProxy(const QAction *pAction, const QString &strId) const
{
    if (!qobject_cast<const ProxyAction *>(pAction) || !leadsTo(pAction, m_actions.value(strId)))
        return false;
    qCWarning(lcActions, "%s: a command cannot be its own action", qUtf8Printable(strId));
    return true;
}

ContextAction *ActionManagerPrivate::createCommand(const QString &strId, Actions::const_iterator before)
{
    auto *pCommand = new ContextAction(strId, this);
    m_actions.insert(before, strId, pCommand);
    QAction *pProxy = pCommand->getAction();
    pProxy->setObjectName(strId);
    pProxy->setShortcutContext(Qt::ApplicationShortcut);
    return pCommand;
}

void ActionManagerPrivate::removeAction(QAction *pAction, ContextAction *pCommand)
{
    const QPointer<ContextAction> pWatched(pCommand);
    removeOverride(pAction, pCommand);
    if (pWatched && pWatched->isEmpty())
        dropCommand(pWatched);
}

void ActionManagerPrivate::removeOverride(QAction *pAction, ContextAction *pCommand)
{
    const QString strId = pCommand->getId();
    const auto overrides = pCommand->m_overrides;
    pCommand->removeOverrideAction(pAction);
    for (const auto &entry : overrides) {
        // The registry is asked, because a listener may have dropped the command and registered the id again.
        const ContextAction *pNow = m_actions.value(strId);
        const auto it = m_idsOf.find(entry.pContext);
        if (it == m_idsOf.end() || (pNow && pNow->overrideOf(entry.pContext)))
            continue;
        it->erase(strId);
        if (it->empty())
            m_idsOf.erase(it);
    }
}

// The command leaves the registry first, so that listeners to its end do not find it and may make a new one.
void ActionManagerPrivate::dropCommand(ContextAction *pCommand)
{
    m_actions.remove(pCommand->getId());
    m_outOfLine.erase(pCommand->getId());
    if (QWidget *pWindow = ICore::getMainWidget())
        pWindow->removeAction(pCommand->getAction());
    delete pCommand;
}

ActionContainer *ActionManagerPrivate::addContainer(
    const QString &strId, ActionContainer *pContainer, QWidget *pShownIn)
{
    pShownIn->setObjectName(strId);
    m_containers.insert(strId, pContainer);
    connect(pContainer, &QObject::destroyed, this, &ActionManagerPrivate::containerDestroyed);
    return pContainer;
}

void ActionManagerPrivate::containerDestroyed()
{
    const QObject *pSender = sender();
    const auto it = std::find_if(m_containers.begin(), m_containers.end(),
        [=](const ActionContainer *p) { return static_cast<const QObject *>(p) == pSender; });
    if (it != m_containers.end())
        m_containers.erase(it);
}

void ActionManagerPrivate::dropContainers()
{
    const auto containers = std::exchange(m_containers, {});
    for (ActionContainer *pContainer : containers) {
        delete pContainer->getMenu();
        delete pContainer->getMenuBar();
        delete pContainer;
    }
}

// A change of context affects only commands that have an action of their own for the old or the new context,
// and those in m_outOfLine. A listener may change the context again from within; the rest of the commands
// then follows the newer context.
void ActionManagerPrivate::setContext(QWidget *pContext)
{
    if (m_pFallback != ICore::getMainWidget()) {
        m_pFallback = ICore::getMainWidget();
        m_outOfLine.insert(m_actions.keyBegin(), m_actions.keyEnd());
    }
    putContextOutOfLine(m_pCurrentContext);
    putContextOutOfLine(pContext);
    m_pCurrentContext = pContext;
    QString strLast;
    for (auto it = m_outOfLine.begin(); it != m_outOfLine.end(); it = m_outOfLine.upper_bound(strLast)) {
        strLast = *it;
        m_outOfLine.erase(it);
        if (ContextAction *pCommand = m_actions.value(strLast))
            pCommand->setCurrentContext(m_pCurrentContext);
    }
}

void ActionManagerPrivate::putContextOutOfLine(QWidget *pContext)
{
    const auto it = m_idsOf.constFind(pContext);
    if (it != m_idsOf.constEnd())
        m_outOfLine.insert(it->begin(), it->end());
}

// Qt 6.4.2 sends a key that several actions share to each in turn, marked as ambiguous, and triggers none.
bool ActionManagerPrivate::triggerFirst(const QKeySequence &keys) const
{
    QList<ContextAction *> rivals = m_actions.values();
    rivals.removeIf([&](const ContextAction *pCommand) {
        return pCommand->getKeySequence() != keys || !pCommand->getAction()->isEnabled();
    });
    if (rivals.size() < 2)
        return false;
    std::stable_sort(
        rivals.begin(), rivals.end(), [](const auto *a, const auto *b) { return a->hadKeysBefore(*b); });
    QStringList ids;
    for (const ContextAction *pCommand : std::as_const(rivals))
        ids.append(pCommand->getId());
    qCWarning(lcActions, "%s is the shortcut of %s; the first one is triggered",
        qUtf8Printable(keys.toString(QKeySequence::PortableText)),
        qUtf8Printable(ids.join(QStringLiteral(", "))));
    rivals.first()->getAction()->trigger();
    return true;
}

// Native text is parsed though portable text was stored: it accepts translated and portable key names.
QKeySequence ActionManagerPrivate::storedShortcut(const QString &strId) const
{
    if (!m_pSettings)
        return {};
    const QString strText = m_pSettings->value(Shortcuts::keyOf(strId), QString()).toString();
    if (strText.isEmpty())
        return {};
    if (const auto keys = Shortcuts::parse(strText, QKeySequence::NativeText))
        return *keys;
    qCWarning(lcActions, "%s: the shortcut of %s is no key sequence: %s",
        qUtf8Printable(m_pSettings->fileName()), qUtf8Printable(strId), qUtf8Printable(strText.left(80)));
    return {};
}
