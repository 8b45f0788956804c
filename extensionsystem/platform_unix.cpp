// SPDX-License-Identifier: MIT
#include "platform_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>

#include <fcntl.h>
#ifdef Q_OS_LINUX
#include <link.h>
#endif
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ExtensionSystem::Platform {

namespace {

// The address of a socket holds 104 to 108 bytes; some are left for the temporary name that Qt binds first.
constexpr int s_nLongestName = 90;

bool isPrivateFolder(const QString &strFolder)
{
    struct stat status = {};
    return lstat(QFile::encodeName(strFolder).constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == geteuid() && (status.st_mode & 077) == 0;
}

bool makePrivateFolder(const QString &strFolder)
{
    mkdir(QFile::encodeName(strFolder).constData(), 0700);
    return isPrivateFolder(strFolder);
}

// The folder of the session or else our own in the temporary folder, if only this user can enter it and a
// path with `nRest` more bytes is short enough for a socket. Empty when there is none.
QString privateFolder(qsizetype nRest)
{
    const auto fits = [nRest](const QString &strFolder) {
        return QFile::encodeName(strFolder).size() + 1 + nRest <= s_nLongestName;
    };
    const QString strRuntime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (QDir::isAbsolutePath(strRuntime) && fits(strRuntime) && isPrivateFolder(strRuntime))
        return strRuntime;
    const QString strOwn = QStringLiteral("/kelpastudio-%1").arg(geteuid());
    for (const QString &strTemp : {QDir::tempPath(), QStringLiteral("/tmp")}) {
        if (fits(strTemp + strOwn) && makePrivateFolder(strTemp + strOwn))
            return strTemp + strOwn;
    }
    return QString();
}

QString privateFile(const QString &strKey, const QString &strSuffix)
{
    const QString strName = QStringLiteral("kelpastudio-") + strKey;
    const QString strFolder = privateFolder(strName.size());
    return strFolder.isEmpty() ? QString() : strFolder + QLatin1Char('/') + strName + strSuffix;
}

int s_termination[2] = {-1, -1}; // a pipe, because a signal handler may call little more than write()

void noteTermination(int)
{
    const int nError = errno; // errno of the call that the signal interrupted
    const char cAny = 0;
    Q_UNUSED(write(s_termination[1], &cAny, 1))
    errno = nError;
}

} // namespace

qint64 msSinceProcessStart()
{
#ifdef Q_OS_LINUX
    QFile file(QStringLiteral("/proc/self/stat"));
    timespec now = {};
    if (!file.open(QIODevice::ReadOnly) || clock_gettime(CLOCK_BOOTTIME, &now) != 0)
        return -1;
    const QByteArray line = file.readAll();
    // The program's name, in parentheses, may hold any character; the start time is the 20th field after it.
    const QByteArray ticks = line.mid(line.lastIndexOf(')') + 2).split(' ').value(19);
    return now.tv_sec * 1000 + now.tv_nsec / 1000000 - ticks.toLongLong() * 1000 / sysconf(_SC_CLK_TCK);
#else
    return -1;
#endif
}

QString localServerName(const QString &strKey)
{
    return privateFile(strKey, QString());
}

QString localServerLockFile(const QString &strKey)
{
    return privateFile(strKey, QStringLiteral(".lock"));
}

bool isOwnPeer(const QLocalSocket &socket)
{
    const int nDescriptor = static_cast<int>(socket.socketDescriptor());
#ifdef Q_OS_LINUX
    ucred credentials = {};
    socklen_t nSize = sizeof credentials;
    return getsockopt(nDescriptor, SOL_SOCKET, SO_PEERCRED, &credentials, &nSize) == 0
        && credentials.uid == geteuid();
#else
    uid_t user = 0;
    gid_t group = 0;
    return getpeereid(nDescriptor, &user, &group) == 0 && user == geteuid();
#endif
}

// Linkers put the table of sections at the end of a library, so a complete file reaches to its end.
bool isWholeLibrary(const QString &strFile)
{
    QFile file(strFile);
#ifdef Q_OS_LINUX
    ElfW(Ehdr) header = {};
    if (!file.open(QIODevice::ReadOnly)
        || file.read(reinterpret_cast<char *>(&header), sizeof header) != sizeof header)
        return false;
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0
        && header.e_shoff + quint64(header.e_shentsize) * header.e_shnum <= quint64(file.size());
#else
    return file.size() > 0;
#endif
}

void onTermination(QObject *pContext, const std::function<void()> &function)
{
    if (pipe(s_termination) != 0)
        return;
    for (const int nEnd : s_termination) {
        fcntl(nEnd, F_SETFD, FD_CLOEXEC);
        fcntl(nEnd, F_SETFL, O_NONBLOCK);
    }
    auto *pNotifier = new QSocketNotifier(s_termination[0], QSocketNotifier::Read, pContext);
    QObject::connect(pNotifier, &QSocketNotifier::activated, pContext, [function] {
        char cAny = 0;
        while (read(s_termination[0], &cAny, 1) > 0) { }
        function();
    });
    signal(SIGTERM, noteTermination);
}

void resetTermination()
{
    if (s_termination[0] >= 0)
        signal(SIGTERM, SIG_DFL);
}

} // namespace ExtensionSystem::Platform
