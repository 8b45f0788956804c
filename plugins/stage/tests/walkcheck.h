// SPDX-License-Identifier: MIT
// Where the program and the model disagree.
#pragma once

#include "stagedocument.h"
#include "stagemodel.h"
#include "walkmodel.h"
#include "walkprogram.h"

#include <actionmanager/actioncontainer.h>
#include <irecentfilesmanager.h>

class WalkCheck
{
public:
    WalkCheck(WalkProgram &program, Model &model)
        : m_program(program)
        , m_model(model)
    {
    }

    QStringList faults;

    template <typename Actual, typename Expected>
    void same(const char *pWhat, const Actual &actual, const Expected &expected)
    {
        if (actual == expected)
            return;
        QString strText;
        QDebug(&strText) << pWhat << "is" << actual << "and not" << expected;
        faults.append(strText);
    }

    void all()
    {
        ModelDocument *pActive = m_model.active();
        same("save", m_program.command("File.Save")->isEnabled(), pActive && pActive->canSave());
        same("save as", m_program.command("File.SaveAs.Project")->isEnabled(), pActive != nullptr);
        same("menu of save as", ActionManager::getActionContainer("File.SaveAs")->getMenu()->isEnabled(),
            pActive != nullptr);
        same("close", m_program.command("File.Close")->isEnabled(), pActive != nullptr);
        same("undo", m_program.command("Edit.Undo")->isEnabled(), pActive && pActive->nIndex > 0);
        same("redo", m_program.command("Edit.Redo")->isEnabled(),
            pActive && pActive->nIndex + 1 < pActive->history.size());
        same("title", m_program.window->windowTitle().replace("[*][*]", "[*]"), m_model.title());
        same("welcome", m_program.welcome.isVisible(), m_model.documents.isEmpty());
        same("documents", DocumentManager::getDocuments().size(), m_model.documents.size());
        same("editors", EditorManager::getEditors().size(), m_model.documents.size());
        same("tabs", m_program.window->getMdiArea()->subWindowList().size(), m_model.documents.size());
        if (faults.isEmpty())
            checkDocuments();
        checkRecent();
        const auto backups = std::count_if(m_model.documents.begin(), m_model.documents.end(),
            [](const ModelDocument &document) { return document.bBackedUp; });
        same("backups", m_program.backups() - m_program.nOldBackups,
            int(backups) + 1); // one of an earlier run
    }

    static QAction *recentCommand(int nEntry)
    {
        const QString strId = QString("File.Recent_Projects.Project_%1").arg(nEntry + 1);
        return ActionManager::getAction(strId)->getAction();
    }

private:
    void checkDocuments()
    {
        const IEditor *pActive = EditorManager::activeEditor();
        const QUndoStack *pStack = pActive ? pActive->getDocument()->getUndoStack() : nullptr;
        same("active stack", DocumentManager::getUndoGroup()->activeStack() == pStack, true);
        same("active editor", EditorManager::getEditors().indexOf(pActive), qsizetype(m_model.nActive));
        same("active tab", m_program.tabs()->currentIndex(), m_model.nActive);
        for (int i = 0; i < static_cast<int>(m_model.documents.size()); ++i) {
            const ModelDocument &document = m_model.documents.at(i);
            const auto *pEditor = static_cast<StageEditor *>(EditorManager::getEditors().at(i));
            const auto *pDocument = static_cast<StageDocument *>(pEditor->getDocument());
            same("modified", pDocument->isModified(), document.isModified());
            same("path", pDocument->getFileName(), document.path);
            same("elements", pDocument->getModel()->elementCount(), document.elements());
            same("history", pDocument->getUndoStack()->index(), document.nIndex);
            same("mark", pEditor->getSubWindow()->isWindowModified(), document.isModified());
            const QString strName = document.name().replace('&', "&&") + (document.isModified() ? "*" : "");
            const QString strTab = m_program.tabs()->tabText(i).remove(QChar(0x2060));
            const QStringList ends = strTab.split(QChar(0x2026)); // of a long name
            const bool bEnds = strName.startsWith(ends.first()) && strName.endsWith(ends.last());
            same("tab", ends.size() > 1 && bEnds ? strName : strTab, strName);
            same("tip of the tab", m_program.tabs()->tabToolTip(i), document.path);
            same("tip over the stage", pEditor->getSubWindow()->toolTip(), QString());
            same("wide tab", m_program.tabs()->tabRect(i).width() > 450, false);
            same("focus", m_program.window->focusWidget() == pEditor->getView(), i == m_model.nActive);
            same("tab path", pEditor->getSubWindow()->windowFilePath(), document.path);
        }
    }

    void checkRecent()
    {
        same("recent list", IRecentFilesManager::getInstance()->getRecentFiles(), m_model.recent);
        const ActionContainer *pMenu = ActionManager::getActionContainer("File.Recent_Projects");
        same("recent menu", pMenu->getMenu()->isEnabled(), !m_model.recent.isEmpty());
        same("recent entries", pMenu->getMenu()->actions().size(), 10);
        for (int i = 0; i < 10; ++i) {
            const QAction *pAction = recentCommand(i);
            same("recent entry shown", pAction->isVisible(), i < m_model.recent.size());
            if (i < m_model.recent.size() && pAction->isVisible()) {
                same("recent entry", pAction->text(), QString::number(i + 1) + ". " + m_model.recent.at(i));
                same("recent path", pAction->data().toString(), m_model.recent.at(i));
            }
        }
    }

    WalkProgram &m_program;
    Model &m_model;
};
