// SPDX-License-Identifier: MIT
#include <extensionsystem/singleinstance.h>

#include "logging_p.h"
#include "platform_p.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QThread>
#include <QTimer>
#include <QtEndian>

#include <algorithm>

namespace ExtensionSystem {

namespace {

constexpr int s_nPatienceMs = 3000; // how long to wait for another instance that does not answer
constexpr int s_nPauseMs = 20; // before the next try
constexpr int s_nMessageTimeMs = 2000; // how long a message may take to arrive completely
constexpr int s_nMostClients = 16;
constexpr int s_nHeader = 4;
const QByteArray s_receipt = QByteArrayLiteral("ok");

const QString s_options = QStringLiteral("options");
const QString s_workingDirectory = QStringLiteral("workingDirectory");
const QString s_arguments = QStringLiteral("arguments");

bool readStrings(const QJsonValue &value, QStringList *pStrings)
{
    const QJsonArray array = value.toArray();
    for (const QJsonValue &entry : array) {
        if (!entry.isString())
            return false;
        pStrings->append(entry.toString());
    }
    return value.isArray();
}

QString keyOf(const QString &strFolder)
{
    const QString strCanonical = QFileInfo(strFolder).canonicalFilePath();
    const QByteArray name = (strCanonical.isEmpty() ? strFolder : strCanonical).toUtf8();
    return QLatin1String(QCryptographicHash::hash(name, QCryptographicHash::Sha256).toHex().left(16));
}

} // namespace

QByteArray RemoteCommand::toJson() const
{
    const QJsonObject object = {{s_options, QJsonArray::fromStringList(options)},
        {s_workingDirectory, workingDirectory}, {s_arguments, QJsonArray::fromStringList(arguments)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<RemoteCommand> RemoteCommand::fromJson(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    RemoteCommand command;
    command.workingDirectory = object.value(s_workingDirectory).toString();
    if (object.value(s_workingDirectory).isString() && readStrings(object.value(s_options), &command.options)
        && readStrings(object.value(s_arguments), &command.arguments))
        return command;
    return std::nullopt;
}

SingleInstance::SingleInstance(const QString &strSettingsFolder)
    : m_strName(Platform::localServerName(keyOf(strSettingsFolder)))
    , m_strLockFile(Platform::localServerLockFile(keyOf(strSettingsFolder)))
{
    qRegisterMetaType<RemoteCommand>();
}

// Closing removes the socket's file; the lock keeps that from being the file of a successor.
SingleInstance::~SingleInstance()
{
    if (!m_pServer)
        return;
    const auto sockets = m_pServer->findChildren<QLocalSocket *>();
    for (QLocalSocket *pSocket : sockets)
        pSocket->disconnect(this);
    QLockFile lock(m_strLockFile);
    lock.tryLock(s_nPatienceMs);
    m_pServer.reset();
}

SingleInstance::Role SingleInstance::claim(const RemoteCommand &command)
{
    const QByteArray message = command.toJson();
    if (m_strName.isEmpty())
        return alone(tr("There is no safe place for the socket on which other starts could be heard."));
    if (message.size() > s_nLargestMessage)
        return alone(tr("The command line is too long to hand over to a running instance."));

    const QDeadlineTimer deadline(s_nPatienceMs);
    while (!deadline.hasExpired()) {
        QLocalSocket socket;
        const auto remaining = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
        if (const auto role = listenUnlessConnected(socket, remaining()))
            return *role;
        const Delivery delivery = deliver(socket, message, remaining());
        if (delivery == Delivery::Received)
            return Role::HandedOver;
        if (delivery == Delivery::Silent)
            break;
        QThread::msleep(s_nPauseMs); // it ended, or turned this start away: try to take its place
    }
    return alone(tr("The running instance does not answer; another one is started."));
}

// The lock makes sure that only one of two simultaneous starts listens. No result: the socket is connected.
std::optional<SingleInstance::Role> SingleInstance::listenUnlessConnected(QLocalSocket &socket, int nMs)
{
    QLockFile lock(m_strLockFile);
    if (!lock.tryLock(nMs))
        return alone(tr("The lock file %1 cannot be had; another instance is started.").arg(m_strLockFile));
    socket.connectToServer(m_strName);
    if (socket.waitForConnected(nMs))
        return std::nullopt;
    const auto error = socket.error();
    if (error == QLocalSocket::ServerNotFoundError || error == QLocalSocket::ConnectionRefusedError)
        return listen();
    return alone(
        tr("The running instance cannot be reached (%1); another one is started.").arg(socket.errorString()));
}

SingleInstance::Delivery SingleInstance::deliver(QLocalSocket &socket, const QByteArray &message, int nMs)
{
    const QDeadlineTimer deadline(nMs);
    QByteArray header(s_nHeader, '\0');
    qToBigEndian(static_cast<quint32>(message.size()), header.data());
    socket.write(header + message);
    while (socket.bytesAvailable() < s_receipt.size() && !deadline.hasExpired()) {
        if (socket.state() != QLocalSocket::ConnectedState)
            return Delivery::PeerGone;
        socket.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    }
    return socket.read(s_receipt.size()) == s_receipt ? Delivery::Received : Delivery::Silent;
}

SingleInstance::Role SingleInstance::listen()
{
    auto pServer = std::make_unique<QLocalServer>();
    pServer->setSocketOptions(QLocalServer::UserAccessOption);
    connect(pServer.get(), &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *pSocket = m_pServer->nextPendingConnection())
            accept(pSocket);
    });
    QLocalServer::removeServer(m_strName); // a killed instance leaves the file of its socket behind
    if (!pServer->listen(m_strName))
        return alone(tr("Other starts cannot be heard on %1: %2").arg(m_strName, pServer->errorString()));
    m_pServer = std::move(pServer);
    return Role::First;
}

SingleInstance::Role SingleInstance::alone(const QString &strProblem)
{
    m_strProblem = strProblem;
    return Role::Alone;
}

void SingleInstance::accept(QLocalSocket *pSocket)
{
    if (!m_bHears)
        return release(pSocket);
    const auto sockets = m_pServer->findChildren<QLocalSocket *>();
    const auto isOpen = [](const QLocalSocket *pClient) { return pClient->isOpen(); };
    if (std::count_if(sockets.begin(), sockets.end(), isOpen) > s_nMostClients)
        return drop(pSocket, "too many connections at a time");
    if (!Platform::isOwnPeer(*pSocket))
        return drop(pSocket, "the sender is another user");
    pSocket->setReadBufferSize(s_nHeader + s_nLargestMessage);
    auto *pTimer = new QTimer(pSocket);
    pTimer->setSingleShot(true);
    connect(pTimer, &QTimer::timeout, this, [this, pSocket] { drop(pSocket, "the message takes too long"); });
    pTimer->start(s_nMessageTimeMs);
    connect(pSocket, &QLocalSocket::readyRead, this, [this, pSocket] { read(pSocket); });
    connect(pSocket, &QLocalSocket::disconnected, this,
        [this, pSocket] { drop(pSocket, "the sender went away in the middle of it"); });
    read(pSocket);
}

void SingleInstance::read(QLocalSocket *pSocket)
{
    const QByteArray header = pSocket->peek(s_nHeader);
    if (header.size() < s_nHeader)
        return;
    const auto nSize = qFromBigEndian<quint32>(header.constData());
    if (nSize > s_nLargestMessage)
        return drop(pSocket, "it is too large");
    if (pSocket->bytesAvailable() < s_nHeader + static_cast<qint64>(nSize))
        return;
    pSocket->skip(s_nHeader);
    receive(pSocket, pSocket->read(nSize));
}

// A sender that lost patience has disconnected, and runs its command by itself; it is not run here as well.
void SingleInstance::receive(QLocalSocket *pSocket, const QByteArray &json)
{
    if (!m_bHears)
        return release(pSocket);
    const auto command = RemoteCommand::fromJson(json);
    if (!command)
        return drop(pSocket, "it is malformed");
    pSocket->disconnect(this); // so that a write which finds the sender gone does not drop it twice
    pSocket->write(s_receipt);
    const bool bOut = pSocket->flush()
        || (pSocket->state() == QLocalSocket::ConnectedState
            && pSocket->waitForBytesWritten(s_nMessageTimeMs));
    if (!bOut)
        return drop(pSocket, "the sender did not wait for the receipt");
    release(pSocket);
    QMetaObject::invokeMethod(
        this, [this, command] { emit commandReceived(*command); }, Qt::QueuedConnection);
}

void SingleInstance::drop(QLocalSocket *pSocket, const char *pReason)
{
    qCWarning(lcExtensionSystem, "A message from another start was dropped: %s", pReason);
    release(pSocket);
}

void SingleInstance::release(QLocalSocket *pSocket)
{
    pSocket->disconnect(this);
    if (auto *pTimer = pSocket->findChild<QTimer *>())
        pTimer->stop();
    pSocket->close();
    pSocket->deleteLater();
}

} // namespace ExtensionSystem
