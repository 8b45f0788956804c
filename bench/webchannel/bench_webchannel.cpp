// SPDX-License-Identifier: MIT
// Compares the throughput of WebSocketTransport with that of the least that could do its work. Messages go
// there and back over a real socket; the client has a thread of its own.
#include <bench/bounds.h>
#include <webchannel/websocketclientwrapper.h>
#include <webchannel/websockettransport.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>
#include <QThread>
#include <QWebChannel>
#include <QWebSocket>
#include <QWebSocketServer>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

QJsonObject parse(const QString &strMessage)
{
    return QJsonDocument::fromJson(strMessage.toUtf8()).object();
}

QString serialise(const QJsonObject &message)
{
    return QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact));
}

/// The smallest transport that Qt's channel can work with.
class SmallestTransport : public QWebChannelAbstractTransport
{
    Q_OBJECT

public:
    explicit SmallestTransport(QWebSocket *pSocket)
        : QWebChannelAbstractTransport(pSocket)
        , m_pSocket(pSocket)
    {
        connect(pSocket, &QWebSocket::textMessageReceived, this,
            [this](const QString &strText) { emit messageReceived(parse(strText), this); });
    }
    void sendMessage(const QJsonObject &message) override { m_pSocket->sendTextMessage(serialise(message)); }

private:
    QWebSocket *const m_pSocket;
};

class Echo : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE QString echo(const QString &strText) { return strText; }
};

enum class Kind { Bare, Transport, SmallestChannel, Channel };

/// Answers each message, by the kind of transport that is to be measured.
class EchoServer
{
public:
    explicit EchoServer(Kind kind)
        : m_server(QStringLiteral("KPServer"), QWebSocketServer::NonSecureMode)
    {
        m_server.listen(QHostAddress::LocalHost);
        m_channel.registerObject(QStringLiteral("echo"), &m_echo);
        if (kind == Kind::Bare || kind == Kind::SmallestChannel)
            QObject::connect(&m_server, &QWebSocketServer::newConnection, &m_server,
                [this, kind] { serve(m_server.nextPendingConnection(), kind); });
        else
            m_pWrapper = std::make_unique<WebSocketClientWrapper>(&m_server);
        if (kind == Kind::Channel)
            QObject::connect(m_pWrapper.get(), &WebSocketClientWrapper::clientConnected, &m_channel,
                &QWebChannel::connectTo);
        if (kind == Kind::Transport)
            QObject::connect(m_pWrapper.get(), &WebSocketClientWrapper::clientConnected, &m_server,
                [](WebSocketTransport *pTransport) {
                    QObject::connect(pTransport, &WebSocketTransport::messageReceived, pTransport,
                        [pTransport](const QJsonObject &message) { pTransport->sendMessage(message); });
                });
    }

    [[nodiscard]] QUrl url() const { return m_server.serverUrl(); }

private:
    void serve(QWebSocket *pSocket, Kind kind)
    {
        QObject::connect(pSocket, &QWebSocket::disconnected, pSocket, &QObject::deleteLater);
        if (kind == Kind::SmallestChannel)
            m_channel.connectTo(new SmallestTransport(pSocket));
        else
            QObject::connect(pSocket, &QWebSocket::textMessageReceived, pSocket,
                [pSocket](const QString &strText) { pSocket->sendTextMessage(serialise(parse(strText))); });
    }

    Echo m_echo;
    QWebSocketServer m_server;
    QWebChannel m_channel;
    std::unique_ptr<WebSocketClientWrapper> m_pWrapper;
};

/// Sends the same message again and again, a few ahead of the answers. Lives in a thread of its own.
class Client : public QObject
{
    Q_OBJECT

public:
    Client()
    {
        connect(&m_socket, &QWebSocket::connected, this, [this] {
            // Sends without delay (TCP_NODELAY), as browsers do.
            if (auto *pTcp = m_socket.findChild<QTcpSocket *>())
                pTcp->setSocketOption(QAbstractSocket::LowDelayOption, 1);
            emit ready();
        });
        connect(&m_socket, &QWebSocket::textMessageReceived, this, [this] {
            if (m_nUnsent > 0) {
                --m_nUnsent;
                m_socket.sendTextMessage(m_strMessage);
            }
            if (--m_nUnanswered == 0)
                emit ready();
        });
    }

