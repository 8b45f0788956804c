// SPDX-License-Identifier: MIT
#include "stageplugin.h"

#include "stagefactory.h"
#include "stagetoolbar.h"

#include <icore.h>
#include <mainwindow.h>

#include <extensionsystem/pluginmanager.h>

#include <QSettings>

using ExtensionSystem::PluginManager;

namespace {

// MainWindow::IsFirstRun() looks for this group, so its name must stay.
const QString s_geometry = QStringLiteral("Designer/Geometry");
const QString s_state = QStringLiteral("Designer/State");

void saveWindow()
{
    QSettings *pSettings = ICore::settings(QSettings::UserScope);
    pSettings->setValue(s_geometry, ICore::getMainWindow()->saveGeometry());
    pSettings->setValue(s_state, ICore::getMainWindow()->saveState());
}

} // namespace

StagePlugin::StagePlugin() = default;

// The tool bar's code is in this library, so the bar must be gone before the library is unloaded.
StagePlugin::~StagePlugin()
{
    delete m_pToolBar;
    if (m_pFactory)
        PluginManager::removeObject(m_pFactory.get());
}

bool StagePlugin::initialize(const QStringList &, QString *errorString)
{
    MainWindow *pMainWindow = ICore::getMainWindow();
    if (!pMainWindow) {
        *errorString = tr("There is no main window.");
        return false;
    }
    m_pFactory = std::make_unique<StageFactory>(nullptr);
    PluginManager::addObject(m_pFactory.get());
    m_pToolBar = new StageToolBar(pMainWindow);
    pMainWindow->addToolBar(m_pToolBar);
    return true;
}

// At this time every plug-in has added its tool bars, and the window is not shown yet.
void StagePlugin::extensionsInitialized()
{
    if (const QSettings *pSettings = ICore::settings(QSettings::UserScope)) {
        ICore::getMainWindow()->restoreGeometry(pSettings->value(s_geometry).toByteArray());
        ICore::getMainWindow()->restoreState(pSettings->value(s_state).toByteArray());
        connect(ICore::getInstance(), &ICore::aboutToSaveSettings, this, saveWindow);
    }
}
