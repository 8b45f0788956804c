// SPDX-License-Identifier: MIT
#include "updater/qsimpleupdater.h"

#include "updater/updater.h"

#include <QCoreApplication>
#include <QList>
#include <QMutex>

namespace {

QBasicMutex s_mutex;
QSimpleUpdater *s_pInstance = nullptr;

// In parallel, in the order of their creation.
QStringList s_urls;
QList<Updater *> s_updaters;

} // namespace

// The updaters own windows, which must not outlive the application object.
QSimpleUpdater *QSimpleUpdater::getInstance()
{
    const QMutexLocker locker(&s_mutex);
    if (!s_pInstance) {
        s_pInstance = new QSimpleUpdater;
        if (const QCoreApplication *pApplication = QCoreApplication::instance())
            s_pInstance->moveToThread(pApplication->thread());
        qAddPostRoutine([] { delete s_pInstance; });
    }
    return s_pInstance;
}

QSimpleUpdater::~QSimpleUpdater()
{
    qDeleteAll(s_updaters);
    s_updaters.clear();
    s_urls.clear();
    s_pInstance = nullptr;
}

Updater *QSimpleUpdater::getUpdater(const QString &url)
{
    if (!s_urls.contains(url)) {
        auto *pUpdater = new Updater;
        pUpdater->setUrl(url);
        s_urls.append(url);
        s_updaters.append(pUpdater);
        connect(pUpdater, &Updater::checkingFinished, this, &QSimpleUpdater::checkingFinished);
        connect(pUpdater, &Updater::appcastDownloaded, this, &QSimpleUpdater::appcastDownloaded);
        connect(pUpdater, &Updater::downloadFinished, this, &QSimpleUpdater::downloadFinished);
        connect(pUpdater, &Updater::checkingFinished, this, [this, url] { emit checkEnded(url); });
        connect(pUpdater, &Updater::offerPutOff, this, [this, url](const QString &version, bool permanently) {
            emit offerPutOff(url, version, permanently);
        });
    }
    return s_updaters.at(s_urls.indexOf(url));
}

bool QSimpleUpdater::getNotifyOnUpdate(const QString &url)
{
    return getUpdater(url)->notifyOnUpdate();
}

bool QSimpleUpdater::getNotifyOnFinish(const QString &url)
{
    return getUpdater(url)->notifyOnFinish();
}

bool QSimpleUpdater::getUpdateAvailable(const QString &url)
{
    return getUpdater(url)->updateAvailable();
}

bool QSimpleUpdater::getDownloaderEnabled(const QString &url)
{
    return getUpdater(url)->downloaderEnabled();
}

bool QSimpleUpdater::usesCustomInstallProcedures(const QString &url)
{
    return getUpdater(url)->useCustomInstallProcedures();
}

bool QSimpleUpdater::usesCustomAppcast(const QString &url)
{
    return getUpdater(url)->customAppcast();
}

QString QSimpleUpdater::getOpenUrl(const QString &url)
{
    return getUpdater(url)->openUrl();
}

QString QSimpleUpdater::getChangelog(const QString &url)
{
    return getUpdater(url)->changelog();
}

QString QSimpleUpdater::getModuleName(const QString &url)
{
    return getUpdater(url)->moduleName();
}

QString QSimpleUpdater::getDownloadUrl(const QString &url)
{
    return getUpdater(url)->downloadUrl();
}

QString QSimpleUpdater::getPlatformKey(const QString &url)
{
    return getUpdater(url)->platformKey();
}

QString QSimpleUpdater::getLatestVersion(const QString &url)
{
    return getUpdater(url)->latestVersion();
}

QString QSimpleUpdater::getModuleVersion(const QString &url)
{
    return getUpdater(url)->moduleVersion();
}

QString QSimpleUpdater::getUserAgentString(const QString &url)
{
    return getUpdater(url)->userAgentString();
}

QString QSimpleUpdater::getLastError(const QString &url)
{
    return getUpdater(url)->lastError();
}

bool QSimpleUpdater::showDownload(const QString &url)
{
    return getUpdater(url)->showDownload();
}

void QSimpleUpdater::abort(const QString &url)
{
    getUpdater(url)->abort();
}

void QSimpleUpdater::checkForUpdates(const QString &url, bool bSilentIfNoUpdate)
{
    getUpdater(url)->checkForUpdates(bSilentIfNoUpdate);
}

void QSimpleUpdater::setModuleName(const QString &url, const QString &name)
{
    getUpdater(url)->setModuleName(name);
}

void QSimpleUpdater::setNotifyOnUpdate(const QString &url, bool notify)
{
    getUpdater(url)->setNotifyOnUpdate(notify);
}

void QSimpleUpdater::setNotifyOnFinish(const QString &url, bool notify)
{
    getUpdater(url)->setNotifyOnFinish(notify);
}

void QSimpleUpdater::setPlatformKey(const QString &url, const QString &platform)
{
    getUpdater(url)->setPlatformKey(platform);
}

void QSimpleUpdater::setModuleVersion(const QString &url, const QString &version)
{
    getUpdater(url)->setModuleVersion(version);
}

void QSimpleUpdater::setDownloaderEnabled(const QString &url, bool enabled)
{
    getUpdater(url)->setDownloaderEnabled(enabled);
}

void QSimpleUpdater::setUserAgentString(const QString &url, const QString &agent)
{
    getUpdater(url)->setUserAgentString(agent);
}

void QSimpleUpdater::setUseCustomInstallProcedures(const QString &url, bool custom)
{
    getUpdater(url)->setUseCustomInstallProcedures(custom);
}

void QSimpleUpdater::setUseCustomAppcast(const QString &url, bool customAppcast)
{
    getUpdater(url)->setUseCustomAppcast(customAppcast);
}
