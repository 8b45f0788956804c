// SPDX-License-Identifier: MIT
// The default shortcuts of the window's commands, pressed on a real keyboard under a real window manager, on
// a desktop that has the standard ones.
#include "stageeditor.h"
#include "stagefactory.h"
#include "stagetoolbar.h"
#include "stageview.h"

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <mainwindow.h>
#include <support/coretest.h>

#include <QAction>
#include <QDir>
#include <QProcess>
#include <QUndoGroup>

using ExtensionSystem::PluginManager;

namespace {

const QByteArray s_project = R"({"format": "kelpa", "version": 1,
 "stage": {"width": 400, "height": 300, "background": "#ffffff", "frameRate": 24, "responsive": false},
 "scenes": [{"name": "One", "elements": [
   {"id": "a", "type": "rectangle", "x": 20, "y": 20, "width": 60, "height": 60, "fill": "#ff0000"}]}]})";

// As the program has it. Each command with a key only counts how often it fires.
struct Program : TestProgram
{
    Program()
    {
        PluginManager::addObject(&factory);
        window = std::make_unique<MainWindow>(nullptr);
        window->addToolBar(new StageToolBar(window.get()));
        window->resize(900, 600);
    }
    ~Program()
    {
        const auto editors = EditorManager::getEditors();
        const auto documents = DocumentManager::getDocuments();
        window.reset();
        qDeleteAll(editors);
        qDeleteAll(documents);
        PluginManager::removeObject(&factory);
    }

    bool show()
    {
        window->show();
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

    StageFactory factory {nullptr};
    std::unique_ptr<MainWindow> window;
    QStringList fired;
};

// The server has names of its own for modifiers and letters.
void press(const QString &strKeys)
{
    QString strNames = strKeys;
    for (const char *pName : {"Ctrl", "Shift", "Alt"})
        strNames.replace(QLatin1String(pName), QString::fromLatin1(pName).toLower());
    if (strNames.size() > 1 && strNames.at(strNames.size() - 2) == QLatin1Char('+'))
        strNames = strNames.toLower();
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("key"), strNames}), 0);
}

} // namespace

class tst_WindowKeys : public QObject
{
    Q_OBJECT

private slots:
    void eachDefaultShortcutFiresItsCommandOnce_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("command");
        const std::pair<const char *, const char *> rows[] = {{"Ctrl+N", "File.New"},
            {"Ctrl+O", "File.Open_Project"}, {"Ctrl+S", "File.Save"}, {"Ctrl+W", "File.Close"},
            {"Ctrl+F5", "File.Preview_Current_Scene_In_Browser"}, {"F5", "File.Preview_Project_In_Browser"},
            {"Ctrl+Alt+E", "File.Export_To_HTML5"}, {"F1", "Help.Help_Contents"}, {"Ctrl+Z", "Edit.Undo"},
            {"Ctrl+Shift+Z", "Edit.Redo"}};
        for (const auto &[pKeys, pCommand] : rows)
            QTest::addRow("%s fires %s", pKeys, pCommand) << QString(pKeys) << QString(pCommand);
    }
    void eachDefaultShortcutFiresItsCommandOnce()
    {
        QFETCH(QString, keys);
        QFETCH(QString, command);
        Program program;
        QVERIFY(program.window->loadFile(program.write("one.kelpa", s_project)));
        auto *pView = static_cast<StageEditor *>(EditorManager::activeEditor())->getView();
        for (int i = 0; i < 2; ++i) // so that there is something to save, to undo and to do again
            pView->addElement({});
        DocumentManager::getUndoGroup()->undo();
        QVERIFY(program.show());
        QTRY_VERIFY(pView->hasFocus());
        QVERIFY(ActionManager::getAction(command)->getAction()->isEnabled());
        program.countOnly();
        press(keys);
        QTRY_COMPARE(program.fired, QStringList(command));
        press(QStringLiteral("F1")); // whatever else the keys did has arrived before this
        QTRY_COMPARE(program.fired.size(), 2);
        QCOMPARE(program.fired, QStringList({command, QStringLiteral("Help.Help_Contents")}));
    }

    void noOtherCommandOfTheCoreHasADefaultShortcut()
    {
        const Program program;
        QStringList commands;
        for (const ContextAction *pCommand : ActionManager::getActions()) {
            if (!pCommand->getAction()->shortcut().isEmpty())
                commands.append(pCommand->getId());
        }
        QCOMPARE(commands.size(), 12); // the ten above and the two that share theirs
    }

    // Leaving and saving under another name share a default: with a project it must not leave.
    void withAProjectTheSharedKeysSaveAs()
    {
        Program program;
        QVERIFY(program.window->loadFile(program.write("one.kelpa", s_project)));
        QVERIFY(program.show());
        program.countOnly();
        press(QStringLiteral("Ctrl+Shift+S"));
        press(QStringLiteral("F1"));
        QTRY_VERIFY(program.fired.contains(QStringLiteral("Help.Help_Contents")));
        QCOMPARE(program.fired,
            QStringList({QStringLiteral("File.SaveAs.Project"), QStringLiteral("Help.Help_Contents")}));
        QVERIFY(program.window->isVisible());
    }

    // Nothing is open, so nothing can be lost.
    void withoutAProjectTheSharedKeysLeave()
    {
        Program program;
        QVERIFY(program.show());
        press(QStringLiteral("Ctrl+Shift+S"));
        QTRY_VERIFY(!program.window->isVisible());
    }
};

QTEST_MAIN(tst_WindowKeys)
#include "tst_windowkeys.moc"
