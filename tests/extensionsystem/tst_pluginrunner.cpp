// SPDX-License-Identifier: MIT
#include <extensionsystem/iplugin.h>
#include <extensionsystem/pluginrunner.h>

#include <QtTest>

#include <algorithm>
#include <numeric>
#include <stdexcept>

using namespace ExtensionSystem;

namespace {

enum class How { Throws, Fails, Deletes }; // itself

// A hook that goes wrong, or nothing.
struct Fault
{
    QString hook;
    How how = How::Throws;
    int nTurns = 1; // of delayed work
    int nBusyMs = 0; // in each of them
    enum class End { AtOnce, Within, Later, Never } end = End::AtOnce; // when it has finished its shutdown
};

class LoggedPlugin : public IPlugin
{
public:
    LoggedPlugin(const QString &strName, const Fault &fault, QStringList *pLog)
        : m_strName(strName)
        , m_fault(fault)
        , m_pLog(pLog)
    {
        goesWrong("construct");
    }
    ~LoggedPlugin() override { m_pLog->append("destroy " + m_strName); }

    bool initialize(const QStringList &arguments, QString *pErrorString) override
    {
        *pErrorString = arguments.join(' ');
        return !goesWrong("initialize");
    }
    void extensionsInitialized() override { goesWrong("extensions"); }
    bool delayedInitialize() override
    {
        const QDeadlineTimer busy(m_fault.nBusyMs);
        while (!busy.hasExpired()) { }
        return goesWrong("delayed") || --m_fault.nTurns <= 0;
    }
    QObject *remoteCommand(
        const QStringList &options, const QString &strFolder, const QStringList &arguments) override
    {
        goesWrong(QStringList({"remote", options.join(' '), strFolder, arguments.join(' ')}).join(' '));
        return nullptr;
    }
    ShutdownFlag aboutToShutdown() override
    {
        if (goesWrong("shutdown") || m_fault.end == Fault::End::AtOnce)
            return SynchronousShutdown;
        if (m_fault.end == Fault::End::Within)
            emit asynchronousShutdownFinished();
        else if (m_fault.end == Fault::End::Later)
            QTimer::singleShot(0, this, [this] {
                m_pLog->append("finished " + m_strName);
                emit asynchronousShutdownFinished();
            });
        return AsynchronousShutdown;
    }

private:
    bool goesWrong(const QString &strHook)
    {
        m_pLog->append(strHook + ' ' + m_strName);
        const bool bWrong = m_fault.hook == strHook.section(' ', 0, 0);
        if (bWrong && m_fault.how == How::Throws)
            throw std::runtime_error(qPrintable(m_fault.hook));
        if (bWrong && m_fault.how == How::Deletes)
            delete this;
        return bWrong;
    }

