// SPDX-License-Identifier: MIT
#include <extensionsystem/pluginspec.h>

#include <support/rows.h>

#include <QtTest>

using ExtensionSystem::PluginSpec;

namespace {

// A sound object with some members put in the place of its own.
PluginSpec read(const QString &strMembers)
{
    QJsonObject object =
        QJsonDocument::fromJson(R"({"Name": "a", "Version": "1.4.0", "CompatVersion": "1.2"})").object();
    const QJsonObject members = QJsonDocument::fromJson('{' + strMembers.toUtf8() + '}').object();
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
        const auto row = columns<QString, QString>("members", "problem");
        row("unknown keys are left alone", R"("Colour": 7)", "");
        row("a name must be a string", R"("Name": 7)", R"("Name" is not a string)");
        row("a name has no spaces", R"("Name": "a b")", R"("Name" is no valid name: "a b")");
        row("a name is not empty", R"("Name": "")", R"("Name" is no valid name: "")");
        row("a version has only numbers", R"("Version": "1.4beta")", R"("Version" is no version: "1.4beta")");
        row("a version has four parts at most", R"("Version": "1.4.0.0.1")",
            R"("Version" is no version: "1.4.0.0.1")");
        row("compatibility reaches back", R"("CompatVersion": "1.5")",
            R"("CompatVersion" is newer than "Version")");
        row("required is a Boolean", R"("Required": "yes")", R"("Required" is not a Boolean)");
        row("null is no array", R"("Dependencies": null)", R"("Dependencies" is not an array)");
        row("a dependency is an object", R"("Dependencies": ["b"])",
            R"("Dependencies" has an entry that is no object)");
        row("a dependency names a version", R"("Dependencies": [{"Name": "b"}])",
            R"(Dependencies[0] "Version" is missing)");
        row("a dependency has one of two types",
            R"("Dependencies": [{"Name": "b", "Version": "1", "Type": "maybe"}])",
            R"(Dependencies[0] "Type" is neither "required" nor "optional": "maybe")");
        row("an option begins with a dash", R"("Arguments": [{"Name": "-a"}, {"Name": "b"}])",
            R"(Arguments[1] "Name" is no valid name: "b")");
        row("a licence has lines", R"("License": [1])", R"("License" has an entry that is no string)");
    }
    void problems()
    {
        QFETCH(QString, members);
        QTEST(read(members).problems.join('|'), "problem");
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
