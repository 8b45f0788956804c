// SPDX-License-Identifier: MIT
// Decides which clients the local web-socket server accepts and how much a client may cost. Works on plain
// values; the callers handle the sockets. The reasons are in docs/security.md.
#pragma once

#include <core_global.h>

#include <QByteArray>
#include <QLoggingCategory>
#include <QString>

#include <optional>

class QJsonObject;

Q_DECLARE_LOGGING_CATEGORY(lcWebChannel)

namespace ClientPolicy {

/// Bounds for one client, in bytes unless the name says otherwise.
constexpr int MessageSize = 16 * 1024 * 1024;
constexpr int ReceiveBufferSize = 256 * 1024; ///< of the system, for each socket
constexpr int ReadSize = 128 * 1024; ///< taken from the system in one go
constexpr qint64 UnsentSize = 64 * 1024 * 1024; ///< of answers, while the client reads nothing
constexpr qint64 UnsentSizeAtMost = 256 * 1024 * 1024; ///< of answers, in any case
constexpr int UnreadTimeoutMs = 5000; ///< after this time a client counts as one that reads nothing
constexpr int ReadsWithoutWriting = 64; ///< after this many in a row a client counts as one that only sends
constexpr int NameCharacters = 256;
constexpr int CharactersParsedAtOnce = 1024 * 1024;
constexpr int LoggedCharacters = 1000;
constexpr int WarningsPerSecond = 20;

/// Bounds for clients that are not accepted yet.
constexpr int HandshakeTimeoutMs = 5000;
constexpr int PendingConnections = 30;

/// Connections at a time, accepted or not; further ones wait in the system. Each client may open a dialog
/// inside the dialog of another, which takes stack, and uses one of the usually 1024 file descriptors.
constexpr int Connections = 200;
constexpr int ConnectionsCheckMs = 200;

/// What a finished handshake tells about its client.
struct Handshake
{
    std::optional<QByteArray> origin; ///< absent: the client is not a page in a browser
    QByteArray host;
    QString strQuery;
};

enum class Verdict { Accept, RefuseHost, RefuseOrigin };

/// `nPort` is the server's own port, `key` the key that it created for this run.
[[nodiscard]] CORE_EXPORT Verdict judge(const Handshake &handshake, quint16 nPort, const QByteArray &key);

/// 256 bits of the system's random generator as URL-safe Base64, which needs no escaping in a query.
[[nodiscard]] CORE_EXPORT QByteArray createKey();

/// Compares in a time that depends on the lengths only, so that timing does not reveal how much was right.
[[nodiscard]] CORE_EXPORT bool equalInConstantTime(const QByteArray &first, const QByteArray &second);

/// Whether a message is one that QWebChannel handles; `nCharacters` is the length of its text. QWebChannel
/// would write any other message to the log in full.
[[nodiscard]] CORE_EXPORT bool isForChannel(const QJsonObject &message, qsizetype nCharacters);

/// A client's text for the log: as it is, or if it is long, its beginning and its length.
[[nodiscard]] CORE_EXPORT QString forLog(const QString &strText);

} // namespace ClientPolicy
