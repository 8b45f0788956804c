// SPDX-License-Identifier: MIT
#include <extensionsystem/pluginrunner.h>

#include "startprofile.h"

#include <extensionsystem/iplugin.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QPointer>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace ExtensionSystem {

namespace {

// After this time a turn of late work takes no further plug-in, so that the window stays responsive.
constexpr int s_nTurnMs = 20;
// After this many turns of late work, each pause before a turn is a millisecond longer than the last.
constexpr int s_nTurnsWithoutPause = 10;
constexpr int s_nLongestPauseMs = 50;
constexpr int s_nLatePauseMs = 1000; // once initializationDone() was emitted

} // namespace

struct PluginRunner::Private
{
    struct Plugin
    {
        PluginRecord record;
        PluginState state = PluginState::Found;
        QString reason;
        QList<int> required;
        QPointer<IPlugin> object;
        bool bNeeded = false; ///< marked "Required", and no other record owns its name
    };

    explicit Private(PluginRunner *pOwner)
        : q(pOwner)
    {
        turn.setSingleShot(true);
        connect(&turn, &QTimer::timeout, q, [this] { delayedTurn(); });
    }

    void resolve(const QList<PluginRecord> &records, const PluginSelection &selection);
    PluginError note(int n, PluginPhase phase, const QString &strReason);
    void fail(int n, PluginPhase phase, const QString &strReason);
    [[nodiscard]] bool followFailure(int n, PluginPhase phase);
    [[nodiscard]] QList<int> inState(PluginState state) const;

    template <typename Function>
    QString hook(int n, PluginPhase phase, Function function)
    {
        return profile.measure(plugins[n].record.spec.name, phase, [&] { return caught(function); });
    }

    // The same for a hook of the object, which may be gone already or delete itself. Empty when all is well.
    template <typename Function>
    QString objectHook(int n, PluginPhase phase, Function function)
    {
        const QPointer<IPlugin> &pObject = plugins[n].object;
        const QString strThrown = pObject ? hook(n, phase, [&] { function(pObject.data()); }) : QString();
        return pObject || !strThrown.isEmpty() ? strThrown : QStringLiteral("its object was deleted");
    }

    bool takeOn(const QList<int> &records, PluginPhase phase, void (Private::*step)(int));
    void construct(int n);
    bool initializeAll();
    void initialize(int n);
    bool extensionsInitializedAll();
    void delayedTurn();
    void nextTurn();
    void endStart();
    bool delayedInitialize(int n);
    void stopFailed(PluginPhase phase);
    void askToStop(const QList<int> &records, int nTimeoutMs);
    void askToStop(int n, QSet<int> *pPending);
    void waitFor(QSet<int> *pPending, int nTimeoutMs);
    void destroy(const QList<int> &records);

    PluginRunner *q;
    std::vector<Plugin> plugins;
    QList<int> order;
    QList<PluginError> errors;
    std::optional<PluginError> requiredFailure;
    QList<int> delayed;
    QTimer turn; // starts the next turn of late work
    int nTurns = 0;
    int nLateLimitMs = 10000;
    QDeadlineTimer lateLimit;
    bool bStartEnded = false;
    int nStopTimeoutMs = 5000;
    StartProfile profile;
};

PluginRunner::PluginRunner(const QList<PluginRecord> &records, const PluginSelection &selection)
    : d(std::make_unique<Private>(this))
{
    d->resolve(records, selection);
}

PluginRunner::~PluginRunner()
{
    shutdown(d->nStopTimeoutMs);
}

void PluginRunner::setProfiled(bool bProfiled)
{
    d->profile.setEnabled(bProfiled);
    for (const Private::Plugin &plugin : d->plugins)
        d->profile.book(plugin.record.spec.name, PluginPhase::Read, plugin.record.nReadNanoseconds);
}

QString PluginRunner::profile() const
{
    return d->profile.text();
}

const PluginError *PluginRunner::requiredFailure() const
{
    return d->requiredFailure ? &*d->requiredFailure : nullptr;
}

