// SPDX-License-Identifier: MIT
#include "updatecheck.h"

#include "updatesettings.h"

#include <QCoreApplication>
#include <QTimer>
#include <icore.h>
#include <iui.h>
#include <mainwindow.h>
#include <updater/qsimpleupdater.h>
#include <updater/updatetexts.h>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto s_deadline = 33s;
constexpr auto s_dueInterval = 1h;
constexpr int s_nReminderDays = 3;

// The name of the feed's entry for this system.
QString platformKey()
{
#if defined(Q_OS_WIN)
    return QStringLiteral("windows");
#elif defined(Q_OS_MACOS)
    return QStringLiteral("macos");
#else
    return QStringLiteral("linux");
#endif
}

} // namespace

UpdateCheck::UpdateCheck(QObject *pParent)
    : QObject(pParent)
    , m_strUrl(UpdateSettings::url(UpdateSettings::Feed))
    , m_pDeadline(new QTimer(this))
    , m_pDue(new QTimer(this))
{
    m_pDeadline->setObjectName(QStringLiteral("deadline"));
    m_pDeadline->setSingleShot(true);
    m_pDeadline->setInterval(s_deadline);
    m_pDue->setObjectName(QStringLiteral("due"));
    m_pDue->setInterval(s_dueInterval);
    connect(m_pDeadline, &QTimer::timeout, this, &UpdateCheck::onDeadline);
    connect(m_pDue, &QTimer::timeout, this, &UpdateCheck::checkIfDue);
    const QSimpleUpdater *pUpdater = QSimpleUpdater::getInstance();
    connect(pUpdater, &QSimpleUpdater::checkEnded, this, &UpdateCheck::onEnded);
    connect(pUpdater, &QSimpleUpdater::offerPutOff, this, &UpdateCheck::onPutOff);
}

UpdateCheck::~UpdateCheck()
{
    disconnect(QSimpleUpdater::getInstance(), nullptr, this, nullptr);
    if (m_state != State::Idle)
        QSimpleUpdater::getInstance()->abort(m_strUrl);
}

void UpdateCheck::start()
{
    m_pDue->start();
    if (!UpdateSettings::hasFeed())
        return;
    if (!UpdateSettings::wasAsked())
        askForAgreement();
    else
        checkIfDue();
}

// The question is asked only once: closing it counts as an answer.
void UpdateCheck::askForAgreement()
{
    UpdateSettings::setAsked();
    notify(tr("May Kelpa Studio look for a new version once a day?"), tr("Allow"), &UpdateCheck::agree);
}

void UpdateCheck::agree()
{
    UpdateSettings::setAutomatic(true);
    if (MainWindow *pMainWindow = ICore::getMainWindow())
        pMainWindow->hideNotification();
    checkIfDue();
}

void UpdateCheck::checkIfDue()
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (m_state != State::Idle || !UpdateSettings::hasFeed() || !UpdateSettings::isAutomatic()
        || !UpdateSettings::isCheckDue(now))
        return;
    UpdateSettings::setChecked(now);
    begin(State::Background);
}

void UpdateCheck::checkNow()
{
    if (m_state == State::Manual)
        return;
    // A download may come from the feed that was set before the current one.
    for (const QString &strUrl : {m_strUrl, UpdateSettings::url(UpdateSettings::Feed)}) {
        if (QSimpleUpdater::getInstance()->showDownload(strUrl))
            return;
    }
    if (!UpdateSettings::hasFeed()) {
        IUi::information(ICore::getMainWindow(), IUi::getTitle(),
            tr("No address to look for updates is set. You can set it in the preferences, under Updates."));
        return;
    }
    notify(tr("Looking for a new version..."), QString(), nullptr);
    begin(State::Manual);
}

