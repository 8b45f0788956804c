// SPDX-License-Identifier: MIT
// What ties the main window to its title bar and to the notifications in it.
#include "mainwindow.h"

#include "iui.h"
#include "ui/imainmenuwidget.h"

#include <QEvent>

void MainWindow::createTitleBar()
{
    m_pTitleBar = new IMainMenuWidget(this, QStringLiteral("Kelpa Studio"), IUi::getIcon());
    setMenuWidget(m_pTitleBar);
}

KPNotificationBar *MainWindow::getNotificationBar()
{
    return m_pTitleBar ? m_pTitleBar->getNotificationBar() : nullptr;
}

void MainWindow::showNotification(
    const QString &strText, KPNotificationBar::Type type, const QString &strButtonText, bool bClosable)
{
    if (KPNotificationBar *pBar = getNotificationBar())
        pBar->show(strText, type, strButtonText, bClosable);
}

void MainWindow::hideNotification()
{
    if (KPNotificationBar *pBar = getNotificationBar())
        pBar->hide();
}

bool MainWindow::isStyledFrameTitleBar(int x, int y) const
{
    if (!m_pTitleBar)
        return false;
    const QPoint point = m_pTitleBar->mapFrom(this, QPoint(x, y));
    return m_pTitleBar->isTitleBarArea(point.x(), point.y());
}

void MainWindow::changeEvent(QEvent *pEvent)
{
    if (pEvent->type() == QEvent::WindowStateChange)
        followMaximized(!pEvent->spontaneous());
    KPStyledFrame<QMainWindow>::changeEvent(pEvent);
}
