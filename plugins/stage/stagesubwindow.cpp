// SPDX-License-Identifier: MIT
#include "stagesubwindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>

StageSubWindow::StageSubWindow(QWidget *pParent)
    : QMdiSubWindow(pParent)
{
    // Its menu has the keys of the command that closes the project: neither would fire.
    const auto actions = systemMenu()->actions();
    for (QAction *pAction : actions)
        pAction->setShortcuts(QList<QKeySequence>());
}

void StageSubWindow::closeEvent(QCloseEvent *pEvent)
{
    pEvent->ignore();
    emit closeRequested();
}
