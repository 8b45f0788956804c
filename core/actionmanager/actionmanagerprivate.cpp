// SPDX-License-Identifier: MIT
// How commands come, go and follow the context.
#include "actionmanager/actionmanager_p.h"

#include "actionmanager/actioncontainer.h"
#include "actionmanager/contextaction.h"
#include "actionmanager/proxyaction.h"
#include "actionmanager/shortcuts.h"
#include "icore.h"
#include "mainwindow.h"

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

// The next window may have the address of the former one, and would inherit its dead actions.
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

QPointer<ContextAction> ActionManagerPrivate::addAction(
    QAction *pAction, const QString &strId, QWidget *pContext, bool bScriptable)
{
    QPointer<ContextAction> pCommand = m_actions.value(strId);
    if (!pCommand)
        pCommand = createCommand(strId);
    if (pContext != ICore::getMainWindow())
        m_idsOf[pContext].insert(strId);
    m_outOfLine.insert(strId);
    pCommand->addOverrideAction(pAction, pContext, bScriptable);
    return pCommand;
}

// Settings and context come before the first action: a stored shortcut wins over any default.
ContextAction *ActionManagerPrivate::createCommand(const QString &strId)
{
    auto *pCommand = new ContextAction(strId);
    m_actions.insert(strId, pCommand);
    pCommand->setKeySequence(storedShortcut(strId));
    QAction *pProxy = pCommand->getAction();
    pProxy->setObjectName(strId);
    pCommand->setCurrentContext(m_pCurrentContext);
    if (QWidget *pWindow = ICore::getMainWindow())
        pWindow->addAction(pProxy);
    pProxy->setShortcutContext(Qt::ApplicationShortcut);
    connect(pCommand->m_pProxy, &ProxyAction::liveActionChanged, this, [this, strId] {
        m_outOfLine.insert(strId);
    });
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
    const auto contexts = pCommand->m_overrides.keys();
    const QPointer<ContextAction> pWatched(pCommand);
    pCommand->removeOverrideAction(pAction);
    for (QWidget *pContext : contexts) {
        const auto it = m_idsOf.find(pContext);
        if (it == m_idsOf.end() || (pWatched && pWatched->m_overrides.contains(pContext)))
            continue;
        it->erase(strId);
        if (it->empty())
            m_idsOf.erase(it);
    }
    m_outOfLine.insert(strId);
}

void ActionManagerPrivate::dropCommand(ContextAction *pCommand)
{
    const QString strId = pCommand->getId();
    const QPointer<ContextAction> pWatched(pCommand);
    QAction *pProxy = pCommand->getAction();
    if (QWidget *pWindow = ICore::getMainWindow())
        pWindow->removeAction(pProxy);
    delete pProxy;
    if (!pWatched)
        return;
    m_actions.remove(strId);
    m_outOfLine.erase(strId);
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
    const auto it = std::find_if(m_containers.begin(), m_containers.end(), [=](const ActionContainer *p) {
        return static_cast<const QObject *>(p) == pSender;
    });
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

// A change of context touches the commands that have an action of their own for the old one or the new one,
// and those that are out of line; to every other command it changes nothing. Who listens may change the
// context again: the rest of the commands then follows that.
void ActionManagerPrivate::setContext(QWidget *pContext)
{
    if (m_pFallback != ICore::getMainWindow()) {
        m_pFallback = ICore::getMainWindow();
        m_outOfLine.insert(m_actions.keyBegin(), m_actions.keyEnd());
    }
    putOutOfLine(m_pCurrentContext);
    putOutOfLine(pContext);
    m_pCurrentContext = pContext;
    QString strLast;
    for (auto it = m_outOfLine.begin(); it != m_outOfLine.end(); it = m_outOfLine.upper_bound(strLast)) {
        strLast = *it;
        m_outOfLine.erase(it);
        if (ContextAction *pCommand = m_actions.value(strLast))
            pCommand->setCurrentContext(m_pCurrentContext);
    }
}

void ActionManagerPrivate::putOutOfLine(QWidget *pContext)
{
    const auto it = m_idsOf.constFind(pContext);
    if (it != m_idsOf.constEnd())
        m_outOfLine.insert(it->begin(), it->end());
}

// Written in portable form and parsed in native form: stored files of users are read this way since ever.
QKeySequence ActionManagerPrivate::storedShortcut(const QString &strId) const
{
    if (!m_pSettings)
        return {};
    const QString strText = m_pSettings->value(Shortcuts::keyOf(strId), QString()).toString();
    if (const auto keys = Shortcuts::parse(strText, QKeySequence::NativeText))
        return *keys;
    qCWarning(lcActions, "%s: the shortcut of %s is no key sequence: %s",
        qUtf8Printable(m_pSettings->fileName()), qUtf8Printable(strId), qUtf8Printable(strText.left(80)));
    return {};
}
