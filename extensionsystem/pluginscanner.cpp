// SPDX-License-Identifier: MIT
#include <extensionsystem/pluginscanner.h>

#include "logging_p.h"
#include "platform_p.h"

#include <extensionsystem/iplugin.h>

#include <QDir>
#include <QElapsedTimer>
#include <QLibrary>
#include <QPluginLoader>
#include <QSet>

#include <memory>
#include <optional>

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

// The name for a library whose metadata cannot be read: that of its file without "lib" and the suffix.
QString nameOf(const QString &strFile)
{
    const QString strName = QFileInfo(strFile).completeBaseName();
    return strName.startsWith(QLatin1String("lib")) ? strName.mid(3) : strName;
}

// The record keeps the loader that read the metadata, so that loading does not read the file again.
std::optional<PluginRecord> readPlugin(const QString &strFile)
{
    QElapsedTimer timer;
    timer.start();
    const auto pLoader = std::make_shared<QPluginLoader>(strFile);
    if (pLoader->metaData().isEmpty() && !Platform::isWholeLibrary(strFile))
        return unusablePlugin(nameOf(strFile), strFile, QStringLiteral("the library is incomplete"));
    if (pLoader->metaData().value(QLatin1String("IID")).toString() != s_iid)
        return std::nullopt;
    PluginRecord record;
    const QJsonObject object = pLoader->metaData().value(QLatin1String("MetaData")).toObject();
    record.spec = PluginSpec::fromJson(object, pLoader->fileName());
    record.create = [pLoader](QString *pErrorString) { return loadPlugin(*pLoader, pErrorString); };
    record.nReadNanoseconds = timer.nsecsElapsed();
    return record;
}

} // namespace

PluginRecord unusablePlugin(
    const QString &strName, const QString &strFile, const QString &strProblem, bool bRequired)
{
    PluginRecord record;
    record.spec.name = strName;
    record.spec.file = strFile;
    record.spec.problems.append(strProblem);
    record.spec.bRequired = bRequired;
    return record;
}

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
            if (const auto record = readPlugin(file.absoluteFilePath()))
                records.append(*record);
            else
                qCDebug(lcExtensionSystem, "%s is no plug-in of this program",
                    qUtf8Printable(file.absoluteFilePath()));
        }
    }
    return records;
}

} // namespace ExtensionSystem
