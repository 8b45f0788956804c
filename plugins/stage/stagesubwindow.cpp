// SPDX-License-Identifier: MIT
#include "stagesubwindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>

StageSubWindow::StageSubWindow(QWidget *pParent)
    : QMdiSubWindow(pParent)
{
    // Two actions with one shortcut block each other; this menu's Close has that of the program's Close.
    const auto actions = systemMenu()->actions();
    for (QAction *pAction : actions)
        pAction->setShortcuts(QList<QKeySequence>());
}

void StageSubWindow::closeEvent(QCloseEvent *pEvent)
{
    pEvent->ignore();
    emit closeRequested();
}
