// SPDX-License-Identifier: MIT
#include "actionmanager/actionmanager.h"

#include "actionmanager/actioncontainer.h"
#include "actionmanager/actionmanager_p.h"
#include "actionmanager/contextaction.h"
#include "actionmanager/proxyaction.h"
#include "actionmanager/shortcuts.h"
#include "icore.h"

#include <extensionsystem/pluginmanager.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>

namespace {

ActionManager *s_pInstance = nullptr;

QString withoutMnemonic(QString strText)
{
    return strText.remove(QLatin1Char('&'));
}

} // namespace

ActionManager::ActionManager()
    : d(std::make_unique<ActionManagerPrivate>())
{
    if (!s_pInstance)
        s_pInstance = this;
}

ActionManager::~ActionManager()
{
    if (s_pInstance == this)
        s_pInstance = nullptr;
}

ActionManager *ActionManager::getInstance()
{
    return s_pInstance;
}

void ActionManager::initialize()
{
    if (!s_pInstance)
        return;
    setSettings(ExtensionSystem::PluginManager::settings());
    s_pInstance->d->enterWindow(ICore::getMainWidget());
}

void ActionManager::setSettings(QSettings *pSettings)
{
    if (s_pInstance)
        s_pInstance->d->m_pSettings = pSettings;
}

QSettings *ActionManager::getSettings()
{
    return s_pInstance ? s_pInstance->d->m_pSettings : nullptr;
}

ContextAction *ActionManager::registerAction(
    QAction *pAction, const QString &strId, QWidget *pContext, bool bScriptable)
{
    if (!s_pInstance || !pAction || !pContext || strId.isEmpty()
        || s_pInstance->d->isOwnProxy(pAction, strId))
        return nullptr;
    const auto pProxy = s_pInstance->d->addAction(pAction, strId, pContext, bScriptable);
    emit s_pInstance->commandListChanged();
    emit s_pInstance->commandAdded(strId);
    return pProxy ? static_cast<ContextAction *>(pProxy->parent()) : nullptr;
}

void ActionManager::unregisterAction(QAction *pAction, const QString &strId, const QString &)
{
    ContextAction *pCommand = getAction(strId);
    if (!pAction || !pCommand)
        return;
    s_pInstance->d->removeAction(pAction, pCommand);
    emit s_pInstance->commandListChanged();
}

ContextAction *ActionManager::getAction(const QString &strId)
{
    return s_pInstance ? s_pInstance->d->m_actions.value(strId) : nullptr;
}

QList<ContextAction *> ActionManager::getActions()
{
    return s_pInstance ? s_pInstance->d->m_actions.values() : QList<ContextAction *>();
}

ActionContainer *ActionManager::createMenuContainer(const QString &strId, const QString &strTitle)
{
    if (!s_pInstance || strId.isEmpty() || getActionContainer(strId))
        return getActionContainer(strId);
    auto *pMenu = new QMenu(strTitle);
    auto *pContainer = new MenuActionContainer(strId);
    pContainer->setMenu(pMenu);
    return s_pInstance->d->addContainer(strId, pContainer, pMenu);
}

ActionContainer *ActionManager::createMenuBarContainer(const QString &strId)
{
    if (!s_pInstance || strId.isEmpty() || getActionContainer(strId))
        return getActionContainer(strId);
    auto *pMenuBar = new QMenuBar;
    auto *pContainer = new MenuBarActionContainer(strId);
    pContainer->setMenuBar(pMenuBar);
    return s_pInstance->d->addContainer(strId, pContainer, pMenuBar);
}

ActionContainer *ActionManager::getActionContainer(const QString &strId)
{
    return s_pInstance ? s_pInstance->d->m_containers.value(strId) : nullptr;
}

QString ActionManager::getActionFullText(const ContextAction *pCommand)
{
    if (!pCommand)
        return {};
    const QStringList parts = pCommand->getId().split(QLatin1Char('.'), Qt::SkipEmptyParts);
    QString strPath = QStringLiteral("MenuBar");
    QString strText;
    for (qsizetype i = 0; i + 1 < parts.size(); ++i) {
        strPath += QLatin1Char('.') + parts.at(i);
        const ActionContainer *pContainer = getActionContainer(strPath);
        const QMenu *pMenu = pContainer ? pContainer->getMenu() : nullptr;
        strText += (pMenu ? withoutMnemonic(pMenu->title()) : parts.at(i)) + QLatin1String(" > ");
    }
    const QAction *pProxy = pCommand->getAction();
    return strText + (pProxy ? withoutMnemonic(pProxy->text()) : parts.value(parts.size() - 1));
}

void ActionManager::setContext(QWidget *pContext)
{
    if (s_pInstance)
        s_pInstance->d->setContext(pContext);
}

void ActionManager::readFromSettings()
{
    if (!getSettings())
        return;
    const auto commands = s_pInstance->d->nonSeparators();
    for (const QPointer<ContextAction> &pCommand : commands) {
        if (pCommand)
            pCommand->setKeySequence(s_pInstance->d->storedShortcut(pCommand->getId()));
    }
}

void ActionManager::saveSettings()
{
    QSettings *pSettings = getSettings();
    if (!pSettings)
        return;
    const auto commands = s_pInstance->d->nonSeparators();
    for (const QPointer<ContextAction> &pCommand : commands) {
        const QString strKey = Shortcuts::keyOf(pCommand->getId());
        const QKeySequence keys = pCommand->getKeySequence();
        if (keys.isEmpty())
            pSettings->remove(strKey);
        else
            pSettings->setValue(strKey, keys.toString(QKeySequence::PortableText));
    }
}

void ActionManager::resetToDefault()
{
    if (!s_pInstance)
        return;
    const auto commands = s_pInstance->d->nonSeparators();
    for (const QPointer<ContextAction> &pCommand : commands) {
        if (pCommand)
            pCommand->setKeySequence(pCommand->getDefaultKeySequence());
    }
}
