// SPDX-License-Identifier: MIT
// The settings stores and the reports of their faults.
#include "pluginmanager_p.h"

#include "logging_p.h"

namespace ExtensionSystem {

QSettings *PluginManager::settings()
{
    return instance() ? instance()->d->user.get() : nullptr;
}

QSettings *PluginManager::globalSettings()
{
    return instance() ? instance()->d->machine.get() : nullptr;
}

void PluginManager::setSettings(std::unique_ptr<QSettings> settings)
{
    d->user.set(std::move(settings));
}

void PluginManager::setGlobalSettings(std::unique_ptr<QSettings> settings)
{
    d->machine.set(std::move(settings));
}

void PluginManager::openSettings(const QString &strFolder)
{
    setSettings(SettingsStore::openUser(strFolder));
    setGlobalSettings(SettingsStore::openMachine());
    checkSettings();
}

void PluginManager::checkSettings()
{
    if (!instance())
        return;
    for (SettingsStore *pStore : {&instance()->d->user, &instance()->d->machine}) {
        SettingsFault fault;
        if (!pStore->takeFault(&fault))
            continue;
        instance()->d->faults.append(fault);
        qCWarning(lcExtensionSystem).noquote()
            << "Settings" << fault.file + QStringLiteral(": ") + fault.reason;
        emit instance()->settingsFailed(fault.file, fault.reason);
    }
}

// QSettings::status() of Qt 6.4.2 keeps the first fault forever. A new object for the same file starts
// without one and, as both share what is still to be written, tells whether writing works now.
bool PluginManager::storeSettings(QSettings *settings)
{
    if (!settings)
        return false;
    settings->sync();
    checkSettings();
    QSettings view(settings->fileName(), settings->format());
    view.sync();
    return view.status() != QSettings::AccessError;
}

QList<SettingsFault> PluginManager::settingsFaults()
{
    return instance() ? instance()->d->faults : QList<SettingsFault>();
}

} // namespace ExtensionSystem
