// SPDX-License-Identifier: MIT
#include "websockettransport.h"

#include "clientlimits.h"
#include "clientpolicy.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QWebSocket>

WebSocketTransport::WebSocketTransport(QWebSocket *socket)
    : QWebChannelAbstractTransport(socket)
    , m_socket(socket)
{
    connect(socket, &QWebSocket::textMessageReceived, this, &WebSocketTransport::textMessageReceived);
    connect(socket, &QWebSocket::disconnected, this, &WebSocketTransport::deleteLater);
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
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(message.toUtf8(), &error);
    if (error.error == QJsonParseError::NoError && document.isObject()) {
        emit messageReceived(document.object(), this);
        return;
    }
    if (!mayWarn())
        return;
    const QString strText = ClientPolicy::forLog(message);
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
        qCWarning(
            lcWebChannel, "%d more malformed messages of this client were not logged.",
            m_nWarnings - ClientPolicy::WarningsPerSecond);
}
