// SPDX-License-Identifier: MIT
// The menu of recent projects.
#include "mainwindow.h"

#include "actionmanager/actioncontainer.h"
#include "actionmanager/actionmanager.h"
#include "actionmanager/contextaction.h"
#include "irecentfilesmanager.h"
#include "iui.h"
#include "ui/imainmdiarea.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>

namespace {

const QString s_menu = QStringLiteral("File.Recent_Projects");

QString commandId(int nNumber)
{
    return QStringLiteral("File.Recent_Projects.Project_%1").arg(nNumber);
}

void showEntry(QAction *pAction, const QString &strText, const QString &strPath)
{
    pAction->setText(strText);
    pAction->setData(strPath);
    pAction->setVisible(true);
}

} // namespace

void MainWindow::createRecentCommands()
{
    ActionContainer *pMenu = ActionManager::getActionContainer(s_menu);
    for (int i = 1; i <= IRecentFilesManager::getInstance()->getMaxCount(); ++i) {
        auto *pAction = new QAction(this);
        pAction->setVisible(false);
        connect(pAction, SIGNAL(triggered()), this, SLOT(recentFileOpen()));
        m_recentActions.append(pAction);
        pMenu->insertAction(ActionManager::registerAction(pAction, commandId(i), this, false));
    }
}

// Nothing here looks at the disk: a path may lie on a drive that does not answer.
void MainWindow::updateRecentFileActions()
{
    const QStringList files = IRecentFilesManager::getInstance()->getRecentFiles();
    const int nCount = IRecentFilesManager::getInstance()->getCount();
    ActionManager::getActionContainer(s_menu)->getMenu()->setEnabled(nCount != 0);
    for (int i = 0; i < nCount; ++i) {
        const QString strText = QStringLiteral("%1. %2").arg(QString::number(i + 1), files.at(i));
        showEntry(m_recentActions.at(i), strText, files.at(i));
        if (const ContextAction *pCommand = ActionManager::getAction(commandId(i + 1)))
            showEntry(pCommand->getAction(), strText, files.at(i));
    }
    for (int i = nCount; i < static_cast<int>(m_recentActions.size()); ++i)
        m_recentActions.at(i)->setVisible(false);
}

void MainWindow::recentFileOpen()
{
    const auto *pAction = qobject_cast<QAction *>(sender());
    if (!pAction)
        return;
    const QString strPath = pAction->data().toString();
    if (QFileInfo::exists(strPath)) {
        loadFile(strPath);
        return;
    }
    const auto answer = IUi::question(this, QStringLiteral("Kelpa Studio"),
        tr("The project [%1] no longer exists.\nDo you want to remove this entry from history?").arg(strPath),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    if (answer == QMessageBox::Yes)
        m_pMdiArea->removeFile(strPath);
}
