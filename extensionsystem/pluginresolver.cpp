// SPDX-License-Identifier: MIT
#include <extensionsystem/pluginresolver.h>

#include <QHash>
#include <QSet>

#include <algorithm>
#include <map>

namespace ExtensionSystem {

namespace {

// The reason that lies in the metadata of `spec` itself; empty when it is sound.
QString ownReason(const PluginSpec &spec)
{
    return spec.problems.isEmpty()
        ? QString()
        : QStringLiteral("broken metadata: ") + spec.problems.join(QStringLiteral("; "));
}

class Resolver
{
public:
    Resolver(const QList<PluginSpec> &specs, const PluginSelection &selection)
        : m_specs(specs)
        , m_selection(selection)
    {
        m_result.verdicts.resize(specs.size());
    }

    PluginResolution run()
    {
        nameRecords();
        select();
        checkDependencies();
        findCircles();
        spreadFailures();
        sort();
        return m_result;
    }

private:
    void nameRecords();
    void select();
    void selectWanted();
    void selectWithRequired(int nFirst);
    void checkDependencies();
    [[nodiscard]] QString check(const PluginDependency &dependency) const;
    void findCircles();
    [[nodiscard]] QList<int> circleThrough(int nStart) const;
    [[nodiscard]] QList<int> requiredOf(int nRecord) const;
    void spreadFailures();
    void sort();
    void connectOptional(QList<QSet<int>> &edges) const;

    [[nodiscard]] PluginVerdict &verdict(int n) { return m_result.verdicts[n]; }
    [[nodiscard]] bool isUsed(int n) const
    {
        const PluginVerdict &verdict = m_result.verdicts.at(n);
        return verdict.bSelected && verdict.reason.isEmpty();
    }

