// SPDX-License-Identifier: MIT
// Clients that no browser and no honest program would be: raw bytes on the socket.
#include <support/load.h>
#include <support/rows.h>
#include <webchannel/channelserver.h>

#include <webchannel/clientpolicy.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QJsonArray>
#include <QTimer>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace {

// Of this process, in MiB; 0 where the system does not tell.
double residentMiB()
{
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * 4096 / (1024 * 1024);
}

// A sanitizer takes time and memory of its own.
#ifdef __SANITIZE_ADDRESS__
constexpr bool s_bMeasured = false;
#else
constexpr bool s_bMeasured = true;
#endif

// What stands in the server's way while it works: the longest turn of the event loop and the most memory.
struct Load
{
    double turnMs = 0;
    double memoryMiB = 0;
};

// A turn may take 50 ms, or a few times what parsing a megabyte takes just now. Other programs slow both
// down, by the caches if not by the processor.
bool isShort(double turnMs)
{
    if (turnMs < 50 || !s_bMeasured)
        return true;
    const QByteArray message = '[' + QByteArray("1,").repeated(500000);
    const double begin = threadMs();
    return QJsonDocument::fromJson(message).isNull() && turnMs < 3 * (threadMs() - begin);
}

Load runUntil(const std::function<bool()> &isDone)
{
    Load load;
    const double memory = residentMiB();
    QTimer wake;
    wake.start(100);
    const QDeadlineTimer end(60000);
    while (!isDone() && !end.hasExpired()) {
        const double begin = threadMs();
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        load.turnMs = std::max(load.turnMs, threadMs() - begin);
        load.memoryMiB = std::max(load.memoryMiB, residentMiB() - memory);
    }
    return load;
}

// Writes the block until `nSize` bytes are out, or the server hangs up (false), and reads nothing.
bool flood(quint16 nPort, const QByteArray &block, qint64 nSize)
{
    QTcpSocket socket;
    socket.setReadBufferSize(256);
    socket.connectToHost(QHostAddress::LocalHost, nPort);
    socket.write(handshake("127.0.0.1:" + QByteArray::number(nPort)));
    if (!socket.waitForReadyRead())
        return false;
    for (qint64 nSent = 0; nSent < nSize; nSent += block.size()) {
        socket.write(block);
        while (socket.bytesToWrite() > 0)
            if (!socket.waitForBytesWritten())
                return false;
    }
    return true;
}

// Says goodbye behind the frames and hears the server out.
void sendAndLeave(quint16 nPort, const QByteArray &frames)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, nPort);
    socket.write(handshake("127.0.0.1:" + QByteArray::number(nPort)));
    socket.waitForReadyRead();
    socket.write(frames + frame("\x03\xE8", Close));
    while (socket.waitForReadyRead())
        socket.readAll();
}

} // namespace

class tst_HostileClients : public QObject
{
    Q_OBJECT

private slots:
    // Some Qt drops; those that it lets through are refused and logged.
    void badHandshakeReachesNoObject_data()
    {
        const auto row = columns<QByteArray, int>("request", "logged");
        const auto origin = [&](const char *pName, const QByteArray &value, const QByteArray &path = "/") {
            row(pName, handshake("127.0.0.1:PORT", "Origin:" + value + "\r\n", path), 1);
        };
        origin("ours first, then another line", " qrc:\r\nOrigin: http://evil.example");
        origin("another, then ours in a second line", " http://evil.example\r\nOrigin: qrc:");
        origin("none in the first line, then another", "\r\nOrigin: http://evil.example");
        origin("the key as the path", " http://evil.example", "/KEY");
        origin("the key behind a hash", " http://evil.example", "/?#key=KEY");
        origin("an origin of 4000 letters", " http://" + QByteArray(4000, 'e'));
        row("a rebound name without an origin", handshake("evil.example:PORT"), 1);
        row("a foreign host behind the right one", handshake("127.0.0.1:PORT\r\nHost: evil.example:PORT"), 1);
        row("a page is asked for", "GET / HTTP/1.1\r\nHost: 127.0.0.1:PORT\r\n\r\n", 0);
        row("headers of one MiB", handshake("127.0.0.1:PORT", "X: " + QByteArray(1 << 20, 'x') + "\r\n"), 0);
        row("headers without an end", "GET / HTTP/1.1\r\nX: " + QByteArray(2 << 20, 'x'), 0);
        row("one letter and no more", "G", 0);
        row("nothing at all", "", 0);
        row("no HTTP", QByteArray("\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03\r\n\r\n", 15), 0);
    }

