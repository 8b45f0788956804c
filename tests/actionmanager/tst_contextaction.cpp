// SPDX-License-Identifier: MIT
#include "commandtest.h"

class tst_ContextAction : public QObject
{
    Q_OBJECT

private slots:
    void theProxyFollowsTheContext()
    {
        QWidget panel, other;
        Registered global("Edit.Copy", m_program.window(), "Copy");
        Registered local("Edit.Copy", &panel, "Copy Cells");
        QCOMPARE(local.pCommand, global.pCommand);
        QCOMPARE(global.proxy()->action(), &local.action);
        QCOMPARE(global.proxy()->text(), "Copy");
        ActionManager::setContext(&other);
        QCOMPARE(global.proxy()->action(), &global.action);
        global.action.setEnabled(false);
        QVERIFY(!global.proxy()->isEnabled());
        ActionManager::setContext(&panel);
        QVERIFY(global.proxy()->isEnabled());
        global.proxy()->trigger();
        QCOMPARE(local.nFired, 1);
        QCOMPARE(global.nFired, 0);
    }

    void aCommandOfAPanelIsOffElsewhere()
    {
        QWidget panel, child(&panel);
        Registered local("Cells.Merge", &panel);
        QSignalSpy spy(local.pCommand, &ContextAction::activeStateChanged);
        QVERIFY(local.proxy()->isEnabled());
        ActionManager::setContext(&child);
        QVERIFY(!local.proxy()->isEnabled());
        QVERIFY(local.pCommand->isActive());
        ActionManager::setContext(m_program.window());
        QCOMPARE(spy.size(), 1);
        ActionManager::setContext(&panel);
        QVERIFY(local.proxy()->isEnabled());
        QCOMPARE(spy.size(), 2);
    }

    void theFirstActionOfAContextStays()
    {
        QWidget panel;
        Registered first("Cells.Split", &panel), second("Cells.Split", &panel);
        QCOMPARE(first.proxy()->action(), &first.action);
        ActionManager::unregisterAction(&second.action, "Cells.Split");
        QCOMPARE(first.proxy()->action(), &first.action);
    }

    // The entry of a dead action keeps its place until something is unregistered.
    void aDeadActionHoldsItsPlaceUntilPurged()
    {
        QWidget panel;
        Registered global("Cells.Sort", m_program.window());
        auto *pAction = new QAction;
        ActionManager::registerAction(pAction, "Cells.Sort", &panel, false);
        delete pAction;
        QVERIFY(global.proxy()->isEnabled());
        ActionManager::setContext(&panel);
        QVERIFY(!global.proxy()->isEnabled());
        ActionManager::setContext(m_program.window());
        ActionManager::setContext(&panel);
        QCOMPARE(global.proxy()->action(), nullptr);
        Registered second("Cells.Sort", &panel);
        QCOMPARE(global.proxy()->action(), nullptr);
        ActionManager::unregisterAction(&second.action, "Cells.Sort");
        QCOMPARE(global.proxy()->action(), &global.action);
        Registered third("Cells.Sort", &panel);
        QCOMPARE(global.proxy()->action(), &third.action);
    }

    void aProxyPointedElsewhereByHandComesBack()
    {
        QAction stranger;
        Registered global("Edit.Undo", m_program.window());
        ActionManager::setContext(m_program.window());
        global.proxy()->setAction(&stranger);
        ActionManager::setContext(m_program.window());
        QCOMPARE(global.proxy()->action(), &global.action);
    }

    void defaultsYieldToAShortcutThatIsThere()
    {
        Registered command("Edit.Find", m_program.window());
        command.pCommand->setDefaultKeySequence(keys("Ctrl+F"));
        QCOMPARE(command.pCommand->getKeySequence(), keys("Ctrl+F"));
        command.pCommand->setDefaultKeySequence(keys("Ctrl+G"));
        QCOMPARE(command.pCommand->getKeySequence(), keys("Ctrl+F"));
        QCOMPARE(command.pCommand->getDefaultKeySequence(), keys("Ctrl+G"));
        QCOMPARE(command.proxy()->toolTip(), "Edit.Find\tCtrl+F");
        QCOMPARE(command.pCommand->stringWithAppendedShortcut("Find"), QString());
    }

    void visibilityGoesToEveryActionThatLives()
    {
        QWidget panel, gone;
        Registered global("Edit.Redo", m_program.window()), local("Edit.Redo", &panel);
        auto dead = std::make_unique<QAction>();
        ActionManager::registerAction(dead.get(), "Edit.Redo", &gone, false);
        dead.reset();
        ActionManager::setContext(&panel);
        global.pCommand->setVisible(false);
        QVERIFY(!global.action.isVisible() && !local.action.isVisible() && !local.proxy()->isVisible());
    }

private:
    Program m_program;
};

QTEST_MAIN(tst_ContextAction)
#include "tst_contextaction.moc"
