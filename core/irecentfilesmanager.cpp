// SPDX-License-Identifier: MIT
#include "irecentfilesmanager.h"

#include "icore.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLockFile>
#include <QLoggingCategory>
#include <QSettings>
#include <QThread>

namespace {

Q_LOGGING_CATEGORY(lcRecent, "kelpa.core.recent")

const QString s_key = QStringLiteral("Kelpa/RecentProjects");
constexpr int s_lockWaitMs = 2000;
constexpr int s_lockPauseMs = 2;
} // namespace

// Looks often: the lock is held for milliseconds, and QLockFile's own wait sleeps longer each time.
static bool lockSoon(QLockFile &lock)
{
    QElapsedTimer timer;
    timer.start();
    while (!lock.tryLock(0)) {
        if (lock.error() != QLockFile::LockFailedError || timer.hasExpired(s_lockWaitMs))
            return false;
        QThread::msleep(s_lockPauseMs);
    }
    return true;
}

template class ISingleton<IRecentFilesManager>;

void IRecentFilesManager::addFile(const QString &strPath)
{
    change([&](QStringList &files) {
        files.removeAll(strPath);
        files.prepend(strPath);
        while (files.size() > m_nMaxCount)
            files.removeLast();
    });
}

void IRecentFilesManager::removeFile(const QString &strPath)
{
    change([&](QStringList &files) { files.removeOne(strPath); });
}

QStringList IRecentFilesManager::getRecentFiles()
{
    const QSettings *pSettings = ICore::settings(QSettings::UserScope);
    const QStringList files = pSettings ? pSettings->value(s_key).toStringList() : QStringList();
    m_nCount = static_cast<int>(qMin<qsizetype>(files.size(), m_nMaxCount));
    return files.first(m_nCount);
}

// Other instances of the program may write the same store: under a lock, take their list over before
// changing it. A lock that cannot be had only costs that protection. Without a store nothing is kept.
void IRecentFilesManager::change(const std::function<void(QStringList &)> &edit) const
{
    QSettings *pSettings = ICore::settings(QSettings::UserScope);
    if (!pSettings)
        return;
    QDir().mkpath(QFileInfo(pSettings->fileName()).path()); // at the very first start there is none
    QLockFile lock(pSettings->fileName() + QStringLiteral(".recent.lock"));
    if (!lockSoon(lock))
        qCWarning(lcRecent, "%s: not locked, error %d", qUtf8Printable(pSettings->fileName()), lock.error());
    pSettings->sync();
    QStringList files = pSettings->value(s_key).toStringList();
    edit(files);
    pSettings->setValue(s_key, files);
    pSettings->sync();
}
