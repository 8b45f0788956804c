// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QLocalSocket;
class QObject;

/// What differs from system to system.
namespace ExtensionSystem::Platform {

/// Milliseconds since this process was started; -1 where that is not known cheaply.
[[nodiscard]] qint64 msSinceProcessStart();

/// The name to listen on for a server that only this user can reach, made from `strKey`, which is a few
/// letters and digits. Empty when there is no safe place for it.
[[nodiscard]] QString localServerName(const QString &strKey);

/// A file beside it to lock while deciding who listens.
[[nodiscard]] QString localServerLockFile(const QString &strKey);

/// Is the process at the other end run by the same user?
[[nodiscard]] bool isOwnPeer(const QLocalSocket &socket);

/// False: the file is empty, or ends before the library in it does, as after a copy that broke off.
[[nodiscard]] bool isWholeLibrary(const QString &strFile);

/// From now on, the system's wish that this process end (SIGTERM) calls the function from the event loop
/// instead, as long as the context lives; the second puts an end to that. Nothing where there is no such
/// wish.
void onTermination(QObject *pContext, const std::function<void()> &function);
void resetTermination();

} // namespace ExtensionSystem::Platform