    QString m_strName;
    Fault m_fault;
    QStringList *m_pLog;
};

QVersionNumber version(int nMinor)
{
    return QVersionNumber(1, nMinor).normalized();
}

PluginSpec spec(const QString &strName)
{
    PluginSpec result;
    result.name = strName;
    result.version = version(2);
    result.compatVersion = version(0);
    result.file = "/x/" + strName;
    return result;
}

PluginRecord record(const PluginSpec &plugin, QStringList *pLog, const Fault &fault = {})
{
    const auto create = [=](QString *pErrorString) {
        *pErrorString = "no object";
        return fault.hook == "create" ? nullptr : new LoggedPlugin(plugin.name, fault, pLog);
    };
    return {plugin, create, {"no", "luck"}};
}

// A random world of plug-ins.
struct World
{
    QList<PluginSpec> specs;
    QList<Fault> faults;
    PluginSelection selection;
};

World randomWorld(quint32 nSeed)
{
    QRandomGenerator generator(nSeed);
    const auto below = [&](qsizetype n) { return int(generator.bounded(int(n))); };
    const auto percent = [&](int n) { return below(100) < n; };
    const auto name = [&](int nNames) { return QString("p%1").arg(below(nNames)); };
    World world;
    const int nNames = 3 + below(14);
    const int nRecords = below(nNames + 2);
    const int nTrouble = below(12); // in percent: some worlds are peaceful
    static const QStringList s_hooks = {
        "create", "construct", "initialize", "initialize", "extensions", "delayed", "remote", "shutdown"};
    for (int i = 0; i < nRecords; ++i) {
        PluginSpec plugin = spec(percent(nTrouble) ? name(nNames) : QString("p%1").arg(i));
        plugin.file += QString(".%1").arg(i);
        plugin.compatVersion = version(percent(nTrouble) ? below(3) : 0);
        plugin.bRequired = percent(nTrouble / 3);
        if (percent(nTrouble))
            plugin.problems.append("broken");
        for (int n = below(4); n > 0; --n) {
            // Mostly what came before; sometimes anything, itself and what is missing too.
            const bool bAnything = i == 0 || percent(nTrouble);
            const QString strNeeded = name(bAnything ? nNames + 1 : i);
            const int nWanted = percent(nTrouble) ? 3 : below(3);
            plugin.dependencies.append({strNeeded, version(nWanted), !percent(30)});
        }
        world.specs.insert(below(i + 1), plugin);
        Fault fault;
        if (percent(nTrouble))
            fault.hook = s_hooks.at(below(s_hooks.size()));
        fault.how = fault.hook == "construct" ? How::Throws : How(below(3));
        fault.nTurns = 1 + below(3);
        fault.end = Fault::End(below(3));
        world.faults.append(fault);
    }
    if (percent(nTrouble))
        world.selection.load = QStringList({name(nNames), name(nNames)});
    if (percent(nTrouble))
        world.selection.leaveOut.append(name(nNames));
    return world;
}

// What becomes of a world, by the book: one thing after the other, each looked up anew.
class Model
{
public:
    explicit Model(const World &world)
        : m_world(world)
        , m_plugins(world.specs.size())
        , m_all(world.specs.size())
    {
        std::iota(m_all.begin(), m_all.end(), 0);
        resolve();
        sort();
        settle();
        if (!m_bEnds)
            start();
        if (!m_bEnds)
            run();
        stop(inState(PluginState::Running));
        destroy(m_order);
        for (const Plugin &plugin : m_plugins)
            log.append(QString::number(int(plugin.state)) + plugin.reason);
    }

    QStringList log; // all hooks and errors in their order, then the end of each

private:
    struct Plugin
    {
        PluginState state = PluginState::Found;
        QString reason;
        QList<int> needs; // without these it does not go
        QList<int> after; // these go first
        bool bLives = false;
    };

    const PluginSpec &spec(int n) const { return m_world.specs.at(n); }
    bool isUsed(int n) const { return m_wanted.contains(spec(n).name) && m_plugins.at(n).reason.isEmpty(); }
    QString behind(int n) const { return dependencyReason(spec(n), m_plugins.at(n).reason); }

    // Sound ones go before broken ones.
    int owner(const QString &strName) const
    {
        for (const bool bSound : {true, false}) {
            for (const int n : m_all) {
                if (spec(n).name == strName && spec(n).problems.isEmpty() == bSound)
                    return n;
            }
        }
        return -1;
    }

    void want(const QString &strName)
    {
        const int n = owner(strName);
        if (n < 0 || m_wanted.contains(strName))
            return;
        m_wanted.insert(strName);
        for (const PluginDependency &dependency : spec(n).dependencies) {
            if (dependency.bRequired && spec(n).problems.isEmpty())
                want(dependency.name);
        }
    }

    void resolve()
    {
        for (const int n : m_all) {
            if (!spec(n).problems.isEmpty())
                m_plugins[n].reason = "broken metadata: broken";
            else if (const int nOwner = owner(spec(n).name); nOwner != n)
                m_plugins[n].reason = "a plug-in of this name was found before: " + spec(nOwner).file;
            const QStringList &load = m_world.selection.load;
            if (spec(n).bRequired || load.isEmpty() || load.contains(spec(n).name))
                want(spec(n).name);
        }
        for (const QString &strName : m_world.selection.leaveOut)
            m_wanted.remove(strName);
        for (const int n : m_all) {
            for (const PluginDependency &dependency :
                isUsed(n) ? spec(n).dependencies : QList<PluginDependency>()) {
                if (dependency.bRequired && owner(dependency.name) >= 0)
                    m_plugins[n].needs.append(owner(dependency.name));
                if (dependency.bRequired && isUsed(n))
                    m_plugins[n].reason = whyNot(dependency);
            }
        }
        QStringList circles;
        for (const int n : m_all)
            circles.append(isUsed(n) ? circle(n) : QString());
        QList<int> failed;
        for (const int n : m_all) {
            m_plugins[n].reason += circles.at(n);
            if (m_wanted.contains(spec(n).name) && !isUsed(n))
                failed.append(n);
        }
        for (int i = 0; i < failed.size(); ++i) {
            for (const int n : m_all) {
                if (!isUsed(n) || !m_plugins.at(n).needs.contains(failed.at(i)))
                    continue;
                m_plugins[n].reason = behind(failed.at(i));
                failed.append(n);
            }
        }
    }

