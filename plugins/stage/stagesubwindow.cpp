// SPDX-License-Identifier: MIT
#include "stagesubwindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>

StageSubWindow::StageSubWindow(QWidget *pParent)
    : QMdiSubWindow(pParent)
{
    // Its keys are those of the Close command, and where two have the same neither works.
    const auto actions = systemMenu()->actions();
    for (QAction *pAction : actions)
        pAction->setShortcuts(QList<QKeySequence>());
}

StageSubWindow::~StageSubWindow() = default;

void StageSubWindow::closeEvent(QCloseEvent *pEvent)
{
    pEvent->ignore();
    emit closeRequested();
}
