// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>

#include <QObject>
#include <QStringList>

namespace ExtensionSystem {

/// The one object through which a plug-in library meets the program. The framework makes it when it loads
/// the library, calls the hooks below on the GUI thread in the order they stand here, and deletes it at
/// shutdown, dependents before what they depend on. A hook that throws counts as failed.
class EXTENSIONSYSTEM_EXPORT IPlugin : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IPlugin)

public:
    enum ShutdownFlag { SynchronousShutdown = 0, AsynchronousShutdown = 1 };

    IPlugin() = default;
    ~IPlugin() override = default;

    /// Called after everything this plug-in depends on was initialised. `arguments` are the options on the
    /// command line that the plug-in's metadata declares, each followed by its value if it takes one.
    /// Returning false stops this plug-in and its dependents; `errorString` (never null) takes the reason.
    virtual bool initialize(const QStringList &arguments, QString *errorString) = 0;

    /// Called when every plug-in was initialised, dependents first: what they put into the pool is there.
    virtual void extensionsInitialized() { }

    /// Late work, in slices that must stay short. True means finished; false asks for another turn of the
    /// event loop.
    virtual bool delayedInitialize() { return true; }

    /// Called once at shutdown, dependents first. After AsynchronousShutdown the framework keeps the event
    /// loop running until asynchronousShutdownFinished() or its time limit.
    virtual ShutdownFlag aboutToShutdown() { return SynchronousShutdown; }

    /// Another start of the program handed over what it was given; file names in `arguments` are relative
    /// to `workingDirectory`. The result, if any, stays with the plug-in.
    virtual QObject *remoteCommand(
        const QStringList &options, const QString &workingDirectory, const QStringList &arguments)
    {
        Q_UNUSED(options)
        Q_UNUSED(workingDirectory)
        Q_UNUSED(arguments)
        return nullptr;
    }

signals:
    void asynchronousShutdownFinished();
};

} // namespace ExtensionSystem
