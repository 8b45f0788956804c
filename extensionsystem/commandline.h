// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>
#include <extensionsystem/pluginerror.h>
#include <extensionsystem/pluginrecord.h>
#include <extensionsystem/pluginresolver.h>

#include <QCommandLineParser>
#include <QHash>
#include <QStringList>

namespace ExtensionSystem {

/// The command line, looked at twice because plug-ins declare options too: the constructor finds what the
/// framework understands, such as folders; after addPluginOptions(), parse() checks the whole line.
class EXTENSIONSYSTEM_EXPORT CommandLine
{
    Q_DISABLE_COPY_MOVE(CommandLine)

public:
    /// `arguments` starts with the name of the program, as that of QCoreApplication does.
    explicit CommandLine(const QStringList &arguments);

    /// Adds the options that these plug-ins declare, except those of plug-ins with broken metadata. An option
    /// that the framework or another plug-in already has stays with that owner; such clashes are returned.
    QList<PluginError> addPluginOptions(const QList<PluginRecord> &records);

    /// Returns false for an unknown option or one that lacks its value; errorText() then says which.
    [[nodiscard]] bool parse() { return m_parser.parse(m_line); }
    [[nodiscard]] QString errorText() const { return m_parser.errorText(); }
    [[nodiscard]] QString helpText() const { return m_parser.helpText(); }

    [[nodiscard]] bool wantsVersion() const { return m_parser.isSet(QStringLiteral("version")); }
    [[nodiscard]] bool wantsHelp() const { return m_parser.isSet(QStringLiteral("help")); }
    [[nodiscard]] bool wantsProfile() const { return m_parser.isSet(QStringLiteral("profile")); }
    [[nodiscard]] bool wantsNewInstance() const { return m_parser.isSet(QStringLiteral("new-instance")); }

    /// The folders to search, absolute. The given ones come first, so that a plug-in there is preferred.
    [[nodiscard]] QStringList pluginFolders() const;
    /// One error for each folder given with --plugin-path that does not exist.
    [[nodiscard]] QList<PluginError> missingFolders() const;
    [[nodiscard]] PluginSelection selection() const;

    /// Absolute; empty when --settings-path was not given.
    [[nodiscard]] QString settingsFolder() const;

    /// The options given that `strPlugin` declared, or any plug-in if it is empty, each followed by its value
    /// if it takes one, in the order of the command line.
    [[nodiscard]] QStringList pluginOptions(const QString &strPlugin = QString()) const;

    /// The arguments that are not options, first as they were typed, then as absolute file names.
    [[nodiscard]] QStringList rawArguments() const { return m_parser.positionalArguments(); }
    [[nodiscard]] QStringList absoluteArguments() const;

private:
    QCommandLineParser m_parser;
    QStringList m_line;
    QHash<QString, QString> m_ownerOf; // option without dashes -> plug-in
    QHash<QString, PluginArgument> m_declared;
};

} // namespace ExtensionSystem
