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

/// What a start of the program hands over to the instance that is already running.
struct EXTENSIONSYSTEM_EXPORT RemoteCommand
{
    QStringList options;
    QString workingDirectory;
    QStringList arguments; ///< as typed; file names are relative to workingDirectory

    [[nodiscard]] QByteArray toJson() const;

    /// Returns nothing when `json` is not what toJson() writes.
    [[nodiscard]] static std::optional<RemoteCommand> fromJson(const QByteArray &json);
};

/// Lets one program run for each settings folder. The first start listens on a local socket that only its
/// user can reach; later ones hand over their command lines. A message is its length (four bytes, the highest
/// first) and then JSON; the answer is the receipt "ok". The owner is PluginManager; GUI thread only.
class EXTENSIONSYSTEM_EXPORT SingleInstance : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SingleInstance)

public:
    enum class Role {
        First, ///< listens from now on
        HandedOver, ///< the running instance has the command
        Alone ///< neither of these; problem() says why
    };

    static constexpr int s_nLargestMessage = 1024 * 1024;

    explicit SingleInstance(const QString &strSettingsFolder);
    ~SingleInstance() override;

    /// Finds the role of this start. It blocks, without an event loop, for a few milliseconds, or for about
    /// three seconds when the running instance does not answer.
    [[nodiscard]] Role claim(const RemoteCommand &command);
    [[nodiscard]] QString problem() const { return m_strProblem; }

    /// The name of the socket; empty when there is no safe place for it.
    [[nodiscard]] QString serverName() const { return m_strName; }

    /// False turns other starts away: they try again, and run by themselves after about three seconds.
    void setHears(bool bHears) { m_bHears = bHears; }

signals:
    /// Emitted from the event loop after the receipt was sent; never for a sender that did not wait for it.
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
