// SPDX-License-Identifier: MIT
// A program with nothing but the framework, for tests. It prints what it learns, and ends when all plug-ins
// are up unless HOST_STAYS is set. HOST_NEEDS names plug-ins that it needs. HOST_WRITES writes a setting,
// HOST_DROPS_ROOT runs it as nobody, HOST_DISK_FULL lets no file grow.
#include <extensionsystem/pluginmanager.h>

#include <QCoreApplication>

#include <csignal>
#include <cstdio>

#include <sys/resource.h>
#include <unistd.h>

using ExtensionSystem::PluginManager;

namespace {

void print(const QString &strLine)
{
    std::printf("%s\n", qUtf8Printable(strLine));
    std::fflush(stdout);
}

bool dropRoot()
{
    return !qEnvironmentVariableIsSet("HOST_DROPS_ROOT") || geteuid() != 0
        || (setgid(65534) == 0 && setuid(65534) == 0);
}

void fillDisk()
{
    const rlimit none = {0, 0};
    signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &none);
}

void onInitializationDone()
{
    print("done " + PluginManager::arguments().join(' '));
    if (PluginManager::settings())
        print("setting " + PluginManager::settings()->value("sea/level").toString());
    if (qEnvironmentVariableIsSet("HOST_WRITES"))
        PluginManager::settings()->setValue("sea/level", 7);
    if (!qEnvironmentVariableIsSet("HOST_STAYS"))
        QCoreApplication::quit();
}

} // namespace

int main(int argc, char *argv[])
{
    if (!dropRoot())
        return 99;
    if (qEnvironmentVariableIsSet("HOST_DISK_FULL"))
        fillDisk();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("Host");
    QCoreApplication::setApplicationVersion("1.0");
    PluginManager manager;
    QObject::connect(&manager, &PluginManager::aboutToLoadPlugins, [] { print("catalogues"); });
    QObject::connect(&manager, &PluginManager::endRequested, [] { QCoreApplication::quit(); });
    manager.setNeededPlugins(qEnvironmentVariable("HOST_NEEDS").split(' ', Qt::SkipEmptyParts));
    QObject::connect(&manager, &PluginManager::initializationDone, onInitializationDone);
    QObject::connect(
        &manager, &PluginManager::settingsFailed, [](const QString &strFile, const QString &strReason) {
            print(QString("fault %1: %2").arg(strFile, strReason));
        });
    if (const auto exitCode = manager.start(QCoreApplication::arguments()))
        return *exitCode;
    const int nExitCode = QCoreApplication::exec();
    manager.shutdown();
    return nExitCode;
}
