// SPDX-License-Identifier: MIT
// What a client sends: text messages into a transport with a channel behind it, bytes behind a handshake over
// a real socket, and handshakes into the policy.
#include "fuzzseeds.h"

#include <webchannel/clientpolicy.h>
#include <webchannel/websocketclientwrapper.h>
#include <webchannel/websockettransport.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QPointer>
#include <QTcpSocket>
#include <QUrl>
#include <QWebChannel>
#include <QWebSocket>
#include <QWebSocketServer>

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>

namespace {

using namespace std::string_view_literals;

constexpr std::string_view s_inputs[] = {
    R"(F{"type":3,"id":0})",
    R"(F{"type":4})",
    R"(F{"type":6,"id":1,"object":"target","method":"add","args":[1,2]})",
    R"(F{"type":6,"id":2,"object":"target","method":"echo","args":["a\u0000\ud83d\ude00\ud800"]})",
    R"(F{"type":6,"id":3,"object":"target","method":"map","args":[{"a":{"b":[null,true,1e9]}}]})",
    R"(F{"type":6,"id":4,"object":"target","method":"child","args":[]})",
    R"(F{"type":6,"id":5,"object":"target","method":5,"args":[]})",
    R"(F{"type":7,"object":"target","signal":5})",
    R"(F{"type":8,"object":"target","signal":5})",
    R"(F{"type":9,"object":"target","property":1,"value":{"x":-1.5e-7}})",
    R"(F{"type":10,"id":6,"object":"target","signal":0,"args":[],"data":""})",
    R"(F[1,"two",{"three":[]}])",
    "H127.0.0.1:4711\nqrc:\n",
    "Hlocalhost:4711\nhttp://a\nkey=0123456789abcdefghijklmnopqrstuvwxyz_-ABCDE",
    "Hlocalhost:4711\n-\n",
    "HLOCALHOST:4711\nqrc:\nkey=",
    "Hevil.example:4711\n-\nkey=0123456789abcdefghijklmnopqrstuvwxyz_-ABCDE",
    "B\x81\x91\0\0\0\0{\"type\":3,\"id\":0}\x89\x83\0\0\0\0abc"sv,
    "B\x01\x88\0\0\0\0{\"type\":\x80\x82\0\0\0\0"
    "4}\x88\x82\0\0\0\0\x03\xE8"sv,
    "B\x81\xFE\0\x11\0\0\0\0{\"type\":3,\"id\":0}\x82\x83\0\0\0\0abc"sv,
    "B\x81\xFF\0\0\0\0\0\0\0\x11\1\2\3\4{\"type\":3,\"id\":0}"sv,
    "H[::1]:4711\nnull\na=b&key=%30123456789abcdefghijklmnopqrstuvwxyz_-ABCDE&key=",
};

constexpr std::string_view s_words[] = {"{", "}", "[", "]", "\"", ":", ",", "null", "true", "-1", "0",
    "2147483648", "9223372036854775808", "1e999", "\\u0000", "\\ud800", "\xFF", "\n",
    "\"type\":", "\"object\":\"target\"", "\"__QObject*__\"", "\"deleteLater\"", "\"destroyed\"",
    "key=", "%00", "qrc:", "-", "%6Bey=", ":4711", "\x81\x80\0\0\0\0"sv, "\x7F\xFF\xFF\xFF"};

class Target : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariant value MEMBER m_value NOTIFY valueChanged)

public:
    Q_INVOKABLE int add(int nFirst, int nSecond) { return static_cast<int>(qint64(nFirst) ^ nSecond); }
    Q_INVOKABLE QString echo(const QString &strText) { return strText; }
    Q_INVOKABLE QVariantMap map(const QVariantMap &values) { return values; }
    Q_INVOKABLE QObject *child() { return new QObject(this); }

signals:
    void valueChanged(const QVariant &value);

private:
    QVariant m_value;
};

/// Everything a client can reach. Renewed from time to time: clients leave behind what they asked for.
struct Program
{
    Program()
    {
        channel.registerObject(QStringLiteral("target"), &target);
        channel.connectTo(new WebSocketTransport(&socket));
        QObject::connect(&wrapper, &WebSocketClientWrapper::clientConnected, &channel,
            [this](WebSocketTransport *pClient) {
                channel.connectTo(pClient);
                pLast = pClient;
            });
        server.listen(QHostAddress::LocalHost);
    }

