// SPDX-License-Identifier: MIT
#include "websockettransport.h"

#include "clientlimits.h"
#include "clientpolicy.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QPointer>
#include <QPromise>
#include <QThreadPool>
#include <QTimer>
#include <QWebSocket>

#include <memory>

namespace {

// One thread for all clients, apart from the global pool, so that their messages do not delay other work.
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

// Queued, because these slots may delete the socket and the watcher, which must not die in their own signals.
WebSocketTransport::WebSocketTransport(QWebSocket *socket, Qt::ConnectionType delivery)
    : QWebChannelAbstractTransport(socket)
    , m_socket(socket)
{
    connect(
        socket, &QWebSocket::textMessageReceived, this, &WebSocketTransport::textMessageReceived, delivery);
    connect(
        socket, &QWebSocket::disconnected, this, &WebSocketTransport::onDisconnected, Qt::QueuedConnection);
    connect(
        &m_parsing, &QFutureWatcherBase::finished, this, &WebSocketTransport::onParsed, Qt::QueuedConnection);
    // QWebSocket of Qt 6.4.2 drops a client if the rest of a frame does not come within five seconds.
    const auto timers = socket->findChildren<QTimer *>();
    for (QTimer *pTimer : timers)
        pTimer->installEventFilter(this);
    connect(socket, &QWebSocket::bytesWritten, this, [this] { m_unread.invalidate(); });
}

WebSocketTransport::~WebSocketTransport()
{
    if (!m_bInSocket)
        m_socket->deleteLater();
}

bool WebSocketTransport::eventFilter(QObject *pTimer, QEvent *pEvent)
{
    return (pEvent->type() == QEvent::Timer && !m_waiting.isEmpty())
        || QWebChannelAbstractTransport::eventFilter(pTimer, pEvent);
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
    m_waiting.enqueue(message);
    if (m_waiting.size() > 1)
        setPaused(true);
    else if (message.size() <= ClientPolicy::CharactersParsedAtOnce)
        workOffInSocket(message);
    else
        parseWaiting();
}

// The receiver of the message may delete this transport, also while it runs an event loop for a dialog. The
// socket must stay until its signal has returned, so it is deleted here and not by the destructor.
void WebSocketTransport::workOffInSocket(const QString &strMessage)
{
    const QPointer<WebSocketTransport> pThis(this);
    const QPointer<QWebSocket> pSocket(m_socket);
    m_bInSocket = true;
    workOff(parse(strMessage));
    if (pThis)
        m_bInSocket = false;
    else if (pSocket)
        pSocket->deleteLater();
}

WebSocketTransport::Parsed WebSocketTransport::parse(const QString &strMessage)
{
    Parsed result;
    result.document = QJsonDocument::fromJson(strMessage.toUtf8(), &result.error);
    return result;
}

// Messages that the client sent before it left are still handled.
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
    parsingPool()->start([promise, strMessage = m_waiting.constFirst()] {
        promise->addResult(parse(strMessage));
        promise->finish();
    });
}

void WebSocketTransport::onParsed()
{
    workOff(m_parsing.result());
}

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

// A paused socket takes no further messages, so that m_waiting stays short.
void WebSocketTransport::setPaused(bool bPaused)
{
    if (bPaused != m_bPaused)
        bPaused ? ClientLimits::pause(m_socket) : ClientLimits::resume(m_socket);
    m_bPaused = bPaused;
}

void WebSocketTransport::handle(const QString &strMessage, const Parsed &parsed)
{
    const auto &[document, error] = parsed;
    const QJsonObject object = document.object();
    if (ClientPolicy::isForChannel(object, strMessage.size())) {
        emit messageReceived(object, this);
        return;
    }
    if (!m_warnings.mayWarn())
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