const QList<PluginError> &PluginRunner::errors() const
{
    return d->errors;
}

QList<PluginDescription> PluginRunner::plugins() const
{
    QList<PluginDescription> descriptions;
    for (const Private::Plugin &plugin : d->plugins)
        descriptions.append({plugin.record.spec, plugin.state, plugin.reason});
    return descriptions;
}

QList<IPlugin *> PluginRunner::running() const
{
    QList<IPlugin *> objects;
    const auto records = d->inState(PluginState::Running);
    for (const int n : records) {
        if (d->plugins[n].object)
            objects.append(d->plugins[n].object);
    }
    return objects;
}

void PluginRunner::Private::resolve(const QList<PluginRecord> &records, const PluginSelection &selection)
{
    QList<PluginSpec> specs;
    for (const PluginRecord &record : records)
        specs.append(record.spec);
    const PluginResolution resolution = resolvePlugins(specs, selection);
    order = resolution.order;
    for (int i = 0; i < records.size(); ++i) {
        const PluginVerdict &verdict = resolution.verdicts.at(i);
        plugins.push_back({records.at(i), PluginState::Found, QString(), verdict.required, nullptr,
            specs.at(i).bRequired && verdict.bOwnsName});
        if (!verdict.bSelected)
            plugins.back().state = PluginState::LeftOut;
        const bool bRequiredLeftOut = !verdict.bSelected && specs.at(i).bRequired && verdict.reason.isEmpty();
        if (bRequiredLeftOut)
            fail(i, PluginPhase::Resolve, QStringLiteral("it was left out, but the program needs it"));
        else if (verdict.bSelected && !verdict.reason.isEmpty())
            fail(
                i, specs.at(i).problems.isEmpty() ? PluginPhase::Resolve : PluginPhase::Read, verdict.reason);
    }
    for (const QString &strName : resolution.unknown)
        errors.append({strName, QString(), PluginPhase::Resolve,
            QStringLiteral("named on the command line, but there is no such plug-in")});
}

// Reports an error that does not stop the plug-in.
PluginError PluginRunner::Private::note(int n, PluginPhase phase, const QString &strReason)
{
    const PluginSpec &spec = plugins[n].record.spec;
    const PluginError error = {spec.name, spec.file, phase, strReason};
    errors.append(error);
    emit q->failed(error);
    return error;
}

void PluginRunner::Private::fail(int n, PluginPhase phase, const QString &strReason)
{
    plugins[n].state = PluginState::Failed;
    plugins[n].reason = strReason;
    const PluginError error = note(n, phase, strReason);
    if (plugins[n].bNeeded && !requiredFailure)
        requiredFailure = error;
}

// Fails the plug-in if one that it requires has failed meanwhile, and returns whether it did.
bool PluginRunner::Private::followFailure(int n, PluginPhase phase)
{
    for (const int nNeeded : std::as_const(plugins[n].required)) {
        const Plugin &needed = plugins[nNeeded];
        if (needed.state != PluginState::Failed)
            continue;
        fail(n, phase, dependencyReason(needed.record.spec, needed.reason));
        return true;
    }
    return false;
}

QList<int> PluginRunner::Private::inState(PluginState state) const
{
    QList<int> records;
    for (const int n : order) {
        if (plugins[n].state == state)
            records.append(n);
    }
    return records;
}

bool PluginRunner::start(int nLateWorkMs)
{
    if (!d->requiredFailure && d->takeOn(d->order, PluginPhase::Load, &Private::construct)
        && d->initializeAll() && d->extensionsInitializedAll()) {
        d->delayed = d->inState(PluginState::Running);
        d->turn.start(nLateWorkMs);
        return true;
    }
    shutdown(d->nStopTimeoutMs);
    return false;
}

void PluginRunner::startLateWork()
{
    if (d->turn.isActive() && d->nTurns == 0)
        d->turn.start(0);
}

void PluginRunner::setLateWorkLimit(int nMs)
{
    d->nLateLimitMs = nMs;
}

