// SPDX-License-Identifier: MIT
#pragma once

#include <QAtomicPointer>
#include <QMutex>

/// Base of the objects of which there is one, made on first use from any thread and never deleted. The
/// library that owns T instantiates the template and exports it; every other library uses an extern
/// declaration, since statics of a template otherwise exist once per library.
template <typename T>
class ISingleton
{
public:
    virtual ~ISingleton() = default;

    [[nodiscard]] static T *getInstance()
    {
        if (T *pInstance = s_pInstance.loadAcquire())
            return pInstance;
        const QMutexLocker locker(&s_mutex);
        if (!s_pInstance.loadRelaxed())
            s_pInstance.storeRelease(new T);
        return s_pInstance.loadRelaxed();
    }

protected:
    ISingleton() = default;

private:
    Q_DISABLE_COPY_MOVE(ISingleton)

    static inline QAtomicPointer<T> s_pInstance;
    static inline QBasicMutex s_mutex;
};
