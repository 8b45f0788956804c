// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVersionNumber>

namespace ExtensionSystem {

/// A version as people write it, with at least three numbers; values are kept without zeros at the end.
[[nodiscard]] EXTENSIONSYSTEM_EXPORT QString versionText(const QVersionNumber &version);

/// Another plug-in that this one requires, or uses when it is there.
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
    QString parameter; ///< what the help calls its value; empty when it takes none
    QString description;
};

/// What a plug-in's metadata says about it. Versions are normalized, so 1.0 and 1.0.0 are equal.
struct EXTENSIONSYSTEM_EXPORT PluginSpec
{
    QString name;
    QVersionNumber version;
    QVersionNumber compatVersion; ///< the oldest version that this one can stand in for
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

    /// Reads the object that the plug-in's author wrote. It never fails: what is wrong is described in
    /// `problems`, what is right is kept, and unknown keys are ignored.
    [[nodiscard]] static PluginSpec fromJson(const QJsonObject &object, const QString &strFile);

    /// Whether this version serves a plug-in that was written against `wanted`.
    [[nodiscard]] bool provides(const QVersionNumber &wanted) const;
};

} // namespace ExtensionSystem
