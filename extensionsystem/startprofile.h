// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/pluginerror.h>

#include <QElapsedTimer>
#include <QList>
#include <QString>

namespace ExtensionSystem {

/// Records how long each plug-in took in each phase. Nothing is measured unless it is enabled.
class StartProfile
{
public:
    void setEnabled(bool bEnabled) { m_bEnabled = bEnabled; }

    /// Runs `function`, returns its result and records the time, also when it throws.
    template <typename Function>
    auto measure(const QString &strPlugin, PluginPhase phase, Function function)
    {
        const Booking booking(m_bEnabled ? this : nullptr, strPlugin, phase);
        return function();
    }

    void book(const QString &strPlugin, PluginPhase phase, qint64 nNanoseconds);

    /// The times as a table in milliseconds, ready to print; empty when not enabled.
    [[nodiscard]] QString text() const;

private:
    struct Entry
    {
        QString plugin;
        PluginPhase phase;
        qint64 nNanoseconds;
    };

    class Booking
    {
        Q_DISABLE_COPY_MOVE(Booking)
    public:
        Booking(StartProfile *pProfile, const QString &strPlugin, PluginPhase phase);
        ~Booking();

    private:
        StartProfile *m_pProfile;
        QString m_strPlugin;
        PluginPhase m_phase;
        QElapsedTimer m_timer;
    };

    bool m_bEnabled = false;
    QList<Entry> m_entries;
};

} // namespace ExtensionSystem
