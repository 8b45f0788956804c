// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QObject>
#include <QStringList>

class Updater;

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

    [[nodiscard]] bool getNotifyOnUpdate(const QString &url);
    [[nodiscard]] bool getNotifyOnFinish(const QString &url);
    [[nodiscard]] bool getUpdateAvailable(const QString &url);
    [[nodiscard]] bool getDownloaderEnabled(const QString &url);
    [[nodiscard]] bool usesCustomInstallProcedures(const QString &url);
    [[nodiscard]] bool usesCustomAppcast(const QString &url);

    [[nodiscard]] QString getOpenUrl(const QString &url);
    [[nodiscard]] QString getChangelog(const QString &url);
    [[nodiscard]] QString getModuleName(const QString &url);
    [[nodiscard]] QString getDownloadUrl(const QString &url);
    [[nodiscard]] QString getPlatformKey(const QString &url);
    [[nodiscard]] QString getLatestVersion(const QString &url);
    [[nodiscard]] QString getModuleVersion(const QString &url);
    [[nodiscard]] QString getUserAgentString(const QString &url);

    /// Why the last check found out nothing, as a sentence for people; empty when it did.
    [[nodiscard]] QString getLastError(const QString &url);

    /// Ends the checks under way, which then could not reach their server.
    void abort(const QString &url);

    /// Brings the window of a download that has not been installed or cancelled to the front; false when
    /// there is none.
    bool showDownload(const QString &url);

public slots:
    void checkForUpdates(const QString &url, bool bSilentIfNoUpdate);
    void setModuleName(const QString &url, const QString &name);
    void setNotifyOnUpdate(const QString &url, bool notify);
    void setNotifyOnFinish(const QString &url, bool notify);
    void setPlatformKey(const QString &url, const QString &platform);
    void setModuleVersion(const QString &url, const QString &version);
    void setDownloaderEnabled(const QString &url, bool enabled);
    void setUserAgentString(const QString &url, const QString &agent);
    void setUseCustomInstallProcedures(const QString &url, bool custom);
    void setUseCustomAppcast(const QString &url, bool customAppcast);

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