// Takes one step of the start for all these records; returns false when a required plug-in has failed.
bool PluginRunner::Private::takeOn(const QList<int> &records, PluginPhase phase, void (Private::*step)(int))
{
    for (const int n : records) {
        if (!followFailure(n, phase))
            (this->*step)(n);
        if (requiredFailure)
            return false;
    }
    return true;
}

void PluginRunner::Private::construct(int n)
{
    Plugin &plugin = plugins[n];
    QString strError;
    const QString strThrown =
        hook(n, PluginPhase::Load, [&] { plugin.object = plugin.record.create(&strError); });
    if (plugin.object)
        plugin.state = PluginState::Constructed;
    else
        fail(n, PluginPhase::Load, strThrown.isEmpty() ? strError : strThrown);
}

bool PluginRunner::Private::initializeAll()
{
    if (!takeOn(inState(PluginState::Constructed), PluginPhase::Initialize, &Private::initialize))
        return false; // start() deletes all of them, dependents first
    destroy(inState(PluginState::Failed));
    return true;
}

void PluginRunner::Private::initialize(int n)
{
    Plugin &plugin = plugins[n];
    QString strError;
    bool bDone = false;
    const QString strThrown = objectHook(n, PluginPhase::Initialize,
        [&](IPlugin *pObject) { bDone = pObject->initialize(plugin.record.arguments, &strError); });
    if (!strThrown.isEmpty())
        fail(n, PluginPhase::Initialize, strThrown);
    else if (bDone)
        plugin.state = PluginState::Initialized;
    else
        fail(n, PluginPhase::Initialize, strError.isEmpty() ? QStringLiteral("it gave no reason") : strError);
}

bool PluginRunner::Private::extensionsInitializedAll()
{
    const QList<int> records = inState(PluginState::Initialized);
    for (auto it = records.crbegin(); it != records.crend() && !requiredFailure; ++it) {
        Plugin &plugin = plugins[*it];
        plugin.state = PluginState::Running;
        const QString strThrown = objectHook(*it, PluginPhase::ExtensionsInitialized,
            [](IPlugin *pObject) { pObject->extensionsInitialized(); });
        if (!strThrown.isEmpty())
            fail(*it, PluginPhase::ExtensionsInitialized, strThrown);
    }
    stopFailed(PluginPhase::ExtensionsInitialized);
    return !requiredFailure;
}

// One turn of late work calls as many plug-ins as its time allows, each once.
void PluginRunner::Private::delayedTurn()
{
    if (nTurns++ == 0)
        lateLimit.setRemainingTime(nLateLimitMs);
    QList<int> again;
    const QDeadlineTimer deadline(s_nTurnMs);
    while (!delayed.isEmpty() && !requiredFailure) {
        const int n = delayed.takeFirst();
        if (!delayedInitialize(n))
            again.append(n);
        if (deadline.hasExpired())
            break;
    }
    delayed += again;
    nextTurn();
}

void PluginRunner::Private::nextTurn()
{
    if (requiredFailure)
        return emit q->requiredPluginFailed();
    const bool bOver = delayed.isEmpty() || lateLimit.hasExpired();
    if (!delayed.isEmpty())
        turn.start(bOver ? s_nLatePauseMs : std::clamp(nTurns - s_nTurnsWithoutPause, 0, s_nLongestPauseMs));
    if (bOver && !std::exchange(bStartEnded, true))
        endStart();
}

// A plug-in that never finishes must not keep the others from hearing that the start is complete.
void PluginRunner::Private::endStart()
{
    for (const int n : std::as_const(delayed))
        note(n, PluginPhase::DelayedInitialize,
            QStringLiteral("it did not finish within %1 ms").arg(nLateLimitMs));
    emit q->initializationDone();
}

// Returns false if the plug-in wants another turn.
bool PluginRunner::Private::delayedInitialize(int n)
{
    if (plugins[n].state != PluginState::Running)
        return true;
    bool bFinished = true;
    const QString strThrown = objectHook(n, PluginPhase::DelayedInitialize,
        [&](IPlugin *pObject) { bFinished = pObject->delayedInitialize(); });
    if (strThrown.isEmpty())
        return bFinished;
    fail(n, PluginPhase::DelayedInitialize, strThrown);
    stopFailed(PluginPhase::DelayedInitialize);
    return true;
}

