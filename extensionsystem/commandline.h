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

/// The program's command line. Two looks: the constructor's finds where the plug-ins are; after
/// addPluginOptions() has learnt what these understand, parse() checks the whole.
class EXTENSIONSYSTEM_EXPORT CommandLine
{
    Q_DISABLE_COPY_MOVE(CommandLine)

public:
    /// `arguments` begins with the program's own name.
    explicit CommandLine(const QStringList &arguments);

    /// Takes over the options these plug-ins declare. One that the framework or an earlier plug-in already
    /// has stays with its first owner; such clashes are returned.
    QList<PluginError> addPluginOptions(const QList<PluginRecord> &records);

    /// False: there is an option nobody knows, or one without its value; errorText() tells.
    [[nodiscard]] bool parse() { return m_parser.parse(m_line); }
    [[nodiscard]] QString errorText() const { return m_parser.errorText(); }
    [[nodiscard]] QString helpText() const { return m_parser.helpText(); }

    [[nodiscard]] bool wantsVersion() const { return m_parser.isSet(QStringLiteral("version")); }
    [[nodiscard]] bool wantsHelp() const { return m_parser.isSet(QStringLiteral("help")); }
    [[nodiscard]] bool wantsProfile() const { return m_parser.isSet(QStringLiteral("profile")); }
    [[nodiscard]] bool wantsNewInstance() const { return m_parser.isSet(QStringLiteral("new-instance")); }

    /// Folders to search, absolute; those given come before the program's own, so that they win.
    [[nodiscard]] QStringList pluginFolders() const;
    /// One error for each given folder that does not exist.
    [[nodiscard]] QList<PluginError> missingFolders() const;
    [[nodiscard]] PluginSelection selection() const;

    /// Absolute; empty when not given.
    [[nodiscard]] QString settingsFolder() const;

    /// The options given that this plug-in declared (all plug-ins' without a name), each followed by its
    /// value if it takes one, in the order of the command line.
    [[nodiscard]] QStringList pluginOptions(const QString &strPlugin = QString()) const;

    /// The free arguments as they were typed, and made absolute.
    [[nodiscard]] QStringList rawArguments() const { return m_parser.positionalArguments(); }
    [[nodiscard]] QStringList absoluteArguments() const;

private:
    QCommandLineParser m_parser;
    QStringList m_line;
    QHash<QString, QString> m_ownerOf; // option without dashes -> plug-in
    QHash<QString, PluginArgument> m_declared;
};

} // namespace ExtensionSystem
