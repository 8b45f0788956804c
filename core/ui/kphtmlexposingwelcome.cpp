// SPDX-License-Identifier: MIT
#include "ui/kphtmlexposingwelcome.h"

#include "icore.h"
#include "mainwindow.h"
#include "ui/imainmdiarea.h"

#include <QWebChannel>

KPHTMLExposingWelcome::KPHTMLExposingWelcome(IMainMdiArea *pMdiArea)
    : QObject(pMdiArea)
    , m_pMdiArea(pMdiArea)
    , m_pChannel(ICore::getMainWindow() ? ICore::getMainWindow()->getChannel() : nullptr)
{
}

// Qt 6.4.2 does not notice the death of an object until a client of the channel has asked for the objects.
KPHTMLExposingWelcome::~KPHTMLExposingWelcome()
{
    if (m_pChannel && !m_pChannel->registeredObjects().key(this).isEmpty())
        m_pChannel->deregisterObject(this);
}

void KPHTMLExposingWelcome::showInExplorer(const QString &strFileName)
{
    if (m_pMdiArea)
        m_pMdiArea->showInExplorer(strFileName);
}

void KPHTMLExposingWelcome::removeFile(const QString &strFile)
{
    if (m_pMdiArea)
        m_pMdiArea->removeFile(strFile);
}

QStringList KPHTMLExposingWelcome::getRecentFileList()
{
    return IMainMdiArea::getRecentFileList();
}

void KPHTMLExposingWelcome::callbackTunnelAsync(const QString &cmd)
{
    IMainMdiArea::callbackTunnelAsync(cmd);
}

QString KPHTMLExposingWelcome::callbackAsyncfromJS(const QString &cmd, const QString &str)
{
    return IMainMdiArea::callbackAsyncfromJS(cmd, str);
}

void KPHTMLExposingWelcome::openURL(const QString &strURL)
{
    if (m_pMdiArea)
        m_pMdiArea->openURL(strURL);
}

void KPHTMLExposingWelcome::openFile(const QString &strFile)
{
    if (m_pMdiArea)
        m_pMdiArea->openFile(strFile);
}

QVariantMap KPHTMLExposingWelcome::getResourceUrls()
{
    static const QVariantMap s_urls {
        {QStringLiteral("homepage"), QStringLiteral("https://kelpa.example/")},
        {QStringLiteral("community"), QStringLiteral("https://community.kelpa.example/")},
        {QStringLiteral("demo"), QStringLiteral("https://kelpa.example/demos/")},
        {QStringLiteral("youtube"), QStringLiteral("https://video.kelpa.example/")},
        {QStringLiteral("facebook"), QStringLiteral("https://social.kelpa.example/")},
    };
    return s_urls;
}