// When a plug-in fails while others run, those that require it are asked to stop, dependents first, and then
// all of them are deleted. If a required one has failed, the end of the program stops everything instead.
void PluginRunner::Private::stopFailed(PluginPhase phase)
{
    if (requiredFailure)
        return;
    QList<int> dependents;
    const QList<int> candidates = inState(PluginState::Running);
    for (const int n : candidates) {
        if (followFailure(n, phase))
            dependents.append(n);
    }
    askToStop(dependents, nStopTimeoutMs);
    destroy(inState(PluginState::Failed));
}

void PluginRunner::shutdown(int nTimeoutMs)
{
    d->delayed.clear();
    d->turn.stop();
    d->askToStop(d->inState(PluginState::Running), nTimeoutMs);
    d->destroy(d->order);
}

// Asks dependents first, and returns when all have finished or the time is up.
void PluginRunner::Private::askToStop(const QList<int> &records, int nTimeoutMs)
{
    if (records.isEmpty())
        return;
    QSet<int> pending;
    for (auto it = records.crbegin(); it != records.crend(); ++it)
        askToStop(*it, &pending);
    waitFor(&pending, nTimeoutMs);
    for (const int n : records) {
        if (plugins[n].object)
            disconnect(plugins[n].object, nullptr, q, nullptr);
    }
    for (const int n : std::as_const(pending))
        note(n, PluginPhase::Shutdown, QStringLiteral("it did not finish within %1 ms").arg(nTimeoutMs));
    // What plug-ins have handed to deleteLater() is deleted while the plug-ins still exist.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// The connections come first, because the plug-in may emit the signal from within the hook.
void PluginRunner::Private::askToStop(int n, QSet<int> *pPending)
{
    IPlugin *pPlugin = plugins[n].object;
    if (!pPlugin)
        return;
    pPending->insert(n);
    const auto finished = [n, pPending] { pPending->remove(n); };
    connect(pPlugin, &IPlugin::asynchronousShutdownFinished, q, finished);
    connect(pPlugin, &QObject::destroyed, q, finished);
    auto flag = IPlugin::SynchronousShutdown;
    const QString strThrown = hook(n, PluginPhase::Shutdown, [&] { flag = pPlugin->aboutToShutdown(); });
    if (!strThrown.isEmpty())
        note(n, PluginPhase::Shutdown, strThrown);
    if (flag == IPlugin::SynchronousShutdown)
        pPending->remove(n);
}

// In Qt 6.4.2 QEventLoop::exec() returns at once while the application quits, so it is no help here.
void PluginRunner::Private::waitFor(QSet<int> *pPending, int nTimeoutMs)
{
    const QDeadlineTimer deadline(nTimeoutMs);
    QTimer alarm;
    alarm.start(qMax(1, nTimeoutMs));
    while (!pPending->isEmpty() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

// Deletes in reverse, because the records are in load order and dependents must go first.
void PluginRunner::Private::destroy(const QList<int> &records)
{
    for (auto it = records.crbegin(); it != records.crend(); ++it) {
        Plugin &plugin = plugins[*it];
        if (plugin.state != PluginState::Failed)
            plugin.state = PluginState::Stopped;
        delete plugin.object;
    }
}

void PluginRunner::remoteCommand(
    const QStringList &options, const QString &strWorkingDirectory, const QStringList &arguments)
{
    const QList<int> records = d->inState(PluginState::Running);
    for (const int n : records) {
        const QPointer<IPlugin> pPlugin = d->plugins[n].object;
        const QString strThrown = caught([&] {
            if (pPlugin)
                pPlugin->remoteCommand(options, strWorkingDirectory, arguments);
        });
        if (!strThrown.isEmpty())
            d->note(n, PluginPhase::RemoteCommand, strThrown);
    }
}

} // namespace ExtensionSystem
