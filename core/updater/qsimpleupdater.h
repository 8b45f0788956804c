// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <updater/updater.h>

/// The program's updates, by the address of their feed: every operation acts on the Updater of the address
/// that it takes first, and makes it on first use. Redirects do not change the address to use here. The first
/// call makes the object, on any thread; all else is for the GUI thread. It goes with the application object,
/// before its windows.
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

    /// Why the last check found out nothing, as a sentence for people; empty when it did.
    [[nodiscard]] QString getLastError(const QString &url) { return getUpdater(url)->lastError(); }

    /// Ends the checks under way, which then could not reach their server.
    void abort(const QString &url) { getUpdater(url)->abort(); }

    /// Brings the window of a download that has not been installed or cancelled to the front; false when
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
    /// As the updaters emit them: with the address that redirects led to.
    void checkingFinished(const QString &url);
    void appcastDownloaded(const QString &url, const QByteArray &data);
    void downloadFinished(const QString &url, const QString &filepath);

    /// With the address to use here: after each checkingFinished(), and when the user puts an offer off.
    void checkEnded(const QString &firstUrl);
    void offerPutOff(const QString &firstUrl, const QString &version, bool permanently);

private:
    QSimpleUpdater() = default;
    ~QSimpleUpdater() override;

    [[nodiscard]] Updater *getUpdater(const QString &url);
};
