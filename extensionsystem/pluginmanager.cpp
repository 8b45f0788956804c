// SPDX-License-Identifier: MIT
// The start of the program, its end, and commands from other starts in between.
#include "pluginmanager_p.h"

#include "logging_p.h"
#include "platform_p.h"
#include "pluginscanner.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>

#include <cstdio>

namespace ExtensionSystem {

Q_LOGGING_CATEGORY(lcExtensionSystem, "kelpa.extensionsystem", QtInfoMsg)

namespace {
PluginManager *s_pInstance = nullptr;
thread_local QString s_strActivity; // what the event that this thread handles makes the program do
} // namespace

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

void PluginManager::setNeededPlugins(const QStringList &names)
{
    d->needed = names;
}

void PluginManager::setLateWorkDelay(int nMs)
{
    d->nLateWorkDelayMs = nMs;
}

void PluginManager::startLateWork()
{
    if (d->runner)
        d->runner->startLateWork();
}

void PluginManager::setHearsOtherStarts(bool bHears)
{
    if (s_pInstance && s_pInstance->d->instance)
        s_pInstance->d->instance->setHears(bHears);
}

void PluginManager::setShutdownTimeout(int nTimeoutMs)
{
    d->nShutdownTimeoutMs = nTimeoutMs;
}

QString PluginManager::setActivity(const QString &activity)
{
    return std::exchange(s_strActivity, activity);
}

void PluginManager::tellException(QEvent *pEvent, const QString &strActivity, const QString &strReason)
{
    if (pEvent->type() == QEvent::Close)
        pEvent->ignore();
    qCWarning(lcExtensionSystem).noquote()
        << (strActivity.isEmpty() ? QStringLiteral("An event failed:")
                                  : strActivity + QStringLiteral(" failed:"))
        << strReason;
    if (s_pInstance)
        emit s_pInstance->exceptionCaught(strActivity, strReason);
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
    if (error.phase == PluginPhase::RemoteCommand)
        emit exceptionCaught(QString(), error.message);
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
    openSettings(strSettings);
    emit aboutToLoadPlugins();
    if (const auto exitCode = claimInstance(strSettings))
        return exitCode;
    settings()->sync(); // an instance that ended just now may have written to it since
    setArguments(line.absoluteArguments());
    const auto missing = line.missingFolders();
    for (const PluginError &error : missing + clashes)
        report(error);
    for (PluginRecord &record : records)
        record.arguments = line.pluginOptions(record.spec.name);
    return startPlugins(records);
}

// The command line is read again, because its descriptions are translated when the options are added.
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

std::optional<int> PluginManager::startPlugins(QList<PluginRecord> records)
{
    markNeeded(&records);
    d->runner = std::make_unique<PluginRunner>(records, d->line->selection());
    d->runner->setProfiled(d->line->wantsProfile());
    for (const PluginError &error : d->runner->errors())
        report(error);
    connect(d->runner.get(), &PluginRunner::failed, this, &PluginManager::report);
    connect(d->runner.get(), &PluginRunner::requiredPluginFailed, this, &PluginManager::requiredPluginFailed);
    connect(d->runner.get(), &PluginRunner::initializationDone, this, &PluginManager::finishStart);
    if (!d->runner->start(d->nLateWorkDelayMs) || d->runner->running().isEmpty())
        return failStart();
    d->bTakesCommands = true;
    Platform::onTermination(this, [this] { emit endRequested(); });
    QMetaObject::invokeMethod(this, &PluginManager::runCommands, Qt::QueuedConnection);
    return std::nullopt;
}

// A library that cannot be read cannot say that it is required, so the program names those it needs.
void PluginManager::markNeeded(QList<PluginRecord> *pRecords) const
{
    for (const QString &strName : std::as_const(d->needed)) {
        bool bFound = false;
        for (PluginRecord &record : *pRecords) {
            if (record.spec.name == strName)
                bFound = record.spec.bRequired = true;
        }
        if (!bFound)
            pRecords->append(unusablePlugin(strName, d->line->pluginFolders().join(QStringLiteral(", ")),
                QStringLiteral("there is no such library"), true));
    }
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

// Commands wait until all plug-ins run. Then each is run at once, even while an earlier one shows a dialog.
void PluginManager::takeCommand(const RemoteCommand &command)
{
    d->commands.append(command);
    runCommands();
}

void PluginManager::runCommands()
{
    while (d->bTakesCommands && !d->commands.isEmpty()) {
        const RemoteCommand command = d->commands.takeFirst();
        d->runner->remoteCommand(command.options, command.workingDirectory, command.arguments);
    }
}

void PluginManager::shutdown()
{
    d->bTakesCommands = false;
    Platform::resetTermination();
    d->instance.reset(); // from now on another start becomes the first
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
