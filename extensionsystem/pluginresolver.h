// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/pluginspec.h>

#include <QList>
#include <QStringList>

namespace ExtensionSystem {

/// Which plug-ins the user asked for. With names in `load`, only these, what they require, and every plug-in
/// marked "Required" are used. A plug-in in `leaveOut` never is.
struct PluginSelection
{
    QStringList load;
    QStringList leaveOut;
};

/// What is to become of one record.
struct PluginVerdict
{
    bool bSelected = true; ///< false: left out on purpose, which is no error
    bool bOwnsName = false; ///< false: another record has the name
    QString reason; ///< why it cannot be used; empty when it can
    QList<int> required; ///< records it needs running
};

/// What to load, as indexes into the records that were given.
struct PluginResolution
{
    QList<int> order; ///< dependencies first, ties by name
    QList<PluginVerdict> verdicts; ///< one for each record
    QStringList unknown; ///< names to load or leave out that no record has
};

/// Decides over plain records, in search order: of two with one name the first sound one wins. An optional
/// dependency that is absent, does not fit, or would close a circle is ignored. Same records, same result.
[[nodiscard]] EXTENSIONSYSTEM_EXPORT PluginResolution resolvePlugins(
    const QList<PluginSpec> &specs, const PluginSelection &selection = {});

/// How a dependent words its reason: what it needs, then why that cannot be had.
[[nodiscard]] EXTENSIONSYSTEM_EXPORT QString dependencyReason(
    const PluginSpec &needed, const QString &strReason);

} // namespace ExtensionSystem
