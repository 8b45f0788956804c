// SPDX-License-Identifier: MIT
#include "coreplugin.h"

#include "actionmanager/actionmanager.h"
#include "actionmanager/contextaction.h"
#include "appearance/ilanguagemanager.h"
#include "document/documentmanager.h"
#include "document/idocument.h"
#include "icore.h"
#include "iui.h"
#include "mainwindow.h"

#include <extensionsystem/pluginmanager.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QPointer>
#include <QSessionManager>

#include <algorithm>

using ExtensionSystem::PluginManager;

namespace {
Q_LOGGING_CATEGORY(lcCore, "kelpa.core")

constexpr int s_endLaterMs = 500;

// A document of a plug-in may throw here too, or close another one.
void saveBackups()
{
    const auto &all = DocumentManager::getDocuments();
    const QList<QPointer<IDocument>> documents(all.cbegin(), all.cend());
    for (const auto &pDoc : documents) {
        const QString strFile = pDoc ? pDoc->getFileName() : QString();
        const QString strThrown = ExtensionSystem::caught([&pDoc] {
            if (pDoc && pDoc->isModified())
                pDoc->saveBackup();
        });
        if (!strThrown.isEmpty())
            qCWarning(lcCore, "%s: no backup: %s", qUtf8Printable(strFile), qUtf8Printable(strThrown));
    }
}

// Of two libraries with one name the first may run.
bool hasStarted(const QString &strPlugin)
{
    const auto plugins = PluginManager::plugins();
    return std::any_of(plugins.begin(), plugins.end(), [&](const auto &plugin) {
        return plugin.spec.name == strPlugin && plugin.state >= ExtensionSystem::PluginState::Constructed;
    });
}

void warn(const QString &strText)
{
    ICore::getMainWindow()->showNotification(strText, KPNotificationBar::Warning, QString(), true);
}
} // namespace

CorePlugin::CorePlugin()
{
    if (!ILanguageManager::getInstance().initialize()) {
        qCWarning(lcCore,
            "There was error while loading one of the language catalogues. "
            "%s will use English in some parts.",
            qUtf8Printable(IUi::getTitle()));
    }
    QLocale::setDefault(QLocale(ILanguageManager::getInstance().getCurrentLangId()));
    m_pMainWindow = std::make_unique<MainWindow>(nullptr);
    QApplication::setActiveWindow(m_pMainWindow.get());
    watchProgram();
}

// What goes wrong with the program as a whole, and its end from outside.
void CorePlugin::watchProgram()
{
    const PluginManager *pManager = PluginManager::instance();
    connect(pManager, &PluginManager::settingsFailed, this, &CorePlugin::tellFaults);
    connect(pManager, &PluginManager::exceptionCaught, this, &CorePlugin::tellException);
    connect(pManager, &PluginManager::endRequested, this, [this] {
        saveBackups();
        endProgram();
    });
    m_endLater.setSingleShot(true);
    connect(&m_endLater, &QTimer::timeout, this, &CorePlugin::endProgram);
    connect(qApp, &QGuiApplication::commitDataRequest, this, &CorePlugin::endSession);
}

// The main window decides alone: a download's own window gives in once it is closed. Nobody is asked while
// something is being asked already.
void CorePlugin::endProgram()
{
    if (QApplication::activeModalWidget())
        m_endLater.start(s_endLaterMs);
    else if (m_pMainWindow->close())
        QCoreApplication::quit();
}

// The session waits for the answers where it allows to ask.
void CorePlugin::endSession(QSessionManager &session)
{
    saveBackups();
    if (!session.allowsInteraction())
        return;
    if (!m_pMainWindow->close())
        session.cancel();
    session.release();
}

void CorePlugin::tellException(const QString &strCommand, const QString &strReason)
{
    saveBackups();
    const ContextAction *pCommand = ActionManager::getAction(strCommand);
    const QString strTitle = pCommand ? pCommand->getAction()->text().remove(QLatin1Char('&')) : strCommand;
    warn(strTitle.isEmpty() ? tr("Something failed: %1").arg(strReason)
                            : tr("\"%1\" failed: %2", "a command, a reason").arg(strTitle, strReason));
}

void CorePlugin::tellFaults()
{
    QStringList texts;
    const auto faults = PluginManager::settingsFaults();
    for (const auto &fault : faults)
        texts.append(
            tr("The settings in %1 cannot be read or written.").arg(QDir::toNativeSeparators(fault.file)));
    QStringList names;
    const auto errors = PluginManager::errors();
    for (const auto &error : errors) {
        if (!hasStarted(error.plugin))
            names.append(error.plugin);
    }
    names.removeDuplicates();
    if (!names.isEmpty())
        texts.append(tr("These plug-ins could not be started: %1.").arg(names.join(QStringLiteral(", "))));
    if (!texts.isEmpty())
        warn(texts.join(QLatin1Char(' ')));
}

CorePlugin::~CorePlugin() = default;

bool CorePlugin::initialize(const QStringList &, QString *errorString)
{
    return m_pMainWindow->init(errorString);
}

void CorePlugin::extensionsInitialized()
{
    m_pMainWindow->extensionsInitialized();
    tellFaults();
}

ExtensionSystem::IPlugin::ShutdownFlag CorePlugin::aboutToShutdown()
{
    m_pMainWindow->aboutToShutdown();
    return SynchronousShutdown;
}

QObject *CorePlugin::remoteCommand(
    const QStringList &, const QString &workingDirectory, const QStringList &arguments)
{
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
