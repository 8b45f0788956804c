// SPDX-License-Identifier: MIT
#include <extensionsystem/iplugin.h>
#include <extensionsystem/pluginrunner.h>

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTimer>
#include <QtTest>

#include <algorithm>
#include <optional>
#include <set>
#include <stdexcept>

using namespace ExtensionSystem;

namespace {

// A hook that goes wrong, or nothing.
struct Fault
{
    QString hook;
    bool bThrows = false;
    int nTurns = 1; // of delayed work
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
        *pErrorString = QStringLiteral("no luck");
        return call("initialize");
    }
    void extensionsInitialized() override { call("extensions"); }
    bool delayedInitialize() override
    {
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
        m_pLog->append(QLatin1String(pHook) + QLatin1Char(' ') + m_strName);
        const bool bFails = m_fault.hook == QLatin1String(pHook);
        if (bFails && m_fault.bThrows)
            throw std::runtime_error(pHook);
        return !bFails;
    }

    QString m_strName;
    Fault m_fault;
    QStringList *m_pLog;
};

QVersionNumber version(const QString &strText)
{
    return QVersionNumber::fromString(strText).normalized();
}

PluginSpec spec(
    const QString &strName, const QStringList &needs = {}, const QString &strVersion = QStringLiteral("1"))
{
    PluginSpec result;
    result.name = strName;
    result.version = version(strVersion);
    result.compatVersion = result.version;
    result.file = QStringLiteral("/x/") + strName;
    for (const QString &strNeeded : needs)
        result.dependencies.append({strNeeded, version(QStringLiteral("1")), true});
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
    if (runner.start()) {
        QEventLoop loop;
        bool bEnded = false;
        QObject::connect(&runner, &PluginRunner::initializationDone, &loop, [&] {
            pLog->append(QStringLiteral("done"));
            bEnded = true;
            loop.quit();
        });
        QObject::connect(&runner, &PluginRunner::requiredPluginFailed, &loop, [&] {
            pLog->append(QStringLiteral("required failed"));
            bEnded = true;
            loop.quit();
        });
        QTimer::singleShot(20000, &loop, &QEventLoop::quit);
        loop.exec();
        QVERIFY2(bEnded, "neither done nor failed");
    }
    runner.shutdown(1000);
}

// A random world of plug-ins.
struct World
{
    QList<PluginSpec> specs;
    QList<Fault> faults;
    PluginSelection selection;
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
    QString name(int nNames) { return QStringLiteral("p%1").arg(below(nNames)); }
    QVersionNumber someVersion() { return version(QStringLiteral("1.%1").arg(below(3))); }

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
    static const QStringList s_hooks = {QStringLiteral("construct"),  QStringLiteral("initialize"),
                                        QStringLiteral("initialize"), QStringLiteral("extensions"),
                                        QStringLiteral("delayed"),    QStringLiteral("shutdown")};
    for (int i = 0; i < nRecords; ++i) {
        PluginSpec plugin = spec(dice.percent(nTrouble) ? dice.name(nNames) : QStringLiteral("p%1").arg(i));
        plugin.file += QStringLiteral(".%1").arg(i);
        plugin.version = version(QStringLiteral("1.2"));
        plugin.compatVersion = dice.percent(nTrouble) ? dice.someVersion() : version(QStringLiteral("1"));
        plugin.bRequired = dice.percent(nTrouble / 3);
        if (dice.percent(nTrouble))
            plugin.problems.append(QStringLiteral("broken"));
        for (int n = dice.below(4); n > 0; --n) {
            // Mostly what came before; sometimes anything, itself and what is missing too.
            const bool bAnything = i == 0 || dice.percent(nTrouble);
            const QString strNeeded =
                bAnything ? dice.name(nNames + 1) : QStringLiteral("p%1").arg(dice.below(i));
            const QVersionNumber wanted =
                dice.percent(nTrouble) ? version(QStringLiteral("1.3")) : dice.someVersion();
            plugin.dependencies.append({strNeeded, wanted, !dice.percent(30)});
        }
        world.specs.append(plugin);
        const bool bFault = dice.percent(nTrouble);
        const QString strHook = s_hooks.at(dice.below(s_hooks.size()));
        const bool bThrows = strHook != QLatin1String("initialize") || dice.percent(50);
        world.faults.append({bFault ? strHook : QString(), bThrows, 1 + dice.below(3), {}});
    }
    if (dice.percent(nTrouble))
        world.selection.load = QStringList({dice.name(nNames), dice.name(nNames)});
    if (dice.percent(nTrouble))
        world.selection.leaveOut.append(dice.name(nNames));
    return world;
}

