// SPDX-License-Identifier: MIT
#include "appearanceplugin.h"

#include "thememenu.h"

#include <appearance/ithemesmanager.h>
#include <displayscale.h>
#include <icore.h>
#include <mainwindow.h>

#include <utility>

AppearancePlugin::AppearancePlugin() = default;
AppearancePlugin::~AppearancePlugin() = default;

// Nothing is shown yet, so that each widget is dressed once.
bool AppearancePlugin::initialize(const QStringList &, QString *errorString)
{
    MainWindow *pMainWindow = ICore::getMainWindow();
    if (!pMainWindow) {
        *errorString = tr("There is no main window.");
        return false;
    }
    IThemesManager::getInstance().initialize();
    m_nDPI = DisplayScale::logicalDpi(pMainWindow);
    connect(pMainWindow, &MainWindow::dpiChanged, this, &AppearancePlugin::followDensity);
    m_pMenu = std::make_unique<ThemeMenu>();
    return true;
}

// The sheets of the other themes carry no sizes of their own, and would be lost. The window also tells the
// scale that it starts with.
void AppearancePlugin::followDensity()
{
    const int nDPI = DisplayScale::logicalDpi(ICore::getMainWindow());
    if (std::exchange(m_nDPI, nDPI) != nDPI
        && IThemesManager::getInstance().getCurrentThemeId() == QLatin1String("Dark"))
        IThemesManager::getInstance().processDPIChange();
}
