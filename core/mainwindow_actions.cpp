// SPDX-License-Identifier: MIT
// The commands of the main window and how they follow the focus.
#include "mainwindow.h"

#include "actionmanager/actioncontainer.h"
#include "actionmanager/actionmanager.h"
#include "actionmanager/contextmanager.h"
#include "ui/imainmenuwidget.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

void MainWindow::initActions()
{
    m_pTitleBar->setMenuBar(
        ActionManager::createMenuBarContainer(QStringLiteral("Kelpa.MenuBar"))->getMenuBar());
}

void MainWindow::updateFocusWidget(QWidget *old, QWidget *now)
{
    Q_UNUSED(old)
    if (qobject_cast<QMenuBar *>(now) || qobject_cast<QMenu *>(now))
        return;
    QWidget *pFocus = QApplication::focusWidget();
    if (!pFocus)
        return;
    const Context context = ContextManager::getActiveContext(pFocus);
    if (!context.id.isEmpty())
        ActionManager::setContext(context.widget);
}
