// SPDX-License-Identifier: MIT
// What a client sends: text frames into a transport with a channel behind it, and handshakes into the policy.
#include "fuzzseeds.h"

#include <webchannel/clientpolicy.h>
#include <webchannel/websockettransport.h>

#include <QCoreApplication>
#include <QWebChannel>
#include <QWebSocket>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace {

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
    "H[::1]:4711\nnull\na=b&key=%30123456789abcdefghijklmnopqrstuvwxyz_-ABCDE&key=",
};

constexpr std::string_view s_words[] = {"{", "}", "[", "]", "\"", ":", ",", "null", "true", "-1", "0",
    "2147483648", "9223372036854775808", "1e999", "\\u0000", "\\ud800", "\xFF", "\n",
    "\"type\":", "\"object\":\"target\"", "\"__QObject*__\"", "\"deleteLater\"", "\"destroyed\"",
    "key=", "%00", "qrc:"};

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
    }

    Target target;
    QWebChannel channel;
    QWebSocket socket;
};

void require(bool bHolds)
{
    if (!bHolds)
        std::abort();
}

// The first three lines are a host, an origin and a query.
void fuzzHandshake(const QByteArray &input)
{
    static const QByteArray s_key = "0123456789abcdefghijklmnopqrstuvwxyz_-ABCDE";
    const QList<QByteArray> lines = input.split('\n');
    const ClientPolicy::Handshake handshake {
        lines.value(1), lines.constFirst(), QString::fromUtf8(lines.value(2))};
    const bool bAccepted = ClientPolicy::judge(handshake, 4711, s_key) == ClientPolicy::Verdict::Accept;
    require(!bAccepted || handshake.host.endsWith(":4711"));
    require(!bAccepted || *handshake.origin == "qrc:"
        || QByteArray::fromPercentEncoding(handshake.strQuery.toUtf8()).contains(s_key));
}

void fuzzFrame(const QByteArray &input)
{
    static std::unique_ptr<Program> s_pProgram;
    static int s_nInputs = 0;
    if (s_nInputs++ % 1000 == 0)
        s_pProgram = std::make_unique<Program>();
    const QString strText = QString::fromUtf8(input);
    emit s_pProgram->socket.textMessageReceived(strText);
    if (strText.size() > ClientPolicy::CharactersParsedAtOnce)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
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
    else
        fuzzFrame(input.mid(1));
    return 0;
}

#include "fuzz_webchannel.moc"
