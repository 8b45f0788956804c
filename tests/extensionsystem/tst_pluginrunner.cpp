// SPDX-License-Identifier: MIT
#include <extensionsystem/iplugin.h>
#include <extensionsystem/pluginrunner.h>

#include <support/rows.h>

#include <QtTest>

#include <algorithm>
#include <stdexcept>

using namespace ExtensionSystem;

namespace {

// A hook that goes wrong, or nothing.
struct Fault
{
    QString hook;
    bool bThrows = false;
    int nTurns = 1; // of delayed work
    int nBusyMs = 0; // in each of them
    bool bDeletes = false; // itself, in initialize()
    std::function<IPlugin::ShutdownFlag(IPlugin *)> shutdown; // in place of the usual end
};

class LoggedPlugin : public IPlugin
{
public:
    LoggedPlugin(const QString &strName, const Fault &fault, QStringList *pLog)
        : m_strName(strName)
        , m_fault(fault)
        , m_pLog(pLog)
    {
        if (!call("construct"))
            throw std::runtime_error("construct");
    }
    ~LoggedPlugin() override { call("destroy"); }

    bool initialize(const QStringList &, QString *pErrorString) override
    {
        *pErrorString = "no luck";
        const bool bDone = call("initialize");
        if (m_fault.bDeletes)
            delete this;
        return bDone;
    }
    void extensionsInitialized() override { call("extensions"); }
    bool delayedInitialize() override
    {
        const QDeadlineTimer busy(m_fault.nBusyMs);
        while (!busy.hasExpired()) { }
        call("delayed");
        return --m_fault.nTurns <= 0;
    }
    ShutdownFlag aboutToShutdown() override
    {
        call("shutdown");
        return m_fault.shutdown ? m_fault.shutdown(this) : SynchronousShutdown;
    }

private:
    bool call(const char *pHook)
    {
        m_pLog->append(pHook + (' ' + m_strName));
        if (m_fault.hook == pHook && m_fault.bThrows)
            throw std::runtime_error(pHook);
        return m_fault.hook != pHook;
    }

