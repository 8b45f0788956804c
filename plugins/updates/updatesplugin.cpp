// SPDX-License-Identifier: MIT
#include "updatesplugin.h"

#include "aboutdialog.h"
#include "feedback.h"
#include "updatecheck.h"
#include "updatesettings.h"
#include "updatespage.h"

#include <QAction>
#include <QPointer>
#include <actionmanager/actioncontainer.h>
#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <extensionsystem/pluginmanager.h>
#include <icore.h>
#include <mainwindow.h>

using ExtensionSystem::PluginManager;

UpdatesPlugin::UpdatesPlugin() = default;

UpdatesPlugin::~UpdatesPlugin() = default;

bool UpdatesPlugin::initialize(const QStringList &arguments, QString *errorString)
{
    Q_UNUSED(arguments)
    if (!ICore::getMainWindow()) {
        *errorString = tr("There is no main window.");
        return false;
    }
    m_pCheck = std::make_unique<UpdateCheck>(nullptr);
    m_pPages = std::make_unique<UpdatesPageFactory>();
    PluginManager::addObject(m_pPages.get());
    serve("Help.CheckUpdates", tr("Check Updates..."), [this] { m_pCheck->checkNow(); });
    serve("Help.About", tr("About"), [this] { showAbout(); });
    serve("Help.ReportProblem", tr("Report a Problem"),
        [] { Feedback::open(UpdateSettings::url(UpdateSettings::Report)); });
    serve("Help.ProvideSuggestion", tr("Provide a Suggestion"),
        [] { Feedback::open(UpdateSettings::url(UpdateSettings::Suggestion)); });
    connect(
        PluginManager::instance(), &PluginManager::initializationDone, m_pCheck.get(), &UpdateCheck::start);
    return true;
}

// The main window creates these commands without a function. A command that it did not create is added here.
void UpdatesPlugin::serve(const char *pId, const QString &strText, const std::function<void()> &handler)
{
    const QString strId = QLatin1String(pId);
    ContextAction *pCommand = ActionManager::getAction(strId);
    if (!pCommand) {
        auto *pAction = new QAction(strText, this);
        pCommand = ActionManager::registerAction(pAction, strId, ICore::getMainWindow(), false);
        if (!pCommand)
            return;
        m_commands.append({strId, pAction});
        if (ActionContainer *pMenu = ActionManager::getActionContainer(QStringLiteral("MenuBar.Help")))
            pMenu->insertAction(pCommand);
    }
    connect(pCommand->getAction(), &QAction::triggered, this, handler);
}

ExtensionSystem::IPlugin::ShutdownFlag UpdatesPlugin::aboutToShutdown()
{
    for (const auto &[strId, pAction] : std::as_const(m_commands))
        ActionManager::unregisterAction(pAction, strId);
    PluginManager::removeObject(m_pPages.get());
    m_pCheck.reset();
    return SynchronousShutdown;
}

void UpdatesPlugin::showAbout()
{
    const QPointer<AboutDialog> pDialog = new AboutDialog(ICore::getMainWindow());
    pDialog->exec();
    delete pDialog;
}
