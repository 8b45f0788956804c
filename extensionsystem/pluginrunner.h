// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>
#include <extensionsystem/pluginerror.h>
#include <extensionsystem/pluginrecord.h>
#include <extensionsystem/pluginresolver.h>

#include <QObject>

#include <memory>

namespace ExtensionSystem {

class IPlugin;

/// Takes plug-ins through their life, whether they come from libraries or are made on the spot. It owns the
/// plug-in objects and catches what their hooks throw. One failure stops the plug-in and those that require
/// it, nobody else; a plug-in marked "Required" that fails ends the start. GUI thread only.
class EXTENSIONSYSTEM_EXPORT PluginRunner : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PluginRunner)

public:
    /// Resolves the records at once; what cannot be used is in errors() then.
    explicit PluginRunner(const QList<PluginRecord> &records, const PluginSelection &selection = {});

    /// Stops what still runs.
    ~PluginRunner() override;

    /// Books the times of all phases and gives them back as a table.
    void setProfiled(bool bProfiled);
    [[nodiscard]] QString profile() const;

    /// Constructs and initialises all plug-ins; delayed work follows from the event loop after so many
    /// milliseconds or startLateWork(), then initializationDone(). False: a required plug-in failed,
    /// requiredFailure() says how, nothing runs.
    [[nodiscard]] bool start(int nLateWorkMs = 0);

    /// Waits no longer with the delayed work; nothing happens when it has begun.
    void startLateWork();

    /// After so many milliseconds of delayed work, 10000 unless set, initializationDone() comes also while
    /// plug-ins have not finished. Each is noted as an error, and has a turn each second from then on.
    void setLateWorkLimit(int nMs);

    /// Null as long as no plug-in marked "Required" has failed.
    [[nodiscard]] const PluginError *requiredFailure() const;

    /// Stops all plug-ins, dependents first. Those that shut down asynchronously are waited for together, no
    /// longer than the limit; then all are deleted. Nothing happens the second time.
    void shutdown(int nTimeoutMs);

    /// Hands another start's command to every running plug-in in load order.
    void remoteCommand(
        const QStringList &options, const QString &strWorkingDirectory, const QStringList &arguments);

    /// Everything that went wrong so far, in order.
    [[nodiscard]] const QList<PluginError> &errors() const;

    /// In the order of the records.
    [[nodiscard]] QList<PluginDescription> plugins() const;

    /// The running plug-ins in load order; they stay the runner's.
    [[nodiscard]] QList<IPlugin *> running() const;

signals:
    /// Once for each new entry in errors() after the constructor.
    void failed(const ExtensionSystem::PluginError &error);

    /// A required plug-in failed after start() had returned; the program should end.
    void requiredPluginFailed();

    void initializationDone();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ExtensionSystem
