// SPDX-License-Identifier: MIT
#include "updater/updater.h"

#include "icore.h"
#include "iui.h"
#include "updater/downloader.h"
#include "updater/kpreleasenotedlg.h"
#include "updater/updatetexts.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>

#include <utility>

using UpdateTexts::shown;

namespace {

Q_LOGGING_CATEGORY(lcUpdater, "kelpa.core.updater")

constexpr int s_nTimeoutMs = 30000;
constexpr int s_nLongestError = 500;
constexpr auto s_hops = QNetworkRequest::User; ///< attribute: redirects before this request
constexpr char s_pReason[] = "reason"; ///< property: why the reply was aborted

// The feed names this address and is not trusted, so nothing but http and https reaches the desktop.
bool openInBrowser(const QString &strUrl)
{
    const QUrl url(strUrl);
    if (UpdateTexts::isWebUrl(url))
        return QDesktopServices::openUrl(url);
    qCWarning(lcUpdater) << "Not opened, since it is no address of the web:" << shown(strUrl);
    return false;
}

// Qt's error texts quote the whole address, which may hold a password; shown() leaves that out.
QString errorOf(const QNetworkReply &reply)
{
    const QString strUrl = reply.url().toString();
    return reply.errorString().replace(strUrl, shown(strUrl));
}

} // namespace

Updater::Updater(QObject *pParent)
    : QObject(pParent)
    , m_strModuleName(QCoreApplication::applicationName())
    , m_strModuleVersion(QCoreApplication::applicationVersion())
    , m_pDownloader(new Downloader)
    , m_pManager(new QNetworkAccessManager(this))
{
    m_pManager->setTransferTimeout(s_nTimeoutMs);
    connect(m_pDownloader, &Downloader::downloadFinished, this, &Updater::downloadFinished);
    connect(m_pManager, &QNetworkAccessManager::finished, this, &Updater::onReply);
    setUserAgentString(QStringLiteral("%1/%2 (Updater)")
                           .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion()));
}

Updater::~Updater()
{
    m_pManager->disconnect(this);
    delete m_pDownloader;
}

bool Updater::useCustomInstallProcedures() const
{
    return m_pDownloader->useCustomInstallProcedures();
}

void Updater::setUserAgentString(const QString &agent)
{
    m_strUserAgentString = agent;
    m_pDownloader->setUserAgentString(agent);
}

void Updater::setUseCustomInstallProcedures(bool custom)
{
    m_pDownloader->setUseCustomInstallProcedures(custom);
}

void Updater::checkForUpdates(bool bSilentIfNoUpdate)
{
    m_bSilentIfNoUpdate = bSilentIfNoUpdate;
    get(QUrl(m_strUrl), 0);
}

bool Updater::showDownload()
{
    return m_pDownloader->bringToFront();
}

// A receiver of checkingFinished() may delete this object, or start and end other checks.
void Updater::abort()
{
    const QPointer<Updater> pThis = this;
    QList<QPointer<QNetworkReply>> replies;
    for (QNetworkReply *pReply : m_pManager->findChildren<QNetworkReply *>())
        replies.append(pReply);
    for (const QPointer<QNetworkReply> &pReply : std::as_const(replies)) {
        if (!pThis)
            return;
        if (!pReply)
            continue;
        pReply->setProperty(s_pReason, tr("it was given up"));
        pReply->abort();
    }
}

// An answer is aborted as soon as it exceeds the limit, so that an endless feed cannot fill the memory.
void Updater::get(const QUrl &url, int nRedirects)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(s_hops, nRedirects);
    if (!m_strUserAgentString.isEmpty())
        request.setRawHeader("User-Agent", m_strUserAgentString.toUtf8());
    QNetworkReply *pReply = m_pManager->get(request);
    connect(pReply, &QNetworkReply::readyRead, this, [this, pReply] {
        const qsizetype nMost = m_bCustomAppcast ? Appcast::LargestCustomSize : Appcast::LargestSize;
        if (pReply->bytesAvailable() <= nMost)
            return;
        pReply->setProperty(s_pReason, tr("the answer is larger than %1 bytes").arg(nMost));
        pReply->abort();
    });
}

// The reply is still emitting a signal, so it must survive if a receiver deletes this object and the manager.
void Updater::onReply(QNetworkReply *reply)
{
    reply->setParent(nullptr);
    reply->deleteLater();
    if (follow(reply))
        return;
    if (reply->error() != QNetworkReply::NoError)
        return failToReach(reply);
    const QByteArray data = reply->readAll();
    if (!m_bCustomAppcast)
        return readAppcast(data);
    m_strLastError.clear();
    const QPointer<Updater> pThis = this;
    const QString strUrl = m_strUrl;
    emit appcastDownloaded(strUrl, data);
    if (pThis)
        emit checkingFinished(strUrl);
}

