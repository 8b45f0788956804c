// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVersionNumber>

namespace ExtensionSystem {

/// A version as people write it: with at least three numbers, though it is kept without zeros at the end.
[[nodiscard]] EXTENSIONSYSTEM_EXPORT QString versionText(const QVersionNumber &version);

/// Another plug-in that one needs, or uses when it is there.
struct PluginDependency
{
    QString name;
    QVersionNumber version;
    bool bRequired = true;
};

/// A command-line option that belongs to a plug-in.
struct PluginArgument
{
    QString name; ///< with its dashes
    QString parameter; ///< what its value is called; empty when it takes none
    QString description;
};

/// What a plug-in says about itself. A plain value; versions are normalised, so 1.0 and 1.0.0 are equal.
struct EXTENSIONSYSTEM_EXPORT PluginSpec
{
    QString name;
    QVersionNumber version;
    QVersionNumber compatVersion; ///< the oldest version whose users still work with this one
    bool bRequired = false;
    QList<PluginDependency> dependencies;
    QList<PluginArgument> arguments;
    QString category;
    QString description;
    QString vendor;
    QString copyright;
    QStringList license;
    QString url;
    QString file;
    QStringList problems; ///< what is wrong with the metadata; a plug-in with any is not used

    /// Reads the object that the plug-in's author wrote. Never fails: what is wrong goes to `problems`, what
    /// is right is kept, keys it does not know are left alone.
    [[nodiscard]] static PluginSpec fromJson(const QJsonObject &object, const QString &strFile);

    /// Does this version do for a plug-in written against `wanted`?
    [[nodiscard]] bool provides(const QVersionNumber &wanted) const;
};

} // namespace ExtensionSystem
