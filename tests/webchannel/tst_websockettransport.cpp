// SPDX-License-Identifier: MIT
#include <webchannel/channelserver.h>

#include <support/coretest.h>

#include <mainwindow.h>
#include <webchannel/clientpolicy.h>

namespace {

QJsonObject object(const QString &strText)
{
    return QJsonDocument::fromJson(strText.toUtf8()).object();
}

/// A plain client that is connected, and what it was sent.
struct Client
{
    explicit Client(const QUrl &url) { socket.open(url); }

    [[nodiscard]] QStringList texts() const
    {
        QStringList result;
        for (const QVariantList &arguments : received)
            result.append(arguments.first().toString());
        return result;
    }

    QWebSocket socket;
    QSignalSpy connected {&socket, &QWebSocket::connected};
    QSignalSpy received {&socket, &QWebSocket::textMessageReceived};
};

} // namespace

class tst_WebSocketTransport : public QObject
{
    Q_OBJECT

private slots:
    void plainClientCallsAnObjectAndHearsOfItsSignalsAndProperties()
    {
        ChannelServer program;
        Client client(program.url());
        QVERIFY(client.connected.wait());
        client.socket.sendTextMessage(QStringLiteral(R"({"type":3,"id":7})"));
        QTRY_COMPARE(client.received.size(), 1);
        const QJsonObject answer = object(client.texts().constFirst());
        QCOMPARE(answer.value("id").toInt(), 7);
        QVERIFY(answer.value("data").toObject().contains("counter"));
        QVERIFY(!client.texts().constFirst().contains(QLatin1Char('\n')));

        client.socket.sendTextMessage(QStringLiteral(R"({"type":4})"));
        client.socket.sendTextMessage(QString::fromLatin1(call("add", "[5]")));
        QTRY_COMPARE(client.received.size(), 3);
        QCOMPARE(object(client.texts().at(1)).value("data").toInt(), 5);
        const QJsonObject update = object(client.texts().at(2));
        QCOMPARE(update.value("type").toInt(), 2);
        QVERIFY(client.texts().at(2).contains(QStringLiteral(R"("counter")")));
        QCOMPARE(program.counter.total(), 5);
    }

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

    void warningsOfOneClientAreCounted()
    {
        ChannelServer program;
        const ChannelLog log;
        {
            Client client(program.url());
            QVERIFY(client.connected.wait());
            for (int i = 0; i < 500; ++i)
                client.socket.sendTextMessage("x");
            client.socket.sendTextMessage(QString::fromLatin1(call("add", "[2]")));
            QTRY_COMPARE(program.counter.total(), 2);
        }
        const QRegularExpression count("^(\\d+) more .* were not logged\\.$");
        QTRY_VERIFY(count.match(log.lines().constLast()).hasMatch());
        int nCounted = 0;
        for (const QString &strLine : log.lines())
            nCounted += count.match(strLine).hasMatch() ? count.match(strLine).captured(1).toInt() : 1;
        QCOMPARE(nCounted, 500);
    }

    void clientThatReadsMayFallBehind_data()
    {
        const auto row = columns<int, int>("messages", "characters");
        row("one large answer", 1, 70 * 1024 * 1024);
        row("a burst of answers", 5, 15 * 1024 * 1024);
    }

    void clientThatReadsMayFallBehind()
    {
        QFETCH(const int, messages);
        QFETCH(const int, characters);
        ChannelServer program;
        Client client(program.url());
        QVERIFY(client.connected.wait());
        const QJsonObject message {{"text", QString(characters, QLatin1Char('x'))}};
        for (int i = 0; i < messages; ++i)
            program.firstClient()->sendMessage(message);
        QTRY_COMPARE_WITH_TIMEOUT(client.received.size(), messages, 60000);
    }

    void clientThatReadsNothingIsDropped_data()
    {
        const auto row = columns<int>("messages");
        row("much at once", 70);
        row("less, for some seconds", 18);
    }

    void clientThatReadsNothingIsDropped()
    {
        QFETCH(const int, messages);
        ChannelServer program;
        const ChannelLog log;
        QTcpSocket client;
        client.setReadBufferSize(1);
        client.connectToHost(QHostAddress::LocalHost, program.server.serverPort());
        client.write(handshake("localhost:" + QByteArray::number(program.server.serverPort())));
        QTRY_COMPARE(program.clients.size(), 1);
        const QPointer<WebSocketTransport> pTransport(program.firstClient());
        const QJsonObject message {{"text", QString(4000000, QLatin1Char('x'))}};
        for (int i = 0; i < messages && log.lines().isEmpty(); ++i)
            pTransport->sendMessage(message);
        QCOMPARE(log.lines().isEmpty(), messages < 20);
        const auto isDropped = [&] {
            if (pTransport)
                pTransport->sendMessage({});
            return !pTransport;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isDropped(), 4 * ClientPolicy::UnreadTimeoutMs);
        QCOMPARE(log.lines().constFirst(), "Dropped a web channel client that reads too little.");
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
        page.sendTextMessage(QString::fromLatin1(call("add", "[4]")));
        QTRY_COMPARE(counter.total(), 4);
        window.reset();
        counter.add(1);
        QTRY_COMPARE(page.state(), QAbstractSocket::UnconnectedState);
        QTRY_COMPARE(native.socket.state(), QAbstractSocket::UnconnectedState);
    }
};

QTEST_MAIN(tst_WebSocketTransport)
#include "tst_websockettransport.moc"
