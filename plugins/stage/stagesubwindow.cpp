// SPDX-License-Identifier: MIT
#include "stagesubwindow.h"

#include <QCloseEvent>

StageSubWindow::StageSubWindow(QWidget *pParent)
    : QMdiSubWindow(pParent)
{
}

StageSubWindow::~StageSubWindow() = default;

void StageSubWindow::closeEvent(QCloseEvent *pEvent)
{
    pEvent->ignore();
    emit closeRequested();
}
