// SPDX-License-Identifier: MIT
// Whom the local web-socket server lets in, and what a client may cost. Decisions over plain values: sockets
// are the callers' business. docs/security.md has the reasons.
#pragma once

#include <core_global.h>

#include <QByteArray>
#include <QLoggingCategory>
#include <QString>

#include <optional>

class QJsonObject;

Q_DECLARE_LOGGING_CATEGORY(lcWebChannel)

namespace ClientPolicy {

/// Bounds of one client, in bytes unless the name says otherwise.
constexpr int MessageSize = 16 * 1024 * 1024;
constexpr int ReceiveBufferSize = 256 * 1024;
constexpr int ReadSize = 128 * 1024;
constexpr qint64 UnsentSize = 64 * 1024 * 1024; ///< while the client reads nothing
constexpr qint64 UnsentSizeAtMost = 256 * 1024 * 1024;
constexpr int UnreadTimeoutMs = 5000;
constexpr int ReadsWithoutWriting = 64; ///< of ReadSize each: a client that only sends
constexpr int NameCharacters = 256;
constexpr int CharactersParsedAtOnce = 1024 * 1024;
constexpr int LoggedCharacters = 1000;
constexpr int WarningsPerSecond = 20;

/// Bounds of clients that are not let in yet.
constexpr int HandshakeTimeoutMs = 5000;
constexpr int PendingConnections = 30;

/// Clients and those that want to be, together. Each may show a dialog within the dialog of another, and
/// takes a handle of the system, of which a program has 1024. Further ones wait.
constexpr int Connections = 200;
constexpr int ConnectionsCheckMs = 200;

/// What a finished handshake tells of its client.
struct Handshake
{
    std::optional<QByteArray> origin; ///< absent: not a page in a browser
    QByteArray host;
    QString strQuery;
};

enum class Verdict { Accept, RefuseHost, RefuseOrigin };

/// `nPort` is the server's own port, `key` its key of this run.
[[nodiscard]] CORE_EXPORT Verdict judge(const Handshake &handshake, quint16 nPort, const QByteArray &key);

/// 256 bits of the system's generator as text that a URL's query carries as it stands.
[[nodiscard]] CORE_EXPORT QByteArray createKey();

/// Takes as long for a near miss as for a wild guess; only the lengths may be told apart.
[[nodiscard]] CORE_EXPORT bool equalInConstantTime(const QByteArray &first, const QByteArray &second);

/// Whether the channel knows what to do with a message, whose text has `nCharacters`. Anything else the
/// channel would quote whole in the log.
[[nodiscard]] CORE_EXPORT bool isForChannel(const QJsonObject &message, qsizetype nCharacters);

/// What of a client's text goes into the log: all, or its beginning and its length.
[[nodiscard]] CORE_EXPORT QString forLog(const QString &strText);

} // namespace ClientPolicy
