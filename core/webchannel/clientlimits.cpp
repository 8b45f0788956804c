// SPDX-License-Identifier: MIT
#include "clientlimits.h"

#include "clientpolicy.h"

#include <QPointer>
#include <QTcpSocket>
#include <QWebSocket>
#include <QWebSocketServer>

namespace ClientLimits {

namespace {

// A full buffer stops a socket. Zero is none.
constexpr qint64 PausedBufferSize = 1;

// What a socket reads it works off in one go, and large frames wait in its buffer: there is room for a little
// more than what waits.
void makeRoom(QTcpSocket *pTcp)
{
    if (pTcp->readBufferSize() != PausedBufferSize)
        pTcp->setReadBufferSize(pTcp->bytesAvailable() + ClientPolicy::ReadSize);
}

} // namespace

// Pings are answered unseen by the transport, so the check for unread answers is here too. Answers do not
// wait until the client has confirmed the ones before. Only the object tree leads to the TCP socket; within
// its own signal it would not take notice of the new room.
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
        makeRoom(pTcp);
        const auto onRead = [pTcp, pWatched = QPointer<QWebSocket>(pSocket)] {
            makeRoom(pTcp);
            if (pWatched)
                dropIfUnread(pWatched);
        };
        QObject::connect(pTcp, &QTcpSocket::readyRead, pTcp, onRead, Qt::QueuedConnection);
    }
}

void pause(QWebSocket *pSocket)
{
    pSocket->setReadBufferSize(PausedBufferSize);
}

void resume(QWebSocket *pSocket)
{
    pSocket->setReadBufferSize(0);
}

void dropIfUnread(QWebSocket *pSocket)
{
    if (pSocket->bytesToWrite() <= ClientPolicy::UnsentSize)
        return;
    qCWarning(lcWebChannel, "Dropped a web channel client that reads nothing.");
    pSocket->abort();
}

} // namespace ClientLimits
