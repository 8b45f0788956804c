// SPDX-License-Identifier: MIT
// The pool of objects that plug-ins offer each other.
#include "pluginmanager_p.h"

#include "logging_p.h"

namespace ExtensionSystem {

QObjectList PluginManager::allObjects()
{
    return instance() ? instance()->d->pool : QObjectList();
}

QReadWriteLock *PluginManager::listLock()
{
    return instance() ? &instance()->d->poolLock : nullptr;
}

void PluginManager::addObject(QObject *object)
{
    if (!instance() || !object)
        return;
    const QWriteLocker locker(listLock());
    QObjectList &pool = instance()->d->pool;
    if (pool.contains(object))
        return;
    pool.append(object);
    connect(object, &QObject::destroyed, instance(), &PluginManager::removeObject, Qt::DirectConnection);
}

void PluginManager::removeObject(QObject *object)
{
    if (!instance() || !object)
        return;
    const QWriteLocker locker(listLock());
    if (instance()->d->pool.removeOne(object))
        disconnect(object, &QObject::destroyed, instance(), nullptr);
}

void PluginManager::emptyPool()
{
    const QWriteLocker locker(&d->poolLock);
    if (d->pool.isEmpty())
        return;
    QStringList names;
    for (QObject *pObject : std::as_const(d->pool)) {
        names.append(QLatin1String(pObject->metaObject()->className()));
        disconnect(pObject, &QObject::destroyed, this, nullptr);
    }
    d->pool.clear();
    qCWarning(lcExtensionSystem).noquote()
        << "Plug-ins left objects in the pool:" << names.join(QStringLiteral(", "));
}

} // namespace ExtensionSystem