// What must happen in such a world, worked out the slow and simple way.
class Model
{
public:
    explicit Model(const World &world)
        : m_world(world)
    {
        for (int i = 0; i < world.specs.size(); ++i) {
            if (world.specs.at(i).problems.isEmpty() && !m_byName.contains(world.specs.at(i).name))
                m_byName.insert(world.specs.at(i).name, i);
        }
        select();
        while (grow()) { }
        sort();
    }

    // Records that load, in the order of the names; a circle is never entered.
    std::set<QString> loadable;
    QList<int> order;
    bool bOrderCertain = true; // false: optional dependencies form a circle

    [[nodiscard]] bool isLeftOut(int n) const { return !m_selected.contains(n); }

    QStringList expectedLog()
    {
        m_log.clear();
        if (!requiredFailsBefore() && startAll())
            runAll();
        for (auto it = order.crbegin(); it != order.crend(); ++it)
            end(*it, "shutdown", m_running);
        for (auto it = order.crbegin(); it != order.crend(); ++it)
            end(*it, "destroy", m_alive);
        return m_log;
    }

    // Dead at the end of it all, whatever the reason.
    [[nodiscard]] bool isFailed(int n) const
    {
        if (isLeftOut(n))
            return m_world.specs.at(n).bRequired && m_byName.value(name(n), -1) == n;
        return !order.contains(n) || m_dead.contains(n);
    }

private:
    [[nodiscard]] QString name(int n) const { return m_world.specs.at(n).name; }

    [[nodiscard]] bool fits(const PluginDependency &dependency) const
    {
        const auto it = m_byName.constFind(dependency.name);
        return it != m_byName.constEnd() && m_world.specs.at(*it).version >= dependency.version
            && m_world.specs.at(*it).compatVersion <= dependency.version;
    }

    void select()
    {
        std::set<QString> wanted(m_world.selection.load.cbegin(), m_world.selection.load.cend());
        for (int i = 0; i < m_world.specs.size(); ++i) {
            if (m_world.specs.at(i).bRequired)
                wanted.insert(name(i));
        }
        for (size_t nBefore = 0; nBefore != wanted.size();) {
            nBefore = wanted.size();
            for (const QString &strName : std::set<QString>(wanted)) {
                if (!m_byName.contains(strName))
                    continue;
                for (const PluginDependency &dependency :
                     m_world.specs.at(m_byName.value(strName)).dependencies) {
                    if (dependency.bRequired)
                        wanted.insert(dependency.name);
                }
            }
        }
        for (int i = 0; i < m_world.specs.size(); ++i) {
            const bool bWanted = m_world.selection.load.isEmpty() || wanted.count(name(i));
            if (bWanted && !m_world.selection.leaveOut.contains(name(i)))
                m_selected.insert(i);
        }
    }

    bool grow()
    {
        const size_t nBefore = loadable.size();
        for (auto it = m_byName.cbegin(); it != m_byName.cend(); ++it) {
            bool bAll = m_selected.contains(it.value());
            for (const PluginDependency &dependency : m_world.specs.at(it.value()).dependencies)
                bAll =
                    bAll && (!dependency.bRequired || (fits(dependency) && loadable.count(dependency.name)));
            if (bAll)
                loadable.insert(it.key());
        }
        return loadable.size() > nBefore;
    }

    void sort()
    {
        std::set<QString> done;
        while (done.size() < loadable.size()) {
            const auto next = std::find_if(loadable.begin(), loadable.end(), [&](const QString &strName) {
                return !done.count(strName) && isReady(strName, done);
            });
            if (next == loadable.end()) {
                bOrderCertain = false;
                return;
            }
            done.insert(*next);
            order.append(m_byName.value(*next));
        }
    }

