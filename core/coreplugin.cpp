// SPDX-License-Identifier: MIT
#include "coreplugin.h"

#include "appearance/ilanguagemanager.h"
#include "mainwindow.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QLoggingCategory>

namespace {
Q_LOGGING_CATEGORY(lcCore, "kelpa.core")
}

CorePlugin::CorePlugin()
{
    if (!ILanguageManager::getInstance().initialize()) {
        qCWarning(lcCore,
            "There was error while loading one of the language catalogues. "
            "%s will use English in some parts.",
            "Kelpa Studio");
    }
    QLocale::setDefault(QLocale(ILanguageManager::getInstance().getCurrentLangId()));
    m_pMainWindow = std::make_unique<MainWindow>(nullptr);
    QApplication::setActiveWindow(m_pMainWindow.get());
}

CorePlugin::~CorePlugin() = default;

bool CorePlugin::initialize(const QStringList &arguments, QString *errorString)
{
    Q_UNUSED(arguments)
    return m_pMainWindow->init(errorString);
}

void CorePlugin::extensionsInitialized()
{
    m_pMainWindow->extensionsInitialized();
}

bool CorePlugin::delayedInitialize()
{
    return true;
}

ExtensionSystem::IPlugin::ShutdownFlag CorePlugin::aboutToShutdown()
{
    m_pMainWindow->aboutToShutdown();
    return SynchronousShutdown;
}

QObject *CorePlugin::remoteCommand(
    const QStringList &options, const QString &workingDirectory, const QStringList &arguments)
{
    Q_UNUSED(options)
    m_pMainWindow->raiseUp();
    const QDir base(workingDirectory.isEmpty() ? QDir::currentPath() : workingDirectory);
    for (const QString &argument : arguments)
        m_pMainWindow->loadFile(QFileInfo(base, argument).absoluteFilePath());
    return nullptr;
}

void CorePlugin::fileOpenRequest(const QString &strFileName)
{
    remoteCommand({}, QString(), {strFileName});
}
