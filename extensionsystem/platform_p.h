// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QLocalSocket;
class QObject;

/// The functions that are implemented differently for each operating system.
namespace ExtensionSystem::Platform {

/// Milliseconds since this process was started; -1 where that is not known cheaply.
[[nodiscard]] qint64 msSinceProcessStart();

/// The name for a local server that only this user can reach, which contains `strKey`, a few letters and
/// digits. Empty when there is no safe place for it.
[[nodiscard]] QString localServerName(const QString &strKey);

/// The file that a start locks while it decides who listens; empty when there is no safe place for it.
[[nodiscard]] QString localServerLockFile(const QString &strKey);

/// Whether the process at the other end belongs to the same user. The server on Windows admits no others.
[[nodiscard]] bool isOwnPeer(const QLocalSocket &socket);

/// False for an empty file; on Linux also for one shorter than its header says, as after a broken copy.
[[nodiscard]] bool isWholeLibrary(const QString &strFile);

/// From now on, and while `pContext` lives, a request of the system that this process end (SIGTERM) calls
/// `function` from the event loop instead; resetTermination() restores the default. On Windows, where there
/// is no such request, both do nothing.
void onTermination(QObject *pContext, const std::function<void()> &function);
void resetTermination();

} // namespace ExtensionSystem::Platform
