// SPDX-License-Identifier: MIT
#include "websocketclientwrapper.h"

#include "clientlimits.h"
#include "clientpolicy.h"
#include "websockettransport.h"

#include <QNetworkRequest>
#include <QTcpServer>
#include <QTcpSocket>
#include <QWebSocket>
#include <QWebSocketServer>

namespace {

// If a header comes twice, Qt 6.4.2 returns the first value by origin() and the last one by rawHeader(); a
// header without a value is missing in both.
std::optional<QByteArray> originOf(const QWebSocket &socket)
{
    const QByteArray first = socket.origin().toLatin1();
    const QByteArray last = socket.request().rawHeader("Origin");
    if (first.isEmpty() && !socket.request().hasRawHeader("Origin"))
        return std::nullopt;
    return first == last ? first : first + ", " + last;
}

ClientPolicy::Handshake handshakeOf(const QWebSocket &socket)
{
    const QNetworkRequest request = socket.request();
    return {originOf(socket), request.rawHeader("Host"), request.url().query(QUrl::FullyEncoded)};
}

const char *reasonOf(ClientPolicy::Verdict verdict)
{
    return verdict == ClientPolicy::Verdict::RefuseHost ? "foreign host" : "foreign origin without the key";
}

// The URL is not logged, because it may contain the key.
void logRefusal(const ClientPolicy::Handshake &handshake, ClientPolicy::Verdict verdict)
{
    qCWarning(lcWebChannel) << "Refused a web channel client:" << reasonOf(verdict)
                            << ClientPolicy::forLog(QString::fromLatin1(handshake.host))
                            << ClientPolicy::forLog(
                                   QString::fromLatin1(handshake.origin.value_or(QByteArray())));
}

// The socket is deleted when control returns to the event loop, so nothing more is read from the client.
void refuse(QWebSocket *pSocket)
{
    pSocket->close(QWebSocketProtocol::CloseCodePolicyViolated);
    pSocket->deleteLater();
}

} // namespace

WebSocketClientWrapper::WebSocketClientWrapper(QWebSocketServer *server, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_key(ClientPolicy::createKey())
{
    server->setHandshakeTimeout(ClientPolicy::HandshakeTimeoutMs);
    server->setMaxPendingConnections(ClientPolicy::PendingConnections);
    connect(server, &QWebSocketServer::newConnection, this, &WebSocketClientWrapper::handleNewConnection);
    m_full.setSingleShot(true);
    connect(&m_full, &QTimer::timeout, this, &WebSocketClientWrapper::boundConnections);
    // QWebSocketServer reports a connection only after its handshake; its inner TCP server reports all.
    if (auto *pListener = server->findChild<QTcpServer *>())
        connect(pListener, &QTcpServer::newConnection, this, &WebSocketClientWrapper::boundConnections);
}

// While accepting is paused, connections wait in the system. Without this limit the process could run out of
// file descriptors; QTcpServer of Qt 6.4.2 then tries to accept without end and keeps a core busy.
void WebSocketClientWrapper::boundConnections()
{
    if (m_server->findChildren<QTcpSocket *>().size() < ClientPolicy::Connections) {
        m_server->resumeAccepting();
        return;
    }
    m_server->pauseAccepting();
    m_full.start(ClientPolicy::ConnectionsCheckMs);
}

QString WebSocketClientWrapper::getKey() const
{
    return QString::fromLatin1(m_key);
}

// Judges clients only after the handshake: originAuthenticationRequired() does not tell the URL with the key.
void WebSocketClientWrapper::handleNewConnection()
{
    QWebSocket *pSocket = m_server->nextPendingConnection();
    if (!pSocket)
        return;
    const ClientPolicy::Handshake handshake = handshakeOf(*pSocket);
    const ClientPolicy::Verdict verdict = ClientPolicy::judge(handshake, m_server->serverPort(), m_key);
    if (verdict != ClientPolicy::Verdict::Accept) {
        if (m_refusals.mayWarn())
            logRefusal(handshake, verdict);
        refuse(pSocket);
        return;
    }
    const bool bLasting = ClientLimits::apply(*m_server, pSocket);
    emit clientConnected(
        new WebSocketTransport(pSocket, bLasting ? Qt::DirectConnection : Qt::QueuedConnection));
}
