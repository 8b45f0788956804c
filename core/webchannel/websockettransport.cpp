// SPDX-License-Identifier: MIT
#include "websockettransport.h"

#include "clientlimits.h"
#include "clientpolicy.h"

#include <QJsonObject>
#include <QPointer>
#include <QPromise>
#include <QThreadPool>
#include <QWebSocket>

#include <memory>

// Queued: what is called may run an event loop for a dialog, in which a client that leaves takes its socket
// along. Neither the socket nor the watcher can do without themselves in their own signals.
WebSocketTransport::WebSocketTransport(QWebSocket *socket)
    : QWebChannelAbstractTransport(socket)
    , m_socket(socket)
{
    connect(socket, &QWebSocket::textMessageReceived, this, &WebSocketTransport::textMessageReceived,
        Qt::QueuedConnection);
    connect(
        socket, &QWebSocket::disconnected, this, &WebSocketTransport::onDisconnected, Qt::QueuedConnection);
    connect(
        &m_parsing, &QFutureWatcherBase::finished, this, &WebSocketTransport::onParsed, Qt::QueuedConnection);
}

WebSocketTransport::~WebSocketTransport()
{
    reportUnlogged();
    m_socket->deleteLater();
}

void WebSocketTransport::sendMessage(const QJsonObject &message)
{
    m_socket->sendTextMessage(QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)));
    ClientLimits::dropIfUnread(m_socket);
}

void WebSocketTransport::textMessageReceived(const QString &message)
{
    m_waiting.enqueue(message);
    if (m_waiting.size() > 1)
        setPaused(true);
    else if (message.size() <= ClientPolicy::CharactersParsedAtOnce)
        workOff(parse(message));
    else
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

void WebSocketTransport::parseWaiting()
{
    setPaused(true);
    auto promise = std::make_shared<QPromise<Parsed>>();
    promise->start();
    m_parsing.setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, strMessage = m_waiting.constFirst()] {
        promise->addResult(parse(strMessage));
        promise->finish();
    });
}

void WebSocketTransport::onParsed()
{
    workOff(m_parsing.result());
}

// Whoever gets the message may delete this transport.
void WebSocketTransport::workOff(const Parsed &parsed)
{
    const QPointer<WebSocketTransport> pThis(this);
    handle(QString(m_waiting.constFirst()), parsed);
    if (!pThis)
        return;
    m_waiting.dequeue();
    if (!m_waiting.isEmpty())
        parseWaiting();
    else if (m_bClientGone)
        deleteLater();
    else
        setPaused(false);
}

// So that what waits here stays little.
void WebSocketTransport::setPaused(bool bPaused)
{
    if (bPaused != m_bPaused)
        bPaused ? ClientLimits::pause(m_socket) : ClientLimits::resume(m_socket);
    m_bPaused = bPaused;
}

void WebSocketTransport::handle(const QString &strMessage, const Parsed &parsed)
{
    const auto &[document, error] = parsed;
    if (error.error == QJsonParseError::NoError && document.isObject()) {
        emit messageReceived(document.object(), this);
        return;
    }
    if (!mayWarn())
        return;
    const QString strText = ClientPolicy::forLog(strMessage);
    if (error.error != QJsonParseError::NoError)
        qCWarning(lcWebChannel) << "Failed to parse text message as JSON object:" << strText
                                << "Error is:" << error.errorString();
    else
        qCWarning(lcWebChannel) << "Received JSON message that is not an object: " << strText;
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
