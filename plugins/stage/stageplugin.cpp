// SPDX-License-Identifier: MIT
#include "stageplugin.h"

#include "stagefactory.h"
#include "stagetoolbar.h"

#include <icore.h>
#include <mainwindow.h>

#include <extensionsystem/pluginmanager.h>

using ExtensionSystem::PluginManager;

StagePlugin::StagePlugin() = default;

// The code of the tool bar goes with this library, so the bar must not outlive it.
StagePlugin::~StagePlugin()
{
    delete m_pToolBar;
    if (m_pFactory)
        PluginManager::removeObject(m_pFactory.get());
}

bool StagePlugin::initialize(const QStringList &arguments, QString *errorString)
{
    Q_UNUSED(arguments)
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
