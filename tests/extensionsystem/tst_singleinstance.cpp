// SPDX-License-Identifier: MIT
#include "childprocess.h"

#include <extensionsystem/singleinstance.h>

#include <QLocalServer>
#include <QLocalSocket>
#include <support/rows.h>

#include <QtTest>

#include <signal.h>

using namespace ExtensionSystem;

namespace {

QByteArray framed(const QByteArray &message)
{
    QByteArray header(4, '\0');
    qToBigEndian(static_cast<quint32>(message.size()), header.data());
    return header + message;
}

void expectDropped(const QByteArray &reason)
{
    QTest::ignoreMessage(QtWarningMsg, qPrintable("A message from another start was dropped: " + reason));
}

} // namespace

class tst_SingleInstance : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_pFolder; // settings of one test, and folders to start in

    QString folder(const char *pName) const { return m_pFolder->filePath(QLatin1String(pName)); }

    // A start of the test host in the folder "elsewhere".
    std::unique_ptr<ChildProcess> host(
        const QStringList &arguments = {}, const char *pSettings = "settings") const
    {
        const QStringList line = {"--plugin-path", testPath("good"), "--plugin-path", testPath("asking"),
            "--settings-path", folder(pSettings)};
        return std::make_unique<ChildProcess>(testPath("testhost"), line + arguments,
            QList<QPair<QString, QString>>({{"HOST_STAYS", "1"}}), folder("elsewhere"));
    }

    std::unique_ptr<ChildProcess> runningHost() const
    {
        auto pHost = host();
        if (!pHost->waitForLine("setting "))
            qWarning("the host does not start: %s", qPrintable(pHost->errors()));
        return pHost;
    }

    // A socket connected to whoever listens for the folder.
    std::unique_ptr<QLocalSocket> connected(const char *pSettings = "settings") const
    {
        auto pSocket = std::make_unique<QLocalSocket>();
        pSocket->connectToServer(SingleInstance(folder(pSettings)).serverName());
        if (!pSocket->waitForConnected(5000))
            qWarning("cannot connect: %s", qPrintable(pSocket->errorString()));
        return pSocket;
    }

    // Guarded: a signal to process 0 would stop the whole test run.
    static bool send(int nSignal, const ChildProcess &host)
    {
        return host.processId() > 0 && ::kill(static_cast<pid_t>(host.processId()), nSignal) == 0;
    }

    // Another start leaves its file to the one that runs.
    void checkHandOver(ChildProcess &running, const char *pFile) const
    {
        QCOMPARE(host({pFile})->finish(), 0);
        QVERIFY(running.waitForLine(QString("base remoteCommand %1 %2").arg(folder("elsewhere"), pFile)));
    }

