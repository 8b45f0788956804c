// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <updater/installercheck.h>
#include <updater/partfile.h>

#include <QPointer>
#include <QUrl>
#include <QWidget>

#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

namespace Ui {
class Downloader;
}

/// The small window that downloads an installer into the user's folder of downloads, shows how far it is, and
/// then offers to run it. Each Updater owns one. Until the installer is complete, and checked if there is a
/// key, its file has the suffix ".part"; what had its name before then goes to the trash, or stays if that
/// cannot be, and the installer gets a free name. The window stays in front of the main window, and goes
/// without a question when that is closed. GUI thread only; it must not outlive the application object.
class CORE_EXPORT Downloader : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Downloader)

public:
    explicit Downloader(QWidget *pParent = nullptr);
    ~Downloader() override;

    [[nodiscard]] bool useCustomInstallProcedures() const { return m_bUseCustomInstallProcedures; }

    /// What the next download has to pass. Without a key the configured one counts.
    void setInstallerCheck(const InstallerCheck &check) { m_check = check; }

    /// False, and nothing else, when the window is not shown.
    bool bringToFront();

    /// "~/Downloads/", with the slash.
    [[nodiscard]] static QString downloadFolder();

public slots:
    void setUrlId(const QString &url) { m_strUrlId = url; }

    /// Ends a download under way and starts this one. Every way it can fail ends in one message.
    void startDownload(const QUrl &url);

    /// An empty name, and one that could lead elsewhere, becomes "Kelpa_Update.bin".
    void setFileName(const QString &file);
    void setUserAgentString(const QString &agent) { m_strUserAgentString = agent; }

    /// The window then offers nothing: whoever hears downloadFinished() installs.
    void setUseCustomInstallProcedures(bool custom) { m_bUseCustomInstallProcedures = custom; }

signals:
    /// `url` is the id that was set, `filepath` the finished installer. Whoever hears it may delete this.
    void downloadFinished(const QString &url, const QString &filepath);

protected:
    void closeEvent(QCloseEvent *pEvent) override;
    void keyPressEvent(QKeyEvent *pEvent) override;

private slots:
    void openDownload();
    void installUpdate();
    void cancelDownload();
    void saveFile(qint64 received, qint64 total);
    void calculateSizes(qint64 received, qint64 total);
    void updateProgress(qint64 received, qint64 total);
    void calculateTimeRemaining(qint64 received, qint64 total);
    void onRedirected(const QUrl &url);
    void onError();
    void onFinished();

private:
    enum class State { Idle, Loading, Canceled, Received, Checking, Ready };

    void begin(const QUrl &url);
    void resetTexts();
    void request(const QUrl &url);
    [[nodiscard]] bool takeData();
    void skipPage(int nStatus);
    void failWithStatus(int nStatus);
    void completeLater();
    void complete();
    void finish();
    using Continuation = void (Downloader::*)();
    void checkThen(const QString &strFileName, Continuation next);
    void requireKey();
    void discard(const QString &strFileName, const QString &strReason);
    [[nodiscard]] bool isAwaited(const QObject *pWorker) const;
    void findHandler();
    void runInstaller(bool bHandler);
    void releaseReply();
    void fail(const QString &strReason);

    QString m_strUrlId;
    qint64 m_nStartTime = 0; ///< seconds since the epoch
    QString m_strFileName;
    const std::unique_ptr<Ui::Downloader> m_pUi;
    QPointer<QNetworkReply> m_pReply;
    QString m_strUserAgentString;
    bool m_bUseCustomInstallProcedures = false;
    QNetworkAccessManager *m_pManager;

    InstallerCheck m_check;
    QUrl m_url; ///< of the request under way
    int m_nRedirects = 0;
    PartFile m_file;
    qint64 m_nSkipped = 0; ///< bytes of an error's page
    State m_state = State::Idle;
    QPointer<QObject> m_pWorker; ///< the thread or process whose result counts
};
