// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/iplugin.h>

#include <QList>

#include <functional>
#include <memory>

class QAction;
class UpdateCheck;
class UpdatesPageFactory;

/// Handles the commands of the Help menu that concern the program itself: updates, about, problems and
/// suggestions. Adds a page to the preferences.
class UpdatesPlugin : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdatesPlugin)
    Q_PLUGIN_METADATA(IID "com.ORVEN.Kelpa.Plugin" FILE "updates.json")

public:
    UpdatesPlugin();
    ~UpdatesPlugin() override;

    bool initialize(const QStringList &arguments, QString *errorString) override;
    ShutdownFlag aboutToShutdown() override;

private:
    void serve(const char *pId, const QString &strText, const std::function<void()> &handler);
    void showAbout();

    std::unique_ptr<UpdateCheck> m_pCheck;
    std::unique_ptr<UpdatesPageFactory> m_pPages;
    QList<std::pair<QString, QAction *>> m_commands; ///< created here, with their ids
};
