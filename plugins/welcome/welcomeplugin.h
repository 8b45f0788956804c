// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/iplugin.h>

#include <QPointer>

#include <memory>

class WelcomeOptionPageFactory;
class WelcomeWidget;

/// Shows the home page while no project is open, unless the preferences or the option "--no-welcome" switch
/// it off.
class WelcomePlugin : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WelcomePlugin)
    Q_PLUGIN_METADATA(IID "com.ORVEN.Kelpa.Plugin" FILE "welcome.json")

public:
    WelcomePlugin();
    ~WelcomePlugin() override;

    bool initialize(const QStringList &arguments, QString *errorString) override;
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;

private:
    void start();

    std::unique_ptr<WelcomeOptionPageFactory> m_pOptions;
    QPointer<WelcomeWidget> m_pWidget; ///< child of the area of documents
};
