// SPDX-License-Identifier: MIT
#include <webchannel/channelserver.h>

#include <support/clock.h>
#include <support/coretest.h>

#include <mainwindow.h>
#include <webchannel/clientpolicy.h>

namespace {

/// A plain client.
struct Client
{
    explicit Client(const QUrl &url) { socket.open(url); }

    QWebSocket socket;
    QSignalSpy connected {&socket, &QWebSocket::connected};
};

} // namespace

class tst_WebSocketTransport : public QObject
{
    Q_OBJECT

private slots:
    void eachSignalOfTheServerTakesOneClient()
    {
        ChannelServer program;
        disconnect(&program.server, nullptr, &program.wrapper, nullptr);
        QSignalSpy arrived(&program.server, &QWebSocketServer::newConnection);
        Client first(program.url());
        Client second(program.url());
        QTRY_COMPARE(arrived.size(), 2);
        QMetaObject::invokeMethod(&program.wrapper, "handleNewConnection");
        QCOMPARE(program.clients.size(), 1);
        QVERIFY(program.server.hasPendingConnections());
        QMetaObject::invokeMethod(&program.wrapper, "handleNewConnection");
        QMetaObject::invokeMethod(&program.wrapper, "handleNewConnection");
        QCOMPARE(program.clients.size(), 2);
    }

    void transportAndSocketGoTogether_data()
    {
        const auto row = columns<bool, bool>("byClient", "inCall");
        row("the client leaves", true, false);
        row("the transport is deleted", false, false);
        row("the client leaves while a call runs an event loop", true, true);
        row("the transport is deleted while a call runs an event loop", false, true);
    }

