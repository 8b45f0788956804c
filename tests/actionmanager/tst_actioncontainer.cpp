// SPDX-License-Identifier: MIT
#include "commandtest.h"

#include <actionmanager/actioncontainer.h>
#include <actionmanager/shortcuts.h>

class tst_ActionContainer : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pProgram = std::make_unique<Program>(); }
    void cleanup() { m_pProgram.reset(); }

    void itemsComeBeforeOthersOrAtTheEnd()
    {
        ActionContainer *pMenu = ActionManager::createMenuContainer("MenuBar.Test", "&Test");
        ActionContainer *pSub = ActionManager::createMenuContainer("Test.Sub", "Sub");
        Registered a("Test.A", m_pProgram->window()), b("Test.B", m_pProgram->window());
        Registered c("Test.C", m_pProgram->window());
        pMenu->insertAction(a.pCommand);
        pMenu->insertAction(b.pCommand, a.pCommand);
        pMenu->insertMenu(pSub, a.pCommand);
        pMenu->insertAction(c.pCommand);
        pMenu->insertAction(nullptr);
        pMenu->insertMenu(nullptr);
        QCOMPARE(entries(pMenu->getMenu()), (QStringList {"Test.B", "Sub", "Test.A", "Test.C"}));

        ActionContainer *pBar = ActionManager::createMenuBarContainer("Test.Bar");
        pBar->insertMenu(pSub);
        pBar->insertMenu(pMenu, pSub);
        QCOMPARE(entries(pBar->getMenuBar()), (QStringList {"&Test", "Sub"}));
        QCOMPARE(pBar->getMenu(), nullptr);
        QCOMPARE(pMenu->getMenuBar(), nullptr);
        QCOMPARE(pMenu->getMenu()->objectName(), "MenuBar.Test");
    }

    void separatorsAreNumberedAcrossContainersAndMayHaveAKey()
    {
        for (int i = 0; i < 100; ++i)
            m_pProgram->settings().setValue(QString("Shortcuts/Separator.%1").arg(i), "Ctrl+9");
        ActionContainer *pMenu = ActionManager::createMenuContainer("MenuBar.Test", "Test");
        ActionContainer *pSub = ActionManager::createMenuContainer("Test.Sub", "Sub");
        pMenu->insertMenu(pSub);
        QAction *pAction = nullptr;
        const ContextAction *pFirst = pMenu->insertSeparator();
        const ContextAction *pSecond = pSub->insertSeparator();
        const ContextAction *pThird = pMenu->insertSeparator(pSub, &pAction);
        int nNumber = pFirst->getId().section('.', 1).toInt();
        for (const ContextAction *pSeparator : {pFirst, pSecond, pThird})
            QCOMPARE(pSeparator->getId(), QString("Separator.%1").arg(nNumber++));
        QCOMPARE(pThird->getKeySequence(), keys("Ctrl+9"));
        QVERIFY(Shortcuts::list().isEmpty());
        QVERIFY(pThird->isSeparator() && pThird->getAction()->isSeparator());
        QVERIFY(pAction && pAction != pThird->getAction() && pAction->parent() == pMenu);
        QCOMPARE(pMenu->getMenu()->actions().first(), pThird->getAction());
        const QString strId = pThird->getId();
        ActionManager::unregisterAction(pAction, strId);
        QCOMPARE(ActionManager::getAction(strId), nullptr);
        QCOMPARE(pMenu->getMenu()->actions().size(), 2);
    }

    void clearLeavesSeparatorsAndToleratesDeadItems()
    {
        ActionContainer *pMenu = ActionManager::createMenuContainer("MenuBar.Test", "Test");
        ActionContainer *pSub = ActionManager::createMenuContainer("Test.Sub", "Sub");
        auto dead = std::make_unique<Registered>("Test.Dead", m_pProgram->window());
        Registered a("Test.A", m_pProgram->window()), b("Test.B", m_pProgram->window());
        pMenu->insertAction(dead->pCommand);
        pMenu->insertAction(a.pCommand);
        pMenu->insertSeparator();
        pMenu->insertMenu(pSub);
        pSub->insertAction(b.pCommand);
        dead.reset();
        pMenu->clear();
        QCOMPARE(pMenu->getMenu()->actions().size(), 1);
        QVERIFY(pMenu->getMenu()->actions().first()->isSeparator());
        QVERIFY(pSub->getMenu()->isEmpty());
        QVERIFY(ActionManager::getAction("Test.A"));
        pMenu->clear();
        QCOMPARE(pMenu->getMenu()->actions().size(), 1);
    }

    void aMenuWithNothingToOfferHides()
    {
        struct Menu : MenuActionContainer
        {
            using MenuActionContainer::MenuActionContainer;
            using MenuActionContainer::updateInternal;
        } container("Test.Menu");
        QMenu menu;
        container.setMenu(&menu);
        Registered a("Test.A", m_pProgram->window());
        container.insertAction(a.pCommand);
        container.insertSeparator();
        for (const bool bEnabled : {true, false, true}) {
            a.action.setEnabled(bEnabled);
            QCOMPARE(container.updateInternal(), bEnabled);
            QCOMPARE(menu.menuAction()->isVisible(), bEnabled);
        }
    }

private:
    static QStringList entries(const QWidget *pWidget)
    {
        QStringList texts;
        for (const QAction *pAction : pWidget->actions())
            texts.append(pAction->text());
        return texts;
    }

    std::unique_ptr<Program> m_pProgram;
};

QTEST_MAIN(tst_ActionContainer)
#include "tst_actioncontainer.moc"