    QString m_strName;
    Fault m_fault;
    QStringList *m_pLog;
};

QVersionNumber version(const QString &strText)
{
    return QVersionNumber::fromString(strText).normalized();
}

PluginSpec spec(const QString &strName, const QStringList &needs = {}, const QString &strVersion = "1")
{
    PluginSpec result;
    result.name = strName;
    result.version = version(strVersion);
    result.compatVersion = result.version;
    result.file = "/x/" + strName;
    for (const QString &strNeeded : needs)
        result.dependencies.append({strNeeded, version("1"), true});
    return result;
}

PluginRecord record(const PluginSpec &plugin, QStringList *pLog, const Fault &fault = {})
{
    const auto create = [=](QString *) { return new LoggedPlugin(plugin.name, fault, pLog); };
    return {plugin, create, {}};
}

// Runs from start to end; the log tells the rest.
void runThrough(PluginRunner &runner, QStringList *pLog)
{
    QSignalSpy done(&runner, &PluginRunner::initializationDone);
    QSignalSpy died(&runner, &PluginRunner::requiredPluginFailed);
    if (runner.start()) {
        QTRY_COMPARE_WITH_TIMEOUT(done.size() + died.size(), 1, 20000);
        pLog->append(done.isEmpty() ? "required failed" : "done");
    }
    runner.shutdown(1000);
}

// A random world of plug-ins.
struct World
{
    QList<PluginSpec> specs;
    QList<Fault> faults;
    PluginSelection selection;
    QStringList *pLog = nullptr;
};

class Dice
{
public:
    explicit Dice(quint32 nSeed)
        : m_generator(nSeed)
    {
    }
    int below(int n) { return static_cast<int>(m_generator.bounded(n)); }
    bool percent(int n) { return below(100) < n; }
    QString name(int nNames) { return QString("p%1").arg(below(nNames)); }
    QVersionNumber someVersion() { return version(QString("1.%1").arg(below(3))); }

private:
    QRandomGenerator m_generator;
};

World randomWorld(quint32 nSeed)
{
    Dice dice(nSeed);
    World world;
    const int nNames = 3 + dice.below(14);
    const int nRecords = dice.below(nNames + 2);
    const int nTrouble = dice.below(12); // in percent: some worlds are peaceful
    static const QStringList s_hooks = {
        "construct", "initialize", "initialize", "extensions", "delayed", "shutdown"};
    for (int i = 0; i < nRecords; ++i) {
        PluginSpec plugin = spec(dice.percent(nTrouble) ? dice.name(nNames) : QString("p%1").arg(i));
        plugin.file += QString(".%1").arg(i);
        plugin.version = version("1.2");
        plugin.compatVersion = dice.percent(nTrouble) ? dice.someVersion() : version("1");
        plugin.bRequired = dice.percent(nTrouble / 3);
        if (dice.percent(nTrouble))
            plugin.problems.append("broken");
        for (int n = dice.below(4); n > 0; --n) {
            // Mostly what came before; sometimes anything, itself and what is missing too.
            const bool bAnything = i == 0 || dice.percent(nTrouble);
            const QString strNeeded = bAnything ? dice.name(nNames + 1) : QString("p%1").arg(dice.below(i));
            const QVersionNumber wanted = dice.percent(nTrouble) ? version("1.3") : dice.someVersion();
            plugin.dependencies.append({strNeeded, wanted, !dice.percent(30)});
        }
        world.specs.append(plugin);
        const bool bFault = dice.percent(nTrouble);
        const QString strHook = s_hooks.at(dice.below(s_hooks.size()));
        const bool bThrows = strHook != "initialize" || dice.percent(50);
        world.faults.append({bFault ? strHook : QString(), bThrows, 1 + dice.below(3), 0, false, {}});
    }
    if (dice.percent(nTrouble))
        world.selection.load = QStringList({dice.name(nNames), dice.name(nNames)});
    if (dice.percent(nTrouble))
        world.selection.leaveOut.append(dice.name(nNames));
    return world;
}

// What is certain of a world before anything runs, found the slow and simple way. Plug-ins go by their names.
class Outlook
{
public:
    explicit Outlook(const World &world)
        : m_world(world)
    {
        QSet<QString> wanted(world.selection.load.begin(), world.selection.load.end());
        for (int i = 0; i < world.specs.size(); ++i) {
            const PluginSpec &plugin = world.specs.at(i);
            m_names.insert(plugin.name);
            if (plugin.problems.isEmpty() && !owners.contains(plugin.name))
                owners.insert(plugin.name, i);
            if (plugin.bRequired || world.selection.load.isEmpty())
                wanted.insert(plugin.name);
        }
        grow(wanted, [&](const QString &strName) {
            return std::any_of(wanted.begin(), wanted.end(),
                [&](const QString &strUser) { return required(strUser).contains(strName); });
        });
        for (const QString &strName : world.selection.leaveOut)
            wanted.remove(strName);
        selected = wanted;
        grow(loadable, [&](const QString &strName) {
            const auto needs = dependencies(strName);
            return owners.contains(strName) && wanted.contains(strName)
                && std::all_of(needs.begin(), needs.end(), [&](const PluginDependency &dependency) {
                       return !dependency.bRequired
                           || (fits(dependency) && loadable.contains(dependency.name));
                   });
        });
        grow(broken, [&](const QString &strName) {
            return loadable.contains(strName)
                && (!QStringList({"", "shutdown"}).contains(fault(strName).hook)
                    || broken.intersects(required(strName)));
        });
    }

    QHash<QString, int> owners; // the sound record that was first to have the name
    QSet<QString> selected;
    QSet<QString> loadable;
    QSet<QString> broken; // loadable, but it or what it requires goes wrong

