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

// A full buffer stops a socket. Zero is none.
constexpr qint64 PausedBufferSize = 1;

// What a socket reads it works off in one go, and large frames wait in its buffer: there is room for a little
// more than what waits.
qint64 roomFor(const QTcpSocket &tcp)
{
    return tcp.bytesAvailable() + ClientPolicy::ReadSize;
}

void makeRoom(QTcpSocket *pTcp)
{
    if (pTcp->readBufferSize() != PausedBufferSize)
        pTcp->setReadBufferSize(roomFor(*pTcp));
}

// Only the object tree leads to it.
QTcpSocket *tcpSocketOf(const QWebSocketServer &server, const QWebSocket &socket)
{
    const auto all = server.findChildren<QTcpSocket *>();
    const auto it = std::find_if(all.begin(), all.end(), [&socket](const QTcpSocket *pTcp) {
        return pTcp->peerPort() == socket.peerPort() && pTcp->peerAddress() == socket.peerAddress();
    });
    return it == all.end() ? nullptr : *it;
}

// Small messages leave the room as it is. Pings are answered unseen by the transport, so what a client that
// only sends leaves unread is looked at here too.
void watch(QTcpSocket *pTcp, QWebSocket *pSocket)
{
    auto nReads = std::make_shared<int>(0);
    QObject::connect(pSocket, &QWebSocket::bytesWritten, pTcp, [nReads] { *nReads = 0; });
    const auto onRead = [pTcp, nReads, pWatched = QPointer<QWebSocket>(pSocket)] {
        // Within its own signal the socket would not take notice of the new room.
        if (pTcp->readBufferSize() != roomFor(*pTcp))
            QMetaObject::invokeMethod(
                pTcp, [pTcp] { makeRoom(pTcp); }, Qt::QueuedConnection);
        const bool bOnlySends = ++*nReads > ClientPolicy::ReadsWithoutWriting;
        if (pWatched)
            dropIfUnread(pWatched, bOnlySends ? ClientPolicy::UnsentSize : ClientPolicy::UnsentSizeAtMost);
    };
    QObject::connect(pTcp, &QTcpSocket::readyRead, pTcp, onRead);
}

// The server deletes a TCP socket as soon as it has disconnected. Where that happens in an event loop within
// the web socket's own signal, the web socket would not survive it: so it goes after it, when all is sent.
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

// Answers do not wait until the client has confirmed the ones before.
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
