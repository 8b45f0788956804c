// SPDX-License-Identifier: MIT
#include <extensionsystem/commandline.h>

#include <QCoreApplication>
#include <QDir>

namespace ExtensionSystem {

namespace {

struct Option
{
    const char *pName;
    const char *pValue;
    const char *pDescription;
};

constexpr char s_context[] = "ExtensionSystem::CommandLine";

const Option s_options[] = {
    {"plugin-path", "folder",
        QT_TRANSLATE_NOOP("ExtensionSystem::CommandLine", "Look for plug-ins here too; may be repeated.")},
    {"load", "name",
        QT_TRANSLATE_NOOP(
            "ExtensionSystem::CommandLine", "Load only this plug-in and what it needs; may be repeated.")},
    {"no-load", "name",
        QT_TRANSLATE_NOOP("ExtensionSystem::CommandLine", "Leave this plug-in out; may be repeated.")},
    {"settings-path", "folder",
        QT_TRANSLATE_NOOP("ExtensionSystem::CommandLine", "Keep the user's settings here.")},
    {"profile", nullptr,
        QT_TRANSLATE_NOOP("ExtensionSystem::CommandLine", "Print how long each plug-in takes to start.")},
    {"new-instance", nullptr,
        QT_TRANSLATE_NOOP("ExtensionSystem::CommandLine", "Start even when the program is already running.")},
    {"version", nullptr, QT_TRANSLATE_NOOP("ExtensionSystem::CommandLine", "Print the version and exit.")},
    {"help", nullptr, QT_TRANSLATE_NOOP("ExtensionSystem::CommandLine", "Print this help and exit.")},
};

QString translated(const char *pText)
{
    return QCoreApplication::translate(s_context, pText);
}

QString withoutDashes(const QString &strName)
{
    return strName.mid(strName.startsWith(QLatin1String("--")) ? 2 : 1);
}

QStringList absolute(const QStringList &paths)
{
    QStringList result;
    for (const QString &strPath : paths)
        result.append(QDir::cleanPath(QDir::current().absoluteFilePath(strPath)));
    return result;
}

} // namespace

CommandLine::CommandLine(const QStringList &arguments)
    : m_line(arguments)
{
    m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const Option &option : s_options)
        m_parser.addOption(
            {QLatin1String(option.pName), translated(option.pDescription), QLatin1String(option.pValue)});
    m_parser.addPositionalArgument(QStringLiteral("files"),
        translated(QT_TRANSLATE_NOOP("ExtensionSystem::CommandLine", "Projects to open.")),
        QStringLiteral("[files...]"));
    m_parser.parse(m_line);
}

QList<PluginError> CommandLine::addPluginOptions(const QList<PluginRecord> &records)
{
    QList<PluginError> clashes;
    for (const PluginRecord &record : records) {
        if (!record.spec.problems.isEmpty())
            continue;
        for (const PluginArgument &argument : record.spec.arguments) {
            const QString strName = withoutDashes(argument.name);
            if (m_ownerOf.value(strName) == record.spec.name)
                continue;
            const QString strDescription = translated(argument.description.toUtf8().constData());
            if (!m_ownerOf.contains(strName)
                && m_parser.addOption({strName, strDescription, argument.parameter})) {
                m_ownerOf.insert(strName, record.spec.name);
                m_declared.insert(strName, argument);
                continue;
            }
            clashes.append({record.spec.name, record.spec.file, PluginPhase::Read,
                QStringLiteral("the option %1 already belongs to %2")
                    .arg(argument.name, m_ownerOf.value(strName, QStringLiteral("the program")))});
        }
    }
    return clashes;
}

QStringList CommandLine::pluginFolders() const
{
    QStringList folders = absolute(m_parser.values(QStringLiteral("plugin-path")));
    folders.append(QCoreApplication::applicationDirPath() + QStringLiteral("/plugins"));
    folders.removeDuplicates();
    return folders;
}

QList<PluginError> CommandLine::missingFolders() const
{
    QList<PluginError> errors;
    const QStringList folders = absolute(m_parser.values(QStringLiteral("plugin-path")));
    for (const QString &strFolder : folders) {
        if (!QFileInfo(strFolder).isDir())
            errors.append(
                {QString(), strFolder, PluginPhase::Read, QStringLiteral("there is no such folder")});
    }
    return errors;
}

PluginSelection CommandLine::selection() const
{
    return {m_parser.values(QStringLiteral("load")), m_parser.values(QStringLiteral("no-load"))};
}

QString CommandLine::settingsFolder() const
{
    const QString strGiven = m_parser.value(QStringLiteral("settings-path"));
    return strGiven.isEmpty() ? QString() : absolute({strGiven}).constFirst();
}

QStringList CommandLine::pluginOptions(const QString &strPlugin) const
{
    QStringList options;
    QHash<QString, int> seen;
    const QStringList names = m_parser.optionNames();
    for (const QString &strName : names) {
        const QString strOwner = m_ownerOf.value(strName);
        if (strOwner.isEmpty() || (!strPlugin.isEmpty() && strOwner != strPlugin))
            continue;
        options.append(m_declared.value(strName).name);
        if (!m_declared.value(strName).parameter.isEmpty())
            options.append(m_parser.values(strName).value(seen[strName]++));
    }
    return options;
}

QStringList CommandLine::absoluteArguments() const
{
    return absolute(rawArguments());
}

} // namespace ExtensionSystem
