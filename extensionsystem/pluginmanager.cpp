// SPDX-License-Identifier: MIT
#include <extensionsystem/pluginmanager.h>

namespace ExtensionSystem {

namespace {
PluginManager *s_instance = nullptr;
}

struct PluginManager::Private
{
    std::unique_ptr<QSettings> settings;
    std::unique_ptr<QSettings> globalSettings;
    QStringList arguments;
    QObjectList pool;
    QReadWriteLock poolLock;
};

PluginManager::PluginManager()
    : d(std::make_unique<Private>())
{
    s_instance = this;
}

PluginManager::~PluginManager()
{
    s_instance = nullptr;
}

PluginManager *PluginManager::instance() { return s_instance; }
QStringList PluginManager::arguments() { return s_instance->d->arguments; }
void PluginManager::setArguments(const QStringList &arguments) { s_instance->d->arguments = arguments; }
QSettings *PluginManager::settings() { return s_instance->d->settings.get(); }
QSettings *PluginManager::globalSettings() { return s_instance->d->globalSettings.get(); }
void PluginManager::setSettings(std::unique_ptr<QSettings> settings) { d->settings = std::move(settings); }
void PluginManager::setGlobalSettings(std::unique_ptr<QSettings> settings)
{
    d->globalSettings = std::move(settings);
}
QObjectList PluginManager::allObjects() { return s_instance->d->pool; }
QReadWriteLock *PluginManager::listLock() { return &s_instance->d->poolLock; }

void PluginManager::addObject(QObject *object)
{
    const QWriteLocker locker(listLock());
    s_instance->d->pool.append(object);
}

void PluginManager::removeObject(QObject *object)
{
    const QWriteLocker locker(listLock());
    s_instance->d->pool.removeOne(object);
}

} // namespace ExtensionSystem
