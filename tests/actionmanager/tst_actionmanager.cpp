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

    void oneCommandForAllContexts()
    {
        QStringList order;
        const auto *pManager = ActionManager::getInstance();
        const auto list = connect(pManager, &ActionManager::commandListChanged, [&] { order += "list"; });
        const auto added =
            connect(pManager, &ActionManager::commandAdded, [&](const QString &strId) { order += strId; });
        QWidget panel;
        {
            const auto nBefore = m_program.window()->actions().size();
            Registered global("Edit.Cut", m_program.window()), local("Edit.Cut", &panel);
            QCOMPARE(order, (QStringList {"list", "Edit.Cut", "list", "Edit.Cut"}));
            QCOMPARE(m_program.window()->actions().size(), nBefore + 1);
            QCOMPARE(global.proxy()->objectName(), "Edit.Cut");
            QCOMPARE(global.proxy()->shortcutContext(), Qt::ApplicationShortcut);
            order.clear();
        }
        QCOMPARE(order, (QStringList {"list", "list"}));
        QCOMPARE(ActionManager::getAction("Edit.Cut"), nullptr);
        order.clear();
        QAction action;
        ActionManager::unregisterAction(&action, "Edit.Unknown");
        QCOMPARE(ActionManager::registerAction(nullptr, "Edit.Cut", &panel, false), nullptr);
        QCOMPARE(ActionManager::registerAction(&action, "Edit.Cut", nullptr, false), nullptr);
        QCOMPARE(ActionManager::registerAction(&action, QString(), &panel, false), nullptr);
        QVERIFY(order.isEmpty());
        disconnect(list);
        disconnect(added);
    }

    // A command that goes or comes while the context changes; the one that listens is visited first.
    void listenersMayChangeTheRegistryDuringAChangeOfContext()
    {
        QWidget panel;
        Registered first("A.First", &panel), last("Z.Last", m_program.window());
        auto doomed = std::make_unique<Registered>("B.Doomed", &panel);
        std::unique_ptr<Registered> late;
        connect(first.pCommand, &ContextAction::activeStateChanged, this, [&] {
            doomed.reset();
            late = std::make_unique<Registered>("C.Late", m_program.window());
        });
        ActionManager::setContext(m_program.window());
        QVERIFY(!first.proxy()->isEnabled());
        QVERIFY(late);
        QCOMPARE(late->proxy()->action(), &late->action);
        QCOMPARE(last.proxy()->action(), &last.action);
        disconnect(first.pCommand, nullptr, this, nullptr);
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

    void garbageInTheStoreGivesTheDefault_data()
    {
        const auto row = columns<QVariant, bool>("stored", "warned");
        row("a word", "Nonsense", true);
        row("a good and a bad key", "Ctrl+A, Bogus", true);
        row("a hundred thousand letters", QString(100000, 'x'), true);
        row("bytes that are no text", QByteArray("\xff\xfe\0\x01", 4), true);
        row("a list", QVariantList {1, "two", 3.0}, false);
    }
    void garbageInTheStoreGivesTheDefault()
    {
        QFETCH(QVariant, stored);
        m_program.settings().setValue("Shortcuts/Edit.Garbage", stored);
        QFETCH(bool, warned);
        if (warned)
            QTest::ignoreMessage(
                QtWarningMsg, QRegularExpression("user.ini: the shortcut of Edit.Garbage is no key"));
        Registered command("Edit.Garbage", m_program.window());
        command.pCommand->setDefaultKeySequence(keys("Ctrl+B"));
        QCOMPARE(command.pCommand->getKeySequence(), keys("Ctrl+B"));
    }

    void aFileOfGarbageNeverStopsTheStart()
    {
        QByteArray content =
            "\xff\xfe]]]\n[Shortcuts]\nEdit.Good=Ctrl+H\nEdit.Bad=@Variant(x\n=\n==\n\\x00=1\n";
        for (int i = 0; i < 20000; ++i)
            content += "Key" + QByteArray::number(i) + "=%%%,,,@Rect(\n";
        content += "[Shortcuts\\Edit.Good]\nnested=1\n[unfinished";
        QSettings garbage(m_program.write("garbage.ini", content), QSettings::IniFormat);
        ActionManager::setSettings(&garbage);
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression("garbage.ini: the shortcut of Edit.Bad is no key"));
        Registered good("Edit.Good", m_program.window()), bad("Edit.Bad", m_program.window());
        QCOMPARE(good.pCommand->getKeySequence(), keys("Ctrl+H"));
        QCOMPARE(bad.pCommand->getKeySequence(), QKeySequence());
        ActionManager::saveSettings();
        ActionManager::readFromSettings();
        QCOMPARE(good.pCommand->getKeySequence(), keys("Ctrl+H"));
        QVERIFY(garbage.contains("Shortcuts/Key19999"));
        ActionManager::setSettings(&Program::settings());
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