private slots:
    void init()
    {
        m_pFolder = std::make_unique<QTemporaryDir>();
        for (const char *pName : {"settings", "other settings", "elsewhere"})
            QVERIFY(QDir().mkpath(folder(pName)));
    }

    void aSecondStartHandsOverAndEndsAtOnce()
    {
        const auto pFirst = runningHost();
        QElapsedTimer timer;
        timer.start();
        const auto pSecond = host({"--depth=20", "sub/a b.kelpa", "--", "-ü.kelpa"});
        QCOMPARE(pSecond->finish(), 0);
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(pSecond->lines(), QStringList("catalogues"));
        const QString strWanted =
            QString("remoteCommand --depth 20 %1 sub/a b.kelpa -ü.kelpa").arg(folder("elsewhere"));
        QVERIFY(pFirst->waitForLine("anchor " + strWanted));
        QVERIFY(pFirst->lines().contains("base " + strWanted));
        QVERIFY(pFirst->waitForLine("asking " + strWanted));
        checkHandOver(*pFirst, "while one asks.kelpa");
        QVERIFY(send(SIGTERM, *pFirst));
        QCOMPARE(pFirst->finish(), 0);
        QCOMPARE(pFirst->lines().last(), "base destroy");
        QCOMPARE(pFirst->errors(), QString());
    }

    // Also after a slot threw.
    void theRealProgramOpensInTheFirstWindow()
    {
        const QStringList line = {"--plugin-path", testPath("good"), "--plugin-path", testPath("slot"),
            "--settings-path", folder("settings")};
        ChildProcess first(QStringLiteral(KELPASTUDIO), line);
        QVERIFY(first.waitForLine("slot after"));
        QVERIFY2(first.errors().contains("event failed: exception: broken"), qPrintable(first.errors()));
        ChildProcess second(
            QStringLiteral(KELPASTUDIO), line + QStringList("one.kelpa"), {}, folder("elsewhere"));
        QCOMPARE(second.finish(), 0);
        QVERIFY(first.waitForLine(QString("base remoteCommand %1 one.kelpa").arg(folder("elsewhere"))));
    }

    // Another settings folder is another program.
    void othersStartAllTheSame()
    {
        for (const char *pSettings : {"settings", "other settings"}) {
            const auto pFirst = runningHost();
            const bool bOther = QByteArray(pSettings) != "settings";
            const auto pOther = host(bOther ? QStringList() : QStringList("--new-instance"), pSettings);
            QVERIFY(pOther->waitForLine("setting "));
            // The first still is the one that listens.
            checkHandOver(*pFirst, "a.kelpa");
            QVERIFY(pOther->lines().filter("remoteCommand").isEmpty());
        }
    }

    void aKilledInstanceLeavesRoomForTheNext()
    {
        const QString strName = SingleInstance(folder("settings")).serverName();
        const auto pFirst = runningHost();
        pFirst->kill();
        QVERIFY(pFirst->waitForFinished());
        QVERIFY2(QFile::exists(strName), "a stale socket is left behind");
        const auto pNext = runningHost();
        checkHandOver(*pNext, "a.kelpa");
    }

    void dyingDuringTheHandOverMakesTheSecondTheFirst()
    {
        const auto pFirst = runningHost();
        QVERIFY(send(SIGSTOP, *pFirst)); // it accepts, but does not answer
        const auto pSecond = host({"a.kelpa"});
        QVERIFY(!pSecond->waitForFinished(100));
        pFirst->kill();
        QVERIFY(pSecond->waitForLine(QString("done %1/a.kelpa").arg(folder("elsewhere"))));
        checkHandOver(*pSecond, "b.kelpa");
    }

    void anInstanceThatHangsLosesNothingAndOpensNothingTwice()
    {
        const auto pFirst = runningHost();
        QVERIFY(send(SIGSTOP, *pFirst));
        const auto pSecond = host({"a.kelpa"});
        // One that may be ending does not listen.
        SingleInstance ending(folder("other settings")), listening(folder("elsewhere"));
        QCOMPARE(ending.claim({}), SingleInstance::Role::First);
        ending.setHears(false);
        const auto pOther = host({}, "other settings");
        // Half a message, then nothing.
        QCOMPARE(listening.claim({}), SingleInstance::Role::First);
        expectDropped("the message takes too long");
        const auto pHalf = connected("elsewhere");
        pHalf->write(framed("{}").left(5));

        QVERIFY(pSecond->waitForLine(QString("done %1/a.kelpa").arg(folder("elsewhere"))));
        QCOMPARE(pSecond->errors(), "The running instance does not answer; another one is started.\n");
        QVERIFY(pOther->waitForLine("setting "));
        QCOMPARE(pHalf->state(), QLocalSocket::UnconnectedState);
        QVERIFY(send(SIGCONT, *pFirst));
        checkHandOver(*pFirst, "b.kelpa");
        QVERIFY(pFirst->lines().filter("a.kelpa").isEmpty());
    }

    void twoSimultaneousStartsAgree()
    {
        for (int i = 0; i < 5; ++i) {
            const auto pOne = host();
            const auto pTwo = host();
            const auto isUp = [](const ChildProcess &process) {
                return process.lines().contains("setting ");
            };
            QTRY_VERIFY_WITH_TIMEOUT((isUp(*pOne) && pTwo->state() == QProcess::NotRunning)
                    || (isUp(*pTwo) && pOne->state() == QProcess::NotRunning),
                20000);
            QVERIFY(!isUp(*pOne) || !isUp(*pTwo));
        }
    }

    void badMessagesAreDropped_data()
    {
        const auto row = columns<QByteArray, bool, QByteArray>("message", "leaves", "reason");
        row("a length beyond the limit", "\x7f\xff\xff\xff", false, "it is too large");
        row("no JSON", framed("hello"), false, "it is malformed");
        row("no message at all", framed(""), false, "it is malformed");
        row("a number among the files",
            framed(R"({"options":[],"workingDirectory":"/","arguments":["a",1]})"), false, "it is malformed");
        row("a member is missing", framed(R"({"options":[],"arguments":["a"]})"), false, "it is malformed");
        row("deeply nested arrays", framed(QByteArray(500000, '[')), false, "it is malformed");
        row("half a message, then gone", framed("{}").left(5), true,
            "the sender went away in the middle of it");
    }
    void badMessagesAreDropped()
    {
        QFETCH(QByteArray, message);
        QFETCH(bool, leaves);
        QFETCH(QByteArray, reason);
        SingleInstance instance(folder("settings"));
        QCOMPARE(instance.claim({}), SingleInstance::Role::First);
        QSignalSpy commands(&instance, &SingleInstance::commandReceived);
        expectDropped(reason);
        const auto pSocket = connected();
        QSignalSpy closed(pSocket.get(), &QLocalSocket::disconnected);
        pSocket->write(message);
        if (leaves)
            pSocket->disconnectFromServer();
        QTRY_COMPARE_WITH_TIMEOUT(closed.size(), 1, 10000);

        // The next message, in two pieces, is none the worse for it.
        const RemoteCommand command = {{}, "/", {"a.kelpa"}};
        const auto pNext = connected();
        const QByteArray good = framed(command.toJson());
        pNext->write(good.left(9));
        QVERIFY(pNext->waitForBytesWritten());
        QCoreApplication::processEvents();
        pNext->write(good.mid(9));
        QTRY_COMPARE(commands.size(), 1);
        QCOMPARE(commands.at(0).at(0).value<RemoteCommand>().arguments, command.arguments);
    }

    void aFloodOfConnectionsIsLimited()
    {
        SingleInstance instance(folder("settings"));
        QCOMPARE(instance.claim({}), SingleInstance::Role::First);
        QSignalSpy commands(&instance, &SingleInstance::commandReceived);
        for (int i = 0; i < 4; ++i) {
            expectDropped("the sender did not wait for the receipt");
            auto pHasty = connected();
            pHasty->write(framed(RemoteCommand().toJson()));
            pHasty->flush();
            pHasty.reset();
            QCoreApplication::processEvents();
        }
        for (int i = 0; i < 4; ++i)
            expectDropped("too many connections at a time");
        std::vector<std::unique_ptr<QLocalSocket>> sockets;
        const auto isOpen = [](const auto &pSocket) {
            return pSocket->state() == QLocalSocket::ConnectedState;
        };
        for (int i = 0; i < 20; ++i) {
            sockets.push_back(connected());
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(std::count_if(sockets.begin(), sockets.end(), isOpen), 16);
        QVERIFY(commands.isEmpty());
    }

    void theSocketIsOnlyForItsUserAndForShortMessages()
    {
        SingleInstance instance(folder("settings"));
        QCOMPARE(instance.claim({}), SingleInstance::Role::First);
        const QFileInfo socket(instance.serverName());
        const auto others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QVERIFY(
            !(socket.permissions() & others) || !(QFileInfo(socket.absolutePath()).permissions() & others));
        QVERIFY(instance.serverName().size() < 100);
        const QString strLong(SingleInstance::s_nLargestMessage, QLatin1Char('x'));
        QCOMPARE(SingleInstance(folder("settings")).claim({{}, {}, {strLong}}), SingleInstance::Role::Alone);
    }
};

QTEST_GUILESS_MAIN(tst_SingleInstance)
#include "tst_singleinstance.moc"
