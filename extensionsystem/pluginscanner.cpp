// SPDX-License-Identifier: MIT
#include <extensionsystem/pluginscanner.h>

#include "logging_p.h"

#include <extensionsystem/iplugin.h>

#include <QDir>
#include <QLibrary>
#include <QPluginLoader>
#include <QSet>

#include <memory>

namespace ExtensionSystem {

namespace {

const QString s_iid = QStringLiteral("com.ORVEN.Kelpa.Plugin");

IPlugin *loadPlugin(QPluginLoader &loader, QString *pErrorString)
{
    QObject *pRoot = loader.instance();
    if (!pRoot) {
        *pErrorString = loader.errorString();
        return nullptr;
    }
    if (auto *pPlugin = qobject_cast<IPlugin *>(pRoot))
        return pPlugin;
    *pErrorString = QStringLiteral("its object, a %1, is no ExtensionSystem::IPlugin")
                        .arg(QLatin1String(pRoot->metaObject()->className()));
    delete pRoot;
    return nullptr;
}

// The loader that read the metadata loads the library later, so that the file is read once.
PluginRecord recordOf(const std::shared_ptr<QPluginLoader> &pLoader)
{
    PluginRecord record;
    const QJsonObject object = pLoader->metaData().value(QLatin1String("MetaData")).toObject();
    record.spec = PluginSpec::fromJson(object, pLoader->fileName());
    record.create = [pLoader](QString *pErrorString) { return loadPlugin(*pLoader, pErrorString); };
    return record;
}

} // namespace

QList<PluginRecord> findPlugins(const QStringList &folders)
{
    QList<PluginRecord> records;
    QSet<QString> seen;
    for (const QString &strFolder : folders) {
        const auto files = QDir(strFolder).entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo &file : files) {
            if (!QLibrary::isLibrary(file.fileName()) || seen.contains(file.canonicalFilePath()))
                continue;
            seen.insert(file.canonicalFilePath());
            const auto pLoader = std::make_shared<QPluginLoader>(file.absoluteFilePath());
            if (pLoader->metaData().value(QLatin1String("IID")).toString() == s_iid)
                records.append(recordOf(pLoader));
            else
                qCDebug(
                    lcExtensionSystem, "%s is no plug-in of this program",
                    qUtf8Printable(file.absoluteFilePath()));
        }
    }
    return records;
}

} // namespace ExtensionSystem