    Target target;
    QWebChannel channel;
    QWebSocket socket;
    QWebSocketServer server {QStringLiteral("KPServer"), QWebSocketServer::NonSecureMode};
    WebSocketClientWrapper wrapper {&server};
    QPointer<WebSocketTransport> pLast;
};

Program &program()
{
    static std::unique_ptr<Program> s_pProgram;
    static int s_nInputs = 0;
    if (s_nInputs++ % 1000 == 0)
        s_pProgram = std::make_unique<Program>();
    return *s_pProgram;
}

void require(bool bHolds)
{
    if (!bHolds)
        std::abort();
}

// Not the policy's own arithmetic: the three names in any case, each with the port behind it.
bool isOwnHost(const QByteArray &host)
{
    const QString strHost = QString::fromLatin1(host);
    return QStringList {"127.0.0.1:4711", "localhost:4711", "[::1]:4711"}.contains(
        strHost, Qt::CaseInsensitive);
}

// Walks the pairs of the query by hand; the names of the fields may be escaped too.
bool carriesKeyOnce(const QByteArray &query, const QByteArray &key)
{
    int nFields = 0;
    bool bRight = false;
    for (const QByteArray &pair : query.split('&')) {
        const qsizetype nEqual = pair.indexOf('=');
        if (QByteArray::fromPercentEncoding(nEqual < 0 ? pair : pair.left(nEqual)) != "key")
            continue;
        ++nFields;
        bRight = nEqual >= 0 && QByteArray::fromPercentEncoding(pair.mid(nEqual + 1)) == key;
    }
    return nFields == 1 && bRight;
}

// The lines are a host, an origin and a query. A lone "-" is no origin at all.
void fuzzHandshake(const QByteArray &input)
{
    static const QByteArray s_key = "0123456789abcdefghijklmnopqrstuvwxyz_-ABCDE";
    const QList<QByteArray> lines = input.split('\n');
    ClientPolicy::Handshake handshake {lines.value(1), lines.constFirst(), {}};
    if (handshake.origin == "-")
        handshake.origin.reset();
    const QUrl url(QStringLiteral("ws://a/?") + QString::fromLatin1(lines.value(2)));
    handshake.strQuery = url.query(QUrl::FullyEncoded);
    const bool bOwnOrigin = !handshake.origin || *handshake.origin == "qrc:";
    const bool bExpected =
        isOwnHost(handshake.host) && (bOwnOrigin || carriesKeyOnce(handshake.strQuery.toLatin1(), s_key));
    require((ClientPolicy::judge(handshake, 4711, s_key) == ClientPolicy::Verdict::Accept) == bExpected);
}

void fuzzMessage(const QByteArray &input)
{
    const QString strText = QString::fromUtf8(input);
    emit program().socket.textMessageReceived(strText);
    QCoreApplication::processEvents(strText.size() > ClientPolicy::CharactersParsedAtOnce
            ? QEventLoop::WaitForMoreEvents
            : QEventLoop::AllEvents);
}

void waitUntil(const std::function<bool()> &isDone)
{
    const QDeadlineTimer end(10000);
    while (!isDone()) {
        require(!end.hasExpired());
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
}

// A client of its own, that leaves behind its bytes. Nothing of it may stay.
void fuzzBytes(const QByteArray &input)
{
    Program &current = program();
    const QByteArray host = "127.0.0.1:" + QByteArray::number(current.server.serverPort());
    QTcpSocket client;
    client.connectToHost(QHostAddress::LocalHost, current.server.serverPort());
    client.write("GET / HTTP/1.1\r\nHost: " + host
        + "\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
          "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n");
    waitUntil([&] { return client.bytesAvailable() > 0 && current.pLast; });
    client.write(input);
    client.disconnectFromHost();
    waitUntil([&] { return !current.pLast && client.state() == QAbstractSocket::UnconnectedState; });
}

} // namespace

const FuzzSeeds fuzzSeeds = {s_inputs, s_words};

extern "C" int LLVMFuzzerInitialize(int *pCount, char ***pArguments)
{
    static QCoreApplication s_app(*pCount, *pArguments);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

// The first byte chooses the way in.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *pData, std::size_t nSize)
{
    const QByteArray input(reinterpret_cast<const char *>(pData), static_cast<qsizetype>(nSize));
    if (input.startsWith('H'))
        fuzzHandshake(input.mid(1));
    else if (input.startsWith('B'))
        fuzzBytes(input.mid(1));
    else
        fuzzMessage(input.mid(1));
    return 0;
}

#include "fuzz_webchannel.moc"
