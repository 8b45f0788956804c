// SPDX-License-Identifier: MIT
#include "actionmanager/actioncontainer.h"

#include "actionmanager/actionmanager.h"
#include "actionmanager/contextaction.h"
#include "icore.h"

#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <utility>

namespace {

// The action that Qt shows for a command or a sub-menu; null for null, and for a menu bar, which has none.
QAction *shownBy(const ContextAction *pCommand)
{
    return pCommand ? pCommand->getAction() : nullptr;
}

QAction *shownBy(const ActionContainer *pContainer)
{
    const QMenu *pMenu = pContainer ? pContainer->getMenu() : nullptr;
    return pMenu ? pMenu->menuAction() : nullptr;
}

} // namespace

ActionContainer::ActionContainer(const QString &) { }

ActionContainer::~ActionContainer() = default;

void ActionContainer::setMenu(QMenu *) { }

void ActionContainer::setMenuBar(QMenuBar *) { }

QMenu *ActionContainer::getMenu() const
{
    return nullptr;
}

QMenuBar *ActionContainer::getMenuBar() const
{
    return nullptr;
}

void ActionContainer::insertAction(QAction *, QAction *) { }

void ActionContainer::insertAction(ContextAction *pAction, ContextAction *pBefore)
{
    if (!shownBy(pAction))
        return;
    m_items.append(pAction);
    connect(pAction, &ContextAction::activeStateChanged, this, &ActionContainer::scheduleUpdate);
    connect(pAction, &QObject::destroyed, this, &ActionContainer::itemDestroyed);
    insertAction(shownBy(pBefore), shownBy(pAction));
}

void ActionContainer::insertMenu(QAction *, QMenu *) { }

void ActionContainer::insertMenu(ActionContainer *pMenu, ActionContainer *pBefore)
{
    insertMenuBefore(pMenu, shownBy(pBefore));
}

void ActionContainer::insertMenu(ActionContainer *pMenu, ContextAction *pBefore)
{
    insertMenuBefore(pMenu, shownBy(pBefore));
}

void ActionContainer::insertMenuBefore(ActionContainer *pMenu, QAction *pBefore)
{
    if (!shownBy(pMenu) || pMenu == this)
        return;
    m_items.append(pMenu);
    connect(pMenu, &QObject::destroyed, this, &ActionContainer::itemDestroyed);
    insertMenu(pBefore, pMenu->getMenu());
}

ContextAction *ActionContainer::insertSeparator(ActionContainer *pBefore, QAction **ppSeparator)
{
    return insertSeparatorBefore(shownBy(pBefore), ppSeparator);
}

ContextAction *ActionContainer::insertSeparator(ContextAction *pBefore, QAction **ppSeparator)
{
    return insertSeparatorBefore(shownBy(pBefore), ppSeparator);
}

ContextAction *ActionContainer::insertSeparatorBefore(QAction *pBefore, QAction **ppSeparator)
{
    static int s_nNext = 0;
    auto *pSeparator = new QAction(this);
    pSeparator->setSeparator(true);
    const QString strId = QStringLiteral("Separator.%1").arg(s_nNext++);
    ContextAction *pCommand = ActionManager::registerAction(pSeparator, strId, ICore::getMainWidget(), false);
    if (pCommand)
        insertAction(pBefore, pCommand->getAction());
    if (ppSeparator)
        *ppSeparator = pSeparator;
    return pCommand;
}

void ActionContainer::removeMenu(QMenu *) { }

void ActionContainer::removeAction(QAction *) { }

void ActionContainer::clear()
{
    const auto items = std::exchange(m_items, {});
    for (const QPointer<QObject> &pItem : items) {
        if (auto *pCommand = qobject_cast<ContextAction *>(pItem.data())) {
            removeAction(pCommand->getAction());
            disconnect(pCommand, nullptr, this, nullptr);
        } else if (auto *pContainer = qobject_cast<ActionContainer *>(pItem.data())) {
            pContainer->clear();
            disconnect(pContainer, nullptr, this, nullptr);
            removeMenu(pContainer->getMenu());
        }
    }
}

MenuActionContainer::MenuActionContainer(const QString &strId)
    : ActionContainer(strId)
{
}

void MenuActionContainer::setMenu(QMenu *pMenu)
{
    m_pMenu = pMenu;
}

QMenu *MenuActionContainer::getMenu() const
{
    return m_pMenu;
}

void MenuActionContainer::insertAction(QAction *pBefore, QAction *pAction)
{
    if (m_pMenu)
        m_pMenu->QWidget::insertAction(pBefore, pAction);
}

void MenuActionContainer::insertMenu(QAction *pBefore, QMenu *pMenu)
{
    if (m_pMenu)
        m_pMenu->insertMenu(pBefore, pMenu);
}

void MenuActionContainer::removeMenu(QMenu *pMenu)
{
    if (pMenu)
        removeAction(pMenu->menuAction());
}

void MenuActionContainer::removeAction(QAction *pAction)
{
    if (m_pMenu && pAction)
        m_pMenu->QWidget::removeAction(pAction);
}

bool MenuActionContainer::updateInternal()
{
    if (!m_pMenu)
        return false;
    const auto actions = m_pMenu->actions();
    const bool bContent = std::any_of(actions.begin(), actions.end(), [](const QAction *pAction) {
        return !pAction->isSeparator() && pAction->isEnabled() && pAction->isVisible();
    });
    m_pMenu->menuAction()->setVisible(bContent);
    return bContent;
}

MenuBarActionContainer::MenuBarActionContainer(const QString &strId)
    : ActionContainer(strId)
{
}

void MenuBarActionContainer::setMenuBar(QMenuBar *pMenuBar)
{
    m_pMenuBar = pMenuBar;
}

QMenuBar *MenuBarActionContainer::getMenuBar() const
{
    return m_pMenuBar;
}

void MenuBarActionContainer::insertAction(QAction *pBefore, QAction *pAction)
{
    if (m_pMenuBar)
        m_pMenuBar->QWidget::insertAction(pBefore, pAction);
}

void MenuBarActionContainer::insertMenu(QAction *pBefore, QMenu *pMenu)
{
    if (m_pMenuBar)
        m_pMenuBar->insertMenu(pBefore, pMenu);
}

void MenuBarActionContainer::removeMenu(QMenu *pMenu)
{
    if (pMenu)
        removeAction(pMenu->menuAction());
}

void MenuBarActionContainer::removeAction(QAction *pAction)
{
    if (m_pMenuBar && pAction)
        m_pMenuBar->QWidget::removeAction(pAction);
}

bool MenuBarActionContainer::updateInternal()
{
    return true;
}
