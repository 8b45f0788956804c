// SPDX-License-Identifier: MIT
#include "updater/qsimpleupdater.h"

#include "updater/updater.h"

#include <QCoreApplication>
#include <QList>
#include <QMutex>

namespace {

QBasicMutex s_mutex;
QSimpleUpdater *s_pInstance = nullptr;

// Two lists of the same length: the updater of an address has the same index.
QStringList s_urls;
QList<Updater *> s_updaters;

} // namespace

// The updaters own windows, so a post routine deletes them while the application object still exists.
QSimpleUpdater *QSimpleUpdater::getInstance()
{
    const QMutexLocker locker(&s_mutex);
    if (!s_pInstance) {
        s_pInstance = new QSimpleUpdater;
        if (const QCoreApplication *pApplication = QCoreApplication::instance())
            s_pInstance->moveToThread(pApplication->thread());
        qAddPostRoutine([] { delete s_pInstance; });
    }
    return s_pInstance;
}

QSimpleUpdater::~QSimpleUpdater()
{
    qDeleteAll(s_updaters);
    s_updaters.clear();
    s_urls.clear();
    s_pInstance = nullptr;
}

Updater *QSimpleUpdater::getUpdater(const QString &url)
{
    if (!s_urls.contains(url)) {
        auto *pUpdater = new Updater;
        pUpdater->setUrl(url);
        s_urls.append(url);
        s_updaters.append(pUpdater);
        connect(pUpdater, &Updater::checkingFinished, this, &QSimpleUpdater::checkingFinished);
        connect(pUpdater, &Updater::appcastDownloaded, this, &QSimpleUpdater::appcastDownloaded);
        connect(pUpdater, &Updater::downloadFinished, this, &QSimpleUpdater::downloadFinished);
        connect(pUpdater, &Updater::checkingFinished, this, [this, url] { emit checkEnded(url); });
        connect(pUpdater, &Updater::offerPutOff, this, [this, url](const QString &version, bool permanently) {
            emit offerPutOff(url, version, permanently);
        });
    }
    return s_updaters.at(s_urls.indexOf(url));
}
