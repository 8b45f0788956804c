// SPDX-License-Identifier: MIT
#include "clientlimits.h"

#include "clientpolicy.h"

#include <QTcpSocket>
#include <QWebSocket>
#include <QWebSocketServer>

namespace ClientLimits {

// What has arrived is worked off in one go, so little may arrive at a time. Pings are answered on the way,
// unseen by the transport. Answers do not wait until the client has confirmed the ones before. Only the
// object tree leads to the TCP socket.
void apply(const QWebSocketServer &server, QWebSocket *pSocket)
{
    pSocket->setMaxAllowedIncomingMessageSize(ClientPolicy::MessageSize);
    pSocket->setMaxAllowedIncomingFrameSize(ClientPolicy::MessageSize);
    for (QTcpSocket *pTcp : server.findChildren<QTcpSocket *>()) {
        if (pTcp->peerPort() != pSocket->peerPort())
            continue;
        pTcp->setSocketOption(
            QAbstractSocket::ReceiveBufferSizeSocketOption, ClientPolicy::ReceiveBufferSize);
        pTcp->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        QObject::connect(pTcp, &QTcpSocket::readyRead, pSocket, [pSocket] { dropIfUnread(pSocket); });
    }
}

void dropIfUnread(QWebSocket *pSocket)
{
    if (pSocket->bytesToWrite() <= ClientPolicy::UnsentSize)
        return;
    qCWarning(lcWebChannel, "Dropped a web channel client that reads nothing.");
    pSocket->abort();
}

} // namespace ClientLimits
