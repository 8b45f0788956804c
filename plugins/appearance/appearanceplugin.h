// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/iplugin.h>

#include <memory>

class ThemeMenu;

/// Gives the program the theme that the user chose, adapts it when the density of the screen changes, and
/// adds the choice of themes to the menus.
class AppearancePlugin : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AppearancePlugin)
    Q_PLUGIN_METADATA(IID "com.ORVEN.Kelpa.Plugin" FILE "appearance.json")

public:
    AppearancePlugin();
    ~AppearancePlugin() override;

    bool initialize(const QStringList &arguments, QString *errorString) override;

private:
    void followDensity();

    std::unique_ptr<ThemeMenu> m_pMenu;
    int m_nDPI = 0; // the DPI that the widgets are styled for
};