    QString whyNot(const PluginDependency &dependency) const
    {
        const int n = owner(dependency.name);
        const QString strNeeds = "needs " + dependency.name + ' ' + versionText(dependency.version);
        if (n < 0)
            return strNeeds + ", which is missing";
        if (!m_wanted.contains(dependency.name))
            return "needs " + dependency.name + ", which was left out";
        if (!spec(n).problems.isEmpty())
            return behind(n);
        if (dependency.version > version(2))
            return strNeeds + ", but version 1.2.0 is too old (" + spec(n).file + ')';
        if (dependency.version < spec(n).compatVersion)
            return strNeeds + ", but version 1.2.0 is compatible only down to "
                + versionText(spec(n).compatVersion) + " (" + spec(n).file + ')';
        return {};
    }

    // A shortest way from one back to itself.
    QString circle(int n) const
    {
        QList<QPair<int, QString>> ways = {{n, "needs itself: " + spec(n).name}};
        for (int i = 0; i < ways.size(); ++i) {
            for (const int nNext : m_plugins.at(ways.at(i).first).needs) {
                const QString strWay = ways.at(i).second + " -> " + spec(nNext).name;
                if (nNext == n)
                    return strWay;
                if (std::none_of(
                        ways.begin(), ways.end(), [=](const auto &way) { return way.first == nNext; }))
                    ways.append({nNext, strWay});
            }
        }
        return {};
    }

    bool leadsTo(int n, int nOther) const
    {
        const auto after = m_plugins.at(n).after;
        return n == nOther
            || std::any_of(after.begin(), after.end(), [&](int nNext) { return leadsTo(nNext, nOther); });
    }

    // What is there, fits and closes no circle goes first; then names decide.
    void sort()
    {
        QList<int> used = m_all;
        used.removeIf([this](int n) { return !isUsed(n); });
        std::sort(used.begin(), used.end(), [this](int a, int b) { return spec(a).name < spec(b).name; });
        for (const int n : std::as_const(used))
            m_plugins[n].after = m_plugins.at(n).needs;
        for (const int n : std::as_const(used)) {
            for (const PluginDependency &dependency : spec(n).dependencies) {
                const int nOther = owner(dependency.name);
                if (used.contains(nOther) && whyNot(dependency).isEmpty() && !leadsTo(nOther, n))
                    m_plugins[n].after.append(nOther);
            }
        }
        while (!used.isEmpty()) {
            const auto next = std::find_if(used.begin(), used.end(), [&](int n) {
                const auto after = m_plugins.at(n).after;
                return std::none_of(
                    after.begin(), after.end(), [&](int nOther) { return used.contains(nOther); });
            });
            m_order.append(*next);
            used.erase(next);
        }
    }

    void settle()
    {
        for (const int n : m_all) {
            const QString strReason = std::exchange(m_plugins[n].reason, {});
            const bool bWanted = m_wanted.contains(spec(n).name);
            m_plugins[n].state = bWanted ? PluginState::Found : PluginState::LeftOut;
            if (!bWanted && strReason.isEmpty() && spec(n).bRequired)
                fail(n, PluginPhase::Resolve, "it was left out, but the program needs it");
            else if (bWanted && !strReason.isEmpty())
                fail(n, spec(n).problems.isEmpty() ? PluginPhase::Resolve : PluginPhase::Read, strReason);
        }
        for (const QString &strName : m_world.selection.load + m_world.selection.leaveOut) {
            const char *pReason = "named on the command line, but there is no such plug-in";
            if (owner(strName) < 0)
                log.append(PluginError {strName, {}, PluginPhase::Resolve, pReason}.text());
        }
    }

