// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/pluginspec.h>

#include <QList>
#include <QStringList>

namespace ExtensionSystem {

/// Which plug-ins the user asked for. Unless `load` is empty, only those named there, what they require, and
/// every plug-in marked "Required" are used. A plug-in in `leaveOut` is never used.
struct PluginSelection
{
    QStringList load;
    QStringList leaveOut;
};

/// What was decided about one record.
struct PluginVerdict
{
    bool bSelected = true; ///< false: left out on purpose, an error only if it is "Required"
    bool bOwnsName = false; ///< false: another record has the name
    QString reason; ///< why it cannot be used; empty when it can
    QList<int> required; ///< indexes of the records that it needs running
};

/// What to load, as indexes into the records that were given.
struct PluginResolution
{
    QList<int> order; ///< dependencies first; where that leaves a choice, by name
    QList<PluginVerdict> verdicts; ///< one for each record
    QStringList unknown; ///< names to load or leave out that no record has
};

/// Decides over plain values in search order: of several sound ones with one name the first wins. An optional
/// dependency that is absent, has the wrong version or would close a circle is ignored.
[[nodiscard]] EXTENSIONSYSTEM_EXPORT PluginResolution resolvePlugins(
    const QList<PluginSpec> &specs, const PluginSelection &selection = {});

/// How a plug-in words its reason: which plug-in it needs, and why that one failed.
[[nodiscard]] EXTENSIONSYSTEM_EXPORT QString dependencyReason(
    const PluginSpec &needed, const QString &strReason);

} // namespace ExtensionSystem
