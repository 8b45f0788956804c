// SPDX-License-Identifier: MIT
// Holds one client's socket to the bounds of the policy.
#pragma once

#include <QtGlobal>

class QWebSocket;
class QWebSocketServer;

namespace ClientLimits {

/// For a socket just taken from its server, before it works off anything. Whether its own signals may run an
/// event loop in which the client leaves.
[[nodiscard]] bool apply(const QWebSocketServer &server, QWebSocket *pSocket);

/// The socket takes in nothing more between the two.
void pause(QWebSocket *pSocket);
void resume(QWebSocket *pSocket);

/// Cuts off a client that has left more than `nBytes` unread: logged, and disconnected() follows at once.
void dropIfUnread(QWebSocket *pSocket, qint64 nBytes);

} // namespace ClientLimits
