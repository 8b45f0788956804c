// SPDX-License-Identifier: MIT
#include "testplugin.h"

#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace {

// False when this hook is to fail.
bool note(const char *pHook, const QStringList &details = {})
{
    const QString strLine =
        "%1 %2 %3".arg(QStringLiteral(PLUGIN_NAME), QLatin1String(pHook), details.join(' '));
    std::printf("%s\n", qUtf8Printable(strLine.trimmed()));
    std::fflush(stdout);
    const QString strBehaviour = QStringLiteral(BEHAVIOUR);
    if (strBehaviour == "throw " + QLatin1String(pHook))
        throw std::runtime_error("broken on purpose");
    return strBehaviour != "fail " + QLatin1String(pHook);
}

} // namespace

TestPlugin::TestPlugin()
{
    note("construct");
}

TestPlugin::~TestPlugin()
{
    std::printf("%s destroy\n", PLUGIN_NAME);
    std::fflush(stdout);
}

bool TestPlugin::initialize(const QStringList &arguments, QString *errorString)
{
    *errorString = "no licence for the sea";
    return note("initialize", arguments);
}

void TestPlugin::extensionsInitialized()
{
    note("extensionsInitialized");
}

bool TestPlugin::delayedInitialize()
{
    note("delayedInitialize");
    return true;
}

ExtensionSystem::IPlugin::ShutdownFlag TestPlugin::aboutToShutdown()
{
    note("aboutToShutdown");
    return SynchronousShutdown;
}

QObject *TestPlugin::remoteCommand(
    const QStringList &options, const QString &workingDirectory, const QStringList &arguments)
{
    note("remoteCommand", options + QStringList(workingDirectory) + arguments);
    return nullptr;
}
