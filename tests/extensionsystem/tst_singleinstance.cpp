// SPDX-License-Identifier: MIT
#include "childprocess.h"

#include <extensionsystem/singleinstance.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <signal.h>

using namespace ExtensionSystem;

namespace {

constexpr auto s_stays = "HOST_STAYS";

QByteArray framed(const QByteArray &message)
{
    QByteArray header(4, '\0');
    qToBigEndian(static_cast<quint32>(message.size()), header.data());
    return header + message;
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
        const QStringList line = {
            QStringLiteral("--plugin-path"), testPath("good"), QStringLiteral("--settings-path"),
            folder(pSettings)};
        return std::make_unique<ChildProcess>(
            testPath("testhost"), line + arguments,
            QList<QPair<QString, QString>>({{QLatin1String(s_stays), QStringLiteral("1")}}),
            folder("elsewhere"));
    }

    std::unique_ptr<ChildProcess> runningHost(const QStringList &arguments = {}) const
    {
        auto pHost = host(arguments);
        if (!pHost->waitForLine(QStringLiteral("setting ")))
            qWarning("the host does not start: %s", qPrintable(pHost->errors()));
        return pHost;
    }

    // A socket connected to whoever listens for the folder "settings".
    std::unique_ptr<QLocalSocket> connected() const
    {
        auto pSocket = std::make_unique<QLocalSocket>();
        pSocket->connectToServer(SingleInstance(folder("settings")).serverName());
        if (!pSocket->waitForConnected(5000))
            qWarning("cannot connect: %s", qPrintable(pSocket->errorString()));
        return pSocket;
    }

    static QString received(const ChildProcess &host)
    {
        return host.lines().filter(QStringLiteral("base remoteCommand")).join(QLatin1Char('|'));
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
        const auto pSecond = host(
            {QStringLiteral("--depth=20"), QStringLiteral("sub/a b.kelpa"), QStringLiteral("--"),
             QStringLiteral("-ü.kelpa")});
        QCOMPARE(pSecond->finish(), 0);
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(pSecond->lines().isEmpty());
        const QString strWanted =
            QStringLiteral("remoteCommand --depth 20 %1 sub/a b.kelpa -ü.kelpa").arg(folder("elsewhere"));
        QVERIFY(pFirst->waitForLine(QStringLiteral("anchor ") + strWanted));
        QCOMPARE(received(*pFirst), QStringLiteral("base ") + strWanted);
        QCOMPARE(pFirst->errors(), QString());
    }

    void theRealProgramOpensInTheFirstWindow()
    {
        const QStringList line = {
            QStringLiteral("--plugin-path"), testPath("good"), QStringLiteral("--settings-path"),
            folder("settings")};
        ChildProcess first(QStringLiteral(KELPASTUDIO), line);
        QVERIFY(first.waitForLine(QStringLiteral("anchor delayedInitialize")));
        QElapsedTimer timer;
        timer.start();
        ChildProcess second(
            QStringLiteral(KELPASTUDIO), line + QStringList(QStringLiteral("one.kelpa")), {},
            folder("elsewhere"));
        QCOMPARE(second.finish(), 0);
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(
            first.waitForLine(QStringLiteral("base remoteCommand %1 one.kelpa").arg(folder("elsewhere"))));
    }

