// SPDX-License-Identifier: MIT
#include "startprofile.h"

#include "platform_p.h"

#include <QTextStream>

namespace ExtensionSystem {

StartProfile::Booking::Booking(StartProfile *pProfile, const QString &strPlugin, PluginPhase phase)
    : m_pProfile(pProfile)
    , m_strPlugin(strPlugin)
    , m_phase(phase)
{
    if (m_pProfile)
        m_timer.start();
}

StartProfile::Booking::~Booking()
{
    if (m_pProfile)
        m_pProfile->book(m_strPlugin, m_phase, m_timer.nsecsElapsed());
}

// Times of the same plug-in and phase are added up, because delayed work comes in many turns.
void StartProfile::book(const QString &strPlugin, PluginPhase phase, qint64 nNanoseconds)
{
    for (Entry &entry : m_entries) {
        if (entry.phase == phase && entry.plugin == strPlugin) {
            entry.nNanoseconds += nNanoseconds;
            return;
        }
    }
    m_entries.append({strPlugin, phase, nNanoseconds});
}

QString StartProfile::text() const
{
    if (!m_bEnabled)
        return QString();
    QString strText;
    QTextStream out(&strText);
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(2);
    const auto line = [&out](double nMilliseconds, const QString &strWhat) {
        out << qSetFieldWidth(10) << Qt::right << nMilliseconds << qSetFieldWidth(0) << " ms  " << strWhat
            << '\n';
    };
    double nSum = 0;
    for (const Entry &entry : m_entries) {
        const double nMilliseconds = static_cast<double>(entry.nNanoseconds) / 1e6;
        nSum += nMilliseconds;
        line(nMilliseconds, entry.plugin + QLatin1Char(' ') + phaseName(entry.phase));
    }
    line(nSum, QStringLiteral("in plug-ins"));
    if (const qint64 nTotal = Platform::msSinceProcessStart(); nTotal >= 0)
        line(static_cast<double>(nTotal), QStringLiteral("since the process started"));
    return strText;
}

} // namespace ExtensionSystem
