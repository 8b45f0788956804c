// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/iplugin.h>

#include <QTimer>

#include <memory>

class MainWindow;
class QSessionManager;

/// The object through which the framework starts the core. It fixes the order in which language, main window
/// and managers come to life, and passes every hook on to the main window, which it owns.
class CorePlugin : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CorePlugin)
    Q_PLUGIN_METADATA(IID "com.ORVEN.Kelpa.Plugin" FILE "core.json")

public:
    CorePlugin();
    ~CorePlugin() override;

    bool initialize(const QStringList &arguments, QString *errorString) override;
    void extensionsInitialized() override;
    bool delayedInitialize() override { return true; }
    ShutdownFlag aboutToShutdown() override;

    /// Raises the window, then opens `arguments` in order, relative to `workingDirectory` or, when that is
    /// empty, to the current directory. Always null.
    QObject *remoteCommand(
        const QStringList &options, const QString &workingDirectory, const QStringList &arguments) override;

public slots:
    /// Opens one file as a remote command would.
    void fileOpenRequest(const QString &);

private:
    void watchProgram();
    void tellFaults();
    void tellException(const QString &strCommand, const QString &strReason);
    void endProgram();
    void endSession(QSessionManager &session);

    std::unique_ptr<MainWindow> m_pMainWindow;
    QTimer m_endLater; // runs while the program is to end and something is being asked
};