    [[nodiscard]] Fault fault(const QString &strName) const
    {
        return m_world.faults.at(owners.value(strName));
    }
    [[nodiscard]] QList<PluginDependency> dependencies(const QString &strName) const
    {
        return owners.contains(strName) ? m_world.specs.at(owners.value(strName)).dependencies
                                        : QList<PluginDependency>();
    }
    [[nodiscard]] bool fits(const PluginDependency &dependency) const
    {
        const int n = owners.value(dependency.name, -1);
        return n >= 0 && m_world.specs.at(n).provides(dependency.version);
    }
    [[nodiscard]] bool endsEarly(const QString &strName) const
    {
        return !loadable.contains(strName) || broken.contains(strName);
    }
    // Through dependencies of either kind.
    [[nodiscard]] bool leadsTo(const QString &strFrom, const QString &strTo) const
    {
        QSet<QString> users = {strTo};
        grow(users, [&](const QString &strName) {
            const auto needs = dependencies(strName);
            return std::any_of(needs.begin(), needs.end(),
                [&](const PluginDependency &dependency) { return users.contains(dependency.name); });
        });
        return users.contains(strFrom);
    }
    [[nodiscard]] PluginState endOf(int n) const
    {
        const PluginSpec &plugin = m_world.specs.at(n);
        const bool bOwner = owners.value(plugin.name, -1) == n;
        if (!selected.contains(plugin.name))
            return bOwner && plugin.bRequired ? PluginState::Failed : PluginState::LeftOut;
        const bool bSound = bOwner && loadable.contains(plugin.name) && !broken.contains(plugin.name);
        return bSound ? PluginState::Stopped : PluginState::Failed;
    }

private:
    [[nodiscard]] QSet<QString> required(const QString &strName) const
    {
        QSet<QString> result;
        for (const PluginDependency &dependency : dependencies(strName)) {
            if (dependency.bRequired)
                result.insert(dependency.name);
        }
        return result;
    }
    template <typename Belongs>
    void grow(QSet<QString> &names, Belongs belongs) const
    {
        for (qsizetype nBefore = -1; nBefore != names.size();) {
            nBefore = names.size();
            for (const QString &strName : m_names) {
                if (!names.contains(strName) && belongs(strName))
                    names.insert(strName);
            }
        }
    }

    const World &m_world;
    QSet<QString> m_names;
};

const QStringList s_backwards = {"extensions", "shutdown", "destroy"}; // dependents first

} // namespace

class tst_PluginRunner : public QObject
{
    Q_OBJECT

private:
    // The hooks of one plug-in follow each other without a gap up to its fault, and it ends in good order.
    static void checkLife(const QString &strName, const QStringList &log, const Outlook &outlook)
    {
        const Fault fault = outlook.fault(strName);
        QStringList calls;
        for (const QString &strLine : log) {
            if (strLine.section(' ', 1) == strName)
                calls.append(strLine.section(' ', 0, 0));
        }
        QStringList expected = {"construct", "initialize", "extensions"};
        expected += QStringList(fault.nTurns, "delayed");
        const auto isStart = [&](const QString &strCall) { return expected.contains(strCall); };
        const auto nStarted = std::count_if(calls.begin(), calls.end(), isStart);
        QVERIFY(nStarted == 0 || outlook.loadable.contains(strName));
        QVERIFY(nStarted == expected.size() || !log.contains("done") || !outlook.loadable.contains(strName)
            || outlook.broken.contains(strName));
        expected.resize(nStarted);
        const bool bFailed = expected.contains(fault.hook);
        QVERIFY(!bFailed || expected.indexOf(fault.hook) == nStarted - 1);
        if (expected.contains("extensions") && !bFailed)
            expected.append("shutdown");
        if (nStarted > 1 || (nStarted == 1 && !bFailed))
            expected.append("destroy");
        QCOMPARE(calls, expected);
    }

    static void checkOrder(const QString &strNeeded, const QString &strUser, const QStringList &log)
    {
        for (const char *pHook :
            {"construct", "initialize", "extensions", "delayed", "shutdown", "destroy"}) {
            const auto nNeeded = log.indexOf(pHook + (' ' + strNeeded));
            const auto nUser = log.indexOf(pHook + (' ' + strUser));
            if (nNeeded >= 0 && nUser >= 0)
                QCOMPARE(nNeeded < nUser, !s_backwards.contains(pHook));
        }
    }

    // What goes wrong with the one takes the other along at once.
    static void checkRequired(
        const QString &strNeeded, const QString &strUser, const QStringList &log, const Outlook &outlook)
    {
        const auto nFault = log.indexOf(outlook.fault(strNeeded).hook + ' ' + strNeeded);
        for (const char *pHook : {"construct", "initialize", "extensions", "delayed"}) {
            const auto nUser = log.lastIndexOf(pHook + (' ' + strUser));
            QVERIFY(nFault < 0 || nUser < nFault || !outlook.broken.contains(strNeeded));
            QVERIFY(nUser < 0 || log.contains("construct " + strNeeded));
        }
    }

