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

/// Takes plug-ins through their life, whether they come from libraries or are made by the program. It owns
/// the plug-in objects and catches what their hooks throw. A failure stops the plug-in and those that require
/// it, but no others; if a plug-in marked "Required" fails, the start fails. GUI thread only.
class EXTENSIONSYSTEM_EXPORT PluginRunner : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PluginRunner)

public:
    /// Resolves the records at once; errors() then tells what cannot be used.
    explicit PluginRunner(const QList<PluginRecord> &records, const PluginSelection &selection = {});

    /// Calls shutdown() with a limit of 5000 milliseconds.
    ~PluginRunner() override;

    /// Records the times of all phases, which profile() returns as a table.
    void setProfiled(bool bProfiled);
    [[nodiscard]] QString profile() const;

    /// Constructs and initializes all plug-ins. Delayed work follows from the event loop after this many
    /// milliseconds or at startLateWork(), then initializationDone(). Returns false if a required plug-in
    /// failed: requiredFailure() says how, and no plug-in runs.
    [[nodiscard]] bool start(int nLateWorkMs = 0);

    /// Begins the delayed work at once; does nothing when it has begun.
    void startLateWork();

    /// Limits the delayed work, in milliseconds from its first turn; 10000 unless set. Then
    /// initializationDone() comes even if plug-ins have not finished: each is noted as an error and has a
    /// turn every second.
    void setLateWorkLimit(int nMs);

    /// Null while no plug-in marked "Required" has failed.
    [[nodiscard]] const PluginError *requiredFailure() const;

    /// Stops all plug-ins, dependents first. Those that stop asynchronously are waited for together, for at
    /// most `nTimeoutMs` milliseconds; then all are deleted. A second call does nothing.
    void shutdown(int nTimeoutMs);

    /// Hands the command of another start to every running plug-in, in load order.
    void remoteCommand(
        const QStringList &options, const QString &strWorkingDirectory, const QStringList &arguments);

    /// Everything that went wrong so far, in order.
    [[nodiscard]] const QList<PluginError> &errors() const;

    /// In the order of the records.
    [[nodiscard]] QList<PluginDescription> plugins() const;

    /// The running plug-ins in load order, which the runner still owns.
    [[nodiscard]] QList<IPlugin *> running() const;

signals:
    /// Emitted once for each entry that errors() gets after the constructor.
    void failed(const ExtensionSystem::PluginError &error);

    /// A required plug-in failed after start() had returned true; the program should end.
    void requiredPluginFailed();

    void initializationDone();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ExtensionSystem