    void badHandshakeReachesNoObject()
    {
        QFETCH(const QByteArray, request);
        ChannelServer program;
        const ChannelLog log;
        QCOMPARE(program.server.handshakeTimeoutMS(), ClientPolicy::HandshakeTimeoutMs);
        program.server.setHandshakeTimeout(300);
        RawClient client(program);
        client.send(request);
        QTRY_VERIFY(client.isAnswered());
        client.send(frame(call("add", "[1]")));
        QTRY_VERIFY(client.isGone());
        QCOMPARE(program.clients.size(), 0);
        QCOMPARE(program.counter.total(), 0);
        QTRY_VERIFY(program.server.findChildren<QTcpSocket *>().isEmpty());
        QTEST(static_cast<int>(log.lines().size()), "logged");
        for (const QString &strLine : log.lines()) {
            QVERIFY(strLine.startsWith("Refused a web channel client:") && strLine.size() < 1500);
            QVERIFY(!strLine.contains(program.wrapper.getKey()));
        }
    }

    // Qt does not show it. No browser sends it, and a program that does could as well leave it out.
    void originWithoutAValueCountsAsNone()
    {
        ChannelServer program;
        RawClient empty(program);
        RawClient blank(program);
        empty.send(handshake("127.0.0.1:PORT", "Origin:\r\n"));
        blank.send(handshake("127.0.0.1:PORT", "Origin:  \t\r\n"));
        QTRY_COMPARE(program.clients.size(), 2);
    }

    // The last frame of each row, an honest call, shows whether the client was still heard.
    void hostileFramesReachNoObject_data()
    {
        const auto row = columns<QByteArray, bool>("frames", "staysConnected");
        const QByteArray add = call("add", "[1]");
        row("an honest client", {}, true);
        row("a binary frame", frame(add, Binary), true);
        row("the end of a message without its beginning", frame(add, Continuation), false);
        row("a call that is not UTF-8", frame(QByteArray(add).replace("add", "ad\xFF")), false);
        row("a call behind a goodbye", frame(QByteArray("\x03\xE8", 2), Close) + frame(add), false);
        row("a frame of one exabyte", QByteArray("\x81\xFF\x0F\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0\0\0\0", 14),
            false);
        row("a frame of 16 MiB and a byte", frame(QByteArray(ClientPolicy::MessageSize + 1, ' ')), false);
        QByteArray pieces = frame(QByteArray(1024 * 1024, ' '), Text, false);
        const QByteArray next = frame(QByteArray(1024 * 1024, ' '), Continuation, false);
        for (int i = 0; i < 16; ++i)
            pieces += next;
        row("pieces of more than 16 MiB", pieces, false);
    }

    void hostileFramesReachNoObject()
    {
        QFETCH(const QByteArray, frames);
        QFETCH(const bool, staysConnected);
        ChannelServer program;
        const ChannelLog log;
        QSignalSpy marked(&program.counter, &Counter::marked);
        RawClient client(program);
        client.send(handshake("127.0.0.1:PORT"));
        QTRY_COMPARE(program.clients.size(), 1);
        QTRY_VERIFY(client.isAnswered());
        client.send(frames + frame(call("mark")));
        if (staysConnected)
            QTRY_COMPARE(marked.size(), 1);
        else
            QTRY_VERIFY(client.isGone());
        QCOMPARE(marked.size(), staysConnected ? 1 : 0);
        QCOMPARE(program.counter.total(), 0);
    }

    // The big ones are parsed beside the event loop; what follows must not overtake them.
    void whatAClientSentBeforeItLeftIsHandled_data()
    {
        const auto row = columns<int, int>("clients", "size");
        row("one client, large messages", 1, ClientPolicy::MessageSize / 2);
        row("ten clients at once", 10, 2 * ClientPolicy::CharactersParsedAtOnce);
    }

    void whatAClientSentBeforeItLeftIsHandled()
    {
        QFETCH(const int, clients);
        QFETCH(const int, size);
        ChannelServer program;
        QMap<QObject *, QList<int>> sent;
        int nGone = 0;
        connect(&program.wrapper, &WebSocketClientWrapper::clientConnected, &program.wrapper,
            [&](WebSocketTransport *pClient) {
                connect(pClient, &WebSocketTransport::messageReceived, &program.wrapper,
                    [&sent, pClient](const QJsonObject &message) {
                        sent[pClient].append(message.value("args").toArray().first().toInt());
                    });
                connect(pClient->parent(), &QObject::destroyed, &program.wrapper, [&] { ++nGone; });
            });
        QByteArray big = call("add", "[1]");
        big += QByteArray(size - big.size(), ' ');
        const QByteArray frames =
            frame(big) + frame(call("add", "[2]")) + frame(big) + frame(call("add", "[3]"));
        std::vector<std::thread> threads;
        for (int i = 0; i < clients; ++i)
            threads.emplace_back(sendAndLeave, program.server.serverPort(), frames);
        const Load load = runUntil([&] { return nGone == clients; });
        for (std::thread &thread : threads)
            thread.join();
        QVERIFY2(isShort(load.turnMs / (clients + 9) * 10), "a turn serves some clients");
        QCOMPARE(sent.values(), QList<QList<int>>(clients, {1, 2, 1, 3}));
        QTRY_VERIFY(!program.server.findChild<QTcpSocket *>());
    }

