// SPDX-License-Identifier: MIT
#include "updater/downloader.h"

#include "displayscale.h"
#include "icore.h"
#include "iui.h"
#include "ui_downloader.h"
#include "updater/updatetexts.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QMimeDatabase>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <QWindow>

namespace {

Q_LOGGING_CATEGORY(lcUpdater, "kelpa.core.updater")

constexpr int s_nTimeoutMs = 30000;
constexpr int s_nLongestReason = 500; ///< in characters
constexpr int s_nHandlerTimeoutMs = 3000;
constexpr qint64 s_nReadBuffer = 1024 * 1024;
constexpr qint64 s_nLargestPage = 1024 * 1024; ///< bytes of a page that comes with an error status

// "$0" is xdg-mime, the arguments are types. Exit code 4 (the action failed) means: no program for a type.
constexpr char s_pHandlerQuery[] =
    "for type; do \"$0\" query default \"$type\" || [ $? = 4 ] || exit 1; done";

QStringList typesOf(const QString &strFileName)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(strFileName);
    return QStringList(type.name()) + type.allAncestors();
}

constexpr auto inQuotes = &PartFile::inQuotes;

} // namespace

Downloader::Downloader(QWidget *pParent)
    : QWidget(pParent)
    , m_pUi(new Ui::Downloader)
    , m_pManager(new QNetworkAccessManager(this))
{
    m_pUi->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::WindowCloseButtonHint);
    // The program ends with its main window, also during a download; see closeEvent().
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowIcon(IUi::getIcon());
    m_pManager->setTransferTimeout(s_nTimeoutMs);
    connect(m_pUi->stopButton, &QPushButton::clicked, this, &Downloader::cancelDownload);
    connect(m_pUi->openButton, &QPushButton::clicked, this, &Downloader::installUpdate);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

Downloader::~Downloader()
{
    releaseReply();
    // Qt: "Deleting a running QThread (i.e. isFinished() returns false) will result in a program crash."
    const auto threads = findChildren<QThread *>();
    for (QThread *pThread : threads)
        pThread->wait();
}

QString Downloader::downloadFolder()
{
    return QDir::homePath() + QStringLiteral("/Downloads/");
}

void Downloader::setFileName(const QString &file)
{
    m_strFileName = UpdateTexts::safeFileName(file);
    m_file = PartFile(downloadFolder() + m_strFileName);
}

void Downloader::startDownload(const QUrl &url)
{
    m_nRedirects = 0;
    begin(url);
}

// Starts from the beginning. A redirect comes here as well, so nothing of the first answer is kept.
void Downloader::begin(const QUrl &url)
{
    releaseReply();
    requireKey();
    m_state = State::Idle;
    m_url = url;
    m_nSkipped = 0;
    resetTexts();
    setFileName(m_strFileName);
    if (!UpdateTexts::isWebUrl(url))
        return fail(tr("Cannot download update: %1.")
                        .arg(tr("\"%1\" is no address of the web").arg(UpdateTexts::shown(url))));
    if (const QString strObjection = m_check.objection(); !strObjection.isEmpty())
        return fail(tr("The update is not installed: %1.").arg(strObjection));
    if (const QString strReason = m_file.create(); !strReason.isEmpty())
        return fail(strReason);
    request(url);
    // A transient window stays in front of the main window; a child would be deleted with it.
    winId();
    const QWidget *pMainWindow = ICore::getMainWidget();
    windowHandle()->setTransientParent(pMainWindow ? pMainWindow->windowHandle() : nullptr);
    showNormal();
}

bool Downloader::bringToFront()
{
    if (!isVisible())
        return false;
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    return true;
}

