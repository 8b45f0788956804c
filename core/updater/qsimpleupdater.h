// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <updater/updater.h>

/// Entry to the updates of the program and of plug-ins: each operation acts on the Updater of the feed whose
/// address it takes first, and creates that Updater if there is none. A redirect of the feed does not change
/// this address. getInstance() may be called on any thread, everything else on the GUI thread only. The
/// destructor of the application object deletes the instance, before it deletes the remaining windows.
class CORE_EXPORT QSimpleUpdater : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QSimpleUpdater)

public:
    [[nodiscard]] static QSimpleUpdater *getInstance();

    [[nodiscard]] bool getNotifyOnUpdate(const QString &url) { return getUpdater(url)->notifyOnUpdate(); }
    [[nodiscard]] bool getNotifyOnFinish(const QString &url) { return getUpdater(url)->notifyOnFinish(); }
    [[nodiscard]] bool getUpdateAvailable(const QString &url) { return getUpdater(url)->updateAvailable(); }
    [[nodiscard]] bool getDownloaderEnabled(const QString &url)
    {
        return getUpdater(url)->downloaderEnabled();
    }
    [[nodiscard]] bool usesCustomInstallProcedures(const QString &url)
    {
        return getUpdater(url)->useCustomInstallProcedures();
    }
    [[nodiscard]] bool usesCustomAppcast(const QString &url) { return getUpdater(url)->customAppcast(); }

    [[nodiscard]] QString getOpenUrl(const QString &url) { return getUpdater(url)->openUrl(); }
    [[nodiscard]] QString getChangelog(const QString &url) { return getUpdater(url)->changelog(); }
    [[nodiscard]] QString getModuleName(const QString &url) { return getUpdater(url)->moduleName(); }
    [[nodiscard]] QString getDownloadUrl(const QString &url) { return getUpdater(url)->downloadUrl(); }
    [[nodiscard]] QString getPlatformKey(const QString &url) { return getUpdater(url)->platformKey(); }
    [[nodiscard]] QString getLatestVersion(const QString &url) { return getUpdater(url)->latestVersion(); }
    [[nodiscard]] QString getModuleVersion(const QString &url) { return getUpdater(url)->moduleVersion(); }
    [[nodiscard]] QString getUserAgentString(const QString &url)
    {
        return getUpdater(url)->userAgentString();
    }

    /// Why the last check failed, as a sentence for the user; empty if it succeeded.
    [[nodiscard]] QString getLastError(const QString &url) { return getUpdater(url)->lastError(); }

    /// Aborts the running checks. Each of them ends like a check that could not reach its server.
    void abort(const QString &url) { getUpdater(url)->abort(); }

    /// Brings the window of a download to the front that runs or waits to be installed. Returns false if
    /// there is none.
    bool showDownload(const QString &url) { return getUpdater(url)->showDownload(); }

public slots:
    void checkForUpdates(const QString &url, bool bSilentIfNoUpdate)
    {
        getUpdater(url)->checkForUpdates(bSilentIfNoUpdate);
    }
    void setModuleName(const QString &url, const QString &name) { getUpdater(url)->setModuleName(name); }
    void setNotifyOnUpdate(const QString &url, bool notify) { getUpdater(url)->setNotifyOnUpdate(notify); }
    void setNotifyOnFinish(const QString &url, bool notify) { getUpdater(url)->setNotifyOnFinish(notify); }
    void setPlatformKey(const QString &url, const QString &platform)
    {
        getUpdater(url)->setPlatformKey(platform);
    }
    void setModuleVersion(const QString &url, const QString &version)
    {
        getUpdater(url)->setModuleVersion(version);
    }
    void setDownloaderEnabled(const QString &url, bool enabled)
    {
        getUpdater(url)->setDownloaderEnabled(enabled);
    }
    void setUserAgentString(const QString &url, const QString &agent)
    {
        getUpdater(url)->setUserAgentString(agent);
    }
    void setUseCustomInstallProcedures(const QString &url, bool custom)
    {
        getUpdater(url)->setUseCustomInstallProcedures(custom);
    }
    void setUseCustomAppcast(const QString &url, bool customAppcast)
    {
        getUpdater(url)->setUseCustomAppcast(customAppcast);
    }

signals:
    /// Passed on from the updaters: `url` is the address that redirects of the feed led to.
    void checkingFinished(const QString &url);
    void appcastDownloaded(const QString &url, const QByteArray &data);
    void downloadFinished(const QString &url, const QString &filepath);

    /// `firstUrl` is the address used here. Emitted after checkingFinished() and like Updater::offerPutOff().
    void checkEnded(const QString &firstUrl);
    void offerPutOff(const QString &firstUrl, const QString &version, bool permanently);

private:
    QSimpleUpdater() = default;
    ~QSimpleUpdater() override;

    [[nodiscard]] Updater *getUpdater(const QString &url);
};
