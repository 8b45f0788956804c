// SPDX-License-Identifier: MIT
#include "commandtest.h"

#include <actionmanager/actioncontainer.h>

class tst_ActionManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".*"));
        m_program.settings().clear();
    }

    void aCommandIsNeverItsOwnAction()
    {
        QWidget panel;
        Registered first("Edit.First", &panel), second("Edit.Second", &panel);
        QVERIFY(ActionManager::registerAction(first.proxy(), "Edit.Second", m_program.window(), false));
        for (QAction *pProxy : {first.proxy(), second.proxy()}) {
            QTest::ignoreMessage(QtWarningMsg, "Edit.First: a command cannot be its own action");
            QCOMPARE(ActionManager::registerAction(pProxy, "Edit.First", m_program.window(), false), nullptr);
        }
        ActionManager::unregisterAction(first.proxy(), "Edit.Second");
    }

    void fullTextsFollowTheMenus()
    {
        QCOMPARE(ActionManager::getActionFullText(nullptr), QString());
        Registered command("Paths.Sub.Fill", m_program.window(), "&Fill && Stroke");
        QCOMPARE(ActionManager::getActionFullText(command.pCommand), "Paths > Sub > Fill  Stroke");
        ActionContainer *pMenu = ActionManager::createMenuContainer("MenuBar.Paths", "&Paths of Text");
        QCOMPARE(ActionManager::createMenuContainer("MenuBar.Paths", "Other"), pMenu);
        QCOMPARE(ActionManager::getActionFullText(command.pCommand), "Paths of Text > Sub > Fill  Stroke");
        delete pMenu->getMenu();
        delete pMenu;
        QCOMPARE(ActionManager::getActionContainer("MenuBar.Paths"), nullptr);
    }

    void garbageInTheStoreGivesTheDefault()
    {
        const QVariant garbage[] = {
            "Nonsense", "Ctrl+A, Bogus", QString(100000, 'x'), QByteArray("\xff\xfe\0\x01", 4)};
        for (const QVariant &stored : garbage) {
            for (const char *pKey : {"Shortcuts/Edit.Garbage", "Shortcuts/Edit.Absent"})
                m_program.settings().setValue(pKey, stored);
            QTest::ignoreMessage(
                QtWarningMsg, QRegularExpression("user.ini: the shortcut of Edit.Garbage is no key"));
            Registered command("Edit.Garbage", m_program.window());
            command.pCommand->setDefaultKeySequence(keys("Ctrl+B"));
            QCOMPARE(command.pCommand->getKeySequence(), keys("Ctrl+B"));
            ActionManager::saveSettings();
            QCOMPARE(m_program.settings().value("Shortcuts/Edit.Absent"), stored);
        }
    }

    // The next window often gets the address of the former one.
    void commandsMoveToTheNextMainWindow()
    {
        QWidget panel;
        Registered kept("Edit.Kept", &panel);
        auto *pDying = new QAction(m_program.window());
        ActionManager::registerAction(pDying, "Edit.Dying", m_program.window(), false);
        ActionManager::createMenuContainer("MenuBar.Old", "Old")->insertSeparator();
        m_program.pWindow.reset();
        ActionManager::setContext(&panel);
        m_program.pWindow = std::make_unique<MainWindow>(nullptr);
        QCOMPARE(ActionManager::getAction("Edit.Dying"), nullptr);
        QCOMPARE(ActionManager::getActionContainer("MenuBar.Old"), nullptr);
        QVERIFY(m_program.window()->actions().contains(kept.proxy()));
        Registered again("Edit.Dying", m_program.window());
        ActionManager::setContext(m_program.window());
        again.proxy()->trigger();
        QCOMPARE(again.nFired, 1);
        QVERIFY(!kept.proxy()->isEnabled());
    }

private:
    Program m_program;
};

QTEST_MAIN(tst_ActionManager)
#include "tst_actionmanager.moc"
