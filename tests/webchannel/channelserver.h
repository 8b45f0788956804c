// SPDX-License-Identifier: MIT
// A server with its channel and one object on it, as the main window has them, and what its clients say.
#pragma once

#include <webchannel/websocketclientwrapper.h>
#include <webchannel/websockettransport.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QPointer>
#include <QTcpSocket>
#include <QWebChannel>
#include <QWebSocket>
#include <QWebSocketServer>
#include <QtTest>

/// What clients call.
class Counter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int total READ total NOTIFY totalChanged)

public:
    [[nodiscard]] int total() const { return m_nTotal; }

    Q_INVOKABLE int add(int n)
    {
        m_nTotal += n;
        emit totalChanged(m_nTotal);
        return m_nTotal;
    }
    Q_INVOKABLE void mark() { emit marked(); }

signals:
    void totalChanged(int nTotal);
    void marked();

private:
    int m_nTotal = 0;
};

class ChannelServer
{
public:
    ChannelServer()
        : server("KPServer", QWebSocketServer::NonSecureMode)
        , wrapper(&server)
    {
        QObject::connect(
            &wrapper, &WebSocketClientWrapper::clientConnected, &channel, &QWebChannel::connectTo);
        channel.registerObject("counter", &counter);
        bListening = server.listen(QHostAddress::LocalHost, 0);
    }

    [[nodiscard]] QUrl url() const { return server.serverUrl(); }
    [[nodiscard]] WebSocketTransport *firstClient() const
    {
        return clients.constFirst().constFirst().value<WebSocketTransport *>();
    }

    Counter counter;
    QWebSocketServer server;
    WebSocketClientWrapper wrapper;
    QWebChannel channel;
    QSignalSpy clients {&wrapper, &WebSocketClientWrapper::clientConnected};
    bool bListening = false;
};

/// Takes the warnings of the web channel out of the log while it lives, and measures what the others write.
class ChannelLog
{
public:
    ChannelLog()
    {
        s_lines.clear();
        s_nCharacters = 0;
        s_previous = qInstallMessageHandler(handle);
    }
    ~ChannelLog() { qInstallMessageHandler(s_previous); }
    Q_DISABLE_COPY_MOVE(ChannelLog)

    static void forget() { s_lines.clear(); }
    [[nodiscard]] static const QStringList &lines() { return s_lines; }
    [[nodiscard]] static qint64 characters() { return s_nCharacters; }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &strText)
    {
        s_nCharacters += strText.size();
        if (qstrcmp(context.category, "kelpa.core.webchannel") == 0)
            s_lines.append(strText);
        else
            s_previous(type, context, strText);
    }

    static inline QStringList s_lines;
    static inline qint64 s_nCharacters = 0;
    static inline QtMessageHandler s_previous = nullptr;
};

enum Opcode { Continuation = 0, Text = 1, Binary = 2, Close = 8, Ping = 9 };

/// One frame as a client sends it, masked with zeros.
inline QByteArray frame(const QByteArray &payload, int nOpcode = Text, bool bFinal = true)
{
    QByteArray result(1, static_cast<char>((bFinal ? 0x80 : 0) | nOpcode));
    const auto nSize = static_cast<quint64>(payload.size());
    const int nBytes = nSize < 126 ? 0 : nSize < 65536 ? 2 : 8;
    result += static_cast<char>(0x80 | (nBytes == 0 ? nSize : nBytes == 2 ? 126 : 127));
    for (int i = nBytes - 1; i >= 0; --i)
        result += static_cast<char>(nSize >> (8 * i));
    return result + QByteArray(4, '\0') + payload;
}

/// The head of a handshake. `lines` are further header lines, each with its end.
inline QByteArray handshake(
    const QByteArray &host, const QByteArray &lines = {}, const QByteArray &path = "/")
{
    return "GET " + path + " HTTP/1.1\r\nHost: " + host
        + "\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
          "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n"
        + lines + "\r\n";
}

/// What a client sends to call a method of the counter.
inline QByteArray call(const char *pMethod, const QByteArray &arguments = "[]")
{
    return R"({"type":6,"id":1,"object":"counter","method":")" + QByteArray(pMethod) + R"(","args":)"
        + arguments + '}';
}

/// A socket that writes what it is told. "PORT" and "KEY" in it become the server's.
class RawClient
{
public:
    explicit RawClient(const ChannelServer &program)
        : m_program(program)
    {
        socket.connectToHost(QHostAddress::LocalHost, program.server.serverPort());
    }

    void send(QByteArray bytes)
    {
        bytes.replace("PORT", QByteArray::number(m_program.server.serverPort()));
        bytes.replace("KEY", m_program.wrapper.getKey().toLatin1());
        socket.write(bytes);
    }
    [[nodiscard]] bool isAnswered() { return socket.peek(4096).contains("\r\n\r\n") || isGone(); }
    [[nodiscard]] bool isGone() const { return socket.state() == QAbstractSocket::UnconnectedState; }

    QTcpSocket socket;

private:
    const ChannelServer &m_program;
};
