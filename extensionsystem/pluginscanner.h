// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>
#include <extensionsystem/pluginrecord.h>

#include <QList>
#include <QStringList>

namespace ExtensionSystem {

/// Reads the metadata of all plug-in libraries in these folders, without loading any: in the order of the
/// folders, by file name within one, no file twice. A damaged library is an unusable plug-in that has the
/// name of its file; other files are passed over.
[[nodiscard]] EXTENSIONSYSTEM_EXPORT QList<PluginRecord> findPlugins(const QStringList &folders);

/// The record of a plug-in whose metadata cannot be read.
[[nodiscard]] PluginRecord unusablePlugin(
    const QString &strName, const QString &strFile, const QString &strProblem, bool bRequired = false);

} // namespace ExtensionSystem
