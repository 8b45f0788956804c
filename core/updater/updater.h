// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <updater/appcast.h>

#include <QObject>
#include <QUrl>

class Downloader;
class QNetworkAccessManager;
class QNetworkReply;

/// Looks at one feed for a version newer than a given one, and offers it. QSimpleUpdater makes one for each
/// feed and owns it. GUI thread only; it must not outlive the application object, since it owns a window.
class CORE_EXPORT Updater : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Updater)

public:
    explicit Updater(QObject *pParent = nullptr);
    ~Updater() override;

    /// Where the feed was found last: a redirect replaces it for good.
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

    /// Why the last check found out nothing, as a sentence for people; empty when it did.
    [[nodiscard]] QString lastError() const { return m_strLastError; }

    /// Ends the checks under way; each ends as one that could not reach its server.
    void abort();

    /// Brings the window of a download under way, or done and not yet installed, to the front; false when
    /// there is none. Meanwhile nothing is offered: an offer does the same.
    bool showDownload();

signals:
    /// A check ended; any dialog that it led to has been closed.
    void checkingFinished(const QString &url);
    void appcastDownloaded(const QString &url, const QByteArray &data);
    void downloadFinished(const QString &url, const QString &filepath);

    /// The user wants to hear of this version later, or never again.
    void offerPutOff(const QString &version, bool permanently);

public slots:
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
    Downloader *m_pDownloader; ///< a window of its own, owned here
    QNetworkAccessManager *m_pManager;
};