// If a background check is running, it is not repeated but turned into one that shows its result.
void UpdateCheck::begin(State state)
{
    const bool bUnderWay = m_state != State::Idle;
    m_state = state;
    m_bDeadlineMissed = false;
    if (!bUnderWay)
        m_strUrl = UpdateSettings::url(UpdateSettings::Feed);
    m_pDeadline->start();
    QSimpleUpdater *pUpdater = QSimpleUpdater::getInstance();
    pUpdater->setPlatformKey(m_strUrl, platformKey());
    pUpdater->setNotifyOnUpdate(m_strUrl, state == State::Manual);
    pUpdater->setNotifyOnFinish(m_strUrl, false);
    if (!bUnderWay)
        pUpdater->checkForUpdates(m_strUrl, true);
}

// If the check has an answer and shows it in a dialog, there is nothing left to abort and the dialog stays.
void UpdateCheck::onDeadline()
{
    m_bDeadlineMissed = true;
    QSimpleUpdater::getInstance()->abort(m_strUrl);
}

void UpdateCheck::onEnded(const QString &strUrl)
{
    if (m_state == State::Idle || strUrl != m_strUrl)
        return;
    m_pDeadline->stop();
    const State state = std::exchange(m_state, State::Idle);
    if (state == State::Background)
        return announce();
    KPNotificationBar *pBar = ICore::getMainWindow() ? ICore::getMainWindow()->getNotificationBar() : nullptr;
    if (pBar && pBar->text() == tr("Looking for a new version..."))
        pBar->hide();
    // Queued, because the event loop of the box must not run inside a signal of the network.
    QMetaObject::invokeMethod(this, &UpdateCheck::answer, Qt::QueuedConnection);
}

// Says nothing of an update that is available: the Updater has offered it in a dialog already.
void UpdateCheck::answer()
{
    QSimpleUpdater *pUpdater = QSimpleUpdater::getInstance();
    const QString strError = pUpdater->getLastError(m_strUrl);
    if (m_bDeadlineMissed && !strError.isEmpty())
        IUi::warning(ICore::getMainWindow(), IUi::getTitle(),
            tr("Cannot reach %1: no answer within %2 seconds.")
                .arg(UpdateTexts::shown(QUrl(m_strUrl)))
                .arg(m_pDeadline->interval() / 1000.0));
    else if (!strError.isEmpty())
        IUi::warning(ICore::getMainWindow(), IUi::getTitle(), strError);
    else if (!pUpdater->getUpdateAvailable(m_strUrl))
        IUi::information(ICore::getMainWindow(), IUi::getTitle(),
            tr("You are running the latest version of %1, %2.")
                .arg(pUpdater->getModuleName(m_strUrl), pUpdater->getModuleVersion(m_strUrl)));
}

void UpdateCheck::announce()
{
    QSimpleUpdater *pUpdater = QSimpleUpdater::getInstance();
    const QString strVersion = pUpdater->getLatestVersion(m_strUrl);
    if (pUpdater->getUpdateAvailable(m_strUrl)
        && UpdateSettings::isWanted(strVersion, QDateTime::currentDateTimeUtc()))
        notify(tr("%1 %2 has been released.")
                   .arg(pUpdater->getModuleName(m_strUrl),
                       UpdateTexts::shortened(strVersion, UpdateTexts::LongestVersion)),
            tr("Show"), &UpdateCheck::checkNow);
}

void UpdateCheck::onPutOff(const QString &strUrl, const QString &strVersion, bool bPermanently)
{
    if (strUrl != m_strUrl)
        return;
    if (bPermanently)
        UpdateSettings::skip(strVersion);
    else
        UpdateSettings::remindAfter(QDateTime::currentDateTimeUtc().addDays(s_nReminderDays));
}

void UpdateCheck::notify(const QString &strText, const QString &strButton, void (UpdateCheck::*handler)())
{
    MainWindow *pMainWindow = ICore::getMainWindow();
    if (!pMainWindow || !pMainWindow->getNotificationBar())
        return;
    pMainWindow->showNotification(strText, KPNotificationBar::Info, strButton, true);
    if (handler)
        connect(pMainWindow->getNotificationBar(), &KPNotificationBar::buttonClicked, this, handler);
}
