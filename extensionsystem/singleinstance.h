// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>

#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

class QLocalServer;
class QLocalSocket;

namespace ExtensionSystem {

/// What one start of the program hands to another that is already running.
struct EXTENSIONSYSTEM_EXPORT RemoteCommand
{
    QStringList options;
    QString workingDirectory;
    QStringList arguments; ///< as typed; relative to the working directory

    [[nodiscard]] QByteArray toJson() const;

    /// Nothing when the text is not what toJson() writes.
    [[nodiscard]] static std::optional<RemoteCommand> fromJson(const QByteArray &json);
};

/// Sees to it that one program runs for each settings folder. The first listens on a local socket only its
/// user can reach; later ones hand over what they were given. On the socket goes the length of the message,
/// four bytes with the highest first, then the message in JSON; the receipt "ok" comes back.
class EXTENSIONSYSTEM_EXPORT SingleInstance : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SingleInstance)

public:
    enum class Role {
        First, ///< listens from now on
        HandedOver, ///< another one has the command
        Alone ///< neither; problem() says why
    };

    static constexpr int s_nLargestMessage = 1024 * 1024;

    explicit SingleInstance(const QString &strSettingsFolder);
    ~SingleInstance() override;

    /// Finds this start's role. Needs no event loop and takes a few milliseconds, or about three seconds
    /// when the other one does not answer.
    [[nodiscard]] Role claim(const RemoteCommand &command);
    [[nodiscard]] QString problem() const { return m_strProblem; }

    /// Where the first one listens; empty when there is no safe place.
    [[nodiscard]] QString serverName() const { return m_strName; }

    /// While it does not listen, other starts find nobody there: they try again, then run by themselves.
    void setHears(bool bHears) { m_bHears = bHears; }

signals:
    /// From the event loop, after the receipt went out; never for a sender that did not wait for it.
    void commandReceived(const ExtensionSystem::RemoteCommand &command);

private:
    enum class Delivery { Received, PeerGone, Silent };

    [[nodiscard]] std::optional<Role> listenUnlessConnected(QLocalSocket &socket, int nMs);
    [[nodiscard]] static Delivery deliver(QLocalSocket &socket, const QByteArray &message, int nMs);
    [[nodiscard]] Role listen();
    [[nodiscard]] Role alone(const QString &strProblem);
    void accept(QLocalSocket *pSocket);
    void read(QLocalSocket *pSocket);
    void receive(QLocalSocket *pSocket, const QByteArray &json);
    void drop(QLocalSocket *pSocket, const char *pReason);
    void release(QLocalSocket *pSocket);

    QString m_strName;
    QString m_strLockFile;
    QString m_strProblem;
    std::unique_ptr<QLocalServer> m_pServer;
    bool m_bHears = true;
};

} // namespace ExtensionSystem

Q_DECLARE_METATYPE(ExtensionSystem::RemoteCommand)
