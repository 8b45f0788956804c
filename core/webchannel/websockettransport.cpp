// SPDX-License-Identifier: MIT
#include "websockettransport.h"

#include "clientlimits.h"
#include "clientpolicy.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QPointer>
#include <QPromise>
#include <QThreadPool>
#include <QWebSocket>

#include <memory>

namespace {

// One thread for all clients: what they send does not hold up what the program computes elsewhere.
QThreadPool *parsingPool()
{
    static QPointer<QThreadPool> s_pPool;
    if (!s_pPool) {
        s_pPool = new QThreadPool(QCoreApplication::instance());
        s_pPool->setMaxThreadCount(1);
    }
    return s_pPool;
}

} // namespace

WebSocketTransport::WebSocketTransport(QWebSocket *socket)
    : QWebChannelAbstractTransport(socket)
    , m_socket(socket)
{
    connect(socket, &QWebSocket::textMessageReceived, this, &WebSocketTransport::textMessageReceived);
    connect(socket, &QWebSocket::disconnected, this, &WebSocketTransport::onDisconnected);
    connect(socket, &QWebSocket::bytesWritten, this, [this] { m_unread.invalidate(); });
    connect(&m_parsing, &QFutureWatcherBase::finished, this, &WebSocketTransport::onParsed);
}

WebSocketTransport::~WebSocketTransport()
{
    reportUnlogged();
    m_socket->deleteLater();
}

void WebSocketTransport::sendMessage(const QJsonObject &message)
{
    m_socket->sendTextMessage(QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)));
    if (m_socket->bytesToWrite() <= ClientPolicy::UnsentSize)
        return;
    if (!m_unread.isValid())
        m_unread.start();
    const bool bReads = !m_unread.hasExpired(ClientPolicy::UnreadTimeoutMs);
    ClientLimits::dropIfUnread(m_socket, bReads ? ClientPolicy::UnsentSizeAtMost : ClientPolicy::UnsentSize);
}

void WebSocketTransport::textMessageReceived(const QString &message)
{
    if (m_waiting.isEmpty() && message.size() <= ClientPolicy::CharactersParsedAtOnce) {
        handle(message, parse(message));
        return;
    }
    m_waiting.enqueue(message);
    if (m_waiting.size() == 1)
        parseWaiting();
}

WebSocketTransport::Parsed WebSocketTransport::parse(const QString &strMessage)
{
    Parsed result;
    result.document = QJsonDocument::fromJson(strMessage.toUtf8(), &result.error);
    return result;
}

// What the client sent before it left still counts.
void WebSocketTransport::onDisconnected()
{
    m_bClientGone = true;
    if (m_waiting.isEmpty())
        deleteLater();
}

// The socket pauses, so that what waits here stays little.
void WebSocketTransport::parseWaiting()
{
    ClientLimits::pause(m_socket);
    auto promise = std::make_shared<QPromise<Parsed>>();
    promise->start();
    m_parsing.setFuture(promise->future());
    parsingPool()->start([promise, strMessage = m_waiting.constFirst()] {
        promise->addResult(parse(strMessage));
        promise->finish();
    });
}

// Handling comes last: whoever gets the message may delete this transport or run an event loop.
void WebSocketTransport::onParsed()
{
    const QString strMessage = m_waiting.dequeue();
    const Parsed parsed = m_parsing.result();
    if (!m_waiting.isEmpty())
        parseWaiting();
    else if (m_bClientGone)
        deleteLater();
    else
        ClientLimits::resume(m_socket);
    handle(strMessage, parsed);
}

void WebSocketTransport::handle(const QString &strMessage, const Parsed &parsed)
{
    const auto &[document, error] = parsed;
    const QJsonObject object = document.object();
    if (ClientPolicy::isForChannel(object)) {
        emit messageReceived(object, this);
        return;
    }
    if (!mayWarn())
        return;
    const QString strText = ClientPolicy::forLog(strMessage);
    if (error.error != QJsonParseError::NoError)
        qCWarning(lcWebChannel) << "Failed to parse text message as JSON object:" << strText
                                << "Error is:" << error.errorString();
    else if (!document.isObject())
        qCWarning(lcWebChannel) << "Received JSON message that is not an object: " << strText;
    else
        qCWarning(lcWebChannel) << "Received JSON object that is no message of the channel:" << strText;
}

bool WebSocketTransport::mayWarn()
{
    if (!m_warningPeriod.isValid() || m_warningPeriod.hasExpired(1000)) {
        reportUnlogged();
        m_warningPeriod.start();
        m_nWarnings = 0;
    }
    return ++m_nWarnings <= ClientPolicy::WarningsPerSecond;
}

void WebSocketTransport::reportUnlogged()
{
    if (m_nWarnings > ClientPolicy::WarningsPerSecond)
        qCWarning(lcWebChannel, "%d more malformed messages of this client were not logged.",
            m_nWarnings - ClientPolicy::WarningsPerSecond);
}