    // As a call that shows a dialog does. What the client had sent before it left still counts.
    void transportAndSocketGoTogether()
    {
        QFETCH(const bool, byClient);
        QFETCH(const bool, inCall);
        ChannelServer program;
        Client client(program.url());
        QVERIFY(client.connected.wait());
        const QPointer<WebSocketTransport> pTransport(program.firstClient());
        const QPointer<QWebSocket> pSocket = qobject_cast<QWebSocket *>(pTransport->parent());
        bool bSocketStayed = !inCall;
        const auto go = [&] {
            if (byClient)
                client.socket.close();
            else
                delete pTransport;
            QTRY_VERIFY(!byClient || !pSocket || pSocket->state() == QAbstractSocket::UnconnectedState);
            QCoreApplication::processEvents();
            bSocketStayed |= !pSocket.isNull();
        };
        connect(&program.counter, &Counter::marked, this, go);
        if (inCall)
            client.socket.sendTextMessage(QString::fromLatin1(call("mark")));
        client.socket.sendTextMessage(QString::fromLatin1(call("add", "[5]")));
        if (!inCall)
            go();
        QTRY_VERIFY(bSocketStayed && !pTransport && !pSocket);
        QTRY_COMPARE(client.socket.state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(program.counter.total(), byClient ? 5 : 0);
        program.counter.add(1);
    }

    // Qt drops a client after five seconds without the rest of a frame; here they are over at once.
    void clientIsNotDroppedWhileItsCallShowsADialog()
    {
        const QByteArray frames = frame(call("mark")) + frame(call("add", "[5]"));
        ChannelServer program;
        QTcpSocket client;
        client.connectToHost(QHostAddress::LocalHost, program.server.serverPort());
        client.write(handshake("127.0.0.1:" + QByteArray::number(program.server.serverPort())));
        QTRY_COMPARE(program.clients.size(), 1);
        auto *pTimer = program.firstClient()->parent()->findChild<QTimer *>();
        connect(&program.counter, &Counter::marked, this, [pTimer] {
            QVERIFY(pTimer->isActive());
            QTimerEvent due(pTimer->timerId());
            QCoreApplication::sendEvent(pTimer, &due);
        });
        client.write(frames.left(20));
        QTRY_VERIFY(pTimer->isActive());
        client.write(frames.mid(20));
        QTRY_COMPARE(program.counter.total(), 5);
        QCOMPARE(client.state(), QAbstractSocket::ConnectedState);
    }

    void faultyMessagesAreLoggedAndTheSocketStays_data()
    {
        const auto row = columns<QString, QString>("message", "line");
        const QString strNoJson =
            QStringLiteral(R"(Failed to parse text message as JSON object: "%1" Error is: "%2")");
        const QString strNoObject = QStringLiteral(R"(Received JSON message that is not an object:  "%1")");
        row("no JSON", "hello", strNoJson.arg("hello", "illegal value"));
        row("nothing", "", strNoJson.arg("", "illegal value"));
        row("half an object", "{", strNoJson.arg("{", "unterminated object"));
        row("text behind an object", "{}x", strNoJson.arg("{}x", "garbage at the end of the document"));
        row("an array", "[1,2]", strNoObject.arg("[1,2]"));
        row("a forged line", "[]\nkelpa: all is well",
            strNoJson.arg("[]\\nkelpa: all is well", "garbage at the end of the document"));
        const QString strLong = QString(5000, QLatin1Char('x'));
        row("a long text", strLong,
            strNoJson.arg(strLong.left(1000) + "... (5000 characters)", "illegal value"));
        row("a text that is parsed elsewhere", QString(2 << 20, QLatin1Char('x')),
            strNoJson.arg(strLong.left(1000) + "... (2097152 characters)", "illegal value"));
        row("no message of the channel", R"({"type":10})",
            "Received JSON object that is no message of the channel: \"{\\\"type\\\":10}\"");
    }

    void faultyMessagesAreLoggedAndTheSocketStays()
    {
        QFETCH(const QString, message);
        QFETCH(const QString, line);
        ChannelServer program;
        Client client(program.url());
        QVERIFY(client.connected.wait());
        const ChannelLog log;
        client.socket.sendTextMessage(message);
        client.socket.sendTextMessage(QString::fromLatin1(call("add", "[2]")));
        QTRY_COMPARE(program.counter.total(), 2);
        QCOMPARE(log.lines(), QStringList(line));
    }

    void warningsAreCountedBySeconds()
    {
        const ChannelLog log;
        {
            WarningLimit limit("%d left out");
            QList<int> passed;
            for (int nAsked : {30, 20, 21}) {
                passed.append(0);
                for (int i = 0; i < nAsked; ++i)
                    passed.last() += limit.mayWarn();
                Clock::putForward(1);
                QTest::qSleep(2);
            }
            QCOMPARE(passed, (QList<int> {20, 20, 20}));
            QCOMPARE(log.lines(), {"10 left out"});
        }
        QCOMPARE(log.lines(), (QStringList {"10 left out", "1 left out"}));

        ChannelServer program;
        Client client(program.url());
        QVERIFY(client.connected.wait());
        for (int i = 0; i < 60; ++i)
            client.socket.sendTextMessage("x");
        client.socket.close();
        QTRY_VERIFY(log.lines().constLast().endsWith("malformed messages of this client were not logged."));
        QVERIFY(log.lines().size() < 60);
    }

    // More than 64 MiB may be left unread for five seconds, more than 256 never.
    void clientMayFallBehindWhileItReads()
    {
        ChannelServer program;
        const ChannelLog log;
        RawClient client(program);
        QTcpSocket &socket = client.socket;
        const QJsonObject message {{"text", QString(1 << 20, QLatin1Char('x'))}};
        QPointer<WebSocketTransport> pTransport;
        const auto send = [&](int nTimes) {
            int nSent = 0;
            for (; nSent < nTimes && log.lines().isEmpty(); ++nSent)
                pTransport->sendMessage(message);
            QSignalSpy written(qobject_cast<QWebSocket *>(pTransport->parent()), &QWebSocket::bytesWritten);
            while (written.wait(50)) { } // until the system's buffers are full
            Clock::putForward(4);
            return nSent;
        };
        socket.setReadBufferSize(1);
        client.send(handshake("127.0.0.1:PORT"));
        QTRY_COMPARE(program.clients.size(), 1);
        pTransport = program.firstClient();
        send(80);
        send(1); // the five seconds begin
        qint64 nRead = 0;
        const auto reading =
            connect(&socket, &QTcpSocket::readyRead, this, [&] { nRead += socket.readAll().size(); });
        socket.setReadBufferSize(0);
        nRead += socket.readAll().size();
        QTRY_VERIFY_WITH_TIMEOUT(nRead > 81 << 20, 60000);

        socket.setReadBufferSize(1);
        disconnect(reading);
        send(130);
        send(1); // the five seconds begin again
        send(1);
        QVERIFY(log.lines().isEmpty());
        send(1);
        QCOMPARE(log.lines(), {"Dropped a web channel client that reads too little."});
        QTRY_VERIFY(!pTransport);

        RawClient other(program);
        other.socket.setReadBufferSize(1);
        other.send(handshake("127.0.0.1:PORT"));
        QTRY_COMPARE(program.clients.size(), 2);
        pTransport = program.clients.last().first().value<WebSocketTransport *>();
        ChannelLog::forget();
        const int nSent = send(300);
        QVERIFY2(nSent >= 256 && nSent < 266, qPrintable(QString::number(nSent)));
    }

    void mainWindowServesItsChannelUntilItGoes()
    {
        TestProgram program;
        Counter counter;
        auto window = std::make_unique<MainWindow>(nullptr);
        QCOMPARE(window->getServer()->serverName(), "KPServer");
        QCOMPARE(window->getServer()->serverAddress(), QHostAddress(QHostAddress::LocalHost));
        QCOMPARE(window->getServerKey().size(), 43);
        window->getChannel()->registerObject("counter", &counter);
        QUrl url = window->getServer()->serverUrl();
        url.setQuery("key=" + window->getServerKey());

        Client native(window->getServer()->serverUrl());
        QWebSocket page("http://evil.example");
        page.open(url);
        QTRY_COMPARE(page.state(), QAbstractSocket::ConnectedState);
        const QSignalSpy answers(&page, &QWebSocket::textMessageReceived);
        page.sendTextMessage(QString::fromLatin1(call("add", "[4]")));
        QTRY_COMPARE(answers.size(), 1);
        QCOMPARE(answers.first().first().toString(), R"({"data":4,"id":1,"type":10})");
        QCOMPARE(counter.total(), 4);
        window.reset();
        counter.add(1);
        QTRY_COMPARE(page.state(), QAbstractSocket::UnconnectedState);
        QTRY_COMPARE(native.socket.state(), QAbstractSocket::UnconnectedState);
    }
};

QTEST_MAIN(tst_WebSocketTransport)
#include "tst_websockettransport.moc"
