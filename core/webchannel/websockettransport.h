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

/// One client of the web channel; each text frame is one JSON object, in both directions. The transport is a
/// child of its socket, and deleting it also deletes the socket. Both are deleted once the client has
/// disconnected and its messages are handled. GUI thread only; a message of more than a million characters is
/// parsed on another thread. A client's next message waits until the one before is handled, also while that
/// one shows a dialog.
class CORE_EXPORT WebSocketTransport : public QWebChannelAbstractTransport
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WebSocketTransport)

public:
    /// Pass Qt::DirectConnection only if ClientLimits::apply() was true: a message may show a dialog, and the
    /// client may leave in its event loop.
    explicit WebSocketTransport(QWebSocket *socket, Qt::ConnectionType delivery = Qt::QueuedConnection);
    ~WebSocketTransport() override;

    /// Sends the message as compact JSON. A client that leaves too many bytes unread is dropped; the limit is
    /// higher for a client that reads at least something.
    void sendMessage(const QJsonObject &message) override;

    /// Holds back QWebSocket's timeout for the rest of a frame while a message is being handled, because the
    /// socket is not read meanwhile.
    bool eventFilter(QObject *pTimer, QEvent *pEvent) override;

private slots:
    /// A text that is not a JSON object for the channel is dropped and logged, a limited number of times per
    /// second; the socket stays open.
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
    QQueue<QString> m_waiting; ///< the first one is being handled
    bool m_bPaused = false;
    bool m_bInSocket = false; ///< while a message is handled within the socket's signal
    QFutureWatcher<Parsed> m_parsing;
    QElapsedTimer m_unread; ///< runs since the client has too much unread and reads nothing
    WarningLimit m_warnings {"%d more malformed messages of this client were not logged."};
    bool m_bClientGone = false;
};
