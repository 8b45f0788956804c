// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/iplugin.h>

class MinimalPlugin : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.ORVEN.Kelpa.Plugin" FILE "minimal.json")

public:
    bool initialize(const QStringList &arguments, QString *errorString) override;
    void extensionsInitialized() override;

private:
    QString m_strName = QStringLiteral("world");
};