    void fail(int n, PluginPhase phase, const QString &strReason)
    {
        if (phase < PluginPhase::RemoteCommand) {
            m_plugins[n].state = PluginState::Failed;
            m_plugins[n].reason = strReason;
            m_bEnds |= spec(n).bRequired && owner(spec(n).name) == n;
        }
        log.append(PluginError {spec(n).name, spec(n).file, phase, strReason}.text());
    }

    bool followsFailure(int n, PluginPhase phase)
    {
        for (const int nNeeded : std::as_const(m_plugins[n].needs)) {
            if (m_plugins.at(nNeeded).state != PluginState::Failed)
                continue;
            fail(n, phase, behind(nNeeded));
            return true;
        }
        return false;
    }

    QList<int> inState(PluginState state) const
    {
        QList<int> found = m_order;
        found.removeIf([&](int n) { return m_plugins.at(n).state != state; });
        return found;
    }

    // From late work on, only a plug-in that throws or still starts is told of.
    void hook(int n, const QString &strHook, PluginPhase phase)
    {
        const Fault &fault = m_world.faults.at(n);
        log.append(strHook + ' ' + spec(n).name);
        if (fault.hook != strHook.section(' ', 0, 0))
            return;
        if (fault.how == How::Throws)
            fail(n, phase, "exception: " + fault.hook);
        else if (fault.how == How::Deletes)
            destroy({n});
        if (fault.how == How::Deletes && phase < PluginPhase::RemoteCommand)
            fail(n, phase, "its object was deleted");
        else if (fault.how == How::Fails && phase == PluginPhase::Initialize)
            fail(n, phase, "no luck");
    }

    // One step of the start.
    void take(const QList<int> &plugins, const char *pHook, PluginPhase phase, PluginState next)
    {
        for (const int n : plugins) {
            const bool bFollows = phase != PluginPhase::ExtensionsInitialized;
            if (m_bEnds || (bFollows && followsFailure(n, phase)))
                continue;
            m_plugins[n].state = next;
            m_plugins[n].bLives = true;
            if (next == PluginState::Constructed && m_world.faults.at(n).hook == "create")
                fail(n, phase, "no object");
            else
                hook(n, pHook, phase);
            if (next == PluginState::Constructed)
                m_plugins[n].bLives = m_plugins.at(n).state == next;
        }
    }

    void start()
    {
        take(m_order, "construct", PluginPhase::Load, PluginState::Constructed);
        take(inState(PluginState::Constructed), "initialize", PluginPhase::Initialize,
            PluginState::Initialized);
        if (!m_bEnds)
            destroy(inState(PluginState::Failed));
        QList<int> backwards = inState(PluginState::Initialized);
        std::reverse(backwards.begin(), backwards.end());
        take(backwards, "extensions", PluginPhase::ExtensionsInitialized, PluginState::Running);
        stopFailed(PluginPhase::ExtensionsInitialized);
    }

    // Each has a turn of late work until it needs no more.
    void run()
    {
        QHash<int, int> turns;
        QList<int> queue = inState(PluginState::Running);
        while (!queue.isEmpty() && !m_bEnds) {
            const int n = queue.takeFirst();
            if (m_plugins.at(n).state != PluginState::Running)
                continue;
            hook(n, "delayed", PluginPhase::DelayedInitialize);
            if (m_plugins.at(n).state == PluginState::Failed)
                stopFailed(PluginPhase::DelayedInitialize);
            else if (m_world.faults.at(n).hook != "delayed" && ++turns[n] < m_world.faults.at(n).nTurns)
                queue.append(n);
        }
        log.append(m_bEnds ? "required failed" : "done");
        const QList<int> running = inState(PluginState::Running);
        for (const int n : m_bEnds ? QList<int>() : running)
            hook(n, "remote --x /y z", PluginPhase::RemoteCommand);
    }

    void stopFailed(PluginPhase phase)
    {
        if (m_bEnds)
            return;
        QList<int> users = inState(PluginState::Running);
        users.removeIf([&](int n) { return !followsFailure(n, phase); });
        stop(users);
        destroy(inState(PluginState::Failed));
    }

