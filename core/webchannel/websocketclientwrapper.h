// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <webchannel/warninglimit.h>

#include <QObject>
#include <QTimer>

class QWebSocketServer;
class WebSocketTransport;

/// Creates a web channel transport for each client of a web-socket server that ClientPolicy accepts. It owns
/// neither the server nor the transports, which belong to their sockets. The main window owns it and deletes
/// it before the server. GUI thread only.
class CORE_EXPORT WebSocketClientWrapper : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("webchannel/websockettransport.h")
    Q_DISABLE_COPY_MOVE(WebSocketClientWrapper)

public:
    /// Also sets the server's limits for the time of a handshake, for finished handshakes that wait, and for
    /// connections at a time.
    explicit WebSocketClientWrapper(QWebSocketServer *server, QObject *parent = nullptr);

    /// A page of another origin is accepted if it appends "?key=" and this to the URL. New in each run.
    [[nodiscard]] QString getKey() const;

signals:
    void clientConnected(WebSocketTransport *client);

private slots:
    /// Takes one socket from the server. A refused client gets no transport; the refusal is logged, but only
    /// a limited number of times per second.
    void handleNewConnection();

private:
    void boundConnections();

    QWebSocketServer *m_server;
    const QByteArray m_key;
    WarningLimit m_refusals {"%d more refused web channel clients were not logged."};
    QTimer m_full; ///< runs while no further connections are accepted
};
