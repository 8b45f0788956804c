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

// The theme is set before any window is shown, so that each widget is styled only once.
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

// Only the sheet of "Dark" has sizes to adapt; the other themes would lose theirs in processDPIChange(). The
// window also emits dpiChanged() for its first scale, for which nothing is left to do.
void AppearancePlugin::followDensity()
{
    const int nDPI = DisplayScale::logicalDpi(ICore::getMainWindow());
    if (std::exchange(m_nDPI, nDPI) != nDPI
        && IThemesManager::getInstance().getCurrentThemeId() == QLatin1String("Dark"))
        IThemesManager::getInstance().processDPIChange();
}
