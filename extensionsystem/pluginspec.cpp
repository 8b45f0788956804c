// SPDX-License-Identifier: MIT
#include <extensionsystem/pluginspec.h>

#include <QJsonArray>
#include <QRegularExpression>

namespace ExtensionSystem {

namespace {

// Reads members of one JSON object by type, and notes each that is wrong or missing.
class Reader
{
public:
    Reader(const QJsonObject &object, const QString &strPlace, QStringList *pProblems)
        : m_object(object)
        , m_strPlace(strPlace)
        , m_pProblems(pProblems)
    {
    }

    void problem(const char *pKey, const QString &strText)
    {
        m_pProblems->append(
            m_strPlace + QLatin1Char('"') + QLatin1String(pKey) + QStringLiteral("\" ") + strText);
    }

    // The member if it has this type, else undefined. A wrong one, or a needed one that is absent, is noted.
    QJsonValue member(const char *pKey, QJsonValue::Type type, const char *pTypeName, bool bNeeded = false)
    {
        const QJsonValue value = m_object.value(QLatin1String(pKey));
        if (value.type() == type)
            return value;
        if (!value.isUndefined())
            problem(pKey, QStringLiteral("is not ") + QLatin1String(pTypeName));
        else if (bNeeded)
            problem(pKey, QStringLiteral("is missing"));
        return QJsonValue(QJsonValue::Undefined);
    }

    QString string(const char *pKey, bool bNeeded = false)
    {
        return member(pKey, QJsonValue::String, "a string", bNeeded).toString();
    }

    QJsonArray array(const char *pKey) { return member(pKey, QJsonValue::Array, "an array").toArray(); }

    bool boolean(const char *pKey) { return member(pKey, QJsonValue::Bool, "a Boolean").toBool(); }

    QString name(const char *pKey, const QString &strPattern)
    {
        const QString strName = string(pKey, true);
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(strPattern));
        if (m_object.value(QLatin1String(pKey)).isString() && !pattern.match(strName).hasMatch())
            problem(pKey, QStringLiteral("is no valid name: \"%1\"").arg(strName));
        return strName;
    }

    QVersionNumber version(const char *pKey, bool bNeeded)
    {
        const QJsonValue value = member(pKey, QJsonValue::String, "a string", bNeeded);
        if (value.isUndefined())
            return {};
        static const QRegularExpression s_pattern(QStringLiteral("\\A\\d{1,9}(\\.\\d{1,9}){0,3}\\z"));
        if (!s_pattern.match(value.toString()).hasMatch())
            problem(pKey, QStringLiteral("is no version: \"%1\"").arg(value.toString()));
        return QVersionNumber::fromString(value.toString()).normalized();
    }

    // Calls `function` with a reader for each object in the array; other entries are noted as problems.
    template <typename Function>
    void objects(const char *pKey, Function function)
    {
        const QJsonArray entries = array(pKey);
        for (int i = 0; i < entries.size(); ++i) {
            if (!entries.at(i).isObject()) {
                problem(pKey, QStringLiteral("has an entry that is no object"));
                continue;
            }
            Reader reader(entries.at(i).toObject(), QStringLiteral("%1[%2] ").arg(QLatin1String(pKey)).arg(i),
                m_pProblems);
            function(reader);
        }
    }

private:
    QJsonObject m_object;
    QString m_strPlace;
    QStringList *m_pProblems;
};

const QString s_namePattern = QStringLiteral("[A-Za-z0-9_][A-Za-z0-9_.-]*");
const QString s_optionPattern = QStringLiteral("-[A-Za-z0-9]|--?[A-Za-z0-9][A-Za-z0-9_-]*");

PluginDependency readDependency(Reader &reader)
{
    PluginDependency dependency;
    dependency.name = reader.name("Name", s_namePattern);
    dependency.version = reader.version("Version", true);
    const QString strType = reader.string("Type");
    if (strType == QLatin1String("optional"))
        dependency.bRequired = false;
    else if (!strType.isEmpty() && strType != QLatin1String("required"))
        reader.problem(
            "Type", QStringLiteral("is neither \"required\" nor \"optional\": \"%1\"").arg(strType));
    return dependency;
}

PluginArgument readArgument(Reader &reader)
{
    return {reader.name("Name", s_optionPattern), reader.string("Parameter"), reader.string("Description")};
}

QStringList readLicense(Reader &reader)
{
    QStringList lines;
    const QJsonArray entries = reader.array("License");
    for (const QJsonValue &entry : entries) {
        if (!entry.isString())
            reader.problem("License", QStringLiteral("has an entry that is no string"));
        lines.append(entry.toString());
    }
    return lines;
}

} // namespace

QString versionText(const QVersionNumber &version)
{
    QList<int> segments = version.segments();
    while (segments.size() < 3)
        segments.append(0);
    return QVersionNumber(segments).toString();
}

PluginSpec PluginSpec::fromJson(const QJsonObject &object, const QString &strFile)
{
    PluginSpec spec;
    Reader reader(object, QString(), &spec.problems);
    spec.file = strFile;
    spec.name = reader.name("Name", s_namePattern);
    spec.version = reader.version("Version", true);
    spec.compatVersion = reader.version("CompatVersion", false);
    if (!object.contains(QLatin1String("CompatVersion")))
        spec.compatVersion = spec.version;
    if (!spec.version.isNull() && spec.compatVersion > spec.version)
        reader.problem("CompatVersion", QStringLiteral("is newer than \"Version\""));
    spec.bRequired = reader.boolean("Required");
    reader.objects("Dependencies", [&](Reader &entry) { spec.dependencies.append(readDependency(entry)); });
    reader.objects("Arguments", [&](Reader &entry) { spec.arguments.append(readArgument(entry)); });
    spec.category = reader.string("Category");
    spec.description = reader.string("Description");
    spec.vendor = reader.string("Vendor");
    spec.copyright = reader.string("Copyright");
    spec.license = readLicense(reader);
    spec.url = reader.string("Url");
    return spec;
}

bool PluginSpec::provides(const QVersionNumber &wanted) const
{
    return compatVersion <= wanted && wanted <= version;
}

} // namespace ExtensionSystem