void Downloader::resetTexts()
{
    const int nDPI = DisplayScale::logicalDpi(this);
    const int nIcon = DisplayScale::proportional(nDPI, 32);
    m_pUi->updater_icon->setPixmap(IUi::getPixmap(QStringLiteral("update"), 0, false)
                                       .scaled(nIcon, nIcon, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    m_pUi->progressFrame->setMinimumWidth(DisplayScale::proportional(nDPI, 400));
    m_pUi->progressBar->setRange(0, 100);
    m_pUi->progressBar->setValue(0);
    m_pUi->openButton->setEnabled(false);
    m_pUi->stopButton->setText(tr("Stop"));
    m_pUi->downloadLabel->setText(tr("Downloading Updates"));
    m_pUi->timeLabel->setText(tr("Time Remaining") + QStringLiteral(": ") + tr("Unknown"));
}

// Compressed transfers are declined because the sizes that they announce are not those of the file.
void Downloader::request(const QUrl &url)
{
    QNetworkRequest request(url);
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setRawHeader("Accept-Encoding", "identity");
    if (!m_strUserAgentString.isEmpty())
        request.setRawHeader("User-Agent", m_strUserAgentString.toUtf8());
    m_nStartTime = QDateTime::currentSecsSinceEpoch();
    m_state = State::Loading;
    m_pReply = m_pManager->get(request);
    m_pReply->setReadBufferSize(s_nReadBuffer);
    connect(m_pReply, &QNetworkReply::downloadProgress, this, &Downloader::updateProgress);
    connect(m_pReply, &QNetworkReply::readyRead, this, &Downloader::takeData);
    connect(m_pReply, &QNetworkReply::redirected, this, &Downloader::onRedirected);
    connect(m_pReply, &QNetworkReply::errorOccurred, this, &Downloader::onError);
    connect(m_pReply, &QNetworkReply::finished, this, &Downloader::onFinished);
}

void Downloader::onRedirected(const QUrl &url)
{
    const QUrl target = m_url.resolved(url);
    const QString strObjection = UpdateTexts::redirectObjection(m_url, target, m_nRedirects);
    if (!strObjection.isEmpty())
        return fail(tr("Cannot download update: %1.").arg(strObjection));
    ++m_nRedirects;
    begin(target);
}

// No more signals of this reply arrive here. It is deleted later, since it may be emitting one right now.
void Downloader::releaseReply()
{
    if (!m_pReply)
        return;
    m_pReply->disconnect(this);
    if (!m_pReply->isFinished() && m_pReply->error() == QNetworkReply::NoError)
        m_pReply->abort();
    m_pReply->deleteLater();
    m_pReply.clear();
}

void Downloader::updateProgress(qint64 received, qint64 total)
{
    if (total < 1) {
        m_pUi->progressBar->setRange(0, 0);
        m_pUi->progressBar->setValue(-1);
        m_pUi->downloadLabel->setText(tr("Downloading Updates") + QStringLiteral("..."));
        m_pUi->timeLabel->setText(QStringLiteral("%1: %2").arg(tr("Time Remaining"), tr("Unknown")));
        return;
    }
    m_pUi->progressBar->setRange(0, 100);
    m_pUi->progressBar->setValue(static_cast<int>(received * 100 / total));
    calculateSizes(received, total);
    calculateTimeRemaining(received, total);
    saveFile(received, total);
}

void Downloader::calculateSizes(qint64 received, qint64 total)
{
    m_pUi->downloadLabel->setText(tr("Downloading Updates") + QStringLiteral(" (")
        + UpdateTexts::size(received) + QLatin1Char(' ') + tr("of") + QLatin1Char(' ')
        + UpdateTexts::size(total) + QLatin1Char(')'));
}

void Downloader::calculateTimeRemaining(qint64 received, qint64 total)
{
    const qint64 nElapsed = QDateTime::currentSecsSinceEpoch() - m_nStartTime;
    const double fSeconds = UpdateTexts::estimatedSeconds(received, total, nElapsed);
    if (fSeconds >= 0)
        m_pUi->timeLabel->setText(
            tr("Time Remaining") + QStringLiteral(": ") + UpdateTexts::duration(fSeconds));
}

void Downloader::saveFile(qint64 received, qint64 total)
{
    if (!m_pReply)
        return;
    const QUrl target = m_pReply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (target.isValid())
        return onRedirected(target);
    if (takeData() && received >= total && total >= 1 && m_file.size() >= total)
        completeLater();
}

// Appends the bytes that have arrived to the partial file. Returns false if they are not the installer,
// because the status is not 200, or if the download has failed; fail() has told the user then.
bool Downloader::takeData()
{
    const int nStatus = m_pReply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (nStatus != 200) {
        skipPage(nStatus);
        return false;
    }
    const QByteArray arrived = m_pReply->readAll();
    if (arrived.isEmpty())
        return true;
    const QString strReason = m_file.append(arrived);
    if (!strReason.isEmpty())
        fail(strReason);
    return strReason.isEmpty();
}

// An unread page would fill the read buffer, and the reply would never finish.
void Downloader::skipPage(int nStatus)
{
    m_nSkipped += qMax<qint64>(0, m_pReply->skip(m_pReply->bytesAvailable()));
    if (m_nSkipped > s_nLargestPage)
        failWithStatus(nStatus);
}

void Downloader::failWithStatus(int nStatus)
{
    fail(tr("Cannot download update: %1.").arg(tr("the server answered with status %1").arg(nStatus)));
}

// Called only if the download failed, or if its last progress signal did not complete it.
void Downloader::onFinished()
{
    if (m_pReply->error() != QNetworkReply::NoError)
        return onError();
    const int nStatus = m_pReply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QVariant length = m_pReply->header(QNetworkRequest::ContentLengthHeader);
    if (!takeData()) {
        if (m_pReply)
            failWithStatus(nStatus);
        return;
    }
    if (length.isValid() && length.toLongLong() != m_file.size())
        return fail(
            tr("Cannot download update: %1.").arg(tr("%1 is incomplete").arg(inQuotes(m_file.path()))));
    completeLater();
}

// A receiver of downloadFinished() may delete this object and its reply, which must not be emitting then.
void Downloader::completeLater()
{
    releaseReply();
    m_state = State::Received;
    const auto goOn = [this] {
        if (m_state == State::Received)
            complete();
    };
    QMetaObject::invokeMethod(this, goOn, Qt::QueuedConnection);
}

void Downloader::complete()
{
    if (m_file.size() == 0)
        return fail(tr("Cannot download update: %1.").arg(tr("%1 is empty").arg(inQuotes(m_file.path()))));
    checkThen(m_file.partPath(), &Downloader::finish);
}

void Downloader::finish()
{
    if (const QString strReason = m_file.complete(); !strReason.isEmpty())
        return fail(strReason);
    m_state = State::Ready;
    // Queued: the box must not run in a network signal, nor for an installer that was replaced.
    const auto offer = [this] {
        if (m_state == State::Ready)
            installUpdate();
    };
    QMetaObject::invokeMethod(this, offer, Qt::QueuedConnection);
    emit downloadFinished(m_strUrlId, m_file.path());
}

// A caller that sets no key cannot switch the check off that the configuration demands.
void Downloader::requireKey()
{
    if (m_check.strKey.isEmpty())
        m_check.strKey = InstallerCheck::configuredKey();
}

// Reading a large installer takes long, so another thread does it. A file that fails the check is deleted.
void Downloader::checkThen(const QString &strFileName, Continuation next)
{
    requireKey();
    m_state = State::Checking;
    if (!m_check.isNeeded())
        return (this->*next)();
    m_pUi->timeLabel->setText(tr("Checking the signature") + QStringLiteral("..."));
    const auto pReason = std::make_shared<QString>();
    QThread *pThread =
        QThread::create([check = m_check, strFileName, pReason] { *pReason = check.check(strFileName); });
    pThread->setParent(this);
    m_pWorker = pThread;
    connect(pThread, &QThread::finished, this, [this, pThread, strFileName, pReason, next] {
        pThread->deleteLater();
        if (!isAwaited(pThread))
            return;
        if (pReason->isEmpty())
            return (this->*next)();
        discard(strFileName, *pReason);
    });
    pThread->start();
}

// False if the window was closed or other work was started while the worker ran; its result is then ignored.
bool Downloader::isAwaited(const QObject *pWorker) const
{
    return m_state == State::Checking && m_pWorker == pWorker;
}

// A file that cannot be deleted is at least renamed, so that nobody takes it for an installer.
void Downloader::discard(const QString &strFileName, const QString &strReason)
{
    m_pUi->openButton->setEnabled(false);
    const bool bDeleted = QFile::remove(strFileName);
    if (!bDeleted && strFileName != m_file.partPath())
        QFile::rename(strFileName, m_file.partPath());
    fail(tr("The update is not installed: %1.")
             .arg(bDeleted ? tr("%1 was deleted, because %2").arg(inQuotes(m_file.path()), strReason)
                           : strReason));
}

void Downloader::installUpdate()
{
    if (m_bUseCustomInstallProcedures)
        return;
    m_pUi->stopButton->setText(tr("Close"));
    m_pUi->downloadLabel->setText(tr("Download complete!"));
    m_pUi->timeLabel->setText(tr("The installer will open separately") + QStringLiteral("..."));
    const QPointer<Downloader> pThis = this;
    const State state = m_state;
    const auto ask = [this](QMessageBox *pBox) {
        pBox->setTextFormat(Qt::RichText);
        pBox->setText(QStringLiteral("<h3>")
            + tr("In order to install the update, you need to quit the application.")
            + QStringLiteral("</h3>"));
        pBox->setInformativeText(tr("Click OK to begin installing the update."));
        pBox->setDetailedText(QDir::toNativeSeparators(m_file.path()));
        pBox->setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        // The box may appear while the user types; a stray Return must not install anything.
        pBox->setDefaultButton(QMessageBox::Cancel);
    };
    const auto answer = IUi::run(nullptr, QStringLiteral("question_32"), IUi::getTitle(), ask);
    if (!pThis || m_state != state)
        return;
    if (answer == QMessageBox::Ok)
        return openDownload();
    m_pUi->openButton->setEnabled(true);
    m_pUi->timeLabel->setText(tr("Click Open to apply the update."));
}

// The file is checked again, because it may have been replaced since the download ended.
void Downloader::openDownload()
{
    if (QFile::exists(m_file.path()))
        return checkThen(m_file.path(), &Downloader::findHandler);
    IUi::run(nullptr, QStringLiteral("critical_32"), IUi::getTitle(), [](QMessageBox *pBox) {
        pBox->setText(tr("Cannot find downloaded update!"));
        pBox->setStandardButtons(QMessageBox::Close);
    });
}

// On a Unix desktop QDesktopServices::openUrl() of Qt 6.4.2 returns true before any program was found for the
// file, so xdg-mime is asked first. Without xdg-mime, as on Windows, the answer of openUrl() has to do.
void Downloader::findHandler()
{
    const QString strTool = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (strTool.isEmpty())
        return runInstaller(true);
    m_state = State::Checking;
    auto *pShell = new QProcess(this);
    m_pWorker = pShell;
    const auto onState = [this, pShell](QProcess::ProcessState state) {
        if (state != QProcess::NotRunning)
            return;
        pShell->deleteLater();
        const bool bAnswered = pShell->error() == QProcess::UnknownError && pShell->exitCode() == 0;
        if (isAwaited(pShell))
            runInstaller(!bAnswered || !pShell->readAllStandardOutput().trimmed().isEmpty());
    };
    connect(pShell, &QProcess::stateChanged, this, onState, Qt::QueuedConnection);
    QTimer::singleShot(s_nHandlerTimeoutMs, pShell, &QProcess::kill);
    pShell->start(QStringLiteral("sh"),
        QStringList {QStringLiteral("-c"), QLatin1String(s_pHandlerQuery), strTool} + typesOf(m_file.path()));
}

void Downloader::runInstaller(bool bHandler)
{
    m_state = State::Ready;
    if (bHandler && QDesktopServices::openUrl(QUrl::fromLocalFile(m_file.path())))
        return QCoreApplication::quit();
    m_pUi->openButton->setEnabled(true);
    m_pUi->timeLabel->setText(tr("Click Open to apply the update."));
    IUi::warning(ICore::getMainWidget(), IUi::getTitle(),
        (bHandler ? tr("%1 could not be opened.") : tr("There is no program to open %1 with."))
            .arg(inQuotes(m_file.path())));
}

void Downloader::cancelDownload()
{
    if (m_state != State::Loading) {
        m_state = State::Idle;
        hide();
        return;
    }
    const QPointer<QNetworkReply> pReply = m_pReply;
    const auto answer = IUi::question(
        ICore::getMainWidget(), IUi::getTitle(), tr("Are you sure you want to cancel the download?"));
    // The download may have ended, or another one begun, while the question was open.
    if (answer != QMessageBox::Yes || !pReply || pReply != m_pReply)
        return;
    hide();
    m_state = State::Canceled;
    pReply->abort();
}

// Qt reports a timeout as OperationCanceledError, too; State::Canceled is set if the user canceled.
void Downloader::onError()
{
    QNetworkReply::NetworkError code = m_pReply->error();
    if (code == QNetworkReply::NoError)
        return;
    if (code == QNetworkReply::OperationCanceledError && m_state != State::Canceled)
        code = QNetworkReply::TimeoutError;
    qCInfo(lcUpdater).noquote().nospace() << "Error downloading update: " << UpdateTexts::shown(m_url)
                                          << ". Error code: " << static_cast<int>(code);
    if (code != QNetworkReply::OperationCanceledError)
        return fail(tr("Cannot download update: %1.").arg(static_cast<int>(code)));
    releaseReply();
    close();
}

// Ends a failed download with its one message. The message is queued, since its event loop must not run
// inside a signal of the network.
void Downloader::fail(const QString &strReason)
{
    const QString strShown = UpdateTexts::shortened(strReason, s_nLongestReason);
    qCWarning(lcUpdater) << "No update:" << strShown;
    releaseReply();
    m_state = State::Idle;
    close();
    const auto tell = [strShown] { IUi::warning(ICore::getMainWidget(), IUi::getTitle(), strShown); };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

// The close button asks as Stop does, but not after the main window was closed: Qt then asks every window to
// close, and a refusal here would leave the program running without a main window.
void Downloader::closeEvent(QCloseEvent *pEvent)
{
    const QWidget *pMainWindow = ICore::getMainWidget();
    const bool bUnderWay = m_state == State::Loading && !(pMainWindow && !pMainWindow->isVisible());
    if (bUnderWay) {
        cancelDownload();
    } else {
        releaseReply();
        m_state = State::Idle;
    }
    pEvent->setAccepted(!bUnderWay || !isVisible());
}

void Downloader::keyPressEvent(QKeyEvent *pEvent)
{
    if (pEvent->matches(QKeySequence::Cancel))
        close();
    else
        QWidget::keyPressEvent(pEvent);
}