    void open(const QUrl &url) { m_socket.open(url); }
    void run(const QString &strMessage, int nMessages)
    {
        constexpr int Ahead = 4;
        m_strMessage = strMessage;
        m_nUnanswered = nMessages;
        m_nUnsent = std::max(0, nMessages - Ahead);
        for (int i = 0; i < std::min(nMessages, Ahead); ++i)
            m_socket.sendTextMessage(m_strMessage);
    }

signals:
    void ready();

private:
    QWebSocket m_socket {QString(), QWebSocketProtocol::VersionLatest, this};
    QString m_strMessage;
    int m_nUnsent = 0;
    int m_nUnanswered = 0;
};

// A call of Echo::echo(). Kinds without a channel get it too, so that all carry the same bytes.
QString messageOf(qsizetype nSize)
{
    const QString strHead = QStringLiteral(R"({"type":6,"id":1,"object":"echo","method":"echo","args":[")");
    return strHead + QString(std::max<qsizetype>(1, nSize - strHead.size() - 3), QLatin1Char('x'))
        + QStringLiteral("\"]}");
}

void measure(benchmark::State &state, Kind kind, int nSize)
{
    EchoServer server(kind);
    QThread thread;
    auto *pClient = new Client;
    pClient->moveToThread(&thread);
    QObject::connect(&thread, &QThread::finished, pClient, &QObject::deleteLater);
    thread.start();
    QEventLoop loop;
    QObject::connect(pClient, &Client::ready, &loop, &QEventLoop::quit);
    QMetaObject::invokeMethod(pClient, [&] { pClient->open(server.url()); });
    loop.exec();

    const QString strMessage = messageOf(nSize);
    const int nBatch = std::clamp(2000000 / nSize, 8, 500);
    for ([[maybe_unused]] auto turn : state) {
        QMetaObject::invokeMethod(pClient, [&] { pClient->run(strMessage, nBatch); });
        loop.exec();
    }
    state.SetItemsProcessed(state.iterations() * nBatch);
    thread.quit();
    thread.wait();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

const std::vector<std::pair<std::string, int>> s_sizes {
    {"100 bytes", 100}, {"10 kB", 10000}, {"1 MB", 1000000}};
const std::vector<std::pair<std::string, Kind>> s_kinds {
    {"bare echo", Kind::Bare},
    {"transport", Kind::Transport},
    {"channel on the smallest transport", Kind::SmallestChannel},
    {"channel on the transport", Kind::Channel},
};

// The transport must reach 95 percent of the throughput of what it is compared with.
std::vector<Bound> bounds()
{
    std::vector<Bound> result;
    for (const auto &[size, nSize] : s_sizes) {
        for (const auto &[nKind, nBase] : {std::pair(1, 0), std::pair(3, 2)})
            result.push_back(
                {s_kinds[nKind].first + ", " + size, 1 / 0.95, s_kinds[nBase].first + ", " + size});
    }
    return result;
}

// Keeps the allocator from handing large blocks back to the system between two messages. Whether it does so
// is chance, and costs more than what is measured here.
void keepMemory()
{
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, 256 * 1024 * 1024);
    mallopt(M_TRIM_THRESHOLD, 256 * 1024 * 1024);
#endif
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    for (const auto &[size, nSize] : s_sizes)
        for (const auto &[name, kind] : s_kinds)
            benchmark::RegisterBenchmark((name + ", " + size).c_str(), measure, kind, nSize)
                ->UseRealTime()
                ->Unit(benchmark::kMillisecond);
    keepMemory();
    return runBenchmarks(argc, argv, bounds());
}

#include "bench_webchannel.moc"
