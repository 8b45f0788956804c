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

// Of a header that comes twice Qt gives the first value as the origin and the last one as the header. One
// without a value it leaves out.
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

// A client's text is quoted, the URL with the key is not.
void logRefusal(const ClientPolicy::Handshake &handshake, ClientPolicy::Verdict verdict)
{
    qCWarning(lcWebChannel) << "Refused a web channel client:" << reasonOf(verdict)
                            << ClientPolicy::forLog(QString::fromLatin1(handshake.host))
                            << ClientPolicy::forLog(
                                   QString::fromLatin1(handshake.origin.value_or(QByteArray())));
}

// Nothing the client sends is read any more.
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
    // Before its handshake only the server within the server knows of a connection.
    if (auto *pListener = server->findChild<QTcpServer *>())
        connect(pListener, &QTcpServer::newConnection, this, &WebSocketClientWrapper::boundConnections);
}

// While the server does not accept, connections wait in the system. Without this Qt's server would go on
// asking for one at the limit of handles, and never rest.
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

// The signal that refuses an origin within the handshake does not show the URL, and so not the key.
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
