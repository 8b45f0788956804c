// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <webchannel/warninglimit.h>

#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QJsonDocument>
#include <QQueue>
#include <QWebChannelAbstractTransport>

class QWebSocket;

/// One client of the web channel: a JSON object per text frame, both ways. Child of its socket, and takes the
/// socket with it when it is deleted; both go when the client has disconnected and its messages are handled.
/// GUI thread only; a message of more than a million characters is parsed beside it. A client's next message
/// waits until the one before is worked off, also while that shows a dialog.
class CORE_EXPORT WebSocketTransport : public QWebChannelAbstractTransport
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WebSocketTransport)

public:
    /// Messages are delivered within the socket's signal only where that is safe: they may show a dialog, in
    /// whose event loop the client leaves.
    explicit WebSocketTransport(QWebSocket *socket, Qt::ConnectionType delivery = Qt::QueuedConnection);
    ~WebSocketTransport() override;

    /// Sends one line of compact JSON. A client that leaves too much unread is dropped; one that reads may
    /// fall further behind.
    void sendMessage(const QJsonObject &message) override;

    /// A client that is not listened to, because a message is being worked off, is not late with the rest of
    /// another.
    bool eventFilter(QObject *pTimer, QEvent *pEvent) override;

private slots:
    /// Anything but a JSON object that the channel knows is logged and dropped, the socket stays. A client
    /// that goes on so is not logged more often than a few times a second.
    void textMessageReceived(const QString &message);

private:
    struct Parsed
    {
        QJsonDocument document;
        QJsonParseError error;
    };
    [[nodiscard]] static Parsed parse(const QString &strMessage);
    void handle(const QString &strMessage, const Parsed &parsed);
    void parseWaiting();
    void onParsed();
    void workOff(const Parsed &parsed);
    void workOffInSocket(const QString &strMessage);
    void setPaused(bool bPaused);
    void onDisconnected();

    QWebSocket *m_socket;
    QQueue<QString> m_waiting; ///< the first one is being worked off
    bool m_bPaused = false;
    bool m_bInSocket = false; ///< in the signal of the socket
    QFutureWatcher<Parsed> m_parsing;
    QElapsedTimer m_unread; ///< since the client has left too much unread and taken in nothing
    WarningLimit m_warnings {"%d more malformed messages of this client were not logged."};
    bool m_bClientGone = false;
};
