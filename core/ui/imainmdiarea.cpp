// SPDX-License-Identifier: MIT
#include "ui/imainmdiarea.h"

#include "icore.h"
#include "irecentfilesmanager.h"
#include "mainwindow.h"

IMainMdiArea::IMainMdiArea(QWidget *pParent)
    : QMdiArea(pParent)
{
    if (ICore::getMainWindow())
        installEventFilter(ICore::getMainWindow());
    setAcceptDrops(true);
}

IMainMdiArea::~IMainMdiArea() = default;

void IMainMdiArea::removeFile(const QString &strFile)
{
    IRecentFilesManager::getInstance()->removeFile(strFile);
    if (MainWindow *pMainWindow = ICore::getMainWindow())
        pMainWindow->updateRecentFileActions();
    emit resetRecentFiles();
}
