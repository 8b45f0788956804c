// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <updater/appcast.h>

#include <QObject>
#include <QUrl>

class Downloader;
class QNetworkAccessManager;
class QNetworkReply;

/// Looks for a newer version in one feed and offers it to the user. QSimpleUpdater creates and owns one for
/// each feed. GUI thread only; it must not outlive the application object, since it owns a window.
class CORE_EXPORT Updater : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Updater)

public:
    explicit Updater(QObject *pParent = nullptr);
    ~Updater() override;

    /// The address set last; a redirect that was followed replaces it for later checks, too.
    [[nodiscard]] QString url() const { return m_strUrl; }
    [[nodiscard]] QString openUrl() const { return m_appcast.strOpenUrl; }
    [[nodiscard]] QString changelog() const { return m_appcast.strChangelog; }
    [[nodiscard]] QString moduleName() const { return m_strModuleName; }
    [[nodiscard]] QString downloadUrl() const { return m_appcast.strDownloadUrl; }
    [[nodiscard]] QString platformKey() const { return m_strPlatformKey; }
    [[nodiscard]] QString moduleVersion() const { return m_strModuleVersion; }
    [[nodiscard]] QString latestVersion() const { return m_appcast.strLatestVersion; }
    [[nodiscard]] QString userAgentString() const { return m_strUserAgentString; }
    [[nodiscard]] bool customAppcast() const { return m_bCustomAppcast; }
    [[nodiscard]] bool notifyOnUpdate() const { return m_bNotifyOnUpdate; }
    [[nodiscard]] bool notifyOnFinish() const { return m_bNotifyOnFinish; }
    [[nodiscard]] bool updateAvailable() const { return m_bUpdateAvailable; }
    [[nodiscard]] bool downloaderEnabled() const { return m_bDownloaderEnabled; }
    [[nodiscard]] bool useCustomInstallProcedures() const;

    /// Why the last check failed, as a sentence for the user; empty if it succeeded.
    [[nodiscard]] QString lastError() const { return m_strLastError; }

    /// Aborts the running checks. Each of them ends like a check that could not reach its server.
    void abort();

    /// Brings the window of a download to the front that runs or waits to be installed. Returns false if
    /// there is none. While there is one, a check shows it in place of an offer.
    bool showDownload();

signals:
    /// A check ended, and the dialog it opened, if any, is closed. The receiver may delete this object.
    void checkingFinished(const QString &url);
    /// Only with customAppcast(): the feed, which is then not read here. checkingFinished() follows.
    void appcastDownloaded(const QString &url, const QByteArray &data);
    void downloadFinished(const QString &url, const QString &filepath);

    /// The user chose to be reminded of this version later or, if `permanently`, to skip it.
    void offerPutOff(const QString &version, bool permanently);

public slots:
    /// Starts a check. An offer is shown if notifyOnUpdate() or notifyOnFinish() is set; that there is no
    /// update is told only if notifyOnFinish() is set and `bSilentIfNoUpdate` is false.
    void checkForUpdates(bool bSilentIfNoUpdate);
    void setUrl(const QString &url) { m_strUrl = url; }
    void setModuleName(const QString &name) { m_strModuleName = name; }
    void setNotifyOnUpdate(bool notify) { m_bNotifyOnUpdate = notify; }
    void setNotifyOnFinish(bool notify) { m_bNotifyOnFinish = notify; }
    void setUserAgentString(const QString &agent);
    void setModuleVersion(const QString &version) { m_strModuleVersion = version; }
    void setDownloaderEnabled(bool enabled) { m_bDownloaderEnabled = enabled; }
    void setPlatformKey(const QString &platformKey) { m_strPlatformKey = platformKey; }
    void setUseCustomAppcast(bool customAppcast) { m_bCustomAppcast = customAppcast; }
    void setUseCustomInstallProcedures(bool custom);

private slots:
    void onReply(QNetworkReply *reply);
    void setUpdateAvailable(bool available);

private:
    void get(const QUrl &url, int nRedirects);
    [[nodiscard]] bool follow(const QNetworkReply *pReply);
    void failToReach(const QNetworkReply *pReply);
    void end(bool bAvailable);
    void endWithout(const QString &strError);
    void readAppcast(const QByteArray &data);
    void offer();
    void accept(const Appcast &appcast);
    void congratulate();

    QString m_strUrl;
    QString m_strUserAgentString;
    bool m_bCustomAppcast = false;
    bool m_bNotifyOnUpdate = true;
    bool m_bNotifyOnFinish = false;
    bool m_bUpdateAvailable = false;
    bool m_bDownloaderEnabled = true;
    bool m_bSilentIfNoUpdate = true;
    bool m_bOffering = false;
    QString m_strPlatformKey = QStringLiteral("windows");
    QString m_strModuleName;
    QString m_strModuleVersion;
    Appcast m_appcast;
    QString m_strLastError;
    Downloader *m_pDownloader; ///< owned here without being a child, since it is a window
    QNetworkAccessManager *m_pManager;
};
