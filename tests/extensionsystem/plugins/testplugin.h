// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/iplugin.h>

/// A plug-in that prints what happens to it. BEHAVIOUR, "throw HOOK" or "fail HOOK", makes one hook go wrong.
class TestPlugin : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.ORVEN.Kelpa.Plugin" FILE "testplugin.json")

public:
    TestPlugin();
    ~TestPlugin() override;

    bool initialize(const QStringList &arguments, QString *errorString) override;
    void extensionsInitialized() override;
    bool delayedInitialize() override;
    ShutdownFlag aboutToShutdown() override;
    QObject *remoteCommand(
        const QStringList &options, const QString &workingDirectory, const QStringList &arguments) override;
};
