// SPDX-License-Identifier: MIT
#include "ui/imainmdiarea.h"

#include "icore.h"
#include "mainwindow.h"

IMainMdiArea::IMainMdiArea(QWidget *pParent)
    : QMdiArea(pParent)
{
    if (ICore::getMainWindow())
        installEventFilter(ICore::getMainWindow());
    setAcceptDrops(true);
}

IMainMdiArea::~IMainMdiArea() = default;