// Returns true if the reply was a redirect; it was then followed, or it ended the check with an error.
bool Updater::follow(const QNetworkReply *pReply)
{
    const QUrl target = pReply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (target.isEmpty() || pReply->error() == QNetworkReply::OperationCanceledError)
        return false;
    const QUrl url = pReply->url().resolved(target);
    const int nFollowed = pReply->request().attribute(s_hops).toInt();
    const QString strObjection = UpdateTexts::redirectObjection(pReply->url(), url, nFollowed);
    if (strObjection.isEmpty()) {
        m_strUrl = url.toString();
        get(url, nFollowed + 1);
        return true;
    }
    endWithout(tr("Cannot reach %1: %2.").arg(shown(m_strUrl), strObjection));
    return true;
}

void Updater::failToReach(const QNetworkReply *pReply)
{
    QString strReason = pReply->property(s_pReason).toString();
    if (strReason.isEmpty())
        strReason = pReply->error() == QNetworkReply::OperationCanceledError
            ? tr("no answer within %1 seconds").arg(m_pManager->transferTimeout() / 1000.0)
            : errorOf(*pReply);
    endWithout(tr("Cannot reach %1: %2.").arg(shown(m_strUrl), strReason));
}

// A failed check ends like one that found no update; lastError() tells the difference.
void Updater::endWithout(const QString &strError)
{
    m_strLastError = UpdateTexts::shortened(strError, s_nLongestError);
    qCInfo(lcUpdater) << strError.left(UpdateTexts::LongestLog);
    end(false);
}

// A dialog may open in here, and this object may be deleted while it is open.
void Updater::end(bool bAvailable)
{
    const QPointer<Updater> pThis = this;
    setUpdateAvailable(bAvailable);
    if (!pThis)
        return;
    const QString strUrl = m_strUrl;
    emit checkingFinished(strUrl);
}

void Updater::readAppcast(const QByteArray &data)
{
    m_appcast = Appcast::parse(data, m_strPlatformKey);
    if (!m_appcast.strFault.isEmpty())
        return endWithout(tr("%1 is not a valid feed: %2.").arg(shown(m_strUrl), m_appcast.strFault));
    m_strLastError.clear();
    end(UpdateTexts::isNewer(m_appcast.strLatestVersion, m_strModuleVersion));
}

void Updater::setUpdateAvailable(bool available)
{
    m_bUpdateAvailable = available;
    if (available)
        qCInfo(lcUpdater, "New version: %s",
            qUtf8Printable(m_appcast.strLatestVersion.left(UpdateTexts::LongestLog)));
    else
        qCInfo(lcUpdater, "No updates available.");
    if (available && (m_bNotifyOnUpdate || m_bNotifyOnFinish))
        offer();
    else if (!available && m_bNotifyOnFinish && !m_bSilentIfNoUpdate)
        congratulate();
}

// While the dialog is open, this object may be deleted, or another check may replace m_appcast; the answer
// applies to the version that the dialog shows.
void Updater::offer()
{
    if (m_bOffering || showDownload())
        return;
    const Appcast offered = m_appcast;
    const QPointer<Updater> pThis = this;
    const QPointer<KPReleaseNoteDlg> pDialog = new KPReleaseNoteDlg(ICore::getMainWidget());
    const QString strVersion = UpdateTexts::shortened(offered.strLatestVersion, UpdateTexts::LongestVersion);
    pDialog->setHeading(tr("<b>%1 %2 has been released!</b>")
                            .arg(m_strModuleName.toHtmlEscaped(), strVersion.toHtmlEscaped()));
    pDialog->setReleaseNotes(offered.strChangelog);
    m_bOffering = true;
    const int nResult = pDialog->exec();
    delete pDialog;
    if (!pThis)
        return;
    m_bOffering = false;
    if (nResult == QDialog::Accepted)
        accept(offered);
    else if (nResult != QDialog::Rejected)
        emit offerPutOff(offered.strLatestVersion, nResult == KPReleaseNoteDlg::SkipVersion);
}

void Updater::accept(const Appcast &appcast)
{
    const QString strPage = appcast.strOpenUrl.isEmpty() ? appcast.strDownloadUrl : appcast.strOpenUrl;
    if (!appcast.strOpenUrl.isEmpty() || !m_bDownloaderEnabled) {
        openInBrowser(strPage);
        return;
    }
    m_pDownloader->setUrlId(m_strUrl);
    m_pDownloader->setFileName(UpdateTexts::fileNameOf(appcast.strDownloadUrl));
    m_pDownloader->setInstallerCheck(
        {InstallerCheck::configuredKey(), appcast.strSha256, appcast.strSignature});
    m_pDownloader->startDownload(QUrl(appcast.strDownloadUrl));
}

void Updater::congratulate()
{
    IUi::run(nullptr, QStringLiteral("information_32"), IUi::getTitle(), [this](QMessageBox *pBox) {
        pBox->setTextFormat(Qt::RichText);
        pBox->setText(QStringLiteral("<h3>")
            + tr("Congratulations! You are running the latest version of %1")
                  .arg(m_strModuleName.toHtmlEscaped())
            + QStringLiteral("</h3>"));
        pBox->setInformativeText(tr("No updates are available at the moment."));
        pBox->setStandardButtons(QMessageBox::Close);
    });
}
