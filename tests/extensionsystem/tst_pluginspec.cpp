// SPDX-License-Identifier: MIT
#include <extensionsystem/pluginspec.h>

#include <QtTest>

using ExtensionSystem::PluginSpec;

namespace {

// A sound object with some members put in the place of its own.
PluginSpec read(const char *pMembers)
{
    QJsonObject object =
        QJsonDocument::fromJson(R"({"Name": "a", "Version": "1.4.0", "CompatVersion": "1.2"})").object();
    const QJsonObject members = QJsonDocument::fromJson(QByteArray("{") + pMembers + "}").object();
    for (auto it = members.begin(); it != members.end(); ++it)
        object.insert(it.key(), it.value());
    return PluginSpec::fromJson(object, "/x/liba.so");
}

} // namespace

class tst_PluginSpec : public QObject
{
    Q_OBJECT

private slots:
    void problems_data()
    {
        QTest::addColumn<QByteArray>("members");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char *pName, const char *pMembers, const char *pProblem) {
            QTest::newRow(pName) << QByteArray(pMembers) << QString::fromLatin1(pProblem);
        };
        row("a sound object has none", "\"Url\": \"u\"", "");
        row("unknown keys are left alone", "\"Colour\": 7", "");
        row("a name must be a string", "\"Name\": 7", "\"Name\" is not a string");
        row("a name has no spaces", "\"Name\": \"a b\"", "\"Name\" is no valid name: \"a b\"");
        row("a name is not empty", "\"Name\": \"\"", "\"Name\" is no valid name: \"\"");
        row("a version is a string", "\"Version\": 1.4", "\"Version\" is not a string");
        row("a version has only numbers", "\"Version\": \"1.4beta\"",
            "\"Version\" is no version: \"1.4beta\"");
        row("a version has four parts at most", "\"Version\": \"1.4.0.0.1\"",
            "\"Version\" is no version: \"1.4.0.0.1\"");
        row("compatibility reaches back", "\"CompatVersion\": \"1.5\"",
            "\"CompatVersion\" is newer than \"Version\"");
        row("required is a Boolean", "\"Required\": \"yes\"", "\"Required\" is not a Boolean");
        row("null is no array", "\"Dependencies\": null", "\"Dependencies\" is not an array");
        row("a dependency is an object", "\"Dependencies\": [\"b\"]",
            "\"Dependencies\" has an entry that is no object");
        row("a dependency names a version", "\"Dependencies\": [{\"Name\": \"b\"}]",
            "Dependencies[0] \"Version\" is missing");
        row("a dependency has one of two types",
            "\"Dependencies\": [{\"Name\": \"b\", \"Version\": \"1\", \"Type\": \"maybe\"}]",
            "Dependencies[0] \"Type\" is neither \"required\" nor \"optional\": \"maybe\"");
        row("an option begins with a dash", "\"Arguments\": [{\"Name\": \"-a\"}, {\"Name\": \"b\"}]",
            "Arguments[1] \"Name\" is no valid name: \"b\"");
        row("a licence has lines", "\"License\": [1]", "\"License\" has an entry that is no string");
    }

    void problems()
    {
        QFETCH(QByteArray, members);
        QFETCH(QString, problem);
        QCOMPARE(read(members.constData()).problems.join('|'), problem);
    }

    void everyProblemIsNamedAndTheRestIsKept()
    {
        const PluginSpec spec = PluginSpec::fromJson({{"Required", true}}, QString());
        QCOMPARE(spec.problems, QStringList({"\"Name\" is missing", "\"Version\" is missing"}));
        QVERIFY(spec.bRequired);
    }

    void versionsFitFromTheCompatibleOneToTheOwn()
    {
        const PluginSpec spec = read("");
        const auto provides = [&spec](const char *pVersion) {
            return spec.provides(QVersionNumber::fromString(QLatin1String(pVersion)).normalized());
        };
        QVERIFY(!provides("1.1.9"));
        QVERIFY(provides("1.2.0"));
        QVERIFY(provides("1.4"));
        QVERIFY(!provides("1.4.0.1"));
    }
};

QTEST_GUILESS_MAIN(tst_PluginSpec)
#include "tst_pluginspec.moc"
