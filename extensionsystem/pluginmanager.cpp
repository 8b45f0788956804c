// SPDX-License-Identifier: MIT
// The start of the program, its end, and commands from other starts in between.
#include "pluginmanager_p.h"

#include "logging_p.h"
#include "pluginscanner.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

namespace ExtensionSystem {

Q_LOGGING_CATEGORY(lcExtensionSystem, "kelpa.extensionsystem", QtInfoMsg)

namespace {
PluginManager *s_pInstance = nullptr;
}

PluginManager::PluginManager()
    : d(std::make_unique<Private>())
{
    s_pInstance = this;
}

PluginManager::~PluginManager()
{
    shutdown();
    s_pInstance = nullptr;
}

PluginManager *PluginManager::instance()
{
    return s_pInstance;
}

void PluginManager::setMessageSink(MessageSink sink)
{
    d->sink = std::move(sink);
}

void PluginManager::setShutdownTimeout(int nTimeoutMs)
{
    d->nShutdownTimeoutMs = nTimeoutMs;
}

QStringList PluginManager::arguments()
{
    return s_pInstance ? s_pInstance->d->arguments : QStringList();
}

void PluginManager::setArguments(const QStringList &arguments)
{
    if (s_pInstance)
        s_pInstance->d->arguments = arguments;
}

QList<PluginError> PluginManager::errors()
{
    return s_pInstance ? s_pInstance->d->errors : QList<PluginError>();
}

QList<PluginDescription> PluginManager::plugins()
{
    return s_pInstance && s_pInstance->d->runner ? s_pInstance->d->runner->plugins()
                                                 : QList<PluginDescription>();
}

void PluginManager::tell(Message kind, const QString &text) const
{
    if (d->sink)
        return d->sink(kind, text);
    std::FILE *pStream = kind == Message::Output ? stdout : stderr;
    std::fprintf(pStream, "%s\n", qUtf8Printable(text));
    std::fflush(pStream);
}

void PluginManager::report(const PluginError &error)
{
    d->errors.append(error);
    qCWarning(lcExtensionSystem).noquote() << error.text();
}

std::optional<int> PluginManager::start(const QStringList &commandLine)
{
    d->line = std::make_unique<CommandLine>(commandLine);
    CommandLine &line = *d->line;
    if (line.wantsVersion()) {
        tell(Message::Output,
            QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion());
        return 0;
    }
    QList<PluginRecord> records = findPlugins(line.pluginFolders());
    const auto clashes = line.addPluginOptions(records);
    const QString strGiven = line.settingsFolder();
    const QString strSettings = strGiven.isEmpty() ? SettingsStore::defaultFolder() : strGiven;
    if (!line.parse() || line.wantsHelp()) {
        openSettings(strSettings);
        return explainOptions(commandLine, records);
    }
    QDir().mkpath(strSettings);
    if (const auto exitCode = claimInstance(strSettings))
        return exitCode;
    openSettings(strSettings);
    setArguments(line.absoluteArguments());
    const auto missing = line.missingFolders();
    for (const PluginError &error : missing + clashes)
        report(error);
    for (PluginRecord &record : records)
        record.arguments = line.pluginOptions(record.spec.name);
    emit aboutToLoadPlugins();
    return startPlugins(records);
}

// Made anew, now that there are catalogues for its texts.
int PluginManager::explainOptions(const QStringList &commandLine, const QList<PluginRecord> &records)
{
    emit aboutToLoadPlugins();
    CommandLine line(commandLine);
    line.addPluginOptions(records);
    if (line.parse()) {
        tell(Message::Output, line.helpText());
        return 0;
    }
    tell(Message::UsageError, line.errorText() + QLatin1Char('\n') + tr("--help lists the options."));
    return 1;
}

std::optional<int> PluginManager::claimInstance(const QString &strSettingsFolder)
{
    if (d->line->wantsNewInstance())
        return std::nullopt;
    d->instance = std::make_unique<SingleInstance>(strSettingsFolder);
    connect(d->instance.get(), &SingleInstance::commandReceived, this, &PluginManager::takeCommand);
    const SingleInstance::Role role =
        d->instance->claim({d->line->pluginOptions(), QDir::currentPath(), d->line->rawArguments()});
    if (role == SingleInstance::Role::HandedOver)
        return 0;
    if (role == SingleInstance::Role::Alone)
        tell(Message::Note, d->instance->problem());
    return std::nullopt;
}

std::optional<int> PluginManager::startPlugins(const QList<PluginRecord> &records)
{
    d->runner = std::make_unique<PluginRunner>(records, d->line->selection());
    d->runner->setProfiled(d->line->wantsProfile());
    for (const PluginError &error : d->runner->errors())
        report(error);
    connect(d->runner.get(), &PluginRunner::failed, this, &PluginManager::report);
    connect(d->runner.get(), &PluginRunner::requiredPluginFailed, this, &PluginManager::requiredPluginFailed);
    connect(d->runner.get(), &PluginRunner::initializationDone, this, &PluginManager::finishStart);
    if (!d->runner->start() || d->runner->running().isEmpty())
        return failStart();
    d->bTakesCommands = true;
    QMetaObject::invokeMethod(this, &PluginManager::runCommands, Qt::QueuedConnection);
    return std::nullopt;
}

int PluginManager::failStart()
{
    const PluginError *pError = d->runner->requiredFailure();
    const QString strReason = pError
        ? pError->text()
        : tr("No plug-in could be loaded from %1.").arg(d->line->pluginFolders().join(QStringLiteral(", ")));
    tell(Message::StartFailure,
        tr("%1 cannot start.").arg(QCoreApplication::applicationName()) + QLatin1Char('\n') + strReason);
    return 1;
}

void PluginManager::requiredPluginFailed()
{
    d->bTakesCommands = false;
    QCoreApplication::exit(failStart());
}

void PluginManager::finishStart()
{
    emit initializationDone();
    if (d->line->wantsProfile())
        tell(Message::Note, d->runner->profile());
}

// Plug-ins hear of it once all run, and of one after the other: a file may open a message box.
void PluginManager::takeCommand(const RemoteCommand &command)
{
    d->commands.append(command);
    runCommands();
}

void PluginManager::runCommands()
{
    if (d->bRunsCommands || !d->bTakesCommands)
        return;
    d->bRunsCommands = true;
    while (d->bTakesCommands && !d->commands.isEmpty()) {
        const RemoteCommand command = d->commands.takeFirst();
        d->runner->remoteCommand(command.options, command.workingDirectory, command.arguments);
    }
    d->bRunsCommands = false;
}

void PluginManager::shutdown()
{
    d->bTakesCommands = false;
    d->instance.reset(); // a start from now on is a first one
    for (const RemoteCommand &command : std::as_const(d->commands))
        qCWarning(lcExtensionSystem).noquote() << "The program ends before it could open" << command.arguments
                                               << "from" << command.workingDirectory;
    d->commands.clear();
    if (d->runner)
        d->runner->shutdown(d->nShutdownTimeoutMs);
    emptyPool();
    for (QSettings *pSettings : {settings(), globalSettings()}) {
        if (pSettings)
            pSettings->sync();
    }
    checkSettings();
}

} // namespace ExtensionSystem
