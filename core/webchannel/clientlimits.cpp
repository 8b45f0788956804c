// SPDX-License-Identifier: MIT
#include "clientlimits.h"

#include "clientpolicy.h"

#include <QPointer>
#include <QTcpSocket>
#include <QTimer>
#include <QWebSocket>
#include <QWebSocketServer>

#include <algorithm>
#include <memory>

namespace ClientLimits {

namespace {

// A socket whose read buffer is full stops reading. The size 0 would not do, since it means: no limit.
constexpr qint64 PausedBufferSize = 1;

// QWebSocket handles all that its buffer holds in one go, so the buffer must be small; but an incomplete
// frame stays in the buffer, so there must be room beyond what is already there.
qint64 roomFor(const QTcpSocket &tcp)
{
    return tcp.bytesAvailable() + ClientPolicy::ReadSize;
}

void makeRoom(QTcpSocket *pTcp)
{
    if (pTcp->readBufferSize() != PausedBufferSize)
        pTcp->setReadBufferSize(roomFor(*pTcp));
}

// QWebSocket gives no access to its TCP socket. That is a child of the server, identified by the peer.
QTcpSocket *tcpSocketOf(const QWebSocketServer &server, const QWebSocket &socket)
{
    const auto all = server.findChildren<QTcpSocket *>();
    const auto it = std::find_if(all.begin(), all.end(), [&socket](const QTcpSocket *pTcp) {
        return pTcp->peerPort() == socket.peerPort() && pTcp->peerAddress() == socket.peerAddress();
    });
    return it == all.end() ? nullptr : *it;
}

// Keeps the buffer's room up to date and drops a client that does not read its answers. The transport checks
// that as well, but does not see pings, which QWebSocket answers by itself.
void watch(QTcpSocket *pTcp, QWebSocket *pSocket)
{
    auto nReads = std::make_shared<int>(0);
    QObject::connect(pSocket, &QWebSocket::bytesWritten, pTcp, [nReads] { *nReads = 0; });
    const auto onRead = [pTcp, nReads, pWatched = QPointer<QWebSocket>(pSocket)] {
        // Queued: while Qt 6.4.2 emits readyRead(), setReadBufferSize() does not make a full socket read on.
        if (pTcp->readBufferSize() != roomFor(*pTcp))
            QMetaObject::invokeMethod(
                pTcp, [pTcp] { makeRoom(pTcp); }, Qt::QueuedConnection);
        const bool bOnlySends = ++*nReads > ClientPolicy::ReadsWithoutWriting;
        if (pWatched)
            dropIfUnread(pWatched, bOnlySends ? ClientPolicy::UnsentSize : ClientPolicy::UnsentSizeAtMost);
    };
    QObject::connect(pTcp, &QTcpSocket::readyRead, pTcp, onRead);
}

// QWebSocketServer of Qt 6.4.2 deletes a TCP socket when it has disconnected. If that happens in an event
// loop inside a signal of the web socket, the web socket uses a deleted object afterwards. So the TCP socket
// is deleted after the web socket, once all data is sent. False if the server's connection was not found.
bool keepUntilDestroyed(const QWebSocketServer &server, QWebSocket *pSocket, QTcpSocket *pTcp)
{
    QObject::connect(pSocket, &QObject::destroyed, pTcp, [pTcp] {
        if (pTcp->state() == QAbstractSocket::UnconnectedState)
            pTcp->deleteLater();
        else
            QObject::connect(pTcp, &QTcpSocket::disconnected, pTcp, &QObject::deleteLater);
    });
    return QObject::disconnect(pTcp, &QTcpSocket::disconnected, &server, nullptr);
}

} // namespace

// LowDelayOption sends an answer at once, also while the client has not acknowledged the one before. The
// timer that is looked for is the one that WebSocketTransport::eventFilter() has to hold back.
bool apply(const QWebSocketServer &server, QWebSocket *pSocket)
{
    pSocket->setMaxAllowedIncomingMessageSize(ClientPolicy::MessageSize);
    pSocket->setMaxAllowedIncomingFrameSize(ClientPolicy::MessageSize);
    QTcpSocket *pTcp = tcpSocketOf(server, *pSocket);
    if (!pTcp) {
        qCWarning(lcWebChannel, "A web channel client is not held to its bounds: its socket is not found.");
        return false;
    }
    pTcp->setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, ClientPolicy::ReceiveBufferSize);
    pTcp->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    makeRoom(pTcp);
    watch(pTcp, pSocket);
    return keepUntilDestroyed(server, pSocket, pTcp) && pSocket->findChild<QTimer *>();
}

void pause(QWebSocket *pSocket)
{
    pSocket->setReadBufferSize(PausedBufferSize);
}

void resume(QWebSocket *pSocket)
{
    pSocket->setReadBufferSize(0);
}

void dropIfUnread(QWebSocket *pSocket, qint64 nBytes)
{
    if (pSocket->bytesToWrite() <= nBytes)
        return;
    qCWarning(lcWebChannel, "Dropped a web channel client that reads too little.");
    pSocket->abort();
}

} // namespace ClientLimits
