// SPDX-License-Identifier: MIT
// Applies the bounds of ClientPolicy to the socket of one client.
#pragma once

#include <QtGlobal>

class QWebSocket;
class QWebSocketServer;

namespace ClientLimits {

/// Call it for a socket just taken from its server, before the socket delivers messages. True if the client
/// may leave in an event loop inside one of the socket's signals, such as that of a dialog, without a crash.
[[nodiscard]] bool apply(const QWebSocketServer &server, QWebSocket *pSocket);

/// After pause() the socket reads nothing more from the client until resume().
void pause(QWebSocket *pSocket);
void resume(QWebSocket *pSocket);

/// Drops a client that has more than `nBytes` left to read, with a line in the log. disconnected() is emitted
/// before this returns.
void dropIfUnread(QWebSocket *pSocket, qint64 nBytes);

} // namespace ClientLimits