    const QList<PluginSpec> &m_specs;
    const PluginSelection &m_selection;
    QHash<QString, int> m_byName;
    PluginResolution m_result;
};

// Sound records take names first, then broken ones what is left, so that dependents can say why they fail.
void Resolver::nameRecords()
{
    for (const bool bSound : {true, false}) {
        for (int i = 0; i < m_specs.size(); ++i) {
            const PluginSpec &spec = m_specs.at(i);
            if (spec.problems.isEmpty() != bSound)
                continue;
            verdict(i).reason = ownReason(spec);
            verdict(i).bOwnsName = !m_byName.contains(spec.name);
            if (verdict(i).bOwnsName)
                m_byName.insert(spec.name, i);
            else if (bSound)
                verdict(i).reason = QStringLiteral("a plug-in of this name was found before: %1")
                                        .arg(m_specs.at(m_byName.value(spec.name)).file);
        }
    }
}

// Selects by name: what is decided for the record that owns a name holds for all records with that name.
void Resolver::select()
{
    const QStringList named = m_selection.load + m_selection.leaveOut;
    for (const QString &strName : named) {
        if (!m_byName.contains(strName))
            m_result.unknown.append(strName);
    }
    if (!m_selection.load.isEmpty())
        selectWanted();
    for (int i = 0; i < m_specs.size(); ++i) {
        if (m_selection.leaveOut.contains(m_specs.at(i).name))
            verdict(i).bSelected = false;
    }
}

void Resolver::selectWanted()
{
    for (PluginVerdict &verdict : m_result.verdicts)
        verdict.bSelected = false;
    for (const PluginSpec &spec : m_specs) {
        if (spec.bRequired || m_selection.load.contains(spec.name))
            selectWithRequired(m_byName.value(spec.name));
    }
    for (int i = 0; i < m_specs.size(); ++i)
        verdict(i).bSelected = verdict(m_byName.value(m_specs.at(i).name)).bSelected;
}

void Resolver::selectWithRequired(int nFirst)
{
    QList<int> open = {nFirst};
    while (!open.isEmpty()) {
        const int n = open.takeLast();
        if (verdict(n).bSelected)
            continue;
        verdict(n).bSelected = true;
        if (verdict(n).reason.isEmpty())
            open += requiredOf(n);
    }
}

QList<int> Resolver::requiredOf(int nRecord) const
{
    QList<int> needed;
    for (const PluginDependency &dependency : m_specs.at(nRecord).dependencies) {
        if (dependency.bRequired && m_byName.contains(dependency.name))
            needed.append(m_byName.value(dependency.name));
    }
    return needed;
}

void Resolver::checkDependencies()
{
    for (int i = 0; i < m_specs.size(); ++i) {
        if (!isUsed(i))
            continue;
        verdict(i).required = requiredOf(i);
        for (const PluginDependency &dependency : m_specs.at(i).dependencies) {
            if (dependency.bRequired && verdict(i).reason.isEmpty())
                verdict(i).reason = check(dependency);
        }
    }
}

// Why a required dependency cannot be had, regardless of what that plug-in needs itself.
QString Resolver::check(const PluginDependency &dependency) const
{
    const QString strWanted = versionText(dependency.version);
    const auto it = m_byName.constFind(dependency.name);
    if (it == m_byName.constEnd())
        return QStringLiteral("needs %1 %2, which is missing").arg(dependency.name, strWanted);
    const PluginSpec &needed = m_specs.at(*it);
    if (!m_result.verdicts.at(*it).bSelected)
        return QStringLiteral("needs %1, which was left out").arg(dependency.name);
    if (!needed.problems.isEmpty())
        return dependencyReason(needed, ownReason(needed));
    if (needed.version < dependency.version)
        return QStringLiteral("needs %1 %2, but version %3 is too old (%4)")
            .arg(dependency.name, strWanted, versionText(needed.version), needed.file);
    if (!needed.provides(dependency.version))
        return QStringLiteral("needs %1 %2, but version %3 is compatible only down to %4 (%5)")
            .arg(dependency.name, strWanted, versionText(needed.version), versionText(needed.compatVersion),
                needed.file);
    return QString();
}

// Every record on a circle fails. One that has another fault still closes the circle for the others.
void Resolver::findCircles()
{
    QList<QPair<int, QString>> found;
    for (int i = 0; i < m_specs.size(); ++i) {
        QStringList names;
        const QList<int> circle = isUsed(i) ? circleThrough(i) : QList<int>();
        for (const int n : circle)
            names.append(m_specs.at(n).name);
        if (!names.isEmpty())
            found.append({i, QStringLiteral("needs itself: ") + names.join(QStringLiteral(" -> "))});
    }
    for (const auto &[nRecord, strReason] : found)
        verdict(nRecord).reason = strReason;
}

// A shortest path from the record back to itself, which is its first and last item; empty without one.
QList<int> Resolver::circleThrough(int nStart) const
{
    QHash<int, int> cameFrom;
    QList<int> open = {nStart};
    for (int i = 0; i < open.size(); ++i) {
        for (const int nNext : m_result.verdicts.at(open.at(i)).required) {
            if (cameFrom.contains(nNext))
                continue;
            cameFrom.insert(nNext, open.at(i));
            open.append(nNext);
        }
        if (!cameFrom.contains(nStart))
            continue;
        QList<int> way = {nStart};
        do {
            way.prepend(cameFrom.value(way.first()));
        } while (way.first() != nStart);
        return way;
    }
    return {};
}

void Resolver::spreadFailures()
{
    QList<QList<int>> dependents(m_specs.size());
    QList<int> failed;
    for (int i = 0; i < m_specs.size(); ++i) {
        if (!verdict(i).bSelected)
            continue;
        if (!verdict(i).reason.isEmpty())
            failed.append(i);
        for (const int nNeeded : std::as_const(verdict(i).required))
            dependents[nNeeded].append(i);
    }
    for (int i = 0; i < failed.size(); ++i) {
        const int nFailed = failed.at(i);
        for (const int nDependent : std::as_const(dependents[nFailed])) {
            if (!isUsed(nDependent))
                continue;
            verdict(nDependent).reason = dependencyReason(m_specs.at(nFailed), verdict(nFailed).reason);
            failed.append(nDependent);
        }
    }
}

// Adds the optional dependencies one by one, except those that cannot be had or would close a circle.
void Resolver::connectOptional(QList<QSet<int>> &edges) const
{
    const auto leadsTo = [&edges](int nFrom, int nTo) {
        QSet<int> seen = {nFrom};
        QList<int> open = {nFrom};
        for (int i = 0; i < open.size(); ++i) {
            for (const int nNext : std::as_const(edges[open.at(i)])) {
                if (!seen.contains(nNext)) {
                    seen.insert(nNext);
                    open.append(nNext);
                }
            }
        }
        return seen.contains(nTo);
    };
    std::map<QString, int> used;
    for (int i = 0; i < m_specs.size(); ++i) {
        if (isUsed(i))
            used.emplace(m_specs.at(i).name, i);
    }
    for (const auto &[strName, nRecord] : used) {
        for (const PluginDependency &dependency : m_specs.at(nRecord).dependencies) {
            const auto it = used.find(dependency.name);
            if (dependency.bRequired || it == used.end()
                || !m_specs.at(it->second).provides(dependency.version))
                continue;
            if (!leadsTo(it->second, nRecord))
                edges[nRecord].insert(it->second);
        }
    }
}

// Takes, again and again, the first by name of the records whose dependencies have all been taken.
void Resolver::sort()
{
    QList<QSet<int>> edges(m_specs.size());
    for (int i = 0; i < m_specs.size(); ++i) {
        if (isUsed(i))
            edges[i] = {verdict(i).required.cbegin(), verdict(i).required.cend()};
    }
    connectOptional(edges);

    QList<QList<int>> dependents(m_specs.size());
    std::map<QString, int> ready;
    for (int i = 0; i < m_specs.size(); ++i) {
        for (const int nNeeded : std::as_const(edges[i]))
            dependents[nNeeded].append(i);
        if (isUsed(i) && edges.at(i).isEmpty())
            ready.emplace(m_specs.at(i).name, i);
    }
    while (!ready.empty()) {
        const int nRecord = ready.begin()->second;
        ready.erase(ready.begin());
        m_result.order.append(nRecord);
        for (const int nDependent : std::as_const(dependents[nRecord])) {
            edges[nDependent].remove(nRecord);
            if (edges.at(nDependent).isEmpty())
                ready.emplace(m_specs.at(nDependent).name, nDependent);
        }
    }
}

} // namespace

PluginResolution resolvePlugins(const QList<PluginSpec> &specs, const PluginSelection &selection)
{
    return Resolver(specs, selection).run();
}

QString dependencyReason(const PluginSpec &needed, const QString &strReason)
{
    return QStringLiteral("needs %1 %2, which failed: ").arg(needed.name, versionText(needed.version))
        + strReason;
}

} // namespace ExtensionSystem
