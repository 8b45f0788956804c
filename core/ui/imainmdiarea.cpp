// SPDX-License-Identifier: MIT
#include "ui/imainmdiarea.h"

#include "actionmanager/actionmanager.h"
#include "actionmanager/contextaction.h"
#include "appearance/ilanguagemanager.h"
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

const QString s_title = QStringLiteral("Kelpa Studio");

QWebChannel *channel()
{
    const MainWindow *pMainWindow = ICore::getMainWindow();
    return pMainWindow ? pMainWindow->getChannel() : nullptr;
}

bool isProjectSuffix(const QString &strSuffix)
{
    return strSuffix.compare(QLatin1String("kelpapack"), Qt::CaseInsensitive) == 0
        || strSuffix.compare(QLatin1String("kelpa"), Qt::CaseInsensitive) == 0;
}

} // namespace

IMainMdiArea::IMainMdiArea(QWidget *pParent)
    : QMdiArea(pParent)
{
    if (ICore::getMainWindow())
        installEventFilter(ICore::getMainWindow());
    setAcceptDrops(true);
    setBackground(Qt::NoBrush); // the theme's, and not a grey of its own
    auto *pBridge = new KPHTMLExposingWelcome(this);
    connect(this, &IMainMdiArea::resetRecentFiles, pBridge, &KPHTMLExposingWelcome::resetRecentFiles);
    if (channel())
        channel()->registerObject(QStringLiteral("kpwelcome"), pBridge);
}

// The bridge leaves the channel by itself when it dies with this area. What listens for the area's own
// leaving relies on it being announced, although the area never was on the channel.
IMainMdiArea::~IMainMdiArea()
{
    if (channel())
        channel()->deregisterObject(this);
}

// The URL is put together as text, and so is what a name with "#" or "?" in it leads to.
void IMainMdiArea::showInExplorer(const QString &strFileName)
{
    const QString strFolder = QFileInfo(strFileName).path();
    if (strFolder.isEmpty())
        return;
    if (QFile::exists(strFileName)) {
        if (!QDesktopServices::openUrl(QUrl(QStringLiteral("file:///") + strFolder)))
            IUi::warning(this, s_title, tr("Could not open file %1.").arg(strFileName));
        return;
    }
    const auto answer = IUi::question(this, s_title,
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
        IUi::information(this, s_title, QStringLiteral("URL: ") + strURL);
}

// The desktop gets the bare path, not a URL of it: that is what handlers registered for it expect.
void IMainMdiArea::openFile(const QString &strFile)
{
    const QString strPath = QDir(ICore::resourcePath()).absoluteFilePath(strFile);
    if (!QFile::exists(strPath)) {
        IUi::information(
            this, s_title, tr("Could not find the requested file.") + QLatin1Char('\n') + strPath);
        return;
    }
    MainWindow *pMainWindow = ICore::getMainWindow();
    if (!isProjectSuffix(QFileInfo(strPath).suffix()))
        QDesktopServices::openUrl(QUrl(strPath));
    else if (pMainWindow)
        pMainWindow->loadFile(strPath);
}