    bool isReady(const QString &strName, const std::set<QString> &done)
    {
        for (const PluginDependency &dependency : m_world.specs.at(m_byName.value(strName)).dependencies) {
            const bool bCounts =
                dependency.bRequired || (fits(dependency) && loadable.count(dependency.name));
            if (bCounts && !done.count(dependency.name))
                return false;
        }
        return true;
    }

    bool requiredFailsBefore()
    {
        for (int i = 0; i < m_world.specs.size(); ++i) {
            const bool bDuplicate = m_world.specs.at(i).problems.isEmpty() && m_byName.value(name(i)) != i;
            const bool bFails = isLeftOut(i) ? isFailed(i) : bDuplicate || !order.contains(i);
            if (m_world.specs.at(i).bRequired && bFails)
                return true;
        }
        return false;
    }

    // One hook of one plug-in; false when that plug-in is dead after it.
    bool hook(int n, const char *pHook)
    {
        for (const PluginDependency &dependency : m_world.specs.at(n).dependencies) {
            if (dependency.bRequired && m_dead.contains(m_byName.value(dependency.name))) {
                m_dead.insert(n);
                return false;
            }
        }
        m_log.append(QLatin1String(pHook) + QLatin1Char(' ') + name(n));
        if (m_world.faults.at(n).hook == QLatin1String(pHook))
            m_dead.insert(n);
        return !m_dead.contains(n);
    }

    [[nodiscard]] bool requiredDied() const
    {
        return std::any_of(
            m_dead.begin(), m_dead.end(), [this](int n) { return m_world.specs.at(n).bRequired; });
    }

    bool startAll()
    {
        for (int i = 0; i < order.size() && !requiredDied(); ++i) {
            if (hook(order.at(i), "construct"))
                m_alive.insert(order.at(i));
        }
        for (int i = 0; i < order.size() && !requiredDied(); ++i) {
            if (m_alive.contains(order.at(i)) && hook(order.at(i), "initialize"))
                m_running.insert(order.at(i));
        }
        if (!requiredDied()) {
            buryDead();
            return true;
        }
        m_running.clear();
        return false;
    }

    void runAll()
    {
        const QSet<int> initialized = m_running;
        m_running.clear();
        for (auto it = order.crbegin(); it != order.crend() && !requiredDied(); ++it) {
            if (!initialized.contains(*it))
                continue;
            m_running.insert(*it);
            hook(*it, "extensions");
        }
        if (requiredDied())
            return retire();
        stopDependents();
        QList<QPair<int, int>> turns; // plug-in and how many turns it still wants
        for (const int n : std::as_const(order))
            turns.append({n, m_world.faults.at(n).nTurns});
        while (!turns.isEmpty() && !requiredDied()) {
            const auto [n, nTurns] = turns.takeFirst();
            if (!m_running.contains(n))
                continue;
            if (!hook(n, "delayed"))
                requiredDied() ? retire() : stopDependents();
            else if (nTurns > 1)
                turns.append({n, nTurns - 1});
        }
        m_log.append(requiredDied() ? QStringLiteral("required failed") : QStringLiteral("done"));
    }

    void stopDependents()
    {
        QList<int> stopped;
        for (const int n : std::as_const(order)) {
            if (!m_running.contains(n) || m_dead.contains(n))
                continue;
            for (const PluginDependency &dependency : m_world.specs.at(n).dependencies) {
                if (dependency.bRequired && m_dead.contains(m_byName.value(dependency.name)))
                    m_dead.insert(n);
            }
            if (m_dead.contains(n))
                stopped.prepend(n);
        }
        for (const int n : std::as_const(stopped))
            m_log.append(QStringLiteral("shutdown ") + name(n));
        retire();
        // A required one that falls with another stays until all go.
        buryDead();
    }

    void retire() { m_running -= m_dead; }

    void buryDead()
    {
        for (auto it = order.crbegin(); it != order.crend(); ++it) {
            if (m_dead.contains(*it))
                end(*it, "destroy", m_alive);
        }
    }

    void end(int n, const char *pHook, QSet<int> &among)
    {
        if (among.remove(n))
            m_log.append(QLatin1String(pHook) + QLatin1Char(' ') + name(n));
    }