    void othersStartAllTheSame_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("settings");
        QTest::newRow("another settings folder is another program")
            << QStringList() << QByteArray("other settings");
        QTest::newRow("on demand") << QStringList(QStringLiteral("--new-instance")) << QByteArray("settings");
    }

    void othersStartAllTheSame()
    {
        QFETCH(QStringList, options);
        QFETCH(QByteArray, settings);
        const auto pFirst = runningHost();
        const auto pOther = host(options, settings.constData());
        QVERIFY(pOther->waitForLine(QStringLiteral("setting ")));
        // The first still is the one that listens.
        QCOMPARE(host({QStringLiteral("a.kelpa")})->finish(), 0);
        QVERIFY(
            pFirst->waitForLine(QStringLiteral("base remoteCommand %1 a.kelpa").arg(folder("elsewhere"))));
        QCOMPARE(received(*pOther), QString());
    }

    void aKilledInstanceLeavesRoomForTheNext()
    {
        const QString strName = SingleInstance(folder("settings")).serverName();
        const auto pFirst = runningHost();
        pFirst->kill();
        QVERIFY(pFirst->waitForFinished());
        QVERIFY2(QFile::exists(strName), "a stale socket is left behind");
        const auto pNext = runningHost();
        QCOMPARE(host({QStringLiteral("a.kelpa")})->finish(), 0);
        QVERIFY(pNext->waitForLine(QStringLiteral("base remoteCommand %1 a.kelpa").arg(folder("elsewhere"))));
    }

    void dyingDuringTheHandOverMakesTheSecondTheFirst()
    {
        const auto pFirst = runningHost();
        ::kill(static_cast<pid_t>(pFirst->processId()), SIGSTOP); // it accepts, but does not answer
        const auto pSecond = host({QStringLiteral("a.kelpa")});
        QVERIFY(!pSecond->waitForFinished(300));
        pFirst->kill();
        QVERIFY(pSecond->waitForLine(QStringLiteral("done %1/a.kelpa").arg(folder("elsewhere"))));
        QCOMPARE(host({QStringLiteral("b.kelpa")})->finish(), 0);
        QVERIFY(
            pSecond->waitForLine(QStringLiteral("base remoteCommand %1 b.kelpa").arg(folder("elsewhere"))));
    }

    void anInstanceThatHangsLosesNothing()
    {
        const auto pFirst = runningHost();
        ::kill(static_cast<pid_t>(pFirst->processId()), SIGSTOP);
        const auto pSecond = host({QStringLiteral("a.kelpa")});
        QVERIFY(pSecond->waitForLine(QStringLiteral("done %1/a.kelpa").arg(folder("elsewhere"))));
        QCOMPARE(
            pSecond->errors(),
            QStringLiteral("The running instance does not answer; another one is started.\n"));
    }

    void twoSimultaneousStartsAgree()
    {
        for (int i = 0; i < 5; ++i) {
            const auto pOne = host();
            const auto pTwo = host();
            const auto isUp = [](const ChildProcess &process) {
                return process.lines().contains(QStringLiteral("setting "));
            };
            QTRY_VERIFY_WITH_TIMEOUT(
                (isUp(*pOne) && pTwo->state() == QProcess::NotRunning)
                    || (isUp(*pTwo) && pOne->state() == QProcess::NotRunning),
                20000);
            QVERIFY(!isUp(*pOne) || !isUp(*pTwo));
        }
    }

    void badMessagesAreDropped_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<bool>("leaves");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a length beyond the limit")
            << QByteArray("\x7f\xff\xff\xff") << false << "it is too large";
        QTest::newRow("no JSON") << framed("hello") << false << "it is malformed";
        QTest::newRow("no message at all") << framed("") << false << "it is malformed";
        QTest::newRow("a number among the files")
            << framed(R"({"options":[],"workingDirectory":"/","arguments":["a",1]})") << false
            << "it is malformed";
        QTest::newRow("a member is missing")
            << framed(R"({"options":[],"arguments":["a"]})") << false << "it is malformed";
        QTest::newRow("deeply nested arrays")
            << framed(QByteArray(500000, '[')) << false << "it is malformed";
        QTest::newRow("half a message, then nothing")
            << framed("{}").left(5) << false << "the message takes too long";
        QTest::newRow("half a message, then gone")
            << framed("{}").left(5) << true << "the sender went away in the middle of it";
    }

    void badMessagesAreDropped()
    {
        QFETCH(QByteArray, message);
        QFETCH(bool, leaves);
        QFETCH(QString, reason);
        SingleInstance instance(folder("settings"));
        QCOMPARE(instance.claim({}), SingleInstance::Role::First);
        QSignalSpy commands(&instance, &SingleInstance::commandReceived);
        QTest::ignoreMessage(
            QtWarningMsg, qPrintable(QStringLiteral("A message from another start was dropped: ") + reason));
        const auto pSocket = connected();
        QSignalSpy closed(pSocket.get(), &QLocalSocket::disconnected);
        pSocket->write(message);
        if (leaves)
            pSocket->disconnectFromServer();
        QTRY_COMPARE_WITH_TIMEOUT(closed.size(), 1, 10000);

        // The next message, in two pieces, is none the worse for it.
        const RemoteCommand command = {{}, QStringLiteral("/"), {QStringLiteral("a.kelpa")}};
        const auto pNext = connected();
        const QByteArray good = framed(command.toJson());
        pNext->write(good.left(9));
        pNext->flush();
        QTest::qWait(1);
        pNext->write(good.mid(9));
        QTRY_COMPARE(commands.size(), 1);
        QCOMPARE(commands.at(0).at(0).value<RemoteCommand>().arguments, command.arguments);
    }

    void aFloodOfConnectionsIsLimited()
    {
        SingleInstance instance(folder("settings"));
        QCOMPARE(instance.claim({}), SingleInstance::Role::First);
        for (int i = 0; i < 4; ++i)
            QTest::ignoreMessage(
                QtWarningMsg, "A message from another start was dropped: too many connections at a time");
        std::vector<std::unique_ptr<QLocalSocket>> sockets;
        const auto isOpen = [](const auto &pSocket) {
            return pSocket->state() == QLocalSocket::ConnectedState;
        };
        for (int i = 0; i < 20; ++i) {
            sockets.push_back(connected());
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(std::count_if(sockets.begin(), sockets.end(), isOpen), 16);
        for (int i = 0; i < 16; ++i)
            QTest::ignoreMessage(
                QtWarningMsg,
                "A message from another start was dropped: the sender went away in the middle of it");
        sockets.clear();
        QTRY_VERIFY(connected()->isOpen());
    }

    void whatIsTooLongToHandOverStartsByItself()
    {
        SingleInstance instance(folder("settings"));
        QCOMPARE(
            instance.claim({{}, {}, {QString(SingleInstance::s_nLargestMessage, QLatin1Char('x'))}}),
            SingleInstance::Role::Alone);
        QVERIFY(instance.problem().contains(QLatin1String("too long")));
    }

    void theSocketIsOnlyForItsUser()
    {
        SingleInstance instance(folder("settings"));
        QCOMPARE(instance.claim({}), SingleInstance::Role::First);
        const QFileInfo socket(instance.serverName());
        const auto others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QVERIFY(
            !(socket.permissions() & others) || !(QFileInfo(socket.absolutePath()).permissions() & others));
        QVERIFY(instance.serverName().size() < 100);
    }
};

QTEST_GUILESS_MAIN(tst_SingleInstance)
#include "tst_singleinstance.moc"
