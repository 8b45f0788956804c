// SPDX-License-Identifier: MIT
#include "websocketclientwrapper.h"

#include "clientlimits.h"
#include "clientpolicy.h"
#include "websockettransport.h"

#include <QNetworkRequest>
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

// Nothing the client sends is read any more. Its text is quoted in the log, the URL with the key is not.
void refuse(QWebSocket *pSocket, const ClientPolicy::Handshake &handshake, ClientPolicy::Verdict verdict)
{
    qCWarning(lcWebChannel) << "Refused a web channel client:" << reasonOf(verdict)
                            << ClientPolicy::forLog(QString::fromLatin1(handshake.host))
                            << ClientPolicy::forLog(
                                   QString::fromLatin1(handshake.origin.value_or(QByteArray())));
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
        refuse(pSocket, handshake, verdict);
        return;
    }
    const bool bLasting = ClientLimits::apply(*m_server, pSocket);
    emit clientConnected(
        new WebSocketTransport(pSocket, bLasting ? Qt::DirectConnection : Qt::QueuedConnection));
}
