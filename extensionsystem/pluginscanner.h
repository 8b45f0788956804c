// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>
#include <extensionsystem/pluginrecord.h>

#include <QList>
#include <QStringList>

namespace ExtensionSystem {

/// Reads the metadata of all plug-in libraries in these folders without loading any. The order is that of the
/// folders, and of the file names within one; no file is read twice. A damaged library becomes an unusable
/// plug-in with the name of its file; other files are ignored.
[[nodiscard]] EXTENSIONSYSTEM_EXPORT QList<PluginRecord> findPlugins(const QStringList &folders);

/// The record of a plug-in whose metadata cannot be read; it has a problem and so is never loaded.
[[nodiscard]] PluginRecord unusablePlugin(
    const QString &strName, const QString &strFile, const QString &strProblem, bool bRequired = false);

} // namespace ExtensionSystem
