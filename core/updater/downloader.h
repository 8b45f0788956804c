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

/// The small window that downloads an installer into downloadFolder(), shows the progress, and then offers to
/// run the installer. Each Updater owns one. The file has the suffix ".part" until the installer is complete
/// and, if there is a key, checked. An older file of the same name then goes to the trash; if that is
/// impossible, it stays and the installer gets a free name. The window stays in front of the main window and
/// closes with it, without a question. GUI thread only; it must not outlive the application object.
class CORE_EXPORT Downloader : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Downloader)

public:
    explicit Downloader(QWidget *pParent = nullptr);
    ~Downloader() override;

    [[nodiscard]] bool useCustomInstallProcedures() const { return m_bUseCustomInstallProcedures; }

    /// What the next download must pass. If `check` has no key, the configured key is used.
    void setInstallerCheck(const InstallerCheck &check) { m_check = check; }

    /// Also restores a minimized window. Returns false and does nothing if the window is hidden.
    bool bringToFront();

    /// The folder "Downloads" in the user's home, with a slash at the end.
    [[nodiscard]] static QString downloadFolder();

public slots:
    void setUrlId(const QString &url) { m_strUrlId = url; }

    /// Aborts a running download and starts this one. Any failure leads to one message to the user.
    void startDownload(const QUrl &url);

    /// A name that UpdateTexts::safeFileName() refuses is replaced by its default.
    void setFileName(const QString &file);
    void setUserAgentString(const QString &agent) { m_strUserAgentString = agent; }

    /// With true the window does not offer to run the installer; that is up to downloadFinished()'s receiver.
    void setUseCustomInstallProcedures(bool custom) { m_bUseCustomInstallProcedures = custom; }

signals:
    /// `url` is what setUrlId() was given, `filepath` the installer. The receiver may delete this object.
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
    qint64 m_nSkipped = 0; ///< bytes dropped so far from a page that came with an error status
    State m_state = State::Idle;
    QPointer<QObject> m_pWorker; ///< the thread or process whose result is awaited; others are ignored
};
