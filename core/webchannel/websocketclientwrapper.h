// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <webchannel/warninglimit.h>

#include <QObject>
#include <QTimer>

class QWebSocketServer;
class WebSocketTransport;

/// Turns each client that a web-socket server takes in into a transport of the web channel, once it has
/// passed the policy. Owns neither server nor transports (their sockets do); the main window owns it and
/// deletes it before the server. GUI thread only.
class CORE_EXPORT WebSocketClientWrapper : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("webchannel/websockettransport.h")
    Q_DISABLE_COPY_MOVE(WebSocketClientWrapper)

public:
    /// Also bounds how long a handshake of the server may take, how many finished ones may wait, and how many
    /// connections there are at once.
    explicit WebSocketClientWrapper(QWebSocketServer *server, QObject *parent = nullptr);

    /// What a page of another origin appends to the server's URL as "?key=" to be let in. New in each run.
    [[nodiscard]] QString getKey() const;

signals:
    void clientConnected(WebSocketTransport *client);

private slots:
    /// Takes one socket. A refused one leaves one line in the log, but not more than a few a second, and gets
    /// no transport.
    void handleNewConnection();

private:
    void boundConnections();

    QWebSocketServer *m_server;
    const QByteArray m_key;
    WarningLimit m_refusals {"%d more refused web channel clients were not logged."};
    QTimer m_full; ///< runs while no further connection is taken
};
