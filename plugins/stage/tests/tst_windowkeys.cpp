// SPDX-License-Identifier: MIT
// The default shortcuts of the window's commands, pressed on a real keyboard under a real window manager, on
// a desktop that has the standard ones.
#include "stageprogram.h"

namespace {

// Each command with a key only counts how often it fires.
struct Program : StageProgram
{
    bool show()
    {
        window->activateWindow();
        return QTest::qWaitForWindowActive(window.get());
    }

    void countOnly()
    {
        for (ContextAction *pCommand : ActionManager::getActions()) {
            QAction *pAction = pCommand->getAction();
            if (pAction->shortcut().isEmpty())
                continue;
            const QString strId = pCommand->getId();
            QObject::disconnect(pAction, &QAction::triggered, nullptr, nullptr);
            QObject::connect(
                pAction, &QAction::triggered, window.get(), [this, strId] { fired.append(strId); });
        }
    }

    QStringList fired;
};

} // namespace

class tst_WindowKeys : public QObject
{
    Q_OBJECT

private slots:
    void eachDefaultShortcutFiresItsCommandOnce_data()
    {
        columns<QString, QString>("keys", "command");
        const std::pair<const char *, const char *> rows[] = {{"Ctrl+N", "File.New"},
            {"Ctrl+O", "File.Open_Project"}, {"Ctrl+S", "File.Save"}, {"Ctrl+W", "File.Close"},
            {"Ctrl+F5", "File.Preview_Current_Scene_In_Browser"}, {"F5", "File.Preview_Project_In_Browser"},
            {"Ctrl+Alt+E", "File.Export_To_HTML5"}, {"F1", "Help.Help_Contents"}, {"Ctrl+Z", "Edit.Undo"},
            {"Ctrl+Shift+Z", "Edit.Redo"},
            // The command that ends the program has the same keys, but only while no project is open.
            {"Ctrl+Shift+S", "File.SaveAs.Project"}};
        for (const auto &[pKeys, pCommand] : rows)
            QTest::addRow("%s fires %s", pKeys, pCommand) << QString(pKeys) << QString(pCommand);
    }
    void eachDefaultShortcutFiresItsCommandOnce()
    {
        QFETCH(QString, keys);
        QFETCH(QString, command);
        Program program;
        QVERIFY(program.open("one.kelpa"));
        auto *pView = static_cast<StageEditor *>(EditorManager::activeEditor())->getView();
        for (int i = 0; i < 2; ++i) // so that there is something to save, to undo and to do again
            pView->addElement({});
        DocumentManager::getUndoGroup()->undo();
        QVERIFY(program.show());
        QTRY_VERIFY(pView->hasFocus());
        QVERIFY(program.command(command)->isEnabled());
        program.countOnly();
        if (keys == "Ctrl+Shift+S")
            expectWarning("Ctrl+Shift+S is the shortcut of File.SaveAs.Project, File.Exit; the first one ");
        pressOnServer(keys);
        QTRY_COMPARE(program.fired, QStringList(command));
        pressOnServer("F1"); // whatever else the keys did has arrived before this
        QTRY_COMPARE(program.fired.size(), 2);
        QCOMPARE(program.fired, QStringList({command, "Help.Help_Contents"}));
    }

    // Nothing is open, so nothing can be lost.
    void withoutAProjectTheSharedKeysLeave()
    {
        Program program;
        QVERIFY(program.show());
        pressOnServer("Ctrl+Shift+S");
        QTRY_VERIFY(!program.window->isVisible());
    }
};

QTEST_MAIN(tst_WindowKeys)
#include "tst_windowkeys.moc"