    static void checkWorld(const World &world)
    {
        QList<PluginRecord> records;
        for (int i = 0; i < world.specs.size(); ++i)
            records.append(record(world.specs.at(i), world.pLog, world.faults.at(i)));
        PluginRunner runner(records, world.selection);
        runThrough(runner, world.pLog);
        const QStringList log = std::exchange(*world.pLog, {});
        const Outlook outlook(world);
        for (auto it = outlook.owners.begin(); it != outlook.owners.end(); ++it) {
            checkLife(it.key(), log, outlook);
            for (const PluginDependency &dependency : outlook.dependencies(it.key())) {
                const bool bHad = outlook.fits(dependency) && !outlook.endsEarly(dependency.name)
                    && !outlook.leadsTo(dependency.name, it.key());
                if (dependency.bRequired || bHad)
                    checkOrder(dependency.name, it.key(), log);
                if (dependency.bRequired && outlook.owners.contains(dependency.name))
                    checkRequired(dependency.name, it.key(), log, outlook);
            }
        }
        // Among those that might come next, the first by name does.
        const QStringList constructed = log.filter(QRegularExpression("^construct "));
        for (int i = 1; i < constructed.size() && outlook.broken.isEmpty(); ++i) {
            const QString strName = constructed.at(i).section(' ', 1);
            const auto needs = outlook.dependencies(strName);
            QVERIFY(constructed.at(i - 1) < constructed.at(i)
                || std::any_of(needs.begin(), needs.end(), [&](const PluginDependency &dependency) {
                       return outlook.fits(dependency)
                           && "construct " + dependency.name == constructed.at(i - 1);
                   }));
        }
        bool bRequiredFails = false;
        const auto plugins = runner.plugins();
        for (int i = 0; i < plugins.size(); ++i) {
            const PluginState end = outlook.endOf(i);
            const QString strName = plugins.at(i).spec.name;
            const auto isNamesake = [&](const PluginSpec &plugin) { return plugin.name == strName; };
            const auto nFirst = std::find_if(world.specs.begin(), world.specs.end(), isNamesake);
            bRequiredFails |= end == PluginState::Failed && plugins.at(i).spec.bRequired
                && outlook.owners.value(strName, nFirst - world.specs.begin()) == i;
            if (!runner.requiredFailure())
                QCOMPARE(plugins.at(i).state, end);
            QCOMPARE(plugins.at(i).reason.isEmpty(), plugins.at(i).state != PluginState::Failed);
        }
        QCOMPARE(log.contains("done"), !bRequiredFails);
        QCOMPARE(runner.requiredFailure() != nullptr, bRequiredFails);
        if (outlook.owners.size() == records.size()) {
            std::reverse(records.begin(), records.end());
            PluginRunner again(records, world.selection);
            runThrough(again, world.pLog);
            QCOMPARE(*world.pLog, log); // whatever the order in which they are found
        }
    }

private slots:
    void randomWorldsKeepTheRules()
    {
        for (quint32 nSeed = 1; nSeed <= 3000 && !QTest::currentTestFailed(); ++nSeed) {
            QStringList log;
            World world = randomWorld(nSeed);
            world.pLog = &log;
            checkWorld(world);
            if (QTest::currentTestFailed())
                qInfo("in the world of seed %u", nSeed);
        }
    }

    void reasonsCarryTheWholeChain_data()
    {
        // Each plug-in is name:version:needed; the reason is that of the first.
        const auto row = columns<QStringList, QString>("plugins", "reason");
        row("a missing one", {"a:1:b", "b:1:c", "c:1:d"},
            "needs b 1.0.0, which failed: needs c 1.0.0, which failed: needs d 1.0.0, which is missing");
        row("one too old", {"a:1:b", "b:1:c", "c:0.9:"},
            "needs b 1.0.0, which failed: needs c 1.0.0, but version 0.9.0 is too old (/x/c)");
        row("one too new", {"a:1:b", "b:2:"},
            "needs b 1.0.0, but version 2.0.0 is compatible only down to 2.0.0 (/x/b)");
        row("behind a circle", {"a:1:b", "b:1:c", "c:1:b"},
            "needs b 1.0.0, which failed: needs itself: b -> c -> b");
        row("itself", {"a:1:a"}, "needs itself: a -> a");
    }
    void reasonsCarryTheWholeChain()
    {
        QFETCH(QStringList, plugins);
        QList<PluginSpec> specs;
        for (const QString &strPlugin : std::as_const(plugins)) {
            const QStringList parts = strPlugin.split(':');
            specs.append(spec(parts.at(0), parts.at(2).split(',', Qt::SkipEmptyParts), parts.at(1)));
        }
        QTEST(resolvePlugins(specs).verdicts.at(0).reason, "reason");
    }