    const World &m_world;
    QHash<QString, int> m_byName;
    QSet<int> m_selected;
    QSet<int> m_alive;
    QSet<int> m_running;
    QSet<int> m_dead;
    QStringList m_log;
};

} // namespace

class tst_PluginRunner : public QObject
{
    Q_OBJECT

private:
    // Whatever the circle of optional ones: what is required comes first, and each comes once.
    static void checkRequiredOrder(const World &world, const QStringList &log)
    {
        QStringList constructed;
        for (const QString &strLine : log) {
            if (strLine.startsWith(QLatin1String("construct ")))
                constructed.append(strLine.mid(10));
        }
        QCOMPARE(constructed.removeDuplicates(), 0);
        QSet<QString> seen;
        for (const PluginSpec &plugin : world.specs) {
            if (!plugin.problems.isEmpty() || seen.contains(plugin.name))
                continue;
            seen.insert(plugin.name);
            for (const PluginDependency &dependency : plugin.dependencies) {
                if (dependency.bRequired && constructed.contains(plugin.name))
                    QVERIFY(
                        log.indexOf(QStringLiteral("construct ") + dependency.name)
                        < log.indexOf(QStringLiteral("construct ") + plugin.name));
            }
        }
    }

    static void checkWorld(const World &world, int *pCertain)
    {
        QStringList log;
        QList<PluginRecord> records;
        for (int i = 0; i < world.specs.size(); ++i)
            records.append(record(world.specs.at(i), &log, world.faults.at(i)));
        PluginRunner runner(records, world.selection);
        runThrough(runner, &log);

        Model model(world);
        if (!model.bOrderCertain)
            return checkRequiredOrder(world, log);
        ++*pCertain;
        QCOMPARE(log, model.expectedLog());
        if (runner.requiredFailure())
            return;
        const auto plugins = runner.plugins();
        for (int i = 0; i < plugins.size(); ++i) {
            const auto expected = model.isFailed(i) ? PluginState::Failed
                : model.isLeftOut(i)                ? PluginState::LeftOut
                                                    : PluginState::Stopped;
            QCOMPARE(plugins.at(i).state, expected);
            QCOMPARE(plugins.at(i).reason.isEmpty(), expected != PluginState::Failed);
        }
    }

private slots:
    void randomWorldsRunAsTheModelSays()
    {
        int nCertain = 0;
        for (quint32 nSeed = 1; nSeed <= 3000 && !QTest::currentTestFailed(); ++nSeed) {
            checkWorld(randomWorld(nSeed), &nCertain);
            if (QTest::currentTestFailed())
                qInfo("in the world of seed %u", nSeed);
        }
        QVERIFY2(nCertain > 2000, "too few worlds have one right order");
    }

    void reasonsCarryTheWholeChain_data()
    {
        QTest::addColumn<QStringList>("plugins"); // name:version:needed,needed
        QTest::addColumn<QString>("reason"); // of plug-in a
        QTest::newRow("a missing one")
            << QStringList({QStringLiteral("a:1:b"), QStringLiteral("b:1:c"), QStringLiteral("c:1:d")})
            << "needs b 1.0.0, which failed: needs c 1.0.0, which failed: needs d 1.0.0, which is missing";
        QTest::newRow("one too old")
            << QStringList({QStringLiteral("a:1:b"), QStringLiteral("b:1:c"), QStringLiteral("c:0.9:")})
            << "needs b 1.0.0, which failed: needs c 1.0.0, but version 0.9.0 is too old (/x/c)";
        QTest::newRow("one too new")
            << QStringList({QStringLiteral("a:1:b"), QStringLiteral("b:2:")})
            << "needs b 1.0.0, but version 2.0.0 is compatible only down to 2.0.0 (/x/b)";
        QTest::newRow("behind a circle")
            << QStringList({QStringLiteral("a:1:b"), QStringLiteral("b:1:c"), QStringLiteral("c:1:b")})
            << "needs b 1.0.0, which failed: needs itself: b -> c -> b";
        QTest::newRow("itself") << QStringList({QStringLiteral("a:1:a")}) << "needs itself: a -> a";
    }

