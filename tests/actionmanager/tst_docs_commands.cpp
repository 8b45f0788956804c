// SPDX-License-Identifier: MIT
// The code of the page on commands, between marks, and what it does.
#include "commandtest.h"

#include <actionmanager/actioncontainer.h>
#include <actionmanager/shortcuts.h>
#include <icore.h>

namespace {

QString contents(const char *pFileName)
{
    QFile file(QString::fromUtf8(pFileName));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Without line breaks and indentation, which differ between the page and the file.
QString normalised(const QString &strCode)
{
    QStringList lines = strCode.split('\n');
    for (QString &strLine : lines)
        strLine = strLine.trimmed();
    lines.removeAll(QString());
    return lines.join(' ');
}

QStringList captures(const QString &strText, const QString &strPattern)
{
    QStringList found;
    const QRegularExpression expression(strPattern, QRegularExpression::DotMatchesEverythingOption);
    for (auto it = expression.globalMatch(strText); it.hasNext();)
        found.append(normalised(it.next().captured(1)));
    return found;
}

} // namespace

class tst_DocsCommands : public QObject
{
    Q_OBJECT

private slots:
    void thePageShowsThisCode()
    {
        const QStringList snippets = captures(contents(SNIPPETS), "// \\[snippet\\]\n(.*?)// \\[/snippet\\]");
        const QStringList fenced = captures(contents(PAGE), "```cpp\n(.*?)```");
        QVERIFY(fenced.size() >= 6);
        QCOMPARE(fenced, snippets);
    }

    void aCommandForTheWholeProgram()
    {
        QObject plugin, *this_ = &plugin;
        int nFlattened = 0;
        const auto flatten = [&] { ++nFlattened; };
        // [snippet]
        auto *pFlatten = new QAction(tr("&Flatten"), this_);
        connect(pFlatten, &QAction::triggered, this_, flatten);
        ContextAction *pCommand =
            ActionManager::registerAction(pFlatten, "Layer.Flatten", ICore::getMainWindow(), false);
        // [/snippet]
        // [snippet]
        pCommand->setDefaultKeySequence(QKeySequence(tr("Ctrl+Shift+F")));
        pCommand->setDescription(tr("Merge all layers into one"));
        // [/snippet]
        QCOMPARE(pCommand->getKeySequence(), keys("Ctrl+Shift+F"));
        // [snippet]
        ActionContainer *pMenu = ActionManager::createMenuContainer("MenuBar.Layer", tr("&Layer"));
        pMenu->insertSeparator();
        pMenu->insertAction(pCommand);
        if (ActionContainer *pBar = ActionManager::getActionContainer("Kelpa.MenuBar"))
            pBar->insertMenu(pMenu);
        // [/snippet]
        QCOMPARE(ActionManager::getActionFullText(pCommand), "Layer > Flatten");
        pMenu->getMenu()->actions().last()->trigger();
        QCOMPARE(nFlattened, 1);
        // [snippet]
        ActionManager::unregisterAction(pFlatten, "Layer.Flatten");
        // [/snippet]
        QCOMPARE(ActionManager::getAction("Layer.Flatten"), nullptr);
        QVERIFY(pMenu->getMenu()->actions().last()->isSeparator());
    }

    void aCommandOfAPanel()
    {
        QPlainTextEdit panel, *pNotes = &panel;
        Registered global("Edit.Duplicate", m_program.window());
        panel.setPlainText("a");
        // [snippet]
        ContextManager::registerContext(pNotes, "Notes", tr("Notes"));
        auto *pDuplicate = new QAction(tr("Duplicate"), pNotes);
        connect(pDuplicate, &QAction::triggered, pNotes,
            [pNotes] { pNotes->appendPlainText(pNotes->toPlainText()); });
        ActionManager::registerAction(pDuplicate, "Edit.Duplicate", pNotes, false);
        // [/snippet]
        ActionManager::setContext(ContextManager::getActiveContext(pNotes->viewport()).widget);
        global.proxy()->trigger();
        QCOMPARE(panel.toPlainText(), "a\na");
        QCOMPARE(global.nFired, 0);
        // [snippet]
        ActionManager::unregisterAction(pDuplicate, "Edit.Duplicate");
        ContextManager::unregisterContext(pNotes, "Notes");
        // [/snippet]
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
        // [snippet]
        const auto infos = Shortcuts::search("trim");
        for (const ShortcutInfo &info : infos) {
            const QString strKeys = info.current.toString(QKeySequence::NativeText);
            addRow(info.fullText, strKeys, info.returnsAtNextStart() ? tr("Back after the next start") : "");
        }
        // [/snippet]
        QCOMPARE(rows, QStringList {"Edit > Edit.Trim||Back after the next start"});
    }

private:
    Program m_program;
};

QTEST_MAIN(tst_DocsCommands)
#include "tst_docs_commands.moc"
