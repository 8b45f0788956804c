// SPDX-License-Identifier: MIT
#pragma once

#include "pluginmanager.h"

#include "commandline.h"
#include "pluginrunner.h"
#include "singleinstance.h"

namespace ExtensionSystem {

struct PluginManager::Private
{
    MessageSink sink;
    std::unique_ptr<CommandLine> line;
    std::unique_ptr<PluginRunner> runner;
    std::unique_ptr<SingleInstance> instance;
    QList<PluginError> errors;
    QStringList arguments;
    QStringList needed; // names of plug-ins
    int nLateWorkDelayMs = 0;
    int nShutdownTimeoutMs = 5000;

    QList<RemoteCommand> commands; // received but not yet run
    bool bTakesCommands = false; // true between the plug-ins' start and their shutdown

    SettingsStore user;
    SettingsStore machine;
    QList<SettingsFault> faults;

    QObjectList pool;
    QReadWriteLock poolLock {QReadWriteLock::Recursive};
};

} // namespace ExtensionSystem
