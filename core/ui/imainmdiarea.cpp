// SPDX-License-Identifier: MIT
#include "ui/imainmdiarea.h"

#include "actionmanager/actionmanager.h"
#include "actionmanager/contextaction.h"
#include "appearance/ilanguagemanager.h"
#include "document/idocument.h"
#include "icore.h"
#include "irecentfilesmanager.h"
#include "iui.h"
#include "mainwindow.h"
#include "ui/kphtmlexposingwelcome.h"

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <QWebChannel>

namespace {

QWebChannel *channel()
{
    const MainWindow *pMainWindow = ICore::getMainWindow();
    return pMainWindow ? pMainWindow->getChannel() : nullptr;
}

} // namespace

IMainMdiArea::IMainMdiArea(QWidget *pParent)
    : QMdiArea(pParent)
{
    if (ICore::getMainWindow())
        installEventFilter(ICore::getMainWindow());
    setAcceptDrops(true);
    setBackground(Qt::NoBrush); // a gray of its own would cover the theme's background
    auto *pBridge = new KPHTMLExposingWelcome(this);
    connect(this, &IMainMdiArea::resetRecentFiles, pBridge, &KPHTMLExposingWelcome::resetRecentFiles);
    if (channel())
        channel()->registerObject(QStringLiteral("kpwelcome"), pBridge);
}

// Takes the area off the channel in case a plug-in has put it there: Qt 6.4.2 does not notice the death of an
// object until a client has asked for the objects. The bridge takes itself off, too.
IMainMdiArea::~IMainMdiArea()
{
    if (channel())
        channel()->deregisterObject(this);
}

// The URL is composed as text: a "#" or "?" in the path ends it there, and "%41" becomes "A".
void IMainMdiArea::showInExplorer(const QString &strFileName)
{
    const QString strFolder = QFileInfo(strFileName).path();
    if (strFolder.isEmpty())
        return;
    if (QFile::exists(strFileName)) {
        if (!QDesktopServices::openUrl(QUrl(QStringLiteral("file:///") + strFolder)))
            IUi::warning(this, IUi::getTitle(), tr("Could not open file %1.").arg(strFileName));
        return;
    }
    const auto answer = IUi::question(this, IUi::getTitle(),
        tr("The project [%1] no longer exists.\nDo you want to remove this entry from history?")
            .arg(strFileName),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    if (answer == QMessageBox::Yes)
        removeFile(strFileName);
}

void IMainMdiArea::removeFile(const QString &strFile)
{
    IRecentFilesManager::getInstance()->removeFile(strFile);
    if (MainWindow *pMainWindow = ICore::getMainWindow())
        pMainWindow->updateRecentFileActions();
    emit resetRecentFiles();
}

QStringList IMainMdiArea::getRecentFileList()
{
    return IRecentFilesManager::getInstance()->getRecentFiles();
}

void IMainMdiArea::callbackTunnelAsync(const QString &cmd)
{
    const ContextAction *pCommand = ActionManager::getAction(cmd);
    if (QAction *pAction = pCommand ? pCommand->getAction() : nullptr)
        emit pAction->triggered(true);
}

QString IMainMdiArea::callbackAsyncfromJS(const QString &cmd, const QString &)
{
    if (cmd == QLatin1String("WelcomeScreen.getLocale"))
        return ILanguageManager::getInstance().getCurrentLangId();
    if (cmd == QLatin1String("WelcomeScreen.getBuildNumber"))
        return QStringLiteral(KELPA_VERSION);
    return {};
}

void IMainMdiArea::openURL(const QString &strURL)
{
    if (strURL.startsWith(QLatin1String("http://")) || strURL.startsWith(QLatin1String("https://")))
        QDesktopServices::openUrl(QUrl(strURL));
    else
        IUi::information(this, IUi::getTitle(), QStringLiteral("URL: ") + strURL);
}

// The desktop gets the bare path as a URL without scheme, for which plug-ins may set a handler.
void IMainMdiArea::openFile(const QString &strFile)
{
    const QString strPath = QDir(ICore::resourcePath()).absoluteFilePath(strFile);
    if (!QFile::exists(strPath)) {
        IUi::information(
            this, IUi::getTitle(), tr("Could not find the requested file.") + QLatin1Char('\n') + strPath);
        return;
    }
    MainWindow *pMainWindow = ICore::getMainWindow();
    if (!IDocument::isProjectFile(strPath))
        QDesktopServices::openUrl(QUrl(strPath));
    else if (pMainWindow)
        pMainWindow->loadFile(strPath);
}
