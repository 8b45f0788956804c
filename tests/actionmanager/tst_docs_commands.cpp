// SPDX-License-Identifier: MIT
// The code of the page on commands, and what it does.
#include "commandtest.h"

#include <actionmanager/actioncontainer.h>
#include <actionmanager/shortcuts.h>
#include <icore.h>

class tst_DocsCommands : public QObject
{
    Q_OBJECT

private slots:
    void thePageShowsThisCode()
    {
        const QString strCode = QString(contentOf(SNIPPETS)).simplified();
        const QStringList parts = QString(contentOf(PAGE)).split("```");
        QVERIFY(parts.size() > 2 * 6);
        for (qsizetype i = 1; i < parts.size(); i += 2)
            QVERIFY2(strCode.contains(parts.at(i).mid(3).simplified()), qPrintable(parts.at(i)));
    }

    void aCommandForTheWholeProgram()
    {
        QObject plugin, *this_ = &plugin;
        int nFlattened = 0;
        const auto flatten = [&] { ++nFlattened; };
        auto *pFlatten = new QAction(tr("&Flatten"), this_);
        connect(pFlatten, &QAction::triggered, this_, flatten);
        ContextAction *pCommand =
            ActionManager::registerAction(pFlatten, "Layer.Flatten", ICore::getMainWindow(), false);
        pCommand->setDefaultKeySequence(QKeySequence(tr("Ctrl+Shift+F")));
        pCommand->setDescription(tr("Merge all layers into one"));
        QCOMPARE(pCommand->getKeySequence(), keys("Ctrl+Shift+F"));
        ActionContainer *pBar = ActionManager::getActionContainer("Kelpa.MenuBar");
        ActionContainer *pMenu = ActionManager::getActionContainer("MenuBar.Layer");
        if (!pMenu && pBar) {
            pMenu = ActionManager::createMenuContainer("MenuBar.Layer", tr("&Layer"));
            pBar->insertMenu(pMenu, ActionManager::getActionContainer("MenuBar.Help"));
        }
        if (pMenu)
            pMenu->insertAction(pCommand);
        QCOMPARE(ActionManager::getActionFullText(pCommand), "Layer > Flatten");
        QCOMPARE(pBar->getMenuBar()->actions().last()->text(), "&Help");
        pMenu->getMenu()->actions().last()->trigger();
        QCOMPARE(nFlattened, 1);
        ActionManager::unregisterAction(pFlatten, "Layer.Flatten");
        QCOMPARE(ActionManager::getAction("Layer.Flatten"), nullptr);
        QVERIFY(pMenu->getMenu()->isEmpty());
    }

    void aCommandOfAPanel()
    {
        QPlainTextEdit panel, *pNotes = &panel;
        Registered global("Edit.Duplicate", m_program.window());
        panel.setPlainText("a");
        ContextManager::registerContext(pNotes, "Notes", tr("Notes"));
        auto *pDuplicate = new QAction(tr("Duplicate"), pNotes);
        connect(pDuplicate, &QAction::triggered, pNotes,
            [pNotes] { pNotes->appendPlainText(pNotes->toPlainText()); });
        ActionManager::registerAction(pDuplicate, "Edit.Duplicate", pNotes, false);
        ActionManager::setContext(ContextManager::getActiveContext(pNotes->viewport()).widget);
        global.proxy()->trigger();
        QCOMPARE(panel.toPlainText(), "a\na");
        QCOMPARE(global.nFired, 0);
        ActionManager::unregisterAction(pDuplicate, "Edit.Duplicate");
        ContextManager::unregisterContext(pNotes, "Notes");
        ActionManager::setContext(ContextManager::getActiveContext(pNotes).widget);
        global.proxy()->trigger();
        QCOMPARE(global.nFired, 1);
    }

    void aPageOfShortcuts()
    {
        Registered command("Edit.Trim", m_program.window());
        command.pCommand->setDefaultKeySequence(keys("Ctrl+T"));
        command.pCommand->setKeySequence({});
        QStringList rows;
        const auto addRow = [&](const QString &strText, const QString &strKeys, const QString &strNote) {
            rows += strText + "|" + strKeys + "|" + strNote;
        };
        const auto infos = Shortcuts::search("trim");
        for (const ShortcutInfo &info : infos) {
            const QString strKeys = info.current.toString(QKeySequence::NativeText);
            addRow(info.fullText, strKeys, info.returnsAtNextStart() ? tr("Back after the next start") : "");
        }
        QCOMPARE(rows, QStringList {"Edit > Edit.Trim||Back after the next start"});
    }

private:
    Program m_program;
};

QTEST_MAIN(tst_DocsCommands)
#include "tst_docs_commands.moc"