    void reasonsCarryTheWholeChain()
    {
        QFETCH(QStringList, plugins);
        QFETCH(QString, reason);
        QList<PluginSpec> specs;
        for (const QString &strPlugin : std::as_const(plugins)) {
            const QStringList parts = strPlugin.split(QLatin1Char(':'));
            specs.append(
                spec(parts.at(0), parts.at(2).split(QLatin1Char(','), Qt::SkipEmptyParts), parts.at(1)));
        }
        QCOMPARE(resolvePlugins(specs).verdicts.at(0).reason, reason);
    }

    void errorsAreData()
    {
        QStringList log;
        PluginRunner runner(
            {record(spec(QStringLiteral("b"), {QStringLiteral("a")}), &log),
             record(spec(QStringLiteral("a")), &log, {QStringLiteral("initialize"), true, 1, {}})});
        QSignalSpy failed(&runner, &PluginRunner::failed);
        QVERIFY(runner.start());
        const QList<PluginError> expected = {
            {QStringLiteral("a"), QStringLiteral("/x/a"), PluginPhase::Initialize,
             QStringLiteral("exception: initialize")},
            {QStringLiteral("b"), QStringLiteral("/x/b"), PluginPhase::Initialize,
             QStringLiteral("needs a 1.0.0, which failed: exception: initialize")}};
        QCOMPARE(runner.errors(), expected);
        QCOMPARE(failed.size(), 2);
        QCOMPARE(
            runner.errors().at(0).text(),
            QStringLiteral("plug-in \"a\", /x/a, phase initialize: exception: initialize"));
    }

    void lateWorkLeavesTheEventLoopItsTurns()
    {
        QStringList log;
        QList<PluginRecord> records;
        Fault slow;
        slow.nTurns = 4;
        slow.hook = QStringLiteral("none");
        for (int i = 0; i < 10; ++i) {
            PluginRecord slowRecord = record(spec(QStringLiteral("p%1").arg(i)), &log, slow);
            records.append(slowRecord);
        }
        PluginRunner runner(records);
        QVERIFY(runner.start());
        int nTurns = 0;
        QTimer idle;
        connect(&idle, &QTimer::timeout, this, [&nTurns] { ++nTurns; });
        idle.start(0);
        QSignalSpy done(&runner, &PluginRunner::initializationDone);
        QVERIFY(done.wait(10000));
        QVERIFY2(nTurns >= 3, "a plug-in that asks for another turn gets it in a later one");
    }

    void anAsynchronousEndIsWaitedFor()
    {
        QStringList log;
        Fault later;
        later.shutdown = [&log](IPlugin *pPlugin) {
            QTimer::singleShot(30, pPlugin, [pPlugin, &log] {
                log.append(QStringLiteral("finished"));
                emit pPlugin->asynchronousShutdownFinished();
            });
            return IPlugin::AsynchronousShutdown;
        };
        Fault atOnce;
        atOnce.shutdown = [](IPlugin *pPlugin) {
            emit pPlugin->asynchronousShutdownFinished();
            return IPlugin::AsynchronousShutdown;
        };
        PluginRunner runner(
            {record(spec(QStringLiteral("a")), &log, later),
             record(spec(QStringLiteral("b")), &log, atOnce)});
        QVERIFY(runner.start());
        log.clear();
        runner.shutdown(20000);
        const QStringList expected = {
            QStringLiteral("shutdown b"), QStringLiteral("shutdown a"), QStringLiteral("finished"),
            QStringLiteral("destroy b"), QStringLiteral("destroy a")};
        QCOMPARE(log, expected);
        QVERIFY(runner.errors().isEmpty());
    }

    void anEndlessEndIsCutShort()
    {
        QStringList log;
        Fault never;
        never.shutdown = [](IPlugin *) { return IPlugin::AsynchronousShutdown; };
        PluginRunner runner({record(spec(QStringLiteral("a")), &log, never)});
        QVERIFY(runner.start());
        QElapsedTimer timer;
        timer.start();
        runner.shutdown(50);
        QVERIFY(timer.elapsed() >= 50);
        QVERIFY(log.contains(QStringLiteral("destroy a")));
        QCOMPARE(runner.errors().size(), 1);
        QCOMPARE(runner.errors().at(0).phase, PluginPhase::Shutdown);
    }
};

QTEST_GUILESS_MAIN(tst_PluginRunner)
#include "tst_pluginrunner.moc"
