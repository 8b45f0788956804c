// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>

#include <QObject>
#include <QStringList>

namespace ExtensionSystem {

/// The one object through which a plug-in library meets the program. The framework makes it when it loads the
/// library and deletes it at shutdown or after a failure, dependents before what they depend on. All hooks
/// are called on the GUI thread: the first three in this order, remoteCommand() whenever all plug-ins run,
/// and aboutToShutdown() last. A hook that throws counts as failed.
class EXTENSIONSYSTEM_EXPORT IPlugin : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IPlugin)

public:
    enum ShutdownFlag { SynchronousShutdown = 0, AsynchronousShutdown = 1 };

    IPlugin() = default;
    ~IPlugin() override = default;

    /// Called after everything this plug-in depends on was initialized. `arguments` are the options given
    /// that the plug-in's metadata declares, each followed by its value if it takes one. Returning false
    /// stops this plug-in and those that require it; the reason goes into `errorString`, which is never null.
    virtual bool initialize(const QStringList &arguments, QString *errorString) = 0;

    /// Called when all plug-ins are initialized, dependents first, so what they put into the pool is there.
    virtual void extensionsInitialized() { }

    /// Called from the event loop for work that can wait until the window is shown. Do a short slice of it;
    /// return true when all is done, or false to be called again.
    virtual bool delayedInitialize() { return true; }

    /// Called once at shutdown, dependents first. After AsynchronousShutdown the event loop runs on until
    /// asynchronousShutdownFinished(), which may also come from within this call, or until the time limit.
    virtual ShutdownFlag aboutToShutdown() { return SynchronousShutdown; }

    /// Another start of the program handed over its command line: the `options` of all plug-ins, and
    /// `arguments` with file names relative to `workingDirectory`. A result stays with the plug-in.
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
