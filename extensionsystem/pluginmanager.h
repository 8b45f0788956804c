// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>

#include <QList>
#include <QObject>
#include <QReadWriteLock>
#include <QSettings>
#include <QStringList>

#include <memory>

namespace ExtensionSystem {

/// Loads the plug-ins and holds what they share: the pool of objects, the settings stores and the free
/// arguments of the command line. The program makes one, before any plug-in, and destroys it last. GUI
/// thread only, except for the pool, which any thread may read under listLock().
class EXTENSIONSYSTEM_EXPORT PluginManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PluginManager)

public:
    PluginManager();
    ~PluginManager() override;

    /// Null before the program made the manager and after it is gone.
    [[nodiscard]] static PluginManager *instance();

    /// Free arguments of the command line, made absolute.
    [[nodiscard]] static QStringList arguments();
    static void setArguments(const QStringList &arguments);

    /// The user's store and the machine-wide one, owned here; null when none was set.
    [[nodiscard]] static QSettings *settings();
    [[nodiscard]] static QSettings *globalSettings();
    void setSettings(std::unique_ptr<QSettings> settings);
    void setGlobalSettings(std::unique_ptr<QSettings> settings);

    /// The pool, in order of addition; hold listLock() for reading while walking it. Objects are not owned.
    [[nodiscard]] static QObjectList allObjects();
    [[nodiscard]] static QReadWriteLock *listLock();
    static void addObject(QObject *object);
    static void removeObject(QObject *object);

signals:
    void initializationDone();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ExtensionSystem