    void errorsAreData()
    {
        QStringList log;
        PluginRunner runner(
            {record(spec("b", {"a"}), &log), record(spec("a"), &log, {"initialize", true, 1, 0, false, {}}),
                record(spec("c"), &log, {"", false, 1, 0, true, {}})});
        QSignalSpy failed(&runner, &PluginRunner::failed);
        QVERIFY(runner.start());
        const QList<PluginError> expected = {{"a", "/x/a", PluginPhase::Initialize, "exception: initialize"},
            {"b", "/x/b", PluginPhase::Initialize, "needs a 1.0.0, which failed: exception: initialize"},
            {"c", "/x/c", PluginPhase::Initialize, "its object was deleted"}};
        QCOMPARE(runner.errors(), expected);
        QCOMPARE(failed.size(), 3);
        QCOMPARE(
            runner.errors().at(0).text(), "plug-in \"a\", /x/a, phase initialize: exception: initialize");
    }

    // Two plug-ins fill a turn, then the others in the event loop have theirs. One that never finishes
    // neither keeps the others waiting for the end of the start nor burns time.
    void lateWorkLeavesTheEventLoopItsTurns()
    {
        QStringList log;
        QList<PluginRecord> records = {record(spec("endless"), &log, {"", false, INT_MAX, 0, false, {}})};
        for (int i = 0; i < 10; ++i)
            records.append(record(spec(QString("p%1").arg(i)), &log, {"", false, 1, 12, false, {}}));
        PluginRunner runner(records);
        runner.setLateWorkLimit(500);
        int nTurns = 0;
        QTimer idle;
        connect(&idle, &QTimer::timeout, this, [&nTurns] { ++nTurns; });
        idle.start(0);
        QVERIFY(runner.start(60000));
        QTRY_VERIFY(nTurns > 0);
        QVERIFY(log.filter("delayed").isEmpty());
        nTurns = 0;
        runner.startLateWork();
        QSignalSpy done(&runner, &PluginRunner::initializationDone);
        QTRY_VERIFY(log.contains("delayed p9"));
        QVERIFY(nTurns >= 4);
        QVERIFY(done.wait(10000));
        QCOMPARE(runner.errors().size(), 1);
        QVERIFY(log.count("delayed endless") < 60);
        log.clear();
        QTRY_VERIFY(log.contains("delayed endless"));
    }

    void anAsynchronousEndIsWaitedForButNotForEver()
    {
        QStringList log;
        Fault ends[3];
        ends[0].shutdown = [&log](IPlugin *pPlugin) {
            QTimer::singleShot(30, pPlugin, [pPlugin, &log] {
                log.append("finished");
                emit pPlugin->asynchronousShutdownFinished();
            });
            return IPlugin::AsynchronousShutdown;
        };
        ends[1].shutdown = [](IPlugin *pPlugin) {
            emit pPlugin->asynchronousShutdownFinished();
            return IPlugin::AsynchronousShutdown;
        };
        ends[2].shutdown = [](IPlugin *) { return IPlugin::AsynchronousShutdown; };
        for (const bool bEndless : {false, true}) {
            PluginRunner runner(
                {record(spec("a"), &log, ends[bEndless ? 2 : 0]), record(spec("b"), &log, ends[1])});
            QVERIFY(runner.start());
            log.clear();
            QElapsedTimer timer;
            timer.start();
            runner.shutdown(bEndless ? 50 : 20000);
            QStringList expected = {"shutdown b", "shutdown a", "finished", "destroy b", "destroy a"};
            expected.removeAll(bEndless ? "finished" : "");
            QCOMPARE(log, expected);
            QVERIFY(!bEndless || timer.elapsed() >= 50);
            QCOMPARE(runner.errors().size(), bEndless ? 1 : 0);
            QVERIFY(!bEndless || runner.errors().at(0).phase == PluginPhase::Shutdown);
        }
    }
};

QTEST_GUILESS_MAIN(tst_PluginRunner)
#include "tst_pluginrunner.moc"