    void stop(const QList<int> &plugins)
    {
        for (auto it = plugins.rbegin(); it != plugins.rend(); ++it) {
            if (m_plugins.at(*it).bLives)
                hook(*it, "shutdown", PluginPhase::Shutdown);
        }
        for (auto it = plugins.rbegin(); it != plugins.rend(); ++it) {
            const Fault &fault = m_world.faults.at(*it);
            if (m_plugins.at(*it).bLives && fault.hook != "shutdown" && fault.end == Fault::End::Later)
                log.append("finished " + spec(*it).name);
        }
    }

    void destroy(const QList<int> &plugins)
    {
        for (auto it = plugins.rbegin(); it != plugins.rend(); ++it) {
            Plugin &plugin = m_plugins[*it];
            if (plugin.state != PluginState::Failed)
                plugin.state = PluginState::Stopped;
            if (std::exchange(plugin.bLives, false))
                log.append("destroy " + spec(*it).name);
        }
    }

    const World &m_world;
    QList<Plugin> m_plugins;
    QList<int> m_all;
    QSet<QString> m_wanted;
    QList<int> m_order;
    bool m_bEnds = false; // a required plug-in failed
};

} // namespace

class tst_PluginRunner : public QObject
{
    Q_OBJECT

private:
    static QStringList run(const World &world)
    {
        QStringList log;
        QList<PluginRecord> records;
        for (int i = 0; i < world.specs.size(); ++i)
            records.append(record(world.specs.at(i), &log, world.faults.at(i)));
        PluginRunner runner(records, world.selection);
        const auto tell = [&log](const PluginError &error) { log.append(error.text()); };
        std::for_each(runner.errors().begin(), runner.errors().end(), tell);
        connect(&runner, &PluginRunner::failed, tell);
        QSignalSpy done(&runner, &PluginRunner::initializationDone);
        QSignalSpy died(&runner, &PluginRunner::requiredPluginFailed);
        if (runner.start()) {
            while (done.isEmpty() && died.isEmpty())
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            log.append(done.isEmpty() ? "required failed" : "done");
            if (!runner.requiredFailure())
                runner.remoteCommand({"--x"}, "/y", {"z"});
        }
        runner.shutdown(1000);
        for (const PluginDescription &plugin : runner.plugins())
            log.append(QString::number(int(plugin.state)) + plugin.reason);
        return log;
    }

private slots:
    void randomWorldsGoByTheBook()
    {
        for (quint32 nSeed = 1; nSeed <= 3000; ++nSeed) {
            const World world = randomWorld(nSeed);
            const QStringList log = run(world), expected = Model(world).log;
            if (log != expected)
                qInfo("in the world of seed %u:\n%s", nSeed, qPrintable(log.join('\n')));
            QCOMPARE(log, expected);
        }
    }

    // Two plug-ins fill a turn, then the others in the event loop have theirs. One that never finishes
    // neither keeps the others waiting for the end of the start nor burns time.
    void lateWorkLeavesTheEventLoopItsTurns()
    {
        QStringList log;
        QList<PluginRecord> records = {record(spec("endless"), &log, {"", How::Fails, INT_MAX, 0})};
        for (int i = 0; i < 10; ++i)
            records.append(record(spec(QString("p%1").arg(i)), &log, {"", How::Fails, 1, 12}));
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

    void anEndIsNotWaitedForForEver()
    {
        QStringList log;
        Fault never;
        never.end = Fault::End::Never;
        PluginRunner runner({record(spec("a"), &log, never), record(spec("b"), &log)});
        QVERIFY(runner.start());
        log.clear();
        QElapsedTimer timer;
        timer.start();
        runner.shutdown(50);
        QCOMPARE(log, QStringList({"shutdown b", "shutdown a", "destroy b", "destroy a"}));
        QVERIFY(timer.elapsed() >= 50);
        QCOMPARE(runner.errors(),
            QList<PluginError>({{"a", "/x/a", PluginPhase::Shutdown, "it did not finish within 50 ms"}}));
    }
};

QTEST_GUILESS_MAIN(tst_PluginRunner)
#include "tst_pluginrunner.moc"
