// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/iplugin.h>

#include <QPointer>

#include <memory>

class StageFactory;
class StageToolBar;

/// Adds the project format "kelpa" to the program: its factory and its tool bar. It also saves and restores
/// the place and the tool bars of the main window.
class StagePlugin : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StagePlugin)
    Q_PLUGIN_METADATA(IID "com.ORVEN.Kelpa.Plugin" FILE "stage.json")

public:
    StagePlugin();
    ~StagePlugin() override;

    bool initialize(const QStringList &arguments, QString *errorString) override;
    void extensionsInitialized() override;

private:
    std::unique_ptr<StageFactory> m_pFactory;
    QPointer<StageToolBar> m_pToolBar; ///< child of the main window
};
