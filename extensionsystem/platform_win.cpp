// SPDX-License-Identifier: MIT
#include "platform_p.h"

#include <QDir>
#include <QFileInfo>

namespace ExtensionSystem::Platform {

qint64 msSinceProcessStart()
{
    return -1;
}

// All users share one name space of pipes; QLocalServer::UserAccessOption keeps the other users out.
QString localServerName(const QString &strKey)
{
    return QStringLiteral("kelpastudio-") + qEnvironmentVariable("USERNAME") + QLatin1Char('-') + strKey;
}

QString localServerLockFile(const QString &strKey)
{
    return QDir::temp().absoluteFilePath(QStringLiteral("kelpastudio-%1.lock").arg(strKey));
}

bool isOwnPeer(const QLocalSocket &)
{
    return true;
}

bool isWholeLibrary(const QString &strFile)
{
    return QFileInfo(strFile).size() > 0;
}

void onTermination(QObject *, const std::function<void()> &) { }

void resetTermination() { }

} // namespace ExtensionSystem::Platform