    // Each client takes a handle of the system and may show a dialog within another's; each refusal is
    // logged.
    void aCrowdIsBounded()
    {
        const ChannelLog log;
        {
            ChannelServer program;
            std::vector<std::unique_ptr<RawClient>> crowd;
            const auto come = [&](int nClients, const QByteArray &host) {
                for (int i = 0; i < nClients; ++i) {
                    crowd.push_back(std::make_unique<RawClient>(program));
                    crowd.back()->send(handshake(host));
                    QCoreApplication::processEvents();
                }
            };
            come(250, "127.0.0.1:PORT");
            QTRY_VERIFY(program.clients.size() >= ClientPolicy::Connections);
            QVERIFY(program.server.findChildren<QTcpSocket *>().size() < 250);
            crowd.clear();
            come(60, "evil.example");
            QTRY_VERIFY(
                std::all_of(crowd.begin(), crowd.end(), [](auto &pClient) { return pClient->isGone(); }));
        }
        QVERIFY(log.lines().size() > ClientPolicy::WarningsPerSecond && log.lines().size() < 60);
        QVERIFY(log.lines().constLast().endsWith("refused web channel clients were not logged."));
    }

    void garbageForEverCostsLittle_data()
    {
        const auto row =
            columns<QByteArray, int, bool, int>("garbage", "sizeMiB", "staysConnected", "memoryMiB");
        const auto broken = [](int nSize) { return frame('[' + QByteArray("1,").repeated(nSize / 2) + 'x'); };
        row("pings whose answers are not read", frame(QByteArray(125, 'x'), Ping), 200, false, 160);
        row("pieces of a message that never ends",
            frame(" ", Text, false) + frame(QByteArray(1000, ' '), Continuation, false).repeated(33 << 10),
            33, false, 80);
        row("texts of one letter", frame("x"), 3, true, 24);
        row("empty binary frames", frame("", Binary), 3, true, 24);
        row("texts of 100 kB", frame(QByteArray(100000, 'x')), 30, true, 24);
        row("broken JSON of 1 MB", broken(1000000), 5, true, 40);
        row("broken JSON of 16 MB", broken(16000000), 31, true, 300);
        row("a request without an id and 8 MB of numbers",
            frame(R"({"type":3,"a":[)" + QByteArray("1,").repeated(4000000) + "1]}"), 8, true, 300);
        row("a call to an object with a name of 16 MB",
            frame(call("add").replace("counter", QByteArray(16000000, 'x'))), 16, true, 300);
    }

    // What costs too much does so each time; a machine that is busy otherwise does not.
    void garbageForEverCostsLittle()
    {
        QFETCH(const QByteArray, garbage);
        QFETCH(const int, sizeMiB);
        QFETCH(const bool, staysConnected);
        QFETCH(const int, memoryMiB);
        const int nTimes = std::max<int>(1, (1 << 20) / static_cast<int>(garbage.size()));
        Load load;
        bool bShort = false;
        for (int i = 0; i < 3 && !bShort; ++i) {
            bool bSentAll = false;
            load = endure(garbage.repeated(nTimes), sizeMiB * qint64(1024) * 1024, &bSentAll);
            QCOMPARE(bSentAll, staysConnected);
            bShort = isShort(load.turnMs);
            QVERIFY(ChannelLog::characters() < 1000000);
        }
        QVERIFY2(bShort, qPrintable(QString::number(load.turnMs)));
        QVERIFY2(!s_bMeasured || load.memoryMiB < memoryMiB, qPrintable(QString::number(load.memoryMiB)));
    }

private:
    // Until the client is gone.
    static Load endure(const QByteArray &garbage, qint64 nSize, bool *pSentAll)
    {
        ChannelServer program;
        const ChannelLog log;
        QPointer<WebSocketTransport> pTransport;
        connect(&program.wrapper, &WebSocketClientWrapper::clientConnected, &program.wrapper,
            [&](WebSocketTransport *pClient) { pTransport = pClient; });
        std::thread client(
            [&, nPort = program.server.serverPort()] { *pSentAll = flood(nPort, garbage, nSize); });
        const Load load = runUntil([&] { return !program.clients.isEmpty() && !pTransport; });
        client.join();
        return load;
    }
};

QTEST_GUILESS_MAIN(tst_HostileClients)
#include "tst_hostileclients.moc"
